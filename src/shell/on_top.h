#pragma once

namespace tarnmill {

class Window;

/// Keeps a window above all others, where it is and as large as it is.
void SetOnTop(Window& window);

/// Lets other windows cover it again.
void SetNotOnTop(Window& window);

}  // namespace tarnmill

#pragma once

namespace tarnmill {

class Workbench;

/// Makes every window class of the program known to a workbench, and how its evaluators reach outward.
void register_windows(Workbench& bench);

}  // namespace tarnmill

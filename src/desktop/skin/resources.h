#pragma once

namespace tarnmill::desktop {

/// Makes the shipped fonts and icons readable under ":/tarnmill"; a static library's resources don't
/// register themselves. May be called again.
void load_resources();

}  // namespace tarnmill::desktop

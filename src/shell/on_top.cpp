#include "shell/on_top.h"

#include "forms/desk.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

void SetOnTop(Window& window) { window.workbench().desk().set_on_top(window, true); }

void SetNotOnTop(Window& window) { window.workbench().desk().set_on_top(window, false); }

}  // namespace tarnmill

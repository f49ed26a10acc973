#pragma once

class QApplication;
class QMenu;

namespace tarnmill::desktop {

/// Dresses the whole application: shipped fonts, one style on every platform, tooltips and menus. To be
/// called once, before the first window.
void apply_skin(QApplication& application);

/// Gives a menu, and those within it, round corners and the tick of the skin.
void dress_menu(QMenu& menu);

}  // namespace tarnmill::desktop

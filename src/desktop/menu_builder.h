#pragma once

#include <QMenu>

namespace tarnmill {
class MenuItem;
}

namespace tarnmill::desktop {

/// Fills `menu` with the visible entries of `item`: separators, check marks, access keys, and menus within.
void build_menu(QMenu& menu, const MenuItem& item);

/// Shows a menu of a window, its corner at a place on the screen, until it closes; gives the action chosen,
/// or null. The window counts its menus.
[[nodiscard]] QAction* run_menu(QMenu& menu, QWidget& owner, QPoint place);

/// How many menus a window has shown.
[[nodiscard]] int menus_shown(const QWidget& owner);

/// The entry that an action of a built menu stands for; null for none.
[[nodiscard]] MenuItem* entry_of(const QAction* action);

}  // namespace tarnmill::desktop

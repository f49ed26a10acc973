#pragma once

#include <QMenu>

namespace tarnmill {
class MenuItem;
}

namespace tarnmill::desktop {

/// Fills `menu` with the visible entries of `item`: separators, check marks, access keys, and menus within.
void build_menu(QMenu& menu, const MenuItem& item);

/// The entry that an action of a built menu stands for; null for none.
[[nodiscard]] MenuItem* entry_of(const QAction* action);

}  // namespace tarnmill::desktop

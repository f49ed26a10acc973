#include "desktop/menu_builder.h"

#include <QAction>

#include "desktop/qt_text.h"
#include "forms/menu_item.h"

namespace tarnmill::desktop {

namespace {

constexpr const char* menu_count = "menus_shown";

void add_entry(QMenu& menu, MenuItem& item) {
  if (item.is_separator()) {
    menu.addSeparator();
    return;
  }
  const QString caption = to_qt(item.Caption.get());
  QAction* action = item.children().empty() ? menu.addAction(caption) : menu.addMenu(caption)->menuAction();
  if (!item.children().empty()) build_menu(*action->menu(), item);
  action->setObjectName(to_qt(item.name()));
  action->setEnabled(item.Enabled);
  // A box shows only where there is a mark.
  action->setCheckable(item.Checked);
  action->setChecked(item.Checked);
  action->setData(QVariant::fromValue(reinterpret_cast<quintptr>(&item)));  // NOLINT: comes back by entry_of
}

}  // namespace

void build_menu(QMenu& menu, const MenuItem& item) {
  for (MenuItem* each : item.children()) {
    if (each->Visible) add_entry(menu, *each);
  }
}

QAction* run_menu(QMenu& menu, QWidget& owner, QPoint place) {
  owner.setProperty(menu_count, menus_shown(owner) + 1);
  return menu.exec(place);
}

int menus_shown(const QWidget& owner) { return owner.property(menu_count).toInt(); }

MenuItem* entry_of(const QAction* action) {
  if (action == nullptr) return nullptr;
  return reinterpret_cast<MenuItem*>(action->data().value<quintptr>());  // NOLINT: put in by add_entry
}

}  // namespace tarnmill::desktop

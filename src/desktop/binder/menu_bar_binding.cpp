#include "desktop/binder/menu_bar_binding.h"

#include <QMenu>
#include <set>

#include "desktop/binder/window_view.h"
#include "desktop/menu_builder.h"
#include "desktop/qt_text.h"
#include "desktop/skin/skin.h"
#include "forms/menu_item.h"
#include "forms/window.h"

namespace tarnmill::desktop {

namespace {

/// The menus of a window that lie in no other menu.
std::vector<MenuItem*> top_menus(const Window& window) {
  std::vector<MenuItem*> menus;
  std::set<const MenuItem*> inner;
  for (Control* each : window.controls()) {
    auto* item = dynamic_cast<MenuItem*>(each);
    if (item == nullptr) continue;
    menus.push_back(item);
    inner.insert(item->children().begin(), item->children().end());
  }
  std::erase_if(menus, [&](const MenuItem* each) { return inner.contains(each); });
  return menus;
}

}  // namespace

MenuBarBinding::MenuBarBinding(QMenuBar& bar, WindowView& view) : QObject{&view}, bar_{bar}, view_{view} {
  for (MenuItem* each : top_menus(*view.window())) add_menu(*each);
}

void MenuBarBinding::add_menu(MenuItem& item) {
  QMenu* menu = bar_.addMenu(to_qt(item.Caption.get()));
  menu->menuAction()->setObjectName(to_qt(item.name()));
  dress_menu(*menu);
  connect(menu, &QMenu::aboutToShow, this, [this, &item, menu] { open(item, *menu); });
  connect(menu, &QMenu::triggered, this, [this](const QAction* action) {
    if (view_.window() == nullptr) return;
    MenuItem* chosen = entry_of(action);
    if (chosen != nullptr) view_.enter([chosen] { chosen->press(); });
  });
}

void MenuBarBinding::open(MenuItem& item, QMenu& menu) {
  view_.enter([&item] { item.press(); });
  if (view_.window() == nullptr) return;
  // The menus within are no actions, which alone are cleared.
  qDeleteAll(menu.findChildren<QMenu*>(QString{}, Qt::FindDirectChildrenOnly));
  menu.clear();
  build_menu(menu, item);
  dress_menu(menu);
}

}  // namespace tarnmill::desktop

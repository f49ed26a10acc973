#pragma once

#include <QMenuBar>
#include <QObject>

namespace tarnmill {
class MenuItem;
}

namespace tarnmill::desktop {

class WindowView;

/// The top menus of a window on a menu bar. Each raises the Click of its item when it opens, so that the
/// program can enable its entries, and is then filled with what the items say at that moment.
class MenuBarBinding : public QObject {
  Q_OBJECT

 public:
  MenuBarBinding(QMenuBar& bar, WindowView& view);

 private:
  void add_menu(MenuItem& item);
  void open(MenuItem& item, QMenu& menu);

  QMenuBar& bar_;
  WindowView& view_;
};

}  // namespace tarnmill::desktop

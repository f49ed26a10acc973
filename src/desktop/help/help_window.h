#pragma once

#include <memory>

#include "desktop/skin/ground.h"

class QLabel;
class QLayout;
class QLineEdit;
class QTreeWidget;

namespace tarnmill::desktop {

class HelpBrowser;
class HelpFile;
class Key;

/// The window that shows a help file: its contents at the left, a page at the right, keys to go back and
/// forward, and a search within the page.
class HelpWindow : public Ground {
  Q_OBJECT

 public:
  explicit HelpWindow(std::unique_ptr<HelpFile> file);
  ~HelpWindow() override;

  /// Shows the page that the file opens at.
  void show_default_page();

 private:
  void lay_out();
  QLayout* make_bar();
  Key* make_key(const char* name, const QString& caption, const QString& tooltip, const QKeySequence& keys);
  void fill_contents();
  void connect_parts();
  void follow_page(const QString& page);
  void search(bool backward);

  std::unique_ptr<HelpFile> file_;
  HelpBrowser* browser_;
  QTreeWidget* contents_;
  QLineEdit* words_;
  QLabel* answer_;
  Key* back_;
  Key* forward_;
  Key* previous_;
  Key* next_;
};

}  // namespace tarnmill::desktop

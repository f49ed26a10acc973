#include "desktop/binder/list_bindings.h"

#include <QLineEdit>

#include "desktop/qt_text.h"

namespace tarnmill::desktop {

namespace {

QStringList rows_of(const ListControl& list) {
  QStringList rows;
  for (const Text& each : list.items()) rows += to_qt(each);
  return rows;
}

}  // namespace

ComboBinding::ComboBinding(ListControl& list, QComboBox& combo, WindowView& view)
    : Binding{list, combo, view}, list_{list}, combo_{combo} {}

void ComboBinding::start() {
  Binding::start();
  connect(&combo_, &QComboBox::activated, this, [this](int index) {
    enter([this, index] { list_.choose(index); });
    if (control() != nullptr) change_widget([this] { show_choice(); });
  });
  if (!combo_.isEditable()) return;
  watch(*combo_.lineEdit());
  // What is typed counts, not what the toolkit would add to it.
  combo_.setCompleter(nullptr);
  // The toolkit gives the line of an editable box no padding.
  constexpr int inset = 5;
  combo_.lineEdit()->setTextMargins(inset, 0, 0, 0);
  connect(combo_.lineEdit(), &QLineEdit::textEdited, this,
          [this](const QString& text) { enter([this, &text] { list_.Text = from_qt(text); }); });
}

void ComboBinding::show_property(std::string_view name) {
  Binding::show_property(name);
  if (name == "ListCount") {
    show_items();
  } else if (name == "ListIndex" || name == "Text") {
    show_choice();
  }
}

void ComboBinding::show_items() {
  const int rows = static_cast<int>(list_.items().size());
  if (rows > 0 && combo_.count() + 1 == rows) {
    // Lists grow by one entry at a time.
    combo_.addItem(to_qt(list_.items().back()));
  } else {
    combo_.clear();
    combo_.addItems(rows_of(list_));
  }
  show_choice();
}

void ComboBinding::show_choice() {
  const QString text = to_qt(list_.Text.get());
  combo_.setCurrentIndex(list_.ListIndex);
  if (!combo_.isEditable()) {
    combo_.setPlaceholderText(text);
  } else if (combo_.lineEdit()->text() != text) {
    combo_.lineEdit()->setText(text);
  }
}

ListBinding::ListBinding(ListControl& list, QListWidget& widget, WindowView& view)
    : Binding{list, widget, view}, list_{list}, rows_{widget} {}

void ListBinding::start() {
  Binding::start();
  watch(*rows_.viewport());
  connect(&rows_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) enter([this, row] { list_.choose(row); });
  });
}

void ListBinding::show_property(std::string_view name) {
  Binding::show_property(name);
  if (name == "ListCount") {
    rows_.clear();
    rows_.addItems(rows_of(list_));
  }
  if (name == "ListCount" || name == "ListIndex") rows_.setCurrentRow(list_.ListIndex);
}

}  // namespace tarnmill::desktop

#include "desktop/binder/grid_binding.h"

#include <QEvent>
#include <QHeaderView>
#include <utility>

#include "desktop/binder/window_view.h"
#include "desktop/qt_raster.h"
#include "desktop/qt_text.h"

namespace tarnmill::desktop {

namespace {

/// A cell's text as it shows: nothing for a control character, which some fonts have pictures of.
QString shown(const Text& text) {
  const QString characters = to_qt(text);
  const bool control = characters.size() == 1 && characters.front().category() == QChar::Other_Control;
  return control ? QString{} : characters;
}

}  // namespace

GridBinding::GridBinding(FlexGrid& grid, QTableWidget& table, WindowView& view)
    : Binding{grid, table, view}, grid_{grid}, table_{table}, font_{grid} {}

void GridBinding::start() {
  table_.setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_.horizontalHeader()->setMinimumSectionSize(1);
  Binding::start();
  watch(*table_.viewport());
  connect(&table_, &QTableWidget::cellClicked, this, [this](int row, int column) {
    // The toolkit tells the release after a double click as a click of its own.
    if (!std::exchange(double_click_, false)) enter([&] { grid_.choose(row, column); });
  });
  connect(&table_, &QTableWidget::currentCellChanged, this, [this](int row, int column) {
    if (row >= 0 && column >= 0) enter([&] { grid_.go_to(row, column); });
  });
}

bool GridBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) double_click_ = false;
  if (event->type() == QEvent::MouseButtonDblClick) double_click_ = true;
  return Binding::eventFilter(watched, event);
}

void GridBinding::show_property(std::string_view name) {
  Binding::show_property(name);
  if (name == "Cells") {
    show_cells();
  } else if (name == "Row") {
    table_.setCurrentCell(grid_.row(), grid_.column());
  } else if (font_.take(name, is_starting())) {
    table_.setFont(font_.over(table_.font()));
  }
}

void GridBinding::show_cells() {
  table_.setRowCount(grid_.Rows);
  table_.setColumnCount(grid_.Cols);
  for (int column = 0; column < grid_.Cols; ++column) {
    table_.setColumnWidth(column, static_cast<int>(grid_.ColWidth(column) / WindowView::twips_per_pixel));
    for (int row = 0; row < grid_.Rows; ++row) show_cell(row, column);
  }
}

/// A program fills its grid cell by cell, so what shows already is left alone.
void GridBinding::show_cell(int row, int column) {
  QTableWidgetItem* item = table_.item(row, column);
  if (item == nullptr) {
    item = new QTableWidgetItem;
    item->setTextAlignment(Qt::AlignCenter);
    table_.setItem(row, column, item);
  }
  const QString text = shown(grid_.TextMatrix(row, column));
  if (item->text() != text) item->setText(text);
  const QBrush ground{QColor{to_qt(grid_.back_color(row, column))}};
  if (item->background() != ground) item->setBackground(ground);
}

}  // namespace tarnmill::desktop

#include "desktop/binder/grid_binding.h"

#include "desktop/binder/window_view.h"
#include "desktop/qt_raster.h"
#include "desktop/qt_text.h"
#include "desktop/raster_text.h"

namespace tarnmill::desktop {

GridBinding::GridBinding(FlexGrid& grid, QTableWidget& table, WindowView& view)
    : Binding{grid, table, view}, grid_{grid}, table_{table} {}

void GridBinding::start() {
  table_.setEditTriggers(QAbstractItemView::NoEditTriggers);
  Binding::start();
  watch(*table_.viewport());
  connect(&table_, &QTableWidget::cellClicked, this,
          [this](int row, int column) { enter([&] { grid_.choose(row, column); }); });
  connect(&table_, &QTableWidget::currentCellChanged, this, [this](int row, int column) {
    if (row >= 0 && column >= 0) enter([&] { grid_.go_to(row, column); });
  });
}

void GridBinding::show_property(std::string_view name) {
  Binding::show_property(name);
  if (name == "Cells") {
    show_cells();
  } else if (name == "Row") {
    table_.setCurrentCell(grid_.row(), grid_.column());
  } else if (name.starts_with("Font") && !is_starting()) {
    table_.setFont(printed_font(grid_.FontProperties::get()));
  }
}

void GridBinding::show_cells() {
  table_.setRowCount(grid_.Rows);
  table_.setColumnCount(grid_.Cols);
  for (int column = 0; column < grid_.Cols; ++column) {
    table_.setColumnWidth(column, static_cast<int>(grid_.ColWidth(column) / WindowView::twips_per_pixel));
    for (int row = 0; row < grid_.Rows; ++row) {
      QTableWidgetItem* item = table_.item(row, column);
      if (item == nullptr) {
        item = new QTableWidgetItem;
        item->setTextAlignment(Qt::AlignCenter);
        table_.setItem(row, column, item);
      }
      item->setText(to_qt(grid_.TextMatrix(row, column)));
      item->setBackground(QColor{to_qt(grid_.back_color(row, column))});
    }
  }
}

}  // namespace tarnmill::desktop

#pragma once

#include <QTableWidget>

#include "desktop/binder/binding.h"
#include "desktop/binder/told_font.h"
#include "forms/flex_grid.h"

namespace tarnmill::desktop {

/// A grid of cells. A press on a cell goes there and clicks, once where it is pressed twice in a row; the
/// arrow keys go from cell to cell.
class GridBinding final : public Binding {
 public:
  GridBinding(FlexGrid& grid, QTableWidget& table, WindowView& view);
  void start() override;

 protected:
  void show_property(std::string_view name) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void show_cells();
  void show_cell(int row, int column);

  FlexGrid& grid_;
  QTableWidget& table_;
  ToldFont font_;
  bool double_click_ = false;
};

}  // namespace tarnmill::desktop

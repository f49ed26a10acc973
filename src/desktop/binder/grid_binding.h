#pragma once

#include <QTableWidget>

#include "desktop/binder/binding.h"
#include "forms/flex_grid.h"

namespace tarnmill::desktop {

/// A grid of cells. A press on a cell goes there and clicks; the arrow keys go from cell to cell.
class GridBinding final : public Binding {
 public:
  GridBinding(FlexGrid& grid, QTableWidget& table, WindowView& view);
  void start() override;

 protected:
  void show_property(std::string_view name) override;

 private:
  void show_cells();

  FlexGrid& grid_;
  QTableWidget& table_;
};

}  // namespace tarnmill::desktop

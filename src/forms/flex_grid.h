#pragma once

#include <map>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/color.h"
#include "forms/control.h"
#include "forms/font.h"

namespace tarnmill {

/// A grid of cells with texts, one of which is the current one. Rows and columns count from 0. Going to
/// another cell raises LeaveCell on the old one, then EnterCell on the new one.
class FlexGrid final : public Control, public FontProperties {
 public:
  FlexGrid(Window& window, std::string_view name);

  /// How many rows and columns there are. What no longer fits is lost.
  Property<int> Rows{*this, "Rows", 2};
  Property<int> Cols{*this, "Cols", 2};
  /// The current cell. One outside of the grid raises Invalid-argument.
  ComputedProperty Row;
  ComputedProperty Col;
  /// Text and background of the current cell; a cell that was given no colour is white.
  ComputedProperty Text;
  ComputedProperty CellBackColor;

  Event<> EnterCell{*this, "EnterCell"};
  Event<> LeaveCell{*this, "LeaveCell"};

  [[nodiscard]] int row() const { return row_; }
  [[nodiscard]] int column() const { return column_; }
  /// Makes a cell the current one.
  void go_to(int row, int column);
  /// A person's click on a cell: goes there, then raises Click.
  void choose(int row, int column);

  /// The text of a cell; one outside of the grid raises Invalid-argument.
  [[nodiscard]] const tarnmill::Text& TextMatrix(int row, int column) const;
  void TextMatrix(int row, int column, tarnmill::Text text);
  /// The width of a column in twips; one outside of the grid raises Invalid-argument.
  [[nodiscard]] int ColWidth(int column) const;
  void ColWidth(int column, int width);
  /// The background of a cell.
  [[nodiscard]] Color back_color(int row, int column) const;

 protected:
  void property_changed(const PropertyBase& property) override;

 private:
  void expect_cell(int row, int column) const;
  void resize();

  int row_ = 0;
  int column_ = 0;
  std::vector<std::vector<tarnmill::Text>> texts_;
  std::vector<int> widths_;
  std::map<std::pair<int, int>, Color> back_colors_;

 public:
  /// Tells the views that cells or columns look otherwise now.
  ComputedProperty Cells{*this, "Cells", [] { return Variant{}; }};
};

}  // namespace tarnmill

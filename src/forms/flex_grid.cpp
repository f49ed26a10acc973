#include "forms/flex_grid.h"

#include <algorithm>

#include "engine/fault.h"

namespace tarnmill {

namespace {

constexpr int default_width = 960;
constexpr Color white = rgb(255, 255, 255);

std::size_t place(int index) { return static_cast<std::size_t>(index); }

}  // namespace

FlexGrid::FlexGrid(Window& window, std::string_view name)
    : Control{window, name},
      FontProperties{static_cast<Node&>(*this)},
      Row{*this, "Row", [this] { return Variant{row_}; },
          [this](const Variant& v) { go_to(from_variant<int>(v, regional()), column_); }},
      Col{*this, "Col", [this] { return Variant{column_}; },
          [this](const Variant& v) { go_to(row_, from_variant<int>(v, regional())); }},
      Text{*this, "Text", [this] { return Variant{TextMatrix(row_, column_)}; },
           [this](const Variant& v) { TextMatrix(row_, column_, v.to_text(regional())); }},
      CellBackColor{*this, "CellBackColor", [this] { return Variant{back_color(row_, column_)}; },
                    [this](const Variant& v) {
                      back_colors_[{row_, column_}] = from_variant<Color>(v, regional());
                      Cells.changed();
                    }} {
  resize();
}

void FlexGrid::go_to(int row, int column) {
  expect_cell(row, column);
  if (row == row_ && column == column_) return;
  LeaveCell.raise();
  row_ = row;
  column_ = column;
  Row.changed();
  EnterCell.raise();
}

void FlexGrid::choose(int row, int column) {
  go_to(row, column);
  press();
}

const Text& FlexGrid::TextMatrix(int row, int column) const {
  expect_cell(row, column);
  return texts_[place(row)][place(column)];
}

void FlexGrid::TextMatrix(int row, int column, tarnmill::Text text) {
  expect_cell(row, column);
  texts_[place(row)][place(column)] = std::move(text);
  Cells.changed();
}

int FlexGrid::ColWidth(int column) const {
  expect_cell(row_, column);
  return widths_[place(column)];
}

void FlexGrid::ColWidth(int column, int width) {
  expect_cell(row_, column);
  widths_[place(column)] = width;
  Cells.changed();
}

Color FlexGrid::back_color(int row, int column) const {
  const auto found = back_colors_.find({row, column});
  return found == back_colors_.end() ? white : found->second;
}

void FlexGrid::property_changed(const PropertyBase& property) {
  if (&property != &Rows && &property != &Cols) return;
  resize();
  Cells.changed();
}

void FlexGrid::expect_cell(int row, int column) const {
  if (row < 0 || row >= Rows || column < 0 || column >= Cols) throw Fault{FaultCode::InvalidArgument};
}

void FlexGrid::resize() {
  if (Rows < 1 || Cols < 1) {
    Rows.start_as(std::max(1, Rows.get()));
    Cols.start_as(std::max(1, Cols.get()));
    throw Fault{FaultCode::InvalidArgument};
  }
  texts_.resize(place(Rows));
  for (auto& each : texts_) each.resize(place(Cols));
  widths_.resize(place(Cols), default_width);
  std::erase_if(back_colors_,
                [this](const auto& each) { return each.first.first >= Rows || each.first.second >= Cols; });
  row_ = std::min(row_, Rows - 1);
  column_ = std::min(column_, Cols - 1);
}

}  // namespace tarnmill

#include "engine/service/quadrature.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "engine/checked.h"
#include "engine/service/kronrod_rule.h"

namespace tarnmill {
namespace {

// An error of less than this share of the whole counts for nothing.
constexpr double settled_share = 1e-12;

// Halvings in a row after which a singularity must have shown that it has an area. Each one takes the error
// of 1/sqr(x) down to 0.7 of what it was, and leaves that of 1/x as it is.
constexpr int patience = 64;
constexpr double least_progress = 0.25;

// Where numbers lie too close for further halving, this factor for each halving is the progress to have shown
// (the fourth root of a half), and whatever the progress, more than this share of the whole is that of a
// pole.
constexpr double least_progress_each = 0.8408964152537145;
constexpr double greatest_share = 1e-3;

// Below this width against its place, points of the rule would fall on the ends of half a cell.
constexpr double least_relative_width = 0x1p-41;
constexpr double least_width = 1e-300;

// Enough for hundreds of jumps and singularities; a bounded function that has not settled by then never does.
constexpr int most_halvings = 4000;

struct Cell {
  double from;
  double to;
  CellEstimate estimate;
  int halvings;           // since the part that the cell came from
  double greatest_error;  // of the cells that it came from
};

bool has_smaller_error(const Cell& left, const Cell& right) {
  return left.estimate.error < right.estimate.error;
}

bool is_splittable(const Cell& cell) {
  const double width = cell.to - cell.from;
  return width > least_width &&
         width > least_relative_width * std::max(std::fabs(cell.from), std::fabs(cell.to));
}

class Quadrature {
 public:
  Quadrature(const RealFunction& function, double from, double to, std::int32_t parts) : function_{function} {
    cells_.reserve(static_cast<std::size_t>(parts));
    for (std::int32_t part = 0; part < parts; ++part) {
      add_part(division(from, to, part, parts), division(from, to, part + 1, parts));
    }
    std::ranges::make_heap(cells_, has_smaller_error);
  }

  double settled_integral() {
    int halvings = 0;
    while (!is_settled(cells_.front()) && halvings < most_halvings) {
      const Cell worst = take_worst();
      if (must_be_halved(worst)) {
        put(half(worst, worst.from, middle(worst)));
        put(half(worst, middle(worst), worst.to));
        ++halvings;
      } else {
        area_ += worst.estimate.integral;
        if (cells_.empty()) return finite(area_);
      }
    }
    require_no_pole(cells_.front());
    for (const Cell& cell : cells_) area_ += cell.estimate.integral;
    return finite(area_);
  }

 private:
  static double division(double from, double to, std::int32_t part, std::int32_t parts) {
    return part == parts ? to : from + (to - from) * (static_cast<double>(part) / parts);
  }

  static double middle(const Cell& cell) { return cell.from / 2 + cell.to / 2; }

  void add_part(double from, double to) {
    const CellEstimate estimate = kronrod_rule(function_, from, to);
    magnitude_ += estimate.magnitude;
    cells_.push_back({from, to, estimate, 0, 0});
  }

  Cell half(const Cell& whole, double from, double to) {
    return {from, to, kronrod_rule(function_, from, to), whole.halvings + 1,
            std::max(whole.greatest_error, whole.estimate.error)};
  }

  Cell take_worst() {
    std::ranges::pop_heap(cells_, has_smaller_error);
    const Cell worst = cells_.back();
    cells_.pop_back();
    magnitude_ -= worst.estimate.magnitude;
    return worst;
  }

  void put(const Cell& cell) {
    magnitude_ += cell.estimate.magnitude;
    cells_.push_back(cell);
    std::ranges::push_heap(cells_, has_smaller_error);
  }

  [[nodiscard]] bool is_settled(const Cell& cell) const {
    return cell.estimate.error <= settled_share * magnitude_;
  }

  // False for a cell that can't be halved and need not be; raises when its error is that of a pole.
  [[nodiscard]] bool must_be_halved(const Cell& cell) const {
    const bool splittable = is_splittable(cell);
    const double error = cell.estimate.error;
    if (splittable && cell.halvings < patience) return true;
    const double progress = splittable ? least_progress : std::pow(least_progress_each, cell.halvings);
    const bool negligible = splittable || error <= greatest_share * (magnitude_ + cell.estimate.magnitude);
    if (!negligible || (cell.halvings > 0 && error > progress * cell.greatest_error)) {
      throw Fault{FaultCode::DivisionByZero};
    }
    return splittable;
  }

  // Follows the worst error into ever smaller cells: that of a bounded function goes with their width.
  void require_no_pole(Cell cell) {
    while (!is_settled(cell) && must_be_halved(cell)) {
      const Cell left = half(cell, cell.from, middle(cell));
      const Cell right = half(cell, middle(cell), cell.to);
      cell = std::max(left, right, has_smaller_error);
    }
  }

  const RealFunction& function_;
  std::vector<Cell> cells_;  // a heap, the greatest error in front
  double magnitude_ = 0;     // of all cells in it
  double area_ = 0;          // of the cells that were taken out for good
};

}  // namespace

double integral(const RealFunction& function, double from, double to, std::int32_t parts) {
  if (parts < 1 || parts > most_parts) throw Fault{FaultCode::InvalidArgument};
  finite(to - from);
  if (from > to) return -integral(function, to, from, parts);
  return Quadrature{function, from, to, parts}.settled_integral();
}

}  // namespace tarnmill

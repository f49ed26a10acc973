#include "graph/pen.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarnmill {
namespace {

struct Rule {
  bool up;
  bool in_range;
  std::optional<bool> unplaced;  // empty: either
  PenMove move;
  bool up_after;
};

constexpr std::array rules{
    Rule{true, true, true, PenMove::place, false},
    Rule{true, true, false, PenMove::line, false},
    Rule{true, false, {}, PenMove::place, true},
    Rule{false, true, {}, PenMove::line, false},
    Rule{false, false, {}, PenMove::line_then_place, true},
};

}  // namespace

PenMove Pen::move_to(bool in_range) {
  const auto* rule = std::find_if(rules.begin(), rules.end(), [&](const Rule& each) {
    return each.up == up && each.in_range == in_range && each.unplaced.value_or(unplaced) == unplaced;
  });
  up = rule->up_after;
  unplaced = unplaced && rule->move != PenMove::place;
  return rule->move;
}

}  // namespace tarnmill

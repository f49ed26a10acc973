#include "engine/service/kronrod_rule.h"

#include <array>
#include <cmath>

#include "engine/checked.h"

namespace tarnmill {
namespace {

// A point of the range -1 to 1 with its weight in the Kronrod rule and in the Gauss rule.
struct Node {
  double at;
  double kronrod_weight;
  double gauss_weight;
};

constexpr std::array<Node, 15> nodes{{
    {-0.9914553711208126392069, 0.02293532201052922496373, 0},
    {-0.9491079123427585245262, 0.0630920926299785532907, 0.1294849661688696932706},
    {-0.8648644233597690727897, 0.1047900103222501838399, 0},
    {-0.7415311855993944398639, 0.1406532597155259187452, 0.2797053914892766679015},
    {-0.5860872354676911302941, 0.1690047266392679028266, 0},
    {-0.4058451513773971669066, 0.1903505780647854099133, 0.3818300505051189449504},
    {-0.2077849550078984676007, 0.2044329400752988924142, 0},
    {0, 0.209482141084727828013, 0.4179591836734693877551},
    {0.2077849550078984676007, 0.2044329400752988924142, 0},
    {0.4058451513773971669066, 0.1903505780647854099133, 0.3818300505051189449504},
    {0.5860872354676911302941, 0.1690047266392679028266, 0},
    {0.7415311855993944398639, 0.1406532597155259187452, 0.2797053914892766679015},
    {0.8648644233597690727897, 0.1047900103222501838399, 0},
    {0.9491079123427585245262, 0.0630920926299785532907, 0.1294849661688696932706},
    {0.9914553711208126392069, 0.02293532201052922496373, 0},
}};

}  // namespace

CellEstimate kronrod_rule(const RealFunction& function, double from, double to) {
  const double center = from / 2 + to / 2;
  const double half_width = to / 2 - from / 2;
  double kronrod = 0;
  double gauss = 0;
  double magnitude = 0;
  for (const Node& node : nodes) {
    const double value = function(center + half_width * node.at);
    kronrod += node.kronrod_weight * value;
    gauss += node.gauss_weight * value;
    magnitude += node.kronrod_weight * std::fabs(value);
  }
  return {.integral = finite(half_width * kronrod),
          .magnitude = finite(half_width * magnitude),
          .error = finite(std::fabs(half_width * (kronrod - gauss)))};
}

}  // namespace tarnmill

#include "graph/plot_walk.h"

#include <limits>

#include "engine/checked.h"
#include "graph/plane.h"

namespace tarnmill {

PlotWalk::PlotWalk(const Plane& plane, float width)
    : k_{plane.left()}, end_{plane.right(width)}, step_{divide(1, plane.pixels_per_unit)} {}

void PlotWalk::advance() {
  const double next = add(k_, step_);
  k_ = next > k_ ? next : std::numeric_limits<double>::max();
}

}  // namespace tarnmill

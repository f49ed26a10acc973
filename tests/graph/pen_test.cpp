#include "graph/pen.h"

#include <gtest/gtest.h>

namespace tarnmill {
namespace {

struct Step {
  Pen before;
  bool in_range;
  PenMove move;
  Pen after;
};

class PenTest : public testing::TestWithParam<Step> {};

TEST_P(PenTest, MovesByItsTable) {
  Pen pen = GetParam().before;
  EXPECT_EQ(pen.move_to(GetParam().in_range), GetParam().move);
  EXPECT_EQ(pen, GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PenTest,
    testing::Values(Step{{true, true}, true, PenMove::place, {false, false}},
                    Step{{true, false}, true, PenMove::line, {false, false}},
                    Step{{true, true}, false, PenMove::place, {true, false}},
                    Step{{true, false}, false, PenMove::place, {true, false}},
                    Step{{false, true}, true, PenMove::line, {false, true}},
                    Step{{false, false}, true, PenMove::line, {false, false}},
                    Step{{false, true}, false, PenMove::line_then_place, {true, true}},
                    Step{{false, false}, false, PenMove::line_then_place, {true, false}}));

}  // namespace
}  // namespace tarnmill

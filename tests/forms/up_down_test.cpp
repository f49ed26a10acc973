#include "forms/up_down.h"

#include <gtest/gtest.h>

#include "forms/sample_window.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

class UpDownTest : public ::testing::Test {
 protected:
  UpDownTest() {
    arrows.Change.handle([this] { seen.push_back(arrows.Value); });
  }

  TestProgram program;
  SampleWindow window{program.bench};
  UpDown arrows{window, "arrows", -2, 3};
  std::vector<std::int32_t> seen;
};

TEST_F(UpDownTest, EachPressCountsOneStepWithinTheRange) {
  for (int i = 0; i < 5; ++i) arrows.step(1);
  EXPECT_EQ(seen, (std::vector<std::int32_t>{1, 2, 3}));
  seen.clear();
  for (int i = 0; i < 9; ++i) arrows.step(-1);
  EXPECT_EQ(seen, (std::vector<std::int32_t>{2, 1, 0, -1, -2}));
}

TEST_F(UpDownTest, AStepIsAsLargeAsTold) {
  arrows.Increment = 2;
  arrows.step(1);
  arrows.step(1);
  EXPECT_EQ(seen, (std::vector<std::int32_t>{2, 3}));
}

TEST_F(UpDownTest, AValueThatIsSetRaisesChangeOnceAndStaysWithinTheRange) {
  arrows.Value = 2;
  arrows.Value = 2;
  arrows.Value = 90;
  arrows.Value = 91;
  arrows.Value = -90;
  EXPECT_EQ(seen, (std::vector<std::int32_t>{2, 3, -2}));
}

}  // namespace
}  // namespace tarnmill

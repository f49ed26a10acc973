#include "graph_fixture.h"

namespace tarnmill {
namespace {

class DiagnosticsTest : public GraphTest {
 protected:
  std::vector<Text> printed() {
    std::vector<Text> texts;
    for (const auto& each : form().picINFO.Ops()) {
      if (const auto* text = std::get_if<PictureBox::Printed>(&each)) texts.push_back(text->text);
    }
    return texts;
  }
};

TEST_F(DiagnosticsTest, TheSwitchesArePrintedWhileDebugIsOn) {
  form().TextSW = -1;
  form().picINFO.Record(true);
  EXPECT_EQ(form().print_state(), 0);
  EXPECT_TRUE(form().picINFO.Ops().empty());
  form().Debug = true;
  EXPECT_EQ(form().print_state(), 0);
  EXPECT_TRUE(std::holds_alternative<PictureBox::Cleared>(form().picINFO.Ops().front()));
  EXPECT_EQ(printed(),
            (std::vector<Text>{u" DMode=0", u"  ZMode=0", u"  MCRSW=0", u"  TextSW=-1", u"  ResSW=0",
                               u"  PerSpecSW=0", u"  RotSW=0", u"  +BMPSW=0", u"  SetPP=0"}));
}

TEST_F(DiagnosticsTest, APointIsPrintedOnTwoLines) {
  form().picINFO.Record(true);
  form().print_point(1.5, -2);
  EXPECT_EQ(printed(), (std::vector<Text>{u" X=1.5", u" Y=-2"}));
}

}  // namespace
}  // namespace tarnmill

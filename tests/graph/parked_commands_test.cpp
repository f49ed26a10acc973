#include "graph_fixture.h"

namespace tarnmill {
namespace {

using ParkedCommandsTest = GraphTest;

TEST_F(ParkedCommandsTest, EvaluatingTellsTheEvaluatorsMessages) {
  form().Text1.Text = u"1/0";
  form().cmdEval.press();
  EXPECT_EQ(only_dialog().icon, MessageIcon::critical);
  EXPECT_EQ(form().graph_evaluator().error(), 16);
}

TEST_F(ParkedCommandsTest, EvaluatingIsQuietWhenAllIsWell) {
  form().txtX.Text = u"k";
  form().Text1.Text = u"1+1";
  form().cmdEval.press();
  EXPECT_TRUE(program.desk.dialogs().empty());
  EXPECT_EQ(form().graph_evaluator().Expression(), u"1+1");
}

TEST_F(ParkedCommandsTest, EvaluatingIsForStandardCurves) {
  form().txtX.Text = u"2*K";
  form().Text1.Text = u"1/0";
  form().cmdEval.press();
  const DialogShown box = only_dialog();
  EXPECT_EQ(box.text, u"This option is available only for \r\ny = f(k) ,  where   x = k .");
  EXPECT_EQ(box.title, u"Tarnmill");
  EXPECT_EQ(box.icon, MessageIcon::none);
}

TEST_F(ParkedCommandsTest, ConversionWantsASelection) {
  form().Text1.Text = u"Sin(90)";
  form().cmdrad.press();
  const DialogShown box = only_dialog();
  EXPECT_EQ(box.text,
            u"Highlight argument of trigonometric function (in Degrees)\r\nyou want to convert to Radians.");
  EXPECT_EQ(box.icon, MessageIcon::information);
  EXPECT_EQ(form().lblconv.Caption.get(), u"Sin(90)");
}

TEST_F(ParkedCommandsTest, ConversionPutsRadiansInPlaceOfDegrees) {
  form().Text1.Text = u"Sin(90)";
  form().Text1.select(4, 2);
  program.desk.answer(MessageResult::yes);
  form().cmdrad.press();
  const DialogShown box = only_dialog();
  EXPECT_EQ(box.text, u"Conversion done: \r\n90 Deg  = 1.5708 Rad\r\n\r\nReplace argument?");
  EXPECT_EQ(box.title, u"Conversion");
  EXPECT_EQ(box.buttons, MessageButtons::yes_no);
  EXPECT_EQ(form().Text1.Text.get(), u"Sin(1.5708)");
}

TEST_F(ParkedCommandsTest, ARefusedConversionBringsTheTextBack) {
  form().Text1.Text = u"Sin(90)";
  form().Text1.select(4, 2);
  program.desk.answer(MessageResult::no);
  form().cmdrad.press();
  EXPECT_EQ(form().Text1.Text.get(), u"Sin(90)");
}

TEST_F(ParkedCommandsTest, TheColoursOfTheNextCurve) {
  form().AxisColor = 1;
  form().lblBoja.BackColor = 2;
  form().lblBoja2.BackColor = 3;
  for (const auto& [name, color] : {std::pair{"Boje2", 1}, {"Boje3", 2}, {"Boje4", 3}, {"Boje5", 2}}) {
    (*form().find_procedure(name))({});
    EXPECT_EQ(form().CurveColor, color) << name;
  }
}

}  // namespace
}  // namespace tarnmill

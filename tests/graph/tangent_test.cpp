#include "calculus/frm_integral.h"
#include "graph/frm_unesit.h"
#include "graph_fixture.h"

namespace tarnmill {
namespace {

class TangentTest : public GraphTest {
 protected:
  frmunesit& prompt() { return program.window<frmunesit>(); }

  /// The lines of the tangent at a point as it is typed; the last plot is the tangent's.
  std::vector<LineDrawn> tangent_at(const Text& point) {
    form().cmdtangenta.press();
    prompt().Text1.Text = point;
    return lines([&] { prompt().Command1.press(); });
  }
};

TEST_F(TangentTest, WithoutAFunctionThereIsNone) {
  EXPECT_EQ(form().cmdtangenta.ToolTipText.get(), u" Draw Tangent (Key T) ");
  form().lbly.Caption = u"ERR";
  form().cmdtangenta.press();
  expect_message(u"Draw function first.", MessageIcon::information);
  EXPECT_EQ(form().lbly.Caption.get(), u"");
  EXPECT_FALSE(program.bench.is_visible("frmunesit"));
}

TEST_F(TangentTest, ACurveOfAnotherKindHasNone) {
  for (const char16_t* x : {u"Y", u"K+0", u"", u"kk"}) {
    set_fields(u"K", x);
    form().cmdtangenta.press();
    expect_message(u"This option is available only for \r\nY = f (K), where X = K .", MessageIcon::none,
                   u"Tangent");
  }
}

TEST_F(TangentTest, AsksForThePoint) {
  for (const char16_t* x : {u"K", u"k"}) {
    set_fields(u"K^2", x);
    form().cmdtangenta.press();
    EXPECT_TRUE(prompt().Visible);
    EXPECT_EQ(prompt().Label1.Caption.get(), u"Tangent to the function\r\nY = K^2\r\nthrough the point:");
    EXPECT_EQ(prompt().Text1.Text.get(), u"0");
    EXPECT_EQ(prompt().Caption.get(), u"Use right mouse click or enter value for X");
    EXPECT_EQ(program.bench.focus(), &form().txtY);
    prompt().Command2.press();
  }
  EXPECT_TRUE(program.desk.dialogs().empty());
}

TEST_F(TangentTest, TheKeyTAndTheProcedureAskAsWell) {
  set_fields(u"K^2");
  press_code('T');
  EXPECT_TRUE(prompt().Visible);
  prompt().Hide();
  form().begin_tangent();
  EXPECT_TRUE(prompt().Visible);
}

TEST_F(TangentTest, ThePointIsSelectedAtFirst) {
  EXPECT_EQ(prompt().Text1.sel_start(), 0);
  EXPECT_EQ(prompt().Text1.sel_length(), 1);
}

TEST_F(TangentTest, CancelGoesBackToZero) {
  prompt().Show();
  prompt().Text1.Text = u"5";
  prompt().Command2.press();
  EXPECT_EQ(prompt().Text1.Text.get(), u"0");
  EXPECT_FALSE(prompt().Visible);
}

struct Point {
  const char* what;
  const char16_t* typed;
  const char16_t* taken;
};

class PointTest : public TangentTest, public testing::WithParamInterface<Point> {};

TEST_P(PointTest, IsEvaluated) {
  plot(u"K^2");
  tangent_at(GetParam().typed);
  EXPECT_EQ(prompt().Text1.Text.get(), GetParam().taken);
  EXPECT_TRUE(program.desk.dialogs().empty());
  EXPECT_FALSE(prompt().Visible);
}

INSTANTIATE_TEST_SUITE_P(Typed, PointTest,
                         testing::Values(Point{"Number", u"1.5", u"1.5"}, Point{"Negative", u"-2", u"-2"},
                                         Point{"Product", u"2*pi", u"6.28318530717958"},
                                         Point{"UpperCasePi", u"Pi/2", u"1.5707963267949"},
                                         Point{"Root", u"sqr(4)", u"2"}),
                         [](const auto& row) { return row.param.what; });

TEST_F(TangentTest, TheLetterEIsReplacedTwice) {
  set_fields(u"K^2");
  std::vector<Text> texts;
  prompt().Text1.Change.handle([&] { texts.push_back(prompt().Text1.Text); });
  tangent_at(u"e");
  ASSERT_GE(texts.size(), 3U);
  EXPECT_EQ(texts[0], u"e");
  EXPECT_EQ(texts[1], u"e(1)");
  EXPECT_EQ(texts[2], u"e(1)(1)");
}

TEST_F(TangentTest, EnterActsAsOk) {
  plot(u"K^2");
  form().cmdtangenta.press();
  prompt().Text1.Text = u"1";
  int code = 13;
  EXPECT_FALSE(lines([&] { prompt().Text1.KeyDown.raise(code, 0); }).empty());
  EXPECT_EQ(form().txtY.Text.get(), u"2*K - 1");
}

TEST_F(TangentTest, OtherKeysDoNothing) {
  prompt().Show();
  int code = 65;
  prompt().Text1.KeyDown.raise(code, 0);
  EXPECT_TRUE(prompt().Visible);
}

TEST_F(TangentTest, TheLineIsPlottedInTheSecondColour) {
  plot(u"K^2");
  const auto drawn = tangent_at(u"1");
  EXPECT_EQ(form().txtY.Text.get(), u"2*K - 1");
  ASSERT_FALSE(drawn.empty());
  EXPECT_EQ(drawn.back().color, 0x2352F1);
  // y = 2x - 1 enters the plane at the bottom, x = -4.5, and leaves it at the top, x = 5.5.
  const auto is_tangents = [](const LineDrawn& line) { return line.color == 0x2352F1; };
  const auto first = std::find_if(drawn.begin(), drawn.end(), is_tangents);
  EXPECT_NEAR(first->x1, 110, 1.01);
  EXPECT_NEAR(drawn.back().x2, 310, 1.01);
  EXPECT_EQ(form().CurveColor, 0xFF0000);
  EXPECT_EQ(form().Caption.get(), u"Graph Mode  Y = 2*K - 1 for X = K");
}

TEST_F(TangentTest, TheHistoryGetsTheLinesEquation) {
  plot(u"K^2");
  tangent_at(u"1");
  EXPECT_TRUE(history().ends_with(u"\r\n Y = 2*K - 1\r\n X = K\r\n __________________\r\n"));
  EXPECT_EQ(menus().mnuRecent(1).Caption.get(), u"2*K - 1");
  EXPECT_EQ(menus().mnuRecent(2).Caption.get(), u"K^2");
}

TEST_F(TangentTest, ASecondTangentIsThatOfTheLine) {
  plot(u"K^2");
  tangent_at(u"1");
  tangent_at(u"3");
  EXPECT_EQ(form().txtY.Text.get(), u"2*K - 1");
}

TEST_F(TangentTest, TheCalculusWindowStaysUnseen) {
  plot(u"K^2");
  tangent_at(u"-1");
  EXPECT_EQ(form().txtY.Text.get(), u"-2*K - 1");
  EXPECT_FALSE(program.bench.is_visible("frmIntegral"));
}

TEST_F(TangentTest, WithoutAValueNothingIsDrawn) {
  set_fields(u"K^2");
  form().Show();
  form().cmdtangenta.press();
  prompt().Hide();
  prompt().Text1.Text = u"1";
  auto& calculus = program.window<frmIntegral>();
  // Whatever the computation leaves, the field is empty when it is read.
  calculus.Text9.Change.handle([&] { calculus.Text9.Text = u""; });
  EXPECT_TRUE(operations([&] { form().draw_tangent(); }).empty());
  EXPECT_EQ(form().txtY.Text.get(), u"K^2");
}

TEST_F(TangentTest, AnErrorMarkStopsIt) {
  set_fields(u"K^2");
  form().lbly.Caption = u"ERR";
  EXPECT_TRUE(operations([&] { form().draw_tangent(); }).empty());
  EXPECT_EQ(form().txtY.Text.get(), u"K^2");
}

TEST_F(TangentTest, AtAPoleTheWordsEndInThePlotsOwnMessage) {
  plot(u"1/K");
  tangent_at(u"0");
  EXPECT_EQ(form().txtY.Text.get(), u"Point not defined * (K - (0 ))  + (1.#INF)");
  EXPECT_EQ(form().CurveColor, 0xFF0000);
  EXPECT_FALSE(program.bench.ended());
}

TEST_F(TangentTest, AWrongPointIsToldAndBecomesWhatTheRunLeft) {
  plot(u"K^2");
  tangent_at(u"2**");
  ASSERT_FALSE(program.desk.dialogs().empty());
  EXPECT_EQ(prompt().Text1.Text.get(), u"0");
  EXPECT_EQ(form().txtY.Text.get(), u"0*K + 0");
}

TEST_F(TangentTest, AFailureOnTheWayIsTold) {
  set_fields(u"K");
  program.window<frmIntegral>().Text13.Change.handle([] { throw Fault{FaultCode::Overflow}; });
  form().draw_tangent();
  expect_message(u"Overflow");
}

TEST_F(TangentTest, AFailureOfThePromptIsTold) {
  set_fields(u"K");
  prompt().Label1.Change.handle([] { throw Fault{FaultCode::TypeMismatch}; });
  form().cmdtangenta.press();
  expect_message(u"Error. Type mismatch");
}

TEST_F(TangentTest, AFailureOfThePointIsTold) {
  prompt().Text1.Text = u"1";
  prompt().Text1.Change.handle([] { throw Fault{FaultCode::DivisionByZero}; });
  prompt().Text1.Text.start_as(u"pi");
  prompt().Command1.press();
  expect_message(u"Error. Division by zero");
}

}  // namespace
}  // namespace tarnmill

#include "calculus/frm_integral.h"

#include "engine/number_text.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"
#include "support/window_test.h"

namespace tarnmill {
namespace {

constexpr int enter_key = 13;

class Calculus : public WindowTest<frmIntegral> {
 protected:
  void range(const Text& function, const Text& from, const Text& to) {
    form().Text4.Text = function;
    form().txtmin.Text = from;
    form().txtmax.Text = to;
  }
  void point(const Text& function, const Text& at) {
    form().Text7.Text = function;
    form().Text8.Text = at;
  }
  [[nodiscard]] std::string first_result() { return to_utf8(form().Text10.Text.get()); }
  [[nodiscard]] std::string second_result() { return to_utf8(form().Text11.Text.get()); }
};

TEST_F(Calculus, OffersTheNames) {
  EXPECT_EQ(form().C1.items().size(), 43U);
  EXPECT_EQ(form().C1.List(0), u"Exp");
  EXPECT_EQ(form().C1.List(42), u"e(1)");
}

TEST_F(Calculus, IntegratesOverTheRange) {
  range(u"x^2", u"0", u"3");
  click(&frmIntegral::imint);
  EXPECT_EQ(first_result(), "9");
  EXPECT_EQ(form().lblavg.ForeColor, button_face);
  EXPECT_EQ(form().lblintg.ForeColor, 0);
  expect_no_message();
}

TEST_F(Calculus, AveragesOverTheRange) {
  range(u"x^2", u"0", u"3");
  click(&frmIntegral::ims);
  EXPECT_EQ(first_result(), "3");
  EXPECT_EQ(form().lblintg.ForeColor, button_face);
  EXPECT_EQ(form().lblavg.ForeColor, 0);
  click(&frmIntegral::ims);
  EXPECT_EQ(first_result(), "3");
}

TEST_F(Calculus, DifferentiatesAtThePoint) {
  point(u"x^2", u"3");
  click(&frmIntegral::imdiff);
  EXPECT_EQ(second_result(), "6");
  EXPECT_EQ(form().Text7a.Text.get(), u"(x^2)");
}

TEST_F(Calculus, EnterReleasedInAFieldRunsItsCommand) {
  int code = enter_key;
  for (TextBox* field : {&form().Text4, &form().txtmin, &form().txtmax}) {
    range(u"x", u"0", u"2");
    act([&] { field->KeyUp.raise(code, 0); });
    EXPECT_EQ(first_result(), "2");
    range(u"", u"", u"");
  }
  for (TextBox* field : {&form().Text7, &form().Text8}) {
    point(u"x", u"2");
    act([&] { field->KeyUp.raise(code, 0); });
    EXPECT_EQ(second_result(), "1");
    point(u"", u"");
  }
}

TEST_F(Calculus, LimitsMayBeExpressionsOfTheService) {
  range(u"x", u"1-1", u"sqr(4)");
  click(&frmIntegral::imint);
  EXPECT_EQ(first_result(), "2");
  EXPECT_EQ(form().txtmax.Text.get(), u"sqr(4)");
}

TEST_F(Calculus, LimitsAreNotRewritten) {
  range(u"x", u"0", u"sqrtx");
  click(&frmIntegral::imint);
  EXPECT_EQ(first_result(), "");
  expect_no_message();
}

TEST_F(Calculus, MissingFieldsAreTold) {
  click(&frmIntegral::imint);
  expect_message(u"Function/Range not defined.", MessageIcon::exclamation);
  click(&frmIntegral::imdiff);
  expect_message(u"Function/Point not defined.", MessageIcon::exclamation);
}

TEST_F(Calculus, AnAverageWithAnEmptyLimitIsBadSyntax) {
  range(u"x", u"", u"1");
  click(&frmIntegral::ims);
  expect_message(u"Check sintax or range.", MessageIcon::critical);
  EXPECT_EQ(program.bench.MousePointer(), 0);
}

TEST_F(Calculus, AnAverageOverNoRangeIsNotDefined) {
  range(u"x", u"1", u"1");
  click(&frmIntegral::ims);
  EXPECT_EQ(first_result(), "Range not defined");
  expect_no_message();
}

TEST_F(Calculus, ADerivativeAtAPoleIsNotDefined) {
  point(u"1/x", u"0");
  click(&frmIntegral::imdiff);
  EXPECT_EQ(second_result(), "Point not defined");
  expect_no_message();
}

TEST_F(Calculus, ADerivativeOfAnUnknownNameIsInvalid) {
  point(u"foo(x)", u"0");
  click(&frmIntegral::imdiff);
  expect_message(u"Invalid input.", MessageIcon::critical);
}

TEST_F(Calculus, AZeroIsAResult) {
  range(u"x", u"-1", u"1");
  click(&frmIntegral::ims);
  EXPECT_EQ(first_result(), "0");
  expect_no_message();
}

TEST_F(Calculus, AFailedIntegralKeepsTheEarlierResult) {
  range(u"x", u"0", u"2");
  form().Text10.Text = u"7";
  form().Text4.Text.start_as(u"foo(x)");
  click(&frmIntegral::imint);
  EXPECT_EQ(first_result(), "7");
  expect_no_message();
}

TEST_F(Calculus, EditingAFieldEmptiesItsResult) {
  range(u"x", u"0", u"2");
  click(&frmIntegral::ims);
  form().txtmin.Text = u"1";
  EXPECT_EQ(first_result(), "");
  EXPECT_EQ(form().lblintg.ForeColor, 0);
  point(u"x", u"2");
  click(&frmIntegral::imdiff);
  form().Text8.Text = u"1";
  EXPECT_EQ(second_result(), "");
}

TEST_F(Calculus, DrawsABarForEachSample) {
  range(u"1", u"0", u"2");
  form().Surface.Record(true);
  click(&frmIntegral::imint);
  const auto& drawn = form().Surface.Ops();
  ASSERT_GE(drawn.size(), 201U);
  EXPECT_TRUE(std::holds_alternative<PictureBox::Cleared>(drawn.front()));
  for (std::size_t i = 1; i < drawn.size(); ++i) {
    const auto& line = std::get<PictureBox::LineDrawn>(drawn[i]);
    EXPECT_EQ(line.x1, line.x2);
    EXPECT_GE(line.x1, 200);
    EXPECT_LE(line.x1, 240);
    EXPECT_EQ(line.y1, 350);
    EXPECT_EQ(line.y2, 320);
    EXPECT_EQ(line.color, 0x384A33);
  }
}

TEST_F(Calculus, ABarBeyondTheSurfaceIsPassedOver) {
  range(u"1E+40+x", u"0", u"1");
  form().Surface.Record(true);
  click(&frmIntegral::imint);
  EXPECT_EQ(form().Surface.Ops().size(), 1U);
  EXPECT_NEAR(NumberFromText(form().Text10.Text.get()), 1e40, 1e27);
  expect_no_message();
}

TEST_F(Calculus, CopiesAResultThroughThePopup) {
  act([&] { form().imcopy.MouseDown.raise(1, 0, 0, 0); });
  ASSERT_NE(form().popup_shown(), nullptr);
  EXPECT_EQ(form().popup_shown()->name(), "mnucopy");
  auto& menu = program.window<frmZoom>();
  act([&] { menu.mhucopy1.press(); });
  expect_message(u"Result is empty.", MessageIcon::information);
  act([&] { menu.mnucopy2.press(); });
  expect_message(u"Result is empty.", MessageIcon::information);
  form().Text10.Text = u"24";
  form().Text11.Text = u"6";
  act([&] { menu.mhucopy1.press(); });
  EXPECT_EQ(program.desk.clipboard_text(), u"24");
  act([&] { menu.mnucopy2.press(); });
  EXPECT_EQ(program.desk.clipboard_text(), u"6");
}

TEST_F(Calculus, EmptiesItsFields) {
  range(u"x", u"0", u"2");
  point(u"x", u"2");
  form().empty_fields();
  EXPECT_TRUE(form().Text4.Text->empty() && form().txtmin.Text->empty() && form().Text8.Text->empty());
}

struct TangentRow {
  TextView function, point, line, form;
};

class Tangent : public Calculus, public testing::WithParamInterface<TangentRow> {};

TEST_P(Tangent, GivesTheEquation) {
  form().Text13.Text = Text{GetParam().function};
  act([&] { form().letters_to_x(); });
  act([&] { form().rewrite(); });
  form().Text14.Text = Text{GetParam().point};
  act([&] { form().tangent(); });
  EXPECT_EQ(to_utf8(form().Text12.Text.get()), to_utf8(GetParam().line));
  EXPECT_EQ(to_utf8(form().Text19.Text.get()), to_utf8(GetParam().form));
}

INSTANTIATE_TEST_SUITE_P(Lines, Tangent,
                         testing::Values(TangentRow{u"K^2", u"1", u"2*x - 1", u"2 * (x - (1 ))  + (1)"},
                                         TangentRow{u"K^2", u"-1", u"-2*x - 1", u"-2 * (x - (-1 ))  + (1)"},
                                         TangentRow{u"3", u"5", u"0*x + 3", u"0 * (x - (5 ))  + (3)"},
                                         TangentRow{u"K", u"2", u"1*x + 0", u"1 * (x - (2 ))  + (2)"},
                                         TangentRow{u"1/K", u"0",
                                                    u"Point not defined * (x - (0 ))  + (1.#INF)",
                                                    u"Point not defined * (x - (0 ))  + (1.#INF)"}));

TEST_F(Calculus, TheLineGoesBackToGraphModeInK) {
  form().Text12.Text = u"2*x - 1";
  act([&] { form().letters_to_k(); });
  EXPECT_EQ(program.window<frmFunc>().txtY.Text.get(), u"2*K - 1");
}

TEST_F(Calculus, AClickOnANameGoesToTheTickedField) {
  act([&] { form().Text7.press(); });
  EXPECT_EQ(form().Check2.Value, 1);
  act([&] { form().C1.choose(12); });
  EXPECT_EQ(form().Text7.Text.get(), u"Sin");
  act([&] { form().Check1.press(); });
  EXPECT_EQ(form().Check2.Value, 0);
}

}  // namespace
}  // namespace tarnmill

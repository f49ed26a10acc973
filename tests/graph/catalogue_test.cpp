#include "graph/catalogue.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>

#include "graph_fixture.h"

namespace tarnmill {
namespace {

std::vector<const Curve*> all_curves() {
  std::vector<const Curve*> curves;
  for (const CurveMenu& menu : curve_catalogue()) {
    for (const Curve& curve : menu.curves) curves.push_back(&curve);
  }
  return curves;
}

class CatalogueTest : public GraphTest {
 protected:
  MenuItem& item(std::string_view name) { return dynamic_cast<MenuItem&>(*menus().find_control(name)); }
  void call(std::string_view procedure) { (*form().find_procedure(procedure))({}); }

  /// Fields as typing another curve may have left them.
  void spoil_fields() {
    form().txtY2.Text = u"K^(1/3";
    form().txtY3.Text = u"K^(1/3";
    form().txtImenilac.Text = u"K^(1";
    form().lblY3.Caption = u"OK";
  }

  void expect_fields(const Curve& curve) {
    // Without texts of its own a curve leaves the exponent as the menu's emptying has left it.
    const ExponentTexts exponent = curve.exponent.value_or(ExponentTexts{u"", u"", u"", u""});
    EXPECT_EQ(form().txtY.Text.get(), curve.y);
    EXPECT_EQ(form().txtX.Text.get(), curve.x);
    EXPECT_EQ(form().txtY2.Text.get(), exponent.y2);
    EXPECT_EQ(form().txtY3.Text.get(), exponent.y3);
    EXPECT_EQ(form().txtImenilac.Text.get(), exponent.numerator);
    EXPECT_EQ(form().lblY3.Caption.get(), exponent.flag);
  }
};

TEST_F(CatalogueTest, HasFiveSubmenusInTheirOrder) {
  struct Expected {
    std::string_view name;
    TextView caption;
    std::size_t items;
  };
  constexpr std::array<Expected, 5> expected{{{"mnucommon", u"FAQ - Common Functions", 25},
                                              {"gjhg", u"FAQ - Predefined Functions", 28},
                                              {"mnupower", u"FAQ - Use of Power  ^", 19},
                                              {"mnucomplex", u"Complex Functions 1", 22},
                                              {"mnughdfkj", u"Complex Functions 2", 17}}};
  const auto& submenus = menus().mnuExamples.children();
  ASSERT_EQ(submenus.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(submenus[i]->name(), expected[i].name);
    EXPECT_EQ(submenus[i]->Caption.get(), expected[i].caption);
    EXPECT_EQ(submenus[i]->children().size(), expected[i].items);
  }
}

TEST_F(CatalogueTest, EveryCurveHasItsItemAndItsProcedure) {
  std::set<std::string_view> items;
  std::set<std::string_view> procedures;
  for (const CurveMenu& menu : curve_catalogue()) {
    const auto& children = item(menu.name).children();
    ASSERT_EQ(children.size(), menu.curves.size());
    for (std::size_t i = 0; i < menu.curves.size(); ++i) {
      const Curve& curve = menu.curves[i];
      EXPECT_EQ(children[i], menus().find_control(curve.menu_item)) << curve.menu_item;
      EXPECT_EQ(children[i]->Caption.get(), curve.caption) << curve.menu_item;
      ASSERT_NE(form().find_procedure(curve.procedure), nullptr) << curve.procedure;
      EXPECT_EQ(form().find_procedure(curve.procedure)->arity(), 0U) << curve.procedure;
      items.insert(curve.menu_item);
      procedures.insert(curve.procedure);
    }
  }
  EXPECT_EQ(items.size(), 111U);
  EXPECT_EQ(procedures.size(), 111U);
}

TEST_F(CatalogueTest, AFunctionsCaptionIsItsTextButForOne) {
  for (const CurveMenu& menu : curve_catalogue().first(3)) {
    for (const Curve& curve : menu.curves) {
      EXPECT_EQ(curve.x, u"K") << curve.menu_item;
      const TextView caption = curve.menu_item == "mnuE" ? TextView{u"e (1) * k - k ^ 3"} : curve.y;
      EXPECT_EQ(curve.caption, caption) << curve.menu_item;
    }
  }
}

TEST_F(CatalogueTest, APickFillsTheFieldsByItsRow) {
  form().Drawing = true;
  for (const Curve* curve : all_curves()) {
    SCOPED_TRACE(curve->menu_item);
    spoil_fields();
    form().Line1.Visible = true;
    item(curve->menu_item).press();
    expect_fields(*curve);
    EXPECT_EQ(form().lblzm.Caption.get(), curve->zoom);
    EXPECT_EQ(form().plane().pixels_per_unit, std::stod(to_utf8(Text{curve->zoom})));
    EXPECT_FALSE(form().Line1.Visible);
  }
}

TEST_F(CatalogueTest, AProcedureAloneFillsTheFieldsAndPlotsAtThePresentZoom) {
  form().Drawing = true;
  for (const Curve* curve : all_curves()) {
    SCOPED_TRACE(curve->procedure);
    form().lblzm.Caption = u"33";
    form().forget_exponent();
    form().Line1.Visible = true;
    call(curve->procedure);
    expect_fields(*curve);
    const std::set<TextView> own{u"59", u"70", u"55"};
    EXPECT_EQ(form().lblzm.Caption.get(), own.contains(curve->zoom) ? Text{curve->zoom} : u"33");
    EXPECT_TRUE(form().Line1.Visible);
  }
}

TEST_F(CatalogueTest, EightLeavesTheExponentAsItWas) {
  form().Drawing = true;
  spoil_fields();
  call("Osam");
  EXPECT_EQ(form().txtY2.Text.get(), u"K^(1/3");
  EXPECT_EQ(form().txtY3.Text.get(), u"K^(1/3");
  EXPECT_EQ(form().txtImenilac.Text.get(), u"K^(1");
  EXPECT_EQ(form().lblY3.Caption.get(), u"OK");
}

/// What a pick changes, in the order in which it does.
class EffectsTest : public CatalogueTest {
 protected:
  std::vector<std::string> effects(std::string_view picked) {
    std::vector<std::string> order;
    const auto note = [&](Node& node, const PropertyBase& property, const char* effect) {
      node.observe(this, [&order, watched = &property, effect](const PropertyBase& changed) {
        if (&changed == watched) order.emplace_back(effect);
      });
    };
    note(form().Line1, form().Line1.Visible, "tangent");
    note(form().lblY3, form().lblY3.Caption, "flag");
    note(form().lblzm, form().lblzm.Caption, "zoom");
    note(form().pDraw, form().pDraw.Drawn, "drawn");
    note(form().txtY, form().txtY.Text, "y");
    note(form().txtX, form().txtX.Text, "x");
    note(form().lblPerCent, form().lblPerCent.Visible, "plot");
    item(picked).press();
    order.erase(std::unique(order.begin(), order.end()), order.end());
    return order;
  }
};

TEST_F(EffectsTest, OfAPickComeInTheirOrder) {
  spoil_fields();
  form().Line1.Visible = true;
  form().lblzm.Caption = u"33";
  EXPECT_EQ(effects("mnukrug"), (std::vector<std::string>{"tangent", "flag", "zoom", "drawn", "y", "x",
                                                          "flag", "plot", "drawn", "plot"}));
}

TEST_F(EffectsTest, OfDropSkipTheEmptying) {
  spoil_fields();
  form().Line1.Visible = true;
  form().lblzm.Caption = u"33";
  EXPECT_EQ(effects("mnudrop"),
            (std::vector<std::string>{"tangent", "zoom", "drawn", "y", "x", "plot", "drawn", "plot"}));
}

TEST_F(EffectsTest, OfACurveWithAZoomOfItsOwnLeaveTheEditMenu) {
  spoil_fields();
  form().Line1.Visible = true;
  EXPECT_EQ(effects("nucomm12"), (std::vector<std::string>{"tangent", "flag", "zoom", "drawn", "y", "flag",
                                                           "plot", "drawn", "plot"}));
  EXPECT_EQ(form().lblzm.Caption.get(), u"55");
  EXPECT_TRUE(menus().mnifinezoom2.Checked);
  EXPECT_FALSE(menus().mnudef2.Checked);
  EXPECT_TRUE(menus().mnudef.Checked);
  EXPECT_FALSE(menus().mnufinzoom.Checked);
}

TEST_F(CatalogueTest, APickMarksItsZoomInBothMenus) {
  item("mnuspirala").press();
  EXPECT_TRUE(menus().mnuzoomout.Checked);
  EXPECT_TRUE(menus().mnuzout2.Checked);
  EXPECT_FALSE(menus().mnudef.Checked);
  EXPECT_FALSE(menus().mnudef2.Checked);
}

TEST_F(CatalogueTest, CircleIsOneOfRadius3Around3And3AtAnyEarlierZoom) {
  item("nucomm12").press();
  form().pDraw.Record(true);
  item("mnukrug").press();
  form().pDraw.Record(false);
  EXPECT_EQ(form().plane().pixels_per_unit, 20);
  std::size_t segments = 0;
  for (const auto& each : form().pDraw.Ops()) {
    const auto* line = std::get_if<LineDrawn>(&each);
    if (line == nullptr || line->color != 0xFF0000) continue;
    ++segments;
    const double x = (static_cast<double>(line->x2) - 200) / 20 - 3;
    const double y = (200 - static_cast<double>(line->y2)) / 20 - 3;
    EXPECT_NEAR(x * x + y * y, 9, 0.01);
  }
  EXPECT_EQ(segments, 400U);
}

TEST_F(CatalogueTest, SpiralRunsKFromMinus20To20) {
  item("mnuspirala").press();
  const Plane plane = form().plane();
  EXPECT_EQ(plane.left(), -20);
  EXPECT_EQ(plane.right(form().pDraw.ScaleWidth()), 20);
}

TEST_F(CatalogueTest, APickMeanwhileClearsUnderThePlotAndDrawsNoCurveOfItsOwn) {
  set_fields(u"0*K+4");
  at_first_yield([&] { item("mnuBel").press(); });
  const auto drawn = operations([&] { form().cmdDraw.press(); });
  ASSERT_TRUE(std::holds_alternative<PictureBox::Cleared>(drawn.front()));
  constexpr std::size_t grid = 26;
  EXPECT_EQ(drawn.size(), 1 + grid + 400);
  EXPECT_EQ(std::get<LineDrawn>(drawn.back()).y2, 40) << "four units up at the new zoom";
  EXPECT_EQ(form().txtX.Text.get(), u"HArctanK");
  EXPECT_EQ(form().lblzm.Caption.get(), u"40");
  EXPECT_EQ(form().ExpressionY.get(), u"0*K+4");
}

TEST_F(CatalogueTest, APlotTakesTheRewrittenText) {
  item("mnupower2").press();
  EXPECT_EQ(form().txtY.Text.get(), u"K^2-K^3+K-1");
  EXPECT_EQ(form().ExpressionY.get(), u"BinK-CubK+K-1");
}

}  // namespace
}  // namespace tarnmill

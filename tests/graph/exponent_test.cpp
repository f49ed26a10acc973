#include "engine/rewriting.h"
#include "graph_fixture.h"

namespace tarnmill {
namespace {

struct Typed {
  const char16_t* keys;
  const char16_t* txtYs;
  const char16_t* txtY2;
  const char16_t* txtY3;
  const char16_t* txtImenilac;
  const char16_t* lblstepen;
  const char16_t* lblZagrada;
  const char16_t* lblImenilac;
};

class ExponentTest : public GraphTest {};
class TypedTest : public GraphTest, public testing::WithParamInterface<Typed> {};

TEST_P(TypedTest, KeysLeadDownTheChain) {
  const Typed& typed = GetParam();
  key_in(typed.keys);
  EXPECT_EQ(form().txtY.Text.get(), typed.keys);
  EXPECT_EQ(form().txtYs.Text.get(), typed.txtYs);
  EXPECT_EQ(form().txtY2.Text.get(), typed.txtY2);
  EXPECT_EQ(form().txtY3.Text.get(), typed.txtY3);
  EXPECT_EQ(form().txtImenilac.Text.get(), typed.txtImenilac);
  EXPECT_EQ(form().lblstepen.Caption.get(), typed.lblstepen);
  EXPECT_EQ(form().lblZagrada.Caption.get(), typed.lblZagrada);
  EXPECT_EQ(form().lblImenilac.Caption.get(), typed.lblImenilac);
  EXPECT_EQ(form().lblY3.Caption.get(), u"OK");
}

INSTANTIATE_TEST_SUITE_P(
    Sequences, TypedTest,
    testing::Values(Typed{u"K", u"K", u"", u"1", u"1", u"", u"", u""},
                    Typed{u"K^", u"K^", u"", u"1", u"1", u"DA", u"", u"Ime"},
                    Typed{u"K^2", u"BinK", u"", u"1", u"1", u"", u"", u"Ime"},
                    Typed{u"K^4", u"QvdK", u"", u"1", u"1", u"", u"", u"Ime"},
                    Typed{u"K^3K", u"CubKK", u"", u"1", u"1", u"", u"", u"Ime"},
                    Typed{u"K^(", u"K^(", u"K^(", u"K^(", u"K^(", u"DA", u"DA", u"Ime"},
                    Typed{u"K^(1", u"K^(1", u"K^(1", u"K^(1", u"K^(1", u"DA", u"DA", u"Ime"},
                    Typed{u"K^(1/", u"K^(1/", u"K^(1/", u"K^(1/", u"K^(1", u"DA", u"DA", u""},
                    Typed{u"K^(1/3", u"K^(1/3", u"K^(1/3", u"K^(1/3", u"K^(1", u"DA", u"DA", u""},
                    Typed{u"K^(1/3)", u"CbrK", u"K^(1/3", u"K^(1/3", u"K^(1", u"", u"", u""},
                    Typed{u"K^(1/3)+1", u"CbrK+1", u"K^(1/3", u"K^(1/3", u"K^(1", u"", u"", u""},
                    Typed{u"1/K", u"1/K", u"", u"1", u"1", u"", u"", u""},
                    Typed{u"K^(1/3)+K^(2/5", u"CbrK+K^(2/5", u"K^(1/3)+K^(2/5", u"K^(1/3)+K^(2/5",
                          u"K^(1/3)+K^(2", u"DA", u"DA", u""},
                    Typed{u"K^2+K^(2/3", u"BinK+K^(2/3", u"K^2+K^(2/3", u"K^2+K^(2/3", u"K^2+K^(2", u"DA",
                          u"DA", u""}));

TEST_F(ExponentTest, ABracketWithoutAPowerIsNone) {
  key_in(u"(K+1");
  EXPECT_EQ(form().lblZagrada.Caption.get(), u"");
  EXPECT_EQ(form().txtY2.Text.get(), u"");
}

TEST_F(ExponentTest, ADivisionKeyForXLeavesTheFlags) {
  key_in(u"K^(1");
  form().optAlign(1).press();
  key_in(u"/");
  EXPECT_EQ(form().lblImenilac.Caption.get(), u"Ime");
}

TEST_F(ExponentTest, APowerKeyForXSetsTheFlagsAllTheSame) {
  form().lblY3.Caption = u"";
  form().optAlign(1).press();
  press_code(80);
  EXPECT_EQ(form().txtX.Text.get(), u"^K");
  EXPECT_EQ(form().lblstepen.Caption.get(), u"DA");
  EXPECT_EQ(form().lblImenilac.Caption.get(), u"Ime");
  EXPECT_EQ(form().lblY3.Caption.get(), u"");
  EXPECT_EQ(program.bench.focus(), &form().txtX);
}

TEST_F(ExponentTest, WithoutOkTheDenominatorIsEmptied) {
  form().lblY3.Caption = u"no";
  form().txtY2.Text = u"K^(1/3";
  EXPECT_EQ(form().txtY3.Text.get(), u"");
  EXPECT_EQ(form().txtImenilac.Text.get(), u"1");
}

TEST_F(ExponentTest, EmptyingTheYFieldEmptiesY2AndTheFlagOfY3) {
  key_in(u"K^(1");
  form().txtY.Text = u"";
  EXPECT_EQ(form().txtY2.Text.get(), u"");
  EXPECT_EQ(form().lblY3.Caption.get(), u"");
  EXPECT_EQ(form().txtImenilac.Text.get(), u"");
}

struct Rewritten {
  const char16_t* y;
  const char16_t* ys;
};

class RewritingTest : public GraphTest, public testing::WithParamInterface<Rewritten> {};

TEST_P(RewritingTest, PowersOfKBecomeFunctions) {
  form().txtY.Text = GetParam().y;
  EXPECT_EQ(form().txtYs.Text.get(), GetParam().ys);
}

INSTANTIATE_TEST_SUITE_P(Powers, RewritingTest,
                         testing::Values(Rewritten{u"K^3", u"CubK"}, Rewritten{u"K^2", u"BinK"},
                                         Rewritten{u"K^(2/3)", u"NilK"}, Rewritten{u"K^(1/3)", u"CbrK"},
                                         Rewritten{u"K^4", u"QvdK"}, Rewritten{u"K^5", u"PntK"},
                                         Rewritten{u"K^(1/5)", u"PbrK"},
                                         Rewritten{u"2*K^2-K^3+K^2", u"2*BinK-CubK+BinK"},
                                         Rewritten{u"K^22", u"BinK2"}, Rewritten{u"K^2^2", u"BinBinK"},
                                         Rewritten{u"K^(1/2)", u"K^(1/2)"}, Rewritten{u"(K+1)^2", u"(K+1)^2"},
                                         Rewritten{u"k^2", u"k^2"}, Rewritten{u"K^6", u"K^6"}));

TEST_F(ExponentTest, ThePowersOfXStay) {
  form().txtX.Text = u"K^2";
  EXPECT_EQ(form().txtX.Text.get(), u"K^2");
}

/// The fields of the expression keypad that graph mode writes to.
class KeypadFields final : public Window {
 public:
  explicit KeypadFields(Workbench& bench) : Window{bench, "frmTast"} {}
  TextBox txtY2{*this, "txtY2", parked};
  TextBox txtY3{*this, "txtY3", parked};
  TextBox txtImenilac{*this, "txtImenilac", parked};
  Label lblImenilac{*this, "lblImenilac", parked};
  Label lblY3{*this, "lblY3", parked};
};

class KeypadCopyTest : public GraphTest {
 protected:
  KeypadCopyTest() {
    program.bench.add_window("frmTast",
                             [](Workbench& owner) { return std::make_unique<KeypadFields>(owner); });
  }
};

TEST_F(KeypadCopyTest, TheKeypadKeepsCopiesOfTheExponent) {
  key_in(u"K^(1/3");
  auto* keypad = dynamic_cast<KeypadFields*>(program.bench.find_window("frmTast"));
  ASSERT_NE(keypad, nullptr) << "the first copy creates the window";
  EXPECT_FALSE(keypad->Visible);
  EXPECT_EQ(keypad->txtY2.Text.get(), u"K^(1/3");
  EXPECT_EQ(keypad->txtY3.Text.get(), u"K^(1/3");
  EXPECT_EQ(keypad->txtImenilac.Text.get(), u"K^(1");
  EXPECT_EQ(keypad->lblImenilac.Caption.get(), u"");
}

TEST_F(KeypadCopyTest, EachChangeIsCopied) {
  form().lblImenilac.Caption = u"Ime";
  form().lblY3.Caption = u"other";
  form().txtY3.Text = u"3";
  form().txtImenilac.Text = u"4";
  auto& keypad = dynamic_cast<KeypadFields&>(program.bench.window("frmTast"));
  EXPECT_EQ(keypad.lblImenilac.Caption.get(), u"Ime");
  EXPECT_EQ(keypad.lblY3.Caption.get(), u"other");
  EXPECT_EQ(keypad.txtY3.Text.get(), u"3");
  EXPECT_EQ(keypad.txtImenilac.Text.get(), u"4");
}

}  // namespace
}  // namespace tarnmill

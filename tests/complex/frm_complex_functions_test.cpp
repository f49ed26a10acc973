#include <cmath>

#include "complex/complex_window.h"
#include "engine/number_text.h"

namespace tarnmill {
namespace {

class ComplexFunctions : public ComplexWindow {
 protected:
  void expect_result(double re, double im) {
    EXPECT_NEAR(form().ResultReal, re, 1e-12);
    EXPECT_NEAR(form().ResultImaginary, im, 1e-12);
  }
};

struct FunctionRow {
  const char16_t* name;
  const char* rule;
  bool of_one;
  double re;
  double im;
};

// Of 1 + 2i and 3 + 4i.
const FunctionRow functions[] = {
    {u"Addition", "(a+i*b)+(c+i*d) = (a+c)+i*(b+d)", false, 4, 6},
    {u"Subtraction", "(a+i*b)-(c+i*d) = (a-c)+i*(b-d)", false, -2, -2},
    {u"Multiplication", "(a+i*b)*(c+i*d) = a*c-b*d + i*(a*d+b*c)", false, -5, 10},
    {u"Division", "(a+i*b)/(c+i*d) = [(a+i*b)*(c-i*d)]/(c^2+d^2)", false, 0.44, 0.08},
    {u"Magnitude of Complex 1", "|a+i*b| = sqrt(a^2+b^2)", true, std::sqrt(5), 0},
    {u"e ^ (Complex 1)", "e ^ (a+i*b) = (e ^ a)[Cos(b)+i*Sin(b)]", true, std::exp(1) * std::cos(2),
     std::exp(1) * std::sin(2)},
    {u"(Complex 1) ^ (Complex 2)", "(a+i*b)^(c+i*d) = e ^ [(c+i*d)*log(a+i*b)]", false, 0.129009594074467,
     0.0339240929051702},
    {u"Log (Complex 1)", "log(|a+i*b|) + i*arctan(b/a)", true, std::log(std::sqrt(5)), std::atan(2)},
    {u"Log (Complex 1) [base (Complex 2)]",
     "Log (Complex 1) [base (Complex 2)] = [Log (Complex 1)]/[Log (Complex 2)]", false, 0.672952652119612,
     0.300181161267290},
    {u"Sin (Complex 1)", "Sin(a+i*b) = {e^[i*(a+i*b)]-e^[-i*(a+i*b)]}/(2*i)", true,
     std::sin(1) * std::cosh(2), std::cos(1) * std::cosh(2)},
    {u"Cos (Complex 1)", "Cos(a+i*b) = {e^[i*(a+i*b)]+e^[-i*(a+i*b)]}/i", true, std::cos(1) * std::cosh(2),
     -std::sin(1) * std::sinh(2)},
    {u"Tan (Complex 1)", "Tan(a+i*b) = Sin(a+i*b)/Cos(a+i*b)", true, 0.0172160647960918, 1.02584792422765},
};

TEST_F(ComplexFunctions, EachFunctionHasItsRuleAndValue) {
  for (const FunctionRow& row : functions) {
    SCOPED_TRACE(to_utf8(row.name));
    operands(u"1", u"2", u"3", u"4");
    calculate(row.name);
    EXPECT_EQ(to_utf8(form().LabelRule.Caption.get()), row.rule);
    EXPECT_EQ(to_utf8(form().CommandCalculate.Caption.get()), "Done");
    EXPECT_EQ(second_enabled(), !row.of_one);
    expect_result(row.re, row.im);
    expect_no_message();
  }
}

struct RefusalRow {
  const char16_t* function;
  const char16_t* a;
  const char16_t* b;
  const char16_t* c;
  const char16_t* d;
  const char16_t* text;
  const char16_t* title;
};

const RefusalRow refusals[] = {
    {u"Division", u"1", u"2", u"0", u"0", u"Divide by zero?", u"Undefined"},
    {u"(Complex 1) ^ (Complex 2)", u"0", u"0", u"-1", u"0", u"You Cannot Raise <0,0> To A Negative Power",
     u"Power Error"},
    {u"Log (Complex 1)", u"0", u"0", u"3", u"4", u"Log <0,0> Is Undefined", u"Logarithm Error"},
    {u"Log (Complex 1) [base (Complex 2)]", u"0", u"0", u"0", u"0", u"Log <0,0> Is Undefined In Any Base",
     u"Logarithm Error"},
    {u"Log (Complex 1) [base (Complex 2)]", u"2", u"1", u"0", u"0", u"Log (Base <0,0>) Is Undefined",
     u"Logarithm Error"},
    {u"Log (Complex 1) [base (Complex 2)]", u"2", u"1", u"1", u"0", u"Log (Base <1,0>) Is Undefined",
     u"Logarithm Error"},
};

TEST_F(ComplexFunctions, RefusesInItsWordsAndLeavesTheDisplay) {
  operands(u"1", u"2", u"3", u"4");
  calculate(u"Multiplication");
  for (const RefusalRow& row : refusals) {
    SCOPED_TRACE(to_utf8(row.text));
    operands(row.a, row.b, row.c, row.d);
    act([this] { form().disable_second(); });
    calculate(row.function);
    expect_message(row.text, MessageIcon::exclamation, row.title);
    EXPECT_EQ(result(), "-5  +  i 10");
    EXPECT_EQ(to_utf8(form().LabelRule.Caption.get()), "(a+i*b)*(c+i*d) = a*c-b*d + i*(a*d+b*c)");
    EXPECT_EQ(to_utf8(form().CommandCalculate.Caption.get()), "Done");
    EXPECT_TRUE(second_enabled());
  }
}

TEST_F(ComplexFunctions, PowersOfZeroAreToldApart) {
  operands(u"0", u"0", u"2", u"0");
  calculate(u"(Complex 1) ^ (Complex 2)");
  EXPECT_EQ(result(), "0");
  operands(u"0", u"0", u"0", u"0");
  calculate(u"(Complex 1) ^ (Complex 2)");
  EXPECT_EQ(result(), "1");
  operands(u"0", u"0", u"2", u"1");
  calculate(u"(Complex 1) ^ (Complex 2)");
  EXPECT_EQ(result(), "1");  // what the power itself gives
  expect_no_message();
}

TEST_F(ComplexFunctions, ByKeyZeroToAnyPowerIsZero) {
  for (const char16_t* exponent : {u"2", u"0", u"-1"}) {
    operands(u"0", u"0", exponent, u"0");
    act([this] {
      form().ResultReal = 5;
      form().ResultImaginary = 5;
    });
    click(&frmComplex::cmdExp);
    expect_result(0, 0);
  }
  expect_no_message();
}

TEST_F(ComplexFunctions, AnotherBaseThanOneComputes) {
  operands(u"2", u"0", u"1", u"1");
  calculate(u"Log (Complex 1) [base (Complex 2)]");
  expect_no_message();
  EXPECT_NE(result(), "0");
}

TEST_F(ComplexFunctions, AllZeroesAddUpToZeroWithoutAnImaginaryPart) {
  calculate(u"Addition");
  EXPECT_EQ(result(), "0");
}

struct DirectRow {
  Button frmComplex::*key;
  bool of_one;
  double re;
  double im;
};

TEST_F(ComplexFunctions, EachKeyComputesAndKeepsTheRuleOfTheDropDown) {
  const DirectRow rows[] = {
      {&frmComplex::cmdzbir, false, 4, 6},
      {&frmComplex::cmdrazlika, false, -2, -2},
      {&frmComplex::cmdmnozenje, false, -5, 10},
      {&frmComplex::cmddeljenje, false, 0.44, 0.08},
      {&frmComplex::cmdExp, false, functions[6].re, functions[6].im},
      {&frmComplex::cmde, true, functions[5].re, functions[5].im},
      {&frmComplex::cmdSin, true, functions[9].re, functions[9].im},
      {&frmComplex::cmdCos, true, functions[10].re, functions[10].im},
      {&frmComplex::cmdSinh, true, std::sinh(1) * std::cos(2), std::cosh(1) * std::sin(2)},
      {&frmComplex::cmdCosh, true, std::cosh(1) * std::cos(2), std::sinh(1) * std::sin(2)},
      {&frmComplex::cmdTanh, true, std::sinh(2) / (std::cosh(2) + std::cos(4)),
       std::sin(4) / (std::cosh(2) + std::cos(4))},
      {&frmComplex::cmdOver, true, 0.2, -0.4},
      {&frmComplex::cmdLn, true, std::log(std::sqrt(5)), std::atan(2)},
      {&frmComplex::pi, true, std::sqrt(5), 0},
  };
  operands(u"1", u"2", u"3", u"4");
  for (const DirectRow& row : rows) {
    SCOPED_TRACE((form().*row.key).name());
    form().enable_second_again();
    if (!row.of_one) form().disable_second();
    click(row.key);
    expect_result(row.re, row.im);
    EXPECT_EQ(second_enabled(), !row.of_one);
    EXPECT_EQ(to_utf8(form().LabelRule.Caption.get()), "(a+i*b)+(c+i*d) = (a+c)+i*(b+d)");
    EXPECT_EQ(to_utf8(form().ComboFunction.Text.get()), "Addition");
    EXPECT_EQ(text(form().TextResultReal), to_utf8(NumberToText(form().ResultReal, form().regional())));
    EXPECT_EQ(program.bench.focus(), &form().txtCa);
    expect_no_message();
  }
}

TEST_F(ComplexFunctions, TheTangentKeyGivesWhatTheDropDownGives) {
  operands(u"0.7", u"0.4");
  calculate(u"Tan (Complex 1)");
  const std::string by_list = result();
  operands(u"0.7", u"0.4");
  click(&frmComplex::cmdzbir);
  click(&frmComplex::cmdtang);
  EXPECT_EQ(result(), by_list);
}

TEST_F(ComplexFunctions, ABinaryKeyStaysWithoutItsSecondOperandUnderAFunctionOfOne) {
  operands(u"1", u"2", u"3", u"4");
  calculate(u"Sin (Complex 1)");
  click(&frmComplex::cmdzbir);
  EXPECT_EQ(result(), "4  +  i 6");
  EXPECT_FALSE(second_enabled());
}

TEST_F(ComplexFunctions, ARefusedKeyLeavesTheDisplay) {
  operands(u"1", u"2", u"3", u"4");
  click(&frmComplex::cmdzbir);
  operands(u"0", u"0");
  click(&frmComplex::cmdLn);
  expect_message(u"Log of 0 + i0 is undefined.", MessageIcon::exclamation, u"Logarithm Error");
  EXPECT_EQ(result(), "4  +  i 6");
  EXPECT_FALSE(second_enabled());
  click(&frmComplex::cmddeljenje);
  expect_message(u"Divide by zero?", MessageIcon::exclamation, u"Undefined");
  EXPECT_EQ(result(), "4  +  i 6");
  EXPECT_TRUE(second_enabled());
  EXPECT_EQ(program.bench.focus(), &form().txtCa);
}

TEST_F(ComplexFunctions, TheMenuOfLogarithmsHasItsOwnWords) {
  const RefusalRow rows[] = {
      {u"", u"0", u"0", u"0", u"0", u"Log  of 0 + i0 is undefined.", u"Logarithm Error"},
      {u"", u"2", u"0", u"0", u"0", u"Base  0 + i0 . Undefined.", u"Logarithm Error"},
      {u"", u"2", u"0", u"1", u"0", u"Base 1 + i0 . Undefined.", u"Logarithm Error"},
  };
  for (const RefusalRow& row : rows) {
    operands(row.a, row.b, row.c, row.d);
    act([this] { form().disable_second(); });
    pick(&frmmenu::mnulog2);
    expect_message(row.text, MessageIcon::exclamation, row.title);
    EXPECT_TRUE(second_enabled());
    EXPECT_EQ(result(), "0");
  }
  operands(u"8", u"0", u"2", u"0");
  pick(&frmmenu::mnulog2);
  EXPECT_EQ(result(), "3");
  operands(u"0", u"0");
  pick(&frmmenu::mnulog1);
  expect_message(u"Log of 0 + i0 is undefined.", MessageIcon::exclamation, u"Logarithm Error");
}

TEST_F(ComplexFunctions, TheMenuOfArgumentsGivesThePlainArcTangent) {
  operands(u"-1", u"-1");
  pick(&frmmenu::mnugrad);
  EXPECT_EQ(result(), "0.7854");
  EXPECT_FALSE(second_enabled());
  pick(&frmmenu::mnugdeg);
  EXPECT_EQ(result(), "45");
  operands(u"0", u"2");
  pick(&frmmenu::mnugdeg);
  EXPECT_EQ(result(), "45");  // a quotient by zero is passed over
  expect_no_message();
  operands(u"0", u"0");
  pick(&frmmenu::mnugdeg);
  expect_message(u"Owerflow.\r\nInvalid input.", MessageIcon::information);
  pick(&frmmenu::mnugrad);
  expect_message(u"Owerflow. Probably invalid input.", MessageIcon::information);
  EXPECT_EQ(result(), "45");
}

TEST_F(ComplexFunctions, AnOverflowIsToldAndTheDisplayShowsWhatStands) {
  operands(u"1000", u"0");
  click(&frmComplex::cmde);
  expect_message(u"Owerflow.\r\nInvalid input.", MessageIcon::information);
  EXPECT_EQ(result(), "0");
}

TEST_F(ComplexFunctions, ThePowerKeyPassesOverAFaultInSilence) {
  operands(u"1E+200", u"1", u"2", u"0");
  click(&frmComplex::cmdExp);
  expect_no_message();
  EXPECT_EQ(program.bench.focus(), &form().txtCa);
}

TEST_F(ComplexFunctions, AnUnrecoveredFaultEndsTheProgram) {
  for (Button frmComplex::*key : {&frmComplex::cmdOver, &frmComplex::pi, &frmComplex::cmdzbir}) {
    act([this] { form().Show(); });
    const bool zero = key == &frmComplex::cmdOver;
    operands(zero ? u"0" : u"1E+308", u"0", u"1E+308", u"0");
    EXPECT_FALSE(program.bench.enter([&] { (form().*key).press(); }));
    EXPECT_EQ(program.bench.fault(), 6);
    expect_message(u"Run-time error '6':\r\n\r\nOverflow", MessageIcon::critical);
    program.restart();
  }
}

}  // namespace
}  // namespace tarnmill

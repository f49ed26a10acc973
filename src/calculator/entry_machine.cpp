#include "calculator/entry_machine.h"

#include "calculator/trigonometry.h"
#include "engine/checked.h"
#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/power.h"
#include "engine/rounding.h"
#include "forms/window.h"

namespace tarnmill {

namespace {

constexpr std::int16_t truth = -1;

constexpr TextView none = u"NONE";
constexpr TextView numbers = u"NUMS";
constexpr TextView operators = u"OPS";
constexpr TextView negative = u"NEG";
constexpr TextView cancelled = u"CE";

constexpr const char16_t* invalid_input = u"Invalid input.";

}  // namespace

bool IsOdd(std::int16_t n, const Regional& regional) {
  return NumberToText(n / 2.0, regional).find(u'.') != Text::npos;
}

EntryMachine::EntryMachine(Window& window, EntryPanel& panel)
    : Op1{window, "Op1"},
      Op2{window, "Op2"},
      DecimalFlag{window, "DecimalFlag"},
      NumOps{window, "NumOps"},
      LastInput{window, "LastInput", Text{}},
      OpFlag{window, "OpFlag", Text{}},
      TempReadout{window, "TempReadout", Text{}},
      window_{window},
      panel_{panel} {}

const Regional& EntryMachine::regional() const { return window_.regional(); }

Text EntryMachine::separator() const { return Text(1, regional().decimal_separator); }

Text EntryMachine::zero() const { return u"0" + separator(); }

bool EntryMachine::last_input_is(TextView word) const { return LastInput->to_text(regional()) == word; }

void EntryMachine::take_as_number() { LastInput = numbers; }

void EntryMachine::press_digit(const Text& digit) {
  if (!last_input_is(numbers)) {
    panel_.show(separator());
    DecimalFlag = 0;
  }
  try {
    panel_.show(with_digit(digit));
  } catch (const Fault& fault) {
    if (!fault.is(FaultCode::InvalidArgument)) throw;
    panel_.report(invalid_input, MessageIcon::exclamation);
    clear_entry();
  }
  if (last_input_is(negative)) panel_.show(u"-" + panel_.shown());
  LastInput = numbers;
  panel_.take_focus();
}

Text EntryMachine::with_digit(const Text& digit) const {
  const Text text = panel_.shown();
  if (DecimalFlag != 0) return text + digit;
  const auto point = text.find(separator());
  // A result such as that of a factorial has no point to put the digit before.
  if (point == Text::npos) throw Fault{FaultCode::InvalidArgument};
  return text.substr(0, point) + digit + separator();
}

void EntryMachine::press_point() {
  if (last_input_is(negative)) {
    panel_.show(u"-" + zero());
  } else if (!last_input_is(numbers)) {
    panel_.show(zero());
  }
  DecimalFlag = truth;
  LastInput = numbers;
  panel_.take_focus();
}

void EntryMachine::press_sign() {
  const Text text = panel_.shown();
  if (text == u"0." || text == u"0") {
    panel_.show(zero());
    return;
  }
  panel_.show(NumberToText(multiply(NumberFromText(text), -1), regional()));
  // The number's text has lost its point; digits typed now are appended to it.
  DecimalFlag = truth;
  LastInput = numbers;
  panel_.take_focus();
}

void EntryMachine::clear_entry() {
  panel_.show(zero());
  DecimalFlag = 0;
  LastInput = cancelled;
  panel_.take_focus();
}

void EntryMachine::clear_all() {
  panel_.show(zero());
  Op1 = 0;
  Op2 = 0;
  DecimalFlag = 0;
  NumOps = 0;
  LastInput = none;
  OpFlag = u" ";
}

void EntryMachine::press_operator(const Text& caption) {
  try {
    TempReadout = panel_.shown();
    if (last_input_is(numbers)) NumOps = (Integer{NumOps.get()} + 1).value();
    act_on_operands(caption);
    if (!last_input_is(negative)) {
      LastInput = operators;
      OpFlag = caption;
    }
  } catch (const Fault& fault) {
    if (fault.is(FaultCode::TypeMismatch)) {
      panel_.report(invalid_input, MessageIcon::information);
      clear_entry();
    }
  }
  panel_.take_focus();
}

void EntryMachine::act_on_operands(const Text& caption) {
  const bool minus = caption == u"-";
  switch (NumOps) {
    case 0:
      if (minus && !last_input_is(negative)) {
        panel_.show(u"-" + panel_.shown());
        LastInput = negative;
      }
      break;
    case 1:
      Op1 = panel_.shown();
      if (minus && !last_input_is(numbers) && OpFlag->to_text(regional()) != u"=") {
        panel_.show(u"-");
        LastInput = negative;
      }
      break;
    case 2:
      run_pending();
      break;
    default:
      break;
  }
}

void EntryMachine::run_pending() {
  Op2 = TempReadout;
  if (const auto result = pending_result()) Op1 = *result;
  panel_.show(Op1->to_text(regional()));
  NumOps = 1;
}

std::optional<double> EntryMachine::pending_result() {
  const Text operation = OpFlag->to_text(regional());
  if (operation == u"/") return quotient();
  if (operation == u"nR") return root();
  if (operation == u"=") return Op2->to_number(regional());
  // Only a number put in the place of the state word makes an addition one of pi.
  if (operation == u"+" && is_eq(compare(LastInput, shown_pi, regional()))) {
    return add(Op1->to_number(regional()), shown_pi);
  }
  double (*apply)(double, double) = nullptr;
  if (operation == u"+") apply = add;
  if (operation == u"-") apply = subtract;
  if (operation == u"X") apply = multiply;
  if (operation == u"%") apply = [](double a, double b) { return multiply(divide(a, b), 100); };
  if (operation == u"%i") apply = [](double a, double b) { return divide(multiply(a, b), 100); };
  if (operation == u"Exp") apply = Power;
  if (apply == nullptr) return std::nullopt;
  const double a = Op1->to_number(regional());
  const double b = Op2->to_number(regional());
  return apply(a, b);
}

std::optional<double> EntryMachine::quotient() {
  if (is_eq(compare(Op2, 0, regional()))) {
    panel_.report(u"Division by zero?!", MessageIcon::exclamation);
    return std::nullopt;
  }
  const double a = Op1->to_number(regional());
  return divide(a, Op2->to_number(regional()));
}

std::optional<double> EntryMachine::root() {
  // Parity is that of the rounded degree, the exponent that of the degree itself.
  const std::int16_t rounded = ToInteger(Op2->to_number(regional()));
  const auto sign = compare(Op1, 0, regional());
  if (IsOdd(rounded, regional()) && is_lt(sign)) return negate(root_of(negate(Op1->to_number(regional()))));
  if (is_lteq(sign)) {
    panel_.report(u"Invalid input. Check the sign.", MessageIcon::exclamation);
    return std::nullopt;
  }
  return root_of(Op1->to_number(regional()));
}

double EntryMachine::root_of(double radicand) {
  return Power(radicand, divide(1, Op2->to_number(regional())));
}

}  // namespace tarnmill

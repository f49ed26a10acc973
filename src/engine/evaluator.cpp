#include "engine/evaluator.h"

#include <algorithm>

#include "engine/checked.h"
#include "engine/number_text.h"
#include "engine/parity.h"

namespace tarnmill {
namespace {

constexpr TextView application_title = u"Tarnmill";
constexpr TextView error_title = u"Error";

constexpr TextView cannot_evaluate =
    u"Can't evaluate.\r\n"
    u"Probable reasons are:\r\n"
    u"- Invalid input\r\n"
    u"- Function is undefined for this argument.\r\n"
    u"- In this form, function is undefined for negative argument.\r\n"
    u"Try to use PREDEFINED functions, or draw function first.";

TextView message_of(std::int32_t error) {
  switch (error) {
    case 1:
      return u"Check decimal separator placement!";
    case 2:
      return u"Check syntax!";
    case 4:
      return u"Check symbols placement!";
    case 8:
      return u"Check bracket placement!";
    default:
      return cannot_evaluate;
  }
}

}  // namespace

Evaluator::Evaluator(EvaluatorHost& host) : host_{host}, parser_{host} {}

void Evaluator::Expression(TextView text) {
  expression_ = upper_case(RemoveSpaces(text));
  std::ranges::replace(expression_, u'.', u',');
}

double Evaluator::Result() {
  result_ = parser_.evaluate(expression_, error_);
  assigned_ = error_ == 0;
  return result_;
}

double Evaluator::Evaluate(TextView text, bool Silent) {
  Expression(text);
  const double value = Result();
  if (!Silent) report(value);
  return result_;
}

void Evaluator::report(double value) {
  if (error_ != 0) {
    host_.show_message(message_of(error_), error_title, EvaluatorHost::Icon::critical);
  } else if (value == undefined_marker) {
    host_.show_message(u"Undefined.", application_title, EvaluatorHost::Icon::information);
  } else if (host_.keypad_visible()) {
    host_.show_keypad_result(NumberToText(value, host_.regional()));
  }
}

// One pass does here what repeated ones would, and has no limit of length.
Text Evaluator::RemoveSpaces(TextView text) { return ReplaceAll(text, u" ", u""); }

Text Evaluator::ReplaceText(TextView text, TextView find, TextView replacement) {
  if (find.empty() || find == replacement) return {};
  Text result{text};
  const bool grows_for_ever = replacement.find(find) != TextView::npos;
  std::size_t at = result.find(find);
  while (at != Text::npos) {
    const Integer position{at + 1};
    if (grows_for_ever) throw Fault{FaultCode::Overflow};
    result.replace(at, find.size(), replacement);
    // What stands further in front was searched already and has not changed.
    at = result.find(find, at - std::min(at, find.size() - 1));
  }
  return result;
}

bool Evaluator::IsItOdd(TextView text) const { return tarnmill::IsItOdd(text); }

double Evaluator::factorial2(std::int16_t n) {
  if (n < 0) throw Fault{FaultCode::Overflow};
  double product = 1;
  for (int factor = 1; factor <= n; ++factor) product = multiply(factor, product);
  return product;
}

}  // namespace tarnmill

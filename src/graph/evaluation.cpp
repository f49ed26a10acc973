#include <initializer_list>
#include <utility>

#include "engine/fault.h"
#include "engine/number_text.h"
#include "graph/frm_func.h"

namespace tarnmill {
namespace {

/// A letter of an expression and the value to put in its place.
using Place = std::pair<TextView, double>;

/// Every letter counts as the variable, also within a word. A fault comes out under the one description that
/// all errors of an expression have here.
double evaluate(Evaluator& evaluator, TextView expression, const Regional& regional,
                std::initializer_list<Place> places) {
  try {
    Text text = upper_case(expression);
    for (const auto& [letter, value] : places) {
      text = Evaluator::ReplaceText(text, letter, u"(" + NumberToText(value, regional) + u")");
    }
    return evaluator.Evaluate(text, true);
  } catch (const Fault& fault) {
    throw Fault{fault.number(), u"Wrong Syntax"};
  }
}

}  // namespace

double frmFunc::evaluate_y(double x) {
  return evaluate(graph_evaluator(), ExpressionY.get(), regional(), {{u"K", x}});
}

double frmFunc::evaluate_x(double k, double y) {
  return evaluate(graph_evaluator(), ExpressionX.get(), regional(), {{u"K", k}, {u"Y", y}});
}

}  // namespace tarnmill

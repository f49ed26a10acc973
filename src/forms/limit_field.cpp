#include "forms/limit_field.h"

#include <array>

#include "engine/evaluator.h"
#include "engine/number_text.h"
#include "engine/rewriting.h"
#include "forms/text_box.h"

namespace tarnmill {

void evaluate_limit(TextBox& field, Evaluator& evaluator) {
  static constexpr std::array constants{Rule{u"pi", u"3.1416"}, Rule{u"Pi", u"3.1416"}, Rule{u"e", u"e(1)"}};
  for (const Rule& each : constants) field.Text = ReplaceAll(field.Text.get(), each.find, each.replacement);
  field.Text = NumberToText(evaluator.Evaluate(field.Text.get(), false), field.regional());
}

}  // namespace tarnmill

#include "engine/variant.h"

#include "engine/fault.h"
#include "engine/number_text.h"

namespace tarnmill {

double Variant::to_number(const Regional& regional) const {
  return is_text() ? NumberFromTextStrict(text_, regional) : number_;
}

Text Variant::to_text(const Regional& regional) const {
  if (is_number()) return NumberToText(number_, regional);
  if (is_bool()) return number_ == true_as_number ? u"True" : u"False";
  return text_;
}

std::partial_ordering compare(const Variant& left, double right, const Regional& regional) {
  try {
    return left.to_number(regional) <=> right;
  } catch (const Fault&) {
    return std::partial_ordering::greater;
  }
}

std::partial_ordering compare(const Variant& left, const Variant& right) {
  if (!left.is_text() && !right.is_text()) return left.number_ <=> right.number_;
  const bool both_as_text = (left.is_text() || left.is_empty()) && (right.is_text() || right.is_empty());
  if (both_as_text) return left.text_ <=> right.text_;
  return left.is_text() ? std::partial_ordering::greater : std::partial_ordering::less;
}

}  // namespace tarnmill

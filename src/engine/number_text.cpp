#include "engine/number_text.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "engine/number_parts.h"

namespace tarnmill {
namespace {

// Gives the characters of a text one by one and passes over blanks, tabs and line feeds.
class LenientCursor {
 public:
  explicit LenientCursor(TextView text) : text_{text} { skip(); }

  // The present character; at the end one that no number holds.
  [[nodiscard]] char16_t peek() const { return at_ < text_.size() ? text_[at_] : u'\0'; }

  void advance() {
    ++at_;
    skip();
  }

 private:
  void skip() { at_ = std::min(text_.find_first_not_of(u" \t\n", at_), text_.size()); }

  TextView text_;
  std::size_t at_ = 0;
};

// Takes the digits at the cursor and tells whether there were any.
bool take_digits(LenientCursor& cursor, int base, std::string& digits) {
  const std::size_t before = digits.size();
  for (; detail::digit_value(cursor.peek(), base) >= 0; cursor.advance()) {
    digits += static_cast<char>(cursor.peek());
  }
  return digits.size() > before;
}

void take_mantissa(LenientCursor& cursor, std::string& plain) {
  if (cursor.peek() == u'-') plain += '-';
  if (cursor.peek() == u'-' || cursor.peek() == u'+') cursor.advance();
  bool any = take_digits(cursor, 10, plain);
  if (cursor.peek() == u'.') {
    plain += '.';
    cursor.advance();
    any = take_digits(cursor, 10, plain) || any;
  }
  if (!any) plain.clear();
}

// The exponent at the cursor, its letter included; empty when it has no digit.
std::string exponent_part(LenientCursor cursor) {
  const char16_t letter = cursor.peek();
  if (letter != u'e' && letter != u'E' && letter != u'd' && letter != u'D') return {};
  cursor.advance();
  std::string part = "e";
  if (cursor.peek() == u'-') part += '-';
  if (cursor.peek() == u'-' || cursor.peek() == u'+') cursor.advance();
  return take_digits(cursor, 10, part) ? part : std::string{};
}

}  // namespace

double NumberFromText(TextView text) {
  LenientCursor cursor{text};
  detail::NumberParts parts;
  if (cursor.peek() == u'&') {
    cursor.advance();
    parts.base = detail::prefix_base(cursor.peek());
    if (parts.base == 0) return 0;
    cursor.advance();
    take_digits(cursor, parts.base, parts.plain);
    return detail::value_of(parts);
  }
  take_mantissa(cursor, parts.plain);
  if (parts.plain.empty()) return 0;
  parts.plain += exponent_part(cursor);
  return detail::value_of(parts);
}

}  // namespace tarnmill

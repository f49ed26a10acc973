#include <cstddef>
#include <optional>
#include <string>

#include "engine/fault.h"
#include "engine/number_parts.h"
#include "engine/number_text.h"
#include "engine/trim.h"

namespace tarnmill {
namespace {

constexpr TextView blanks = u" \t\n\v\f\r";

// Reads one whole number text from its front; what is taken is cut off.
class StrictReader {
 public:
  StrictReader(TextView text, const Regional& regional) : rest_{trimmed(text, blanks)}, regional_{regional} {}

  std::optional<detail::NumberParts> read() {
    const bool taken = front() == u'&' ? take_prefixed() : take_decimal();
    if (!taken || !rest_.empty()) return std::nullopt;
    return parts_;
  }

 private:
  [[nodiscard]] char16_t front() const { return rest_.empty() ? u'\0' : rest_.front(); }

  char16_t take() {
    const char16_t c = front();
    rest_.remove_prefix(1);
    return c;
  }

  void take_sign() {
    if (front() != u'-' && front() != u'+') return;
    if (take() == u'-') parts_.plain += '-';
  }

  bool take_digits(int base) {
    const std::size_t before = rest_.size();
    while (detail::digit_value(front(), base) >= 0) parts_.plain += static_cast<char>(take());
    return rest_.size() < before;
  }

  bool take_prefixed() {
    take();
    parts_.base = detail::prefix_base(front());
    if (parts_.base == 0) return false;
    take();
    return take_digits(parts_.base);
  }

  bool take_decimal() {
    take_sign();
    bool any = take_digits(10);
    if (front() == regional_.decimal_separator) {
      take();
      parts_.plain += '.';
      any = take_digits(10) || any;
    }
    return any && take_exponent();
  }

  // An exponent may be absent, but not begun and left without a digit.
  bool take_exponent() {
    const char16_t letter = front();
    if (letter != u'e' && letter != u'E' && letter != u'd' && letter != u'D') return true;
    take();
    parts_.plain += 'e';
    take_sign();
    return take_digits(10);
  }

  TextView rest_;
  Regional regional_;
  detail::NumberParts parts_;
};

}  // namespace

bool IsNumericText(TextView text, const Regional& regional) {
  return StrictReader{text, regional}.read().has_value();
}

double NumberFromTextStrict(TextView text, const Regional& regional) {
  const auto parts = StrictReader{text, regional}.read();
  if (!parts) throw Fault{FaultCode::TypeMismatch};
  return detail::value_of(*parts);
}

}  // namespace tarnmill

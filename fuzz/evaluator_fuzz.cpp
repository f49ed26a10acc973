// Takes the input as an expression, as loose notation for the rewriting chains and as a number. No text may
// raise what its reader does not tell, and a number written is the number read.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "engine/evaluator.h"
#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/rewriting.h"
#include "tests/engine/fake_host.h"

namespace {

using tarnmill::Regional;
using tarnmill::Text;
using tarnmill::TextView;

void require(bool holds) {
  if (!holds) std::abort();
}

// Reads with the number reader given. Whatever the text, only Overflow may come of it.
template <class Reader>
double read(Reader reader) {
  try {
    return reader();
  } catch (const tarnmill::Fault& fault) {
    require(fault.is(tarnmill::FaultCode::Overflow));
    return 0;
  }
}

void check_written(double value, const Regional& regional) {
  const Text written = tarnmill::NumberToText(value, regional);
  require(!written.empty() && !tarnmill::PaddedNumberText(value).empty());
  if (!std::isfinite(value)) return;
  require(tarnmill::IsNumericText(written, regional));
  const double again = read([&] { return tarnmill::NumberFromTextStrict(written, regional); });
  if (again != 0) require(tarnmill::NumberToText(again, regional) == written);
}

void check_number(TextView text, const Regional& regional) {
  check_written(read([&] { return tarnmill::NumberFromText(text); }), regional);
  if (!tarnmill::IsNumericText(text, regional)) return;
  check_written(read([&] { return tarnmill::NumberFromTextStrict(text, regional); }), regional);
}

// A cube root's exponent, as the windows hint it to powers of negative numbers.
const tarnmill::ExponentHint two_thirds{.txtY3 = u"3", .txtImenilac = u"2", .lblY3 = u"OK", .lblGot = u"GOT"};

// Evaluates the text in a program just started, so that the same text has the same value again.
double evaluate(TextView text, const Regional& regional, const tarnmill::ExponentHint& hint) {
  constexpr std::array known_errors{0, 1, 2, 4, 8, 16};
  tarnmill::testing::FakeHost host;
  host.settings = regional;
  host.graph = host.keypad = hint;
  tarnmill::Evaluator evaluator{host};
  const double value = evaluator.Evaluate(text, false);
  require(std::ranges::find(known_errors, evaluator.error()) != known_errors.end());
  require(evaluator.Assigned() == (evaluator.error() == 0));
  return value;
}

void check_expression(TextView text, const Regional& regional) {
  for (const tarnmill::ExponentHint& hint : {tarnmill::ExponentHint{}, two_thirds}) {
    const double value = evaluate(text, regional, hint);
    const double again = evaluate(text, regional, hint);
    require(value == again || (std::isnan(value) && std::isnan(again)));
    check_written(value, regional);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the fuzzer's bytes are our characters
  const Text text = tarnmill::from_utf8({reinterpret_cast<const char*>(data), size});
  for (const char16_t separator : {u'.', u','}) {
    const Regional regional{.decimal_separator = separator};
    check_number(text, regional);
    check_expression(text, regional);
    check_expression(tarnmill::Rewriting::full(text), regional);
  }
  for (const auto chain :
       {tarnmill::Rewriting::zam, tarnmill::Rewriting::cmdzam, tarnmill::Rewriting::Zamenisve}) {
    // What a chain makes of the empty text is the empty text, and nothing else becomes empty.
    require(chain(text).empty() == text.empty());
  }
  return 0;
}

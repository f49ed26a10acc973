// Runs each line of the input as a statement of one service evaluator. Every statement must end in a value or
// in one of the faults that callers know.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/service/service_evaluator.h"
#include "engine/service/service_fault.h"
#include "engine/text.h"

namespace {

// More would only repeat what fewer show, and integrals take their time.
constexpr std::size_t most_statements = 8;

bool is_known(const tarnmill::Fault& fault) {
  return fault.is(tarnmill::FaultCode::InvalidArgument) || fault.is(tarnmill::FaultCode::Overflow) ||
         fault.is(tarnmill::FaultCode::DivisionByZero) || fault.number() == tarnmill::statement_fault_number;
}

void run_statement(tarnmill::ServiceEvaluator& evaluator, std::string_view statement) {
  try {
    evaluator.formula(tarnmill::from_utf8(statement));
    if (tarnmill::NumberToText(evaluator.Result(), tarnmill::Regional{}).empty()) std::abort();
  } catch (const tarnmill::Fault& fault) {
    if (!is_known(fault)) std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the fuzzer's bytes are our characters
  std::string_view input{reinterpret_cast<const char*>(data), size};
  tarnmill::RandomSequence random;
  tarnmill::ServiceEvaluator evaluator{random};
  double sum = 0;
  evaluator.SamplePoint = [&sum](double x, double y) { sum += x + y; };
  for (std::size_t i = 0; i < most_statements && !input.empty(); ++i) {
    const std::size_t end = std::min(input.find('\n'), input.size());
    run_statement(evaluator, input.substr(0, end));
    input.remove_prefix(std::min(end + 1, input.size()));
  }
  return 0;
}

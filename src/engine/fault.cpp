#include "engine/fault.h"

namespace tarnmill {
namespace {

struct KnownWords {
  TextView description;
  const char* utf8;
};

KnownWords words_of(FaultCode code) noexcept {
  switch (code) {
    case FaultCode::InvalidArgument:
      return {u"Invalid procedure call or argument", "Invalid procedure call or argument"};
    case FaultCode::Overflow:
      return {u"Overflow", "Overflow"};
    case FaultCode::DivisionByZero:
      return {u"Division by zero", "Division by zero"};
    case FaultCode::TypeMismatch:
      return {u"Type mismatch", "Type mismatch"};
    case FaultCode::PrinterError:
      return {u"Printer error", "Printer error"};
  }
  return {u"Application-defined or object-defined error", "Application-defined or object-defined error"};
}

}  // namespace

Fault::Fault(FaultCode code) noexcept
    : number_{static_cast<std::int32_t>(code)},
      description_{words_of(code).description},
      what_{words_of(code).utf8} {}

Fault::Fault(std::int32_t number, TextView description)
    : number_{number},
      own_words_{std::make_shared<const Words>(Words{Text{description}, to_utf8(description)})},
      description_{own_words_->description},
      what_{own_words_->utf8.c_str()} {}

}  // namespace tarnmill

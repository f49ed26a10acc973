#include "engine/service/service_fault.h"

namespace tarnmill {

void raise_wrong_syntax() { throw Fault{statement_fault_number, u"Wrong syntax"}; }

void raise_unknown_name() { throw Fault{statement_fault_number, u"Unknown name"}; }

void raise_unmatched_brackets() { throw Fault{statement_fault_number, u"Unmatched brackets"}; }

void raise_too_few_values() { throw Fault{statement_fault_number, u"Too few values on the stack"}; }

}  // namespace tarnmill

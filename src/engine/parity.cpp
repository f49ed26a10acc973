#include "engine/parity.h"

#include "engine/fault.h"

namespace tarnmill {

bool IsItOdd(TextView text) {
  if (text.empty() || !IsDigitValue(text.back())) throw Fault{FaultCode::TypeMismatch};
  return (text.back() - u'0') % 2 != 0;
}

}  // namespace tarnmill

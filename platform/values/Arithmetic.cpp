#include "platform/values/Arithmetic.h"

#include "platform/errors/RuntimeError.h"

namespace trelonit {

void RaiseOverflow() {
  throw RuntimeError(ErrorNumber::Overflow);
}

void RaiseDivisionByZero() {
  throw RuntimeError(ErrorNumber::DivisionByZero);
}

void RaiseInvalidProcedureCall() {
  throw RuntimeError(ErrorNumber::InvalidProcedureCall);
}

}  // namespace trelonit

#include "platform/win32/ComErrors.h"

#include <array>

#include "platform/win32/Utf16.h"

namespace trelonit {

namespace {

constexpr const char* hostFailure = "Automation error";

struct KnownResult {
  HRESULT Result;
  ErrorNumber Number;
};

constexpr std::array knownResults{
    KnownResult{DISP_E_UNKNOWNNAME, ErrorNumber::PropertyNotSupported},
    KnownResult{DISP_E_MEMBERNOTFOUND, ErrorNumber::PropertyNotSupported},
    KnownResult{DISP_E_TYPEMISMATCH, ErrorNumber::TypeMismatch},
    KnownResult{DISP_E_OVERFLOW, ErrorNumber::Overflow},
    KnownResult{DISP_E_BADINDEX, ErrorNumber::SubscriptOutOfRange},
    KnownResult{DISP_E_DIVBYZERO, ErrorNumber::DivisionByZero},
    KnownResult{E_INVALIDARG, ErrorNumber::InvalidProcedureCall},
    KnownResult{E_OUTOFMEMORY, ErrorNumber::OutOfMemory},
    KnownResult{E_ACCESSDENIED, ErrorNumber::PermissionDenied},
};

}  // namespace

ExceptionInfo::~ExceptionInfo() {
  SysFreeString(info_.bstrSource);
  SysFreeString(info_.bstrDescription);
  SysFreeString(info_.bstrHelpFile);
}

RuntimeError ExceptionInfo::Error() {
  if (info_.pfnDeferredFillIn != nullptr) {
    info_.pfnDeferredFillIn(&info_);
  }
  const RuntimeError error = info_.wCode != 0 ? RuntimeError(static_cast<ErrorNumber>(info_.wCode))
                                              : FromResult(info_.scode);
  if (SysStringLen(info_.bstrDescription) == 0) {
    return error;
  }
  return {error.Number(), FromWide({info_.bstrDescription, SysStringLen(info_.bstrDescription)})};
}

RuntimeError FromResult(HRESULT result) {
  for (const KnownResult& known : knownResults) {
    if (known.Result == result) {
      return RuntimeError(known.Number);
    }
  }
  // This facility carries the numbers of run-time errors.
  if (FAILED(result) && HRESULT_FACILITY(result) == FACILITY_CONTROL) {
    return RuntimeError(static_cast<ErrorNumber>(HRESULT_CODE(result)));
  }
  // The number stays whole, as intended: a failure that the drawing expects of its host is told by
  // this number and this description.
  return {static_cast<int>(result), hostFailure};
}

void RequireResult(HRESULT result) {
  if (FAILED(result)) {
    throw FromResult(result);
  }
}

}  // namespace trelonit

#pragma once

#include "platform/errors/RuntimeError.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

/// What an object tells about a failed call; its texts go with it.
class ExceptionInfo {
 public:
  ExceptionInfo() = default;
  ~ExceptionInfo();
  ExceptionInfo(const ExceptionInfo&) = delete;
  ExceptionInfo& operator=(const ExceptionInfo&) = delete;

  /// For the call that fills it.
  EXCEPINFO* Place() { return &info_; }
  /// The object's own number and description. Without a description of its own the error has the
  /// one of its number.
  RuntimeError Error();

 private:
  EXCEPINFO info_{};
};

/// The run-time error that a failed call of COM stands for. Numbers of run-time errors that the
/// result carries come out; the usual failures of a call become the error that means the same (438
/// for a member that is not there); anything else keeps the whole result as its number, with the
/// description "Automation error".
RuntimeError FromResult(HRESULT result);

/// Raises that error where the call failed.
void RequireResult(HRESULT result);

}  // namespace trelonit

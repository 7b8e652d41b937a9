#include "platform/errors/RuntimeError.h"

#include <utility>

namespace trelonit {

namespace {

const char* DescriptionOf(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::InvalidProcedureCall:
      return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
      return "Overflow";
    case ErrorNumber::OutOfMemory:
      return "Out of memory";
    case ErrorNumber::SubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorNumber::DivisionByZero:
      return "Division by zero";
    case ErrorNumber::TypeMismatch:
      return "Type mismatch";
    case ErrorNumber::InternalError:
      return "Internal error";
    case ErrorNumber::BadFileName:
      return "Bad file name or number";
    case ErrorNumber::FileNotFound:
      return "File not found";
    case ErrorNumber::DeviceIoError:
      return "Device I/O error";
    case ErrorNumber::DiskFull:
      return "Disk full";
    case ErrorNumber::InputPastEnd:
      return "Input past end of file";
    case ErrorNumber::PermissionDenied:
      return "Permission denied";
    case ErrorNumber::PathFileAccess:
      return "Path/File access error";
    case ErrorNumber::PathNotFound:
      return "Path not found";
    case ErrorNumber::ObjectNotSet:
      return "Object variable or With block variable not set";
    case ErrorNumber::ResourceNotFound:
      return "Resource not found";
    case ErrorNumber::CannotCreateObject:
      return "ActiveX component can't create object";
    case ErrorNumber::PropertyNotSupported:
      return "Object doesn't support this property or method";
  }
  return "Application-defined or object-defined error";
}

}  // namespace

RuntimeError::RuntimeError(ErrorNumber number)
    : number_(static_cast<int>(number)), description_(DescriptionOf(number)) {}

RuntimeError::RuntimeError(int number, std::string description)
    : number_(number), description_(std::move(description)) {}

RuntimeError ResourceNotFoundError(int identifier) {
  return {static_cast<int>(ErrorNumber::ResourceNotFound),
          "Resource with identifier '" + std::to_string(identifier) + "' not found"};
}

}  // namespace trelonit

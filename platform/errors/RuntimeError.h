#pragma once

#include <exception>
#include <string>

namespace trelonit {

/// The numbers of the run-time errors that the program raises or passes on.
enum class ErrorNumber : int {
  InvalidProcedureCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  InternalError = 51,
  BadFileName = 52,
  FileNotFound = 53,
  DeviceIoError = 57,
  DiskFull = 61,
  InputPastEnd = 62,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  ObjectNotSet = 91,
  ResourceNotFound = 326,
  CannotCreateObject = 429,
  PropertyNotSupported = 438,
};

/// The one family of exceptions: a number and an English description for the user.
class RuntimeError : public std::exception {
 public:
  /// The description is the number's own. ResourceNotFound has one with a name in it: see
  /// ResourceNotFoundError.
  explicit RuntimeError(ErrorNumber number);

  /// For errors of an automation host, which bring their own number and description.
  RuntimeError(int number, std::string description);

  int Number() const noexcept { return number_; }
  const std::string& Description() const noexcept { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  int number_;
  std::string description_;
};

/// Error 326 for the resource with this identifier.
RuntimeError ResourceNotFoundError(int identifier);

}  // namespace trelonit

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "platform/errors/RuntimeError.h"

namespace trelonit::test {

namespace {

TEST(RuntimeError, DescribesEveryNumber) {
  const std::vector<std::pair<int, std::string>> descriptions{
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {7, "Out of memory"},
      {9, "Subscript out of range"},
      {11, "Division by zero"},
      {13, "Type mismatch"},
      {51, "Internal error"},
      {52, "Bad file name or number"},
      {53, "File not found"},
      {57, "Device I/O error"},
      {61, "Disk full"},
      {62, "Input past end of file"},
      {70, "Permission denied"},
      {75, "Path/File access error"},
      {76, "Path not found"},
      {91, "Object variable or With block variable not set"},
      {326, "Resource not found"},
      {429, "ActiveX component can't create object"},
      {438, "Object doesn't support this property or method"},
      // One that the platform does not name.
      {1004, "Application-defined or object-defined error"}};
  for (const auto& [number, description] : descriptions) {
    const RuntimeError error{static_cast<ErrorNumber>(number)};
    EXPECT_EQ(error.Number(), number);
    EXPECT_EQ(error.Description(), description);
    EXPECT_EQ(std::string(error.what()), description);
  }
}

TEST(RuntimeError, NumbersItsNamesAsThePlatformDoes) {
  EXPECT_EQ(RuntimeError(ErrorNumber::InvalidProcedureCall).Number(), 5);
  EXPECT_EQ(RuntimeError(ErrorNumber::Overflow).Number(), 6);
  EXPECT_EQ(RuntimeError(ErrorNumber::OutOfMemory).Number(), 7);
  EXPECT_EQ(RuntimeError(ErrorNumber::SubscriptOutOfRange).Number(), 9);
  EXPECT_EQ(RuntimeError(ErrorNumber::DivisionByZero).Number(), 11);
  EXPECT_EQ(RuntimeError(ErrorNumber::TypeMismatch).Number(), 13);
  EXPECT_EQ(RuntimeError(ErrorNumber::BadFileName).Number(), 52);
  EXPECT_EQ(RuntimeError(ErrorNumber::FileNotFound).Number(), 53);
  EXPECT_EQ(RuntimeError(ErrorNumber::DeviceIoError).Number(), 57);
  EXPECT_EQ(RuntimeError(ErrorNumber::DiskFull).Number(), 61);
  EXPECT_EQ(RuntimeError(ErrorNumber::InputPastEnd).Number(), 62);
  EXPECT_EQ(RuntimeError(ErrorNumber::PermissionDenied).Number(), 70);
  EXPECT_EQ(RuntimeError(ErrorNumber::PathFileAccess).Number(), 75);
  EXPECT_EQ(RuntimeError(ErrorNumber::PathNotFound).Number(), 76);
  EXPECT_EQ(RuntimeError(ErrorNumber::ObjectNotSet).Number(), 91);
  EXPECT_EQ(RuntimeError(ErrorNumber::ResourceNotFound).Number(), 326);
  EXPECT_EQ(RuntimeError(ErrorNumber::CannotCreateObject).Number(), 429);
  EXPECT_EQ(RuntimeError(ErrorNumber::PropertyNotSupported).Number(), 438);
}

TEST(RuntimeError, KeepsTheNumberAndDescriptionOfAHost) {
  const RuntimeError error(-2147352567, "Exception occurred.");
  EXPECT_EQ(error.Number(), -2147352567);
  EXPECT_EQ(error.Description(), "Exception occurred.");
  EXPECT_EQ(std::string(error.what()), "Exception occurred.");
}

TEST(ResourceNotFoundError, NamesTheIdentifier) {
  const RuntimeError error = ResourceNotFoundError(206);
  EXPECT_EQ(error.Number(), 326);
  EXPECT_EQ(error.Description(), "Resource with identifier '206' not found");
}

}  // namespace

}  // namespace trelonit::test

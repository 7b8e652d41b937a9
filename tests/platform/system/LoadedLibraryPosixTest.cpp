#include <gtest/gtest.h>

#include "platform/errors/RuntimeError.h"
#include "platform/posix/LoadedLibrary.h"

namespace trelonit::test {
namespace {

constexpr const char* mathematics = "libm.so.6";

template <class Action>
int NumberRaisedBy(Action action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(LoadedLibrary, HasTheRoutinesOfTheLibrary) {
  const LoadedLibrary library(mathematics);
  double (*root)(double) = nullptr;
  library.Find(root, "sqrt");
  EXPECT_EQ(root(6.25), 2.5);
}

TEST(LoadedLibrary, RaisesThatARoutineIsMissing) {
  const LoadedLibrary library(mathematics);
  double (*routine)(double) = nullptr;
  EXPECT_EQ(NumberRaisedBy([&] { library.Find(routine, "no_such_routine"); }), 53);
}

TEST(LoadedLibrary, RaisesThatItIsMissing) {
  EXPECT_EQ(NumberRaisedBy([] { LoadedLibrary("libno-such-library.so.1"); }), 53);
}

}  // namespace
}  // namespace trelonit::test

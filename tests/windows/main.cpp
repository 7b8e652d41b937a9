#include <gtest/gtest.h>

#include "tests/windows/HandlerErrors.h"

int main(int argc, char** argv) {
  // A run by hand has the same desktop as one by the test driver: no screen, a neutral locale, no
  // theme of the user.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "C.UTF-8");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  trelonit::GuardedApplication application(argc, argv);
  trelonit::test::FailOnHandlerErrors(application);
  QApplication::setOrganizationName(QStringLiteral("Trelonit"));
  QApplication::setApplicationName(QStringLiteral("trelonit-windows-tests"));
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

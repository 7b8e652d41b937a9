#include <gtest/gtest.h>

#include "tests/win32/desktop/TimeLimit.h"
#include "tests/windows/HandlerErrors.h"

int main(int argc, char** argv) {
  // The tests answer dialogues of the toolkit; those of the system they could not.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  trelonit::GuardedApplication application(argc, argv);
  trelonit::test::FailOnHandlerErrors(application);
  QApplication::setOrganizationName(QStringLiteral("Trelonit"));
  QApplication::setApplicationName(QStringLiteral("trelonit-windows-tests"));
  ::testing::InitGoogleTest(&argc, argv);
  // Given up before the application goes.
  trelonit::test::TimeLimit limit;
  ::testing::UnitTest::GetInstance()->listeners().Append(&limit);
  const int status = RUN_ALL_TESTS();
  ::testing::UnitTest::GetInstance()->listeners().Release(&limit);
  return status;
}

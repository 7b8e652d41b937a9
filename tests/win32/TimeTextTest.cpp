#include <gtest/gtest.h>
#include <string>

#include "editor/dialogs/DateForms.h"
#include "tests/win32/UserChoice.h"
#include "tests/win32/WineOnly.h"

namespace trelonit::test {

namespace {

constexpr Long systemForm = 7;

/// With the user's forms of a Russian machine and those of an American one.
class SystemDateForm : public testing::Test {
 protected:
  void SetUp() override {
    if (!IsWine()) {
      GTEST_SKIP() << "a user's settings are no ground for a test";
    }
  }
  static std::string Form(int hour) { return DateForm(systemForm, {2026, 3, 5, hour, 7, 9}); }
};

TEST_F(SystemDateForm, FollowsTheUsersShortDateAndTime) {
  {
    const UserChoice date(LOCALE_SSHORTDATE, L"dd.MM.yyyy");
    const UserChoice time(LOCALE_STIMEFORMAT, L"H:mm:ss");
    EXPECT_EQ(Form(14), "05.03.2026 14:07:09");
  }
  const UserChoice date(LOCALE_SSHORTDATE, L"M/d/yyyy");
  const UserChoice time(LOCALE_STIMEFORMAT, L"h:mm:ss tt");
  EXPECT_EQ(Form(14), "3/5/2026 2:07:09 PM");
  EXPECT_EQ(Form(4), "3/5/2026 4:07:09 AM");
}

TEST_F(SystemDateForm, IsTheDateAloneAtMidnight) {
  const UserChoice date(LOCALE_SSHORTDATE, L"dd.MM.yyyy");
  EXPECT_EQ(DateForm(systemForm, {2026, 3, 5}), "05.03.2026");
}

TEST_F(SystemDateForm, HasNoBlanksRound) {
  const UserChoice date(LOCALE_SSHORTDATE, L" dd.MM.yyyy");
  const UserChoice time(LOCALE_STIMEFORMAT, L"H:mm:ss ");
  EXPECT_EQ(Form(14), "05.03.2026 14:07:09");
}

}  // namespace

}  // namespace trelonit::test

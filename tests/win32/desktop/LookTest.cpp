// Dark colours where the user has chosen them for programs.

#include <QByteArray>
#include <gtest/gtest.h>
#include <optional>

#include "apps/trelonit/Machine.h"
#include "platform/win32/Win32Registry.h"
#include "tests/win32/WineOnly.h"

namespace trelonit::test {

namespace {

constexpr const char* themes = "Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";

/// What the toolkit is told where the user's choice is this one.
QByteArray ToldFor(std::optional<std::uint32_t> light) {
  Win32Registry registry;
  registry.DeleteKey(RegistryRoot::CurrentUser, themes);
  if (light) {
    registry.SetValue(RegistryRoot::CurrentUser, themes, "AppsUseLightTheme", *light);
  }
  qunsetenv("QT_QPA_PLATFORM");
  // The style of this program stays its own.
  qputenv("QT_STYLE_OVERRIDE", "Fusion");
  PrepareToolkit();
  registry.DeleteKey(RegistryRoot::CurrentUser, themes);
  return qgetenv("QT_QPA_PLATFORM");
}

class Look : public testing::Test {
 protected:
  void SetUp() override {
    if (!IsWine()) {
      GTEST_SKIP() << "it would change the user's colours";
    }
  }
};

TEST_F(Look, IsDarkWhereTheUserWantsDarkPrograms) {
  EXPECT_EQ(ToldFor(0), "windows:darkmode=2");
}

TEST_F(Look, IsLightOtherwise) {
  EXPECT_EQ(ToldFor(1), "windows:darkmode=0");
  EXPECT_EQ(ToldFor(std::nullopt), "windows:darkmode=0");
}

TEST_F(Look, LeavesTheUsersOwnWordToTheToolkit) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  PrepareToolkit();
  EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "offscreen");
}

}  // namespace

}  // namespace trelonit::test

#ifndef _WIN32

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <pwd.h>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

#include "platform/console/ConsoleServices.h"
#include "platform/system/ProgramFolder.h"

namespace trelonit::test {

int ErrorOf(const std::function<void()>& body);
std::string InChild(const std::function<std::string()>& body);

namespace {

using Variables = std::vector<std::pair<std::string, std::string>>;

/// A folder that the system tells where only these of its variables are set.
std::string Told(std::filesystem::path (*folder)(), const Variables& variables) {
  return InChild([&] {
    for (const char* name : {"XDG_DATA_HOME", "XDG_STATE_HOME", "HOME"}) {
      ::unsetenv(name);
    }
    for (const auto& [name, value] : variables) {
      ::setenv(name.c_str(), value.c_str(), 1);
    }
    return folder().string();
  });
}

TEST(UserStateFolder, IsThatOfTheDesktop) {
  EXPECT_EQ(Told(UserStateFolder, {{"XDG_STATE_HOME", "/state"}, {"HOME", "/home/a"}}),
            "/state/trelonit");
}

TEST(UserStateFolder, IsBelowTheHomeFolderWhereTheDesktopNamesNone) {
  EXPECT_EQ(Told(UserStateFolder, {{"HOME", "/home/a"}}), "/home/a/.local/state/trelonit");
  // Relative paths mean another place every time.
  EXPECT_EQ(Told(UserStateFolder, {{"XDG_STATE_HOME", "state"}, {"HOME", "/home/a"}}),
            "/home/a/.local/state/trelonit");
}

TEST(UserFolders, AreThoseOfTheSystemsListOfUsersWhereNoHomeIsTold) {
  const passwd* user = ::getpwuid(::getuid());
  if (user == nullptr || user->pw_dir[0] != '/') {
    GTEST_SKIP() << "the system knows no home of this user";
  }
  const std::string home = user->pw_dir;
  for (const Variables& variables : {Variables{}, Variables{{"HOME", "home"}}}) {
    EXPECT_EQ(Told(UserStateFolder, variables), home + "/.local/state/trelonit");
    EXPECT_EQ(Told(UserDataFolder, variables), home + "/.local/share/trelonit");
  }
}

/// A user whom the system's list does not have.
void BecomeNobodyKnown() {
  constexpr unsigned unknown = 1'999'999'999;
  if (::getpwuid(unknown) != nullptr || ::setuid(unknown) != 0) {
    throw std::runtime_error("no user whom the system does not know");
  }
}

TEST(UserWhomTheSystemDoesNotKnow, HasFoldersBelowTheRoot) {
  if (::geteuid() != 0) {
    GTEST_SKIP() << "only root can become another user";
  }
  const std::string told = InChild([] {
    ::unsetenv("XDG_STATE_HOME");
    ::unsetenv("HOME");
    BecomeNobodyKnown();
    return UserStateFolder().string();
  });
  EXPECT_EQ(told, "/.local/state/trelonit");
}

TEST(UserWhomTheSystemDoesNotKnow, HasNoName) {
  if (::geteuid() != 0) {
    GTEST_SKIP() << "only root can become another user";
  }
  const std::string told = InChild([] {
    BecomeNobodyKnown();
    return '<' + ConsoleShell().UserName() + '>';
  });
  EXPECT_EQ(told, "<>");
}

TEST(ConsoleShell, HasNoneOfThePlacesOfWindows) {
  ConsoleShell shell;
  constexpr int notSupported = 438;
  EXPECT_EQ(ErrorOf([&] { shell.ProgramPath(); }), notSupported);
  EXPECT_EQ(ErrorOf([&] { shell.SystemFolder(); }), notSupported);
  EXPECT_EQ(ErrorOf([&] { shell.SendToFolder(); }), notSupported);
  EXPECT_EQ(ErrorOf([&] { shell.RemoveShortcut("/tmp/shortcut.lnk"); }), notSupported);
}

TEST(NoRegistry, CannotBeWritten) {
  NoRegistry registry;
  constexpr int notSupported = 438;
  EXPECT_EQ(ErrorOf([&] { registry.SetValue(RegistryRoot::CurrentUser, "key", "", {}); }),
            notSupported);
  EXPECT_EQ(ErrorOf([&] { registry.DeleteKey(RegistryRoot::CurrentUser, "key"); }), notSupported);
}

TEST(NoAutomation, HasNoRunningObject) {
  NoAutomation automation;
  EXPECT_EQ(ErrorOf([&] { automation.GetRunning("Word.Application"); }), 429);
}

TEST(NoDialogs, CancelEveryQuestionForAFile) {
  NoDialogs dialogs;
  EXPECT_EQ(dialogs.AskSaveName({}), "");
  EXPECT_EQ(dialogs.AskOpenName({}), "");
}

}  // namespace

}  // namespace trelonit::test

#endif

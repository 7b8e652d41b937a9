#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "platform/console/ConsoleServices.h"
#include "platform/system/ProgramFolder.h"
#include "platform/win32/Environment.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/WindowsHeader.h"
#include "tests/win32/ErrorOf.h"

namespace trelonit::test {

namespace {

namespace fs = std::filesystem;

class Shell : public testing::Test {
 protected:
  ~Shell() override {
    SetFileAttributesW(shortcut.c_str(), FILE_ATTRIBUTE_NORMAL);
    std::error_code ignored;
    fs::remove(shortcut, ignored);
  }

  std::string Shortcut() const { return FromWide(shortcut.native()); }
  void MakeShortcut() const { std::ofstream(shortcut) << "shortcut"; }

  const fs::path shortcut = fs::temp_directory_path() / L"Ярлык trelonit.lnk";
  ConsoleShell shell;
};

TEST_F(Shell, TellsTheProgramsPathWithoutItsEnding) {
  const std::string path = shell.ProgramPath();
  EXPECT_TRUE(path.ends_with("\\win32_tests")) << path;
  EXPECT_TRUE(fs::exists(ToWide(path + ".exe")));
  EXPECT_EQ(ExecutableFolder(), fs::path(ToWide(path)).parent_path());
}

TEST_F(Shell, KnowsTheFolderOfTheSystemsPrograms) {
  const std::string folder = shell.SystemFolder();
  EXPECT_TRUE(fs::exists(ToWide(folder + "\\shell32.dll"))) << folder;
  EXPECT_NE(folder.back(), '\\');
}

TEST_F(Shell, KnowsTheFolderOfTheSendToMenu) {
  const std::string folder = shell.SendToFolder();
  EXPECT_TRUE(fs::is_directory(ToWide(folder))) << folder;
  EXPECT_NE(folder.back(), '\\');
}

TEST_F(Shell, NamesTheMachineAndItsUser) {
  EXPECT_NE(shell.ComputerName(), "");
  const std::optional<std::wstring> user = EnvironmentVariable(L"USERNAME");
  ASSERT_TRUE(user.has_value());
  EXPECT_EQ(shell.UserName(), FromWide(*user));
}

TEST_F(Shell, RemovesAShortcut) {
  MakeShortcut();
  shell.RemoveShortcut(Shortcut());
  EXPECT_FALSE(fs::exists(shortcut));
}

TEST_F(Shell, RaisesWhereThereIsNoShortcutToRemove) {
  EXPECT_EQ(ErrorOf([&] { shell.RemoveShortcut(Shortcut()); }), 53);
  EXPECT_EQ(ErrorOf([&] { shell.RemoveShortcut("C:\\No such folder\\a.lnk"); }), 53);
}

TEST_F(Shell, RaisesWhereTheUserMayNotRemoveTheShortcut) {
  MakeShortcut();
  ASSERT_TRUE(SetFileAttributesW(shortcut.c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_EQ(ErrorOf([&] { shell.RemoveShortcut(Shortcut()); }), 70);
  EXPECT_TRUE(fs::exists(shortcut));
}

TEST_F(Shell, RaisesWhereAnotherProgramHoldsTheShortcut) {
  MakeShortcut();
  const std::ifstream holder(shortcut);
  EXPECT_EQ(ErrorOf([&] { shell.RemoveShortcut(Shortcut()); }), 70);
}

}  // namespace

}  // namespace trelonit::test

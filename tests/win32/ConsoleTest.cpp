#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "platform/console/ConsoleServices.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/NumberText.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/Win32Console.h"
#include "platform/win32/WindowsHeader.h"
#include "tests/win32/UserChoice.h"
#include "tests/win32/WineOnly.h"

namespace trelonit::test {

namespace {

TEST(Utf8Console, HasTheProgramAsItsFirstArgument) {
  Utf8Console console;
  ASSERT_GE(console.ArgumentCount(), 1);
  const std::string first = console.Arguments()[0];
  EXPECT_NE(first.find("win32_tests"), std::string::npos) << first;
  EXPECT_EQ(console.Arguments()[console.ArgumentCount()], nullptr);
}

/// A variable of the environment, which other programs inherit.
class Variable {
 public:
  Variable(const wchar_t* name, const wchar_t* value) : name_(name) {
    SetEnvironmentVariableW(name, value);
  }
  ~Variable() { SetEnvironmentVariableW(name_, nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const wchar_t* name_;
};

TEST(OwnCommandLine, RunsAnotherProgramAndGivesItsStatus) {
  // This program once more, told to run the part of its tests that is not there.
  const Variable parts(L"GTEST_TOTAL_SHARDS", L"1");
  {
    const Variable part(L"GTEST_SHARD_INDEX", L"5");
    const std::optional<int> status = RunWithOwnCommandLine(ExecutablePath());
    ASSERT_TRUE(status.has_value());
    EXPECT_NE(*status, 0);
  }
}

TEST(OwnCommandLine, RunsNothingThatIsNotThere) {
  EXPECT_EQ(RunWithOwnCommandLine(ExecutableFolder() / "no such program.exe"), std::nullopt);
}

TEST(SystemLocale, WritesNumbersAsTheUserHasChosen) {
  if (!IsWine()) {
    GTEST_SKIP() << "a user's settings are no ground for a test";
  }
  const UserChoice decimal(LOCALE_SDECIMAL, L",");
  const UserChoice thousand(LOCALE_STHOUSAND, L"\u00A0");
  {
    const UserChoice groups(LOCALE_SGROUPING, L"3;0");
    const NumberLocale locale = SystemNumberLocale();
    EXPECT_EQ(locale.DecimalSeparator, ",");
    EXPECT_EQ(locale.GroupSeparator, "\u00A0");
    EXPECT_EQ(locale.GroupSize, 3);
    EXPECT_EQ(FormatShown(1234567.5, 1, locale), "1\u00A0234\u00A0567,5");
  }
  {
    const UserChoice groups(LOCALE_SGROUPING, L"0");
    EXPECT_EQ(SystemNumberLocale().GroupSeparator, "");
    EXPECT_EQ(FormatShown(1234567.5, 1, SystemNumberLocale()), "1234567,5");
  }
}

}  // namespace

}  // namespace trelonit::test

#include <gtest/gtest.h>

#include "platform/win32/CommandLine.h"

namespace trelonit::test {

namespace {

TEST(CommandLine, BehindTheNameIsTakenAsItIsWritten) {
  EXPECT_EQ(BehindProgramName(L"trelonit.exe C:\\My  roofs\\a b.tsav"), L"C:\\My  roofs\\a b.tsav");
  EXPECT_EQ(BehindProgramName(L"\"C:\\Program Files\\trelonit.exe\" \"C:\\a b.tsav\""),
            L"\"C:\\a b.tsav\"");
  EXPECT_EQ(BehindProgramName(L"C:\\\"Program Files\"\\trelonit.exe a"), L"a");
  EXPECT_EQ(BehindProgramName(L"\"trelonit\"\t a\t "), L"a");
}

TEST(CommandLine, IsEmptyWhereNothingStandsBehindTheName) {
  EXPECT_EQ(BehindProgramName(L""), L"");
  EXPECT_EQ(BehindProgramName(L"trelonit.exe"), L"");
  EXPECT_EQ(BehindProgramName(L"\"C:\\a b\\trelonit.exe\"  "), L"");
  EXPECT_EQ(BehindProgramName(L"\"C:\\a b\\trelonit.exe"), L"");
}

TEST(CommandLine, HasTheProgramFirst) {
  ASSERT_FALSE(OwnArguments().empty());
  EXPECT_NE(OwnArguments().front().find("win32_tests"), std::string::npos);
}

}  // namespace

}  // namespace trelonit::test

#ifndef _WIN32

#include <csignal>
#include <cstdio>
#include <functional>
#include <gtest/gtest.h>
#include <string>

#include "platform/system/Caller.h"
#include "platform/system/Interruption.h"
#include "platform/system/Services.h"
#include "platform/system/SystemTimeText.h"

namespace trelonit::test {

std::string InChild(const std::function<std::string()>& body);

namespace {

TEST(Caller, IsToldOnStandardOutput) {
  testing::internal::CaptureStdout();
  TellCaller("версия\n");
  std::fflush(stdout);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "версия\n");
}

TEST(Caller, HearsComplaintsOnStandardError) {
  testing::internal::CaptureStderr();
  ComplainToCaller("справка: --help\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "справка: --help\n");
}

TEST(Interruption, IsAskedForByCtrlCWhichEndsNothingMeanwhile) {
  const std::string told = InChild([]() -> std::string {
    const Interruption first;
    const bool before = first.IsAsked();
    std::raise(SIGINT);
    return before ? "asked before" : first.IsAsked() ? "asked" : "not asked";
  });
  EXPECT_EQ(told, "asked");
}

TEST(Interruption, LeavesCtrlCAsItWas) {
  const std::string told = InChild([]() -> std::string {
    std::signal(SIGINT, SIG_DFL);
    { const Interruption interruption; }
    std::raise(SIGINT);
    return "lived";
  });
  EXPECT_EQ(told, "died");
}

TEST(SystemTimeText, IsTheProgramsOwnWhereTheSystemHasNoForm) {
  EXPECT_FALSE(SystemTimeText({.Year = 2026, .Month = 11, .Day = 23}).has_value());
}

}  // namespace

}  // namespace trelonit::test

#endif

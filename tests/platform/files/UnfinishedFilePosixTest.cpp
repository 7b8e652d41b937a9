#ifndef _WIN32

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/posix/UnfinishedFile.h"

namespace trelonit::test {

namespace fs = std::filesystem;

std::shared_ptr<const fs::path> TemporaryFolder();

namespace {

/// How a child process ended that ran the body.
struct Ended {
  int Signal = 0;
  int Status = -1;
};

Ended EndOf(const std::function<void()>& body) {
  const pid_t child = ::fork();
  if (child == 0) {
    body();
    ::_exit(7);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return {.Signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0,
          .Status = WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

class InterruptedProgram : public testing::TestWithParam<int> {
 protected:
  fs::path File() const { return *folder_ / "file"; }
  fs::path Other() const { return *folder_ / "other"; }
  InterruptedProgram() {
    std::ofstream(File()) << "half";
    std::ofstream(Other()) << "whole";
  }

 private:
  std::shared_ptr<const fs::path> folder_ = TemporaryFolder();
};

TEST_P(InterruptedProgram, TakesItsUnfinishedFileAlong) {
  const Ended ended = EndOf([&] {
    std::signal(GetParam(), SIG_DFL);
    TakeUnfinishedFileAlongWhenInterrupted();
    const UnfinishedFile unfinished(File());
    const UnfinishedFile second(Other());
    std::raise(GetParam());
  });
  EXPECT_EQ(ended.Signal, GetParam());
  EXPECT_FALSE(fs::exists(File()));
  // There is room for one.
  EXPECT_TRUE(fs::exists(Other()));
}

TEST_P(InterruptedProgram, TakesTheNextOneAlongWhereTheFirstIsFinished) {
  const Ended ended = EndOf([&] {
    std::signal(GetParam(), SIG_DFL);
    TakeUnfinishedFileAlongWhenInterrupted();
    { const UnfinishedFile finished(File()); }
    const UnfinishedFile next(Other());
    std::raise(GetParam());
  });
  EXPECT_EQ(ended.Signal, GetParam());
  EXPECT_TRUE(fs::exists(File()));
  EXPECT_FALSE(fs::exists(Other()));
}

TEST_P(InterruptedProgram, LeavesWhatIsFinished) {
  const Ended ended = EndOf([&] {
    std::signal(GetParam(), SIG_DFL);
    TakeUnfinishedFileAlongWhenInterrupted();
    { const UnfinishedFile unfinished(File()); }
    std::raise(GetParam());
  });
  EXPECT_EQ(ended.Signal, GetParam());
  EXPECT_TRUE(fs::exists(File()));
}

TEST_P(InterruptedProgram, WaitsWhileItIsHeld) {
  const Ended ended = EndOf([&] {
    std::signal(GetParam(), SIG_DFL);
    TakeUnfinishedFileAlongWhenInterrupted();
    {
      const HeldInterruption held;
      std::raise(GetParam());
      fs::remove(Other());
    }
  });
  EXPECT_EQ(ended.Signal, GetParam());
  EXPECT_FALSE(fs::exists(Other()));
}

TEST_P(InterruptedProgram, GoesOnWhereItWasStartedToIgnoreTheSignal) {
  const Ended ended = EndOf([&] {
    std::signal(GetParam(), SIG_IGN);
    TakeUnfinishedFileAlongWhenInterrupted();
    const UnfinishedFile unfinished(File());
    std::raise(GetParam());
  });
  EXPECT_EQ(ended.Status, 7);
  EXPECT_TRUE(fs::exists(File()));
}

INSTANTIATE_TEST_SUITE_P(BySignals, InterruptedProgram, testing::Values(SIGINT, SIGTERM, SIGHUP));

}  // namespace

}  // namespace trelonit::test

#endif

#pragma once

#include <QTimer>
#include <atomic>
#include <gtest/gtest.h>
#include <thread>

namespace trelonit::test {

/// A test that waits for ever fails after its time, and the next one has its turn: whatever loop of
/// events it waits in is ended. Where that does not help, the whole run ends with its name.
class TimeLimit : public testing::EmptyTestEventListener {
 public:
  TimeLimit();
  ~TimeLimit() override;
  TimeLimit(const TimeLimit&) = delete;
  TimeLimit& operator=(const TimeLimit&) = delete;

  void OnTestStart(const testing::TestInfo& test) override;
  void OnTestEnd(const testing::TestInfo& test) override;

 private:
  void EndLoops();

  QTimer timer_;
  bool ended_ = false;
  /// Seconds that the test has had; negative between tests.
  std::atomic<int> seconds_ = -1;
  std::atomic<bool> over_ = false;
  std::thread watch_;
};

}  // namespace trelonit::test

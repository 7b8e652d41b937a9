#include "tests/win32/desktop/TimeLimit.h"

#include <QApplication>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace trelonit::test {
namespace {

constexpr int longestTest = 120;
constexpr int longestEnd = 20;

}  // namespace

TimeLimit::TimeLimit() {
  timer_.setInterval(std::chrono::seconds(longestTest));
  QObject::connect(&timer_, &QTimer::timeout, [this] { EndLoops(); });
  watch_ = std::thread([this] {
    while (!over_) {
      std::this_thread::sleep_for(std::chrono::seconds(1));
      if (seconds_ >= 0 && ++seconds_ > longestTest + longestEnd) {
        std::fputs("The test waits for ever outside of a loop of events.\n", stderr);
        std::_Exit(EXIT_FAILURE);
      }
    }
  });
}

TimeLimit::~TimeLimit() {
  over_ = true;
  watch_.join();
}

void TimeLimit::OnTestStart(const testing::TestInfo& /*test*/) {
  seconds_ = 0;
  timer_.start();
}

void TimeLimit::OnTestEnd(const testing::TestInfo& /*test*/) {
  seconds_ = -1;
  timer_.stop();
  if (ended_) {
    // Otherwise every later loop would end at once.
    ended_ = false;
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    QApplication::exec();
  }
}

void TimeLimit::EndLoops() {
  ADD_FAILURE() << "waits for ever";
  ended_ = true;
  while (QWidget* popup = QApplication::activePopupWidget()) {
    popup->hide();
  }
  if (QWidget* modal = QApplication::activeModalWidget()) {
    modal->hide();
  }
  QCoreApplication::exit(EXIT_FAILURE);
}

}  // namespace trelonit::test

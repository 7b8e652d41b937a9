#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <ios>
#include <new>
#include <string>
#include <vector>

#include "windows/services/GuardedApplication.h"

namespace trelonit::test {
namespace {

/// What the application tells while this lives.
class TellingApplication : public ::testing::Test {
 protected:
  TellingApplication() {
    application.Tell = [this](const RuntimeError& error) { told.push_back(error.Number()); };
  }
  ~TellingApplication() override { application.Tell = before_; }

  GuardedApplication& application = dynamic_cast<GuardedApplication&>(*qApp);
  std::vector<int> told;

 private:
  const std::function<void(const RuntimeError&)> before_ = application.Tell;
};

TEST_F(TellingApplication, TellsWhatAButtonsHandlerThrowsAndGoesOn) {
  QPushButton button;
  int presses = 0;
  QObject::connect(&button, &QPushButton::clicked, &button, [&] {
    if (++presses == 1) {
      throw std::ios_base::failure("read");
    }
  });
  button.show();
  QTest::mouseClick(&button, Qt::LeftButton);
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(presses, 2);
  EXPECT_EQ(told, std::vector<int>{57});
}

TEST_F(TellingApplication, TellsWhatATimerThrowsAndKeepsItTicking) {
  QTimer timer;
  int ticks = 0;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
    if (++ticks == 1) {
      throw std::bad_alloc();
    }
  });
  timer.start(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 3; }, 50000));
  EXPECT_EQ(told, std::vector<int>{7});
}

TEST_F(TellingApplication, OutlivesABoxThatCannotBeShown) {
  application.Tell = [](const RuntimeError&) { throw std::bad_alloc(); };
  QTimer timer;
  int ticks = 0;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
    ++ticks;
    throw RuntimeError(ErrorNumber::DeviceIoError);
  });
  timer.start(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 2; }, 50000));
}

}  // namespace
}  // namespace trelonit::test

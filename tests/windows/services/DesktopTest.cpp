#include <QApplication>
#include <QMessageBox>
#include <QStyle>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>
#include <optional>

#include "tests/windows/Modal.h"
#include "windows/drawing/DrawingWindow.h"
#include "windows/services/Desktop.h"
#include "windows/services/DesktopServices.h"

namespace trelonit::test {
namespace {

/// The desktop of the program; the names and the style of the tests come back afterwards.
class DesktopOfTheProgram : public ::testing::Test {
 protected:
  ~DesktopOfTheProgram() override {
    QApplication::setApplicationName(name_);
    QApplication::setStyle(style_);
    QApplication::setWindowIcon({});
  }

 private:
  const QString name_ = QApplication::applicationName();
  const QString style_ = QApplication::style()->name();
  Desktop desktop_;
};

/// Whether it had the icon when it was painted first.
class FirstWindow : public QWidget {
 public:
  std::optional<bool> HadIcon;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    if (!HadIcon) {
      HadIcon = !windowIcon().isNull();
    }
  }
};

TEST_F(DesktopOfTheProgram, GivesEveryWindowTheIcon) {
  const auto expect = [](const QWidget& window) {
    EXPECT_FALSE(window.windowIcon().isNull()) << window.metaObject()->className();
    EXPECT_FALSE(window.windowIcon().pixmap(32, 32).isNull());
  };
  FirstWindow first;
  first.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !first.windowIcon().isNull(); }));
  expect(first);
  expect(DrawingWindow());
  expect(QDialog());
  const OnceModal<QMessageBox> once([&](QMessageBox& box) { expect(box); });
  DesktopMessages().Show({.Text = "x"});
  EXPECT_TRUE(once.Acted());
}

TEST_F(DesktopOfTheProgram, PaintsItsFirstWindowBeforeItsIcon) {
  FirstWindow first;
  first.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !first.windowIcon().isNull(); }));
  EXPECT_EQ(first.HadIcon, false);
}

}  // namespace
}  // namespace trelonit::test

#include <QApplication>
#include <QMessageBox>
#include <QWidget>
#include <gtest/gtest.h>

#include "tests/windows/Modal.h"
#include "windows/drawing/DrawingWindow.h"
#include "windows/services/Desktop.h"
#include "windows/services/DesktopServices.h"

namespace trelonit::test {
namespace {

/// The desktop of the program; the names of the tests come back afterwards.
class DesktopOfTheProgram : public ::testing::Test {
 protected:
  ~DesktopOfTheProgram() override {
    QApplication::setApplicationName(name_);
    QApplication::setWindowIcon({});
  }

 private:
  const QString name_ = QApplication::applicationName();
  Desktop desktop_;
};

TEST_F(DesktopOfTheProgram, GivesEveryWindowTheIcon) {
  const auto expect = [](const QWidget& window) {
    EXPECT_FALSE(window.windowIcon().isNull()) << window.metaObject()->className();
    EXPECT_FALSE(window.windowIcon().pixmap(32, 32).isNull());
  };
  expect(DrawingWindow());
  expect(QDialog());
  const OnceModal<QMessageBox> once([&](QMessageBox& box) { expect(box); });
  DesktopMessages().Show({.Text = "x"});
  EXPECT_TRUE(once.Acted());
}

}  // namespace
}  // namespace trelonit::test

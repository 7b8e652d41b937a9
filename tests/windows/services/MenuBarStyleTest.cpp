#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include "windows/services/MenuBarStyle.h"

namespace trelonit::test {
namespace {

/// The style of the application, exchanged; that of the tests comes back afterwards.
class MarkOfAMenuBar : public ::testing::Test {
 protected:
  void SetUp() override { QApplication::setStyle(QStringLiteral("fusion")); }
  ~MarkOfAMenuBar() override { QApplication::setStyle(style_); }

 private:
  const QString style_ = QApplication::style()->name();
};

TEST_F(MarkOfAMenuBar, IsThereWhereTheMenusAreTooWide) {
  MenuBarStyle::Install();
  QMainWindow window;
  for (int menu = 0; menu < 5; ++menu) {
    window.menuBar()->addMenu(QStringLiteral("A menu with a long name"));
  }
  const auto* extension = window.findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button"));
  ASSERT_NE(extension, nullptr);
  window.resize(250, 100);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  ASSERT_TRUE(extension->isVisible());
  const QImage mark = extension->icon().pixmap(16, 16).toImage();
  const QImage nothing = [&] {
    QImage clear(mark.size(), mark.format());
    clear.fill(Qt::transparent);
    return clear;
  }();
  EXPECT_NE(mark, nothing);
}

TEST_F(MarkOfAMenuBar, ChangesNoOther) {
  const QImage before =
      QApplication::style()->standardIcon(QStyle::SP_TrashIcon).pixmap(16, 16).toImage();
  MenuBarStyle::Install();
  EXPECT_EQ(QApplication::style()->standardIcon(QStyle::SP_TrashIcon).pixmap(16, 16).toImage(),
            before);
}

TEST_F(MarkOfAMenuBar, IsTheSystemsWhereTheStyleIs) {
  QApplication::setStyle(QStringLiteral("windows"));
  const QStyle* style = QApplication::style();
  MenuBarStyle::Install();
  EXPECT_EQ(QApplication::style(), style);
}

}  // namespace
}  // namespace trelonit::test

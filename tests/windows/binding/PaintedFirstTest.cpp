#include <QDialog>
#include <gtest/gtest.h>

#include "tests/windows/Hands.h"
#include "windows/binding/PaintedFirst.h"

namespace trelonit::test {
namespace {

/// Notes the windows as they are painted.
class PaintLog : public QObject {
 public:
  PaintLog() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      Names << object->objectName();
    }
    return false;
  }

  QStringList Names;
};

/// A window that stands on the screen, and a dialog over it.
class WindowBelow : public ::testing::Test {
 protected:
  WindowBelow() {
    Below.setObjectName(QStringLiteral("below"));
    Below.resize(300, 200);
    Below.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&Below));
    QTest::qWait(50);
    Above = new QDialog(&Below);
    Above->setObjectName(QStringLiteral("above"));
    new PaintedFirst(Above);
  }

  QWidget Below;
  QDialog* Above = nullptr;
};

TEST_F(WindowBelow, IsPaintedAfterTheDialogAndNotForgotten) {
  PaintLog log;
  Below.update();
  Above->show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return log.Names.contains(QStringLiteral("below")); }));
  EXPECT_EQ(log.Names.front(), QStringLiteral("above"));
}

TEST_F(WindowBelow, IsPaintedWhereTheDialogClosesUnseen) {
  PaintLog log;
  Below.update();
  Above->show();
  Above->close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return log.Names.contains(QStringLiteral("below")); }));
}

TEST_F(WindowBelow, IsPaintedAtOnceWhileTheDialogStands) {
  Above->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(Above));
  QTest::qWait(50);
  PaintLog log;
  Below.update();
  QCoreApplication::processEvents();
  EXPECT_EQ(log.Names, QStringList{QStringLiteral("below")});
}

TEST_F(WindowBelow, MayGoBeforeTheDialogIsPainted) {
  auto below = std::make_unique<QWidget>();
  auto* above = new QDialog(below.get());
  new PaintedFirst(above);
  below->show();
  below->update();
  above->show();
  below.reset();
  QCoreApplication::processEvents();
  EXPECT_TRUE(Below.isVisible());
}

}  // namespace
}  // namespace trelonit::test

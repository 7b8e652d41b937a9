#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>
#include <gtest/gtest.h>

#include "windows/services/WheelGuard.h"

namespace trelonit::test {
namespace {

/// A page that is longer than its window, with a list on it.
class WheelOverAPage : public ::testing::Test {
 protected:
  WheelOverAPage() {
    qApp->installEventFilter(&guard);
    for (int panels = 4; panels <= 30; panels += 2) {
      list->addItem(QString::number(panels));
    }
    page->setMinimumHeight(2000);
    auto* column = new QVBoxLayout(page);
    column->addWidget(list);
    column->addWidget(edit);
    column->addStretch();
    tabs->addTab(new QWidget, QStringLiteral("one"));
    tabs->addTab(new QWidget, QStringLiteral("two"));
    column->addWidget(tabs);
    area.setWidget(page);
    area.setWidgetResizable(true);
    area.resize(300, 200);
    area.show();
    area.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&area));
    edit->setFocus();
  }
  ~WheelOverAPage() override { qApp->removeEventFilter(&guard); }

  static void Turn(QWidget* widget) {
    const QPointF place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // As from the user: only such an event goes on to the parent. Sent, it would be the program's.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
  }

  WheelGuard guard;
  QScrollArea area;
  QWidget* page = new QWidget;
  QComboBox* list = new QComboBox;
  QLineEdit* edit = new QLineEdit;
  QTabWidget* tabs = new QTabWidget;
};

TEST_F(WheelOverAPage, ScrollsItWhereAListWithoutFocusIsUnderThePointer) {
  Turn(list);
  EXPECT_EQ(list->currentText(), "4");
  EXPECT_GT(area.verticalScrollBar()->value(), 0);
}

TEST_F(WheelOverAPage, TurnsTheListThatHasTheFocus) {
  list->setFocus();
  Turn(list);
  EXPECT_EQ(list->currentText(), "6");
}

TEST_F(WheelOverAPage, LeavesTheTabThatIsShown) {
  Turn(tabs->tabBar());
  EXPECT_EQ(tabs->currentIndex(), 0);
}

}  // namespace
}  // namespace trelonit::test

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "windows/services/LayoutsAtRest.h"

namespace trelonit::test {
namespace {

/// How often a widget is painted.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    paints_ += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
  int Paints() const { return paints_; }

 private:
  int paints_ = 0;
};

/// Layouts within layouts and tabs between them, as in the main window.
class WindowOfManyLevels : public ::testing::Test {
 protected:
  WindowOfManyLevels() {
    auto* tabs = new QTabWidget;
    auto* group = new QGroupBox;
    (new QVBoxLayout(page))->addWidget(group);
    (new QVBoxLayout(group))->addWidget(label);
    tabs->addTab(page, QStringLiteral("one"));
    auto* center = new QWidget;
    (new QVBoxLayout(center))->addWidget(tabs);
    window.setCentralWidget(center);
  }

  void Show() {
    window.show();
    // What is asked at the bottom comes to the top by an event for each level.
    label->setText(QStringLiteral("a longer label"));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTest::qWait(50);
  }

  QMainWindow window;
  QWidget* page = new QWidget;
  QLabel* label = new QLabel(QStringLiteral("label"));
};

TEST_F(WindowOfManyLevels, IsPaintedOnceWhenItIsShown) {
  LayoutsAtRest rest;
  qApp->installEventFilter(&rest);
  const PaintCount count(*page);
  Show();
  EXPECT_EQ(count.Paints(), 1);
}

/// Gives a label another size with every layout.
class Restless : public QObject {
 public:
  explicit Restless(QLabel& label) : label_(label) {}

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest && asked_ < most) {
      ++asked_;
      label_.setMinimumWidth(100 + asked_ % 2);
    }
    return false;
  }
  int Asked() const { return asked_; }
  static constexpr int most = 1000;

 private:
  QLabel& label_;
  int asked_ = 0;
};

TEST_F(WindowOfManyLevels, IsShownThoughItsLayoutsNeverRest) {
  LayoutsAtRest rest;
  qApp->installEventFilter(&rest);
  Restless restless(*label);
  label->parentWidget()->installEventFilter(&restless);
  const PaintCount count(*page);
  window.show();
  while (count.Paints() == 0) {
    ASSERT_LT(restless.Asked(), Restless::most);
    QCoreApplication::processEvents();
  }
  EXPECT_GT(restless.Asked(), 1);
}

}  // namespace
}  // namespace trelonit::test

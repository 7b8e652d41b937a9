#include <QScreen>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include <limits>

#include "tests/windows/DialogHands.h"
#include "tests/windows/Pixels.h"
#include "tests/windows/drawing/DrawingSheets.h"
#include "windows/drawing/DrawingView.h"

namespace trelonit::test {
namespace {

class DrawingViewOnScreen : public testing::Test {
 protected:
  DrawingViewOnScreen() {
    View.resize(900, 600);
    ShowActive(View);
    View.setFocus();
  }

  static QPoint Middle() { return {450, 300}; }

  void Wheel(QPointF place, int angle) {
    QWheelEvent event(place, View.mapToGlobal(place), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&View, &event);
  }
  void Key(Qt::Key key) { QTest::keyClick(&View, key); }
  void MoveTo(QPoint place, Qt::MouseButtons buttons = {}) {
    QMouseEvent event(QEvent::MouseMove, place, View.mapToGlobal(QPointF(place)), Qt::NoButton,
                      buttons, Qt::NoModifier);
    QApplication::sendEvent(&View, &event);
  }

  /// Pixels for a drawing unit.
  double Scale() { return View.ToView({1, 0}).x() - View.ToView({0, 0}).x(); }
  bool ShowsAll() {
    const QRectF box = View.Painter().Bounds(false);
    const QRectF shown(View.ToView(box.bottomLeft()), View.ToView(box.topRight()));
    const QRectF room = View.rect().toRectF().adjusted(15, 15, -15, -15);
    const QPointF away = shown.center() - room.center();
    // As large as fits, in the middle.
    return room.contains(shown) && away.manhattanLength() < 0.01 &&
           (shown.width() > room.width() - 3 || shown.height() > room.height() - 3);
  }
  static void ExpectSame(QPointF a, QPointF b, double tolerance = 1e-6) {
    EXPECT_NEAR(a.x(), b.x(), tolerance);
    EXPECT_NEAR(a.y(), b.y(), tolerance);
  }

  std::shared_ptr<Drawing> Sheet = SmallDrawing();
  DrawingView View{Sheet};
};

TEST_F(DrawingViewOnScreen, ShowsAllOfItAtFirst) {
  EXPECT_TRUE(ShowsAll());
}

TEST_F(DrawingViewOnScreen, PutsLargerYHigher) {
  EXPECT_LT(View.ToView({0, 100}).y(), View.ToView({0, 0}).y());
  EXPECT_GT(View.ToView({100, 0}).x(), View.ToView({0, 0}).x());
  ExpectSame(View.ToDrawing(View.ToView({123, 456})), {123, 456});
}

TEST_F(DrawingViewOnScreen, ZoomsRoundThePointerWithTheWheel) {
  for (const QPointF place : {QPointF(100, 200), QPointF(850, 20), QPointF(450, 599)}) {
    for (const int angle : {120, 360, -120, 15, -840}) {
      const QPointF before = View.ToDrawing(place);
      const double scale = Scale();
      Wheel(place, angle);
      ExpectSame(View.ToDrawing(place), before);
      EXPECT_EQ(Scale() > scale, angle > 0) << angle;
    }
    View.ZoomExtents();
  }
}

TEST_F(DrawingViewOnScreen, ZoomsRoundTheMiddleWithKeys) {
  const QPointF middle = View.ToDrawing(Middle());
  const double scale = Scale();
  for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Equal}) {
    Key(key);
    EXPECT_NEAR(Scale(), scale * 1.25, 1e-9);
    ExpectSame(View.ToDrawing(Middle()), middle);
    Key(Qt::Key_Minus);
    EXPECT_NEAR(Scale(), scale, 1e-9);
  }
}

TEST_F(DrawingViewOnScreen, KeepsTheZoomWithinLimits) {
  const double all = Scale();
  Wheel({10, 10}, 120 * 200);
  const double nearest = Scale();
  EXPECT_NEAR(nearest / all, 2000, 1e-3);
  Wheel({10, 10}, -120 * 400);
  EXPECT_NEAR(Scale() / all, 0.05, 1e-6);
  EXPECT_GT(CountColors(View), 1U);
}

TEST_F(DrawingViewOnScreen, ComesBackToAllOfItWithKeysAndTheMiddleButton) {
  for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Z}) {
    Wheel({10, 10}, 600);
    EXPECT_FALSE(ShowsAll());
    Key(key);
    EXPECT_TRUE(ShowsAll()) << key;
  }
  // The same key of a Russian keyboard. The test library's own table of keys ends at Latin letters.
  constexpr char16_t russian = 0x042F;
  Wheel({10, 10}, 600);
  QTest::sendKeyEvent(QTest::Click, &View, Qt::Key(russian), QChar(russian), {});
  EXPECT_TRUE(ShowsAll());
  Wheel({10, 10}, 600);
  QTest::mouseDClick(&View, Qt::MiddleButton, {}, Middle());
  EXPECT_TRUE(ShowsAll());
  Wheel({10, 10}, 600);
  QTest::mouseDClick(&View, Qt::LeftButton, {}, Middle());
  EXPECT_FALSE(ShowsAll());
}

TEST_F(DrawingViewOnScreen, IsDraggedByTheLeftAndTheMiddleButton) {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
    const QPointF held = View.ToDrawing(QPointF(200, 200));
    QTest::mousePress(&View, button, {}, {200, 200});
    EXPECT_EQ(View.cursor().shape(), Qt::ClosedHandCursor);
    MoveTo({240, 190}, button);
    MoveTo({317, 251}, button);
    ExpectSame(View.ToDrawing(QPointF(317, 251)), held);
    QTest::mouseRelease(&View, button, {}, {317, 251});
    EXPECT_EQ(View.cursor().shape(), Qt::CrossCursor);
    MoveTo({400, 400});
    ExpectSame(View.ToDrawing(QPointF(317, 251)), held);
  }
  const QPointF held = View.ToDrawing(QPointF(200, 200));
  QTest::mousePress(&View, Qt::RightButton, {}, {200, 200});
  MoveTo({240, 190}, Qt::RightButton);
  ExpectSame(View.ToDrawing(QPointF(200, 200)), held);
}

TEST_F(DrawingViewOnScreen, FollowsTheMouseWhileSpaceIsHeld) {
  MoveTo({100, 100});
  QTest::keyPress(&View, Qt::Key_Space);
  EXPECT_EQ(View.cursor().shape(), Qt::OpenHandCursor);
  MoveTo({200, 200});
  const QPointF held = View.ToDrawing(QPointF(200, 200));
  MoveTo({260, 230});
  ExpectSame(View.ToDrawing(QPointF(260, 230)), held);
  QTest::keyRelease(&View, Qt::Key_Space);
  MoveTo({10, 10});
  ExpectSame(View.ToDrawing(QPointF(260, 230)), held);
  EXPECT_EQ(View.cursor().shape(), Qt::CrossCursor);
}

TEST_F(DrawingViewOnScreen, LetsGoWhenTheFocusLeavesWithSpaceHeld) {
  QTest::keyPress(&View, Qt::Key_Space);
  View.clearFocus();
  MoveTo({200, 200});
  const QPointF held = View.ToDrawing(QPointF(200, 200));
  MoveTo({260, 230});
  ExpectSame(View.ToDrawing(QPointF(200, 200)), held);
}

TEST_F(DrawingViewOnScreen, MovesATenthOfTheWindowWithArrows) {
  struct Case {
    Qt::Key Key;
    QPointF Shift;
  };
  for (const Case& c : {Case{Qt::Key_Left, {90, 0}}, Case{Qt::Key_Right, {-90, 0}},
                        Case{Qt::Key_Up, {0, 60}}, Case{Qt::Key_Down, {0, -60}}}) {
    const QPointF before = View.ToView({5000, 0});
    Key(c.Key);
    ExpectSame(View.ToView({5000, 0}) - before, c.Shift);
  }
  EXPECT_TRUE(ShowsAll());
}

TEST_F(DrawingViewOnScreen, GoesOnShowingAllOfItAtAnotherSize) {
  View.resize(700, 640);
  EXPECT_TRUE(ShowsAll());
  View.resize(400, 1000);
  EXPECT_TRUE(ShowsAll());
}

TEST_F(DrawingViewOnScreen, KeepsWhatTheUserChoseAtAnotherSize) {
  Wheel({100, 100}, 360);
  const double scale = Scale();
  const QPointF middle = View.ToDrawing(Middle());
  View.resize(700, 640);
  EXPECT_NEAR(Scale(), scale, 1e-12);
  ExpectSame(View.ToDrawing(QPointF(350, 320)), middle);
}

TEST_F(DrawingViewOnScreen, TellsWhereThePointerIs) {
  std::optional<QPointF> told;
  int times = 0;
  View.PointerMoved = [&](std::optional<QPointF> point) {
    told = point;
    ++times;
  };
  MoveTo({123, 45});
  ASSERT_TRUE(told);
  ExpectSame(*told, View.ToDrawing(QPointF(123, 45)));
  Wheel({200, 300}, 120);
  ExpectSame(*told, View.ToDrawing(QPointF(200, 300)));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&View, &leave);
  EXPECT_FALSE(told);
  EXPECT_EQ(times, 3);
}

TEST_F(DrawingViewOnScreen, TellsEveryOtherPartAndScale) {
  int times = 0;
  View.ViewChanged = [&] { ++times; };
  Key(Qt::Key_Plus);
  EXPECT_EQ(times, 1);
  Key(Qt::Key_Left);
  EXPECT_EQ(times, 2);
  Key(Qt::Key_Home);
  EXPECT_EQ(times, 3);
  Key(Qt::Key_F7);
  EXPECT_EQ(times, 3);
}

TEST_F(DrawingViewOnScreen, TellsItsScaleInMillimetresOfTheScreen) {
  EXPECT_NEAR(View.ScaleOnScreen() * Scale(), View.logicalDpiX() / 25.4, 1e-9);
}

/// What stands in the window's memory now, which moved parts were copied in.
QImage Seen(QWidget& view) {
  QTest::qWait(20);
  return view.screen()->grabWindow(view.winId()).toImage().convertToFormat(QImage::Format_RGB32);
}

TEST_F(DrawingViewOnScreen, LooksTheSameMovedAndPaintedAnew) {
  Key(Qt::Key_Plus);
  for (const QPoint step : {QPoint(37, 0), QPoint(-5, 61), QPoint(0, -300), QPoint(444, 222)}) {
    QTest::mousePress(&View, Qt::LeftButton, {}, Middle());
    MoveTo(Middle() + step, Qt::LeftButton);
    QTest::mouseRelease(&View, Qt::LeftButton, {}, Middle() + step);
    const QImage moved = Seen(View);
    View.update();
    const QImage anew = Seen(View);
    int different = 0;
    for (int y = 0; y < anew.height(); ++y) {
      for (int x = 0; x < anew.width(); ++x) {
        different += std::abs(qGray(anew.pixel(x, y)) - qGray(moved.pixel(x, y))) > 8 ? 1 : 0;
      }
    }
    EXPECT_EQ(different, 0) << step.x() << "," << step.y();
    EXPECT_FALSE(InkBox(anew, View.palette().color(QPalette::Base)).isNull());
  }
}

TEST_F(DrawingViewOnScreen, ShowsAChangeOnceItIsRenewed) {
  const QImage before = View.grab().toImage();
  Sheet->ModelSpace.push_back(LineOn("Main", {0, 0}, {10000, 300}));
  View.Renew();
  EXPECT_NE(View.grab().toImage(), before);
}

TEST_F(DrawingViewOnScreen, ShowsLayersAsTheyAreSwitched) {
  const QImage before = View.grab().toImage();
  Sheet->Layers[1].LayerOn = false;
  const QImage hidden = View.grab().toImage();
  EXPECT_NE(hidden, before);
  Sheet->Layers[2].LayerOn = false;
  EXPECT_EQ(CountColors(View), 1U);
  Sheet->Layers[1].LayerOn = true;
  Sheet->Layers[2].LayerOn = true;
  EXPECT_EQ(View.grab().toImage(), before);
}

TEST_F(DrawingViewOnScreen, StandsOnTheThemesGround) {
  QPalette palette = View.palette();
  palette.setColor(QPalette::Base, QColor(30, 31, 32));
  palette.setColor(QPalette::Text, QColor(240, 241, 242));
  View.setPalette(palette);
  EXPECT_GT(CountPixels(View, QColor(30, 31, 32)), 400000);
  EXPECT_GT(CountPixels(View, QColor(240, 241, 242)), 500);
}

TEST(DrawingView, TellsThatItCannotShowWhatLeadsBeyondAllNumbers) {
  auto drawing = std::make_shared<Drawing>(EmptySheet());
  drawing->ModelSpace.push_back(
      LineOn("Main", {std::numeric_limits<double>::infinity(), 0}, {0, 0}));
  DrawingView view(drawing);
  view.resize(600, 400);
  ShowActive(view);
  view.ZoomExtents();
  view.ZoomBy(2);
  EXPECT_GT(CountColors(view), 1U);
}

TEST(DrawingView, ShowsAnEmptyDrawing) {
  DrawingView view(std::make_shared<Drawing>());
  view.resize(600, 400);
  ShowActive(view);
  QTest::keyClick(&view, Qt::Key_Plus);
  EXPECT_EQ(CountColors(view), 1U);
}

}  // namespace
}  // namespace trelonit::test

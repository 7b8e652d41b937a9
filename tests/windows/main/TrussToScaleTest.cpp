// The truss of the boxes on the first tab, and the marks of what is wrong with them.

#include <gtest/gtest.h>

#include "tests/windows/Pixels.h"
#include "tests/windows/main/Screen.h"
#include "windows/binding/PictureWidgets.h"
#include "windows/binding/Pictures.h"
#include "windows/main/TrussSketchView.h"

namespace trelonit::test {
namespace {

class TrussToScale : public ::testing::Test, public Screen {
 protected:
  TrussSketchView& View() { return Find<TrussSketchView>(Window, "TrussToScale"); }
  std::string Words() { return FromQt(View().accessibleDescription()); }
  QLabel& Fault() { return Find<QLabel>(Window, "GeometryFault"); }
  /// The mark inside a box, if it shows.
  QAction* Mark(const std::string& box) {
    for (QAction* action : Edit(box).actions()) {
      if (action->isVisible()) {
        return action;
      }
    }
    return nullptr;
  }
};

TEST_F(TrussToScale, StandsBelowThePictureOfTheScheme) {
  EXPECT_TRUE(View().isVisible());
  const auto& told = Find<PictureView>(Window, "imgMain");
  EXPECT_TRUE(told.isVisible());
  EXPECT_GT(View().mapTo(&Window, QPoint()).y(), told.mapTo(&Window, QPoint()).y());
}

TEST_F(TrussToScale, FollowsEveryKey) {
  EXPECT_EQ(Words(), "Ферма 20 на 1.5 м, панели 10 × 2 м, опорный раскос 36.9°");
  QLineEdit& height = Edit("txtHight");
  height.setFocus();
  Empty(height);
  EXPECT_EQ(Words(), "Высота фермы должна быть числом больше нуля");
  QTest::keyClicks(&height, "2");
  EXPECT_EQ(Words(), "Ферма 20 на 2 м, панели 10 × 2 м, опорный раскос 45.0°");
  PickIn("cmbPanelNum", "8");
  // 16 m for six panels; atan(2 / 2.667).
  EXPECT_EQ(Words(),
            "Ферма 20 на 2 м, опорные панели 2 м, панели 6 × 2.667 м, опорный раскос 45.0°, "
            "раскос 36.9°");
  Press("imgTreloType3");
  EXPECT_EQ(Words(), "Ферма 20 на 2 м, панели 2 × 10 м, опорный раскос 21.8°");
  Press("imgTreloType5");
  EXPECT_EQ(Words(), "Схема 5 не рассчитывается");
}

/// Counts the paint events of a widget.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    Painted += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
  int Painted = 0;
};

TEST_F(TrussToScale, IsPaintedAloneWithItsBoxWhileOneTypes) {
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&Window));
  QTest::qWait(100);
  QLineEdit& height = Edit("txtHight");
  height.setFocus();
  QTest::qWait(100);
  const PaintCount truss(View());
  const PaintCount scheme(Find<PictureView>(Window, "imgMain"));
  const PaintCount other(Edit("txtLenOporn"));
  QTest::keyClicks(&height, "1");
  QTest::qWait(100);
  EXPECT_GT(truss.Painted, 0);
  EXPECT_EQ(scheme.Painted, 0);
  EXPECT_EQ(other.Painted, 0);
}

TEST_F(TrussToScale, IsPaintedAnew) {
  const QImage before = View().grab().toImage();
  TypeInto("txtHight", "3");
  EXPECT_NE(View().grab().toImage(), before);
}

TEST_F(TrussToScale, ShowsAnImpossibleGeometryRed) {
  const QColor red = WarningColor(Window.palette());
  EXPECT_EQ(CountPixels(View(), red), 0);
  TypeInto("txtLenOporn", "12");
  EXPECT_GT(CountPixels(View(), red), 50);
  EXPECT_EQ(View().Drawn().Scale, 0);
}

TEST_F(TrussToScale, MarksTheBoxThatIsToBeMended) {
  EXPECT_EQ(Fault().text(), "");
  EXPECT_EQ(Mark("txtLenOporn"), nullptr);
  TypeInto("txtLenOporn", "10");
  const std::string words = "Опорные панели, 2 × 10 м, не оставляют места остальным";
  EXPECT_EQ(FromQt(Fault().text()), words);
  ASSERT_NE(Mark("txtLenOporn"), nullptr);
  EXPECT_EQ(FromQt(Mark("txtLenOporn")->toolTip()), words);
  EXPECT_EQ(Mark("txtLengthF"), nullptr);
  EXPECT_EQ(Edit("txtLenOporn").palette().color(QPalette::Text), WarningColor(Window.palette()));
  EXPECT_EQ(FromQt(Edit("txtLenOporn").accessibleDescription()).rfind(words, 0), 0U);
  TypeInto("txtLenOporn", "2");
  EXPECT_EQ(Fault().text(), "");
  EXPECT_EQ(Mark("txtLenOporn"), nullptr);
  EXPECT_EQ(Edit("txtLenOporn").palette().color(QPalette::Text),
            Window.palette().color(QPalette::Text));
  EXPECT_EQ(Edit("txtLenOporn").accessibleDescription(), Edit("txtLenOporn").toolTip());
}

TEST_F(TrussToScale, MarksSeveralBoxesAtOnce) {
  TypeInto("txtLengthF", "");
  TypeInto("txtHight", "x");
  EXPECT_NE(Mark("txtLengthF"), nullptr);
  EXPECT_NE(Mark("txtHight"), nullptr);
  EXPECT_EQ(FromQt(Fault().text()), "Длина фермы должна быть числом больше нуля");
  TypeInto("txtLengthF", "24");
  EXPECT_EQ(FromQt(Fault().text()), "Высота фермы должна быть числом больше нуля");
}

TEST_F(TrussToScale, AsksForCareInAnotherColour) {
  TypeInto("txtHight", "5");
  EXPECT_EQ(FromQt(Fault().text()), "Раскосы круче 65°");
  EXPECT_EQ(Edit("txtHight").palette().color(QPalette::Text), CautionColor(Window.palette()));
  EXPECT_GT(View().Drawn().Scale, 0);
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(TrussToScale, MovesNoInputWhenAFaultIsTold) {
  const auto places = [this] {
    std::vector<QPoint> found;
    for (const char* name : {"txtLenOporn", "cmbLenlim", "txtProgib"}) {
      found.push_back(Find<QWidget>(Window, name).mapTo(&Window, QPoint()));
    }
    return found;
  };
  const std::vector<QPoint> before = places();
  TypeInto("txtLenOporn", "10");
  QTest::qWait(20);
  EXPECT_EQ(places(), before);
}

}  // namespace
}  // namespace trelonit::test

// The lengths out of the plane beside the bracing options.

#include "tests/windows/DialogHands.h"
#include "tests/windows/main/Screen.h"
#include "windows/binding/Pictures.h"

namespace trelonit::test {
namespace {

class BracingLengths : public ::testing::Test, public Screen {
 protected:
  QLabel& Taken(const std::string& chord, int option) {
    return Find<QLabel>(Window, "lbl" + chord + "Length" + std::to_string(option) + "Taken");
  }
  QLabel& Held(const std::string& chord, int option) {
    return Find<QLabel>(Window, "lbl" + chord + "Length" + std::to_string(option) + "ByCaption");
  }
  Texts HeldOf(const std::string& chord) {
    Texts lengths;
    for (int option = 1; option <= 4; ++option) {
      lengths.push_back(FromQt(Held(chord, option).text()));
    }
    return lengths;
  }
  QColor Ink(const QLabel& label) { return label.palette().color(QPalette::WindowText); }
};

TEST_F(BracingLengths, HaveAHeadEach) {
  const Texts labels = LabelsIn(Window);
  EXPECT_EQ(std::count(labels.begin(), labels.end(), "расчет, м"), 2);
  EXPECT_EQ(std::count(labels.begin(), labels.end(), "по подписи, м"), 2);
}

TEST_F(BracingLengths, AreThoseOfTheForm) {
  // 20 m in 10 panels of 2 m, as at the start.
  EXPECT_EQ(HeldOf("UpPoyas"), (Texts{"20.00", "10.00", "4.00", "2.00"}));
  for (int option = 1; option <= 4; ++option) {
    EXPECT_EQ(FromQt(Taken("UpPoyas", option).text()),
              Main.lblUpPoyasLength[option].Taken.Caption());
    EXPECT_EQ(FromQt(Taken("DownPoyas", option).text()),
              Main.lblDownPoyasLength[option].Taken.Caption());
    EXPECT_EQ(FromQt(Held("DownPoyas", option).text()),
              Main.lblDownPoyasLength[option].ByCaption.Caption());
  }
}

TEST_F(BracingLengths, FollowEveryKey) {
  TypeInto("txtLenOporn", "");
  QLineEdit& span = Edit("txtLengthF");
  span.setFocus();
  Empty(span);
  QTest::keyClicks(&span, "3");
  EXPECT_EQ(HeldOf("UpPoyas")[0], "3.00");
  QTest::keyClicks(&span, "6");
  EXPECT_EQ(HeldOf("UpPoyas")[0], "36.00");
  EXPECT_EQ(HeldOf("UpPoyas")[1], "18.00");
  PickIn("cmbPanelNum", "12");
  EXPECT_EQ(HeldOf("UpPoyas")[3], "3.00");
}

TEST_F(BracingLengths, TakeTheRoomOfALabel) {
  for (const char* span : {"36", "1234567"}) {
    TypeInto("txtLengthF", span);
    const QLabel& figure = Held("UpPoyas", 1);
    QLabel label(figure.text());
    label.setFont(figure.font());
    EXPECT_EQ(figure.sizeHint(), label.sizeHint()) << span;
    EXPECT_EQ(figure.minimumSizeHint(), label.minimumSizeHint()) << span;
  }
}

TEST_F(BracingLengths, AreADashWhereThereIsNoTruss) {
  TypeInto("txtLengthF", "abc");
  EXPECT_EQ(HeldOf("UpPoyas"), (Texts{"—", "—", "—", "—"}));
  EXPECT_EQ(FromQt(Taken("UpPoyas", 1).text()), "—");
}

TEST_F(BracingLengths, AreRedWhereTheCalculationTakesLess) {
  const QColor red = WarningColor(Window.palette());
  int reds = 0;
  for (int option = 1; option <= 4; ++option) {
    const bool less = Main.lblUpPoyasLength[option].Taken.ForeColor() == colorRed;
    EXPECT_EQ(Ink(Taken("UpPoyas", option)) == red, less) << option;
    EXPECT_NE(Ink(Held("UpPoyas", option)), red) << option;
    reds += less ? 1 : 0;
  }
  EXPECT_GT(reds, 0);
  EXPECT_LT(reds, 4);
  TypeInto("txtLengthF", "abc");
  EXPECT_NE(Ink(Taken("UpPoyas", 1)), red);
}

TEST_F(BracingLengths, StandRightAlignedInTheLineOfTheirOption) {
  for (const char* chord : {"UpPoyas", "DownPoyas"}) {
    const std::string caption =
        std::string(chord == std::string("UpPoyas") ? "Верхний" : "Нижний") + " пояс закреплен: ";
    const auto& every = FindAccessible<QAbstractButton>(Window, caption + "Все узлы");
    EXPECT_NEAR(Taken(chord, 4).geometry().center().y(), every.geometry().center().y(), 2);
    EXPECT_GT(Taken(chord, 4).geometry().left(), every.geometry().right());
    EXPECT_GT(Held(chord, 4).geometry().left(), Taken(chord, 4).geometry().right());
    for (int option = 1; option <= 4; ++option) {
      EXPECT_TRUE(Taken(chord, option).alignment() & Qt::AlignRight);
      EXPECT_EQ(Taken(chord, option).geometry().right(), Taken(chord, 1).geometry().right());
      EXPECT_LT(Taken(chord, option).font().pointSizeF(), every.font().pointSizeF());
      EXPECT_GE(Taken(chord, option).width(), Taken(chord, option).sizeHint().width());
    }
  }
}

TEST_F(BracingLengths, AreReadAloudWithTheirOption) {
  const auto& option = FindAccessible<QAbstractButton>(
      Window, "Верхний пояс закреплен: Крайние и посредине пролета");
  const std::string said = FromQt(option.accessibleDescription());
  EXPECT_NE(said.find("по подписи, м: 10.00"), std::string::npos) << said;
  TypeInto("txtLengthF", "30");
  EXPECT_NE(FromQt(option.accessibleDescription()).find("по подписи, м: 15.00"), std::string::npos);
}

TEST_F(BracingLengths, LeaveTheHintsAsTheyWere) {
  const auto& option = FindAccessible<QAbstractButton>(Window, "Нижний пояс закреплен: Все узлы");
  EXPECT_EQ(
      FromQt(option.toolTip()),
      "Влияет на устойчивость нижнего пояса из плоскости фермы\nРасчетная длина: весь пролет");
}

}  // namespace
}  // namespace trelonit::test

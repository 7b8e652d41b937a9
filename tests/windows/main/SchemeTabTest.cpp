#include <gtest/gtest.h>

#include "tests/windows/main/Screen.h"

namespace trelonit::test {
namespace {

class SchemeInputs : public ::testing::Test, public Screen {
 protected:
  void PressScheme(int scheme) { Press("imgTreloType" + std::to_string(scheme)); }
  QAbstractButton& Brace(const std::string& chord, const std::string& caption) {
    return FindAccessible<QAbstractButton>(Window, chord + " закреплен: " + caption);
  }
  QLabel& FindDeflectionLabel() {
    for (QLabel* label : Window.findChildren<QLabel*>()) {
      if (label->buddy() == &Edit("txtProgib")) {
        return *label;
      }
    }
    throw std::logic_error("no label of the deflection");
  }
};

TEST_F(SchemeInputs, ShowTheStartDefaults) {
  EXPECT_EQ(Edit("txtLengthF").text(), "20");
  EXPECT_EQ(Edit("txtHight").text(), "1.5");
  EXPECT_EQ(Edit("txtLenOporn").text(), "2");
  EXPECT_EQ(Combo("cmbPanelNum").currentText(), "10");
  EXPECT_EQ(Entries(Combo("cmbPanelNum")), Numbers(4, 30, 2));
  EXPECT_EQ(Combo("cmbLenlim").currentText(), "1 / 120");
  EXPECT_EQ(Combo("cmbLenlim").count(), 49);
  EXPECT_EQ(Hopt(), "Hopt = 2.00000");
  EXPECT_TRUE(Button("imgTreloType1").isChecked());
  EXPECT_TRUE(Brace("Верхний пояс", "Крайние и посредине пролета").isChecked());
  EXPECT_TRUE(Brace("Нижний пояс", "Крайние и посредине пролета").isChecked());
  EXPECT_FALSE(Button("chkProgib").isChecked());
}

TEST_F(SchemeInputs, TheDeflectionLooksAsIfItCouldNotBeWrittenInto) {
  Press("chkProgib");
  const auto ground = [&](const std::string& name) {
    return Edit(name).palette().color(QPalette::Base);
  };
  EXPECT_TRUE(Edit("txtProgib").isEnabled());
  EXPECT_EQ(ground("txtProgib"), Window.palette().color(QPalette::Window));
  EXPECT_NE(ground("txtProgib"), ground("txtHight"));
}

TEST_F(SchemeInputs, ReachTheModelOnTheWayForward) {
  TypeInto("txtLengthF", "24");
  TypeInto("txtHight", "2.25");
  TypeInto("txtLenOporn", "2.5");
  PickIn("cmbPanelNum", "12");
  GoTo(1);
  EXPECT_EQ(Main.Model.Accepted.LengthF, 24);
  EXPECT_EQ(Main.Model.Accepted.Hight, 2.25);
  EXPECT_EQ(Main.Model.Accepted.LenOporn, 2.5);
  EXPECT_EQ(Main.Model.Accepted.PanelNum, 12);
  EXPECT_EQ(Tabs().currentIndex(), 1);
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(SchemeInputs, FollowWhatTheCodeSets) {
  Main.txtLengthF.SetText("31");
  Main.txtHight.SetText("3");
  Main.txtLenOporn.SetText("");
  Main.cmbPanelNum.SetText("16");
  Main.optUpPoyas.Select(4);
  EXPECT_EQ(Edit("txtLengthF").text(), "31");
  EXPECT_EQ(Edit("txtHight").text(), "3");
  EXPECT_EQ(Edit("txtLenOporn").text(), "");
  EXPECT_EQ(Combo("cmbPanelNum").currentText(), "16");
  EXPECT_TRUE(Brace("Верхний пояс", "Все узлы").isChecked());
  EXPECT_FALSE(Brace("Верхний пояс", "Крайние и посредине пролета").isChecked());
}

TEST_F(SchemeInputs, AnEmptyEndPanelMeansEqualPanels) {
  TypeInto("txtLenOporn", "");
  GoTo(1);
  EXPECT_EQ(Main.Model.Accepted.LenOporn, 2);
}

TEST_F(SchemeInputs, CommaAndPointBothCount) {
  TypeInto("txtLengthF", "24,5");
  TypeInto("txtHight", "2.5");
  GoTo(1);
  EXPECT_EQ(Main.Model.Accepted.LengthF, 24.5);
  EXPECT_EQ(Main.Model.Accepted.Hight, 2.5);
}

TEST_F(SchemeInputs, RefuseAWrongSpanAtTheTabChange) {
  TypeInto("txtLengthF", "0");
  GoTo(1);
  EXPECT_EQ(Tabs().currentIndex(), 0);
  EXPECT_EQ(TakeMessages(), Messages{Stop(wrongGeometry)});
  EXPECT_EQ(Main.Model.Accepted.LengthF, 0) << "nothing was taken yet";
}

TEST_F(SchemeInputs, RefuseAWrongHeightOnTheWayToTheLastTab) {
  TypeInto("txtHight", "");
  GoTo(2);
  EXPECT_EQ(Tabs().currentIndex(), 0);
  EXPECT_EQ(TakeMessages(), Messages{Stop(wrongGeometry)});
}

TEST_F(SchemeInputs, WarnOfATrussThatIsTooHigh) {
  TypeInto("txtHight", "20");
  GoTo(1);
  EXPECT_EQ(TakeMessages(), Messages{Hint(tooHigh)});
  EXPECT_EQ(Tabs().currentIndex(), 1);
}

TEST_F(SchemeInputs, WarnOfSteepDiagonals) {
  TypeInto("txtHight", "4.41");
  GoTo(1);
  EXPECT_EQ(TakeMessages(), Messages{Hint(doubtfulProportions)});
  EXPECT_EQ(Main.Model.Accepted.Hight, 4.41);
}

TEST_F(SchemeInputs, CheckNothingOnTheWayBack) {
  GoTo(2);
  TypeInto("txtHight", "abc");
  GoTo(0);
  EXPECT_EQ(TakeMessages(), Messages());
  EXPECT_EQ(Tabs().currentIndex(), 0);
}

TEST_F(SchemeInputs, TheOptimalHeightFollowsPanelsSchemeAndAFinishedSpan) {
  Window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
  PickIn("cmbPanelNum", "8");
  EXPECT_EQ(Hopt(), "Hopt = 2.50000");
  TypeInto("txtLengthF", "24");
  EXPECT_EQ(Hopt(), "Hopt = 2.50000") << "until the box is left";
  QTest::keyClick(&Edit("txtLengthF"), Qt::Key_Tab);
  EXPECT_EQ(Hopt(), "Hopt = 3.00000");
  PressScheme(3);
  EXPECT_EQ(Hopt(), "Hopt = 12.00000");
}

TEST_F(SchemeInputs, ASchemeIsMarkedAndShown) {
  for (int scheme = 1; scheme <= 5; ++scheme) {
    PressScheme(scheme);
    EXPECT_EQ(Main.Model.Inputs.TreloType, scheme);
    EXPECT_EQ(Main.imgMain.Shown(), BitmapOf(static_cast<Integer>(100 + scheme)));
    for (int other = 1; other <= 10; ++other) {
      EXPECT_EQ(Button("imgTreloType" + std::to_string(other)).isChecked(), other == scheme);
    }
  }
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(SchemeInputs, AReservedSchemeFailsAtItsPicture) {
  for (int scheme = 6; scheme <= 10; ++scheme) {
    PressScheme(scheme);
    EXPECT_EQ(TakeMessages(), Messages{BitmapTail("imgTreloType_Click", 100 + scheme)});
    EXPECT_EQ(Main.Model.Inputs.TreloType, 1);
    EXPECT_FALSE(Button("imgTreloType" + std::to_string(scheme)).isChecked());
  }
}

TEST_F(SchemeInputs, TheLatticeHasAllPanelCountsAndNoEndPanelAndNoVerticals) {
  PressScheme(3);
  EXPECT_EQ(Entries(Combo("cmbPanelNum")), Numbers(2, 30));
  EXPECT_EQ(Combo("cmbPanelNum").currentText(), "2");
  EXPECT_FALSE(Edit("txtLenOporn").isEnabled());
  EXPECT_EQ(Edit("txtLenOporn").backgroundRole(), QPalette::Window);
  GoTo(1);
  EXPECT_FALSE(Button("optElementSection4").isVisible());
  EXPECT_FALSE(FindAccessible<QWidget>(Window, "Стойки: сечение").isVisible());
  EXPECT_FALSE(Find<QLabel>(Window, "lblProfilName4").isVisible());
  EXPECT_TRUE(Button("optElementSection5").isVisible());
}

TEST_F(SchemeInputs, LeavingTheLatticeBringsAllBack) {
  PressScheme(3);
  PressScheme(4);
  EXPECT_EQ(Entries(Combo("cmbPanelNum")), Numbers(4, 30, 2));
  EXPECT_EQ(Combo("cmbPanelNum").currentText(), "4");
  EXPECT_TRUE(Edit("txtLenOporn").isEnabled());
  EXPECT_EQ(Edit("txtLenOporn").backgroundRole(), QPalette::Base);
  GoTo(1);
  EXPECT_TRUE(Button("optElementSection4").isVisible());
  EXPECT_TRUE(FindAccessible<QWidget>(Window, "Стойки: сечение").isVisible());
  EXPECT_TRUE(Find<QLabel>(Window, "lblProfilName4").isVisible());
}

TEST_F(SchemeInputs, OtherSchemesKeepThePanelCount) {
  PickIn("cmbPanelNum", "14");
  PressScheme(2);
  EXPECT_EQ(Combo("cmbPanelNum").currentText(), "14");
}

TEST_F(SchemeInputs, ThePanelCountSizesTheLoads) {
  PickIn("cmbPanelNum", "6");
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce.UpperBound(), 6);
  PressScheme(2);
  EXPECT_EQ(Main.Model.Inputs.Loads.DwnPForce.UpperBound(), 4);
}

TEST_F(SchemeInputs, BracingIsStoredAtOnce) {
  const std::vector<std::string> captions{"Только крайние", "Крайние и посредине пролета",
                                          "Через один", "Все узлы"};
  for (const Integer number : std::vector<Integer>{1, 3, 4, 2}) {
    Click(Brace("Верхний пояс", captions[static_cast<std::size_t>(number - 1)]));
    EXPECT_EQ(Main.Model.Inputs.UpPoyasBrace, number);
    EXPECT_EQ(Main.optUpPoyas.Selected(), number);
  }
  EXPECT_EQ(Main.Model.Inputs.DownPoyasBrace, 2);
  for (const Integer number : std::vector<Integer>{1, 3, 4, 2}) {
    Click(Brace("Нижний пояс", captions[static_cast<std::size_t>(number - 1)]));
    EXPECT_EQ(Main.Model.Inputs.DownPoyasBrace, number);
  }
}

TEST_F(SchemeInputs, TheDeflectionBoxesFollowTheirCheckBox) {
  const auto enabled = [&] {
    return std::vector<bool>{Edit("txtProgib").isEnabled(), Combo("cmbLenlim").isEnabled(),
                             Button("optBP").isEnabled(), Button("optNP").isEnabled()};
  };
  QLabel& label = FindDeflectionLabel();
  EXPECT_EQ(enabled(), std::vector<bool>(4, false));
  EXPECT_FALSE(label.isVisible());
  EXPECT_EQ(Combo("cmbLenlim").backgroundRole(), QPalette::Window);
  Press("chkProgib");
  EXPECT_EQ(enabled(), std::vector<bool>(4, true));
  EXPECT_TRUE(label.isVisible());
  EXPECT_EQ(Combo("cmbLenlim").backgroundRole(), QPalette::Base);
  Press("chkProgib");
  EXPECT_EQ(enabled(), std::vector<bool>(4, false));
  EXPECT_FALSE(label.isVisible());
}

TEST_F(SchemeInputs, OneChordCountsForTheDeflection) {
  Press("chkProgib");
  EXPECT_TRUE(Button("optBP").isChecked());
  Press("optNP");
  EXPECT_FALSE(Button("optBP").isChecked());
  EXPECT_TRUE(Main.optNP.Value());
  EXPECT_FALSE(Main.optBP.Value());
  Press("optBP");
  EXPECT_FALSE(Button("optNP").isChecked());
}

TEST_F(SchemeInputs, WhatTheDeflectionDependsOnDropsIt) {
  Press("chkProgib");
  const auto drops = [&](const char* what, auto act) {
    Main.txtProgib.SetText("0.01234");
    EXPECT_EQ(Edit("txtProgib").text(), "0.01234");
    act();
    EXPECT_EQ(Edit("txtProgib").text(), "") << what;
  };
  drops("span", [&] { QTest::keyClick(&Edit("txtLengthF"), Qt::Key_1); });
  drops("height", [&] { QTest::keyClick(&Edit("txtHight"), Qt::Key_1); });
  drops("end panel", [&] { QTest::keyClick(&Edit("txtLenOporn"), Qt::Key_1); });
  drops("panels", [&] { PickIn("cmbPanelNum", "20"); });
  drops("scheme", [&] { PressScheme(2); });
  drops("lower chord", [&] { Press("optNP"); });
  drops("upper chord", [&] { Press("optBP"); });
}

TEST_F(SchemeInputs, TheDeflectionIsNotForWriting) {
  Press("chkProgib");
  QTest::keyClicks(&Edit("txtProgib"), "5");
  EXPECT_EQ(Main.txtProgib.Text(), "");
}

TEST_F(SchemeInputs, SchemesThatAreNotCalculatedLookSo) {
  // Those that are stand on the ground of what can be pressed, with lines in the colour of text.
  const auto ground = [&](int scheme) {
    const QAbstractButton& tile = Button("imgTreloType" + std::to_string(scheme));
    return const_cast<QAbstractButton&>(tile).grab().toImage().pixelColor(tile.width() / 2, 6);
  };
  for (int scheme = 1; scheme <= 10; ++scheme) {
    EXPECT_EQ(ground(scheme),
              Window.palette().color(scheme <= 4 ? QPalette::Base : QPalette::Window))
        << scheme;
    EXPECT_TRUE(Button("imgTreloType" + std::to_string(scheme)).isEnabled()) << scheme;
  }
  PressScheme(5);
  EXPECT_EQ(Main.Model.Inputs.TreloType, 5);
}

TEST_F(SchemeInputs, ThePicturesOfTheFirstPaintAreThoseOfALaterOne) {
  const auto all = [&] {
    std::vector<QImage> pictures;
    for (int scheme = 1; scheme <= 10; ++scheme) {
      pictures.push_back(Button("imgTreloType" + std::to_string(scheme)).grab().toImage());
    }
    pictures.push_back(Find<QWidget>(Window, "imgMain").grab().toImage());
    pictures.push_back(Find<QWidget>(Window, "TrussToScale").grab().toImage());
    return pictures;
  };
  QApplication::processEvents();
  const std::vector<QImage> first = all();
  // Colours that come and go have everything painted again.
  Window.setPalette(QPalette(QColor(49, 54, 59), QColor(42, 46, 50)));
  EXPECT_TRUE(all() != first);
  Window.setPalette({});
  EXPECT_TRUE(all() == first);
}

TEST_F(SchemeInputs, ListsInTheColumnAreAsHighAndAtLeastAsWideAsTheToolkitsOwn) {
  for (const auto& [name, letters] : {std::pair("cmbPanelNum", 2), std::pair("cmbLenlim", 7)}) {
    QComboBox plain;
    plain.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    plain.setMinimumContentsLength(letters);
    plain.setIconSize({1, 1});
    EXPECT_EQ(Combo(name).sizeHint(), plain.sizeHint()) << name;
    EXPECT_EQ(Combo(name).minimumSizeHint(), plain.minimumSizeHint()) << name;
  }
}

}  // namespace
}  // namespace trelonit::test

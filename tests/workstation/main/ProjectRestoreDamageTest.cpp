#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/workstation/design/ProjectLines.h"

namespace trelonit::test {
namespace {

class DamagedRestore : public ::testing::Test {
 protected:
  bool Restore(const ProjectValues& values) {
    return RestoreBytes(desk, form, ProjectBytes(values));
  }
  bool RestoreWith(std::size_t line, const std::string& text) {
    return Restore(With(good, line, text));
  }
  /// What the form holds now.
  ProjectValues SavedAgain() { return ValuesOf(SavedBytes(desk, form)); }

  StartedDesk desk;
  frmMain& form = desk.Main;
  /// A project that differs from the start in every group of inputs.
  const ProjectValues good = With(
      With(With(With(StartUpValues(), lineLengthF, "24"), lineUpPForce, "0;0;0;0;0;2.5;0;0;0;0;0"),
           lineDinloadOn, "1"),
      lineUpPoyas, "5");
};

TEST_F(DamagedRestore, WithFiftyTwoLinesIsRestoredWhole) {
  ProjectValues values = good;
  values.pop_back();
  EXPECT_TRUE(Restore(values));
  EXPECT_EQ(desk.TakeMessages(), Messages{LineCountMessage()});
  EXPECT_EQ(SavedAgain(), good);
}

TEST_F(DamagedRestore, WithAnotherFirstLineIsRestoredWhole) {
  EXPECT_TRUE(RestoreWith(lineHeader, "Trelo"));
  EXPECT_EQ(desk.TakeMessages(), Messages{HeaderMessage()});
  EXPECT_EQ(SavedAgain(), good);
}

TEST_F(DamagedRestore, WithMoreLinesIsRestoredWithoutAWord) {
  ProjectValues values = good;
  values.push_back("more");
  EXPECT_TRUE(Restore(values));
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_EQ(SavedAgain(), good);
}

TEST_F(DamagedRestore, WithoutASchemePictureKeepsTheScheme) {
  for (const int scheme : {0, 6, 10, 11}) {
    form.imgTreloType_Click(4);
    EXPECT_TRUE(RestoreWith(lineTreloType, std::to_string(scheme))) << scheme;
    EXPECT_EQ(desk.TakeMessages(), Messages{BitmapTail("imgTreloType_Click", 100 + scheme)});
    EXPECT_EQ(form.Model.Inputs.TreloType, 4);
    EXPECT_EQ(form.txtLengthF.Text(), "24");
  }
}

TEST_F(DamagedRestore, StopsAtABracingThatThereIsNot) {
  for (const std::size_t line : {lineUpPoyasBrace, lineDownPoyasBrace}) {
    for (const char* brace : {"0", "5", "-1", "abc"}) {
      form.txtLengthF.SetText("33");
      EXPECT_FALSE(RestoreWith(line, brace)) << brace;
      EXPECT_EQ(desk.TakeMessages(), Messages{SubscriptTail("Restore comand")}) << brace;
      EXPECT_EQ(form.txtLengthF.Text(), "33");
    }
  }
  EXPECT_TRUE(Restore(good));
  EXPECT_EQ(SavedAgain(), good);
}

TEST_F(DamagedRestore, GoesOnAfterAGroupThatThereIsNot) {
  for (const char* group : {"0", "6", "-1", "abc"}) {
    EXPECT_TRUE(RestoreWith(lineActiveGroup, group)) << group;
    EXPECT_EQ(desk.TakeMessages(), Messages{SubscriptTail("optElementSection_Click")}) << group;
    EXPECT_EQ(SavedAgain(), good);
  }
}

TEST_F(DamagedRestore, GoesOnAfterASectionOutsideTheCatalogue) {
  for (const char* standard : {"0", "-1", "23", "32767"}) {
    EXPECT_TRUE(RestoreWith(lineUpPoyas + 1, standard)) << standard;
    // The inputs of the shown group cannot follow it.
    EXPECT_EQ(desk.TakeMessages(), Messages{SubscriptTail("optElementSection_Click")}) << standard;
    EXPECT_EQ(form.Model.Inputs.ElementSection[sectionUpPoyas].Profile, ProfileRec());
    EXPECT_EQ(form.lblProfilName[optionUpPoyas].Caption(), "");
    EXPECT_TRUE(form.chkDinloadEnable.Checked());
    EXPECT_EQ(form.Model.Inputs.Loads.UpPForce[5], 2.5);
  }
}

TEST_F(DamagedRestore, SaysNothingOfASectionOutsideTheCatalogueThatIsNotShown) {
  EXPECT_TRUE(RestoreWith(lineStoyka, "30000"));
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_EQ(form.Model.Inputs.ElementSection[sectionStoyka].Profile, ProfileRec());
  EXPECT_EQ(form.lblProfilName[optionStoyka].Caption(), "");
}

TEST_F(DamagedRestore, StopsAtTheFirstPictureOfALayoutThatThereIsNot) {
  // The pictures come before the inputs of the shown group, so these are not touched.
  for (const char* layout : {"0", "12", "-1", "abc"}) {
    EXPECT_FALSE(RestoreWith(lineUpPoyas + 4, layout)) << layout;
    EXPECT_EQ(desk.TakeMessages(), Messages{SubscriptTail("Restore comand")}) << layout;
  }
}

// Wherever it stops: at the bracing the geometry is still the old one, at a picture the new.
TEST_F(DamagedRestore, ThatStopsIsShownAndCalculatedAsItIsShown) {
  struct Stop {
    std::size_t Line;
    const char* Text;
    double Span;
  };
  for (const Stop& stop : {Stop{lineUpPoyasBrace, "7", 20}, Stop{lineUpPoyas + 4, "12", 24}}) {
    StartedDesk other;
    frmMain& main = other.Main;
    main.tabMain.SetTab(2);
    other.TakeMessages();
    EXPECT_FALSE(RestoreBytes(other, main, ProjectBytes(With(good, stop.Line, stop.Text))));
    EXPECT_EQ(other.TakeMessages(), Messages{SubscriptTail("Restore comand")});
    EXPECT_EQ(main.tabMain.Tab(), 0);
    EXPECT_EQ(main.txtLengthF.Text(), std::to_string(static_cast<int>(stop.Span)));
    for (Long option = 1; option <= groupCount; ++option) {
      EXPECT_EQ(main.lblProfilName[option].Caption(),
                main.Model.Inputs.ElementSection[PlaceOfOption(option)].Profile.Name.Trimmed());
    }
    main.mnuCalc_Click();
    EXPECT_EQ(main.Model.Last.TreloData.LengthF, stop.Span);
  }
}

TEST_F(DamagedRestore, OfNothingLeavesAUsableForm) {
  for (const std::string& bytes :
       {std::string(), std::string("abc"), std::string(100, '\n'), std::string(100, '\0')}) {
    form.txtLengthF.SetText("33");
    EXPECT_FALSE(RestoreBytes(desk, form, bytes));
    const Messages shown = desk.TakeMessages();
    ASSERT_GE(shown.size(), 3U);
    EXPECT_EQ(shown.at(shown.size() - 3), HeaderMessage());
    EXPECT_EQ(shown.at(shown.size() - 2), BitmapTail("imgTreloType_Click", 100));
    EXPECT_EQ(shown.back(), SubscriptTail("Restore comand"));
    EXPECT_EQ(form.txtLengthF.Text(), "33");
    EXPECT_TRUE(Restore(good));
    EXPECT_EQ(desk.TakeMessages(), Messages());
    EXPECT_EQ(SavedAgain(), good);
  }
}

TEST_F(DamagedRestore, OfAFileThatMayNotBeReadTellsTheReasonFirst) {
  desk.Outside.Files.Refused[projectPath] = ErrorNumber::PermissionDenied;
  EXPECT_FALSE(Restore(good));
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{OpenFailure("Permission denied"), LineCountMessage(), HeaderMessage(),
                      BitmapTail("imgTreloType_Click", 100), SubscriptTail("Restore comand")}));
}

TEST_F(DamagedRestore, CutAnywhereNeverLeavesAFormThatCannotTakeAGoodOne) {
  for (std::size_t count = 1; count < good.size(); ++count) {
    ProjectValues values = good;
    values.resize(count);
    Restore(values);
    const Messages shown = desk.TakeMessages();
    ASSERT_FALSE(shown.empty());
    EXPECT_EQ(shown.front(), LineCountMessage()) << count;
    EXPECT_TRUE(Restore(good)) << count;
    EXPECT_EQ(desk.TakeMessages(), Messages()) << count;
    // The limit and the chord of the deflection come back only with the deflection itself.
    ProjectValues again = SavedAgain();
    again.at(lineLenLim - 1) = good.at(lineLenLim - 1);
    again.at(lineProgibUpper - 1) = good.at(lineProgibUpper - 1);
    again.at(lineAllPanelsOn - 1) = good.at(lineAllPanelsOn - 1);
    EXPECT_EQ(again, good) << count;
  }
}

TEST_F(DamagedRestore, OfANameWithAQuoteLosesTheRestOfTheName) {
  form.lblStillName.SetCaption("Сталь \"Вст3\" лист");
  const std::string bytes = SavedBytes(desk, form);
  EXPECT_NE(bytes.find(EncodeCodePage1251("\r\n\"Сталь \"Вст3\" лист\"\r\n")), std::string::npos);
  EXPECT_TRUE(RestoreBytes(desk, form, bytes));
  EXPECT_EQ(form.lblStillName.Caption(), "Сталь ");
  EXPECT_EQ(form.txtRy.Text(), "240");
}

}  // namespace
}  // namespace trelonit::test

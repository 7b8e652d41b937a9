#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "tests/workstation/design/ProjectLines.h"

namespace trelonit::test {
namespace {

using Changes = std::vector<std::pair<std::size_t, std::string>>;

ProjectValues Changed(const Changes& changes) {
  ProjectValues values = StartUpValues();
  for (const auto& [line, text] : changes) {
    values.at(line - 1) = text;
  }
  return values;
}

Message NotFound() {
  return {"", "Указаный файл не найден ! Восстановление отменено !", MessageStyle::Plain};
}

class RestoreCommand : public ::testing::Test {
 protected:
  bool Restore(const ProjectValues& values) {
    return RestoreBytes(desk, form, ProjectBytes(values));
  }
  bool RestoreNamed(const std::string& name) {
    desk.Outside.Dialogs.Names = {name};
    return form.Restore_Click();
  }

  StartedDesk desk;
  frmMain& form = desk.Main;
};

TEST_F(RestoreCommand, AsksForAFileUnderTheTitleOfSaving) {
  EXPECT_TRUE(Restore(StartUpValues()));
  ASSERT_EQ(desk.Outside.Dialogs.Requests.size(), 1U);
  const FileDialogRequest& request = desk.Outside.Dialogs.Requests.front();
  EXPECT_EQ(request.Title, "Укажите имя нового файла сохранения параметров");
  EXPECT_EQ(request.Extension, "tsav");
  EXPECT_EQ(request.Filter, "trelo save files (*.tsav)|*.tsav");
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(RestoreCommand, IsCancelledWithoutAnExistingFile) {
  form.txtLengthF.SetText("33");
  // Three characters are no name, although such a file is there.
  desk.Outside.Files.Content["a.t"] = ProjectBytes(StartUpValues());
  desk.Outside.Files.Content["фер"] = ProjectBytes(StartUpValues());
  for (const char* name : {"", " ", "a.t", "фер", "/projects/missing.tsav"}) {
    EXPECT_FALSE(RestoreNamed(name)) << name;
    EXPECT_EQ(desk.TakeMessages(), Messages{NotFound()}) << name;
  }
  EXPECT_EQ(form.txtLengthF.Text(), "33");
}

TEST_F(RestoreCommand, IsCancelledWhereTheFileSystemCannotTellWhatIsThere) {
  desk.Outside.Files.Content[projectPath] = ProjectBytes(StartUpValues());
  desk.Outside.Files.NoFileSystem = true;
  EXPECT_FALSE(RestoreNamed(projectPath));
  const Message notChecked{"IsThisFileExists",
                           "Can't create Scripting.FileSystemObject object ! File not checked !",
                           MessageStyle::Critical};
  EXPECT_EQ(desk.TakeMessages(), (Messages{notChecked, NotFound()}));
}

TEST_F(RestoreCommand, TakesAProjectThatIsHandedOverWithoutADialog) {
  desk.Outside.Files.Content[projectPath] = ProjectBytes(Changed({{lineLengthF, "33"}}));
  EXPECT_TRUE(form.OpenProject(projectPath));
  EXPECT_EQ(form.txtLengthF.Text(), "33");
  EXPECT_TRUE(desk.Outside.Dialogs.Requests.empty());
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(RestoreCommand, TellsThatAHandedOverFileIsNotThere) {
  form.txtLengthF.SetText("33");
  EXPECT_FALSE(form.OpenProject("/projects/missing.tsav"));
  EXPECT_EQ(form.txtLengthF.Text(), "33");
  EXPECT_EQ(desk.TakeMessages(), Messages{NotFound()});
}

TEST_F(RestoreCommand, TakesANameOfFourCharacters) {
  desk.Outside.Files.Content["фер1"] = ProjectBytes(Changed({{lineLengthF, "33"}}));
  EXPECT_TRUE(RestoreNamed("фер1"));
  EXPECT_EQ(form.txtLengthF.Text(), "33");
}

TEST_F(RestoreCommand, FillsTheInputs) {
  EXPECT_TRUE(Restore(Changed({{lineTreloType, "2"},
                               {lineUpPoyasBrace, "4"},
                               {lineDownPoyasBrace, "1"},
                               {lineLengthF, "18.25"},
                               {lineHight, "2.5"},
                               {lineLenOporn, "1.75"},
                               {linePanelNum, "12"},
                               {lineSteelName, "Сталь 09Г2С"},
                               {lineRy, "315.5"},
                               {lineDensity, "7.8"},
                               {lineModulYung, "206000"},
                               {lineLimitFlex, "140"},
                               {lineNadegnost, "0.95"},
                               {lineUsloviyaRabot, "1.1"},
                               {lineDinloadOn, "1"},
                               {lineOwnWeightOn, "1"}})));
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_EQ(form.Model.Inputs.TreloType, 2);
  EXPECT_EQ(MarkedOf(form.imgTreloType), std::vector<Long>{2});
  EXPECT_EQ(form.imgMain.Shown(), BitmapOf(102));
  EXPECT_EQ(form.Model.Inputs.UpPoyasBrace, 4);
  EXPECT_EQ(form.optUpPoyas.Selected(), 4);
  EXPECT_EQ(form.Model.Inputs.DownPoyasBrace, 1);
  EXPECT_EQ(form.optDownPoyas.Selected(), 1);
  EXPECT_EQ(form.txtLengthF.Text(), "18.25");
  EXPECT_EQ(form.txtHight.Text(), "2.5");
  EXPECT_EQ(form.txtLenOporn.Text(), "1.75");
  EXPECT_EQ(form.cmbPanelNum.Text(), "12");
  EXPECT_EQ(form.StatusBarMain[6].Caption(), "Hopt = 1.52083");
  EXPECT_EQ(form.lblStillName.Caption(), "Сталь 09Г2С");
  EXPECT_EQ(form.txtRy.Text(), "315.5");
  EXPECT_EQ(form.Steel.DensitSteel, "7.8");
  EXPECT_EQ(form.Steel.ModulYung, "206000");
  EXPECT_EQ(form.Steel.LimitFlex, "140");
  EXPECT_EQ(form.txtNadegnost.Text(), "0.95");
  EXPECT_EQ(form.txtUsloviyaRabot.Text(), "1.1");
  EXPECT_TRUE(form.chkDinloadEnable.Checked());
  EXPECT_TRUE(form.chkOwnWeight.Checked());
}

TEST_F(RestoreCommand, DropsWhatTheInputsHeld) {
  form.chkDinloadEnable.SetChecked(true);
  form.chkOwnWeight.SetChecked(true);
  form.chkProgib.SetChecked(true);
  form.txtProgib.SetText("0.012");
  form.optUpPoyas.Select(4);
  form.tabMain.SetTab(2);
  AddForce(form, 3, "5");
  EXPECT_TRUE(Restore(StartUpValues()));
  EXPECT_FALSE(form.chkDinloadEnable.Checked());
  EXPECT_FALSE(form.chkOwnWeight.Checked());
  EXPECT_FALSE(form.chkProgib.Checked());
  EXPECT_FALSE(form.cmbLenlim.Enabled());
  EXPECT_EQ(form.txtProgib.Text(), "");
  EXPECT_EQ(form.optUpPoyas.Selected(), 2);
  EXPECT_EQ(Values(form.Model.Inputs.Loads.UpPForce), Zeros(11));
}

TEST_F(RestoreCommand, GoesBackToTheFirstTabSoThatTheGeometryOfTheFileIsTaken) {
  form.tabMain.SetTab(2);
  ASSERT_EQ(form.Model.Accepted.LengthF, 20);
  EXPECT_TRUE(Restore(Changed({{lineLengthF, "24"}, {lineHight, "2.5"}})));
  EXPECT_EQ(form.tabMain.Tab(), 0);
  form.tabMain.SetTab(2);
  EXPECT_EQ(form.Model.Accepted.LengthF, 24);
  EXPECT_EQ(form.Model.Accepted.Hight, 2.5);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(RestoreCommand, TakesTheFallbackOfWhatIsNotPositive) {
  for (const char* text : {"0", "-1", "abc", ""}) {
    form.txtLenOporn.SetText("3");
    Changes changes;
    for (const std::size_t line :
         {lineLengthF, lineHight, lineLenOporn, linePanelNum, lineRy, lineDensity, lineModulYung,
          lineLimitFlex, lineNadegnost, lineUsloviyaRabot}) {
      changes.emplace_back(line, text);
    }
    EXPECT_TRUE(Restore(Changed(changes)));
    EXPECT_EQ(form.txtLengthF.Text(), "20") << text;
    EXPECT_EQ(form.txtHight.Text(), "1.5") << text;
    EXPECT_EQ(form.cmbPanelNum.Text(), "12") << text;
    EXPECT_EQ(form.txtLenOporn.Text(), "") << text;
    EXPECT_EQ(form.txtRy.Text(), "240") << text;
    EXPECT_EQ(form.Steel.ModulYung, "210000") << text;
    EXPECT_EQ(form.Steel.DensitSteel, "7.850") << text;
    EXPECT_EQ(form.txtNadegnost.Text(), "1") << text;
    EXPECT_EQ(form.txtUsloviyaRabot.Text(), "0.9") << text;
    EXPECT_EQ(form.Steel.LimitFlex, "150") << text;
    // A Latin C, then Cyrillic letters.
    EXPECT_EQ(form.lblStillName.Caption(),
              "\x43"
              "таль Вст3")
        << text;
    EXPECT_EQ(desk.TakeMessages(), Messages());
  }
}

TEST_F(RestoreCommand, TakesTheFallbackTextsAsTheyStandAlsoUnderAComma) {
  StartedDesk other(CommaLocale());
  EXPECT_TRUE(RestoreBytes(
      other, other.Main,
      ProjectBytes(Changed({{lineHight, "0"}, {lineDensity, "0"}, {lineUsloviyaRabot, "0"}}))));
  EXPECT_EQ(other.Main.txtHight.Text(), "1.5");
  EXPECT_EQ(other.Main.Steel.DensitSteel, "7.850");
  EXPECT_EQ(other.Main.txtUsloviyaRabot.Text(), "0.9");
}

TEST_F(RestoreCommand, TakesAPanelCountAboveOne) {
  Restore(Changed({{linePanelNum, "1"}}));
  EXPECT_EQ(form.cmbPanelNum.Text(), "12");
  Restore(Changed({{lineTreloType, "3"}, {linePanelNum, "2"}}));
  EXPECT_EQ(form.cmbPanelNum.Text(), "2");
}

TEST_F(RestoreCommand, KeepsTheSteelNameBesideAPositiveStrength) {
  Restore(Changed({{lineSteelName, ""}, {lineRy, "1"}}));
  EXPECT_EQ(form.lblStillName.Caption(), "");
}

TEST_F(RestoreCommand, TakesTheDeflectionLimitOnlyWithTheDeflection) {
  Choose(form.cmbLenlim, "1 / 500");
  form.optBP.SetValue(false);
  form.optNP.SetValue(true);
  Restore(Changed({{lineProgibOn, "0"}, {lineLenLim, "1 / 250"}, {lineProgibUpper, "1"}}));
  EXPECT_EQ(form.cmbLenlim.Text(), "1 / 500");
  EXPECT_FALSE(form.optBP.Value());
  EXPECT_TRUE(form.optNP.Value());
  Restore(Changed({{lineProgibOn, "1"}, {lineLenLim, "1 / 250"}, {lineProgibUpper, "1"}}));
  EXPECT_TRUE(form.chkProgib.Checked());
  EXPECT_TRUE(form.cmbLenlim.Enabled());
  EXPECT_EQ(form.cmbLenlim.Text(), "1 / 250");
  EXPECT_TRUE(form.optBP.Value());
  EXPECT_FALSE(form.optNP.Value());
  Restore(Changed({{lineProgibOn, "1"}, {lineLenLim, "1 / 120"}, {lineProgibUpper, "0"}}));
  EXPECT_EQ(form.cmbLenlim.Text(), "1 / 120");
  EXPECT_FALSE(form.optBP.Value());
  EXPECT_TRUE(form.optNP.Value());
}

/// Another section in each group. In the order of the file: an angle, two angles, a channel, a
/// beam and a round tube.
ProjectValues FiveSections(const std::string& activeGroup) {
  const std::vector<std::pair<std::size_t, std::vector<std::string>>> sections{
      {lineUpPoyas, {"3", "1", "0", "False", "1"}},
      {lineDwnPoyas, {"4", "2", "12.5", "True", "2"}},
      {lineOpornRaskos, {"5", "3", "0", "False", "5"}},
      {lineRaskos, {"6", "5", "0", "False", "6"}},
      {lineStoyka, {"7", "14", "0", "False", "11"}}};
  Changes changes{{lineActiveGroup, activeGroup}};
  for (const auto& [first, values] : sections) {
    for (std::size_t line = 0; line < values.size(); ++line) {
      changes.emplace_back(first + line, values[line]);
    }
  }
  return Changed(changes);
}

TEST_F(RestoreCommand, PutsTheSectionsInTheirPlaces) {
  for (const char* active : {"1", "2", "3", "4", "5"}) {
    EXPECT_TRUE(Restore(FiveSections(active)));
    EXPECT_EQ(desk.TakeMessages(), Messages()) << active;
    const auto section = [this](Long size, Long standard, Long layout) {
      return SectionRec{.TypeIdx = standard,
                        .SizeIdx = size,
                        .Profile = form.Model.ProfileTypes[standard].Rec[size],
                        .Layout = layout};
    };
    SectionRec pair = section(4, 2, 2);
    pair.Paired = true;
    pair.Gdist = 12.5;
    const SectionArray& sections = form.Model.Inputs.ElementSection;
    EXPECT_EQ(Described(sections[sectionUpPoyas]), Described(section(3, 1, 1))) << active;
    EXPECT_EQ(Described(sections[sectionDwnPoyas]), Described(pair)) << active;
    EXPECT_EQ(Described(sections[sectionOpornRaskos]), Described(section(5, 3, 5))) << active;
    EXPECT_EQ(Described(sections[sectionRaskos]), Described(section(6, 5, 6))) << active;
    EXPECT_EQ(Described(sections[sectionStoyka]), Described(section(7, 14, 11))) << active;
  }
}

TEST_F(RestoreCommand, NamesAndShowsEachGroupAtItsOption) {
  for (const char* active : {"1", "4", "5"}) {
    Restore(FiveSections(active));
    EXPECT_EQ(form.lblProfilName[optionUpPoyas].Caption(), SizeName(form, 1, 3)) << active;
    EXPECT_EQ(form.lblProfilName[optionDwnPoyas].Caption(), SizeName(form, 2, 4)) << active;
    EXPECT_EQ(form.lblProfilName[optionRaskos].Caption(), SizeName(form, 5, 6)) << active;
    EXPECT_EQ(form.lblProfilName[optionStoyka].Caption(), SizeName(form, 14, 7)) << active;
    EXPECT_EQ(form.lblProfilName[optionOpornRaskos].Caption(), SizeName(form, 3, 5)) << active;
    const std::vector<std::pair<Long, Long>> layouts{{optionUpPoyas, 1},
                                                     {optionDwnPoyas, 2},
                                                     {optionRaskos, 6},
                                                     {optionStoyka, 11},
                                                     {optionOpornRaskos, 5}};
    for (const auto& [option, layout] : layouts) {
      EXPECT_EQ(form.imgProfileSec[option].Shown(), form.imgProfileSecSelect[layout].Shown())
          << active << ' ' << option;
    }
  }
}

TEST_F(RestoreCommand, ShowsTheGroupOfTheFileWhileTheOptionStays) {
  form.optElementSection.Select(optionOpornRaskos);
  EXPECT_TRUE(Restore(FiveSections("2")));
  EXPECT_EQ(form.optElementSection.Selected(), optionOpornRaskos);
  EXPECT_EQ(form.linDownPoyas.BorderColor(), colorRed);
  EXPECT_EQ(form.linOpornRaskos.BorderColor(), colorBlack);
  EXPECT_EQ(MarkedOf(form.imgProfileSecSelect), std::vector<Long>{2});
  EXPECT_EQ(form.imgProfView.Shown(), BitmapOf(205));
  EXPECT_EQ(form.cmbTypeProfile.Text(), StandardName(form, 2));
  EXPECT_EQ(form.cmbSectType.Text(), SizeName(form, 2, 4));
  EXPECT_TRUE(form.cmbGdist.Enabled());
  EXPECT_EQ(form.cmbGdist.Text(), "12.5");
}

TEST_F(RestoreCommand, MarksTheLoadToolOfTheFile) {
  EXPECT_TRUE(Restore(Changed({{linePForceTool, "0"}, {lineAllPanelsOn, "1"}})));
  EXPECT_FALSE(form.imgPForce.Marked());
  EXPECT_TRUE(form.imgDistForce.Marked());
  EXPECT_TRUE(form.chkAllPanels.Checked());
  EXPECT_EQ(form.cmbKnotNum.List(), Numbers(0, 9));
  // With the nodal tool the box of all panels is left as it was.
  EXPECT_TRUE(Restore(Changed({{linePForceTool, "1"}, {lineAllPanelsOn, "0"}})));
  EXPECT_TRUE(form.imgPForce.Marked());
  EXPECT_FALSE(form.imgDistForce.Marked());
  EXPECT_TRUE(form.chkAllPanels.Checked());
  EXPECT_EQ(form.cmbKnotNum.List(), Numbers(0, 10));
  EXPECT_TRUE(Restore(Changed({{linePForceTool, "0"}, {lineAllPanelsOn, "0"}})));
  EXPECT_FALSE(form.chkAllPanels.Checked());
  EXPECT_TRUE(Restore(Changed({{linePForceTool, "-1"}})));
  EXPECT_TRUE(form.imgPForce.Marked());
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(RestoreCommand, ShowsTheLoadsOfTheUpperChord) {
  form.tabMain.SetTab(2);
  form.tglDwnPoyas.SetValue(true);
  EXPECT_TRUE(Restore(Changed({{linePanelNum, "4"},
                               {lineUpPForce, "0;0;2.5;0;0"},
                               {lineUpDistForce, "0;0;0;-0.5"},
                               {lineDwnPForce, "7;0;0;0;0"},
                               {lineDwnDistForce, "0;0;0;0"}})));
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_TRUE(form.tglUpPoyas.Value());
  EXPECT_FALSE(form.tglDwnPoyas.Value());
  EXPECT_EQ(Values(form.Model.Inputs.Loads.UpPForce), (std::vector<double>{0, 0, 2.5, 0, 0}));
  EXPECT_EQ(Values(form.Model.Inputs.Loads.UpDistForce), (std::vector<double>{0, 0, 0, -0.5}));
  EXPECT_EQ(Values(form.Model.Inputs.Loads.DwnPForce), (std::vector<double>{7, 0, 0, 0, 0}));
  EXPECT_EQ(Values(form.Model.Inputs.Loads.DwnDistForce), Zeros(4));
  EXPECT_TRUE(form.Preview.Up.lblP[2].Visible);
  EXPECT_EQ(form.Preview.Up.lblP[2].Caption, "2.5");
  EXPECT_FALSE(form.Preview.Up.lblP[1].Visible);
  EXPECT_TRUE(form.Preview.Up.lblQ[3].Visible);
  EXPECT_FALSE(form.Preview.Dwn.lblP[0].Visible);
}

TEST_F(RestoreCommand, ShowsMorePanelsThanBeforeWhileTheLowerChordIsOnDisplay) {
  Choose(form.cmbPanelNum, "4");
  form.tabMain.SetTab(2);
  form.tglDwnPoyas.SetValue(true);
  EXPECT_TRUE(Restore(Changed({{lineUpPForce, "0;0;0;0;0;0;0;0;0;0;2.5"}})));
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_TRUE(form.tglUpPoyas.Value());
  EXPECT_FALSE(form.tglDwnPoyas.Value());
  EXPECT_EQ(form.Preview.Up.lblP.UpperBound(), 10);
  EXPECT_TRUE(form.Preview.Up.lblP[10].Visible);
}

TEST_F(RestoreCommand, KeepsTheBoundsThatTheFileGaveTheLoads) {
  Restore(Changed({{lineUpPForce, "1;2;3"},
                   {lineUpDistForce, "4"},
                   {lineDwnPForce, "1;2;3;4;5;6;7;8;9;10;11;12;13;14"},
                   {lineDwnDistForce, ""}}));
  EXPECT_EQ(Values(form.Model.Inputs.Loads.UpPForce), (std::vector<double>{1, 2, 3}));
  EXPECT_EQ(Values(form.Model.Inputs.Loads.UpDistForce), std::vector<double>{4});
  EXPECT_EQ(form.Model.Inputs.Loads.DwnPForce.UpperBound(), 13);
  EXPECT_EQ(Values(form.Model.Inputs.Loads.DwnDistForce), Zeros(1));
}

TEST_F(RestoreCommand, GoesToSchemeThreeAndBack) {
  Restore(FiveSections("1"));
  const SectionRec verticals = form.Model.Inputs.ElementSection[sectionStoyka];
  ProjectValues lattice = FiveSections("1");
  lattice.at(lineTreloType - 1) = "3";
  lattice.at(linePanelNum - 1) = "7";
  lattice.at(lineUpPForce - 1) = "0;0;0;0;0;0;0;0";
  lattice.at(lineUpDistForce - 1) = "0;0;0;0;0;0;0";
  lattice.at(lineDwnPForce - 1) = "0;0;0;0;0;0;0";
  lattice.at(lineDwnDistForce - 1) = "0;0;0;0;0;0";
  EXPECT_TRUE(Restore(lattice));
  EXPECT_EQ(form.cmbPanelNum.List(), Numbers(2, 30));
  EXPECT_EQ(form.cmbPanelNum.Text(), "7");
  EXPECT_FALSE(form.txtLenOporn.Enabled());
  EXPECT_FALSE(form.optElementSection[optionStoyka].Visible());
  EXPECT_EQ(form.Model.Inputs.ElementSection[sectionStoyka], verticals);
  EXPECT_TRUE(Restore(FiveSections("1")));
  EXPECT_EQ(form.cmbPanelNum.List(), Numbers(4, 30, 2));
  EXPECT_TRUE(form.txtLenOporn.Enabled());
  EXPECT_TRUE(form.optElementSection[optionStoyka].Visible());
  EXPECT_EQ(form.Model.Inputs.ElementSection[sectionStoyka], verticals);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(RestoreCommand, LeavesTheResultsAsTheyAre) {
  form.tabMain.SetTab(2);
  AddForce(form, 5, "4");
  form.cmdCalculate_Click();
  ASSERT_EQ(desk.Results.size(), 1U);
  const double mass = form.Model.Last.CheckData.Mass;
  EXPECT_GT(mass, 0);
  EXPECT_TRUE(Restore(FiveSections("1")));
  EXPECT_EQ(form.Model.Last.CheckData.Mass, mass);
  EXPECT_EQ(desk.Results.size(), 1U);
}

}  // namespace
}  // namespace trelonit::test

#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

TEST(Start, ShowsTheFirstTabWithTheFirstScheme) {
  StartedDesk desk;
  EXPECT_EQ(desk.Main.tabMain.Tab(), 0);
  EXPECT_EQ(desk.Main.Model.Inputs.TreloType, 1);
  EXPECT_EQ(MarkedOf(desk.Main.imgTreloType), std::vector<Long>{1});
  EXPECT_EQ(desk.Main.imgMain.Shown(), BitmapOf(101));
}

TEST(Start, FillsTheGeometry) {
  StartedDesk desk;
  EXPECT_EQ(desk.Main.txtLengthF.Text(), "20");
  EXPECT_EQ(desk.Main.txtHight.Text(), "1.5");
  EXPECT_EQ(desk.Main.txtLenOporn.Text(), "2");
  EXPECT_TRUE(desk.Main.txtLenOporn.Enabled());
  EXPECT_EQ(desk.Main.cmbPanelNum.List(), Numbers(4, 30, 2));
  EXPECT_EQ(desk.Main.cmbPanelNum.Text(), "10");
  EXPECT_EQ(desk.Main.StatusBarMain[6].Caption(), "Hopt = 2.00000");
}

TEST(Start, LeavesTheGeometryOfTheAnalysisToTheGeometryCheck) {
  StartedDesk desk;
  EXPECT_EQ(desk.Main.Model.Accepted.LengthF, 0);
  EXPECT_EQ(desk.Main.Model.Accepted.PanelNum, 0);
}

TEST(Start, HoldsBothChordsAtTheEndsAndInTheMiddle) {
  StartedDesk desk;
  EXPECT_EQ(desk.Main.optUpPoyas.Selected(), 2);
  EXPECT_EQ(desk.Main.optDownPoyas.Selected(), 2);
  EXPECT_EQ(desk.Main.Model.Inputs.UpPoyasBrace, 2);
  EXPECT_EQ(desk.Main.Model.Inputs.DownPoyasBrace, 2);
}

TEST(Start, FillsTheSteelAndTheReliability) {
  StartedDesk desk;
  EXPECT_EQ(desk.Main.txtNadegnost.Text(), "1");
  EXPECT_EQ(desk.Main.txtUsloviyaRabot.Text(), "0.9");
  EXPECT_EQ(desk.Main.lblStillName.Caption(), "Сталь С245 - лист от 2 до 20 мм");
  EXPECT_EQ(desk.Main.txtRy.Text(), "240");
  EXPECT_EQ(desk.Main.Steel.DensitSteel, "7.850");
  EXPECT_EQ(desk.Main.Steel.ModulYung, "210000");
  EXPECT_EQ(desk.Main.Steel.LimitFlex, "150");
}

TEST(Start, WritesItsNumbersWithTheDecimalSeparatorOfTheSystem) {
  StartedDesk desk(CommaLocale());
  EXPECT_EQ(desk.Main.txtUsloviyaRabot.Text(), "0,9");
  EXPECT_EQ(desk.Main.StatusBarMain[6].Caption(), "Hopt = 2,00000");
  // Fixed texts, which both decimal separators read.
  EXPECT_EQ(desk.Main.txtHight.Text(), "1.5");
  EXPECT_EQ(desk.Main.Steel.DensitSteel, "7.850");
}

TEST(Start, OffersTheDeflectionLimitsAndAsksForNone) {
  StartedDesk desk;
  const std::vector<std::string>& limits = desk.Main.cmbLenlim.List();
  ASSERT_EQ(limits.size(), 49U);
  EXPECT_EQ(limits[0], "1 / 120");
  EXPECT_EQ(limits[1], "1 / 150");
  EXPECT_EQ(limits[2], "1 / 200");
  EXPECT_EQ(limits[47], "1 / 2450");
  EXPECT_EQ(limits[48], "1 / 2500");
  EXPECT_EQ(desk.Main.cmbLenlim.Text(), "1 / 120");
  EXPECT_FALSE(desk.Main.chkProgib.Checked());
  EXPECT_FALSE(desk.Main.cmbLenlim.Enabled());
  EXPECT_EQ(desk.Main.cmbLenlim.BackColor(), 0xC0C0C0U);
  EXPECT_FALSE(desk.Main.txtProgib.Enabled());
  EXPECT_FALSE(desk.Main.optBP.Enabled());
  EXPECT_FALSE(desk.Main.optNP.Enabled());
  EXPECT_FALSE(desk.Main.lblProgib.Visible());
  EXPECT_EQ(desk.Main.txtProgib.Text(), "");
  EXPECT_EQ(desk.Main.imgLenLimoverflow.Shown(), Picture());
  // Of the two chords exactly one is chosen.
  EXPECT_NE(desk.Main.optBP.Value(), desk.Main.optNP.Value());
}

TEST(Start, LoadsTheCatalogue) {
  StartedDesk desk;
  ASSERT_TRUE(desk.Main.Model.ProfileTypes.IsAllocated());
  EXPECT_EQ(desk.Main.Model.ProfileTypes.LowerBound(), 1);
  EXPECT_EQ(desk.Main.Model.ProfileTypes.UpperBound(), 22);
  EXPECT_EQ(desk.Main.Model.ProfileTypes[22].Rec.UpperBound(), 248);
  EXPECT_EQ(SizeName(desk.Main, 22, 248), "Тр230x100x8");
}

TEST(Start, GivesEveryGroupTheFirstSizeOfTheFirstStandard) {
  StartedDesk desk;
  const SectionRec expected{.TypeIdx = 1,
                            .SizeIdx = 1,
                            .Gdist = 0,
                            .Paired = false,
                            .Profile = desk.Main.Model.ProfileTypes[1].Rec[1],
                            .Layout = 1};
  EXPECT_EQ(expected.Profile.Name.Trimmed(), "L25x16x3");
  for (Long place = 1; place <= 5; ++place) {
    EXPECT_EQ(desk.Main.Model.Inputs.ElementSection[place], expected) << place;
    EXPECT_EQ(desk.Main.lblProfilName[place].Caption(), "L25x16x3") << place;
    EXPECT_EQ(desk.Main.imgProfileSec[place].Shown(), desk.Main.imgProfileSecSelect[1].Shown());
  }
}

TEST(Start, FillsTheListsOfTheSections) {
  StartedDesk desk;
  EXPECT_EQ(desk.Main.cmbKatalog.List(), std::vector<std::string>{"Каталог ГОСТ-овского проката "});
  EXPECT_EQ(desk.Main.cmbKatalog.Text(), "Каталог ГОСТ-овского проката ");
  const std::vector<std::string> standards{"Уголок неравнополочный по ГОСТ 8510-86*",
                                           "Уголок равнополочный по ГОСТ 8509-93"};
  EXPECT_EQ(desk.Main.cmbTypeProfile.List(), standards);
  EXPECT_EQ(desk.Main.cmbTypeProfile.ListIndex(), 0);
  ASSERT_EQ(desk.Main.cmbSectType.List().size(), 62U);
  EXPECT_EQ(desk.Main.cmbSectType.List().back(), SizeName(desk.Main, 1, 62));
  EXPECT_EQ(desk.Main.cmbSectType.Text(), "L25x16x3");
}

TEST(Start, OffersGapsThatNoSingleProfileNeeds) {
  StartedDesk desk;
  EXPECT_EQ(desk.Main.cmbGdist.List(), Numbers(4, 30));
  EXPECT_EQ(desk.Main.cmbGdist.Text(), "4");
  EXPECT_FALSE(desk.Main.cmbGdist.Enabled());
}

TEST(Start, SelectsTheUpperChord) {
  StartedDesk desk;
  EXPECT_EQ(desk.Main.optElementSection.Selected(), 1);
  EXPECT_EQ(MarkedOf(desk.Main.imgProfileSecSelect), std::vector<Long>{1});
  EXPECT_EQ(desk.Main.imgProfView.Shown(), desk.Main.imgProfileSecSelect[1].Shown());
  EXPECT_EQ(desk.Main.linUpPoyas.BorderColor(), 255U);
  EXPECT_EQ(desk.Main.linDownPoyas.BorderColor(), 0U);
  EXPECT_EQ(desk.Main.linRaskos[1].BorderColor(), 0U);
  EXPECT_EQ(desk.Main.linStoyka[2].BorderColor(), 0U);
  EXPECT_EQ(desk.Main.linOpornRaskos.BorderColor(), 0U);
}

TEST(Start, ShowsElevenDifferentLayouts) {
  StartedDesk desk;
  for (Integer layout = 1; layout <= 11; ++layout) {
    EXPECT_EQ(desk.Main.imgProfileSecSelect[layout].Shown(),
              (Picture{Picture::Source::SectionLayout, layout}));
  }
}

TEST(Start, OffersNodalForcesOnTheUpperChord) {
  StartedDesk desk;
  EXPECT_EQ(desk.Main.imgPForce.Shown(), (Picture{Picture::Source::Icon, 102}));
  EXPECT_EQ(desk.Main.imgDistForce.Shown(), (Picture{Picture::Source::Icon, 103}));
  EXPECT_EQ(desk.Main.imgLoadPreview.Shown(), BitmapOf(309));
  EXPECT_TRUE(desk.Main.imgPForce.Marked());
  EXPECT_FALSE(desk.Main.imgDistForce.Marked());
  EXPECT_TRUE(desk.Main.tglUpPoyas.Value());
  EXPECT_FALSE(desk.Main.tglDwnPoyas.Value());
  EXPECT_EQ(desk.Main.txtForceVal.Text(), "0");
  EXPECT_FALSE(desk.Main.chkAllPanels.Checked());
  EXPECT_FALSE(desk.Main.chkAllPanels.Enabled());
}

TEST(Start, HasNoLoads) {
  StartedDesk desk;
  EXPECT_EQ(Values(desk.Main.Model.Inputs.Loads.UpPForce), Zeros(11));
  EXPECT_EQ(Values(desk.Main.Model.Inputs.Loads.UpDistForce), Zeros(10));
  EXPECT_EQ(Values(desk.Main.Model.Inputs.Loads.DwnPForce), Zeros(11));
  EXPECT_EQ(Values(desk.Main.Model.Inputs.Loads.DwnDistForce), Zeros(10));
  EXPECT_EQ(desk.Main.Model.Inputs.Loads.DwnDistForce.LowerBound(), 0);
  EXPECT_FALSE(desk.Main.chkDinloadEnable.Checked());
  EXPECT_FALSE(desk.Main.chkOwnWeight.Checked());
  EXPECT_FALSE(desk.Main.Model.OwnWeight.Added);
  EXPECT_EQ(desk.Main.Model.OwnWeight.PerMetre, 0);
}

TEST(Start, SetsTheCaptionRunning) {
  Desk desk;
  frmMain& form = desk.Make();
  EXPECT_EQ(form.tmrRuningString.Interval(), 0);
  form.Form_Load();
  EXPECT_TRUE(form.tmrRuningString.Enabled());
  EXPECT_EQ(form.tmrRuningString.Interval(), 200);
  EXPECT_EQ(form.Timer1.Interval(), 0);
}

TEST(Start, TellsAndRaisesNothing) {
  Desk desk;
  frmMain& form = desk.Make();
  int previews = 0;
  form.PreviewChanged = [&previews] { ++previews; };
  form.Form_Load();
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_EQ(previews, 0);
  EXPECT_TRUE(form.cmbKnotNum.List().empty());
  EXPECT_TRUE(desk.Opened.empty());
}

TEST(Start, UnpacksTheCatalogueBesideTheProgram) {
  StartedDesk desk;
  EXPECT_EQ(desk.Outside.Files.Content.at("/program/GOST profile.dat").size(), 477547U);
  EXPECT_EQ(desk.Outside.Files.Content.at("/program/Index.ind").size(), 1276U);
}

}  // namespace
}  // namespace trelonit::test

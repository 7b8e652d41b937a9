#include <algorithm>
#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"
#include "workstation/loads/LoadEditor.h"

namespace trelonit::test {
namespace {

class Editor : public ::testing::Test, public StartedDesk {
 protected:
  Editor() : loads(Main) { Main.tabMain.SetTab(2); }
  static LoadPictureSize Size(double width = 900, double height = 260) {
    return {.Width = width, .Height = height, .LineHeight = 14, .WidthOf = [](const auto& text) {
              return 7.0 * static_cast<double>(text.size());
            }};
  }
  LoadEditor loads;
};

TEST_F(Editor, ShowsItsLoadsInTheToldSchematic) {
  Choose(Main.cmbKnotNum, "3");
  EXPECT_TRUE(loads.Type(2, "2,5"));
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[2], 2.5);
  EXPECT_TRUE(Main.Preview.Up.lblP[2].Visible);
  EXPECT_EQ(Main.Preview.Up.lblP[2].Caption, "2.5");
  EXPECT_EQ(Main.cmbKnotNum.Text(), "3");
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(Editor, LeavesTheLoadsAndTellsInOneLine) {
  EXPECT_FALSE(loads.lblLoadError.Visible());
  EXPECT_FALSE(loads.Paste(0, "привет"));
  EXPECT_TRUE(loads.lblLoadError.Visible());
  EXPECT_EQ(loads.lblLoadError.Caption(), "Строка 1: «привет» - не число.");
  EXPECT_TRUE(loads.Paste(0, "1"));
  EXPECT_FALSE(loads.lblLoadError.Visible());
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(Editor, PicksThePlaceInTheLoadTool) {
  loads.Pick({.Of = Chord::Lower, .Panel = true, .Number = 7});
  EXPECT_TRUE(Main.tglDwnPoyas.Value());
  EXPECT_FALSE(Main.tglUpPoyas.Value());
  EXPECT_TRUE(Main.imgDistForce.Marked());
  EXPECT_EQ(Main.cmbKnotNum.Text(), "7");
  EXPECT_EQ(Main.Preview.linPoyas[7].BorderColor, colorRed);
  EXPECT_EQ(loads.Picked(), (LoadSpot{.Of = Chord::Lower, .Panel = true, .Number = 7}));
  loads.Pick({.Of = Chord::Upper, .Panel = false, .Number = 10});
  EXPECT_EQ(loads.Picked(), (LoadSpot{.Of = Chord::Upper, .Panel = false, .Number = 10}));
}

TEST_F(Editor, DrawsTheTrussToScale) {
  Main.txtHight.SetText("4");
  const LoadPicture picture = loads.Draw(Size());
  ASSERT_GT(picture.Scale, 0);
  double left = 1e9;
  double right = -1e9;
  double top = 1e9;
  double bottom = -1e9;
  for (const LoadLine& line : picture.Lines) {
    if (line.Ink == LoadInk::Bar) {
      left = std::min({left, line.X1, line.X2});
      right = std::max({right, line.X1, line.X2});
      top = std::min({top, line.Y1, line.Y2});
      bottom = std::max({bottom, line.Y1, line.Y2});
    }
  }
  // 20 m long, 4 m high.
  EXPECT_NEAR((right - left) / (bottom - top), 5, 1e-9);
  EXPECT_NEAR((right - left) * picture.Scale, 20, 1e-9);
}

TEST_F(Editor, DrawsTheLoadsOfBothChordsAndOwnWeightApart) {
  Main.Model.Inputs.Loads.UpPForce[2] = 2.5;
  Main.Model.Inputs.Loads.DwnPForce[3] = -1;
  Main.Model.Inputs.Loads.DwnDistForce[4] = 0.5;
  Main.chkOwnWeight.SetChecked(true);
  Main.cmdCalculate_Click();
  const LoadPicture picture = loads.Draw(Size());
  std::vector<std::string> texts;
  for (const LoadText& text : picture.Texts) {
    texts.push_back(text.Text);
  }
  const double own = Main.Model.OwnWeight.PerMetre;
  EXPECT_EQ(texts, (std::vector<std::string>{
                       "2.5", "0.5", "-1",
                       "собственный вес " + NumberToText(own, PointLocale()) + " т/м"}));
  Long ownBands = 0;
  Long bands = 0;
  for (const LoadBand& band : picture.Bands) {
    (band.Ink == LoadInk::OwnWeight ? ownBands : bands) += 1;
  }
  EXPECT_EQ(ownBands, 2);
  EXPECT_EQ(bands, 1);
  // The lower joint's load lifts: its arrow has the head at the joint, above its shaft.
  for (const LoadLine& line : picture.Lines) {
    EXPECT_GE(std::min({line.X1, line.X2}), 0);
    EXPECT_LE(std::max({line.X1, line.X2}), 900);
    EXPECT_GE(std::min({line.Y1, line.Y2}), 0);
    EXPECT_LE(std::max({line.Y1, line.Y2}), 260);
  }
}

TEST_F(Editor, APressMeansTheNearestPlaceOfEitherChord) {
  const LoadPicture picture = loads.Draw(Size());
  for (const LoadPicture::Target& target : picture.Targets) {
    EXPECT_EQ(SpotAt(picture, target.X, target.Y), target.Spot);
  }
  // 11 joints and 10 panels on each chord.
  EXPECT_EQ(picture.Targets.size(), 42U);
  EXPECT_EQ(SpotAt(LoadPicture(), 5, 5), std::nullopt);
}

TEST_F(Editor, DrawsEverySchemeWithItsLoads) {
  for (const Long scheme : {1, 2, 3, 4}) {
    Main.imgTreloType_Click(scheme);
    Choose(Main.cmbPanelNum, "30");
    for (double& load : Main.Model.Inputs.Loads.UpPForce) {
      load = 1.25;
    }
    const LoadPicture picture = loads.Draw(Size(900, 400));
    EXPECT_GT(picture.Scale, 0) << scheme;
    EXPECT_EQ(picture.Texts.size(), 31U) << scheme;
    for (const LoadText& text : picture.Texts) {
      EXPECT_TRUE(text.Upright) << scheme;
    }
  }
}

TEST_F(Editor, WhereThereIsLittleRoomTheTrussComesFirst) {
  Main.txtHight.SetText("2");
  for (double& load : Main.Model.Inputs.Loads.UpPForce) {
    load = 1.25;
  }
  for (double& load : Main.Model.Inputs.Loads.DwnPForce) {
    load = 1.25;
  }
  // 832 units for 20 m, so that the truss is 83 units high.
  const LoadPicture roomy = loads.Draw(Size(900, 260));
  const LoadPicture narrow = loads.Draw(Size(900, 150));
  EXPECT_EQ(roomy.Scale, narrow.Scale);
  EXPECT_EQ(roomy.Texts.size(), 22U);
  EXPECT_EQ(narrow.Texts.size(), 0U);
  for (const LoadLine& line : narrow.Lines) {
    EXPECT_GE(std::min(line.Y1, line.Y2), 0);
    EXPECT_LE(std::max(line.Y1, line.Y2), 150);
  }
}

TEST_F(Editor, SizesThatMakeNoTrussHaveNoPicture) {
  for (const char* span : {"0", "-5", "x"}) {
    Main.txtLengthF.SetText(span);
    EXPECT_EQ(loads.Draw(Size()).Scale, 0) << span;
  }
}

TEST_F(Editor, HasTheLoadsAsRowsOfColumns) {
  Main.Model.Inputs.Loads.UpPForce[2] = 2.5;
  // 11 joints and 10 panels on each chord.
  ASSERT_EQ(loads.Rows().size(), 42U);
  EXPECT_EQ(loads.Columns(loads.Rows()[2]),
            (std::vector<std::string>{"верхний", "узел", "2", "2.5"}));
}

TEST_F(Editor, FillsCopiesAndDeletesTheChosenRows) {
  EXPECT_TRUE(loads.Type(1, "2.5"));
  EXPECT_TRUE(loads.FillDown({1, 2, 3}));
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[3], 2.5);
  EXPECT_EQ(loads.Copy({1, 4}), "верхний\tузел\t1\t2.5\nверхний\tузел\t4\t\n");
  EXPECT_TRUE(loads.Delete({1, 3}));
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[1], 0);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[2], 2.5);
  EXPECT_FALSE(loads.FillDown({1}));
  EXPECT_TRUE(loads.lblLoadError.Visible());
}

TEST_F(Editor, MarksAllPlacesAgainWhereAllAreChosen) {
  Main.imgDistForce_Click();
  Main.chkAllPanels.SetChecked(true);
  int changed = 0;
  Main.LoadsChanged = [&changed] { ++changed; };
  EXPECT_TRUE(loads.Type(2, "1"));
  EXPECT_GT(changed, 0);
  for (Long panel = 0; panel < 10; ++panel) {
    EXPECT_EQ(Main.Preview.linPoyas[panel].BorderColor, colorRed) << panel;
  }
}

TEST_F(Editor, HasNothingPickedWhereTheToolHasNoPlaces) {
  Main.cmbKnotNum.Clear();
  EXPECT_EQ(loads.Picked(), std::nullopt);
  // A place that the tool does not offer is not chosen.
  loads.Pick({.Of = Chord::Upper, .Panel = false, .Number = 99});
  EXPECT_NE(loads.Picked(), (LoadSpot{.Of = Chord::Upper, .Panel = false, .Number = 99}));
}

TEST_F(Editor, DrawsTheChosenPanelApart) {
  loads.Pick({.Of = Chord::Lower, .Panel = true, .Number = 7});
  const LoadPicture picture = loads.Draw(Size());
  const auto chosen =
      std::count_if(picture.Lines.begin(), picture.Lines.end(),
                    [](const LoadLine& line) { return line.Ink == LoadInk::Chosen; });
  EXPECT_EQ(chosen, 1);
}

}  // namespace
}  // namespace trelonit::test

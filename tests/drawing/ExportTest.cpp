#include <algorithm>
#include <gtest/gtest.h>

#include "tests/drawing/DrawingDesk.h"

namespace trelonit::test {

namespace {

using Calls = std::vector<std::string>;
using Boxes = std::vector<Message>;

const Message unknownType = Box("Trelo's error", "Неизвестный тип фермы, расчет не возможен ");

/// The calls of an export without those that draw.
Calls Frame(const Calls& calls) {
  Calls frame;
  const std::string setup = "Document1.ActiveDimStyle = DimStyle(NordDim)";
  const auto drawn = [](const std::string& call) {
    return call.find("ModelSpace.") != std::string::npos || call.starts_with("Line") ||
           call.starts_with("Text") || call.starts_with("Dimension") ||
           call.find("DIMSCALE\", 40#") != std::string::npos;
  };
  auto place = calls.begin();
  for (int times = 0; times < 2; ++times) {
    place = std::find(place, calls.end(), setup) + 1;
  }
  std::copy_if(place, calls.end(), std::back_inserter(frame),
               [&](const std::string& call) { return !drawn(call); });
  return frame;
}

/// The titles of the schemes in the drawing, in the order of drawing.
Calls Titles(const RecordingHost& host) {
  Calls titles;
  for (const auto& text : host.Objects("Text")) {
    const auto& content = std::get<std::string>(text->Arguments.at(0));
    if (content.starts_with(' ')) {
      titles.push_back(content);
    }
  }
  return titles;
}

TEST(Export, WithoutAHostTellsItAndMakesNothing) {
  ExportDesk desk(1, 4);
  desk.Host.Running = false;
  desk.Host.Installed = false;
  desk.Export.mnuFileAutoCAD_Click();
  EXPECT_EQ(desk.Panel.Caption(), "No AutoCAD connect");
  EXPECT_EQ(desk.Messages.Shown, Boxes{Box("", "No AutoCAD connect")});
  EXPECT_EQ(desk.Host.Calls,
            (Calls{"GetRunning AutoCAD.Application", "Create AutoCAD.Application"}));
  EXPECT_TRUE(desk.Host.Objects("Document").empty());
  EXPECT_EQ(desk.Export.Document(), nullptr);
}

TEST(Export, ShowsTheHostBeforeItDraws) {
  ExportDesk desk(1, 4);
  desk.Export.mnuFileAutoCAD_Click();
  EXPECT_EQ(desk.Panel.Caption(), "AutoCAD connected");
  const Calls& calls = desk.Host.Calls;
  EXPECT_EQ(
      Calls(calls.begin(), calls.begin() + 6),
      (Calls{"GetRunning AutoCAD.Application", "Application.Visible = True", "Application.Version",
             "Application.Documents", "Application.Documents.Add()", "Document1.Layers"}));
}

TEST(Export, DrawsForcesFirstGeometryThenAndZoomsLast) {
  ExportDesk desk(2, 4);
  desk.Export.mnuFileAutoCAD_Click();
  EXPECT_EQ(Frame(desk.Host.Calls), (Calls{"Document1.ModelSpace", "Document1.ModelSpace",
                                           "Document1.Application", "Application.ZoomExtents()"}));
  EXPECT_EQ(Titles(desk.Host), (Calls{" Схема усилий", " Геометрическая схема "}));
  EXPECT_TRUE(desk.Messages.Shown.empty());
  EXPECT_EQ(desk.Export.Document(), desk.Host.Objects("Document").at(0));
}

TEST(Export, StartsTheHostWhereNoneRuns) {
  ExportDesk desk(3, 2);
  desk.Host.Running = false;
  desk.Export.mnuFileAutoCAD_Click();
  EXPECT_EQ(desk.Host.CountOf("Create AutoCAD.Application"), 1U);
  EXPECT_EQ(desk.Host.Calls.back(), "Application.ZoomExtents()");
}

TEST(Export, TwiceMakesTwoDrawingsWithLayersAndStylesOfTheirOwn) {
  ExportDesk desk(4, 4);
  desk.Export.mnuFileAutoCAD_Click();
  desk.Export.mnuFileAutoCAD_Click();
  EXPECT_EQ(desk.Host.Objects("Document").size(), 2U);
  for (const char* document : {"Document1", "Document2"}) {
    const std::string name = document;
    EXPECT_EQ(desk.Host.CountOf(name + ".Layers.Add(\"Main\")"), 1U);
    EXPECT_EQ(desk.Host.CountOf(name + ".Layers.Add(\"Dimension\")"), 1U);
    EXPECT_EQ(desk.Host.CountOf(name + ".TextStyles.Add(\"Dimensional\")"), 1U);
    EXPECT_EQ(desk.Host.CountOf(name + ".DimStyles.Add(\"NordDim\")"), 1U);
  }
  EXPECT_EQ(desk.Host.CountOf("Application.ZoomExtents()"), 2U);
  EXPECT_EQ(desk.Export.Document(), desk.Host.Objects("Document").at(1));
  const auto space = desk.Host.Objects("ModelSpace");
  EXPECT_EQ(space.at(0)->Items.size(), space.at(1)->Items.size());
}

TEST(Export, OfAReservedSchemeIsAnEmptyDrawing) {
  for (Long scheme = 5; scheme <= 10; ++scheme) {
    ExportDesk desk(1, 4);
    desk.Design.Data.TreloType = scheme;
    desk.Export.mnuFileAutoCAD_Click();
    EXPECT_EQ(Frame(desk.Host.Calls),
              (Calls{"Document1.ModelSpace", "Document1.ModelSpace", "Document1.Application",
                     "Application.ZoomExtents()"}));
    EXPECT_TRUE(desk.Host.Objects("ModelSpace").at(0)->Items.empty());
    EXPECT_EQ(desk.Host.Objects("Layer").size(), 2U);
    EXPECT_TRUE(desk.Messages.Shown.empty());
  }
}

TEST(Export, OfAnUnknownTypeTellsItTwiceAndZooms) {
  for (const Long type : {0, 11, -1, 2147483647}) {
    ExportDesk desk(1, 4);
    desk.Design.Data.TreloType = type;
    desk.Export.mnuFileAutoCAD_Click();
    EXPECT_EQ(desk.Messages.Shown, (Boxes{unknownType, unknownType})) << type;
    EXPECT_TRUE(desk.Host.Objects("ModelSpace").at(0)->Items.empty());
    EXPECT_EQ(desk.Host.Calls.back(), "Application.ZoomExtents()");
  }
}

TEST(Export, HearsOfAHostThatWentAway) {
  ExportDesk desk(1, 4);
  desk.Export.mnuFileAutoCAD_Click();
  desk.Host.Running = false;
  desk.Host.Installed = false;
  desk.Export.mnuFileAutoCAD_Click();
  EXPECT_EQ(desk.Panel.Caption(), "No AutoCAD connect");
  EXPECT_EQ(desk.Host.Objects("Document").size(), 1U);
}

TEST(Export, WithoutForcesStillDrawsTheGeometry) {
  ExportDesk desk(1, 4);
  desk.Design.Result.UpPoyasForce = {};
  desk.Export.mnuFileAutoCAD_Click();
  EXPECT_EQ(desk.Messages.Shown,
            Boxes{Box("AutoCAD Export", " Err # 9 Discription : Subscript out of range")});
  EXPECT_EQ(Titles(desk.Host), Calls{" Геометрическая схема фермы"});
  EXPECT_EQ(desk.Host.Calls.back(), "Application.ZoomExtents()");
}

TEST(Export, KeepsWhatWasDrawnBeforeAnError) {
  ExportDesk desk(1, 4);
  desk.Design.Result.RaskosForce = Row(1, 2, 21);
  desk.Design.Sections = {};
  desk.Export.mnuFileAutoCAD_Click();
  const Message outside = Box("AutoCAD Export", " Err # 9 Discription : Subscript out of range");
  EXPECT_EQ(desk.Messages.Shown, (Boxes{outside, outside}));
  // The upper chord and two diagonals of the force scheme.
  EXPECT_EQ(desk.Host.Objects("Line").size(), 6U);
}

TEST(Export, OfSizesBeyondAllNumbersTellsTheOverflow) {
  ExportDesk desk(2, 4);
  desk.Design.Data.Hight = 1e306;
  desk.Export.mnuFileAutoCAD_Click();
  const Message overflow = Box("AutoCAD Export", " Err # 6 Discription : Overflow");
  EXPECT_EQ(desk.Messages.Shown, (Boxes{overflow, overflow}));
  EXPECT_EQ(desk.Host.Calls.back(), "Application.ZoomExtents()");
}

TEST(Export, OfAPanelCountThatNoTrussHasEndsAtOnce) {
  const Message outside = Box("AutoCAD Export", " Err # 9 Discription : Subscript out of range");
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long n : {-2147483647 - 1, -1, 0, 1001, 2147483647}) {
      ExportDesk desk(scheme, 4);
      desk.Design.Data.PanelNum = n;
      desk.Export.mnuFileAutoCAD_Click();
      EXPECT_EQ(desk.Messages.Shown, (Boxes{outside, outside})) << n;
      EXPECT_EQ(desk.Host.Calls.back(), "Application.ZoomExtents()");
    }
  }
}

TEST(Export, OfTheGreatestPanelCountDrawsTheGeometryThatNeedsNoForces) {
  ExportDesk desk(4, 4);
  desk.Design.Data.PanelNum = 1000;
  desk.Export.mnuFileAutoCAD_Click();
  EXPECT_EQ(desk.Messages.Shown,
            Boxes{Box("AutoCAD Export", " Err # 9 Discription : Subscript out of range")});
}

// Half of an odd count is rounded to the even neighbour on both sides of the middle, so that the
// diagonal in the middle is left out.
TEST(Export, OfAnOddPanelCountLeavesTheMiddleDiagonalOut) {
  for (const Long scheme : {1, 2}) {
    SchemeDesk desk(scheme, 5);
    desk.Force();
    std::vector<std::string> diagonals;
    for (const auto& text : desk.Host.Objects("Text")) {
      const auto& label = std::get<std::string>(text->Arguments.at(0));
      if (label.starts_with('2')) {
        diagonals.push_back(label);
      }
    }
    EXPECT_EQ(diagonals, (std::vector<std::string>{"21.00", "22.00", "24.00", "25.00"}));
    EXPECT_TRUE(desk.Messages.Shown.empty());
  }
}

}  // namespace

}  // namespace trelonit::test

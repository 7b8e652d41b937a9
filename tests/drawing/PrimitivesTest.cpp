#include <gtest/gtest.h>
#include <limits>

#include "tests/drawing/DrawingDesk.h"

namespace trelonit::test {

namespace {

using Calls = std::vector<std::string>;
using Boxes = std::vector<Message>;

const RuntimeError brokenPrimitive(77, "Broken");
const Message noLine = Box("ACADClass", "Не удалось создать линию по указанным координатам!");
const Message noText = Box("ACADClass", "Не удалось создать текст по указанным координатам!");
const Message noPlace = Box("ACADClass", "Не удалось задать тексту точку вставки!");
/// What setting the layer of a line that is not there tells.
const Message noObject =
    Box("ACADClass", "Err # 91 err discription : Object variable or With block variable not set");

LabelledLine DrawBar(WrapperDesk& desk) {
  return desk.ACAD.DrawLineAndText(desk.Space, PointAt(0, 0), PointAt(3000, 1000), -12.5, 0.25,
                                   150);
}

LabelledLine DrawNamedBar(WrapperDesk& desk, bool paired) {
  return desk.ACAD.DrawLineAnd2Text(desk.Space, PointAt(0, 0), PointAt(3000, 1000), 3.162, "L63x5",
                                    0.25, 150, paired);
}

const Calls barCalls{"Document1.ModelSpace.AddLine((0, 0, 0), (3000, 1000, 0))",
                     "Line1.Layer = \"Main\"",
                     "Document1.ModelSpace.AddText(\"-12.50\", (1500, 500, 0), 150#)",
                     "Text1.Alignment = 13",
                     "Text1.Rotation = 0.25#",
                     "Text1.TextAlignmentPoint = (1500, 500, 0)",
                     "Text1.Layer = \"Dimension\""};

TEST(BarWithANumber, IsALineWithATextOverItsMiddle) {
  WrapperDesk desk;
  const LabelledLine drawn = DrawBar(desk);
  EXPECT_EQ(desk.Host.Calls, barCalls);
  EXPECT_EQ(drawn.Line, desk.Host.Objects("Line").at(0));
  EXPECT_EQ(drawn.Text, desk.Host.Objects("Text").at(0));
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(BarWithANumber, HasItsMiddleInAllThreeCoordinates) {
  WrapperDesk desk;
  DrawingPoint above = PointAt(10, 20);
  above[2] = 5;
  desk.ACAD.DrawLineAndText(desk.Space, PointAt(0, 0), above, 0, 0, 1);
  EXPECT_EQ(desk.Host.CountOf("Text1.TextAlignmentPoint = (5, 10, 2.5)"), 1U);
}

TEST(BarWithANumber, ShowsTwoDecimalsAsTheUsersSystemDoes) {
  const std::vector<std::pair<double, std::string>> labels{
      {0, "0.00"},      {2, "2.00"},          {7.005, "7.01"}, {-3.125, "-3.13"},
      {-0.004, "0.00"}, {1234.5, "1,234.50"}, {1e-20, "0.00"}, {-1234567.891, "-1,234,567.89"}};
  for (const auto& [value, label] : labels) {
    WrapperDesk desk;
    const clsAutoCAD wrapper(desk.Host, desk.Messages, PointLocale());
    wrapper.DrawLineAndText(desk.Space, PointAt(0, 0), PointAt(1, 0), value, 0, 1);
    EXPECT_EQ(ValueText(desk.Host.Objects("Text").at(0)->Arguments.at(0)), '"' + label + '"');
  }
}

TEST(BarWithANumber, ShowsADecimalCommaWhereTheSystemDoes) {
  WrapperDesk desk;
  const clsAutoCAD wrapper(desk.Host, desk.Messages, CommaLocale());
  wrapper.DrawLineAndText(desk.Space, PointAt(0, 0), PointAt(1, 0), -1234.567, 0, 1);
  EXPECT_EQ(ValueText(desk.Host.Objects("Text").at(0)->Arguments.at(0)), "\"-1\u00A0234,57\"");
}

TEST(BarWithANumber, KeepsItsTextWhereTheLineFails) {
  WrapperDesk desk;
  desk.Host.FailingMembers.emplace("ModelSpace.AddLine", brokenPrimitive);
  const LabelledLine drawn = DrawBar(desk);
  EXPECT_EQ(desk.Messages.Shown, (Boxes{noLine, noObject}));
  EXPECT_EQ(drawn.Line, nullptr);
  EXPECT_EQ(drawn.Text, desk.Host.Objects("Text").at(0));
  EXPECT_EQ(desk.Host.Calls.back(), "Text1.Layer = \"Dimension\"");
}

TEST(BarWithANumber, TellsALineThatTheHostDoesNotGive) {
  WrapperDesk desk;
  desk.Host.EmptyMembers.insert("ModelSpace.AddLine");
  DrawBar(desk);
  EXPECT_EQ(desk.Messages.Shown, (Boxes{noLine, noObject}));
}

TEST(BarWithANumber, TellsAnErrorBesideALine) {
  WrapperDesk desk;
  desk.Host.FailingMembers.emplace("Line.Layer", brokenPrimitive);
  const LabelledLine drawn = DrawBar(desk);
  EXPECT_EQ(desk.Messages.Shown, (Boxes{Box("ACADClass", "Err # 77 err discription : Broken")}));
  EXPECT_NE(drawn.Line, nullptr);
  EXPECT_EQ(desk.Host.Calls, barCalls);
}

TEST(BarWithANumber, LeavesThePropertiesOfAFailedTextUnset) {
  for (const bool raises : {true, false}) {
    WrapperDesk desk;
    if (raises) {
      desk.Host.FailingMembers.emplace("ModelSpace.AddText", brokenPrimitive);
    } else {
      desk.Host.EmptyMembers.insert("ModelSpace.AddText");
    }
    const LabelledLine drawn = DrawBar(desk);
    EXPECT_EQ(desk.Messages.Shown, Boxes{noText});
    EXPECT_EQ(drawn.Text, nullptr);
    EXPECT_NE(drawn.Line, nullptr);
    EXPECT_EQ(desk.Host.Calls, Calls(barCalls.begin(), barCalls.begin() + 3));
  }
}

TEST(BarWithANumber, TellsOnceThatATextCouldNotBePlaced) {
  for (const char* property : {"Alignment", "Rotation", "TextAlignmentPoint", "Layer"}) {
    WrapperDesk desk;
    desk.Host.FailingMembers.emplace("Text." + std::string(property), brokenPrimitive);
    EXPECT_NE(DrawBar(desk).Text, nullptr);
    EXPECT_EQ(desk.Messages.Shown, Boxes{noPlace}) << property;
    // The other properties are set all the same.
    EXPECT_EQ(desk.Host.Calls, barCalls) << property;
  }
  WrapperDesk desk;
  desk.Host.FailingMembers.emplace("Text.Alignment", brokenPrimitive);
  desk.Host.FailingMembers.emplace("Text.Layer", brokenPrimitive);
  DrawBar(desk);
  EXPECT_EQ(desk.Messages.Shown, Boxes{noPlace});
}

TEST(BarWithANumber, TellsEachFailureWhereTheSpaceIsEmpty) {
  WrapperDesk desk;
  desk.ACAD.DrawLineAndText(nullptr, PointAt(0, 0), PointAt(1, 0), 1, 0, 1);
  EXPECT_EQ(desk.Messages.Shown, (Boxes{noLine, noObject, noText}));
  EXPECT_TRUE(desk.Host.Calls.empty());
}

TEST(BarWithANumber, NeedsPointsThatHaveAMiddle) {
  WrapperDesk desk;
  EXPECT_THROW(desk.ACAD.DrawLineAndText(desk.Space, DrawingPoint(0, 1), PointAt(1, 0), 1, 0, 1),
               RuntimeError);
}

TEST(BarWithTwoLabels, HasTheLengthUnderItAndTheNameOverIt) {
  WrapperDesk desk;
  const LabelledLine drawn = DrawNamedBar(desk, false);
  EXPECT_EQ(
      desk.Host.Calls,
      (Calls{"Document1.ModelSpace.AddLine((0, 0, 0), (3000, 1000, 0))", "Line1.Layer = \"Main\"",
             "Document1.ModelSpace.AddText(\"L = 3.16 м \", (1500, 500, 0), 150#)",
             "Text1.Alignment = 7", "Text1.Rotation = 0.25#",
             "Text1.TextAlignmentPoint = (1500, 500, 0)", "Text1.Layer = \"Dimension\"",
             "Document1.ModelSpace.AddText(\"L63x5\", (1500, 500, 0), 150#)",
             "Text2.Alignment = 13", "Text2.Rotation = 0.25#",
             "Text2.TextAlignmentPoint = (1500, 500, 0)", "Text2.Layer = \"Dimension\""}));
  EXPECT_EQ(drawn.Line, desk.Host.Objects("Line").at(0));
  // The text of the length is not handed back.
  EXPECT_EQ(drawn.Text, desk.Host.Objects("Text").at(1));
}

TEST(BarWithTwoLabels, CountsAPairInFrontOfTheName) {
  WrapperDesk desk;
  DrawNamedBar(desk, true);
  EXPECT_EQ(desk.Host.Calls.at(7),
            "Document1.ModelSpace.AddText(\"2 * L63x5\", (1500, 500, 0), 150#)");
}

TEST(BarWithTwoLabels, StillHasTheSecondTextWhereTheFirstFails) {
  WrapperDesk desk;
  desk.Host.FailingCall = 3;
  const LabelledLine drawn = DrawNamedBar(desk, false);
  EXPECT_EQ(desk.Messages.Shown, Boxes{noText});
  EXPECT_EQ(Calls(desk.Host.Calls.begin() + 2, desk.Host.Calls.end()),
            (Calls{"Document1.ModelSpace.AddText(\"L = 3.16 м \", (1500, 500, 0), 150#)",
                   "Document1.ModelSpace.AddText(\"L63x5\", (1500, 500, 0), 150#)",
                   "Text1.Alignment = 13", "Text1.Rotation = 0.25#",
                   "Text1.TextAlignmentPoint = (1500, 500, 0)", "Text1.Layer = \"Dimension\""}));
  EXPECT_EQ(drawn.Text, desk.Host.Objects("Text").at(0));
}

TEST(BarWithTwoLabels, TellsEveryFailureOfItsParts) {
  WrapperDesk desk;
  desk.Host.FailingMembers.emplace("ModelSpace.AddLine", brokenPrimitive);
  desk.Host.FailingMembers.emplace("ModelSpace.AddText", brokenPrimitive);
  const LabelledLine drawn = DrawNamedBar(desk, true);
  EXPECT_EQ(desk.Messages.Shown, (Boxes{noLine, noObject, noText, noText}));
  EXPECT_EQ(drawn.Line, nullptr);
  EXPECT_EQ(drawn.Text, nullptr);
}

TEST(PlainText, StandsOverItsPoint) {
  WrapperDesk desk;
  const auto text = desk.ACAD.DrawText(desk.Space, PointAt(100, -50), "Ra = 1", 0.5, 300);
  EXPECT_EQ(text, desk.Host.Objects("Text").at(0));
  EXPECT_EQ(desk.Host.Calls,
            (Calls{"Document1.ModelSpace.AddText(\"Ra = 1\", (100, -50, 0), 300#)",
                   "Text1.Alignment = 13", "Text1.Rotation = 0.5#",
                   "Text1.TextAlignmentPoint = (100, -50, 0)", "Text1.Layer = \"Dimension\""}));
}

TEST(PlainText, TellsItsFailures) {
  WrapperDesk desk;
  desk.Host.FailingMembers.emplace("Text.Rotation", brokenPrimitive);
  EXPECT_NE(desk.ACAD.DrawText(desk.Space, PointAt(0, 0), "a", 0, 1), nullptr);
  desk.Host.FailingMembers.emplace("ModelSpace.AddText", brokenPrimitive);
  EXPECT_EQ(desk.ACAD.DrawText(desk.Space, PointAt(0, 0), "a", 0, 1), nullptr);
  EXPECT_EQ(desk.Messages.Shown, (Boxes{noPlace, noText}));
}

TEST(PlainLine, LiesInTheLayerOfTheBars) {
  WrapperDesk desk;
  const auto line = desk.ACAD.DrawLine(desk.Space, PointAt(1, 2), PointAt(3, 4));
  EXPECT_EQ(line, desk.Host.Objects("Line").at(0));
  EXPECT_EQ(desk.Host.Calls, (Calls{"Document1.ModelSpace.AddLine((1, 2, 0), (3, 4, 0))",
                                    "Line1.Layer = \"Main\""}));
}

TEST(PlainLine, TellsItsFailures) {
  WrapperDesk desk;
  desk.Host.FailingMembers.emplace("Line.Layer", brokenPrimitive);
  EXPECT_NE(desk.ACAD.DrawLine(desk.Space, PointAt(1, 2), PointAt(3, 4)), nullptr);
  desk.Host.FailingMembers.emplace("ModelSpace.AddLine", brokenPrimitive);
  EXPECT_EQ(desk.ACAD.DrawLine(desk.Space, PointAt(1, 2), PointAt(3, 4)), nullptr);
  EXPECT_EQ(desk.Messages.Shown,
            (Boxes{Box("ACADClass", "Err # 77 err discription : Broken"), noLine, noObject}));
}

TEST(Dimension, IsARotatedOneInTheLayerOfTheNotes) {
  WrapperDesk desk;
  const auto dimension =
      desk.ACAD.DrawDimension(desk.Space, PointAt(0, 0), PointAt(9, 0), PointAt(4.5, -3), 0.5);
  EXPECT_EQ(dimension, desk.Host.Objects("Dimension").at(0));
  EXPECT_EQ(desk.Host.Calls,
            (Calls{"Document1.ModelSpace.AddDimRotated((0, 0, 0), (9, 0, 0), (4.5, -3, 0), 0.5#)",
                   "Dimension1.Layer = \"Dimension\""}));
}

TEST(Dimension, OfPointsWithWrongBoundsIsRefused) {
  const DrawingPoint good = PointAt(0, 0);
  const Message refused = Box("AutoCAD Class", "Некорректно заданы точки простановки размера");
  for (const DrawingPoint& bad :
       {DrawingPoint(0, 3), DrawingPoint(0, 1), DrawingPoint(1, 2), DrawingPoint()}) {
    WrapperDesk desk;
    EXPECT_EQ(desk.ACAD.DrawDimension(desk.Space, bad, good, good, 0), nullptr);
    EXPECT_EQ(desk.ACAD.DrawDimension(desk.Space, good, bad, good, 0), nullptr);
    EXPECT_EQ(desk.ACAD.DrawDimension(nullptr, good, good, bad, 0), nullptr);
    EXPECT_EQ(desk.Messages.Shown, (Boxes{refused, refused, refused}));
    EXPECT_TRUE(desk.Host.Calls.empty());
  }
}

TEST(Dimension, WithoutASpaceIsRefused) {
  WrapperDesk desk;
  const DrawingPoint point = PointAt(0, 0);
  EXPECT_EQ(desk.ACAD.DrawDimension(nullptr, point, point, point, 0), nullptr);
  EXPECT_EQ(desk.Messages.Shown,
            Boxes{Box("AutoCAD Class", "Не передана ссылка на пространство модели")});
}

TEST(Dimension, TellsAnErrorOfTheHost) {
  const DrawingPoint point = PointAt(0, 0);
  WrapperDesk desk;
  desk.Host.FailingMembers.emplace("Dimension.Layer", brokenPrimitive);
  EXPECT_NE(desk.ACAD.DrawDimension(desk.Space, point, point, point, 0), nullptr);
  desk.Host.FailingMembers.emplace("ModelSpace.AddDimRotated", brokenPrimitive);
  EXPECT_EQ(desk.ACAD.DrawDimension(desk.Space, point, point, point, 0), nullptr);
  const Message told = Box("AutoCAD Class", " Err # 77 Discription : Broken");
  EXPECT_EQ(desk.Messages.Shown, (Boxes{told, told}));
}

}  // namespace

}  // namespace trelonit::test

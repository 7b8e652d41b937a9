#include <limits>

#include "tests/drawinghost/HostDesk.h"
#include "tests/support/ExtremeNumbers.h"

namespace trelonit::test {

namespace {

TEST(ModelSpace, BelongsToItsDocument) {
  DocumentDesk desk;
  EXPECT_EQ(ObjectMember(desk.Space, "Document"), desk.Document);
}

TEST(ModelSpace, TakesLines) {
  DocumentDesk desk;
  const AutomationHandle line = CallForObject(desk.Space, "AddLine", {At(1, 2, 3), At(-4, 5.5, 6)});
  const auto& drawn = std::get<DrawingLine>(desk.Sheet->ModelSpace.at(0));
  EXPECT_EQ(drawn.Start, (PlacePoint{1, 2, 3}));
  EXPECT_EQ(drawn.End, (PlacePoint{-4, 5.5, 6}));
  EXPECT_EQ(drawn.Layer, "0");
  EXPECT_EQ(TextIn(Member(line, "ObjectName")), "AcDbLine");
}

TEST(ModelSpace, TakesTexts) {
  DocumentDesk desk;
  const AutomationHandle text = desk.AddText();
  const auto& drawn = std::get<DrawingText>(desk.Sheet->ModelSpace.at(0));
  EXPECT_EQ(drawn.Text, "Ферма");
  EXPECT_EQ(drawn.InsertionPoint, (PlacePoint{1, 2, 0}));
  EXPECT_EQ(drawn.Height, 5);
  EXPECT_EQ(drawn.Alignment, TextAlignment::Left);
  EXPECT_EQ(TextIn(Member(text, "ObjectName")), "AcDbText");
}

TEST(ModelSpace, TakesDimensionsWithTheVariablesOfTheMoment) {
  DocumentDesk desk;
  desk.SetVariable("DIMSCALE", 30.0);
  desk.SetVariable("DIMASZ", 4.0);
  desk.SetVariable("DIMDEC", Long{0});
  desk.SetVariable("DIMTIH", Long{1});
  const AutomationHandle dimension = desk.AddDimension();
  desk.SetVariable("DIMSCALE", 99.0);
  const auto& drawn = std::get<DrawingDimension>(desk.Sheet->ModelSpace.at(0));
  EXPECT_EQ(drawn.Point2, (PlacePoint{100, 0, 0}));
  EXPECT_EQ(drawn.Location, (PlacePoint{50, 40, 0}));
  EXPECT_EQ(drawn.ScaleFactor, 30);
  EXPECT_EQ(drawn.ArrowheadSize, 4);
  EXPECT_EQ(drawn.PrimaryUnitsPrecision, 0);
  EXPECT_TRUE(drawn.TextInsideAlign);
  EXPECT_FALSE(drawn.TextInside);
  EXPECT_EQ(TextIn(Member(dimension, "ObjectName")), "AcDbRotatedDimension");
}

TEST(ModelSpace, RefusesPointsThatAreNone) {
  DocumentDesk desk;
  const auto raised = [&](const AutomationValue& point) {
    return RaisedBy([&] { CallMember(desk.Space, "AddLine", {At(0, 0), point}); });
  };
  EXPECT_EQ(raised(At(notANumber, 0)), 5);
  EXPECT_EQ(raised(At(0, infinity)), 5);
  EXPECT_EQ(raised(At(0, 0, -infinity)), 5);
  EXPECT_EQ(raised(std::vector<double>{1, 2}), 5);
  EXPECT_EQ(raised(std::vector<double>{1, 2, 3, 4}), 5);
  EXPECT_EQ(raised(1.0), 13);
  EXPECT_EQ(raised({}), 13);
  EXPECT_TRUE(desk.Sheet->ModelSpace.empty());
}

TEST(ModelSpace, RefusesTextsAndDimensionsThatCannotBeDrawn) {
  DocumentDesk desk;
  const auto text = [&](const AutomationValue& height) {
    return RaisedBy([&] {
      CallMember(desk.Space, "AddText", {std::string("t"), At(0, 0), height});
    });
  };
  EXPECT_EQ(text(0.0), 5);
  EXPECT_EQ(text(-1.0), 5);
  EXPECT_EQ(text(notANumber), 5);
  EXPECT_EQ(text(std::string("5")), 13);
  EXPECT_EQ(RaisedBy([&] { CallMember(desk.Space, "AddText", {Long{1}, At(0, 0), 5.0}); }), 13);
  EXPECT_EQ(RaisedBy([&] {
              CallMember(desk.Space, "AddDimRotated", {At(0, 0), At(1, 0), At(0, 1), notANumber});
            }),
            5);
  EXPECT_TRUE(desk.Sheet->ModelSpace.empty());
}

TEST(ModelSpace, RefusesTooFewAndTooManyArguments) {
  DocumentDesk desk;
  EXPECT_EQ(RaisedBy([&] { CallMember(desk.Space, "AddLine", {At(0, 0)}); }), 5);
  EXPECT_EQ(RaisedBy([&] {
              CallMember(desk.Space, "AddLine", {At(0, 0), At(1, 1), At(2, 2)});
            }),
            5);
  EXPECT_EQ(RaisedBy([&] { CallMember(desk.Space, "AddText"); }), 5);
  EXPECT_EQ(RaisedBy([&] { CallMember(desk.Space, "AddCircle", {At(0, 0), 1.0}); }), 438);
}

TEST(Entities, LieOnLayersThatAreThere) {
  DocumentDesk desk;
  desk.AddNamed("Layers", "Dimension");
  for (const AutomationHandle& entity : {desk.AddLine(), desk.AddText(), desk.AddDimension()}) {
    EXPECT_EQ(TextIn(Member(entity, "Layer")), "0");
    SetMember(entity, "Layer", std::string("DIMENSION"));
    // In the writing of the drawing, whatever the caller's.
    EXPECT_EQ(TextIn(Member(entity, "Layer")), "Dimension");
    EXPECT_EQ(RaisedBy([&] { SetMember(entity, "Layer", std::string("Absent")); }), keyNotFound);
    EXPECT_EQ(RaisedBy([&] { SetMember(entity, "Layer", Long{0}); }), 13);
    EXPECT_EQ(TextIn(Member(entity, "Layer")), "Dimension");
    EXPECT_EQ(RaisedBy([&] { Member(entity, "Colour"); }), 438);
  }
}

TEST(Texts, TakeTheirPlaceByAlignment) {
  DocumentDesk desk;
  const AutomationHandle text = desk.AddText();
  SetMember(text, "Alignment", Long{13});
  SetMember(text, "Rotation", 0.5);
  SetMember(text, "TextAlignmentPoint", At(7, 8, 9));
  const auto& drawn = std::get<DrawingText>(desk.Sheet->ModelSpace.at(0));
  EXPECT_EQ(drawn.Alignment, TextAlignment::BottomCentre);
  EXPECT_EQ(drawn.Rotation, 0.5);
  EXPECT_EQ(drawn.TextAlignmentPoint, (PlacePoint{7, 8, 9}));
  EXPECT_EQ(Member(text, "Alignment"), AutomationValue(Long{13}));
  EXPECT_EQ(Member(text, "Rotation"), AutomationValue(0.5));
  EXPECT_EQ(Member(text, "TextAlignmentPoint"), At(7, 8, 9));
}

TEST(Texts, RefuseAlignmentsBetweenTwoPointsAndUnknownOnes) {
  DocumentDesk desk;
  const AutomationHandle text = desk.AddText();
  for (const Long alignment : {-1, 3, 5, 15}) {
    EXPECT_EQ(RaisedBy([&] { SetMember(text, "Alignment", alignment); }), 5) << alignment;
  }
  EXPECT_EQ(RaisedBy([&] { SetMember(text, "Alignment", std::string("left")); }), 13);
  EXPECT_EQ(RaisedBy([&] { SetMember(text, "Rotation", infinity); }), 5);
}

TEST(Texts, MayBeLowerThanOne) {
  DocumentDesk desk;
  CallForObject(desk.Space, "AddText", {std::string("x"), At(0, 0), 0.5});
  EXPECT_EQ(std::get<DrawingText>(desk.Sheet->ModelSpace.at(0)).Height, 0.5);
}

TEST(Texts, TakeEveryOtherAlignment) {
  DocumentDesk desk;
  const AutomationHandle text = desk.AddText();
  for (const Long alignment : {0, 1, 2, 4, 6, 7, 8, 9, 10, 11, 12, 13, 14}) {
    EXPECT_EQ(RaisedBy([&] { SetMember(text, "Alignment", alignment); }), 0) << alignment;
    EXPECT_EQ(Member(text, "Alignment"), AutomationValue(alignment));
  }
}

TEST(Dimensions, TakeTheirEightProperties) {
  DocumentDesk desk;
  desk.AddNamed("TextStyles", "Dimensional");
  const AutomationHandle dimension = desk.AddDimension();
  SetMember(dimension, "TextStyle", std::string("Dimensional"));
  SetMember(dimension, "ArrowheadSize", Long{4});
  SetMember(dimension, "TextGap", Long{1});
  SetMember(dimension, "TextHeight", Long{5});
  SetMember(dimension, "ScaleFactor", 30.0);
  SetMember(dimension, "TextInsideAlign", false);
  SetMember(dimension, "TextInside", true);
  SetMember(dimension, "PrimaryUnitsPrecision", Long{0});
  const auto& drawn = std::get<DrawingDimension>(desk.Sheet->ModelSpace.at(0));
  EXPECT_EQ(drawn.TextStyle, "Dimensional");
  EXPECT_EQ(drawn.ArrowheadSize, 4);
  EXPECT_EQ(drawn.TextGap, 1);
  EXPECT_EQ(drawn.TextHeight, 5);
  EXPECT_EQ(drawn.ScaleFactor, 30);
  EXPECT_FALSE(drawn.TextInsideAlign);
  EXPECT_TRUE(drawn.TextInside);
  EXPECT_EQ(drawn.PrimaryUnitsPrecision, 0);
  EXPECT_EQ(Member(dimension, "TextStyle"), AutomationValue(std::string("Dimensional")));
  EXPECT_EQ(Member(dimension, "ArrowheadSize"), AutomationValue(4.0));
  EXPECT_EQ(Member(dimension, "TextInside"), AutomationValue(true));
  EXPECT_EQ(Member(dimension, "PrimaryUnitsPrecision"), AutomationValue(Long{0}));
}

TEST(Dimensions, RefuseSizesThatCannotBe) {
  DocumentDesk desk;
  const AutomationHandle dimension = desk.AddDimension();
  const auto raised = [&](const char* member, const AutomationValue& value) {
    return RaisedBy([&] { SetMember(dimension, member, value); });
  };
  EXPECT_EQ(raised("TextStyle", std::string("Absent")), keyNotFound);
  EXPECT_EQ(raised("ArrowheadSize", -1.0), 5);
  EXPECT_EQ(raised("ArrowheadSize", 0.0), 0);
  EXPECT_EQ(raised("TextGap", notANumber), 5);
  EXPECT_EQ(raised("TextHeight", 0.0), 5);
  EXPECT_EQ(raised("ScaleFactor", 0.0), 5);
  EXPECT_EQ(raised("TextInside", std::string("True")), 13);
  EXPECT_EQ(raised("PrimaryUnitsPrecision", Long{9}), 5);
  EXPECT_EQ(raised("PrimaryUnitsPrecision", Long{8}), 0);
  EXPECT_EQ(raised("PrimaryUnitsPrecision", Long{-1}), 5);
  EXPECT_EQ(raised("PrimaryUnitsPrecision", 1e300), 6);
}

}  // namespace

}  // namespace trelonit::test

#include <cmath>
#include <limits>
#include <numbers>
#include <set>

#include "tests/drawinghost/HostDesk.h"
#include "tests/support/ExtremeNumbers.h"

namespace trelonit::test {

namespace {

constexpr int invalidName = -2145386493;
constexpr int unknownVariable = -2145320939;

TEST(Layers, TakeAllPropertiesOfASetUpLayer) {
  DocumentDesk desk;
  const AutomationHandle layer = desk.AddNamed("Layers", "Main");
  SetMember(layer, "Freeze", true);
  SetMember(layer, "LayerOn", false);
  SetMember(layer, "Linetype", std::string("CONTINUOUS"));
  SetMember(layer, "Lineweight", Long{50});
  SetMember(layer, "Lock", true);
  SetMember(layer, "Plottable", false);
  const DrawingLayer& drawn = *FindLayer(*desk.Sheet, "Main");
  EXPECT_TRUE(drawn.Freeze);
  EXPECT_FALSE(drawn.LayerOn);
  EXPECT_EQ(drawn.Linetype, "CONTINUOUS");
  EXPECT_EQ(drawn.Lineweight, 50);
  EXPECT_TRUE(drawn.Lock);
  EXPECT_FALSE(drawn.Plottable);
  EXPECT_EQ(Member(layer, "Freeze"), AutomationValue(true));
  EXPECT_EQ(Member(layer, "LayerOn"), AutomationValue(false));
  EXPECT_EQ(Member(layer, "Linetype"), AutomationValue(std::string("CONTINUOUS")));
  EXPECT_EQ(Member(layer, "Lineweight"), AutomationValue(Long{50}));
  EXPECT_EQ(Member(layer, "Lock"), AutomationValue(true));
  EXPECT_EQ(Member(layer, "Plottable"), AutomationValue(false));
}

TEST(Layers, RefuseWeightsAndLinetypesThatDrawingsDoNotHave) {
  DocumentDesk desk;
  const AutomationHandle layer = desk.AddNamed("Layers", "Main");
  EXPECT_EQ(RaisedBy([&] { SetMember(layer, "Lineweight", Long{49}); }), 5);
  EXPECT_EQ(RaisedBy([&] { SetMember(layer, "Lineweight", std::string("thick")); }), 13);
  EXPECT_EQ(RaisedBy([&] { SetMember(layer, "Linetype", std::string("DASHED")); }), keyNotFound);
  EXPECT_EQ(RaisedBy([&] { SetMember(layer, "Freeze", std::string("yes")); }), 13);
  EXPECT_EQ(FindLayer(*desk.Sheet, "Main")->Lineweight, defaultLineweight);
}

TEST(Layers, OfOneNameAreOneLayerInAnyCase) {
  DocumentDesk desk;
  desk.AddNamed("Layers", "Оси");
  SetMember(desk.AddNamed("Layers", "ОСИ"), "Lineweight", Long{13});
  ASSERT_EQ(desk.Sheet->Layers.size(), 2u);
  EXPECT_EQ(desk.Sheet->Layers[1].Name, "Оси");
  EXPECT_EQ(desk.Sheet->Layers[1].Lineweight, 13);
}

TEST(Layers, RefuseNamesThatDrawingsCannotHold) {
  DocumentDesk desk;
  for (const std::string& name :
       {std::string(), std::string("a|b"), std::string("a\nb"), std::string(256, 'a')}) {
    EXPECT_EQ(RaisedBy([&] { desk.AddNamed("Layers", name); }), invalidName) << name;
  }
  EXPECT_EQ(desk.Sheet->Layers.size(), 1u);
  const AutomationHandle layers = ObjectMember(desk.Document, "Layers");
  EXPECT_EQ(RaisedBy([&] { CallMember(layers, "Add"); }), 5);
  EXPECT_EQ(RaisedBy([&] { CallMember(layers, "Add", {Long{1}}); }), 13);
}

TEST(Layers, TakeTheLineWeightsOfTheFormatAndNoOthers) {
  // By default, and those that pens have, in hundredths of a millimetre.
  const std::set<Long> weights{-3, 0,  5,  9,  13, 15,  18,  20,  25,  30,  35,  40, 50,
                               53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
  DocumentDesk desk;
  const AutomationHandle layer = desk.AddNamed("Layers", "Main");
  for (Long weight = -5; weight <= 215; ++weight) {
    EXPECT_EQ(RaisedBy([&] { SetMember(layer, "Lineweight", weight); }),
              weights.contains(weight) ? 0 : 5)
        << weight;
  }
}

TEST(Layers, TakeNamesOf255Bytes) {
  DocumentDesk desk;
  const std::string longest(255, 'a');
  EXPECT_EQ(RaisedBy([&] { desk.AddNamed("Layers", longest); }), 0);
  EXPECT_NE(FindLayer(*desk.Sheet, longest), nullptr);
}

TEST(TextStyles, TakeTheLimitsOfTheirRanges) {
  DocumentDesk desk;
  const AutomationHandle style = desk.AddNamed("TextStyles", "Dimensional");
  // Letters lean by 85 degrees at most.
  const double limit = 85 * std::numbers::pi / 180;
  for (const double angle : {-limit, limit}) {
    EXPECT_EQ(RaisedBy([&] { SetMember(style, "ObliqueAngle", angle); }), 0);
    EXPECT_EQ(FindTextStyle(*desk.Sheet, "Dimensional")->ObliqueAngle, angle);
    EXPECT_EQ(RaisedBy([&] { SetMember(style, "ObliqueAngle", angle * 1.0001); }), 5);
  }
  for (const double width : {0.01, 100.0}) {
    EXPECT_EQ(RaisedBy([&] { SetMember(style, "Width", width); }), 0);
    EXPECT_EQ(FindTextStyle(*desk.Sheet, "Dimensional")->Width, width);
  }
  EXPECT_EQ(RaisedBy([&] { SetMember(style, "Width", 0.0099); }), 5);
  EXPECT_EQ(RaisedBy([&] { SetMember(style, "Width", 100.01); }), 5);
}

TEST(TextStyles, TakeObliqueAngleAndWidth) {
  DocumentDesk desk;
  const AutomationHandle style = desk.AddNamed("TextStyles", "Dimensional");
  SetMember(style, "ObliqueAngle", 0.262);
  SetMember(style, "Width", 0.55);
  const DrawingTextStyle& drawn = *FindTextStyle(*desk.Sheet, "Dimensional");
  EXPECT_EQ(drawn.ObliqueAngle, 0.262);
  EXPECT_EQ(drawn.Width, 0.55);
  EXPECT_EQ(Member(style, "Width"), AutomationValue(0.55));
  EXPECT_EQ(RaisedBy([&] { SetMember(style, "ObliqueAngle", 1.5); }), 5);
  EXPECT_EQ(RaisedBy([&] { SetMember(style, "Width", 0.0); }), 5);
  EXPECT_EQ(RaisedBy([&] { SetMember(style, "Width", notANumber); }), 5);
}

TEST(ActiveRecords, AreWhatNewEntitiesGet) {
  DocumentDesk desk;
  SetMember(desk.Document, "ActiveLayer", desk.AddNamed("Layers", "Main"));
  SetMember(desk.Document, "ActiveTextStyle", desk.AddNamed("TextStyles", "Dimensional"));
  SetMember(desk.Document, "ActiveDimStyle", desk.AddNamed("DimStyles", "NordDim"));
  desk.AddText();
  desk.AddDimension();
  const auto& text = std::get<DrawingText>(desk.Sheet->ModelSpace[0]);
  const auto& dimension = std::get<DrawingDimension>(desk.Sheet->ModelSpace[1]);
  EXPECT_EQ(text.Layer, "Main");
  EXPECT_EQ(text.Style, "Dimensional");
  EXPECT_EQ(dimension.Layer, "Main");
  EXPECT_EQ(dimension.Style, "NordDim");
}

TEST(ActiveRecords, CanBeReadAndSetOnAgain) {
  DocumentDesk desk;
  SetMember(desk.Document, "ActiveLayer", desk.AddNamed("Layers", "Main"));
  SetMember(ObjectMember(desk.Document, "ActiveLayer"), "Lineweight", Long{70});
  EXPECT_EQ(FindLayer(*desk.Sheet, "Main")->Lineweight, 70);
  SetMember(desk.Document, "ActiveTextStyle", ObjectMember(desk.Document, "ActiveTextStyle"));
  EXPECT_EQ(desk.Sheet->ActiveTextStyle, "STANDARD");
}

TEST(ActiveRecords, AreNeitherOfAnotherKindNorOfAnotherDocument) {
  DocumentDesk desk;
  DocumentDesk other;
  const AutomationHandle style = desk.AddNamed("TextStyles", "Dimensional");
  EXPECT_EQ(RaisedBy([&] { SetMember(desk.Document, "ActiveLayer", style); }), 13);
  EXPECT_EQ(RaisedBy([&] { SetMember(desk.Document, "ActiveLayer", std::string("0")); }), 13);
  EXPECT_EQ(
      RaisedBy([&] { SetMember(desk.Document, "ActiveLayer", other.AddNamed("Layers", "Main")); }),
      5);
  EXPECT_EQ(desk.Sheet->ActiveLayer, "0");
}

TEST(Variables, AreTheTwelveOfDimensions) {
  DocumentDesk desk;
  desk.AddNamed("TextStyles", "Dimensional");
  desk.SetVariable("DIMSCALE", Long{20});
  desk.SetVariable("DIMDLI", Long{10});
  desk.SetVariable("DIMEXE", Long{1});
  desk.SetVariable("DIMEXO", Long{2});
  desk.SetVariable("DIMDEC", Long{0});
  desk.SetVariable("DIMGAP", Long{3});
  desk.SetVariable("DIMTIH", Long{1});
  desk.SetVariable("DIMTAD", Long{0});
  desk.SetVariable("DIMTXT", Long{5});
  desk.SetVariable("dimasz", 4.5);
  desk.SetVariable("DIMTXSTY", std::string("dimensional"));
  desk.SetVariable("DIMBLK", std::string("."));
  const DimensionVariables expected{.DIMSCALE = 20,
                                    .DIMDLI = 10,
                                    .DIMEXE = 1,
                                    .DIMEXO = 2,
                                    .DIMDEC = 0,
                                    .DIMGAP = 3,
                                    .DIMTIH = 1,
                                    .DIMTAD = 0,
                                    .DIMTXT = 5,
                                    .DIMASZ = 4.5,
                                    .DIMTXSTY = "Dimensional",
                                    .DIMBLK = ""};
  EXPECT_EQ(desk.Sheet->Variables, expected);
}

TEST(Variables, RefuseUnknownNamesAndWrongValues) {
  DocumentDesk desk;
  const auto raised = [&](const std::string& name, const AutomationValue& value) {
    return RaisedBy([&] { desk.SetVariable(name, value); });
  };
  EXPECT_EQ(raised("DIMSCAL", 1.0), unknownVariable);
  EXPECT_EQ(raised("LTSCALE", 1.0), unknownVariable);
  EXPECT_EQ(raised("DIMSCALE", -1.0), 5);
  EXPECT_EQ(raised("DIMSCALE", Long{0}), 5);
  EXPECT_EQ(raised("DIMSCALE", notANumber), 5);
  EXPECT_EQ(raised("DIMSCALE", infinity), 5);
  EXPECT_EQ(raised("DIMSCALE", std::string("20")), 13);
  EXPECT_EQ(raised("DIMDEC", Long{9}), 5);
  EXPECT_EQ(raised("DIMTIH", Long{2}), 5);
  EXPECT_EQ(raised("DIMTAD", Long{5}), 5);
  EXPECT_EQ(raised("DIMTXT", Long{0}), 5);
  EXPECT_EQ(raised("DIMTXSTY", std::string("Absent")), keyNotFound);
  EXPECT_EQ(raised("DIMTXSTY", Long{1}), 13);
  EXPECT_EQ(raised("DIMBLK", std::string("_OBLIQUE")), keyNotFound);
  EXPECT_EQ(desk.Sheet->Variables, DimensionVariables{});
  // Without a frame round the text a gap may be written below zero.
  EXPECT_EQ(raised("DIMGAP", -1.0), 0);
}

TEST(DimStyles, TakeUpTheVariablesWhenTheyAreMadeActiveAgain) {
  DocumentDesk desk;
  const AutomationHandle style = desk.AddNamed("DimStyles", "NordDim");
  SetMember(desk.Document, "ActiveDimStyle", style);
  desk.SetVariable("DIMSCALE", Long{20});
  EXPECT_EQ(FindDimStyle(*desk.Sheet, "NordDim")->Variables.DIMSCALE, 1);
  SetMember(desk.Document, "ActiveDimStyle", style);
  EXPECT_EQ(FindDimStyle(*desk.Sheet, "NordDim")->Variables.DIMSCALE, 20);
  EXPECT_EQ(FindDimStyle(*desk.Sheet, "STANDARD")->Variables.DIMSCALE, 1);
}

TEST(DimStyles, BringTheirVariablesWhenTheyBecomeActive) {
  DocumentDesk desk;
  const AutomationHandle standard = ObjectMember(desk.Document, "ActiveDimStyle");
  SetMember(desk.Document, "ActiveDimStyle", desk.AddNamed("DimStyles", "NordDim"));
  desk.SetVariable("DIMSCALE", Long{20});
  SetMember(desk.Document, "ActiveDimStyle", standard);
  EXPECT_EQ(desk.Sheet->Variables.DIMSCALE, 1);
  EXPECT_EQ(desk.Sheet->ActiveDimStyle, "STANDARD");
}

TEST(SetUp, OfTheDrawingClassFillsTheDocument) {
  DocumentDesk desk;
  RecordingMessages messages;
  clsAutoCAD(desk.Automation, messages, NumberLocale{}).SetupDrawing(desk.Document);
  EXPECT_TRUE(messages.Shown.empty());
  EXPECT_EQ(desk.Sheet->ActiveLayer, "Main");
  EXPECT_EQ(FindLayer(*desk.Sheet, "Main")->Lineweight, 50);
  EXPECT_EQ(FindLayer(*desk.Sheet, "Dimension")->Lineweight, 13);
  EXPECT_EQ(desk.Sheet->ActiveTextStyle, "Dimensional");
  EXPECT_EQ(desk.Sheet->ActiveDimStyle, "NordDim");
  const DimensionVariables expected{.DIMSCALE = 20,
                                    .DIMDLI = 10,
                                    .DIMEXE = 1,
                                    .DIMEXO = 1,
                                    .DIMDEC = 0,
                                    .DIMGAP = 1,
                                    .DIMTIH = 0,
                                    .DIMTAD = 1,
                                    .DIMTXT = 5,
                                    .DIMASZ = 4,
                                    .DIMTXSTY = "Dimensional",
                                    .DIMBLK = ""};
  EXPECT_EQ(desk.Sheet->Variables, expected);
  EXPECT_EQ(FindDimStyle(*desk.Sheet, "NordDim")->Variables, expected);
}

TEST(DimStyles, HaveNoPropertiesOfTheirOwn) {
  DocumentDesk desk;
  const AutomationHandle style = desk.AddNamed("DimStyles", "NordDim");
  constexpr int notSupported = 438;
  EXPECT_EQ(RaisedBy([&] { Member(style, "Width"); }), notSupported);
  EXPECT_EQ(RaisedBy([&] { SetMember(style, "Width", 1.0); }), notSupported);
}

}  // namespace

}  // namespace trelonit::test

#include <limits>
#include <set>

#include "drawing/host/DrawingPicture.h"
#include "drawing/host/dxf/DxfWriter.h"
#include "tests/drawinghost/DxfReading.h"
#include "tests/drawinghost/HostDesk.h"
#include "tests/support/ExtremeNumbers.h"
#include "tests/support/ProcessorTime.h"

namespace trelonit::test {

namespace {

class WrittenScheme : public testing::TestWithParam<Long> {
 protected:
  static Long PanelsOf(Long scheme) { return scheme == 3 ? 2 : 4; }

  std::shared_ptr<Drawing> Sheet = ExportedDrawing(GetParam(), PanelsOf(GetParam()));
  DxfFile File = ReadDxf(WriteDxf(*Sheet));
};

INSTANTIATE_TEST_SUITE_P(All, WrittenScheme, testing::Values(1, 2, 3, 4));

TEST_P(WrittenScheme, HasUniqueHandlesBelowTheSeed) {
  const long long seed = std::stoll(File.Header.at("$HANDSEED").at(0), nullptr, 16);
  std::set<long long> handles;
  for (const DxfObject& object : File.Objects) {
    if (object.Kind == "ENDTAB" || object.Kind == "EOF") {
      continue;
    }
    const long long handle = std::stoll(object.Handle(), nullptr, 16);
    EXPECT_TRUE(handles.insert(handle).second) << object.Kind << " " << object.Handle();
    EXPECT_GT(handle, 0);
    EXPECT_LT(handle, seed);
  }
  // Every owner is there; tables and the root have none.
  for (const DxfObject& object : File.Objects) {
    if (object.Has(330) && object.Text(330) != "0") {
      EXPECT_EQ(handles.count(std::stoll(object.Text(330), nullptr, 16)), 1u) << object.Kind;
    }
  }
}

TEST_P(WrittenScheme, HasEveryEntityInItsOrder) {
  std::vector<std::string> expected;
  for (const DrawingEntity& entity : Sheet->ModelSpace) {
    constexpr const char* kinds[]{"LINE", "TEXT", "DIMENSION"};
    expected.emplace_back(kinds[entity.index()]);
  }
  std::vector<std::string> written;
  for (const DxfObject& object : File.Objects) {
    if (object.Section == "ENTITIES") {
      written.push_back(object.Kind);
    }
  }
  EXPECT_EQ(written, expected);
}

TEST_P(WrittenScheme, HasABlockWithAPictureForEachDimension) {
  std::map<std::string, std::vector<std::string>> blocks;
  std::string block;
  for (const DxfObject& object : File.Objects) {
    if (object.Kind == "BLOCK") {
      block = object.Text(2);
      EXPECT_EQ(object.Text(70), block.rfind("*D", 0) == 0 ? "1" : "0");
      EXPECT_EQ(object.Text(330), File.Record("BLOCK_RECORD", block).Handle());
    } else if (object.Section == "BLOCKS" && object.Kind != "ENDBLK") {
      blocks[block].push_back(object.Kind);
    }
  }
  const std::vector<DxfObject> dimensions = File.Of("ENTITIES", "DIMENSION");
  ASSERT_FALSE(dimensions.empty());
  std::set<std::string> named;
  for (const DxfObject& dimension : dimensions) {
    const std::vector<std::string>& picture = blocks[dimension.Text(2)];
    EXPECT_EQ(std::count(picture.begin(), picture.end(), "SOLID"), 2);
    EXPECT_EQ(std::count(picture.begin(), picture.end(), "TEXT"), 1);
    EXPECT_GE(std::count(picture.begin(), picture.end(), "LINE"), 3);
    EXPECT_TRUE(named.insert(dimension.Text(2)).second);
  }
  EXPECT_EQ(blocks.size(), dimensions.size());
}

TEST_P(WrittenScheme, HasLayersAndStylesOfTheSetUp) {
  EXPECT_EQ(File.Record("LAYER", "Main").Text(370), "50");
  EXPECT_EQ(File.Record("LAYER", "Dimension").Text(370), "13");
  EXPECT_EQ(File.Record("LAYER", "0").Text(370), "-3");
  const DxfObject style = File.Record("STYLE", "Dimensional");
  EXPECT_EQ(style.Number(41), 0.55);
  EXPECT_NEAR(style.Number(50), 15.01149, 1e-5);
  const DxfObject dimStyle = File.Record("DIMSTYLE", "NordDim");
  const std::map<int, double> expected{{40, 20}, {41, 4}, {42, 1},  {43, 10}, {44, 1},
                                       {73, 0},  {77, 1}, {147, 1}, {140, 5}, {271, 0}};
  for (const auto& [code, value] : expected) {
    EXPECT_EQ(dimStyle.Number(code), value) << code;
  }
  EXPECT_EQ(dimStyle.Text(340), style.Handle());
  // The standard arrow needs no name.
  EXPECT_FALSE(dimStyle.Has(342));
}

TEST_P(WrittenScheme, HasTheScaleOfTheTrussInHeaderAndDimensions) {
  EXPECT_EQ(File.Header.at("$DIMSCALE"), std::vector<std::string>{"30.0"});
  for (const DxfObject& dimension : File.Of("ENTITIES", "DIMENSION")) {
    std::vector<std::string> overrides;
    for (const DxfPair& pair : dimension.Pairs) {
      if (pair.Code >= 1000) {
        overrides.push_back(pair.Value);
      }
    }
    // Scale and text inside; the rest is the style's.
    EXPECT_EQ(overrides,
              (std::vector<std::string>{"ACAD", "DSTYLE", "{", "40", "30.0", "174", "1", "}"}));
  }
}

TEST(DxfHeader, TellsVersionUnitsExtentsAndCurrentRecords) {
  const std::shared_ptr<Drawing> sheet = ExportedDrawing(1, 4);
  const DxfFile file = ReadDxf(WriteDxf(*sheet));
  const auto header = [&](const char* name) { return file.Header.at(name); };
  EXPECT_EQ(header("$ACADVER"), std::vector<std::string>{"AC1021"});
  EXPECT_EQ(header("$INSUNITS"), std::vector<std::string>{"4"});
  EXPECT_EQ(header("$MEASUREMENT"), std::vector<std::string>{"1"});
  EXPECT_EQ(header("$LWDISPLAY"), std::vector<std::string>{"1"});
  EXPECT_EQ(header("$CLAYER"), std::vector<std::string>{"Main"});
  EXPECT_EQ(header("$TEXTSTYLE"), std::vector<std::string>{"Dimensional"});
  EXPECT_EQ(header("$DIMSTYLE"), std::vector<std::string>{"NordDim"});
  EXPECT_EQ(header("$DIMTXSTY"), std::vector<std::string>{"Dimensional"});
  EXPECT_EQ(header("$DIMBLK"), std::vector<std::string>{""});
  const DrawingBounds bounds = BoundsOf(*sheet);
  EXPECT_EQ(std::stod(header("$EXTMIN").at(0)), bounds.Least.X);
  EXPECT_EQ(std::stod(header("$EXTMAX").at(1)), bounds.Greatest.Y);
}

TEST(DxfLayers, KeepTheirSwitches) {
  Drawing drawing;
  drawing.Layers.push_back({.Name = "Оси",
                            .Freeze = true,
                            .LayerOn = false,
                            .Lineweight = 211,
                            .Lock = true,
                            .Plottable = false});
  const DxfObject layer = ReadDxf(WriteDxf(drawing)).Record("LAYER", "Оси");
  EXPECT_EQ(layer.Text(70), "5");
  EXPECT_EQ(layer.Text(62), "-7");
  EXPECT_EQ(layer.Text(290), "0");
  EXPECT_EQ(layer.Text(370), "211");
}

TEST(DxfTexts, CarryEachAlignmentInTheFormatsTwoNumbers) {
  const std::map<TextAlignment, std::pair<std::string, std::string>> expected{
      {TextAlignment::Left, {"0", "0"}},         {TextAlignment::Centre, {"1", "0"}},
      {TextAlignment::Right, {"2", "0"}},        {TextAlignment::Middle, {"4", "0"}},
      {TextAlignment::TopLeft, {"0", "3"}},      {TextAlignment::TopCentre, {"1", "3"}},
      {TextAlignment::TopRight, {"2", "3"}},     {TextAlignment::MiddleLeft, {"0", "2"}},
      {TextAlignment::MiddleCentre, {"1", "2"}}, {TextAlignment::MiddleRight, {"2", "2"}},
      {TextAlignment::BottomLeft, {"0", "1"}},   {TextAlignment::BottomCentre, {"1", "1"}},
      {TextAlignment::BottomRight, {"2", "1"}}};
  for (const auto& [alignment, numbers] : expected) {
    Drawing drawing;
    drawing.ModelSpace = {DrawingText{.Text = "a",
                                      .InsertionPoint = {1, 2},
                                      .Alignment = alignment,
                                      .TextAlignmentPoint = {3, 4}}};
    const DxfObject text = ReadDxf(WriteDxf(drawing)).Of("ENTITIES", "TEXT").at(0);
    EXPECT_EQ(text.Text(72), numbers.first);
    EXPECT_EQ(text.Text(73), numbers.second);
    EXPECT_EQ(text.Has(11), alignment != TextAlignment::Left);
    if (alignment != TextAlignment::Left) {
      EXPECT_EQ(text.Number(11), 3);
      EXPECT_EQ(text.Number(21), 4);
    } else {
      EXPECT_EQ(text.Number(10), 1);
    }
  }
}

TEST(DxfDimensions, CarryAllThatDiffersFromTheirStyle) {
  Drawing drawing;
  drawing.TextStyles.push_back({.Name = "Dimensional"});
  drawing.ModelSpace = {DrawingDimension{.Point2 = {100, 0},
                                         .Location = {0, 10},
                                         .TextStyle = "dimensional",
                                         .TextInsideAlign = true,
                                         .PrimaryUnitsPrecision = 0}};
  const DxfFile file = ReadDxf(WriteDxf(drawing));
  std::vector<std::pair<int, std::string>> overrides;
  const DxfObject dimension = file.Of("ENTITIES", "DIMENSION").at(0);
  for (const DxfPair& pair : dimension.Pairs) {
    if (pair.Code >= 1000) {
      overrides.emplace_back(pair.Code, pair.Value);
    }
  }
  const std::string style = file.Record("STYLE", "Dimensional").Handle();
  const std::vector<std::pair<int, std::string>> expected{
      {1001, "ACAD"}, {1000, "DSTYLE"}, {1002, "{"},   {1070, "73"},  {1070, "1"},
      {1070, "271"},  {1070, "0"},      {1070, "340"}, {1005, style}, {1002, "}"}};
  EXPECT_EQ(overrides, expected);
}

TEST(WriteDxf, OfAnEmptyDrawingIsAWholeFile) {
  const std::string text = WriteDxf({});
  const DxfFile file = ReadDxf(text);
  EXPECT_EQ(file.Of("TABLES", "LAYER").size(), 1u);
  EXPECT_EQ(file.Of("BLOCKS", "BLOCK").size(), 2u);
  EXPECT_EQ(text.substr(text.size() - 8), "  0\nEOF\n");
}

TEST(WriteDxf, RaisesForNumbersThatAreNone) {
  const auto raised = [](DrawingEntity entity) {
    Drawing drawing;
    drawing.ModelSpace.push_back(std::move(entity));
    return RaisedBy([&] { WriteDxf(drawing); });
  };
  EXPECT_EQ(raised(DrawingLine{.Start = {0, notANumber}}), 6);
  EXPECT_EQ(raised(DrawingLine{.End = {0, 0, infinity}}), 6);
  EXPECT_EQ(raised(DrawingText{.Text = "a", .Rotation = notANumber}), 6);
  EXPECT_EQ(raised(DrawingText{.Text = "a", .Height = infinity}), 6);
  EXPECT_EQ(raised(DrawingDimension{.Point1 = {notANumber, 0}}), 6);
  EXPECT_EQ(raised(DrawingDimension{.ScaleFactor = infinity}), 6);
  EXPECT_EQ(raised(DrawingLine{}), 0);
}

TEST(WriteDxf, RaisesForLayersAndStylesThatAreNotThere) {
  const auto raised = [](DrawingEntity entity) {
    Drawing drawing;
    drawing.ModelSpace.push_back(std::move(entity));
    return RaisedBy([&] { WriteDxf(drawing); });
  };
  EXPECT_EQ(raised(DrawingLine{.Layer = "Absent"}), 5);
  EXPECT_EQ(raised(DrawingText{.Text = "a", .Style = "Absent"}), 5);
  EXPECT_EQ(raised(DrawingDimension{.Style = "Absent"}), 5);
  EXPECT_EQ(raised(DrawingDimension{.TextStyle = "Absent"}), 5);
}

/// Draws so many entities through the host, and writes them.
void DrawAndWrite(int entities) {
  DocumentDesk desk;
  for (int entity = 0; entity < entities; entity += 5) {
    desk.AddLine();
    desk.AddText();
    desk.AddLine();
    desk.AddText();
    desk.AddDimension();
  }
  if (WriteDxf(*desk.Sheet).size() < static_cast<std::size_t>(entities)) {
    throw std::logic_error("too little was written");
  }
}

TEST(WriteDxf, OfAHundredThousandEntitiesTakesTimeInProportion) {
  const double few = SecondsOf([] { DrawAndWrite(5000); });
  const double many = SecondsOf([] { DrawAndWrite(100000); });
  // Twenty times as many; room for a busy machine, none for a square law.
  EXPECT_LT(many, 60 * few);
}

}  // namespace

}  // namespace trelonit::test

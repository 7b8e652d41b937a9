// Every record of a small drawing, pair by pair, as the drawing format wants it. Handles stand in
// tests of their own.

#include <gtest/gtest.h>

#include "drawing/host/dxf/DxfWriter.h"
#include "tests/drawinghost/DxfReading.h"

namespace trelonit::test {

namespace {

using Lines = std::vector<std::string>;

bool NamesAnObject(const DxfPair& pair) {
  return pair.Code == 5 || pair.Code == 105 || pair.Code == 330;
}

/// The objects of a section, each as its kind and its pairs; the ends of tables are left out.
Lines ObjectsOf(const DxfFile& file, const std::string& section) {
  Lines lines;
  for (const DxfObject& object : file.Objects) {
    if (object.Section != section || object.Kind == "ENDTAB") {
      continue;
    }
    std::string line = object.Kind;
    for (const DxfPair& pair : object.Pairs) {
      if (!NamesAnObject(pair)) {
        line += " " + std::to_string(pair.Code) + "=" + pair.Value;
      }
    }
    lines.push_back(line);
  }
  return lines;
}

Drawing OneLine(PlacePoint start, PlacePoint end) {
  Drawing drawing;
  drawing.ModelSpace = {DrawingLine{.Start = start, .End = end}};
  return drawing;
}

/// A length of 100 in the style that every drawing has, but for its arrows.
Drawing OneDimension() {
  Drawing drawing;
  drawing.ModelSpace = {
      DrawingDimension{.Point2 = {100, 0}, .Location = {50, 40}, .ArrowheadSize = 3}};
  return drawing;
}

TEST(DxfRecords, OfTheTablesHaveEveryValueUnderItsCode) {
  const DxfFile file = ReadDxf(WriteDxf(OneLine({10, 5}, {70, 25})));
  const std::string record = " 100=AcDbSymbolTableRecord ";
  const std::string noDashes = " 70=0 3= 72=65 73=0 40=0.0";
  EXPECT_EQ(
      ObjectsOf(file, "TABLES"),
      (Lines{
          "TABLE 2=VPORT 100=AcDbSymbolTable 70=1",
          // The view is half as wide again as it is high and a twentieth larger than the drawing.
          "VPORT" + record +
              "100=AcDbViewportTableRecord 2=*ACTIVE 70=0 10=0.0 20=0.0 11=1.0 21=1.0 12=40.0 "
              "22=15.0 13=0.0 23=0.0 14=10.0 24=10.0 15=10.0 25=10.0 16=0.0 26=0.0 36=1.0 "
              "17=0.0 27=0.0 37=0.0 40=42.0 41=1.5 42=50.0",
          "TABLE 2=LTYPE 100=AcDbSymbolTable 70=3",
          "LTYPE" + record + "100=AcDbLinetypeTableRecord 2=BYBLOCK" + noDashes,
          "LTYPE" + record + "100=AcDbLinetypeTableRecord 2=BYLAYER" + noDashes,
          "LTYPE" + record + "100=AcDbLinetypeTableRecord 2=CONTINUOUS" + noDashes,
          "TABLE 2=LAYER 100=AcDbSymbolTable 70=1",
          "LAYER" + record + "100=AcDbLayerTableRecord 2=0 70=0 62=7 6=CONTINUOUS 290=1 370=-3",
          "TABLE 2=STYLE 100=AcDbSymbolTable 70=1",
          "STYLE" + record +
              "100=AcDbTextStyleTableRecord 2=STANDARD 70=0 40=0.0 41=1.0 50=0.0 71=0 42=1.0 "
              "3=arial.ttf 4=",
          "TABLE 2=VIEW 100=AcDbSymbolTable 70=0", "TABLE 2=UCS 100=AcDbSymbolTable 70=0",
          "TABLE 2=APPID 100=AcDbSymbolTable 70=1",
          "APPID" + record + "100=AcDbRegAppTableRecord 2=ACAD 70=0",
          "TABLE 2=DIMSTYLE 100=AcDbSymbolTable 70=1 100=AcDbDimStyleTable 71=0",
          "DIMSTYLE" + record +
              "100=AcDbDimStyleTableRecord 2=STANDARD 70=0 40=1.0 41=2.5 42=0.625 43=3.75 "
              "44=1.25 73=0 77=1 147=0.625 140=2.5 271=2 340=" +
              file.Record("STYLE", "STANDARD").Handle() + " 74=0 78=0 172=1 174=0 277=2 278=46",
          "TABLE 2=BLOCK_RECORD 100=AcDbSymbolTable 70=2",
          "BLOCK_RECORD" + record + "100=AcDbBlockTableRecord 2=*MODEL_SPACE 340=0",
          "BLOCK_RECORD" + record + "100=AcDbBlockTableRecord 2=*PAPER_SPACE 340=0"}));
}

TEST(DxfRecords, OfTheViewShowADrawingOfAnySize) {
  const auto heightOf = [](const Drawing& drawing) {
    return ReadDxf(WriteDxf(drawing)).Record("VPORT", "*ACTIVE").Text(40);
  };
  EXPECT_EQ(heightOf(OneLine({0, 0}, {0, 0.5})), "0.525");
  // A view needs some height.
  EXPECT_EQ(heightOf(OneLine({5, 5}, {5, 5})), "1.0");
}

TEST(DxfRecords, OfTheHeaderHaveEveryValueUnderItsCode) {
  Lines header;
  const std::vector<DxfPair> pairs = ReadPairs(WriteDxf(OneLine({10, 5}, {70, 25})));
  for (std::size_t place = 2; pairs.at(place).Code != 0; ++place) {
    const DxfPair& pair = pairs[place];
    if (pair.Code == 9) {
      header.push_back(pair.Value);
    } else {
      header.back() +=
          " " + std::to_string(pair.Code) + (NamesAnObject(pair) ? "" : "=" + pair.Value);
    }
  }
  EXPECT_EQ(header, (Lines{"$ACADVER 1=AC1021",
                           "$DWGCODEPAGE 3=ANSI_1251",
                           "$HANDSEED 5",
                           "$LIMMIN 10=10.0 20=5.0",
                           "$LIMMAX 10=70.0 20=25.0",
                           "$EXTMIN 10=10.0 20=5.0 30=0.0",
                           "$EXTMAX 10=70.0 20=25.0 30=0.0",
                           "$PLIMMIN 10=0.0 20=0.0",
                           "$PLIMMAX 10=420.0 20=297.0",
                           "$INSUNITS 70=4",
                           "$MEASUREMENT 70=1",
                           "$LUNITS 70=2",
                           "$LWDISPLAY 290=1",
                           "$CLAYER 8=0",
                           "$TEXTSTYLE 7=STANDARD",
                           "$DIMSTYLE 2=STANDARD",
                           "$DIMSCALE 40=1.0",
                           "$DIMASZ 40=2.5",
                           "$DIMEXO 40=0.625",
                           "$DIMDLI 40=3.75",
                           "$DIMEXE 40=1.25",
                           "$DIMTIH 70=0",
                           "$DIMTAD 70=1",
                           "$DIMGAP 40=0.625",
                           "$DIMTXT 40=2.5",
                           "$DIMDEC 70=2",
                           "$DIMTXSTY 7=STANDARD",
                           "$DIMBLK 1="}));
}

TEST(DxfRecords, OfEntitiesHaveEveryValueUnderItsCode) {
  Drawing drawing = OneLine({1, 2, 3}, {4, 5, 6});
  drawing.ModelSpace.push_back(
      DrawingText{.Text = "a", .InsertionPoint = {7, 8}, .Height = 3, .Rotation = 0});
  EXPECT_EQ(ObjectsOf(ReadDxf(WriteDxf(drawing)), "ENTITIES"),
            (Lines{"LINE 100=AcDbEntity 8=0 100=AcDbLine 10=1.0 20=2.0 30=3.0 11=4.0 21=5.0 31=6.0",
                   "TEXT 100=AcDbEntity 8=0 100=AcDbText 10=7.0 20=8.0 30=0.0 40=3.0 1=a 50=0.0 "
                   "41=1.0 51=0.0 7=STANDARD 72=0 100=AcDbText 73=0"}));
  // The text stands over the middle of its line by the gap of 0.625 and half its height of 2.5.
  EXPECT_EQ(
      ObjectsOf(ReadDxf(WriteDxf(OneDimension())), "ENTITIES"),
      (Lines{"DIMENSION 100=AcDbEntity 8=0 100=AcDbDimension 2=*D1 10=100.0 20=40.0 30=0.0 "
             "11=50.0 21=41.875 31=0.0 70=32 1= 71=5 42=100.0 3=STANDARD "
             "100=AcDbAlignedDimension 13=0.0 23=0.0 33=0.0 14=100.0 24=0.0 34=0.0 50=0.0 "
             "100=AcDbRotatedDimension 1001=ACAD 1000=DSTYLE 1002={ 1070=41 1040=3.0 1002=}"}));
}

TEST(DxfRecords, OfBlocksHoldThePictureOfEachDimension) {
  const DxfFile file = ReadDxf(WriteDxf(OneDimension()));
  EXPECT_EQ(file.Of("TABLES", "TABLE").back().Text(70), "3");
  EXPECT_EQ(file.Of("TABLES", "BLOCK_RECORD").back().Text(2), "*D1");
  const auto begin = [](const std::string& name, int flags) {
    return "BLOCK 100=AcDbEntity 8=0 100=AcDbBlockBegin 2=" + name +
           " 70=" + std::to_string(flags) + " 10=0.0 20=0.0 30=0.0 3=" + name + " 1=";
  };
  const std::string end = "ENDBLK 100=AcDbEntity 8=0 100=AcDbBlockEnd";
  // Colour and thickness are those of the block.
  const std::string look = " 100=AcDbEntity 8=0 62=0 370=-2 ";
  EXPECT_EQ(
      ObjectsOf(file, "BLOCKS"),
      (Lines{begin("*MODEL_SPACE", 0), end, begin("*PAPER_SPACE", 0), end, begin("*D1", 1),
             "LINE" + look + "100=AcDbLine 10=0.0 20=0.625 30=0.0 11=0.0 21=41.25 31=0.0",
             "LINE" + look + "100=AcDbLine 10=100.0 20=0.625 30=0.0 11=100.0 21=41.25 31=0.0",
             "LINE" + look + "100=AcDbLine 10=0.0 20=40.0 30=0.0 11=100.0 21=40.0 31=0.0",
             "SOLID" + look +
                 "100=AcDbTrace 10=3.0 20=40.5 30=0.0 11=3.0 21=39.5 31=0.0 12=0.0 22=40.0 32=0.0 "
                 "13=0.0 23=40.0 33=0.0",
             "SOLID" + look +
                 "100=AcDbTrace 10=97.0 20=40.5 30=0.0 11=97.0 21=39.5 31=0.0 12=100.0 22=40.0 "
                 "32=0.0 13=100.0 23=40.0 33=0.0",
             "TEXT" + look +
                 "100=AcDbText 10=43.25 20=40.625 30=0.0 40=2.5 1=100.00 50=0.0 41=1.0 51=0.0 "
                 "7=STANDARD 72=1 11=50.0 21=41.875 31=0.0 100=AcDbText 73=2",
             end}));
}

TEST(DxfRecords, OfObjectsAreTheTwoDictionariesThatAFileNeeds) {
  const DxfFile file = ReadDxf(WriteDxf({}));
  const std::vector<DxfObject> dictionaries = file.Of("OBJECTS", "DICTIONARY");
  ASSERT_EQ(dictionaries.size(), 2u);
  EXPECT_EQ(
      ObjectsOf(file, "OBJECTS"),
      (Lines{"DICTIONARY 100=AcDbDictionary 281=1 3=ACAD_GROUP 350=" + dictionaries[1].Handle(),
             "DICTIONARY 100=AcDbDictionary 281=1"}));
  // Handles count from 1.
  EXPECT_EQ(dictionaries[0].Handle(), "1");
  EXPECT_EQ(dictionaries[0].Text(330), "0");
  EXPECT_EQ(dictionaries[1].Text(330), "1");
}

}  // namespace

}  // namespace trelonit::test

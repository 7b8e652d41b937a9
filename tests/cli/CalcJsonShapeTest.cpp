#ifndef _WIN32

#include <string>
#include <vector>

#include "tests/cli/JsonOutput.h"

namespace trelonit::test {

namespace {

using Texts = std::vector<std::string>;

const Texts topKeys{"TreloData",      "TreloResult",       "CheckResult", "ElementSection",
                    "OwnWeightAdded", "OwnWeightPerMetre", "Progib",      "lstForces",
                    "MSFlexGKoefUse", "Messages",          "Findings"};

const Texts dataKeys{"TreloType",    "LengthF",      "Hight",         "LenOporn",
                     "PanelNum",     "UpPForce",     "UpDistForce",   "DwnPForce",
                     "DwnDistForce", "UpPoyasBrace", "DownPoyasBrace"};

const Texts resultKeysBeforeTable{"KnotNum",        "AngleOporn", "AngleRaskos", "LenPanel",
                                  "LenOpornRaskos", "LenRaskos",  "UpKnotLoad",  "DwnKnotLoad",
                                  "ReactLeft",      "ReactRight"};

const Texts resultKeysAfterTable{
    "UpPoyasForce",  "DwnPoyasForce",  "RaskosForce",       "StoykaForce",  "Balanced",
    "SumLenUpPoyas", "SumLenDwnPoyas", "SumLenOpornRaskos", "SumLenRaskos", "SumLenStoyka"};

const Texts groupKeys{"AlphaX", "AlphaY", "FlexX",  "FlexY",  "FlexBarX", "FlexBarY",
                      "PhiX",   "PhiY",   "Area",   "Jin",    "Jout",     "KStrength",
                      "KStabX", "KStabY", "KFlexX", "KFlexY", "LimitX",   "LimitY",
                      "NMax",   "NComp",  "LenX",   "LenY",   "KUserX",   "KUserY"};

const Texts profileKeys{"Name", "Type", "B",  "H", "t",  "s",  "r1", "r2",
                        "A",    "Jy",   "Jz", "P", "Wy", "Wz", "y0", "z0"};

/// Elements of the arrays, by scheme, for the panel count of each example.
struct ArraySizes {
  int Scheme;
  std::size_t Joints, UpperJoints, LowerJoints, Diagonals, Verticals;
};

// The four examples have 8, 10, 6 and 12 panels.
constexpr std::array<ArraySizes, 4> arraySizes{{
    {1, 18, 9, 9, 8, 9},
    {2, 20, 11, 9, 10, 9},
    {3, 13, 7, 6, 12, 6},
    {4, 19, 13, 6, 12, 6},
}};

using CalcJsonShape = CalcJsonTest;

TEST_F(CalcJsonShape, HasTheNamesOfTheCodeAsKeysInTheirOrder) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json object = Calculated(ExampleBytes(scheme));
    EXPECT_EQ(Keys(object), topKeys);
    EXPECT_EQ(Keys(object.at("TreloData")), dataKeys);
    Texts resultKeys = resultKeysBeforeTable;
    resultKeys.insert(resultKeys.end(), resultKeysAfterTable.begin(), resultKeysAfterTable.end());
    EXPECT_EQ(Keys(object.at("TreloResult")), resultKeys);
    EXPECT_EQ(Keys(object.at("Progib")), (Texts{"Value", "Limit", "Satisfied"}));
    EXPECT_EQ(object.at("Messages"), Json::array());
  }
}

TEST_F(CalcJsonShape, HasTheFiveBlocksOfTheCheckWithTheVerticalsThird) {
  const Json check = Calculated(ExampleBytes(1)).at("CheckResult");
  EXPECT_EQ(Keys(check), (Texts{"UpPoyas", "DwnPoyas", "Stoyka", "Raskos", "OpornRaskos", "Mass"}));
  for (const char* block : {"UpPoyas", "DwnPoyas", "Stoyka", "Raskos", "OpornRaskos"}) {
    EXPECT_EQ(Keys(check.at(block)), groupKeys) << block;
    for (const char* limit : {"LimitX", "LimitY"}) {
      EXPECT_EQ(Keys(check.at(block).at(limit)), (Texts{"Compress", "Tension", "Tension2"}));
    }
    for (const char* force : {"NMax", "NComp"}) {
      EXPECT_EQ(Keys(check.at(block).at(force)), (Texts{"Value", "Index"}));
    }
  }
}

TEST_F(CalcJsonShape, HasFiveSectionsInTheOrderOfStorage) {
  const Json sections = Calculated(ExampleBytes(4)).at("ElementSection");
  ASSERT_EQ(sections.size(), 5U);
  Texts sizes;
  for (const Json& section : sections) {
    EXPECT_EQ(Keys(section), (Texts{"TypeIdx", "SizeIdx", "Gdist", "Paired", "Profile", "Layout"}));
    EXPECT_EQ(Keys(section.at("Profile")), profileKeys);
    sizes.push_back(section.at("Profile").at("Name"));
  }
  // Upper chord, lower chord, diagonals, support diagonals, verticals.
  EXPECT_EQ(sizes, (Texts{"Тр426x7", "Тр273x5", "Тр159x5", "Тр159x5", "Тр102x4"}));
}

TEST_F(CalcJsonShape, PutsDiagonalsBeforeSupportDiagonalsUnlikeTheFile) {
  // The file has the support diagonals in lines 30 to 34 and the diagonals in 35 to 39.
  const Json sections = Calculated(WithLine(ExampleBytes(1), 30, "60")).at("ElementSection");
  EXPECT_EQ(sections[2].at("SizeIdx"), 59);
  EXPECT_EQ(sections[3].at("SizeIdx"), 60);
}

TEST_F(CalcJsonShape, HasThePlainListsOfEveryScheme) {
  for (const ArraySizes& sizes : arraySizes) {
    const Json object = Calculated(ExampleBytes(sizes.Scheme));
    const Json& data = object.at("TreloData");
    EXPECT_EQ(data.at("TreloType"), sizes.Scheme);
    EXPECT_EQ(data.at("UpPForce").size(), sizes.UpperJoints);
    EXPECT_EQ(data.at("UpDistForce").size(), sizes.UpperJoints - 1);
    EXPECT_EQ(data.at("DwnPForce").size(), sizes.LowerJoints);
    EXPECT_EQ(data.at("DwnDistForce").size(), sizes.LowerJoints - 1);
    const Json& result = object.at("TreloResult");
    EXPECT_EQ(result.at("KnotNum"), sizes.Joints);
    EXPECT_EQ(result.at("UpKnotLoad").size(), sizes.UpperJoints);
    EXPECT_EQ(result.at("DwnKnotLoad").size(), sizes.LowerJoints);
    EXPECT_EQ(result.at("UpPoyasForce").size(), sizes.UpperJoints - 1);
    EXPECT_EQ(result.at("DwnPoyasForce").size(), sizes.LowerJoints - 1);
    EXPECT_EQ(result.at("RaskosForce").size(), sizes.Diagonals);
    EXPECT_EQ(result.at("StoykaForce").size(), sizes.Verticals);
  }
}

TEST_F(CalcJsonShape, AddsTheTableOfBarForcesWhereItIsAskedFor) {
  Texts withTable = resultKeysBeforeTable;
  withTable.push_back("BarForce");
  withTable.insert(withTable.end(), resultKeysAfterTable.begin(), resultKeysAfterTable.end());
  for (const ArraySizes& sizes : arraySizes) {
    const Json object = Calculated(ExampleBytes(sizes.Scheme), {"--bar-force"});
    EXPECT_EQ(Keys(object), topKeys);
    EXPECT_EQ(Keys(object.at("TreloResult")), withTable);
    const Json& table = object.at("TreloResult").at("BarForce");
    ASSERT_EQ(table.size(), sizes.Joints);
    for (std::size_t row = 0; row < sizes.Joints; ++row) {
      ASSERT_EQ(table[row].size(), sizes.Joints);
    }
  }
}

TEST_F(CalcJsonShape, ChangesNothingElseWithTheTableOfBarForces) {
  Json with = Calculated(ExampleBytes(3), {"--bar-force"});
  with.at("TreloResult").erase("BarForce");
  EXPECT_EQ(with.dump(), Calculated(ExampleBytes(3)).dump());
}

TEST_F(CalcJsonShape, HasNoDeflectionWhereItIsNotAskedFor) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json object = Calculated(WithLine(ExampleBytes(scheme), 16, "0"));
    EXPECT_EQ(Keys(object), topKeys);
    EXPECT_TRUE(object.at("Progib").is_null());
  }
}

TEST_F(CalcJsonShape, WritesWholeNumbersAndTruthValuesAsSuch) {
  const Json object = Calculated(ExampleBytes(1));
  EXPECT_TRUE(object.at("TreloData").at("PanelNum").is_number_integer());
  EXPECT_TRUE(object.at("TreloData").at("UpPoyasBrace").is_number_integer());
  EXPECT_TRUE(object.at("CheckResult").at("UpPoyas").at("NMax").at("Index").is_number_integer());
  EXPECT_TRUE(object.at("TreloResult").at("Balanced").is_boolean());
  EXPECT_TRUE(object.at("ElementSection")[0].at("Paired").is_boolean());
  EXPECT_TRUE(object.at("OwnWeightAdded").is_boolean());
  EXPECT_TRUE(object.at("Progib").at("Satisfied").is_boolean());
}

TEST_F(CalcJsonShape, KeepsWarningsOfASuccessAsMessages) {
  // 9 m on panels of 3 m: a slope beyond the one that the warning asks for.
  Put("steep.tsav", WithLine(ExampleBytes(1), 6, "9"));
  const Outcome outcome = Run({"calc", "steep.tsav", "--json"});
  EXPECT_EQ(outcome.Status, done);
  const Json object = ParsedOutput(outcome);
  EXPECT_EQ(Keys(object), topKeys);
  ASSERT_EQ(object.at("Messages").size(), 1U);
  const Json& message = object.at("Messages")[0];
  EXPECT_EQ(Keys(message), (Texts{"Title", "Text", "Style"}));
  EXPECT_EQ(message.at("Title"), "Трелонит v 1.0.0 (alpha)");
  EXPECT_EQ(message.at("Style"), 64);
  EXPECT_EQ(outcome.Err, MessagesAsText(object));
}

}  // namespace

}  // namespace trelonit::test

#endif

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "catalogue/CatalogueHealth.h"
#include "catalogue/StandardFigures.h"
#include "platform/text/NumberText.h"
#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

const ProfileTypeArray& ShippedCatalogue() {
  static const ProfileTypeArray catalogue = test::CatalogueWorld().Load();
  return catalogue;
}

/// A catalogue of one standard with one record.
ProfileTypeArray CatalogueOf(Long standard, const ProfileRec& record) {
  ProfileTypeArray catalogue(standard, standard);
  catalogue[standard].Name = "standard";
  catalogue[standard].Rec = BoundedArray<ProfileRec>(1, 1);
  catalogue[standard].Rec[1] = record;
  return catalogue;
}

/// What is found in a single record of a standard, as the quantities of the findings.
std::vector<std::string> QuantitiesFound(Long standard, const ProfileRec& record) {
  std::vector<std::string> quantities;
  for (const Deviation& deviation : VerifyCatalogue(CatalogueOf(standard, record))) {
    quantities.push_back(deviation.Quantity);
  }
  return quantities;
}

bool Finds(Long standard, const ProfileRec& record, const std::string& quantity) {
  const std::vector<std::string> found = QuantitiesFound(standard, record);
  return std::find(found.begin(), found.end(), quantity) != found.end();
}

ProfileRec ShippedRecord(Long standard, const std::string& name) {
  for (const ProfileRec& record : ShippedCatalogue()[standard].Rec) {
    if (record.Name == FixedText<15>(name)) {
      return record;
    }
  }
  ADD_FAILURE() << name << " is not in the catalogue";
  return {};
}

/// The largest size of a standard: its figures have enough digits for small errors to show.
ProfileRec LastRecord(Long standard) {
  const BoundedArray<ProfileRec>& records = ShippedCatalogue()[standard].Rec;
  return records[records.UpperBound()];
}

/// The number with the first two neighbouring digits that differ in each other's place.
double WithSwappedDigits(double value) {
  std::string text = NumberToText(value, test::PointLocale());
  for (std::size_t place = 0; place + 1 < text.size(); ++place) {
    if (text[place] != text[place + 1] && text[place] != '.' && text[place + 1] != '.') {
      std::swap(text[place], text[place + 1]);
      break;
    }
  }
  return TextToNumber(text, test::PointLocale());
}

TEST(CatalogueHealth, ListsOnlyTheReviewedRowsOfTheShippedCatalogue) {
  using Row = std::tuple<Long, std::string, std::string>;
  std::vector<Row> found;
  for (const Deviation& deviation : VerifyCatalogue(ShippedCatalogue())) {
    found.emplace_back(deviation.TypeIdx, deviation.Name, deviation.Quantity);
  }
  const std::vector<Row> reviewed{
      {2, "L90x9", "A"},         {2, "L90x9", "Jy"},        {2, "L90x9", "Jz"},
      {11, "Шв120x90x7", "A"},   {11, "Шв120x90x7", "Jy"},  {11, "Шв120x90x7", "Jz"},
      {12, "Тр50x2", "A"},       {12, "Тр80x2.5", "Jy"},    {12, "Тр80x2.5", "Jz"},
      {12, "Тр100x7", "A"},      {12, "Тр180x10", "A"},     {12, "Тр300x8", "A"},
      {12, "Тр300x8", "Jy"},     {12, "Тр300x8", "Jz"},     {12, "Тр300x9", "A"},
      {12, "Тр300x9", "Jy"},     {12, "Тр300x9", "Jz"},     {12, "Тр300x11", "Jy"},
      {12, "Тр300x11", "Jz"},    {13, "Тр120x80x7", "A"},   {13, "Тр140x100x3", "A"},
      {13, "Тр140x100x3", "Jy"}, {13, "Тр140x100x3", "Jz"}, {13, "Тр140x100x7", "A"},
      {13, "Тр160x80x3", "Jy"},  {13, "Тр160x80x3", "Jz"},  {13, "Тр180x140x4", "Jy"},
      {13, "Тр180x140x4", "Jz"}, {13, "Тр200x160x4", "Jy"}, {13, "Тр200x160x4", "Jz"},
      {13, "Тр300x200x8", "Jz"}, {21, "Тр65x6", "A"},       {22, "Тр45x20x4", "Jz"},
      {22, "Тр45x30x4", "Jz"},   {22, "Тр90x40x7", "Jy"},
  };
  EXPECT_EQ(found, reviewed);
}

TEST(CatalogueHealth, TellsWhichFigureIsOffAndByHowMuch) {
  const std::vector<Deviation> found = VerifyCatalogue(ShippedCatalogue());
  const auto row = std::find_if(found.begin(), found.end(), [](const Deviation& deviation) {
    return deviation.Name == "Тр45x20x4";
  });
  ASSERT_NE(row, found.end());
  EXPECT_EQ(row->TypeIdx, 22);
  EXPECT_EQ(ShippedCatalogue()[22].Rec[row->SizeIdx].Name, FixedText<15>("Тр45x20x4"));
  EXPECT_EQ(row->Standard, "Трубы стальные прямоугольные по ГОСТ 8645-68");
  EXPECT_EQ(row->Quantity, "Jz");
  EXPECT_EQ(row->Stored, 2.18);
  EXPECT_NEAR(row->Computed, 2.2182, 5e-5);
  EXPECT_NEAR(row->Percent, -1.72, 0.005);
  // One unit of the second decimal outweighs the 0.16 percent of the family.
  EXPECT_NEAR(row->Tolerance, 0.451, 5e-4);
}

TEST(CatalogueHealth, FindsAnAreaOffByTwoPercentInEveryStandard) {
  for (Long standard = 1; standard <= standardCount; ++standard) {
    ProfileRec record = LastRecord(standard);
    ASSERT_TRUE(QuantitiesFound(standard, record).empty()) << standard;
    for (const double factor : {0.98, 1.02}) {
      ProfileRec wrong = record;
      wrong.A *= factor;
      EXPECT_EQ(QuantitiesFound(standard, wrong), std::vector<std::string>{"A"}) << standard;
    }
  }
}

TEST(CatalogueHealth, FindsSwappedDigitsOfAnInertiaInEveryStandard) {
  for (Long standard = 1; standard <= standardCount; ++standard) {
    ProfileRec wrong = LastRecord(standard);
    wrong.Jy = WithSwappedDigits(wrong.Jy);
    EXPECT_EQ(QuantitiesFound(standard, wrong), std::vector<std::string>{"Jy"}) << standard;
    wrong = LastRecord(standard);
    wrong.Jz = WithSwappedDigits(wrong.Jz);
    EXPECT_EQ(QuantitiesFound(standard, wrong), std::vector<std::string>{"Jz"}) << standard;
  }
}

TEST(CatalogueHealth, FindsInertiasInEachOthersPlace) {
  for (const Long standard : {1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 16, 19, 20, 22}) {
    ProfileRec wrong = LastRecord(standard);
    std::swap(wrong.Jy, wrong.Jz);
    EXPECT_EQ(QuantitiesFound(standard, wrong), (std::vector<std::string>{"Jy", "Jz"})) << standard;
  }
}

TEST(CatalogueHealth, FindsAWrongDimensionByWhatItDoesToTheFigures) {
  for (Long standard = 1; standard <= standardCount; ++standard) {
    ProfileRec wrong = LastRecord(standard);
    wrong.s *= 1.1;
    EXPECT_TRUE(Finds(standard, wrong, "A")) << standard;
    wrong = LastRecord(standard);
    wrong.B *= 1.1;
    EXPECT_TRUE(Finds(standard, wrong, "Jz")) << standard;
  }
}

RC_GTEST_PROP(CatalogueHealth, FindsEveryFigureThatIsOffByATenth, ()) {
  const Long standard = *rc::gen::inRange<Long>(1, standardCount + 1);
  const BoundedArray<ProfileRec>& records = ShippedCatalogue()[standard].Rec;
  ProfileRec record = records[*rc::gen::inRange<Long>(1, records.UpperBound() + 1)];
  const double factor = *rc::gen::element(0.9, 1.1);
  // Hundredths of a cm4 are more than a tenth of the smallest inertias.
  RC_PRE(record.Jz > 0.2);
  const auto [quantity, figure] =
      *rc::gen::element(std::pair<std::string, double ProfileRec::*>{"A", &ProfileRec::A},
                        std::pair<std::string, double ProfileRec::*>{"Jy", &ProfileRec::Jy},
                        std::pair<std::string, double ProfileRec::*>{"Jz", &ProfileRec::Jz});
  record.*figure *= factor;
  RC_ASSERT(Finds(standard, record, quantity));
}

TEST(CatalogueHealth, AcceptsAnyCornerOfASmallTubeBy30245of94) {
  // The area runs from 24.778 (corners of two walls) to 26.04 (sharp).
  ProfileRec tube = ShippedRecord(12, "Тр100x7");
  for (const double area : {24.8, 25.4, 26.0}) {
    tube.A = area;
    EXPECT_TRUE(QuantitiesFound(12, tube).empty()) << area;
  }
  for (const double area : {24.7, 26.1}) {
    tube.A = area;
    EXPECT_EQ(QuantitiesFound(12, tube), std::vector<std::string>{"A"}) << area;
  }
  EXPECT_NEAR(RuleOfStandard(12).Compute(tube).High.A, (100 * 100 - 86 * 86) / 100.0, 1e-10);
}

TEST(CatalogueHealth, HoldsLargeTubesBy30245of94ToTheirRadii) {
  ProfileRec tube = ShippedRecord(12, "Тр200x10");
  EXPECT_TRUE(QuantitiesFound(12, tube).empty());
  tube.A = 73.6;  // 73.425 by the radii, 76 with sharp corners
  EXPECT_EQ(QuantitiesFound(12, tube), std::vector<std::string>{"A"});
}

TEST(CatalogueHealth, LeavesTheOwnInertiaOfWallsOutWhereTheTableDoes) {
  // Exact geometry gives 9.414, without the two long walls' own inertia it is 9.279.
  const ProfileRec tube = ShippedRecord(16, "Тр60x30x6");
  EXPECT_EQ(tube.Jz, 9.28);
  const ExpectedFigures expected = RuleOfStandard(16).Compute(tube);
  EXPECT_NEAR(expected.Low.Jz, 9.28, 0.005);
  // Two walls of 60 mm less the corners of two walls each: 2 * 36 * 6^3 / 12 mm4. Standard 12 has
  // the same corners and leaves nothing out.
  EXPECT_NEAR(RuleOfStandard(12).Compute(tube).Low.Jz - expected.Low.Jz, 0.1296, 1e-9);
  ProfileRec exact = tube;
  exact.Jz = 9.41;
  EXPECT_EQ(QuantitiesFound(16, exact), std::vector<std::string>{"Jz"});
}

TEST(CatalogueHealth, LeavesTheOwnInertiaOfCornersOutWhereTheTableDoes) {
  // Exact geometry gives 11.792.
  const ProfileRec tube = ShippedRecord(22, "Тр70x30x6");
  EXPECT_EQ(tube.Jz, 11.67);
  EXPECT_NEAR(RuleOfStandard(22).Compute(tube).Low.Jz, 11.67, 0.01);
}

TEST(CatalogueHealth, TakesTheCornerRadiusOf30245of2003FromTheWall) {
  ProfileRec tube{.B = 100, .H = 100, .t = 6, .s = 6};
  const auto outerRadius = [](const ProfileRec& record) {
    const double sharp = RuleOfStandard(18).Compute(record).Low.A;
    const double lost = 100 * (sharp - RuleOfStandard(15).Compute(record).Low.A);
    // lost = (4 - pi) (R^2 - (R - s)^2)
    return (lost / (4 - 3.14159265358979) + record.s * record.s) / (2 * record.s);
  };
  EXPECT_NEAR(outerRadius(tube), 12, 1e-6);
  tube.t = tube.s = 6.5;
  EXPECT_NEAR(outerRadius(tube), 16.25, 1e-6);
  tube.t = tube.s = 10;
  EXPECT_NEAR(outerRadius(tube), 25, 1e-6);
  tube.t = tube.s = 10.5;
  EXPECT_NEAR(outerRadius(tube), 31.5, 1e-6);
}

TEST(CatalogueHealth, AllowsHalfOfTheLastPrintedDigit) {
  const FigureRule threeDigits{0.1, 3, 0.01, 10};
  EXPECT_NEAR(threeDigits.Allowance(6.16), 0.00616, 1e-6);
  EXPECT_NEAR(threeDigits.Allowance(1.16), 0.005, 1e-6);
  EXPECT_NEAR(threeDigits.Allowance(22.8), 0.05, 1e-6);
  EXPECT_NEAR(threeDigits.Allowance(138), 0.5, 1e-5);
  EXPECT_NEAR(threeDigits.Allowance(1090), 5, 1e-4);
  EXPECT_NEAR(threeDigits.Allowance(15260), 15.26, 1e-3);
  const FigureRule cutOff{0, 4, 0.01, 1, 1};
  EXPECT_NEAR(cutOff.Allowance(0.065), 0.01, 1e-6);
  EXPECT_NEAR(cutOff.Allowance(131.8), 0.1, 1e-6);
  EXPECT_NEAR(cutOff.Allowance(54321), 1, 1e-5);
}

TEST(CatalogueHealth, KnowsNoRuleBeyondTheTwentyTwoStandards) {
  EXPECT_EQ(test::ErrorOf([] { RuleOfStandard(0); }), 9);
  EXPECT_EQ(test::ErrorOf([] { RuleOfStandard(23); }), 9);
}

TEST(CatalogueHealth, ReportsDimensionsThatMakeNoSection) {
  const std::vector<std::string> expected{"dimensions"};
  for (Long standard = 1; standard <= standardCount; ++standard) {
    for (const double width : {0.0, -10.0, 1e300, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
      ProfileRec wrong = LastRecord(standard);
      wrong.B = width;
      EXPECT_EQ(QuantitiesFound(standard, wrong), expected) << standard << " with " << width;
    }
    ProfileRec wrong = LastRecord(standard);
    wrong.s = wrong.B / 2 + (standard <= 11 ? wrong.B : 0);
    EXPECT_EQ(QuantitiesFound(standard, wrong), expected) << standard;
  }
}

TEST(CatalogueHealth, ReportsSectionsWhoseInertiaIsLostInRounding) {
  const std::vector<std::string> expected{"dimensions"};
  ProfileRec tiny{.B = 1e-90, .H = 1e-90, .t = 1e-91, .s = 1e-91};
  EXPECT_EQ(QuantitiesFound(18, tiny), expected) << "an area and no inertia";
  ProfileRec flat{.B = 1, .H = 1e-130, .t = 1e-131, .s = 1e-131};
  EXPECT_EQ(QuantitiesFound(18, flat), expected) << "inertia about one axis";
  std::swap(flat.B, flat.H);
  EXPECT_EQ(QuantitiesFound(18, flat), expected) << "inertia about the other";
}

TEST(CatalogueHealth, ReportsFiguresThatAreNoNumbers) {
  for (double ProfileRec::*figure : {&ProfileRec::A, &ProfileRec::Jy, &ProfileRec::Jz}) {
    for (const double value :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(),
          std::numeric_limits<double>::max()}) {
      ProfileRec wrong = ShippedRecord(1, "L25x16x3");
      wrong.*figure = value;
      EXPECT_EQ(QuantitiesFound(1, wrong), std::vector<std::string>{"numbers"}) << value;
    }
  }
}

TEST(CatalogueHealth, ReportsAFigureThatIsMissing) {
  ProfileRec wrong = LastRecord(1);
  wrong.A = 0;
  const std::vector<Deviation> found = VerifyCatalogue(CatalogueOf(1, wrong));
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].Quantity, "A");
  EXPECT_EQ(found[0].Percent, -100);
}

TEST(CatalogueHealth, TellsOfASingleRecordThatItStandsAlone) {
  ProfileRec wrong = LastRecord(1);
  wrong.A = 0;
  const std::vector<Deviation> found = VerifyRecord(1, wrong);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].SizeIdx, 0);
  EXPECT_EQ(found[0].TypeIdx, 1);
}

TEST(CatalogueHealth, HasNoNumbersWhereNothingCouldBeCompared) {
  ProfileRec broken = LastRecord(1);
  broken.B = 0;
  ProfileRec endless = LastRecord(1);
  endless.A = std::numeric_limits<double>::infinity();
  const std::vector<std::pair<Long, ProfileRec>> records{
      {23, LastRecord(1)}, {1, ProfileRec()}, {1, broken}, {1, endless}};
  for (const auto& [standard, record] : records) {
    const std::vector<Deviation> found = VerifyRecord(standard, record);
    ASSERT_EQ(found.size(), 1u);
    SCOPED_TRACE(found[0].Quantity);
    EXPECT_EQ(found[0].Stored, 0);
    EXPECT_EQ(found[0].Computed, 0);
    EXPECT_EQ(found[0].Percent, 0);
    EXPECT_EQ(found[0].Tolerance, 0);
  }
}

TEST(CatalogueHealth, ReportsEmptyRecords) {
  ProfileRec empty;
  EXPECT_EQ(QuantitiesFound(5, empty), std::vector<std::string>{"empty"});
  empty.Type = "a name of the standard alone says nothing";
  EXPECT_EQ(QuantitiesFound(5, empty), std::vector<std::string>{"empty"});
  empty.Name = "10";
  EXPECT_EQ(QuantitiesFound(5, empty), std::vector<std::string>{"dimensions"});
}

TEST(CatalogueHealth, ReportsRecordsOfStandardsThatItDoesNotKnow) {
  const ProfileRec record = LastRecord(1);
  EXPECT_EQ(QuantitiesFound(23, record), std::vector<std::string>{"standard"});
  EXPECT_EQ(QuantitiesFound(0, record), std::vector<std::string>{"standard"});
  EXPECT_EQ(QuantitiesFound(-4, record), std::vector<std::string>{"standard"});
}

TEST(CatalogueHealth, ReportsAStandardWithoutRecords) {
  ProfileTypeArray catalogue(1, 2);
  catalogue[1].Name = "first";
  catalogue[2].Rec = BoundedArray<ProfileRec>(1, 0);
  const std::vector<Deviation> found = VerifyCatalogue(catalogue);
  ASSERT_EQ(found.size(), 2u);
  EXPECT_EQ(found[0].Standard, "first");
  EXPECT_EQ(found[0].Quantity, "empty");
  EXPECT_EQ(found[0].SizeIdx, 0);
  EXPECT_EQ(found[1].TypeIdx, 2);
  EXPECT_TRUE(VerifyCatalogue({}).empty());
}

RC_GTEST_PROP(CatalogueHealth, NeverFailsAndNeverYieldsANumberThatIsNone, ()) {
  const Long standard = *rc::gen::inRange<Long>(0, standardCount + 2);
  ProfileRec record;
  for (const ProfileField& listed : profileFields) {
    record.*listed.Number = *rc::gen::oneOf(
        rc::gen::arbitrary<double>(), rc::gen::cast<double>(rc::gen::inRange(-5, 300)),
        rc::gen::element(0.0, 1e-300, 1e-80, 1e80, 1e300, -1e300,
                         std::numeric_limits<double>::infinity(),
                         std::numeric_limits<double>::quiet_NaN()));
  }
  for (const Deviation& deviation : VerifyCatalogue(CatalogueOf(standard, record))) {
    for (const double number :
         {deviation.Stored, deviation.Computed, deviation.Percent, deviation.Tolerance}) {
      RC_ASSERT(std::isfinite(number));
    }
  }
}

}  // namespace
}  // namespace trelonit

#include <cmath>
#include <gtest/gtest.h>
#include <set>

#include "checks/ElementGroups.h"
#include "tests/opinion/FindingsTools.h"
#include "tests/opinion/OpinionCase.h"
#include "tests/workstation/design/AnyDesign.h"
#include "workstation/design/SecondOpinion.h"

namespace trelonit::test {

namespace {

/// A size of the shipped catalogue with what resources/catalogue/SOURCES.md says of it.
struct KnownSize {
  Long Standard = 0;
  const char* Name = "";
  const char* Remark = "";  ///< nothing for a published one
};

constexpr const char* computed =
    "моменты инерции вычислены по размерам, в таблице стандарта их нет.";
constexpr const char* reconstructed =
    "типоразмер восстановлен по соседним рядам, его величины вычислены по размерам; в таблице "
    "стандарта его может не быть.";

constexpr KnownSize knownSizes[] = {
    {2, "L65x6", reconstructed},
    {2, "L65x8", reconstructed},
    {2, "L63x6", ""},
    {2, "L70x6", ""},
    {2, "L200x18", computed},
    {2, "L200x20", ""},
    // Of 17, 18 and 19 the first size alone is published.
    {17, "Тр63x3", ""},
    {18, "Тр80x3", ""},
    {19, "Тр63x32x2", ""},
    // Five of the sizes of 20 are in no handbook.
    {20, "Тр180x100x", reconstructed},
    {20, "Тр200x160x", reconstructed},
};

/// The first size of the standard whose name begins so; its whole name unless it ends with an x.
const ProfileRec& Size(Long standard, const std::string& name) {
  for (const ProfileRec& record : Catalogue()[standard].Rec) {
    const std::string found = record.Name.Trimmed();
    if (name.back() == 'x' ? found.starts_with(name) : found == name) {
      return record;
    }
  }
  throw std::logic_error("no such size: " + name);
}

TEST(SectionData, TellsOfFiguresThatAreInNoTable) {
  for (const KnownSize& size : knownSizes) {
    const ProfileRec& record = Size(size.Standard, size.Name);
    const std::string remark = size.Remark;
    const std::string expected =
        remark.empty() ? "" : record.Name.Trimmed() + ", " + record.Type.Trimmed() + ": " + remark;
    EXPECT_EQ(ProvenanceText(record), expected) << size.Name;
    for (const ElementGroupRow& row : elementGroups) {
      OpinionCase design(SnowyTruss(1));
      design.Sections[row.Place].Profile = record;
      design.Calculate();
      const std::vector<Finding> found = OfCode(design.Find(), FindingCode::SectionData);
      ASSERT_EQ(found.size(), remark.empty() ? 0U : 1U) << size.Name;
      if (!remark.empty()) {
        EXPECT_EQ(found[0].Text, std::string(row.Name) + ", " + expected);
        EXPECT_EQ(found[0].Group, row.Group);
        EXPECT_EQ(found[0].Grade, Severity::Note);
      }
    }
  }
}

// SOURCES.md: 159 sizes of 17 to 19, 20 of 20, two of 02 are reconstructed, one inertia computed.
TEST(SectionData, CoversTheReconstructedSizesOfTheWholeCatalogue) {
  std::map<Long, int> doubtful;
  for (Long standard = 1; standard <= 22; ++standard) {
    for (const ProfileRec& record : Catalogue()[standard].Rec) {
      doubtful[standard] += ProvenanceText(record).empty() ? 0 : 1;
    }
  }
  EXPECT_EQ(doubtful[2], 3);
  EXPECT_EQ(doubtful[17] + doubtful[18] + doubtful[19], 159);
  EXPECT_EQ(doubtful[20], 20);
  for (auto& [standard, count] : doubtful) {
    const bool has = standard == 2 || (standard >= 17 && standard <= 20);
    EXPECT_EQ(count > 0, has) << standard;
  }
}

TEST(SectionData, LooksAtTheVerticalsOnlyWhereThereAreSome) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    SectionArray sections = SameSections(Single(20, 500, 500));
    sections[sectionStoyka].Profile = Size(2, "L65x6");
    EXPECT_EQ(FindInSections(sections, *FindScheme(scheme)).size(), scheme == 3 ? 0U : 1U);
  }
}

/// Ry / E is 1 / 1024, so that the conditional slenderness is the slenderness over 32 without
/// rounding. The lower chord, which is pulled, has this length of panel (m) and this radius (cm).
OpinionCase LowerChord(double panel, double radius) {
  TreloData data = Design(1, 8, 8 * panel, 2.5, panel);
  Fill(data.UpPForce, 3);
  CheckNumbers numbers = StartNumbers();
  numbers.E = 240.0 * 1024;
  SectionArray sections = SameSections(Single(20, 500, 500));
  sections[sectionDwnPoyas] = Single(16, 16 * radius * radius, 10000);
  return OpinionCase(data, sections, numbers);
}

// 300 / 3.75 / 32 = 2.5 and 450 / 3.125 / 32 = 4.5, exactly.
TEST(PhiGap, AppearsExactlyAtTheBoundsOfTheFormulas) {
  struct Gap {
    double Panel, Radius;
    const char* Figure;
  };
  for (const Gap& gap : {Gap{3, 3.75, "2.5"}, Gap{4.5, 3.125, "4.5"}}) {
    const std::vector<Finding> found =
        OfCode(LowerChord(gap.Panel, gap.Radius).Find(), FindingCode::PhiGap);
    ASSERT_EQ(found.size(), 1U) << gap.Figure;
    EXPECT_EQ(found[0].Text, std::string("Нижний пояс: условная гибкость ровно ") + gap.Figure +
                                 ", на границе формул φ; расчет берет там φ = 0, и предельная "
                                 "гибкость считается без него.");
    EXPECT_EQ(found[0].Grade, Severity::Warning);
    EXPECT_EQ(found[0].Group, ElementGroup::DwnPoyas);
    EXPECT_EQ(found[0].Check, MemberCheck::FlexX);
    EXPECT_EQ(found[0].Told, 0);
    for (const double side : {0.0, 100.0}) {
      const double beside = std::nextafter(gap.Radius, side) + (side - gap.Radius) * 1e-12;
      EXPECT_EQ(TextsOf(LowerChord(gap.Panel, beside).Find(), FindingCode::PhiGap), Texts());
    }
  }
}

TEST(PhiGap, TellsOfAPhiOfZeroAtABoundAndOfNothingElse) {
  OpinionCase atBound = LowerChord(3, 3.75);
  atBound.Check.DwnPoyas.PhiX = 0.7;
  EXPECT_EQ(TextsOf(atBound.Find(), FindingCode::PhiGap), Texts());
  OpinionCase beside = LowerChord(3, 4);
  beside.Check.DwnPoyas.PhiX = 0;
  EXPECT_EQ(TextsOf(beside.Find(), FindingCode::PhiGap), Texts());
}

TEST(PhiGap, IsFoundOutOfThePlaneAsWell) {
  OpinionCase design = LowerChord(3, 4);
  design.Sections[sectionDwnPoyas] = Single(16, 10000, 16 * 3.75 * 3.75);
  design.Data.DownPoyasBrace = 1;  // the calculation takes the panel
  design.Calculate();
  const std::vector<Finding> found = OfCode(design.Find(), FindingCode::PhiGap);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].Check, MemberCheck::FlexY);
}

// A compressed group at a bound breaks the program's own check off: there is nothing to judge.
TEST(PhiGap, OfACompressedGroupLeavesNoChecks) {
  OpinionCase design = LowerChord(3, 5);
  design.Sections[sectionUpPoyas] = Single(16, 16 * 3.75 * 3.75, 10000);
  design.Calculate();
  EXPECT_EQ(design.Form().Refusal, "Проверки не выполнены: программа не рассчитала коэффициенты.");
  EXPECT_TRUE(design.Find().empty());
}

TEST(SelectionOpen, TellsOfEachGroupThatFailsAfterASelection) {
  const Circumstances circumstances{
      .AfterSelection = {{ElementGroup::UpPoyas, 1.0234}, {ElementGroup::Raskos, 1.00002}}};
  const std::vector<Finding> found =
      OfCode(OpinionCase(SnowyTruss(1)).Find(circumstances), FindingCode::SelectionOpen);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].Text,
            "Верхний пояс: с принятыми профилями и их собственным весом наибольший коэффициент "
            "1.023. Повторите подбор.");
  EXPECT_EQ(found[1].Text,
            "Раскосы: с принятыми профилями и их собственным весом наибольший коэффициент 1.00002. "
            "Повторите подбор.");
  for (const Finding& finding : found) {
    EXPECT_EQ(finding.Grade, Severity::Warning);
  }
  EXPECT_EQ(found[0].Group, ElementGroup::UpPoyas);
  EXPECT_EQ(found[0].Told, 1.0234);
  EXPECT_EQ(TextsOf(OpinionCase(SnowyTruss(1)).Find(), FindingCode::SelectionOpen), Texts());
}

/// Four squares with 8 t on the upper joints, half at the ends: 12 t pull the lower chord, see
/// HandWorkedDesigns.cpp. All groups are stout but for it, which uses up 12 * 98.1 / (A 240 0.9).
trelonit::Design Pulled(double area) {
  trelonit::Design design;
  design.TreloData = SquareDesign(1, 4);
  design.TreloData.UpPoyasBrace = 1;
  design.TreloData.DownPoyasBrace = 1;
  BoundedArray<double>& joints = design.TreloData.UpPForce;
  Fill(joints, 8);
  joints[0] = 4;
  joints[4] = 4;
  design.ElementSection = SameSections(Single(500, 500000, 500000));
  design.ElementSection[sectionDwnPoyas] = Single(area, 1000, 1000);
  return design;
}

// 12 * 98.1 / 216 = 5.45 cm2 are used up exactly. 500 cm2 elsewhere weigh 29.3137085 m * 0.05 m2 *
// 7.85 = 11.5 t, so that own weight makes 5.5 cm2 too little.
TEST(SelectionOpen, IsWhatFailsWithTheSectionsAsTheyAre) {
  const CheckNumbers numbers = StartNumbers();
  EXPECT_TRUE(GroupsThatFail(Pulled(5.5), numbers, false).empty());
  const auto without = GroupsThatFail(Pulled(5.4), numbers, false);
  ASSERT_EQ(without.size(), 1U);
  EXPECT_EQ(without[0].Group, ElementGroup::DwnPoyas);
  EXPECT_NEAR(without[0].Use, 5.45 / 5.4, 1e-9);
  const auto with = GroupsThatFail(Pulled(5.5), numbers, true);
  ASSERT_EQ(with.size(), 1U);
  EXPECT_EQ(with[0].Group, ElementGroup::DwnPoyas);
  EXPECT_GT(with[0].Use, 1.1);
}

TEST(Findings, StandInTheOrderOfTheirGravityThenOfTheirCodes) {
  // One design with something of every grade and nearly every code.
  TreloData data = SquareDesign(2, 8);
  Fill(data.UpPForce, 6);
  data.DwnPForce[1] = 2;
  data.UpDistForce[3] = 0.1;
  data.UpPoyasBrace = 1;
  data.DownPoyasBrace = 4;
  OpinionCase design(data, SameSections(Single(40, 4000, 4000)));
  design.Sections[sectionRaskos].Profile.Name = "L65x6";
  design.Sections[sectionRaskos].Profile.Type = "Уголок равнополочный по ГОСТ 8509-93";
  design.Calculate();
  // Where the program's own figure alone fails.
  design.Check.Stoyka.KFlexX = 3;
  design.Check.OpornRaskos.FlexBarX = 2.5;
  design.Check.OpornRaskos.PhiX = 0;
  const std::vector<Finding> found =
      design.Find({.DoubledOwnWeight = 0.04, .AfterSelection = {{ElementGroup::UpPoyas, 1.5}}});
  std::set<FindingCode> codes;
  std::set<Severity> grades;
  for (std::size_t place = 0; place < found.size(); ++place) {
    codes.insert(found[place].Code);
    grades.insert(found[place].Grade);
    if (place > 0) {
      const Finding& before = found[place - 1];
      EXPECT_LE(before.Grade, found[place].Grade);
      if (before.Grade == found[place].Grade) {
        EXPECT_LE(before.Code, found[place].Code);
        if (before.Code == found[place].Code) {
          EXPECT_LE(before.Group, found[place].Group);
        }
      }
    }
  }
  EXPECT_EQ(codes.size(), 9U);
  EXPECT_EQ(grades.size(), 3U);
  EXPECT_EQ(found.front().Grade, Severity::Danger);
}

TEST(Findings, HaveNamesForOtherPrograms) {
  const char* codes[] = {"check-differs", "bracing-length",   "not-balanced",
                         "load-differs",  "own-weight-twice", "chord-bending",
                         "section-data",  "phi-gap",          "selection-open"};
  for (int code = 0; code < 9; ++code) {
    EXPECT_STREQ(KeyOf(static_cast<FindingCode>(code)), codes[code]);
  }
  EXPECT_STREQ(KeyOf(Severity::Danger), "danger");
  EXPECT_STREQ(KeyOf(Severity::Warning), "warning");
  EXPECT_STREQ(KeyOf(Severity::Note), "note");
}

TEST(Findings, OfAWholeOpinionTellWhetherThereIsADanger) {
  trelonit::Design design = Pulled(100);
  const auto opinion = [&] {
    return FormSecondOpinion(Calculate(design, StartNumbers()).Value, {}, PointLocale());
  };
  EXPECT_FALSE(opinion().HasDanger());
  EXPECT_FALSE(opinion().Findings.empty());
  // As the calculation would have it; the chord is 8 m long between its ends.
  design.ElementSection[sectionUpPoyas] = Single(20, 200, 200);
  EXPECT_TRUE(opinion().HasDanger());
  EXPECT_EQ(opinion().Findings.front().Grade, Severity::Danger);
}

}  // namespace

}  // namespace trelonit::test

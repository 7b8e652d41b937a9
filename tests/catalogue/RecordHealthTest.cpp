#include <gtest/gtest.h>
#include <limits>
#include <set>
#include <utility>

#include "catalogue/CatalogueHealth.h"
#include "catalogue/RecordHealth.h"
#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

/// L50x5 of GOST 8509-93, as the catalogue has it.
ProfileRec EqualAngle() {
  test::CatalogueWorld world;
  const ProfileTypeArray catalogue = world.Load();
  for (const ProfileRec& record : catalogue[2].Rec) {
    if (record.Name.Trimmed() == "L50x5") {
      return record;
    }
  }
  throw std::logic_error("no L50x5");
}

std::string TextOf(Long standard, const ProfileRec& record) {
  return JudgeRecord(standard, record, test::CommaLocale()).Text;
}

TEST(RecordHealth, IsSoundWhereTheFiguresAgreeWithTheDimensions) {
  const RecordHealth health = JudgeRecord(2, EqualAngle(), test::PointLocale());
  EXPECT_TRUE(health.Sound);
  EXPECT_EQ(health.Text, "Геометрия: A, Jy и Jz сходятся с размерами.");
}

TEST(RecordHealth, TellsTheFigureThatDeviatesAndByHowMuch) {
  ProfileRec record = EqualAngle();
  // The standard prints 4.80 cm2.
  record.A = 5.28;
  const RecordHealth health = JudgeRecord(2, record, test::CommaLocale());
  EXPECT_FALSE(health.Sound);
  EXPECT_TRUE(health.Text.starts_with("Геометрия: A = 5,28 см², по размерам 4,80")) << health.Text;
  EXPECT_NE(health.Text.find(": отклонение 9,"), std::string::npos) << health.Text;
  EXPECT_NE(health.Text.find(" %, допуск 0,1"), std::string::npos) << health.Text;
  EXPECT_EQ(health.Text.find("Jy"), std::string::npos);
  record.Jz *= 2;
  EXPECT_NE(TextOf(2, record).find("; Jz = "), std::string::npos);
}

TEST(RecordHealth, TellsAFigureWithFiveDigitsAndItsPercentsWithTwo) {
  ProfileRec record = EqualAngle();
  // 50 x 5 and 45 x 5, fillets of 5.5 and 1.8 mm: 475 + (1 - pi/4)(5.5^2 - 2 * 1.8^2) = 480.101
  // mm2. Half of the last printed digit, 0.005 cm2, outweighs the 0.1 % of the table.
  record.A = 5.28;
  EXPECT_EQ(TextOf(2, record),
            "Геометрия: A = 5,28 см², по размерам 4,801 см²: отклонение 9,98 %, допуск 0,10 %.");
}

/// A round tube, whose area is pi (D - s) s and whose moments of inertia are A (D^2 + d^2) / 16;
/// what is stored of them is wrong.
ProfileRec WrongRoundTube(double diameter, double wall) {
  ProfileRec record;
  record.Name = "tube";
  record.B = record.H = diameter;
  record.s = record.t = wall;
  record.A = record.Jy = record.Jz = 1;
  return record;
}

TEST(RecordHealth, TellsNoMoreThanSixDecimals) {
  // pi * 0.9 * 0.1 = 0.2827433 mm2.
  EXPECT_TRUE(TextOf(14, WrongRoundTube(1, 0.1))
                  .starts_with("Геометрия: A = 1 см², по размерам 0,002827 см²:"));
}

TEST(RecordHealth, TellsLargeFiguresWithoutDecimals) {
  // pi * 9900 * 100 = 3110176.727 mm2.
  EXPECT_TRUE(TextOf(14, WrongRoundTube(10000, 100))
                  .starts_with("Геометрия: A = 1 см², по размерам 31102 см²:"));
  // pi * 99000 * 1000 = 311017672.7 mm2.
  EXPECT_TRUE(TextOf(14, WrongRoundTube(100000, 1000))
                  .starts_with("Геометрия: A = 1 см², по размерам 3110177 см²:"));
}

TEST(RecordHealth, TellsFiguresBelowOneByTheirFirstDigit) {
  // pi * 9 * 1 = 28.27433 mm2, pi * 1.9 * 0.1 = 0.596903 mm2.
  EXPECT_TRUE(TextOf(14, WrongRoundTube(10, 1))
                  .starts_with("Геометрия: A = 1 см², по размерам 0,28274 см²:"));
  EXPECT_TRUE(TextOf(14, WrongRoundTube(2, 0.1))
                  .starts_with("Геометрия: A = 1 см², по размерам 0,005969 см²:"));
}

TEST(RecordHealth, SaysWhyNothingCanBeCompared) {
  ProfileRec record = EqualAngle();
  EXPECT_EQ(TextOf(0, record),
            "Геометрия: такого стандарта в каталоге программы нет, проверить нечем.");
  EXPECT_EQ(TextOf(2, {}), "Геометрия: запись пуста.");
  record.t = 60;
  EXPECT_EQ(TextOf(2, record), "Геометрия: по этим размерам сечение не построить.");
  record = EqualAngle();
  record.Jy = std::numeric_limits<double>::infinity();
  EXPECT_EQ(TextOf(2, record), "Геометрия: A, Jy или Jz не годятся для сравнения.");
}

TEST(RecordHealth, HasADifferenceWhereverTheWholeCatalogueHasOne) {
  test::CatalogueWorld world;
  const ProfileTypeArray catalogue = world.Load();
  std::set<std::pair<Long, Long>> deviating;
  for (const Deviation& found : VerifyCatalogue(catalogue)) {
    deviating.emplace(found.TypeIdx, found.SizeIdx);
  }
  ASSERT_FALSE(deviating.empty());
  for (Long standard = 1; standard <= catalogue.UpperBound(); ++standard) {
    for (Long size = 1; size <= catalogue[standard].Rec.UpperBound(); ++size) {
      EXPECT_EQ(JudgeRecord(standard, catalogue[standard].Rec[size], {}).Sound,
                deviating.count({standard, size}) == 0)
          << standard << ' ' << size;
    }
  }
}

}  // namespace
}  // namespace trelonit

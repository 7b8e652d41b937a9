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

#include <array>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "platform/text/CodePage1251.h"
#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

struct StandardRow {
  const char* Name;
  Long FirstNum;
  Long LastNum;
  const char* FirstDesignation;
  std::array<double, 14> FirstNumbers;
};

// The names with their Latin letters, their two blanks and their cut ends.
const std::vector<StandardRow> standards{
    {"Уголок неравнополочный по ГОСТ 8510-86*",
     1,
     62,
     "L25x16x3",
     {16, 25, 3, 3, 3.5, 1.2, 1.16, 0.7, 0.22, 0.0091, 0.43, 0.19, 4.2, 8.6}},
    {"Уголок равнополочный по ГОСТ 8509-93",
     63,
     183,
     "L20x3",
     {20, 20, 3, 3, 3.5, 1.2, 1.13, 0.4, 0.4, 0, 0.28, 0.28, 6, 6}},
    {"Швеллеp с паpаллельными гpанями полок по ГОСТ 8240",
     184,
     201,
     "Шв5П",
     {32, 50, 7, 4.4, 6, 3.5, 6.16, 22.8, 5.95, 0.04, 9.1, 2.99, 12.1, 0}},
    {"Швеллеp с уклоном полок по ГОСТ 8240-89",
     202,
     219,
     "Шв5",
     {32, 50, 7, 4.4, 6, 2.5, 6.16, 22.8, 5.61, 0.04, 9.1, 2.75, 11.6, 0}},
    {"Двутавp с уклоном полок по ГОСТ 8239-89",
     220,
     236,
     "Дт10",
     {55, 100, 7.2, 4.5, 7, 2.5, 12, 198, 17.9, 0.09, 39.7, 6.49, 0, 0}},
    {"Двутавp нормальный (Б) по ГОСТ 26020-83",
     237,
     273,
     "10Б1",
     {55, 100, 5.7, 4.1, 7, 0, 10.32, 171, 15.9, 0.08, 34.2, 5.8, 0, 0}},
    {"Двутавp широкополочный по ГОСТ 26020-83",
     274,
     299,
     "20Ш1",
     {150, 193, 9, 6, 13, 0, 38.95, 2659.99, 506.99, 0.3, 275, 67.6, 0, 0}},
    {"Тавpы колонные (КТ) по ТУ 14-2-685-86",
     300,
     313,
     "10KT1",
     {200, 94, 10, 6.5, 13, 0, 26.19, 129, 666.99, 0.2, 16.3, 66.7, 0, 15}},
    {"Тавp ШТ по ТУ 14-2-685-86",
     314,
     332,
     "13ШТ1",
     {180, 122, 10, 7, 16, 0, 26.94, 288, 486.99, 0.21, 29.1, 54.1, 0, 23.1}},
    {"Гнутый швеллер ГОСТ 8278-83 из стали С239-С245",
     333,
     504,
     "Шв25x26x2",
     {26, 25, 2, 2, 3, 0, 1.39, 1.43, 0.96, 0.01, 1.14, 0.6, 10, 0}},
    {"Гнутый швеллер по ГОСТ 8278-83 из стали С255-С275",
     505,
     638,
     "Шв25x26x2",
     {26, 25, 2, 2, 5, 0, 1.36, 1.37, 0.92, 0.01, 1.1, 0.58, 10.3, 0}},
    {"Квадратные трубы по ГОСТ 30245-94",
     639,
     697,
     "Тр50x2",
     {50, 50, 2, 2, 4, 0, 3.9, 14.4, 14.4, 0.03, 5.7, 5.7, 0, 0}},
    {"Прямоугольные трубы по ГОСТ 30245-94",
     698,
     770,
     "Тр60x40x2",
     {40, 60, 2, 2, 4, 0, 3.8, 18.8, 10, 0.02983, 6.2, 5, 0, 0}},
    {"Тpубы электросварные по ГОСТ 10704-91",
     771,
     1574,
     "Тр10x1",
     {10, 0, 0, 1, 0, 0, 0.28, 0.0289812, 0.0289812, 0, 0.0579624, 0.0579624, 0, 0}},
    {"гнуто-сварные квадратные профили ГОСТ 30245-2003",
     1575,
     1729,
     "Тр40x2",
     {40, 40, 2, 2, 4, 4, 2.94, 6.94, 6.94, 2.31, 3.47, 3.47, 0, 0}},
    {"гнуто-сварные прямоугольные профили ГОСТ30245-2003",
     1730,
     2153,
     "Тр50x25x2",
     {25, 50, 2, 2, 4, 4, 2.74, 8.38, 2.8, 2.15, 3.35, 2.24, 0, 0}},
    {"Квадратные трубы по ГОСТ 12336-66",
     2154,
     2205,
     "Тр63x3",
     {63, 63, 3, 3, 6, 6, 6.81, 39.5, 39.5, 5.35, 12.55, 12.55, 0, 0}},
    {"Квадратные трубы по ТУ 36-2287-80",
     2206,
     2231,
     "Тр80x3",
     {80, 80, 3, 3, 0, 0, 9.24, 91.4, 91.4, 7.26, 22.8, 22.8, 0, 0}},
    {"Прямоугольные трубы по ГОСТ 12336-66",
     2232,
     2315,
     "Тр63x32x2",
     {32, 63, 2, 2, 4, 4, 3.47, 17.1, 5.98, 2.72, 5.42, 3.74, 0, 0}},
    {"Прямоугольные трубы по ТУ 67-2287-80",
     2316,
     2354,
     "Тр100x60x3",
     {60, 100, 3, 3, 0, 0, 9.24, 126.2, 56.6, 7.25, 25.2, 18.9, 0, 0}},
    {"Трубы стальные квадратные  по ГОСТ 8639-68",
     2355,
     2450,
     "Тр10x1",
     {10, 10, 1, 1, 0, 0, 0.36, 0.05, 0.05, 0.28, 0.1, 0.1, 0, 0}},
    {"Трубы стальные прямоугольные по ГОСТ 8645-68",
     2451,
     2698,
     "Тр15x10x1",
     {10, 15, 1, 1, 0, 0, 0.44, 0.13, 0.06, 0.35, 0.17, 0.13, 0, 0}},
};

std::string_view DataBlock() {
  return EmbeddedResources().CustomBlock(102);
}

std::string_view IndexBlock() {
  return EmbeddedResources().CustomBlock(103);
}

/// A record of the data block, numbered from 1.
ProfileRec Record(Long number) {
  return DecodeProfileRecord(
      DataBlock().substr(static_cast<std::size_t>(number - 1) * profileRecordSize));
}

TEST(EmbeddedCatalogue, HasTheLengthOfItsRecordsAndTwoZeroBytes) {
  ASSERT_EQ(DataBlock().size(), 477548U);
  EXPECT_EQ(DataBlock().substr(477546), std::string_view("\0\0", 2));
  EXPECT_EQ(IndexBlock().size(), 1276U);
}

TEST(EmbeddedCatalogue, BeginsWithTheBytesOfTheFirstAngle) {
  const std::string name = "L25x16x3       ";
  const std::string type = EncodeCodePage1251("Уголок неравнополочный по ГОСТ 8510-86*");
  // B = 16 and H = 25 follow.
  const std::string numbers("\0\0\0\0\0\0\x30\x40\0\0\0\0\0\0\x39\x40", 16);
  EXPECT_EQ(DataBlock().substr(0, 81), name + type + std::string(11, ' ') + numbers);
}

TEST(EmbeddedCatalogue, IndexesItsStandardsOneAfterAnother) {
  ASSERT_EQ(standards.size() * indexRecordSize, IndexBlock().size());
  for (std::size_t place = 0; place < standards.size(); ++place) {
    const StandardRow& row = standards[place];
    std::string bytes = EncodeCodePage1251(row.Name);
    bytes.resize(50, ' ');
    EXPECT_EQ(IndexBlock().substr(place * indexRecordSize, 50), bytes);
    const IndexRec expected{.Name = row.Name, .FirstNum = row.FirstNum, .LastNum = row.LastNum};
    EXPECT_EQ(DecodeIndexRecord(IndexBlock().substr(place * indexRecordSize)), expected);
  }
}

TEST(EmbeddedCatalogue, NamesTheStandardInEveryRecord) {
  for (const StandardRow& row : standards) {
    for (Long number = row.FirstNum; number <= row.LastNum; ++number) {
      ASSERT_EQ(Record(number).Type, FixedText<50>(row.Name)) << number;
    }
  }
}

TEST(EmbeddedCatalogue, OpensEachStandardWithItsFirstRow) {
  for (const StandardRow& row : standards) {
    const ProfileRec record = Record(row.FirstNum);
    EXPECT_EQ(record.Name, FixedText<15>(row.FirstDesignation)) << row.Name;
    for (std::size_t place = 0; place < profileFields.size(); ++place) {
      EXPECT_EQ(record.*profileFields[place].Number, row.FirstNumbers[place]) << row.Name << place;
    }
  }
}

TEST(EmbeddedCatalogue, EndsWithTheLargestRectangularTube) {
  EXPECT_EQ(Record(2698).Name, FixedText<15>("Тр230x100x8"));
}

TEST(EmbeddedCatalogue, KeepsTheOdditiesOfTheNames) {
  // The full field of 50 characters, and two blanks in a row.
  EXPECT_EQ(std::string(standards[2].Name), FixedText<50>(standards[2].Name).Padded());
  EXPECT_TRUE(IndexBlock().substr(2 * indexRecordSize, 50).ends_with(" 8240"));
  const std::string squareTubes =
      DecodeIndexRecord(IndexBlock().substr(20 * indexRecordSize)).Name.Trimmed();
  EXPECT_NE(squareTubes.find("квадратные  по"), std::string::npos);
  // A Latin p has one byte below 0x80 where the Cyrillic one would have 0xF0.
  for (const std::size_t place : {2U, 3U, 4U, 5U, 6U, 7U, 8U, 13U}) {
    EXPECT_NE(IndexBlock().substr(place * indexRecordSize, 50).find('p'), std::string::npos)
        << place;
  }
}

TEST(EmbeddedCatalogue, RepeatsNoDesignationInsideAStandard) {
  for (const StandardRow& row : standards) {
    std::set<std::string> names;
    for (Long number = row.FirstNum; number <= row.LastNum; ++number) {
      const std::string name = Record(number).Name.Trimmed();
      EXPECT_FALSE(name.empty()) << number;
      EXPECT_TRUE(names.insert(name).second) << row.Name << " " << name;
    }
  }
}

TEST(EmbeddedCatalogue, SharesDesignationsBetweenStandards) {
  EXPECT_EQ(Record(333).Name, Record(505).Name);
  EXPECT_NE(Record(333).A, Record(505).A);
  EXPECT_EQ(Record(771).Name, Record(2355).Name);
}

TEST(EmbeddedCatalogue, HasDesignationsOfFourteenCharactersAtMost) {
  std::size_t longest = 0;
  for (Long number = 1; number <= 2698; ++number) {
    longest = std::max(longest, Characters(Record(number).Name.Trimmed()).size());
  }
  EXPECT_EQ(longest, 14U);
}

TEST(EmbeddedCatalogue, HoldsNoMassForTheLightestRoundTubes) {
  const StandardRow& tubes = standards[13];
  int massless = 0;
  for (Long number = tubes.FirstNum; number <= tubes.LastNum; ++number) {
    massless += Record(number).P == 0 ? 1 : 0;
  }
  EXPECT_EQ(massless, 106);
}

TEST(EmbeddedCatalogue, HoldsMassPerCentimetreUpToStandardFourteenAndPerMetreAfterIt) {
  // Mass of a metre is area times 0.785 kg/m per cm2; two decimals in kg/cm and misprints of
  // published tables leave a wide band, far from a factor of 100.
  for (const StandardRow& row : standards) {
    const bool perMetre = row.FirstNum > standards[13].LastNum;
    for (Long number = row.FirstNum; number <= row.LastNum; ++number) {
      const ProfileRec record = Record(number);
      const double expected = record.A * (perMetre ? 0.785 : 0.00785);
      EXPECT_NEAR(record.P, expected, perMetre ? 0.05 * expected + 0.02 : 0.05 * expected + 0.011)
          << row.Name << " " << record.Name.Trimmed();
    }
  }
}

TEST(EmbeddedCatalogue, FillsTheFieldsThatCompositionNeedsByFamily) {
  const auto each = [](std::initializer_list<std::size_t> numbers, const auto& check) {
    for (const std::size_t standard : numbers) {
      const StandardRow& row = standards[standard - 1];
      for (Long number = row.FirstNum; number <= row.LastNum; ++number) {
        const ProfileRec record = Record(number);
        EXPECT_GT(record.A, 0) << number;
        EXPECT_GT(record.Jy, 0) << number;
        EXPECT_GT(record.Jz, 0) << number;
        EXPECT_TRUE(check(record)) << number << " " << record.Name.Trimmed();
      }
    }
  };
  each({1}, [](const ProfileRec& r) { return r.B < r.H && r.t == r.s && r.y0 > 0 && r.z0 > r.y0; });
  each({2}, [](const ProfileRec& r) {
    return r.B == r.H && r.t == r.s && r.Jy == r.Jz && r.Wy == r.Wz && r.y0 == r.z0 && r.y0 > 0;
  });
  each({3, 4, 10, 11}, [](const ProfileRec& r) { return r.y0 > 0 && r.z0 == 0; });
  each({5, 6, 7}, [](const ProfileRec& r) { return r.y0 == 0 && r.z0 == 0; });
  each({8, 9}, [](const ProfileRec& r) { return r.y0 == 0 && r.z0 > 0; });
  each({14}, [](const ProfileRec& r) {
    return r.B > 0 && r.s > 0 && r.H == 0 && r.t == 0 && r.r1 == 0 && r.r2 == 0 && r.y0 == 0 &&
           r.z0 == 0 && r.Jy == r.Jz && r.Wy == r.Wz;
  });
  each({12, 13, 15, 16, 17, 18, 19, 20, 21, 22}, [](const ProfileRec& r) {
    return r.t == r.s && r.s > 0 && r.B > 0 && r.H >= r.B && r.y0 == 0 && r.z0 == 0;
  });
}

}  // namespace
}  // namespace trelonit

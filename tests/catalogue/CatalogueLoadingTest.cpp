#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>
#include <vector>

#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

constexpr Long lowest = std::numeric_limits<Long>::min();
constexpr Long highest = std::numeric_limits<Long>::max();

/// A world whose files are there already.
struct StoredWorld : test::CatalogueWorld {
  StoredWorld() { Load(); }
};

/// Three records named "1", "2", "3" of a standard "S".
std::string ThreeRecords() {
  std::string data;
  for (const char* name : {"1", "2", "3"}) {
    const auto bytes = EncodeProfileRecord({.Name = name, .Type = "S", .B = 5});
    data.append(bytes.begin(), bytes.end());
  }
  return data;
}

/// The catalogue of an index over three records.
ProfileTypeArray LoadSmall(const std::string& index, const std::string& data = ThreeRecords()) {
  test::CatalogueWorld world;
  world.Data() = data;
  world.Index() = index;
  return world.Load();
}

std::optional<int> ErrorOfIndex(const std::string& index) {
  return test::ErrorOf([&] { LoadSmall(index); });
}

std::vector<std::string> Names(const ProfileType& standard) {
  std::vector<std::string> names;
  for (const ProfileRec& record : standard.Rec) {
    names.push_back(record.Name.Trimmed());
  }
  return names;
}

TEST(CatalogueLoading, GivesEachStandardItsRecords) {
  const ProfileTypeArray catalogue = test::CatalogueWorld().Load();
  EXPECT_EQ(catalogue.LowerBound(), 1);
  ASSERT_EQ(catalogue.UpperBound(), 22);
  const std::vector<Long> counts{62, 121, 18,  18,  17,  37, 26, 14, 19, 172, 134,
                                 59, 73,  804, 155, 424, 52, 26, 84, 39, 96,  248};
  for (Long number = 1; number <= 22; ++number) {
    const ProfileType& standard = catalogue[number];
    EXPECT_EQ(standard.Rec.LowerBound(), 1);
    EXPECT_EQ(standard.Rec.UpperBound(), counts[static_cast<std::size_t>(number - 1)]) << number;
    for (const ProfileRec& record : standard.Rec) {
      ASSERT_EQ(record.Type, standard.Name) << number;
    }
  }
  EXPECT_EQ(catalogue[14].Name.Trimmed(), "Тpубы электросварные по ГОСТ 10704-91");
}

TEST(CatalogueLoading, EndsWithRecord2698InSpiteOfTheStrayByte) {
  StoredWorld world;
  ASSERT_EQ(world.Data().size(), 477547U);
  const ProfileTypeArray catalogue = world.Load();
  EXPECT_EQ(catalogue[22].Rec.UpperBound(), 248);
  EXPECT_EQ(catalogue[22].Rec[248].Name.Padded(), "Тр230x100x8    ");
  // A claim on record 2699 finds nothing there.
  world.Index().replace(21 * indexRecordSize, indexRecordSize, test::IndexRow("last", 2451, 2699));
  const ProfileTypeArray longer = world.Load();
  EXPECT_EQ(longer[22].Rec[248].Name.Trimmed(), "Тр230x100x8");
  EXPECT_EQ(longer[22].Rec[249], ProfileRec());
}

TEST(CatalogueLoading, KeepsTextsAsFixedFieldsWithTheirBlanks) {
  const ProfileTypeArray catalogue = test::CatalogueWorld().Load();
  EXPECT_EQ(catalogue[1].Rec[1].Name.Padded(), "L25x16x3       ");
  EXPECT_EQ(catalogue[1].Rec[1].Type.Padded(),
            "Уголок неравнополочный по ГОСТ 8510-86*" + std::string(11, ' '));
  EXPECT_EQ(catalogue[3].Name.Padded(), "Швеллеp с паpаллельными гpанями полок по ГОСТ 8240");
}

TEST(CatalogueLoading, LeavesTheRecordsThatAShortenedFileLacksEmpty) {
  StoredWorld world;
  const ProfileTypeArray whole = world.Load();
  world.Data().resize(1000 * profileRecordSize);
  const ProfileTypeArray catalogue = world.Load();
  ASSERT_EQ(catalogue.UpperBound(), 22);
  for (Long number = 1; number <= 13; ++number) {
    EXPECT_EQ(catalogue[number].Rec, whole[number].Rec) << number;
  }
  ASSERT_EQ(catalogue[14].Rec.UpperBound(), 804);
  for (Long size = 1; size <= 804; ++size) {
    ASSERT_EQ(catalogue[14].Rec[size], size <= 230 ? whole[14].Rec[size] : ProfileRec()) << size;
  }
  for (Long number = 15; number <= 22; ++number) {
    EXPECT_EQ(catalogue[number].Name, whole[number].Name);
    ASSERT_EQ(catalogue[number].Rec.UpperBound(), whole[number].Rec.UpperBound());
    for (const ProfileRec& record : catalogue[number].Rec) {
      ASSERT_EQ(record, ProfileRec()) << number;
    }
  }
  EXPECT_EQ(world.Data().size(), 177000U);
  EXPECT_TRUE(world.Outside.Messages.Shown.empty());
}

TEST(CatalogueLoading, CountsARecordThatIsThereByMoreThanHalf) {
  const std::string index = test::IndexRow("S", 1, 3);
  const std::string data = ThreeRecords();
  // 88 of 177 bytes are less than half of a record, 89 more.
  const ProfileTypeArray less = LoadSmall(index, data.substr(0, 2 * 177 + 88));
  EXPECT_EQ(Names(less[1]), (std::vector<std::string>{"1", "2", ""}));
  const ProfileTypeArray more = LoadSmall(index, data.substr(0, 2 * 177 + 89));
  EXPECT_EQ(Names(more[1]), (std::vector<std::string>{"1", "2", "3"}));
  EXPECT_EQ(more[1].Rec[3].B, 5);
}

TEST(CatalogueLoading, RoundsAHalfIndexRowToTheEvenCount) {
  const std::string row = test::IndexRow("S", 1, 3);
  EXPECT_EQ(LoadSmall(row.substr(0, 29)).UpperBound(), 0);
  EXPECT_EQ(LoadSmall(row + row.substr(0, 28)).UpperBound(), 1);
  // 1.5 rows count as two; the second one has no numbers and so begins at record 0.
  EXPECT_EQ(ErrorOfIndex(row + row.substr(0, 29)), 9);
  EXPECT_EQ(LoadSmall(row + row + row.substr(0, 29)).UpperBound(), 2);
}

TEST(CatalogueLoading, TakesAnEmptyDataFileAsOneWithoutRecords) {
  StoredWorld world;
  world.Data().clear();
  const ProfileTypeArray catalogue = world.Load();
  ASSERT_EQ(catalogue.UpperBound(), 22);
  EXPECT_EQ(catalogue[14].Rec.UpperBound(), 804);
  EXPECT_EQ(catalogue[1].Rec[1], ProfileRec());
}

TEST(CatalogueLoading, TakesAnEmptyIndexAsACatalogueWithoutStandards) {
  const ProfileTypeArray catalogue = LoadSmall("");
  EXPECT_TRUE(catalogue.IsAllocated());
  EXPECT_EQ(catalogue.UpperBound(), 0);
  // What start-up does next ends in its handler.
  EXPECT_EQ(test::ErrorOf([&] { (void)catalogue[1]; }), 9);
}

TEST(CatalogueLoading, UnpacksAFileThatIsMissingBesideOneThatIsThere) {
  StoredWorld world;
  const ProfileTypeArray whole = world.Load();
  world.Outside.Files.Content.erase(world.DataPath);
  EXPECT_EQ(world.Load(), whole);
  world.Outside.Files.Content.erase(world.IndexPath);
  EXPECT_EQ(world.Load(), whole);
}

TEST(CatalogueLoading, RaisesBadFileNameWhereAFileCannotBeUnpacked) {
  test::CatalogueWorld world;
  world.Outside.Files.Refused[world.IndexPath] = ErrorNumber::DiskFull;
  EXPECT_EQ(test::ErrorOf([&] { world.Load(); }), 52);
  EXPECT_EQ(world.Outside.Messages.Shown.size(), 1U);
  // The other file is there for the next start.
  EXPECT_TRUE(world.Outside.Files.FileExists(world.DataPath));
}

TEST(CatalogueLoading, PassesOnTheErrorOfAFileThatCannotBeRead) {
  StoredWorld world;
  world.Outside.Files.Refused[world.DataPath] = ErrorNumber::PermissionDenied;
  EXPECT_EQ(test::ErrorOf([&] { world.Load(); }), 70);
  EXPECT_TRUE(world.Outside.Messages.Shown.empty());
}

TEST(CatalogueLoading, LetsStandardsShareRecordsAndSkipSome) {
  const ProfileTypeArray catalogue =
      LoadSmall(test::IndexRow("A", 2, 3) + test::IndexRow("B", 3, 3));
  EXPECT_EQ(Names(catalogue[1]), (std::vector<std::string>{"2", "3"}));
  EXPECT_EQ(Names(catalogue[2]), std::vector<std::string>{"3"});
}

TEST(CatalogueLoading, GivesAStandardBehindTheEndOfTheFileEmptyRecords) {
  EXPECT_EQ(Names(LoadSmall(test::IndexRow("A", 3, 5))[1]),
            (std::vector<std::string>{"3", "", ""}));
  const ProfileTypeArray far = LoadSmall(test::IndexRow("A", highest - 1, highest));
  EXPECT_EQ(Names(far[1]), (std::vector<std::string>{"", ""}));
}

TEST(CatalogueLoading, TakesAnEndJustBeforeTheBeginningAsNoRecords) {
  const ProfileTypeArray catalogue = LoadSmall(test::IndexRow("A", 2, 1));
  EXPECT_TRUE(catalogue[1].Rec.IsAllocated());
  EXPECT_EQ(catalogue[1].Rec.UpperBound(), 0);
}

TEST(CatalogueLoading, RaisesSubscriptErrorForStandardsThatCannotBe) {
  EXPECT_EQ(ErrorOfIndex(test::IndexRow("A", 0, 3)), 9);
  EXPECT_EQ(ErrorOfIndex(test::IndexRow("A", -1, 3)), 9);
  EXPECT_EQ(ErrorOfIndex(test::IndexRow("A", lowest, highest)), 9);
  EXPECT_EQ(ErrorOfIndex(test::IndexRow("A", 3, 1)), 9);
  EXPECT_EQ(ErrorOfIndex(test::IndexRow("A", highest, lowest)), 9);
  EXPECT_EQ(ErrorOfIndex(std::string(58, '\0')), 9);
}

TEST(CatalogueLoading, RaisesOverflowForMoreRecordsThanAnIntegerCounts) {
  EXPECT_EQ(ErrorOfIndex(test::IndexRow("A", 1, 32767)), std::nullopt);
  EXPECT_EQ(ErrorOfIndex(test::IndexRow("A", 1, 32768)), 6);
  EXPECT_EQ(ErrorOfIndex(test::IndexRow("A", 1, highest)), 6);
  EXPECT_EQ(ErrorOfIndex(test::IndexRow("A", 1, 20000) + test::IndexRow("B", 1, 20000)), 6);
}

TEST(CatalogueLoading, RaisesOverflowForFilesOfMoreRecordsThanAnIntegerCounts) {
  const auto errorOf = [](std::size_t dataSize, std::size_t indexSize) {
    return test::ErrorOf(
        [&] { LoadSmall(std::string(indexSize, '\1'), std::string(dataSize, '\1')); });
  };
  EXPECT_EQ(errorOf(32768 * profileRecordSize, 0), 6);
  EXPECT_EQ(errorOf(32767 * profileRecordSize + 88, 0), std::nullopt);
  EXPECT_EQ(errorOf(0, 32768 * indexRecordSize), 6);
}

TEST(CatalogueLoading, TakesTextAndNumbersOfADamagedDataFileAsTheyStand) {
  const ProfileTypeArray catalogue =
      LoadSmall(test::IndexRow("S", 1, 2), std::string(2 * 177, '\xFF'));
  EXPECT_EQ(catalogue[1].Rec[1].Name.Trimmed(), "яяяяяяяяяяяяяяя");
  EXPECT_NE(catalogue[1].Rec[2].A, catalogue[1].Rec[2].A);
}

TEST(CatalogueLoading, SurvivesAnyIndexWithinBoundedMemory) {
  const auto number = rc::gen::oneOf(rc::gen::inRange<Long>(-2, 6),
                                     rc::gen::inRange<Long>(0, 40000), rc::gen::arbitrary<Long>());
  EXPECT_TRUE(rc::check([&number] {
    std::string index;
    for (int rows = *rc::gen::inRange(0, 6); rows > 0; --rows) {
      index += test::IndexRow("S", *number, *number);
    }
    index += *rc::gen::container<std::string>(rc::gen::arbitrary<char>());
    try {
      std::size_t records = 0;
      for (const ProfileType& standard : LoadSmall(index)) {
        records += Names(standard).size();
      }
      RC_ASSERT(records <= 32767U);
    } catch (const RuntimeError& error) {
      RC_ASSERT(error.Number() == 6 || error.Number() == 9);
    }
  }));
}

}  // namespace
}  // namespace trelonit

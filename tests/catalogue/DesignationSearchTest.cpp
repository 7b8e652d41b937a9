#include <gtest/gtest.h>

#include "catalogue/DesignationSearch.h"

namespace trelonit {
namespace {

using Designations = std::vector<std::string>;

/// What a query finds, in order.
Designations Found(const Designations& names, const std::string& query) {
  Designations found;
  for (const std::size_t place : FindDesignations(names, query)) {
    found.push_back(names[place]);
  }
  return found;
}

const Designations someAngles{"L50x5",   "L63x5",  "L63x6",      "L100x63x6",
                              "L100x10", "L110x8", "L160x100x10"};

TEST(DesignationSearch, FindsAPartOfTheDesignation) {
  EXPECT_EQ(Found(someAngles, "63x6"), (Designations{"L63x6", "L100x63x6"}));
  EXPECT_EQ(Found(someAngles, "110"), Designations{"L110x8"});
  EXPECT_EQ(Found(someAngles, "75"), Designations{});
}

TEST(DesignationSearch, PutsWhatWasAskedForFirstThenWhatBeginsSo) {
  EXPECT_EQ(Found(someAngles, "100x10"), (Designations{"L100x10", "L160x100x10"}));
  EXPECT_EQ(Found(someAngles, "L100x10"), Designations{"L100x10"});
  EXPECT_EQ(Found({"L160x100x10", "L100x100x10", "L100x10"}, "100x10"),
            (Designations{"L100x10", "L100x100x10", "L160x100x10"}));
}

TEST(DesignationSearch, TakesLettersThatLookAlikeForOne) {
  // The designations have a Latin K and T and a Latin x; people type Cyrillic ones.
  EXPECT_EQ(Found({"20KT1", "20ШТ1"}, "20кт"), Designations{"20KT1"});
  EXPECT_EQ(Found({"20KT1", "20ШТ1"}, "20шt"), Designations{"20ШТ1"});
  for (const char* query : {"50х5", "50Х5", "50*5", "50×5", "50X5", "l50x5"}) {
    EXPECT_EQ(Found(someAngles, query), Designations{"L50x5"}) << query;
  }
  EXPECT_EQ(Found({"Шв20П", "Шв20"}, "шв20п"), Designations{"Шв20П"});
}

TEST(DesignationSearch, TakesLargeLettersForSmallOnesFromTheFirstToTheLast) {
  EXPECT_EQ(Found({"az1", "AZ2"}, "AZ"), (Designations{"az1", "AZ2"}));
  EXPECT_EQ(Found({"ая1", "АЯ2"}, "АЯ"), (Designations{"ая1", "АЯ2"}));
  EXPECT_EQ(Found({"@1", "[1"}, "`"), Designations{})
      << "neighbours of the letters stay themselves";
}

TEST(DesignationSearch, KnowsWhereTheSizesBeginByAnyFigure) {
  for (const char* figure : {"0", "5", "9"}) {
    const std::string size = std::string(figure) + "x7";
    EXPECT_EQ(DesignationSearch(figure).Rank("L" + size), 1) << figure;
    EXPECT_EQ(DesignationSearch(size).Rank("L" + size), 0) << figure;
  }
  EXPECT_EQ(DesignationSearch(":5").Rank("L/:5"), 2) << "a sign beside the figures is none";
}

TEST(DesignationSearch, TakesACommaForThePointOfAFraction) {
  EXPECT_EQ(Found({"Тр50x2.5", "Тр50x2"}, "2,5"), Designations{"Тр50x2.5"});
  EXPECT_EQ(Found({"Шв6,5"}, "6.5"), Designations{"Шв6,5"});
}

TEST(DesignationSearch, FindsPiecesInTheirOrder) {
  EXPECT_EQ(Found(someAngles, "100 6"), Designations{"L100x63x6"});
  EXPECT_EQ(Found(someAngles, "6 100"), Designations{"L160x100x10"});
}

TEST(DesignationSearch, FindsNothingForNoQuery) {
  EXPECT_TRUE(DesignationSearch(" \t").IsEmpty());
  EXPECT_EQ(Found(someAngles, ""), Designations{});
  EXPECT_EQ(Found(someAngles, "  "), Designations{});
}

TEST(DesignationSearch, LooksPastTheBlanksOfAField) {
  EXPECT_EQ(DesignationSearch("L50x5").Rank("L50x5          "), 0);
  EXPECT_EQ(DesignationSearch("50x5").Rank("L50x5"), 0);
  EXPECT_EQ(DesignationSearch("50").Rank("L50x5"), 1);
  EXPECT_EQ(DesignationSearch("x5").Rank("L50x5"), 2);
  EXPECT_EQ(DesignationSearch("7").Rank("L50x5"), -1);
  EXPECT_FALSE(DesignationSearch("7").Finds("L50x5"));
}

}  // namespace
}  // namespace trelonit

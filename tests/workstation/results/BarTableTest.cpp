#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "tests/workstation/design/SmallTruss.h"
#include "workstation/results/BarTable.h"

namespace trelonit::test {
namespace {

/// The places of the columns.
enum Column : std::size_t {
  groupName,
  number,
  length,
  force,
  section,
  toldStrength,
  toldStabX,
  toldStabY,
  toldFlexX,
  toldFlexY,
  userX,
  userY,
  ownStrength,
  ownStabX,
  ownStabY,
  ownFlexX,
  ownFlexY,
  columnCount
};

class BarTableOfSmallTruss : public ::testing::Test {
 protected:
  static BarTable Of(SmallTruss& desk) {
    const ResultLists& lists = desk.Calculate();
    return BuildBarTable(lists.Of, lists.Opinion.Figures);
  }
  /// 4 t at the second upper joint of four panels: 3 t and 1 t at the supports.
  static BarTable Loaded(Long scheme) {
    SmallTruss desk(scheme);
    desk.Load(true, 1, "4");
    return Of(desk);
  }
  static const TableRow& RowOf(const BarTable& table, const MarkedBar& bar) {
    const auto found = std::find(table.Bars.begin(), table.Bars.end(), bar);
    EXPECT_NE(found, table.Bars.end());
    return table.Table.Rows.at(static_cast<std::size_t>(found - table.Bars.begin()));
  }
  static double Number(const TableRow& row, Column column) {
    return std::get<double>(row.at(column));
  }
  static bool IsEmpty(const TableRow& row, Column column) {
    return std::holds_alternative<std::monostate>(row.at(column));
  }
};

TEST_F(BarTableOfSmallTruss, HasTheBarsOfTheForceListInItsOrder) {
  for (const Long scheme : {1, 2, 3, 4}) {
    SmallTruss desk(scheme);
    desk.Load(true, 1, "4");
    const ResultLists lists = desk.Calculate();
    std::vector<std::string> told;
    for (const std::string& line : lists.lstForces) {
      if (line.find("-ом стержне") != std::string::npos) {
        told.push_back(line);
      }
    }
    const BarTable table = BuildBarTable(lists.Of, lists.Opinion.Figures);
    ASSERT_EQ(table.Table.Rows.size(), told.size()) << scheme;
    ASSERT_EQ(table.Bars.size(), told.size());
    for (std::size_t place = 0; place < told.size(); ++place) {
      const TableRow& row = table.Table.Rows[place];
      ASSERT_EQ(row.size(), columnCount);
      EXPECT_EQ(Number(row, number), table.Bars[place].Number);
      EXPECT_EQ(std::get<std::string>(row[groupName]), GroupName(table.Bars[place].Group));
      EXPECT_EQ(told[place], " Усилие в " + std::to_string(table.Bars[place].Number) +
                                 "-ом стержне  " +
                                 FormatShown(Number(row, force), 4, PointLocale()) + " тонн");
    }
    EXPECT_EQ(table.Table.Columns.size(), columnCount);
  }
}

TEST_F(BarTableOfSmallTruss, TellsLengthsAndSections) {
  const BarTable table = Loaded(1);
  EXPECT_EQ(Number(RowOf(table, {optionUpPoyas, 1}), length), 2);
  EXPECT_DOUBLE_EQ(Number(RowOf(table, {optionRaskos, 1}), length), std::sqrt(8));
  EXPECT_EQ(Number(RowOf(table, {optionStoyka, 5}), length), 2);
  EXPECT_EQ(std::get<std::string>(RowOf(table, {optionUpPoyas, 1})[section]), "Тр50x2");
  EXPECT_EQ(std::get<std::string>(RowOf(table, {optionDwnPoyas, 2})[section]), "2 L25x16x3");
  EXPECT_EQ(std::get<std::string>(RowOf(table, {optionOpornRaskos, 2})[section]), "Дт10");
}

TEST_F(BarTableOfSmallTruss, HasTheCoefficientOfTheGroupAndThatOfTheBar) {
  // The upper chord: 3 t * 2 m / 2 m in the first bar, 1 t * 4 m / 2 m in the others up to the
  // middle; a tube of 3.9 cm2 under 240 MPa * 0.9.
  const BarTable table = Loaded(1);
  const double tonne = 98.1 / (3.9 * 240 * 0.9);
  const TableRow& first = RowOf(table, {optionUpPoyas, 1});
  const TableRow& second = RowOf(table, {optionUpPoyas, 2});
  EXPECT_NEAR(Number(first, force), -3, 1e-9);
  EXPECT_NEAR(Number(second, force), -2, 1e-9);
  EXPECT_NEAR(Number(first, toldStrength), 3 * tonne, 1e-9);
  EXPECT_NEAR(Number(second, toldStrength), 3 * tonne, 1e-9);
  EXPECT_NEAR(Number(first, ownStrength), 3 * tonne, 1e-9);
  EXPECT_NEAR(Number(second, ownStrength), 2 * tonne, 1e-9);
}

TEST_F(BarTableOfSmallTruss, HasNoStabilityWhereNothingIsCompressed) {
  const BarTable table = Loaded(1);
  const TableRow& stretched = RowOf(table, {optionDwnPoyas, 2});
  ASSERT_GT(Number(stretched, force), 0);
  for (const Column column : {toldStabX, toldStabY, ownStabX, ownStabY}) {
    EXPECT_TRUE(IsEmpty(stretched, column)) << column;
  }
  for (const Column column :
       {toldStrength, toldFlexX, toldFlexY, userX, userY, ownFlexX, ownFlexY}) {
    EXPECT_GT(Number(stretched, column), 0) << column;
  }
  const TableRow& compressed = RowOf(table, {optionUpPoyas, 1});
  for (const Column column : {toldStabX, toldStabY, ownStabX, ownStabY}) {
    EXPECT_GT(Number(compressed, column), 0) << column;
  }
}

TEST_F(BarTableOfSmallTruss, HasEmptyCellsWhereThereIsNoOpinion) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  const BarTable table = BuildBarTable(desk.Calculate().Of, {.Refusal = "none"});
  const TableRow& row = RowOf(table, {optionUpPoyas, 1});
  for (const Column column : {ownStrength, ownStabX, ownStabY, ownFlexX, ownFlexY}) {
    EXPECT_TRUE(IsEmpty(row, column)) << column;
  }
  EXPECT_GT(Number(row, toldStrength), 0);
}

TEST_F(BarTableOfSmallTruss, HasEmptyCellsWhereTheChecksBrokeOff) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  desk.Main.txtRy.SetText("0");
  const BarTable table = Of(desk);
  const TableRow& row = RowOf(table, {optionUpPoyas, 1});
  for (std::size_t column = toldStrength; column < columnCount; ++column) {
    EXPECT_TRUE(IsEmpty(row, static_cast<Column>(column))) << column;
  }
  EXPECT_NEAR(Number(row, force), -3, 1e-9);
}

TEST(BarTableOfNothing, HasItsColumnsAndNoRow) {
  for (const Long scheme : {1, 5, 10, 11}) {
    Calculation empty;
    empty.TreloData.TreloType = scheme;
    const BarTable table = BuildBarTable(empty, {});
    EXPECT_EQ(table.Table.Columns.size(), columnCount);
    EXPECT_TRUE(table.Table.Rows.empty());
    EXPECT_TRUE(table.Bars.empty());
  }
}

TEST(SectionNames, TellPairsAsTwo) {
  SectionRec section;
  section.Profile.Name = "L50x5";
  for (Long layout = 1; layout <= 11; ++layout) {
    section.Layout = layout;
    const bool pair = layout == 2 || layout == 3 || layout == 4 || layout == 8;
    EXPECT_EQ(SectionName(section), pair ? "2 L50x5" : "L50x5") << layout;
  }
  // What is kept of an earlier pair counts for nothing.
  section.Layout = 1;
  section.Paired = true;
  EXPECT_EQ(SectionName(section), "L50x5");
}

}  // namespace
}  // namespace trelonit::test

#include <gtest/gtest.h>

#include "tests/support/TestServices.h"
#include "workstation/results/ResultTable.h"

namespace trelonit::test {
namespace {

const std::string mark = "\xEF\xBB\xBF";

/// A table of one column of texts and one of numbers with two decimals.
ResultTable Table(std::vector<TableRow> rows) {
  return {.Title = "Таблица",
          .Columns = {{.Caption = "Имя"},
                      {.Caption = "Усилие, т", .Short = "Усилие,\nт", .Decimals = 2}},
          .Rows = std::move(rows)};
}

TableRow Row(const std::string& text, double number) {
  return {text, number};
}

TEST(CommaSeparatedTable, BeginsWithTheCaptionsAndEndsEveryLineAsTheNormOfSuchFilesSays) {
  // The caption of the second column has the separator in it.
  EXPECT_EQ(CommaSeparated(Table({Row("a", 1.5), Row("b", -2)}), PointLocale()),
            mark + "Имя,\"Усилие, т\"\r\na,1.50\r\nb,-2.00\r\n");
}

TEST(CommaSeparatedTable, HasSemicolonsWhereNumbersHaveCommas) {
  EXPECT_EQ(CommaSeparated(Table({Row("a;b", 1.5)}), CommaLocale()),
            mark + "Имя;Усилие, т\r\n\"a;b\";1,50\r\n");
}

TEST(CommaSeparatedTable, DoublesQuotesAndKeepsLineEndsInsideThem) {
  EXPECT_EQ(CommaSeparated(Table({Row("say \"L\"", 0), Row("two\r\nlines", 0), Row("one\rtwo", 0)}),
                           PointLocale()),
            mark +
                "Имя,\"Усилие, т\"\r\n\"say \"\"L\"\"\",0.00\r\n\"two\r\nlines\",0.00\r\n"
                "\"one\rtwo\",0.00\r\n");
}

TEST(CommaSeparatedTable, LeavesACellOfNothingEmpty) {
  EXPECT_EQ(CommaSeparated(Table({{TableCell(), TableCell()}}), PointLocale()),
            mark + "Имя,\"Усилие, т\"\r\n,\r\n");
}

TEST(TabSeparatedTable, WritesNumbersAsTheDesktopDoesWithoutGroups) {
  NumberLocale russian = CommaLocale();
  russian.GroupSeparator = " ";
  EXPECT_EQ(TabSeparated(Table({Row("a", 12345.678)}), russian), "Имя\tУсилие, т\na\t12345,68\n");
}

TEST(TabSeparatedTable, KeepsItsShapeWhateverStandsInATextCell) {
  EXPECT_EQ(TabSeparated(Table({Row("a\tb\nc\rd", 1)}), PointLocale()),
            "Имя\tУсилие, т\na b c d\t1.00\n");
}

TEST(ShownCells, HaveTheGroupsOfTheDesktop) {
  NumberLocale grouped = PointLocale();
  grouped.GroupSeparator = " ";
  const TableColumn column{.Caption = "x", .Decimals = 1};
  EXPECT_EQ(ShownCell(12345.0, column, grouped), "12 345.0");
  EXPECT_EQ(ShownCell(std::string("text"), column, grouped), "text");
  EXPECT_EQ(ShownCell({}, column, grouped), "");
}

TEST(TableColumns, HaveTheirCaptionAsHeadWhereThereIsNoShortOne) {
  EXPECT_EQ((TableColumn{.Caption = "long"}).Head(), "long");
  EXPECT_EQ((TableColumn{.Caption = "long", .Short = "s"}).Head(), "s");
}

}  // namespace
}  // namespace trelonit::test

#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "variants/VariantList.h"
#include "variants/VariantTable.h"

namespace trelonit::test {

namespace {

SharedText Shared(const std::string& text) {
  return std::make_shared<const std::string>(text);
}

VariantRow PassingRow(std::uint64_t number, double mass, double height) {
  VariantRow row{.Number = number,
                 .Height = height,
                 .Mass = mass,
                 .Steel = Shared("С245"),
                 .Reason = Shared(""),
                 .Verdict = VariantVerdict::Passes};
  for (VariantRow::Group& group : row.Groups) {
    group.Profile = Shared("50x5");
  }
  return row;
}

VariantRow ImpossibleRow(std::uint64_t number, const std::string& reason) {
  return {.Number = number, .Steel = Shared("С245"), .Reason = Shared(reason)};
}

VariantList ListOf(std::vector<VariantRow> rows) {
  VariantList list;
  list.Take({.Rows = std::move(rows)});
  return list;
}

std::vector<std::uint64_t> ShownNumbers(const VariantList& list) {
  std::vector<std::uint64_t> numbers;
  for (const VariantRow* row : list.Shown()) {
    numbers.push_back(row->Number);
  }
  return numbers;
}

using Numbers = std::vector<std::uint64_t>;

std::size_t ColumnNamed(const std::string& caption) {
  const std::vector<TableColumn>& columns = VariantTableColumns();
  std::size_t place = 0;
  while (columns.at(place).Caption != caption) {
    ++place;
  }
  return place;
}

TEST(VariantList, TellsThePlaceOfAShownRow) {
  VariantList list = ListOf({PassingRow(0, 3, 1), PassingRow(1, 1, 1), PassingRow(2, 2, 1)});
  list.SetOrder({.Column = ColumnNamed("Масса, т")});
  EXPECT_EQ(list.PlaceOf(1), 0U);
  EXPECT_EQ(list.PlaceOf(2), 1U);
  EXPECT_EQ(list.PlaceOf(0), 2U);
  EXPECT_EQ(list.PlaceOf(3), std::nullopt);
}

TEST(VariantList, KnowsNoPlaceOfARowThatItsFilterHides) {
  VariantList list = ListOf({ImpossibleRow(0, "нет"), PassingRow(1, 1, 1)});
  list.SetFilter(VariantFilter::Passing);
  EXPECT_EQ(list.PlaceOf(0), std::nullopt);
  EXPECT_EQ(list.PlaceOf(1), 0U);
}

TEST(VariantList, FindsHeldAndKeptRows) {
  VariantList list;
  list.Take({.Rows = {PassingRow(0, 3, 1), PassingRow(1, 1, 1)},
             .Best = {PassingRow(7, 0.5, 1)},
             .FrontByHeight = {PassingRow(8, 2, 0.5)},
             .FrontByProgib = {PassingRow(9, 2.5, 1)}});
  for (const std::uint64_t number : {0U, 1U, 7U, 8U, 9U}) {
    ASSERT_NE(list.Find(number), nullptr) << number;
    EXPECT_EQ(list.Find(number)->Number, number);
  }
  EXPECT_EQ(list.Find(2), nullptr);
}

TEST(VariantList, KeepsBestOnesAndFrontsApart) {
  VariantList list;
  list.Take({.Best = {PassingRow(7, 0.5, 1)},
             .FrontByHeight = {PassingRow(8, 2, 0.5)},
             .FrontByProgib = {PassingRow(9, 2.5, 1)}});
  list.SetFilter(VariantFilter::Best);
  EXPECT_EQ(ShownNumbers(list), Numbers{7});
  list.SetFilter(VariantFilter::FrontByHeight);
  EXPECT_EQ(ShownNumbers(list), Numbers{8});
  list.SetFilter(VariantFilter::FrontByProgib);
  EXPECT_EQ(ShownNumbers(list), Numbers{9});
}

TEST(VariantList, TellsWhichColumnsDiffer) {
  const VariantList list = ListOf({PassingRow(0, 3, 1), PassingRow(1, 2, 1)});
  EXPECT_TRUE(list.Varies(ColumnNamed("Масса, т")));
  EXPECT_FALSE(list.Varies(ColumnNamed("Высота, м")));
  EXPECT_FALSE(list.Varies(ColumnNamed("Сталь")));
}

TEST(VariantList, WithoutRowsDiffersNowhere) {
  const VariantList list;
  for (std::size_t column = 0; column < VariantTableColumns().size(); ++column) {
    EXPECT_FALSE(list.Varies(column)) << column;
  }
}

TEST(VariantList, FindsTextsInWhateverCase) {
  VariantList list = ListOf({ImpossibleRow(0, "Ёлка"), ImpossibleRow(1, "плотный ряд"),
                             PassingRow(2, 1, 1), ImpossibleRow(3, "Profile")});
  list.SetText("ёЛКА");
  EXPECT_EQ(ShownNumbers(list), Numbers{0});
  list.SetText(" ПЛОТНЫЙ ");
  EXPECT_EQ(ShownNumbers(list), Numbers{1});
  list.SetText("PROFILE");
  EXPECT_EQ(ShownNumbers(list), Numbers{3});
  list.SetText("Ё");
  EXPECT_EQ(ShownNumbers(list), Numbers{0});
}

TEST(VariantList, FindsSteelsVerdictsAndProfilesToo) {
  VariantRow other = PassingRow(1, 1, 1);
  other.Groups[2].Profile = Shared("63x6");
  VariantRow steel = PassingRow(2, 1, 1);
  steel.Steel = Shared("С345");
  VariantList list = ListOf({ImpossibleRow(0, "-"), other, steel});
  list.SetText("63X6");
  EXPECT_EQ(ShownNumbers(list), Numbers{1});
  list.SetText("с345");
  EXPECT_EQ(ShownNumbers(list), Numbers{2});
  list.SetText("невозможен");
  EXPECT_EQ(ShownNumbers(list), Numbers{0});
  list.SetText("такого нет");
  EXPECT_TRUE(list.Shown().empty());
}

TEST(VariantList, PutsRowsWithoutAFigureLastEitherWay) {
  VariantList list = ListOf({ImpossibleRow(0, "-"), PassingRow(1, 2, 1), PassingRow(2, 1, 1),
                             PassingRow(3, 2, 1), ImpossibleRow(4, "-")});
  list.SetOrder({.Column = ColumnNamed("Масса, т")});
  EXPECT_EQ(ShownNumbers(list), (Numbers{2, 1, 3, 0, 4}));
  list.SetOrder({.Column = ColumnNamed("Масса, т"), .Descending = true});
  EXPECT_EQ(ShownNumbers(list), (Numbers{1, 3, 2, 0, 4}));
}

TEST(VariantList, ForgetsItsRowsAndNotHowTheyAreShown) {
  VariantList list = ListOf({PassingRow(0, 1, 1)});
  list.SetFilter(VariantFilter::Passing);
  list.SetText("50x5");
  list.SetOrder({.Column = ColumnNamed("Масса, т"), .Descending = true});
  list.Clear();
  EXPECT_TRUE(list.Held().empty());
  EXPECT_TRUE(list.Shown().empty());
  EXPECT_EQ(list.Find(0), nullptr);
  list.Take({.Rows = {PassingRow(0, 1, 1), ImpossibleRow(1, "-"), PassingRow(2, 2, 1)}});
  EXPECT_EQ(ShownNumbers(list), (Numbers{2, 0}));
}

/// What a narrow table shows of each group of bars: the section and how far it is used.
TEST(VariantTableColumns, AreAsideButForWhatTellsVariantsApart) {
  std::set<std::string> main;
  const std::vector<TableColumn>& columns = VariantTableColumns();
  for (std::size_t column = 0; column < columns.size(); ++column) {
    if (!IsVariantColumnAside(column)) {
      main.insert(columns[column].Caption);
    }
  }
  EXPECT_TRUE(main.contains("Номер"));
  EXPECT_TRUE(main.contains("Высота, м"));
  EXPECT_TRUE(main.contains("Число панелей"));
  EXPECT_TRUE(main.contains("Масса, т"));
  EXPECT_FALSE(main.contains("Схема"));
  EXPECT_FALSE(main.contains("Сталь"));
  for (const std::size_t column : VariantMainColumns()) {
    EXPECT_TRUE(main.contains(columns.at(column).Caption)) << columns.at(column).Caption;
  }
  // A size and a use of each of the five groups.
  constexpr std::size_t groups = 5;
  std::size_t ofGroups = 0;
  for (const std::string& caption : main) {
    ofGroups += caption.starts_with("Верхний пояс") || caption.starts_with("Нижний пояс") ||
                caption.starts_with("Раскосы") || caption.starts_with("Стойки") ||
                caption.starts_with("Опорные раскосы");
  }
  EXPECT_EQ(ofGroups, groups * 2);
}

TEST(VariantTableColumns, HaveAGapOfEachGroup) {
  std::size_t gaps = 0;
  const std::vector<TableColumn>& columns = VariantTableColumns();
  for (std::size_t column = 0; column < columns.size(); ++column) {
    if (IsVariantGapColumn(column)) {
      ++gaps;
      EXPECT_NE(columns[column].Caption.find("зазор"), std::string::npos)
          << columns[column].Caption;
      EXPECT_TRUE(IsVariantColumnAside(column));
    }
  }
  EXPECT_EQ(gaps, 5U);
}

}  // namespace

}  // namespace trelonit::test

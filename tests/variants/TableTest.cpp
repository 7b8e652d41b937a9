#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/variants/Studies.h"
#include "variants/BestVariants.h"
#include "variants/VariantPlot.h"
#include "variants/VariantTable.h"

namespace trelonit::test {

namespace {

Variant Passing(std::uint64_t number, double mass, double height) {
  Variant variant{.Number = number};
  variant.Verdict = VariantVerdict::Passes;
  variant.Mass = mass;
  variant.Inputs.Hight = height;
  return variant;
}

std::vector<std::uint64_t> NumbersOf(const std::vector<Variant>& variants) {
  std::vector<std::uint64_t> numbers;
  for (const Variant& variant : variants) {
    numbers.push_back(variant.Number);
  }
  return numbers;
}

using Numbers = std::vector<std::uint64_t>;

TEST(CsvRow, QuotesWhatWouldEndAField) {
  EXPECT_EQ(CsvRow({"a", "", "1.5"}), "a,,1.5\r\n");
  EXPECT_EQ(CsvRow({"Высота, м", "5\" x", "x\ny"}), "\"Высота, м\",\"5\"\" x\",\"x\ny\"\r\n");
  EXPECT_EQ(CsvRow({"", "b"}), ",b\r\n");
}

TEST(VariantTable, HasAFieldForEachColumn) {
  const VariantSpace space(StartInputs(), {.Panels = {7, 8}}, Catalogue());
  const std::vector<Variant> variants = AllOf(space);
  ASSERT_EQ(variants.size(), 2U);
  for (const Variant& variant : variants) {
    EXPECT_EQ(VariantFields(variant).size(), VariantColumns().size());
  }
  const std::vector<std::string> impossible = VariantFields(variants[0]);
  EXPECT_EQ(impossible.front(), "1");
  EXPECT_EQ(impossible[impossible.size() - 2], "невозможен");
  EXPECT_EQ(impossible.back(), "в схеме 1 не бывает панелей: 7");
  const std::vector<std::string> possible = VariantFields(variants[1]);
  EXPECT_EQ(possible[possible.size() - 2], "годится");
  EXPECT_EQ(std::stod(possible[possible.size() - 6]), variants[1].Mass);
}

TEST(LightestVariants, KeepTheLightestInOrder) {
  LightestVariants lightest(2);
  for (const Variant& variant :
       {Passing(0, 3, 1), Passing(1, 2, 1), Passing(2, 2, 1), Passing(3, 1, 1)}) {
    lightest.Take(variant);
  }
  Variant failing = Passing(4, 0.5, 1);
  failing.Verdict = VariantVerdict::Fails;
  lightest.Take(failing);
  EXPECT_EQ(NumbersOf(lightest.Kept()), (Numbers{3, 1}));
}

TEST(VariantFront, KeepsWhatNothingElseIsBetterThan) {
  VariantFront front(HeightOf);
  for (const Variant& variant : {Passing(0, 3, 2), Passing(1, 2, 3), Passing(2, 3, 2.5),
                                 Passing(3, 2, 3), Passing(4, 4, 1), Passing(5, 2.5, 2)}) {
    front.Take(variant);
  }
  // 5 drives 0 away; 3 is like 1.
  EXPECT_EQ(NumbersOf(front.Kept()), (Numbers{1, 5, 4}));
}

TEST(VariantPlot, HasAMarkForEachPointAndForTheFront) {
  const std::string svg = PlotAsSvg({{1.5, 2, 6}, {2, 1.8, 8}, {2.5, 2.4, 8}}, {{1.5, 2, 6}});
  const auto count = [&svg](const std::string& piece) {
    int found = 0;
    for (std::size_t place = svg.find(piece); place != std::string::npos;
         place = svg.find(piece, place + 1)) {
      ++found;
    }
    return found;
  };
  EXPECT_EQ(count("r=\"3\""), 3);
  // And one of each in the legend.
  EXPECT_EQ(count("r=\"6\""), 2);
  EXPECT_EQ(count("r=\"4\""), 2);
  EXPECT_NE(svg.find("Масса, т"), std::string::npos);
}

TEST(VariantPlot, WithoutPointsSaysSo) {
  EXPECT_NE(PlotAsSvg({}, {}).find("Ни один вариант не годится"), std::string::npos);
}

TEST(VariantPlot, OfOnePointHasAxes) {
  const std::string svg = PlotAsSvg({{2, 1.5, 6}}, {});
  EXPECT_EQ(svg.find("nan"), std::string::npos);
  EXPECT_EQ(svg.find("inf"), std::string::npos);
}

}  // namespace

}  // namespace trelonit::test

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <stdexcept>

#include "platform/errors/RuntimeError.h"
#include "tests/variants/Studies.h"
#include "variants/VariantTable.h"

namespace trelonit::test {

namespace {

VariantAxes HeightsAndPanels() {
  return {.Schemes = {1, 3, 4},
          .Heights = {1.5, 1.75, 2, 2.25, 2.5, 2.75, 3},
          .Panels = {6, 8, 10, 12, 14}};
}

std::string TableOf(const std::vector<Variant>& variants) {
  std::string table;
  for (const Variant& variant : variants) {
    table += CsvRow(VariantFields(variant));
  }
  return table;
}

TEST(Study, TriesEveryCombinationTheLastAxisFirst) {
  const VariantSpace space(StartInputs(), HeightsAndPanels(), Catalogue());
  ASSERT_EQ(space.Count(), 105U);
  EXPECT_EQ(space.At(0).PanelNum, 6);
  EXPECT_EQ(space.At(1).PanelNum, 8);
  EXPECT_EQ(space.At(5).PanelNum, 6);
  EXPECT_EQ(space.At(5).Hight, 1.75);
  EXPECT_EQ(space.At(35).TreloType, 3);
  EXPECT_EQ(space.At(104).TreloType, 4);
  EXPECT_EQ(space.At(104).Hight, 3);
  EXPECT_EQ(space.At(104).PanelNum, 14);
}

TEST(Study, GivesTheSameRowsWhateverTheJobs) {
  const VariantSpace space(StartInputs(), HeightsAndPanels(), Catalogue());
  const std::string one = TableOf(AllOf(space));
  for (const unsigned jobs : {2U, 3U, 8U}) {
    EXPECT_EQ(TableOf(AllOf(space, {.Jobs = jobs})), one) << jobs;
  }
}

RC_GTEST_PROP(Study, ShardsFollowOneAnotherAndLeaveNothingOut, ()) {
  const auto count = *rc::gen::inRange<std::uint64_t>(0, 1000);
  const auto shards = *rc::gen::inRange<std::uint64_t>(1, 40);
  std::uint64_t next = 0;
  for (std::uint64_t shard = 1; shard <= shards; ++shard) {
    const ShardBounds bounds = BoundsOfShard(count, shard, shards);
    RC_ASSERT(bounds.First == next);
    RC_ASSERT(bounds.Last - bounds.First <= count / shards + 1);
    next = bounds.Last;
  }
  RC_ASSERT(next == count);
}

TEST(Study, OfShardsIsTheWhole) {
  const VariantSpace space(StartInputs(), HeightsAndPanels(), Catalogue());
  std::string joined;
  for (std::uint64_t shard = 1; shard <= 4; ++shard) {
    joined += TableOf(AllOf(space, {.Jobs = 2, .Shard = shard, .Shards = 4}));
  }
  EXPECT_EQ(joined, TableOf(AllOf(space)));
}

TEST(Study, EndsWhenItIsAskedTo) {
  VariantAxes axes;
  for (int step = 0; step < 2000; ++step) {
    axes.Heights.push_back(1.5 + step / 1000.0);
  }
  const VariantSpace space(StartInputs(), axes, Catalogue());
  std::atomic<bool> stop{false};
  std::uint64_t taken = 0;
  const std::uint64_t told = RunStudy(
      space, {.Jobs = 2}, Catalogue(),
      [&](const std::vector<Variant>& batch) {
        EXPECT_EQ(batch.front().Number, taken);
        taken += batch.size();
        stop = true;
      },
      stop);
  EXPECT_EQ(told, taken);
  EXPECT_GT(taken, 0U);
  EXPECT_LT(taken, 2000U);
}

TEST(Study, EndsWithTheErrorOfWhoeverTakesTheVariants) {
  const VariantSpace space(StartInputs(), HeightsAndPanels(), Catalogue());
  const std::atomic<bool> never{false};
  for (const unsigned jobs : {1U, 3U}) {
    EXPECT_THROW(
        RunStudy(
            space, {.Jobs = jobs}, Catalogue(),
            [](const std::vector<Variant>&) { throw RuntimeError(ErrorNumber::DiskFull); }, never),
        RuntimeError);
  }
}

TEST(Study, EndsWithTheErrorOfAVariantThatCannotBePutTogether) {
  VariantAxes axes{.Heights = {1.5, 2, 2.5}};
  axes.Kinds[sectionRaskos - 1] = {{.Layout = 1, .Standard = 1}, {.Layout = 2, .Standard = 2}};
  ProfileTypeArray catalogue = Catalogue();
  const VariantSpace space(StartInputs(), axes, catalogue);
  // Whoever has begun a study keeps the catalogue; this one does not.
  catalogue = {};
  const std::atomic<bool> never{false};
  for (const unsigned jobs : {1U, 3U}) {
    int taken = 0;
    try {
      RunStudy(
          space, {.Jobs = jobs}, catalogue, [&taken](const std::vector<Variant>&) { ++taken; },
          never);
      FAIL();
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), static_cast<int>(ErrorNumber::SubscriptOutOfRange));
    }
    EXPECT_EQ(taken, 0);
  }
}

std::string RefusalOf(const VariantAxes& axes) {
  try {
    const VariantSpace space(StartInputs(), axes, Catalogue());
  } catch (const RuntimeError& error) {
    return error.Description();
  }
  return "taken";
}

TEST(VariantSpace, RefusesWhatTheCatalogueDoesNotOffer) {
  VariantAxes axes;
  axes.Kinds[0] = {{.Layout = 12, .Standard = 1}};
  EXPECT_EQ(RefusalOf(axes), "нет расположения профилей с номером 12");
  axes.Kinds[0] = {{.Layout = 1, .Standard = 99}};
  EXPECT_EQ(RefusalOf(axes), "для расположения профилей 1 нет сортамента 99");
}

TEST(VariantSpace, RefusesMoreThanAHundredMillion) {
  VariantAxes axes;
  axes.Spans.assign(10'001, 20.0);
  axes.Heights.assign(10'000, 2.0);
  EXPECT_EQ(RefusalOf(axes), "вариантов больше 100 000 000");
}

TEST(VariantSpace, GivesTheDesignEachSteelWithItsStrength) {
  const VariantAxes axes{.Panels = {8, 10}, .Steels = {{"С245", 2450}, {"С345", 3450}}};
  const VariantSpace space(StartInputs(), axes, Catalogue());
  ASSERT_EQ(space.Count(), 4U);
  EXPECT_EQ(space.At(0).SteelName, "С245");
  EXPECT_EQ(space.At(1).SteelName, "С345");
  EXPECT_EQ(space.At(1).Ry, 3450);
  EXPECT_EQ(space.At(1).PanelNum, 8);
  EXPECT_EQ(space.At(2).Ry, 2450);
}

TEST(VariantSpace, GivesAGroupOfAnotherKindTheFirstSizeOfItsStandard) {
  const SectionLayout* paired = nullptr;
  for (Long number = 1; number <= sectionLayoutCount; ++number) {
    if (FindSectionLayout(number)->Paired) {
      paired = FindSectionLayout(number);
    }
  }
  ASSERT_NE(paired, nullptr);
  VariantAxes axes;
  axes.Kinds[sectionRaskos - 1] = {
      {.Layout = paired->Number, .Standard = paired->Standards.front()}};
  axes.Gaps = {11};
  DesignInputs base = StartInputs();
  base.ElementSection[sectionRaskos] = {};
  const SectionRec section =
      VariantSpace(base, axes, Catalogue()).At(0).ElementSection[sectionRaskos];
  EXPECT_EQ(section.Layout, paired->Number);
  EXPECT_EQ(section.TypeIdx, paired->Standards.front());
  EXPECT_EQ(section.SizeIdx, 1);
  EXPECT_TRUE(section.Paired);
  EXPECT_EQ(section.Gdist, 11);
  EXPECT_EQ(section.Profile, Catalogue()[section.TypeIdx].Rec[1]);
}

}  // namespace

}  // namespace trelonit::test

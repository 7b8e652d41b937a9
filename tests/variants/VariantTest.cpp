#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "checks/ElementGroups.h"
#include "tests/variants/Studies.h"
#include "workstation/design/ProjectFile.h"
#include "workstation/design/modHelper.h"

namespace trelonit::test {

namespace {

/// A design that a project file holds to the last digit.
DesignInputs AnyInputs(std::mt19937& random, Long scheme) {
  const Pick pick = [&random](Long least, Long greatest) {
    return std::uniform_int_distribution<Long>(least, greatest)(random);
  };
  std::vector<Long> layouts;
  for (Long place = 1; place <= sectionCount; ++place) {
    layouts.push_back(pick(1, sectionLayoutCount));
  }
  const trelonit::Design design = AnyDesign(pick, scheme, layouts);
  DesignInputs inputs = StartInputs(scheme);
  inputs.LengthF = design.TreloData.LengthF;
  inputs.Hight = design.TreloData.Hight;
  inputs.LenOporn = static_cast<double>(pick(5, 25)) / 10;
  inputs.PanelNum = design.TreloData.PanelNum;
  inputs.UpPoyasBrace = design.TreloData.UpPoyasBrace;
  inputs.DownPoyasBrace = design.TreloData.DownPoyasBrace;
  inputs.ElementSection = design.ElementSection;
  inputs.Loads = ZeroLoads(*BoundsOfLoads(scheme, inputs.PanelNum));
  for (double& load : inputs.Loads.UpDistForce) {
    load = static_cast<double>(pick(1, 40)) / 8;
  }
  inputs.OwnWeightOn = static_cast<Integer>(pick(0, 1));
  inputs.ProgibOn = 1;
  inputs.ProgibUpper = 1;
  return inputs;
}

/// The project of these inputs on a desk of its own, after one of its commands.
class OpenedProject {
 public:
  explicit OpenedProject(const DesignInputs& inputs) {
    desk_.TakesProposals = true;
    EXPECT_TRUE(WriteApplParameters("/variant.tsav", inputs, desk_.Outside.Bundle()));
    EXPECT_TRUE(Form().OpenProject("/variant.tsav"));
    Form().CheckGeometry();
  }
  frmMain& Form() { return desk_.Main; }

 private:
  StartedDesk desk_;
};

void ExpectNear(double value, double expected, const std::string& what) {
  EXPECT_NEAR(value, expected, 1e-9 * (1 + std::abs(expected))) << what;
}

TEST(Variant, HasTheSizesAndFiguresThatItsProjectHasOnTheDesk) {
  std::mt19937 random(20261122);
  int compared = 0;
  for (int tries = 0; compared < 1000; ++tries) {
    ASSERT_LT(tries, 10'000);
    const VariantSpace space(AnyInputs(random, 1 + tries % 4), {}, Catalogue());
    const Variant variant = MakeVariant(space, 0, {}, Catalogue());
    // Sizes that take turns are no selection's last word.
    if (variant.Verdict == VariantVerdict::Impossible ||
        variant.Reason.find("чередуются") != std::string::npos) {
      continue;
    }
    ++compared;
    const std::string what = "try " + std::to_string(tries);
    OpenedProject calculated(variant.Inputs);
    calculated.Form().cmdCalculate_Click();
    const Calculation& last = calculated.Form().Model.Last;
    ExpectNear(variant.Mass, last.CheckData.Mass, what + ", mass");
    ASSERT_TRUE(last.Progib.has_value()) << what;
    ExpectNear(variant.Progib, last.Progib->Value, what + ", deflection");
    for (const ElementGroupRow& row : elementGroups) {
      if (row.Group != ElementGroup::Stoyka || HasVerticals(variant.Inputs.TreloType)) {
        ExpectNear(variant.Use[static_cast<std::size_t>(row.Place) - 1],
                   LargestUse(last.CheckData.*row.Block), what);
      }
    }
    OpenedProject selected(variant.Inputs);
    selected.Form().cmdCalcAndSelect_Click();
    for (Long place = 1; place <= sectionCount; ++place) {
      EXPECT_EQ(selected.Form().Model.Inputs.ElementSection[place].Profile,
                variant.Inputs.ElementSection[place].Profile)
          << what << ", group " << place;
    }
  }
}

TEST(Variant, ByBothPassesTheSecondOpinionToo) {
  DesignInputs base = StartInputs();
  for (double& load : base.Loads.UpDistForce) {
    load = 0.4;
  }
  base.UpPoyasBrace = 2;
  base.DownPoyasBrace = 2;
  // Two angles, of the layout's own standard, in every group.
  VariantAxes axes{.Heights = {1.5, 2, 2.5}};
  axes.Kinds.fill({{.Layout = 2, .Standard = 2}});
  const VariantSpace space(base, axes, Catalogue());
  for (std::uint64_t number = 0; number < space.Count(); ++number) {
    const Variant told = MakeVariant(space, number, {}, Catalogue());
    const Variant both = MakeVariant(space, number, {.ByOpinion = true}, Catalogue());
    ASSERT_EQ(both.Verdict, VariantVerdict::Passes) << both.Reason;
    EXPECT_LE(*std::max_element(both.Use.begin(), both.Use.end()), 1);
    EXPECT_GE(both.Mass, 0.9 * told.Mass);
  }
}

std::string ReasonOf(const DesignInputs& base, const VariantAxes& axes) {
  const Variant variant = MakeVariant(VariantSpace(base, axes, Catalogue()), 0, {}, Catalogue());
  EXPECT_EQ(variant.Verdict, VariantVerdict::Impossible);
  EXPECT_EQ(variant.Mass, 0);
  return variant.Reason;
}

TEST(Variant, ThatIsImpossibleSaysWhy) {
  const DesignInputs base = StartInputs();
  EXPECT_EQ(ReasonOf(base, {.Schemes = {5}}), "схема 5 не рассчитывается");
  EXPECT_EQ(ReasonOf(base, {.Schemes = {77}}), "схема 77 не рассчитывается");
  EXPECT_EQ(ReasonOf(base, {.Panels = {7}}), "в схеме 1 не бывает панелей: 7");
  EXPECT_EQ(ReasonOf(base, {.Panels = {32}}), "в схеме 1 не бывает панелей: 32");
  EXPECT_EQ(ReasonOf(base, {.Spans = {0}}), "пролет и высота должны быть больше нуля");
  EXPECT_EQ(ReasonOf(base, {.Heights = {20}}), "высота не меньше пролета");
  EXPECT_EQ(ReasonOf(base, {.EndPanels = {10}}), "крайние панели длиннее фермы");
  DesignInputs loaded = base;
  loaded.Loads.UpPForce[2] = 3;
  EXPECT_EQ(ReasonOf(loaded, {.Panels = {8}}),
            "сосредоточенные нагрузки внутренних узлов верхнего пояса различны: узлы нельзя "
            "сдвинуть");
  DesignInputs heavy = base;
  for (double& load : heavy.Loads.UpDistForce) {
    load = 10'000;
  }
  EXPECT_TRUE(ReasonOf(heavy, {}).starts_with("Подбор невозможен: "));
}

TEST(Variant, ThatBendsTooMuchDoesNotPass) {
  DesignInputs base = StartInputs();
  base.ProgibOn = 1;
  base.LenLim = "1 / 2500";
  const Variant variant =
      MakeVariant(VariantSpace(base, {.Heights = {0.8}}, Catalogue()), 0, {}, Catalogue());
  EXPECT_EQ(variant.Verdict, VariantVerdict::Fails);
  EXPECT_EQ(variant.Reason, "прогиб больше предельного");
}

}  // namespace

}  // namespace trelonit::test

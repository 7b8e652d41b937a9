#include <gtest/gtest.h>

#include "tests/workstation/design/SmallTruss.h"

namespace trelonit::test {
namespace {

class SectionView : public ::testing::Test {
 protected:
  const SectionRec& Stored(Long place) const { return form.Model.Inputs.ElementSection[place]; }
  std::string Fact(const std::string& name) {
    for (const SectionFact& fact : form.DescribeSection().Facts) {
      if (fact.Name == name) {
        return fact.Value;
      }
    }
    return {};
  }

  SmallTruss desk{1};
  frmMain& form = desk.Main;
};

TEST_F(SectionView, ShowsTheSectionOfTheChosenGroup) {
  form.optElementSection.Select(optionUpPoyas);
  EXPECT_EQ(form.DescribeSection().Group, optionUpPoyas);
  EXPECT_EQ(Fact("A"), "3.90 см²");
  form.optElementSection.Select(optionDwnPoyas);
  EXPECT_EQ(form.DescribeSection().Group, optionDwnPoyas);
  EXPECT_EQ(Fact("A"), "2.32 см²");
  ASSERT_TRUE(form.DescribeSection().Drawing);
  EXPECT_EQ(form.DescribeSection().Drawing->Profiles.size(), 2U);
}

TEST_F(SectionView, IsToldOfEveryChangeOfTheSection) {
  form.optElementSection.Select(optionDwnPoyas);
  int told = 0;
  form.SectionChanged = [&] { ++told; };
  const auto tells = [&](const std::function<void()>& change) {
    told = 0;
    change();
    return told > 0;
  };
  EXPECT_TRUE(tells([&] { Choose(form.cmbGdist, "12"); }));
  EXPECT_EQ(Fact("J в плоскости фермы"), "1.40 см⁴");
  EXPECT_TRUE(tells([&] { Choose(form.cmbSectType, "L63x40x5"); }));
  EXPECT_TRUE(tells([&] { form.imgProfileSecSelect_Click(5); }));
  EXPECT_TRUE(tells([&] { Choose(form.cmbTypeProfile, StandardName(form, 4)); }));
  EXPECT_TRUE(tells([&] { form.optElementSection.Select(optionRaskos); }));
  EXPECT_TRUE(tells([&] { form.optio_Click(); })) << "the density may be another one";
}

TEST_F(SectionView, FollowsTheSizesOfTheTrussAsTheyAreTyped) {
  form.optElementSection.Select(optionUpPoyas);
  EXPECT_EQ(Fact("Вся группа"), "4 стержня, 8.00 м, 24 кг");
  form.txtLengthF.SetText("12");
  EXPECT_EQ(Fact("Вся группа"), "4 стержня, 12.00 м, 37 кг");
  form.txtLengthF.SetText("0");
  EXPECT_EQ(Fact("Вся группа"), "");
  EXPECT_EQ(Fact("A"), "3.90 см²");
}

TEST_F(SectionView, GoesByTheDensityOfTheSteel) {
  form.optElementSection.Select(optionUpPoyas);
  EXPECT_EQ(Fact("Масса метра"), "3.06 кг/м");
  form.Steel.DensitSteel = "2.7";
  EXPECT_EQ(Fact("Масса метра"), "1.05 кг/м");
  form.Steel.DensitSteel = "x";
  EXPECT_TRUE(form.DescribeSection().Facts.empty());
}

TEST_F(SectionView, HasNoDrawingOfARecordThatMakesNoSection) {
  form.Model.Inputs.ElementSection[sectionStoyka].Profile.t = 500;
  EXPECT_FALSE(form.DescribeSection().Drawing);
  EXPECT_FALSE(form.DescribeSection().Facts.empty());
}

TEST_F(SectionView, ShowsTheGroupThatARestoredProjectHasInItsLists) {
  // The option that was set before stays set, and the lists show the file's group.
  form.optElementSection.Select(optionRaskos);
  desk.Outside.Dialogs.Names = {"/p/one.tsav"};
  ASSERT_TRUE(form.SaveParam_Click());
  form.optElementSection.Select(optionUpPoyas);
  ASSERT_TRUE(form.OpenProject("/p/one.tsav"));
  EXPECT_EQ(form.optElementSection.Selected(), optionUpPoyas);
  EXPECT_EQ(form.cmbSectType.Text(), "Шв5П");
  EXPECT_EQ(form.DescribeSection().Group, optionRaskos);
  EXPECT_EQ(Fact("A"), "6.16 см²");
}

TEST_F(SectionView, CopiesTheSectionWithAllThatBelongsToIt) {
  form.optElementSection.Select(optionDwnPoyas);
  const SectionArray before = form.Model.Inputs.ElementSection;
  form.cmdCopySection_Click({optionStoyka, optionUpPoyas});
  SectionArray expected = before;
  expected[sectionStoyka] = before[sectionDwnPoyas];
  expected[sectionUpPoyas] = before[sectionDwnPoyas];
  EXPECT_EQ(form.Model.Inputs.ElementSection, expected);
  EXPECT_EQ(form.lblProfilName[optionStoyka].Caption(), "L25x16x3");
  EXPECT_EQ(form.imgProfileSec[optionUpPoyas].Shown(), form.imgProfileSecSelect[2].Shown());
  EXPECT_EQ(form.optElementSection.Selected(), optionDwnPoyas);
  form.optElementSection.Select(optionUpPoyas);
  EXPECT_EQ(form.cmbGdist.Text(), "10");
}

TEST_F(SectionView, TakesTheWeightOfTheOldSectionsOutWithACopy) {
  desk.Load(true, 1, "1");
  form.chkOwnWeight.SetChecked(true);
  form.cmdCalculate_Click();
  ASSERT_TRUE(form.Model.OwnWeight.Added);
  form.cmdCopySection_Click({});
  EXPECT_TRUE(form.Model.OwnWeight.Added);
  form.cmdCopySection_Click({optionUpPoyas});
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_TRUE(desk.TakeMessages().empty());
}

TEST_F(SectionView, OffersItsSectionToTheOtherGroupsOfTheScheme) {
  form.optElementSection.Select(optionDwnPoyas);
  EXPECT_EQ(form.CopyTargets(),
            (std::vector{optionUpPoyas, optionRaskos, optionStoyka, optionOpornRaskos}));
  SmallTruss lattice(3);
  lattice.Main.optElementSection.Select(optionDwnPoyas);
  EXPECT_EQ(lattice.Main.CopyTargets(),
            (std::vector{optionUpPoyas, optionRaskos, optionOpornRaskos}));
}

TEST_F(SectionView, FindsSizesOfTheShownStandard) {
  form.optElementSection.Select(optionDwnPoyas);
  const std::vector<Long> found = form.FindSizes("100x63x6");
  ASSERT_FALSE(found.empty());
  EXPECT_EQ(form.cmbSectType.List()[static_cast<std::size_t>(found.front())], "L100x63x6");
  EXPECT_TRUE(form.FindSizes("999").empty());
  EXPECT_TRUE(form.FindSizes("").empty());
}

}  // namespace
}  // namespace trelonit::test

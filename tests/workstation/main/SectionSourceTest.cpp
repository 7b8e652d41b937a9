#include <gtest/gtest.h>
#include <string>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

constexpr Long squareTubesOf1966 = 17;
constexpr Long equalAngles = 2;

/// The line under a section whose figures come from no published table.
class SectionSource : public ::testing::Test {
 protected:
  void Take(Long layout, Long standard, const std::string& size) {
    form.imgProfileSecSelect_Click(layout);
    Choose(form.cmbTypeProfile, StandardName(form, standard));
    Choose(form.cmbSectType, size);
  }
  bool Shown() const { return form.lblSectionSource.Visible(); }
  const std::string& Text() const { return form.lblSectionSource.Caption(); }

  StartedDesk desk;
  frmMain& form = desk.Main;
};

TEST_F(SectionSource, IsHiddenAtTheStart) {
  EXPECT_FALSE(Shown());
  EXPECT_EQ(Text(), "");
}

TEST_F(SectionSource, TellsASizeThatNoTableHas) {
  Take(2, equalAngles, "L65x6");
  EXPECT_TRUE(Shown());
  EXPECT_EQ(Text(),
            "L65x6, Уголок равнополочный по ГОСТ 8509-93: типоразмер восстановлен по соседним "
            "рядам, его величины вычислены по размерам; в таблице стандарта его может не быть.");
}

TEST_F(SectionSource, TellsInertiaThatNoTableHas) {
  Take(2, equalAngles, "L200x18");
  EXPECT_TRUE(Shown());
  EXPECT_EQ(Text(),
            "L200x18, Уголок равнополочный по ГОСТ 8509-93: моменты инерции вычислены по размерам, "
            "в таблице стандарта их нет.");
}

TEST_F(SectionSource, GoesWithTheNextPublishedSize) {
  Take(2, equalAngles, "L65x8");
  EXPECT_TRUE(Shown());
  Choose(form.cmbSectType, "L63x6");
  EXPECT_FALSE(Shown());
  EXPECT_EQ(Text(), "");
}

TEST_F(SectionSource, FollowsTheStandard) {
  // The first size of this standard is its only published one.
  form.imgProfileSecSelect_Click(9);
  Choose(form.cmbTypeProfile, StandardName(form, squareTubesOf1966));
  EXPECT_FALSE(Shown());
  Choose(form.cmbSectType, SizeName(form, squareTubesOf1966, 2));
  EXPECT_TRUE(Shown());
  // Another standard begins with its first size.
  Choose(form.cmbTypeProfile, StandardName(form, 15));
  EXPECT_FALSE(Shown());
}

TEST_F(SectionSource, FollowsTheGroupThatIsShown) {
  Take(2, equalAngles, "L65x6");
  form.optElementSection.Select(optionDwnPoyas);
  EXPECT_FALSE(Shown());
  form.optElementSection.Select(optionUpPoyas);
  EXPECT_TRUE(Shown());
  EXPECT_TRUE(Text().starts_with("L65x6, ")) << Text();
}

TEST_F(SectionSource, FollowsASelectionThatIsTakenOver) {
  const std::string first = SizeName(form, squareTubesOf1966, 1);
  Take(9, squareTubesOf1966, first);
  ASSERT_FALSE(Shown());
  form.txtLengthF.SetText("8");
  form.txtHight.SetText("2");
  Choose(form.cmbPanelNum, "4");
  form.tabMain.SetTab(2);
  // Too much for a tube of 63 x 63 x 3.
  AddForce(form, 2, "60");
  desk.TakesProposals = true;
  form.cmdCalcAndSelect_Click();
  const std::string taken = form.lblProfilName[optionUpPoyas].Caption();
  ASSERT_NE(taken, first);
  EXPECT_TRUE(Shown());
  EXPECT_TRUE(Text().starts_with(taken + ", ")) << Text();
}

}  // namespace
}  // namespace trelonit::test

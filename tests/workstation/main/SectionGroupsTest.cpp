#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

class SectionGroups : public ::testing::Test {
 protected:
  const SectionRec& Stored(Long place) const { return form.Model.Inputs.ElementSection[place]; }

  StartedDesk desk;
  frmMain& form = desk.Main;
};

TEST_F(SectionGroups, KeepVerticalsAndSupportDiagonalsInOtherPlacesThanTheOptions) {
  const std::vector<Long> places{1, 2, 3, 5, 4};
  for (Long option = 1; option <= 5; ++option) {
    SectionArray expected = form.Model.Inputs.ElementSection;
    form.optElementSection.Select(option);
    form.imgProfileSecSelect_Click(5);
    SectionRec& changed = expected[places[static_cast<std::size_t>(option - 1)]];
    changed.Layout = 5;
    changed.TypeIdx = 3;
    changed.Profile = form.Model.ProfileTypes[3].Rec[1];
    EXPECT_EQ(form.Model.Inputs.ElementSection, expected) << option;
    EXPECT_EQ(form.lblProfilName[option].Caption(), "Шв5П") << option;
    EXPECT_EQ(form.imgProfileSec[option].Shown(), form.imgProfileSecSelect[5].Shown()) << option;
  }
}

TEST_F(SectionGroups, AreColouredInTheSmallScheme) {
  const auto reds = [this] {
    std::string names;
    const auto note = [&names](const Line& line, char name) {
      EXPECT_TRUE(line.BorderColor() == 255U || line.BorderColor() == 0U);
      if (line.BorderColor() == 255U) {
        names.push_back(name);
      }
    };
    note(form.linUpPoyas, 'U');
    note(form.linDownPoyas, 'D');
    note(form.linRaskos[1], 'r');
    note(form.linRaskos[2], 'r');
    note(form.linStoyka[1], 'v');
    note(form.linStoyka[2], 'v');
    note(form.linStoyka[3], 'v');
    note(form.linOpornRaskos, 'S');
    return names;
  };
  const std::vector<std::string> expected{"U", "D", "rr", "vvv", "S"};
  for (const Long option : {3, 2, 5, 4, 1}) {
    form.optElementSection.Select(option);
    EXPECT_EQ(reds(), expected[static_cast<std::size_t>(option - 1)]);
  }
}

TEST_F(SectionGroups, KeepTheirOwnValuesWhileTheUserSwitches) {
  for (Long option = 1; option <= 5; ++option) {
    form.optElementSection.Select(option);
    form.imgProfileSecSelect_Click(option == 3 ? 8 : 2 * option - 1);
    Choose(form.cmbTypeProfile, form.cmbTypeProfile.List()[option == 5 ? 2 : 1]);
    Choose(form.cmbSectType, form.cmbSectType.List()[static_cast<std::size_t>(option)]);
    if (form.cmbGdist.Enabled()) {
      Choose(form.cmbGdist, std::to_string(10 + option));
    }
  }
  const SectionArray chosen = form.Model.Inputs.ElementSection;
  const std::string verticals = form.lblProfilName[4].Caption();
  EXPECT_EQ(chosen[2].Gdist, 12);
  EXPECT_EQ(chosen[3].Gdist, 13);
  EXPECT_EQ(chosen[3].SizeIdx, 4);
  EXPECT_EQ(chosen[5].Layout, 7);
  EXPECT_EQ(chosen[5].TypeIdx, 9);
  EXPECT_EQ(chosen[4].Layout, 9);
  EXPECT_EQ(chosen[4].TypeIdx, 15);
  for (const Long option : {1, 2, 3, 4, 5, 4, 3, 2, 1, 5, 1}) {
    form.optElementSection.Select(option);
    EXPECT_EQ(form.Model.Inputs.ElementSection, chosen) << option;
  }
  EXPECT_EQ(form.lblProfilName[4].Caption(), verticals);
  EXPECT_EQ(verticals, chosen[5].Profile.Name.Trimmed());
}

TEST_F(SectionGroups, OfTheLowerChordStayPairedUnderASingleLayout) {
  for (const Long option : {2, 3, 4, 5}) {
    form.optElementSection.Select(option);
    form.imgProfileSecSelect_Click(2);
    Choose(form.cmbGdist, "14");
    form.imgProfileSecSelect_Click(1);
    const SectionRec& section = Stored(PlaceOfOption(option));
    EXPECT_EQ(section.Layout, 1);
    EXPECT_TRUE(section.Paired) << option;
    EXPECT_EQ(section.Gdist, 14) << option;
    EXPECT_FALSE(form.cmbGdist.Enabled());
  }
}

TEST_F(SectionGroups, OfTheUpperChordAloneForgetTheirPairing) {
  form.imgProfileSecSelect_Click(2);
  Choose(form.cmbGdist, "14");
  EXPECT_TRUE(Stored(1).Paired);
  EXPECT_EQ(Stored(1).Gdist, 14);
  form.imgProfileSecSelect_Click(1);
  EXPECT_FALSE(Stored(1).Paired);
  EXPECT_EQ(Stored(1).Gdist, 0);
}

TEST_F(SectionGroups, WithAKeptPairingOfferTheirGapWhenTheyAreChosen) {
  form.optElementSection.Select(2);
  form.imgProfileSecSelect_Click(3);
  form.imgProfileSecSelect_Click(5);
  EXPECT_FALSE(form.cmbGdist.Enabled());
  form.optElementSection.Select(1);
  EXPECT_FALSE(form.cmbGdist.Enabled());
  form.optElementSection.Select(2);
  // The pairing decides here, and the picture is still that of the single layout.
  EXPECT_TRUE(form.cmbGdist.Enabled());
  EXPECT_EQ(form.imgProfView.Shown(), form.imgProfileSecSelect[5].Shown());
}

TEST_F(SectionGroups, AddTheirGapToTheListOnEveryVisit) {
  form.imgProfileSecSelect_Click(2);
  Choose(form.cmbGdist, "10");
  form.optElementSection.Select(2);
  form.imgProfileSecSelect_Click(8);
  Choose(form.cmbGdist, "20");
  std::vector<std::string> gaps = Numbers(4, 30);
  EXPECT_EQ(form.cmbGdist.List(), gaps);
  for (int round = 0; round < 3; ++round) {
    form.optElementSection.Select(1);
    gaps.push_back("10");
    EXPECT_EQ(form.cmbGdist.List(), gaps);
    EXPECT_EQ(form.cmbGdist.Text(), "10");
    form.optElementSection.Select(2);
    gaps.push_back("20");
    EXPECT_EQ(form.cmbGdist.List(), gaps);
    EXPECT_EQ(form.cmbGdist.Text(), "20");
  }
  // A group without a pair adds nothing.
  form.optElementSection.Select(3);
  EXPECT_EQ(form.cmbGdist.List(), gaps);
  EXPECT_EQ(Stored(1).Gdist, 10);
  EXPECT_EQ(Stored(2).Gdist, 20);
}

TEST_F(SectionGroups, WriteABrokenGapInTheUsersLocale) {
  StartedDesk comma(CommaLocale());
  comma.Main.cmbGdist.SetText("7.5");
  comma.Main.imgProfileSecSelect_Click(2);
  EXPECT_EQ(comma.Main.Model.Inputs.ElementSection[1].Gdist, 7.5);
  comma.Main.optElementSection.Select(2);
  comma.Main.optElementSection.Select(1);
  EXPECT_EQ(comma.Main.cmbGdist.Text(), "7,5");
  EXPECT_EQ(comma.Main.Model.Inputs.ElementSection[1].Gdist, 7.5);
}

TEST_F(SectionGroups, ThatAreNotThereTakeTheTail) {
  form.optElementSection_Click(6);
  EXPECT_EQ(desk.TakeMessages(), Messages{SubscriptTail("optElementSection_Click")});
  form.Model.Inputs.ElementSection[3].TypeIdx = 23;
  form.optElementSection.Select(3);
  EXPECT_EQ(desk.TakeMessages(), Messages{SubscriptTail("optElementSection_Click")});
}

TEST_F(SectionGroups, NeedAChosenOption) {
  form.optElementSection.ClearAll();
  form.imgProfileSecSelect_Click(2);
  form.cmbGdist_Click();
  form.cmbTypeProfile_Click();
  form.cmbSectType_Click();
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{SubscriptTail("imgProfileSecSelect_Click"), SubscriptTail("cmbGdist_Click"),
                      SubscriptTail("cmbTypeProfile_Click"), SubscriptTail("cmbSectType_Click")}));
}

}  // namespace
}  // namespace trelonit::test

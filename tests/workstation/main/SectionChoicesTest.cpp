#include <gtest/gtest.h>

#include "catalogue/RecordCoding.h"
#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

class SectionChoices : public ::testing::Test {
 protected:
  const SectionRec& Upper() const { return form.Model.Inputs.ElementSection[1]; }
  const SectionRec& Lower() const { return form.Model.Inputs.ElementSection[2]; }

  StartedDesk desk;
  frmMain& form = desk.Main;
};

TEST_F(SectionChoices, StandardBringsItsFirstSize) {
  Choose(form.cmbSectType, SizeName(form, 1, 5));
  Choose(form.cmbTypeProfile, StandardName(form, 2));
  EXPECT_EQ(Upper().TypeIdx, 2);
  EXPECT_EQ(Upper().SizeIdx, 1);
  EXPECT_EQ(Upper().Profile, form.Model.ProfileTypes[2].Rec[1]);
  EXPECT_EQ(form.cmbSectType.List().size(), 121U);
  EXPECT_EQ(form.cmbSectType.Text(), "L20x3");
  EXPECT_EQ(form.lblProfilName[1].Caption(), "L20x3");
  EXPECT_EQ(form.lblProfilName[2].Caption(), "L25x16x3");
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(SectionChoices, SizeIsTakenWithItsRecord) {
  form.optElementSection.Select(2);
  Choose(form.cmbSectType, SizeName(form, 1, 7));
  EXPECT_EQ(Lower().TypeIdx, 1);
  EXPECT_EQ(Lower().SizeIdx, 7);
  EXPECT_EQ(Lower().Profile, form.Model.ProfileTypes[1].Rec[7]);
  EXPECT_EQ(form.lblProfilName[2].Caption(), SizeName(form, 1, 7));
  EXPECT_EQ(Upper().SizeIdx, 1);
}

TEST_F(SectionChoices, SizeOfTheSameNameIsTakenFromTheChosenStandard) {
  form.imgProfileSecSelect_Click(5);
  Choose(form.cmbTypeProfile, StandardName(form, 11));
  EXPECT_EQ(form.cmbSectType.Text(), "Шв25x26x2");
  EXPECT_EQ(Upper().Profile.A, 1.36);
  Choose(form.cmbTypeProfile, StandardName(form, 10));
  EXPECT_EQ(form.cmbSectType.Text(), "Шв25x26x2");
  EXPECT_EQ(Upper().Profile.A, 1.39);
}

TEST_F(SectionChoices, SizeThatIsNoLongerThereIsToldAndBecomesTheFirst) {
  Choose(form.cmbSectType, SizeName(form, 1, 7));
  form.cmbSectType.SetText("L1x1x1");
  EXPECT_EQ(desk.TakeMessages(), Messages());
  form.cmbSectType_Click();
  const Message warning{debugFormTitle,
                        "Не найден типоразмер L1x1x1 перехожу в начало списка типоразмеров",
                        MessageStyle::Exclamation};
  EXPECT_EQ(desk.TakeMessages(), Messages{warning});
  EXPECT_EQ(Upper().SizeIdx, 1);
  EXPECT_EQ(Upper().Profile, form.Model.ProfileTypes[1].Rec[1]);
  EXPECT_EQ(form.lblProfilName[1].Caption(), "L1x1x1");
}

TEST_F(SectionChoices, SizeIsSearchedByItsFifteenCharacters) {
  EXPECT_EQ(form.FindSizeIndex(22, "Тр230x100x8"), 248);
  EXPECT_EQ(form.FindSizeIndex(22, "Тр230x100x8    and more"), 248);
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_EQ(form.FindSizeIndex(22, "Тр230x100x9"), 1);
  EXPECT_EQ(desk.TakeMessages().size(), 1U);
}

TEST_F(SectionChoices, OfEqualSizesTheLastIsTaken) {
  std::string& data = desk.Outside.Files.Content["/program/GOST profile.dat"];
  // The second record of the first standard takes the name of the first.
  data.replace(177, 15, data.substr(0, 15));
  frmMain& edited = desk.MakeAndLoad();
  EXPECT_EQ(edited.FindSizeIndex(1, "L25x16x3"), 2);
}

TEST_F(SectionChoices, OfEqualStandardsTheLastIsTaken) {
  std::string& index = desk.Outside.Files.Content["/program/Index.ind"];
  index.replace(static_cast<std::size_t>(12) * 58, 50, index.substr(0, 50));
  frmMain& edited = desk.MakeAndLoad();
  edited.cmbTypeProfile_Click();
  EXPECT_EQ(edited.Model.Inputs.ElementSection[1].TypeIdx, 13);
  EXPECT_EQ(edited.lblProfilName[1].Caption(), "Тр60x40x2");
}

TEST_F(SectionChoices, StandardThatIsNotThereTakesTheTail) {
  const SectionRec before = Upper();
  form.cmbTypeProfile.SetText("Уголок");
  form.cmbTypeProfile_Click();
  EXPECT_EQ(desk.TakeMessages(), Messages{SubscriptTail("cmbTypeProfile_Click")});
  EXPECT_EQ(Upper(), before);
}

TEST_F(SectionChoices, GapIsTakenForThePairAtOnce) {
  form.imgProfileSecSelect_Click(4);
  EXPECT_EQ(Upper().Gdist, 4);
  Choose(form.cmbGdist, "17");
  EXPECT_EQ(Upper().Gdist, 17);
  EXPECT_EQ(Lower().Gdist, 0);
}

TEST_F(SectionChoices, TypedGapIsTakenWithTheNextLayout) {
  form.imgProfileSecSelect_Click(4);
  form.cmbGdist.SetText("100");
  EXPECT_EQ(Upper().Gdist, 4);
  form.imgProfileSecSelect_Click(2);
  EXPECT_EQ(Upper().Gdist, 100);
  form.cmbGdist.SetText("-3");
  form.imgProfileSecSelect_Click(8);
  EXPECT_EQ(Upper().Gdist, -3);
}

TEST_F(SectionChoices, GapThatIsNoNumberCountsAsNoneForTheUpperChord) {
  for (const auto& [text, gap] : std::vector<std::pair<std::string, double>>{
           {"wide", 0}, {"", 0}, {"5,5", 5.5}, {"1,2,3", 1.2}}) {
    form.cmbGdist.SetText(text);
    form.imgProfileSecSelect_Click(2);
    EXPECT_EQ(Upper().Gdist, gap) << text;
    EXPECT_TRUE(Upper().Paired);
    EXPECT_EQ(desk.TakeMessages(), Messages());
  }
}

TEST_F(SectionChoices, GapThatIsNoNumberStopsTheOtherGroups) {
  for (Long option = 2; option <= 5; ++option) {
    form.optElementSection.Select(option);
    form.cmbGdist.SetText("5,5");
    form.imgProfileSecSelect_Click(2);
    EXPECT_EQ(desk.TakeMessages(), Messages{TypeMismatchTail("imgProfileSecSelect_Click")});
    // What came before the gap stays changed, what comes after it does not happen.
    const SectionRec& section = form.Model.Inputs.ElementSection[PlaceOfOption(option)];
    EXPECT_EQ(section.Layout, 2);
    EXPECT_EQ(section.Gdist, 0);
    EXPECT_FALSE(form.cmbGdist.Enabled());
  }
}

TEST_F(SectionChoices, GapWithTheSystemsSeparatorIsReadInEveryGroup) {
  StartedDesk comma(CommaLocale());
  comma.Main.optElementSection.Select(5);
  comma.Main.cmbGdist.SetText("5,5");
  comma.Main.imgProfileSecSelect_Click(2);
  EXPECT_EQ(comma.TakeMessages(), Messages());
  EXPECT_EQ(comma.Main.Model.Inputs.ElementSection[4].Gdist, 5.5);
}

TEST_F(SectionChoices, GapClickReadsOnlyANumber) {
  form.imgProfileSecSelect_Click(2);
  form.cmbGdist.SetText("wide");
  form.cmbGdist_Click();
  EXPECT_EQ(desk.TakeMessages(), Messages{TypeMismatchTail("cmbGdist_Click")});
  EXPECT_EQ(Upper().Gdist, 4);
}

/// A form whose loads have 0.25 t/m of own weight inside.
class SectionsWithOwnWeight : public SectionChoices {
 protected:
  SectionsWithOwnWeight() { AddOwnWeight(0.25); }

  void AddOwnWeight(double perMetre) {
    for (double& load : form.Model.Inputs.Loads.UpDistForce) {
      load = 1.25;
    }
    for (double& load : form.Model.Inputs.Loads.DwnDistForce) {
      load = 0.25;
    }
    form.Model.Inputs.Loads.UpPForce[3] = 7;
    form.Model.OwnWeight.Added = true;
    form.Model.OwnWeight.PerMetre = perMetre;
    form.chkOwnWeight.SetChecked(true);
  }

  void ExpectWithdrawn() {
    EXPECT_FALSE(form.Model.OwnWeight.Added);
    EXPECT_EQ(Values(form.Model.Inputs.Loads.UpDistForce), std::vector<double>(10, 1.0));
    EXPECT_EQ(Values(form.Model.Inputs.Loads.DwnDistForce), std::vector<double>(10, 0.0));
    EXPECT_EQ(form.Model.Inputs.Loads.UpPForce[3], 7);
    // The wish for own weight stays: the next calculation adds the new one.
    EXPECT_TRUE(form.chkOwnWeight.Checked());
    EXPECT_EQ(desk.TakeMessages(), Messages());
  }
};

TEST_F(SectionsWithOwnWeight, LoseItWithANewLayout) {
  form.imgProfileSecSelect_Click(5);
  ExpectWithdrawn();
}

TEST_F(SectionsWithOwnWeight, LoseItWithANewStandard) {
  Choose(form.cmbTypeProfile, StandardName(form, 2));
  ExpectWithdrawn();
}

TEST_F(SectionsWithOwnWeight, LoseItWithANewSize) {
  Choose(form.cmbSectType, SizeName(form, 1, 2));
  ExpectWithdrawn();
}

TEST_F(SectionsWithOwnWeight, KeepItWithANewGap) {
  Choose(form.cmbGdist, "9");
  EXPECT_TRUE(form.Model.OwnWeight.Added);
  EXPECT_EQ(form.Model.Inputs.Loads.UpDistForce[0], 1.25);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0.25);
}

TEST_F(SectionsWithOwnWeight, TellAnAmountThatCannotBeWithdrawn) {
  for (const auto& [amount, text] :
       std::vector<std::pair<double, std::string>>{{0, "0"}, {-0.5, "-0.5"}}) {
    AddOwnWeight(amount);
    form.imgProfileSecSelect_Click(amount == 0 ? 5 : 6);
    const Message told{"chkOwnWeight_Click",
                       "Некорректная погонная масса фермы ! \nqMass = " + text +
                           "\n Собственный вес фермы не вычтен из общей нагрузки",
                       MessageStyle::Critical};
    EXPECT_EQ(desk.TakeMessages(), Messages{told});
    EXPECT_FALSE(form.Model.OwnWeight.Added);
    EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0);
    EXPECT_EQ(Values(form.Model.Inputs.Loads.UpDistForce), std::vector<double>(10, 1.25));
  }
}

}  // namespace
}  // namespace trelonit::test

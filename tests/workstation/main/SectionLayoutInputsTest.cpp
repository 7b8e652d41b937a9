#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

/// What the section tab has to show for a layout.
struct Layout {
  Integer Number;
  bool Paired;
  std::vector<Long> Standards;
  Long DefaultStandard;
  std::string FirstSize;
  Picture View;
};

Picture OwnImage(Integer layout) {
  return {Picture::Source::SectionLayout, layout};
}

class LayoutInput : public ::testing::TestWithParam<Layout> {};

TEST_P(LayoutInput, FillsTheSectionTab) {
  const Layout& layout = GetParam();
  StartedDesk desk;
  frmMain& form = desk.Main;
  // Another layout first, so that layout 1 is a change as well.
  form.imgProfileSecSelect_Click(layout.Number == 6 ? 5 : 6);
  form.imgProfileSecSelect_Click(layout.Number);

  EXPECT_EQ(MarkedOf(form.imgProfileSecSelect), std::vector<Long>{layout.Number});
  EXPECT_EQ(form.imgProfView.Shown(), layout.View);
  EXPECT_EQ(form.imgProfileSec[1].Shown(), OwnImage(layout.Number));
  EXPECT_EQ(form.cmbGdist.Enabled(), layout.Paired);

  std::vector<std::string> standards;
  for (const Long standard : layout.Standards) {
    standards.push_back(StandardName(form, standard));
  }
  EXPECT_EQ(form.cmbTypeProfile.List(), standards);
  EXPECT_EQ(form.cmbTypeProfile.Text(), StandardName(form, layout.DefaultStandard));
  std::vector<std::string> sizes;
  for (const ProfileRec& record : form.Model.ProfileTypes[layout.DefaultStandard].Rec) {
    sizes.push_back(record.Name.Trimmed());
  }
  EXPECT_EQ(form.cmbSectType.List(), sizes);
  EXPECT_EQ(form.cmbSectType.Text(), layout.FirstSize);
  EXPECT_EQ(form.lblProfilName[1].Caption(), layout.FirstSize);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_P(LayoutInput, IsKeptInTheRecordOfTheGroup) {
  const Layout& layout = GetParam();
  StartedDesk desk;
  frmMain& form = desk.Main;
  const SectionArray before = form.Model.Inputs.ElementSection;
  Choose(form.cmbGdist, "12");
  form.imgProfileSecSelect_Click(layout.Number);
  const SectionRec expected{.TypeIdx = layout.DefaultStandard,
                            .SizeIdx = 1,
                            .Gdist = layout.Paired ? 12.0 : 0.0,
                            .Paired = layout.Paired,
                            .Profile = form.Model.ProfileTypes[layout.DefaultStandard].Rec[1],
                            .Layout = layout.Number};
  EXPECT_EQ(form.Model.Inputs.ElementSection[1], expected);
  for (Long place = 2; place <= 5; ++place) {
    EXPECT_EQ(form.Model.Inputs.ElementSection[place], before[place]);
  }
}

TEST_P(LayoutInput, IsShownAgainWhenItsGroupIsChosenAgain) {
  const Layout& layout = GetParam();
  StartedDesk desk;
  frmMain& form = desk.Main;
  form.imgProfileSecSelect_Click(layout.Number);
  const std::vector<std::string> standards = form.cmbTypeProfile.List();
  Choose(form.cmbTypeProfile, standards.back());
  Choose(form.cmbSectType, form.cmbSectType.List()[2]);
  const SectionRec chosen = form.Model.Inputs.ElementSection[1];
  form.optElementSection.Select(2);
  form.optElementSection.Select(1);
  EXPECT_EQ(MarkedOf(form.imgProfileSecSelect), std::vector<Long>{layout.Number});
  EXPECT_EQ(form.imgProfView.Shown(), layout.View);
  EXPECT_EQ(form.cmbGdist.Enabled(), layout.Paired);
  EXPECT_EQ(form.cmbTypeProfile.List(), standards);
  EXPECT_EQ(form.cmbTypeProfile.Text(), standards.back());
  EXPECT_EQ(form.cmbSectType.Text(), SizeName(form, layout.Standards.back(), 3));
  EXPECT_EQ(form.lblProfilName[1].Caption(), SizeName(form, layout.Standards.back(), 3));
  EXPECT_EQ(form.Model.Inputs.ElementSection[1], chosen);
  EXPECT_EQ(chosen.TypeIdx, layout.Standards.back());
  EXPECT_EQ(chosen.SizeIdx, 3);
  EXPECT_EQ(chosen.Profile, form.Model.ProfileTypes[chosen.TypeIdx].Rec[3]);
}

const std::vector<Long> angles{1, 2};
const std::vector<Long> channels{3, 4, 10, 11};
const std::vector<Long> tubes{12, 13, 15, 16, 17, 18, 19, 20, 21, 22};

INSTANTIATE_TEST_SUITE_P(AllLayouts, LayoutInput,
                         ::testing::Values(Layout{1, false, angles, 1, "L25x16x3", OwnImage(1)},
                                           Layout{2, true, angles, 1, "L25x16x3", BitmapOf(205)},
                                           Layout{3, true, angles, 1, "L25x16x3", BitmapOf(206)},
                                           Layout{4, true, angles, 1, "L25x16x3", BitmapOf(207)},
                                           Layout{5, false, channels, 3, "Шв5П", OwnImage(5)},
                                           Layout{6, false, {5, 6, 7}, 5, "Дт10", OwnImage(6)},
                                           Layout{7, false, {8, 9}, 8, "10KT1", OwnImage(7)},
                                           Layout{8, true, channels, 3, "Шв5П", BitmapOf(208)},
                                           Layout{9, false, tubes, 12, "Тр50x2", OwnImage(9)},
                                           Layout{10, false, tubes, 12, "Тр50x2", OwnImage(10)},
                                           Layout{11, false, {14}, 14, "Тр10x1", OwnImage(11)}),
                         [](const auto& test) { return std::to_string(test.param.Number); });

const Message unknownLayout =
    Stop("Произошел неожиданный сбой в приложении.\nТип сечения не соответствует ожидаемому !");

TEST(UnknownLayout, IsToldAndChangesNothingFurther) {
  StartedDesk desk;
  frmMain& form = desk.Main;
  form.Model.OwnWeight.Added = true;
  form.Model.OwnWeight.PerMetre = 0.5;
  const SectionRec before = form.Model.Inputs.ElementSection[1];
  for (const Long layout : {0, 12, -1}) {
    form.imgProfileSecSelect_Click(layout);
    EXPECT_EQ(desk.TakeMessages(), Messages{unknownLayout});
  }
  EXPECT_EQ(form.Model.Inputs.ElementSection[1].Profile, before.Profile);
  EXPECT_EQ(form.Model.Inputs.ElementSection[1].Paired, before.Paired);
  EXPECT_EQ(form.cmbTypeProfile.List().size(), 2U);
  EXPECT_TRUE(form.Model.OwnWeight.Added);
}

TEST(UnknownLayout, IsToldByTheListsToo) {
  StartedDesk desk;
  desk.Main.FillProfileLists(12);
  EXPECT_EQ(desk.TakeMessages(), Messages{unknownLayout});
  desk.Main.FillProfileLists(0);
  EXPECT_EQ(desk.TakeMessages(), Messages{unknownLayout});
}

TEST(UnknownLayout, OfAGroupIsToldWhenTheGroupIsChosen) {
  StartedDesk desk;
  frmMain& form = desk.Main;
  form.Model.Inputs.ElementSection[2].Layout = 12;
  const Picture before = form.imgProfView.Shown();
  form.optElementSection.Select(2);
  EXPECT_EQ(desk.TakeMessages(), Messages{unknownLayout});
  EXPECT_EQ(MarkedOf(form.imgProfileSecSelect), std::vector<Long>());
  EXPECT_EQ(form.imgProfView.Shown(), before);
  EXPECT_EQ(form.linDownPoyas.BorderColor(), 255U);
  EXPECT_FALSE(form.cmbGdist.Enabled());
  form.Model.Inputs.ElementSection[1].Layout = 12;
  form.Model.Inputs.ElementSection[1].Paired = true;
  form.optElementSection.Select(1);
  EXPECT_EQ(desk.TakeMessages(), Messages{unknownLayout});
  EXPECT_TRUE(form.cmbGdist.Enabled());
}

}  // namespace
}  // namespace trelonit::test

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

#include "tests/workstation/design/ProjectLines.h"

namespace trelonit::test {
namespace {

bool AnyBool() {
  return *rc::gen::arbitrary<bool>();
}

/// A positive number with some decimals, as a user types one.
std::string AnyPositive(int greatest) {
  const int thousandths = *rc::gen::inRange(1, greatest * 1000);
  std::string text = NumberToText(thousandths / 1000.0, PointLocale());
  if (AnyBool()) {
    if (const std::size_t point = text.find('.'); point != std::string::npos) {
      text[point] = ',';
    }
  }
  return text;
}

/// A load in eighths: sums of such loads have no more digits than a file keeps.
std::string AnyForce() {
  return NumberToText(*rc::gen::inRange(1, 160) / (AnyBool() ? 8.0 : -8.0), PointLocale());
}

void ChooseAny(ComboBox& box) {
  box.Select(*rc::gen::inRange<Long>(0, static_cast<Long>(box.List().size())));
}

void EnterAnyGeometry(frmMain& form) {
  form.imgTreloType_Click(*rc::gen::inRange(1, 6));
  ChooseAny(form.cmbPanelNum);
  form.txtLengthF.SetText(AnyPositive(60));
  form.txtHight.SetText(AnyPositive(5));
  form.txtLenOporn.SetText(AnyBool() ? AnyPositive(3) : "");
  form.optUpPoyas.Select(*rc::gen::inRange(1, 5));
  form.optDownPoyas.Select(*rc::gen::inRange(1, 5));
  form.chkProgib.SetChecked(AnyBool());
  ChooseAny(form.cmbLenlim);
  const bool upper = AnyBool();
  form.optBP.SetValue(upper);
  form.optNP.SetValue(!upper);
}

void EnterAnySections(frmMain& form) {
  for (Long option = 1; option <= groupCount; ++option) {
    form.optElementSection.Select(option);
    const int choices = *rc::gen::inRange(0, 3);
    for (int choice = 0; choice < choices; ++choice) {
      form.imgProfileSecSelect_Click(*rc::gen::inRange(1, 12));
      ChooseAny(form.cmbTypeProfile);
      ChooseAny(form.cmbSectType);
      if (form.cmbGdist.Enabled()) {
        ChooseAny(form.cmbGdist);
      }
    }
  }
  form.optElementSection.Select(*rc::gen::inRange<Long>(1, groupCount + 1));
}

void EnterAnyLoads(frmMain& form) {
  const int entries = *rc::gen::inRange(0, 8);
  for (int entry = 0; entry < entries; ++entry) {
    (AnyBool() ? form.tglUpPoyas : form.tglDwnPoyas).SetValue(true);
    if (AnyBool()) {
      form.imgPForce_Click();
    } else {
      form.imgDistForce_Click();
      form.chkAllPanels.SetChecked(AnyBool());
    }
    // Scheme 4 with four panels and the like may have no place for such a load.
    if (!form.cmbKnotNum.List().empty()) {
      ChooseAny(form.cmbKnotNum);
      form.txtForceVal.SetText(AnyForce());
      form.cmdAddForce_Click();
    }
  }
  form.chkDinloadEnable.SetChecked(AnyBool());
  form.chkOwnWeight.SetChecked(AnyBool());
}

void EnterAnySteel(frmMain& form) {
  form.lblStillName.SetCaption(*rc::gen::element<std::string>(
      "Сталь С345 - фасон от 10 до 20 мм", "Cталь Вст3", "", " сталь ", "09Г2С; ГОСТ 19281"));
  form.txtRy.SetText(AnyPositive(500));
  form.Steel.DensitSteel = AnyPositive(9);
  form.Steel.ModulYung = AnyPositive(210000);
  form.Steel.LimitFlex = AnyPositive(400);
  form.txtNadegnost.SetText(AnyPositive(2));
  form.txtUsloviyaRabot.SetText(AnyPositive(2));
}

void EnterAnything(frmMain& form) {
  EnterAnyGeometry(form);
  EnterAnySections(form);
  EnterAnySteel(form);
  EnterAnyLoads(form);
}

/// The messages so that a failing property shows them.
std::vector<std::string> Told(Desk& desk) {
  std::vector<std::string> told;
  for (const Message& message : desk.TakeMessages()) {
    told.push_back(message.Title + ": " + message.Text);
  }
  return told;
}
const std::vector<std::string> nothing;

/// What stands on the form after restoring these values, if it was as after the start before: what
/// the commands leave as it was is that of the start.
ProjectValues AfterRestoring(ProjectValues values) {
  const ProjectValues start = StartUpValues();
  const auto keepStart = [&](ProjectLine line) { values.at(line - 1) = start.at(line - 1); };
  keepStart(lineActiveGroup);
  if (values.at(lineProgibOn - 1) == "0") {
    keepStart(lineLenLim);
    keepStart(lineProgibUpper);
  }
  if (values.at(linePForceTool - 1) != "0") {
    keepStart(lineAllPanelsOn);
  }
  return values;
}

RC_GTEST_PROP(ProjectOnTheForm, IsTheSameAfterSavingAndRestoring, ()) {
  StartedDesk first;
  EnterAnything(first.Main);
  first.TakeMessages();
  const std::string bytes = SavedBytes(first, first.Main);
  RC_ASSERT(Told(first) == nothing);

  StartedDesk second;
  RC_ASSERT(RestoreBytes(second, second.Main, bytes));
  RC_ASSERT(Told(second) == nothing);
  RC_ASSERT(second.Main.Model.Inputs.Loads == first.Main.Model.Inputs.Loads);
  RC_ASSERT(second.Main.Model.Inputs.ElementSection == first.Main.Model.Inputs.ElementSection);
  RC_ASSERT(second.Main.Model.Inputs.TreloType == first.Main.Model.Inputs.TreloType);
  for (Long option = 1; option <= groupCount; ++option) {
    const SectionRec& section = first.Main.Model.Inputs.ElementSection[PlaceOfOption(option)];
    RC_ASSERT(second.Main.lblProfilName[option].Caption() == section.Profile.Name.Trimmed());
    RC_ASSERT(second.Main.imgProfileSec[option].Shown() ==
              second.Main.imgProfileSecSelect[section.Layout].Shown());
  }
  RC_ASSERT(ValuesOf(SavedBytes(second, second.Main)) == AfterRestoring(ValuesOf(bytes)));
}

RC_GTEST_PROP(ProjectOnTheForm, IsTheSameWhateverStoodThereBefore, ()) {
  StartedDesk desk;
  EnterAnything(desk.Main);
  const std::string bytes = SavedBytes(desk, desk.Main);
  const SectionArray sections = desk.Main.Model.Inputs.ElementSection;
  const LoadArrays loads = desk.Main.Model.Inputs.Loads;
  EnterAnything(desk.Main);
  desk.TakeMessages();
  RC_ASSERT(RestoreBytes(desk, desk.Main, bytes));
  RC_ASSERT(Told(desk) == nothing);
  RC_ASSERT(desk.Main.Model.Inputs.ElementSection == sections);
  RC_ASSERT(desk.Main.Model.Inputs.Loads == loads);
  const ProjectValues before = ValuesOf(bytes);
  ProjectValues after = ValuesOf(SavedBytes(desk, desk.Main));
  // These stay what they are unless the file's switches are on.
  for (const ProjectLine line : {lineLenLim, lineProgibUpper, lineActiveGroup, lineAllPanelsOn}) {
    after.at(line - 1) = before.at(line - 1);
  }
  RC_ASSERT(after == before);
}

RC_GTEST_PROP(ProjectOnTheForm, HasTheSameNumbersUnderACommaAndUnderAPoint, ()) {
  StartedDesk comma(CommaLocale());
  EnterAnything(comma.Main);
  const std::string bytes = SavedBytes(comma, comma.Main);

  StartedDesk point(PointLocale());
  RC_ASSERT(RestoreBytes(point, point.Main, bytes));
  RC_ASSERT(Told(point) == nothing);
  RC_ASSERT(point.Main.Model.Inputs.Loads == comma.Main.Model.Inputs.Loads);
  RC_ASSERT(point.Main.Model.Inputs.ElementSection == comma.Main.Model.Inputs.ElementSection);

  // And back again.
  const std::string pointBytes = SavedBytes(point, point.Main);
  StartedDesk third(CommaLocale());
  RC_ASSERT(RestoreBytes(third, third.Main, pointBytes));
  RC_ASSERT(ValuesOf(SavedBytes(third, third.Main)) == AfterRestoring(ValuesOf(bytes)));
}

TEST(ProjectOfEqualPanels, ShowsTheEndPanelThatItStored) {
  StartedDesk desk(CommaLocale());
  desk.Main.txtLengthF.SetText("21");
  Choose(desk.Main.cmbPanelNum, "8");
  desk.Main.txtLenOporn.SetText("");
  const std::string bytes = SavedBytes(desk, desk.Main);
  EXPECT_EQ(ValuesOf(bytes).at(lineLenOporn - 1), "2,625");
  EXPECT_EQ(desk.Main.txtLenOporn.Text(), "");
  EXPECT_TRUE(RestoreBytes(desk, desk.Main, bytes));
  EXPECT_EQ(desk.Main.txtLenOporn.Text(), "2,625");
}

class ProjectWithOwnWeight : public ::testing::Test {
 protected:
  ProjectWithOwnWeight() {
    form.tabMain.SetTab(2);
    AddForce(form, 5, "4");
    form.chkOwnWeight.SetChecked(true);
    form.cmdCalculate_Click();
    desk.TakeMessages();
  }

  StartedDesk desk;
  frmMain& form = desk.Main;
};

TEST_F(ProjectWithOwnWeight, KeepsItInsideTheLoadsAsIfTheUserHadEnteredIt) {
  ASSERT_TRUE(form.Model.OwnWeight.Added);
  const double weight = form.Model.OwnWeight.PerMetre;
  ASSERT_GT(weight, 0);
  const std::string bytes = SavedBytes(desk, form);
  // Saving withdraws nothing.
  EXPECT_TRUE(form.Model.OwnWeight.Added);
  EXPECT_EQ(ValuesOf(bytes).at(lineOwnWeightOn - 1), "1");

  StartedDesk other;
  EXPECT_TRUE(RestoreBytes(other, other.Main, bytes));
  EXPECT_EQ(other.TakeMessages(), Messages());
  EXPECT_TRUE(other.Main.chkOwnWeight.Checked());
  EXPECT_FALSE(other.Main.Model.OwnWeight.Added);
  EXPECT_EQ(other.Main.Model.OwnWeight.PerMetre, 0);
  EXPECT_NEAR(other.Main.Model.Inputs.Loads.UpDistForce[0], weight, weight * 1e-13);
  // Switching it off takes nothing out now.
  other.Main.chkOwnWeight.SetChecked(false);
  EXPECT_NEAR(other.Main.Model.Inputs.Loads.UpDistForce[0], weight, weight * 1e-13);
  // The next calculation adds it once more.
  other.Main.chkOwnWeight.SetChecked(true);
  other.Main.tabMain.SetTab(2);
  other.Main.cmdCalculate_Click();
  EXPECT_TRUE(other.Main.Model.OwnWeight.Added);
  EXPECT_NEAR(other.Main.Model.Inputs.Loads.UpDistForce[0],
              weight + other.Main.Model.OwnWeight.PerMetre, weight * 1e-12);
}

TEST_F(ProjectWithOwnWeight, IsReplacedByAnotherProjectWithoutATrace) {
  for (const char* ownWeight : {"0", "1"}) {
    EXPECT_TRUE(
        RestoreBytes(desk, form, ProjectBytes(With(StartUpValues(), lineOwnWeightOn, ownWeight))));
    EXPECT_EQ(desk.TakeMessages(), Messages());
    EXPECT_EQ(Values(form.Model.Inputs.Loads.UpDistForce), Zeros(10));
    EXPECT_EQ(Values(form.Model.Inputs.Loads.DwnDistForce), Zeros(10));
    EXPECT_FALSE(form.Model.OwnWeight.Added);
    EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0);
    form.chkOwnWeight.SetChecked(true);
    form.cmdCalculate_Click();
    ASSERT_TRUE(form.Model.OwnWeight.Added);
    desk.TakeMessages();
  }
}

TEST_F(ProjectWithOwnWeight, IsForgottenAlsoWhereTheShownGroupIsDamaged) {
  ASSERT_TRUE(form.Model.OwnWeight.Added);
  EXPECT_TRUE(RestoreBytes(
      desk, form,
      ProjectBytes(With(With(StartUpValues(), lineOwnWeightOn, "1"), lineActiveGroup, "0"))));
  EXPECT_EQ(desk.TakeMessages(), Messages{SubscriptTail("optElementSection_Click")});
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0);
  EXPECT_EQ(Values(form.Model.Inputs.Loads.UpDistForce), Zeros(10));
}

TEST_F(ProjectWithOwnWeight, OfThisVeryFormIsNotWithdrawnByRestoring) {
  const std::string bytes = SavedBytes(desk, form);
  const double inside = form.Model.Inputs.Loads.UpDistForce[0];
  EXPECT_TRUE(RestoreBytes(desk, form, bytes));
  EXPECT_NEAR(form.Model.Inputs.Loads.UpDistForce[0], inside, inside * 1e-13);
  EXPECT_FALSE(form.Model.OwnWeight.Added);
}

}  // namespace
}  // namespace trelonit::test

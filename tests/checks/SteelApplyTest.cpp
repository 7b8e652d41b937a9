#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/checks/SteelDesk.h"

namespace trelonit {
namespace {

using test::SteelDesk;

const std::string untouched = "Сталь С245 - лист от 2 до 20 мм|240|1|0.9";

TEST(SteelApply, WritesAllFourControlsAndCloses) {
  SteelDesk desk;
  desk.Choose("С255", 1);
  desk.Form.optOtvetstven.Select(3);
  desk.Form.MSFGridYc_SelChange(7);
  EXPECT_EQ(desk.Main.All(), untouched);
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main.All(), "Сталь С255 От 4 до 10|240|0.95|1.05");
  EXPECT_EQ(desk.Closed, 1);
  EXPECT_TRUE(desk.World.Messages.Shown.empty());
}

TEST(SteelApply, KeepsTheCommaOfARangeInTheName) {
  SteelDesk desk;
  desk.Choose("С285", 0);
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main.All(), "Сталь С285 От 2 до 3,9|280|1|0.9");
}

TEST(SteelApply, WritesTheUsualCoefficientsWhenNothingWasChosen) {
  SteelDesk desk;
  desk.Main.txtUsloviyaRabot.SetText("0.75");
  desk.Main.txtNadegnost.SetText("1.15");
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main.All(), "Сталь С235 От 2 до 20|230|1|0.9");
}

TEST(SteelApply, ChangesNothingUntilThen) {
  SteelDesk desk;
  desk.Choose("С440", 1);
  desk.Form.txtRyfason_Click();
  desk.Form.MSFGridYc_SelChange(2);
  desk.Form.optOtvetstven.Select(1);
  desk.Form.Form_Load();
  EXPECT_EQ(desk.Main.All(), untouched);
  EXPECT_EQ(desk.Closed, 0);
}

TEST(SteelApply, WritesNumbersInTheFormOfTheUsersSystem) {
  SteelDesk desk(test::CommaLocale());
  desk.Form.MSFGridYc_SelChange(7);
  desk.Form.optOtvetstven.Select(1);
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main.All(), "Сталь С235 От 2 до 20|230|1,15|1,05");
}

TEST(SteelApply, TakesTheShapedValueWhereTheActiveSheetValueIsADash) {
  SteelDesk desk;
  desk.Choose("С245", 1);
  EXPECT_EQ(desk.Shown(), "-/230");
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main.All(), "Сталь С245 Св. 20 до 30|230|1|0.9");
}

TEST(SteelApply, TakesTheSheetValueWhereTheActiveShapedValueIsADash) {
  SteelDesk desk;
  desk.Choose("С235", 2);
  EXPECT_EQ(desk.Shown(), "210/-");
  desk.Form.txtRyfason_Click();
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main.All(), "Сталь С235 Св. 40 до 100|210|1|0.9");
}

TEST(SteelApply, TakesTheSheetValueWhereADashEndsTheLineOfTheTable) {
  SteelDesk desk;
  desk.Choose("С235", 3);
  desk.Form.txtRyfason_Click();
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main.txtRy.Text(), "190");
}

TEST(SteelApply, TakesTheActiveOneOfTwoDifferentValues) {
  SteelDesk desk;
  desk.Choose("С285", 1);
  EXPECT_EQ(desk.Shown(), "270/280");
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main.txtRy.Text(), "270");
  desk.Form.txtRyfason_Click();
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main.txtRy.Text(), "280");
}

/// Which boxes are active, what they hold, and what is taken of it.
struct Choice {
  bool SheetActive;
  bool ShapedActive;
  const char* Sheet;
  const char* Shaped;
  const char* Taken;
};

TEST(SteelApply, ChoosesByBackgroundFirstAndByPresenceThen) {
  const std::vector<Choice> choices{
      // The usual states: one active.
      {true, false, "111", "222", "111"},
      {true, false, "111", "-", "111"},
      {true, false, "-", "222", "222"},
      {true, false, "-", "-", "kept"},
      {false, true, "111", "222", "222"},
      {false, true, "111", "-", "111"},
      {false, true, "-", "222", "222"},
      {false, true, "-", "-", "kept"},
      // Both and none: the sheet value goes first.
      {true, true, "111", "222", "111"},
      {true, true, "111", "-", "111"},
      {true, true, "-", "222", "222"},
      {true, true, "-", "-", "kept"},
      {false, false, "111", "222", "111"},
      {false, false, "111", "-", "111"},
      {false, false, "-", "222", "222"},
      {false, false, "-", "-", "kept"},
      // Only the first character tells.
      {true, false, "-5", "222", "222"},
      {true, false, "5-", "222", "5-"},
      {false, true, "111", "-\r", "111"},
  };
  for (const Choice& choice : choices) {
    SteelDesk desk;
    desk.Main.txtRy.SetText("kept");
    const auto color = [](bool active) {
      return active ? colorWindowBackground : colorDisabledGrey;
    };
    desk.Form.txtRysheet.SetBackColor(color(choice.SheetActive));
    desk.Form.txtRyfason.SetBackColor(color(choice.ShapedActive));
    desk.Form.txtRysheet.SetText(choice.Sheet);
    desk.Form.txtRyfason.SetText(choice.Shaped);
    desk.Form.cmdApply_Click();
    EXPECT_EQ(desk.Main.txtRy.Text(), choice.Taken)
        << choice.SheetActive << choice.ShapedActive << " " << choice.Sheet << " " << choice.Shaped;
    EXPECT_EQ(desk.Closed, 1);
  }
}

TEST(SteelApply, WritesTheRestWhereThereIsNoResistance) {
  SteelDesk desk;
  desk.Form.txtRysheet.SetText("-");
  desk.Form.txtRyfason.SetText("-");
  desk.Form.optOtvetstven.Select(4);
  desk.Form.MSFGridYc_SelChange(2);
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main.All(), "Сталь С235 От 2 до 20|240|0.9|0.8");
}

TEST(SteelWithoutTable, TellsThatTheResourceCannotBeRead) {
  SteelDesk desk({}, true);
  ASSERT_EQ(desk.World.Messages.Shown.size(), 1U);
  EXPECT_EQ(desk.World.Messages.Shown[0], (Message{.Title = "",
                                                   .Text = "Ошибка считывания из ресурсов ",
                                                   .Style = MessageStyle::Plain}));
}

TEST(SteelWithoutTable, ForgetsTheImportanceOfBefore) {
  SteelDesk desk({}, true);
  desk.Form.optOtvetstven_Click(4);
  EXPECT_EQ(desk.Form.Gn, 0.9);
  desk.Form.Form_Load();
  EXPECT_EQ(desk.Form.Gn, 1);
}

TEST(SteelWithoutTable, FillsTheGridAndLeavesTheSteelsEmpty) {
  SteelDesk desk({}, true);
  EXPECT_EQ(desk.Form.MSFGridYc.Rows().size(), 8U);
  EXPECT_EQ(desk.Form.Yc, 0.9);
  EXPECT_TRUE(desk.Form.Steels.empty());
  EXPECT_TRUE(desk.Form.cmbSteelName.List().empty());
  EXPECT_TRUE(desk.Form.cmbSheetThick.List().empty());
  EXPECT_EQ(desk.Shown(), "/");
  // The opening stops before it comes to the importance.
  EXPECT_EQ(desk.Form.optOtvetstven.Selected(), 0);
}

TEST(SteelWithoutTable, RemembersNothingOfTheOpeningBefore) {
  SteelDesk desk;
  desk.Choose("С345", 3);
  desk.Form.txtRyfason_Click();
  desk.Form.MSFGridYc_SelChange(7);
  desk.Form.optOtvetstven.Select(1);
  desk.Resources.Broken = true;
  desk.Form.Form_Load();
  SteelDesk fresh({}, true);
  EXPECT_TRUE(desk.Form.Steels.empty());
  EXPECT_TRUE(desk.Form.cmbSteelName.List().empty());
  EXPECT_EQ(desk.Form.cmbSteelName.Text(), "");
  EXPECT_TRUE(desk.Form.cmbSheetThick.List().empty());
  EXPECT_EQ(desk.Form.cmbSheetThick.Text(), "");
  EXPECT_EQ(desk.Shown(), "/");
  EXPECT_EQ(desk.Form.txtRysheet.BackColor(), fresh.Form.txtRysheet.BackColor());
  EXPECT_EQ(desk.Form.txtRyfason.BackColor(), fresh.Form.txtRyfason.BackColor());
  EXPECT_EQ(desk.Form.Yc, fresh.Form.Yc);
  EXPECT_EQ(desk.Form.Gn, fresh.Form.Gn);
  EXPECT_EQ(desk.Form.optOtvetstven.Selected(), fresh.Form.optOtvetstven.Selected());
}

TEST(SteelWithoutTable, OpensWholeAgainWhenTheResourceIsThere) {
  SteelDesk desk({}, true);
  desk.Resources.Broken = false;
  desk.Form.Form_Load();
  EXPECT_EQ(desk.World.Messages.Shown.size(), 1U);
  EXPECT_EQ(desk.Form.cmbSteelName.List().size(), 16U);
  EXPECT_EQ(desk.Shown(), "230/230");
  EXPECT_EQ(desk.Form.optOtvetstven.Selected(), 2);
}

}  // namespace
}  // namespace trelonit

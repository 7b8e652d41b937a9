#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "tests/checks/SteelDesk.h"
#include "tests/support/SteelRows.h"

namespace trelonit {
namespace {

using test::SteelDesk;

TEST(SteelWindow, ShowsTheKindsOfStructuresWithTheirCoefficients) {
  SteelDesk desk;
  const std::vector<Grid::Row> expected{
      {"№ п/п", "Тип конструкций, сечений", "Yc"},
      {"1",
       "Сплошные балки и сжатые элементы ферм перекрытий под залами театров, клубов, "
       "кинотеатров, под трибунами, под помещениями магазинов, книгохранилищ и "
       "архивов и т. п. при весе перекрытий, равном или большем временной нагрузки ",
       "0.9"},
      {"2",
       "Сжатые основные элементы (кроме опорных) решетки составного таврового сечения "
       "из уголков сварных ферм покрытий и перекрытий (например, стропильных и "
       "аналогичных им ферм) при гибкости >=60 ",
       "0.8"},
      {"3", "Сплошные балки при расчетах на общую устойчивость при Fib < 1,0 ", "0.95"},
      {"4", "Затяжки, тяги, оттяжки, подвески, выполненные из прокатной стали", "0.9"},
      {"5",
       "Элементы стержневых конструкций покрытий и перекрытий: сжатые (за исключением "
       "замкнутых трубчатых сечений) при расчетах на устойчивость ",
       "0.95"},
      {"6",
       "Элементы стержневых конструкций покрытий и перекрытий: растянутых в сварных "
       "конструкциях  ",
       "0.95"},
      {"7",
       "Элементы стержневых конструкций покрытий и перекрытий: растянутые, сжатые, а "
       "также стыковые накладки в болтовых конструкциях (кроме конструкций на "
       "высокопрочных болтах) из стали с пределом текучести до 440 МПа (4500 "
       "кгс/кв.см), несущих статическую нагрузку, при расчетах на прочность",
       "1.05"}};
  EXPECT_EQ(desk.Form.MSFGridYc.Rows(), expected);
}

TEST(SteelWindow, HasTheUsualCoefficientsBeforeItIsOpened) {
  EmbeddedResources resources;
  test::World world(resources);
  test::SteelTargets main;
  const frmSteel form(world.Bundle(), main.References());
  EXPECT_EQ(form.Gn, 1);
  EXPECT_EQ(form.Yc, 0.9);
}

TEST(SteelWindow, HasItsCaptions) {
  SteelDesk desk;
  EXPECT_EQ(desk.Form.Form.Caption(), "Стали");
  EXPECT_EQ(desk.Form.framYc.Caption(), "Коэффициент условия работы элементов :");
  EXPECT_EQ(desk.Form.framOtvetstven.Caption(), "Класс ответствености по ГОСТ 27751-88");
  EXPECT_EQ(desk.Form.lblOtvetstven[1].Caption(), " U - объект уникального значения (Gn=1,15)");
  EXPECT_EQ(desk.Form.lblOtvetstven[2].Caption(), " 1 - объект особо важного значения (Gn=1)");
  EXPECT_EQ(desk.Form.lblOtvetstven[3].Caption(), " 2 - объект важного значения (Gn=0,95)");
  EXPECT_EQ(desk.Form.lblOtvetstven[4].Caption(), " 3 - объект ограниченого значения (Gn=0,9)");
}

TEST(SteelWindow, TellsTheUserWhatTheTableHolds) {
  SteelDesk desk;
  EXPECT_EQ(desk.Form.lblSteels.Caption(),
            "Стали не разбиты на группы и климатические районы. Для подробной информации "
            "см. СНиП ||-23-81 Cтальные конструкции табл. 50");
  EXPECT_EQ(desk.Form.lblThickness.Caption(),
            "За толщину фасонного проката следует принимать толщину полки (минимальная его "
            "толщина 4 мм).");
  EXPECT_EQ(desk.Form.lblChoice.Caption(),
            "Для того, что бы выбрать расчетное сопротивление между текущими для листового "
            "и фасонного проката, щелкните мышкой над соответствующим полем ввода. В "
            "расчете используется то, у которого задний фон - белый, или, если на месте "
            "выбраного сопротивления стоит прочерк, то, которое задано для выбраной марки "
            "и толщины.");
}

TEST(SteelWindow, OpensWithTheFirstRangeOfTheFirstGrade) {
  SteelDesk desk;
  EXPECT_EQ(desk.Form.cmbSteelName.ListIndex(), 0);
  EXPECT_EQ(desk.Form.cmbSteelName.Text(), "С235");
  EXPECT_EQ(desk.Form.cmbSheetThick.ListIndex(), 0);
  EXPECT_EQ(desk.Form.cmbSheetThick.List(),
            (std::vector<std::string>{"От 2 до 20", "Св. 20 до 40", "Св. 40 до 100", "Св. 100"}));
  EXPECT_EQ(desk.Form.cmbSheetThick.Text(), "От 2 до 20");
  EXPECT_EQ(desk.Shown(), "230/230");
  EXPECT_TRUE(desk.World.Messages.Shown.empty());
}

TEST(SteelWindow, OpensWithTheSheetValueActive) {
  SteelDesk desk;
  EXPECT_EQ(desk.Form.txtRysheet.BackColor(), colorWindowBackground);
  EXPECT_EQ(desk.Form.txtRyfason.BackColor(), 0xC0C0C0U);
}

TEST(SteelWindow, OpensWithTheSecondImportanceAndTheUsualCoefficient) {
  SteelDesk desk;
  EXPECT_EQ(desk.Form.optOtvetstven.Selected(), 2);
  EXPECT_EQ(desk.Form.Gn, 1);
  EXPECT_EQ(desk.Form.Yc, 0.9);
}

TEST(SteelWindow, ListsThirteenGradesAndTheLastOneThreeTimesMore) {
  SteelDesk desk;
  EXPECT_EQ(desk.Form.cmbSteelName.List(),
            (std::vector<std::string>{"С235", "С245", "С255", "С275", "С285", "С345", "С345К",
                                      "С375", "С390", "С390К", "С440", "С590", "С590К", "С590К",
                                      "С590К", "С590К"}));
}

TEST(SteelWindow, ShowsTheSameRangeForEachOfTheLastFourEntries) {
  SteelDesk desk;
  for (Long entry = 12; entry <= 15; ++entry) {
    desk.Form.cmbSteelName.Select(entry);
    EXPECT_EQ(desk.Form.cmbSteelName.ListIndex(), entry);
    EXPECT_EQ(desk.Form.cmbSheetThick.List(), std::vector<std::string>{"От 16 до 40"});
    EXPECT_EQ(desk.Shown(), "515/-");
  }
}

TEST(SteelWindow, ShowsTheResistancesOfEveryRange) {
  SteelDesk desk;
  std::map<std::string, Long> next;
  for (const test::SteelRow& row : test::steelRows) {
    desk.Choose(row.Grade, next[row.Grade]++);
    EXPECT_EQ(desk.Form.cmbSheetThick.Text(), row.Range) << row.Grade;
    EXPECT_EQ(desk.Shown(), std::string(row.Sheet) + "/" + row.Shaped)
        << row.Grade << " " << row.Range;
  }
  for (const auto& [grade, count] : next) {
    desk.Choose(grade, 0);
    EXPECT_EQ(desk.Form.cmbSheetThick.List().size(), static_cast<std::size_t>(count)) << grade;
  }
}

TEST(SteelWindow, GoesToTheFirstRangeWithEachGrade) {
  SteelDesk desk;
  desk.Choose("С345", 5);
  EXPECT_EQ(desk.Shown(), "260/-");
  desk.Form.cmbSteelName.SetText("С375");
  EXPECT_EQ(desk.Form.cmbSheetThick.ListIndex(), 0);
  EXPECT_EQ(desk.Form.cmbSheetThick.Text(), "От 2 до 10");
  EXPECT_EQ(desk.Shown(), "365/365");
}

TEST(SteelWindow, MarksTheClickedResistanceByItsBackground) {
  SteelDesk desk;
  desk.Form.txtRyfason_Click();
  EXPECT_EQ(desk.Form.txtRysheet.BackColor(), 0xC0C0C0U);
  EXPECT_EQ(desk.Form.txtRyfason.BackColor(), colorWindowBackground);
  desk.Form.txtRyfason_Click();
  EXPECT_EQ(desk.Form.txtRyfason.BackColor(), colorWindowBackground);
  desk.Form.txtRysheet_Click();
  EXPECT_EQ(desk.Form.txtRysheet.BackColor(), colorWindowBackground);
  EXPECT_EQ(desk.Form.txtRyfason.BackColor(), 0xC0C0C0U);
}

TEST(SteelWindow, KeepsTheActiveResistanceThroughOtherGradesAndRanges) {
  SteelDesk desk;
  desk.Form.txtRyfason_Click();
  desk.Choose("С255", 1);
  EXPECT_EQ(desk.Form.txtRyfason.BackColor(), colorWindowBackground);
  EXPECT_EQ(desk.Form.txtRysheet.BackColor(), 0xC0C0C0U);
}

TEST(SteelWindow, TakesTheCoefficientOfTheChosenRow) {
  SteelDesk desk;
  const std::vector<double> coefficients{0.9, 0.8, 0.95, 0.9, 0.95, 0.95, 1.05};
  // Backwards, so that no row gives what was there before.
  for (Long row = 7; row >= 1; --row) {
    desk.Form.Yc = 0;
    desk.Form.MSFGridYc_SelChange(row);
    EXPECT_EQ(desk.Form.Yc, coefficients[static_cast<std::size_t>(row - 1)]) << row;
  }
}

TEST(SteelWindow, KeepsTheCoefficientForARowThatIsNoKindOfStructure) {
  SteelDesk desk;
  desk.Form.MSFGridYc_SelChange(2);
  for (const Long row : {0, -1, 8}) {
    desk.Form.MSFGridYc_SelChange(row);
    EXPECT_EQ(desk.Form.Yc, 0.8) << row;
  }
}

TEST(SteelWindow, TakesTheCoefficientOfEachImportance) {
  SteelDesk desk;
  const std::vector<double> coefficients{1.15, 1, 0.95, 0.9};
  for (const Long option : {1, 3, 4, 2}) {
    desk.Form.optOtvetstven.Select(option);
    EXPECT_EQ(desk.Form.Gn, coefficients[static_cast<std::size_t>(option - 1)]) << option;
  }
}

TEST(SteelWindow, TakesOneForAnImportanceThatIsNotThere) {
  SteelDesk desk;
  for (const Long option : {0, 5, -1, 100}) {
    desk.Form.Gn = 0;
    desk.Form.optOtvetstven_Click(option);
    EXPECT_EQ(desk.Form.Gn, 1) << option;
  }
}

TEST(SteelWindow, BuildsEverythingAnewAtEachOpening) {
  SteelDesk desk;
  desk.Choose("С345", 3);
  desk.Form.txtRyfason_Click();
  desk.Form.MSFGridYc_SelChange(7);
  desk.Form.optOtvetstven.Select(4);
  desk.Form.Form_Load();
  EXPECT_EQ(desk.Form.Steels.size(), 16U);
  EXPECT_EQ(desk.Form.cmbSteelName.List().size(), 16U);
  EXPECT_EQ(desk.Form.cmbSteelName.ListIndex(), 0);
  EXPECT_EQ(desk.Form.cmbSheetThick.List().size(), 4U);
  EXPECT_EQ(desk.Form.cmbSheetThick.ListIndex(), 0);
  EXPECT_EQ(desk.Shown(), "230/230");
  EXPECT_EQ(desk.Form.txtRysheet.BackColor(), colorWindowBackground);
  EXPECT_EQ(desk.Form.txtRyfason.BackColor(), 0xC0C0C0U);
  EXPECT_EQ(desk.Form.MSFGridYc.Rows().size(), 8U);
  EXPECT_EQ(desk.Form.optOtvetstven.Selected(), 2);
  EXPECT_EQ(desk.Form.Gn, 1);
  EXPECT_EQ(desk.Form.Yc, 0.9);
}

}  // namespace
}  // namespace trelonit

#include <QRadioButton>

#include "tests/support/SteelRows.h"
#include "tests/windows/Pixels.h"
#include "tests/windows/dialogs/SteelScreen.h"

namespace trelonit::test {
namespace {

TEST(SteelWindowTexts, HasItsTitleAndFrames) {
  SteelScreen screen;
  EXPECT_EQ(screen.Window.windowTitle(), ToQt("Стали"));
  const Texts titles = GroupTitles(screen.Window);
  EXPECT_TRUE(Has(titles, "Класс ответствености по ГОСТ 27751-88"));
  EXPECT_TRUE(Has(titles, "Коэффициент условия работы элементов :"));
}

TEST(SteelWindowTexts, TellsHowTheResistanceIsChosen) {
  SteelScreen screen;
  const Texts labels = LabelsIn(screen.Window);
  EXPECT_TRUE(Has(labels,
                  "Стали не разбиты на группы и климатические районы. Для подробной информации см. "
                  "СНиП ||-23-81 Cтальные конструкции табл. 50"));
  EXPECT_TRUE(Has(labels,
                  "За толщину фасонного проката следует принимать толщину полки (минимальная его "
                  "толщина 4 мм)."));
  EXPECT_TRUE(Has(labels,
                  "Для того, что бы выбрать расчетное сопротивление между текущими для листового и "
                  "фасонного проката, щелкните мышкой над соответствующим полем ввода. В расчете "
                  "используется то, у которого задний фон - белый, или, если на месте выбраного "
                  "сопротивления стоит прочерк, то, которое задано для выбраной марки и толщины."));
}

TEST(SteelWindowTexts, NamesTheImportanceClasses) {
  SteelScreen screen;
  Texts captions;
  for (const auto* option : screen.Window.findChildren<QRadioButton*>()) {
    captions.push_back(FromQt(option->text()));
  }
  EXPECT_EQ(captions, (Texts{" U - объект уникального значения (Gn=1,15)",
                             " 1 - объект особо важного значения (Gn=1)",
                             " 2 - объект важного значения (Gn=0,95)",
                             " 3 - объект ограниченого значения (Gn=0,9)"}));
}

TEST(SteelWindowTexts, ShowsTheTableOfConditions) {
  SteelScreen screen;
  const QTableWidget& table = screen.Conditions();
  const std::vector<Grid::Row>& rows = screen.Form.MSFGridYc.Rows();
  ASSERT_EQ(table.rowCount(), 7);
  ASSERT_EQ(table.columnCount(), 3);
  for (int column = 0; column < 3; ++column) {
    const auto place = static_cast<std::size_t>(column);
    EXPECT_EQ(FromQt(table.horizontalHeaderItem(column)->text()),
              (Texts{"№ п/п", "Тип конструкций, сечений", "Yc"})[place]);
    for (int row = 0; row < 7; ++row) {
      EXPECT_EQ(FromQt(table.item(row, column)->text()),
                rows[static_cast<std::size_t>(row) + 1][place]);
    }
  }
  EXPECT_EQ(FromQt(table.toolTip()),
            "Выбирайте только один ряд. При выборе нескольких рядов используются параметры "
            "последнего ряда !!!");
}

TEST(SteelWindowTexts, ShowsEachConditionInFull) {
  SteelScreen screen;
  for (int row = 0; row < 7; ++row) {
    const QTableWidget& table = screen.Conditions();
    const QRect cell = table.visualItemRect(table.item(row, 1));
    const QRect text = table.fontMetrics().boundingRect(
        {0, 0, cell.width() - 8, 1000}, Qt::TextWordWrap, table.item(row, 1)->text());
    EXPECT_GE(cell.height(), text.height()) << row;
  }
}

TEST(SteelWindowLists, ShowsEveryResistanceOfTheTable) {
  SteelScreen screen;
  for (const SteelRow& row : steelRows) {
    screen.PickSteel(row.Grade, row.Range);
    EXPECT_EQ(screen.Seen(), std::string(row.Sheet) + "/" + row.Shaped)
        << row.Grade << ' ' << row.Range;
  }
}

TEST(SteelWindowLists, StartsWithTheFirstGradeAndRange) {
  SteelScreen screen;
  EXPECT_EQ(FromQt(screen.Grades().currentText()), "С235");
  EXPECT_EQ(FromQt(screen.Ranges().currentText()), "От 2 до 20");
  EXPECT_EQ(screen.Seen(), "230/230");
  EXPECT_EQ(Entries(screen.Ranges()),
            (Texts{"От 2 до 20", "Св. 20 до 40", "Св. 40 до 100", "Св. 100"}));
}

TEST(SteelWindowLists, ShowsTheLastGradeFourTimesAndEachCanBePicked) {
  SteelScreen screen;
  ASSERT_EQ(screen.Grades().count(), 16);
  for (int entry = 12; entry < 16; ++entry) {
    PickEntry(screen.Grades(), 0);
    PickEntry(screen.Grades(), entry);
    EXPECT_EQ(screen.Grades().currentIndex(), entry);
    EXPECT_EQ(screen.Form.cmbSteelName.ListIndex(), entry);
    EXPECT_EQ(FromQt(screen.Grades().currentText()), "С590К");
    EXPECT_EQ(Entries(screen.Ranges()), Texts{"От 16 до 40"});
    EXPECT_EQ(screen.Seen(), "515/-");
  }
}

TEST(SteelWindowLists, AnotherGradeBringsItsRangesFromTheFirst) {
  SteelScreen screen;
  screen.PickSteel("С345", "Св. 80 до 160");
  Pick(screen.Grades(), "С255");
  EXPECT_EQ(Entries(screen.Ranges()),
            (Texts{"От 2 до 3,9", "От 4 до 10", "Св. 10 до 20", "Св. 20 до 40"}));
  EXPECT_EQ(screen.Ranges().currentIndex(), 0);
  EXPECT_EQ(screen.Seen(), "250/-");
}

TEST(SteelWindowLists, FollowTheForm) {
  SteelScreen screen;
  screen.Choose("С275", 1);
  EXPECT_EQ(FromQt(screen.Grades().currentText()), "С275");
  EXPECT_EQ(FromQt(screen.Ranges().currentText()), "Св. 10 до 20");
  EXPECT_EQ(screen.Seen(), "260/270");
}

TEST(SteelWindowLists, GoThroughTheGradesByArrowKeys) {
  SteelScreen screen;
  screen.Grades().setFocus();
  Press(Qt::Key_Down);
  EXPECT_EQ(screen.Form.cmbSteelName.Text(), "С245");
  EXPECT_EQ(screen.Seen(), "240/240");
  screen.Ranges().setFocus();
  Press(Qt::Key_Down);
  EXPECT_EQ(screen.Seen(), "-/230");
}

TEST(SteelWindowResistance, BeginsWithTheSheet) {
  SteelScreen screen;
  EXPECT_EQ(LooksChosen(screen), "sheet");
}

TEST(SteelWindowResistance, IsChosenByTheMouse) {
  SteelScreen screen;
  ClickBox(screen.Shaped());
  EXPECT_EQ(LooksChosen(screen), "shaped");
  EXPECT_EQ(screen.Form.txtRyfason.BackColor(), colorWindowBackground);
  EXPECT_EQ(screen.Form.txtRysheet.BackColor(), colorDisabledGrey);
  ClickBox(screen.Shaped());
  EXPECT_EQ(LooksChosen(screen), "shaped");
  ClickBox(screen.Sheet());
  EXPECT_EQ(LooksChosen(screen), "sheet");
}

TEST(SteelWindowResistance, IsChosenByTheSpaceBar) {
  SteelScreen screen;
  screen.Shaped().setFocus();
  Press(Qt::Key_Space);
  EXPECT_EQ(LooksChosen(screen), "shaped");
  screen.Sheet().setFocus();
  Press(Qt::Key_Space);
  EXPECT_EQ(LooksChosen(screen), "sheet");
}

TEST(SteelWindowResistance, IsNotChosenByPassingThroughOrByCopying) {
  SteelScreen screen;
  WalkByTab();
  EXPECT_EQ(LooksChosen(screen), "sheet");
  screen.Shaped().setFocus();
  screen.Shaped().selectAll();
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(LooksChosen(screen), "sheet");
  EXPECT_EQ(FromQt(QApplication::clipboard()->text()), "230");
}

TEST(SteelWindowResistance, IsNotChosenByTheButtonOfTheContextMenu) {
  SteelScreen screen;
  QTest::mousePress(&screen.Shaped(), Qt::RightButton, {}, screen.Shaped().rect().center());
  EXPECT_EQ(LooksChosen(screen), "sheet");
}

TEST(SteelWindowResistance, IsPaintedWhiteWhereItIsChosen) {
  SteelScreen screen;
  const QColor white = QPalette().color(QPalette::Base);
  const QColor grey = QPalette().color(QPalette::Window);
  ASSERT_NE(white, grey);
  ClickBox(screen.Shaped());
  EXPECT_GT(CountPixels(screen.Shaped(), white), CountPixels(screen.Shaped(), grey));
  EXPECT_GT(CountPixels(screen.Sheet(), grey), CountPixels(screen.Sheet(), white));
}

TEST(SteelWindowResistance, CannotBeTypedOver) {
  SteelScreen screen;
  for (QLineEdit* box : {&screen.Sheet(), &screen.Shaped()}) {
    Type(*box, "999");
    Paste(*box, "999");
  }
  EXPECT_EQ(screen.Seen(), "230/230");
  EXPECT_EQ(screen.Shown(), "230/230");
}

TEST(SteelWindowResistance, StaysChosenWhenAnotherSteelIsPicked) {
  SteelScreen screen;
  ClickBox(screen.Shaped());
  screen.PickSteel("С285", "От 4 до 10");
  EXPECT_EQ(LooksChosen(screen), "shaped");
  Click(screen.Apply());
  EXPECT_EQ(screen.Main.txtRy.Text(), "280");
}

TEST(SteelWindowConditions, StartWithoutARowAndWithTheUsualCoefficient) {
  SteelScreen screen;
  EXPECT_TRUE(screen.Conditions().selectedItems().isEmpty());
  EXPECT_EQ(screen.Form.Yc, 0.9);
}

TEST(SteelWindowConditions, EachRowSetsItsCoefficientByTheMouse) {
  constexpr std::array<double, 7> coefficients{0.9, 0.8, 0.95, 0.9, 0.95, 0.95, 1.05};
  SteelScreen screen;
  for (int row = 6; row >= 0; --row) {
    screen.ClickRow(row);
    EXPECT_EQ(screen.Form.Yc, coefficients[static_cast<std::size_t>(row)]) << row;
    EXPECT_EQ(screen.Conditions().selectedItems().size(), 3);
  }
}

TEST(SteelWindowConditions, RowsAreChosenByKeys) {
  SteelScreen screen;
  screen.Conditions().setFocus();
  Press(Qt::Key_Home, Qt::ControlModifier);
  Press(Qt::Key_Down);
  EXPECT_EQ(screen.Form.Yc, 0.8);
  EXPECT_EQ(screen.Conditions().currentRow(), 1);
  Press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(screen.Form.Yc, 1.05);
}

TEST(SteelWindowConditions, SeveralRowsCountAsTheLastOne) {
  SteelScreen screen;
  screen.ClickRow(2);
  screen.ClickRow(6, Qt::ShiftModifier);
  EXPECT_EQ(screen.Conditions().selectedItems().size(), 15);
  EXPECT_EQ(screen.Form.Yc, 1.05);
  screen.ClickRow(1, Qt::ControlModifier);
  EXPECT_EQ(screen.Form.Yc, 0.8);
}

TEST(SteelWindowConditions, CannotBeTypedOver) {
  SteelScreen screen;
  screen.ClickRow(1);
  const QString before = screen.Conditions().item(1, 2)->text();
  QTest::mouseDClick(screen.Conditions().viewport(), Qt::LeftButton, {},
                     screen.Conditions().visualItemRect(screen.Conditions().item(1, 2)).center());
  QTest::keyClicks(screen.Conditions().viewport(), "7");
  EXPECT_EQ(screen.Conditions().item(1, 2)->text(), before);
  EXPECT_EQ(screen.Conditions().findChild<QLineEdit*>(), nullptr);
}

TEST(SteelWindowConditions, KeepTheUsualCoefficientWhileTheKeyboardPassesThrough) {
  SteelScreen screen;
  WalkByTab();
  EXPECT_EQ(screen.Form.Yc, 0.9);
  Click(screen.Apply());
  EXPECT_EQ(screen.Main.txtUsloviyaRabot.Text(), "0.9");
}

TEST(SteelWindowImportance, StartsWithTheSecondClass) {
  SteelScreen screen;
  for (int option = 1; option <= 4; ++option) {
    EXPECT_EQ(screen.Importance(option).isChecked(), option == 2) << option;
  }
  EXPECT_EQ(screen.Form.Gn, 1);
}

TEST(SteelWindowImportance, EachClassSetsItsCoefficientAlone) {
  constexpr std::array<double, 4> coefficients{1.15, 1, 0.95, 0.9};
  SteelScreen screen;
  for (const int chosen : {1, 2, 4, 3}) {
    Click(screen.Importance(chosen));
    EXPECT_EQ(screen.Form.Gn, coefficients[static_cast<std::size_t>(chosen - 1)]);
    for (int option = 1; option <= 4; ++option) {
      EXPECT_EQ(screen.Importance(option).isChecked(), option == chosen);
    }
    // Pressing the chosen one once more leaves it chosen.
    Click(screen.Importance(chosen));
    EXPECT_TRUE(screen.Importance(chosen).isChecked());
  }
}

TEST(SteelWindowImportance, IsChosenByTheSpaceBar) {
  SteelScreen screen;
  screen.Importance(4).setFocus();
  Press(Qt::Key_Space);
  EXPECT_EQ(screen.Form.Gn, 0.9);
  EXPECT_FALSE(screen.Importance(2).isChecked());
}

TEST(SteelWindowImportance, FollowsTheForm) {
  SteelScreen screen;
  screen.Form.optOtvetstven.Select(3);
  EXPECT_TRUE(screen.Importance(3).isChecked());
  EXPECT_FALSE(screen.Importance(2).isChecked());
}

}  // namespace
}  // namespace trelonit::test

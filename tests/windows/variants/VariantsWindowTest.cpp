// The window "Варианты".

#include <QHeaderView>
#include <QHelpEvent>
#include <QProgressBar>
#include <QToolTip>

#include "tests/windows/Pixels.h"
#include "tests/windows/main/Screen.h"
#include "tests/windows/variants/VariantsScreen.h"
#include "variants/VariantTable.h"
#include "windows/binding/Pictures.h"
#include "windows/main/HistoryDesk.h"

namespace trelonit::test {
namespace {

class VariantsOnScreen : public ::testing::Test, public VariantsScreen {
 protected:
  int Rows() { return Table().model()->rowCount(); }
  static int ColumnOf(const std::string& caption) {
    const std::vector<std::string> columns = VariantColumns();
    return static_cast<int>(std::find(columns.begin(), columns.end(), caption) - columns.begin());
  }
};

TEST_F(VariantsOnScreen, OpensByTheLastEntryOfItsMenu) {
  const auto* action = Program.Window->findChild<QAction*>("mnuVariants");
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(FromQt(action->text()), "Варианты ...");
  EXPECT_EQ(action->shortcut(), QKeySequence("Ctrl+Shift+F9"));
  for (const QAction* other : Program.Window->findChildren<QAction*>()) {
    EXPECT_TRUE(other == action || !other->shortcuts().contains(action->shortcut()));
  }
  for (const QAction* menu : Program.Window->menuBar()->actions()) {
    if (menu->text() == QStringLiteral("Расчет")) {
      EXPECT_EQ(menu->menu()->actions().back(), action);
    }
  }
  Open([&] { EXPECT_EQ(FromQt(Window->windowTitle()), "Варианты"); });
  EXPECT_EQ(Opened, 1);
}

TEST_F(VariantsOnScreen, IsRefusedAsACalculationIs) {
  Type(Find<QLineEdit>(*Program.Window, "txtLengthF"), "-5");
  Open([] {});
  EXPECT_EQ(Opened, 0);
  EXPECT_EQ(Program.Outside.Messages.Shown, Messages{Stop(wrongGeometry)});
}

TEST_F(VariantsOnScreen, NamesAFaultUnderItsField) {
  Open([&] {
    QLabel& fault = LabelOf("lblFaultHeight");
    EXPECT_FALSE(fault.isVisible());
    Type(Edit("txtHeight"), "2:3:0");
    EXPECT_TRUE(fault.isVisible());
    EXPECT_EQ(FromQt(fault.text()), "в диапазоне «2:3:0» шаг не больше нуля");
    EXPECT_TRUE(Edit("txtHeight").accessibleDescription().startsWith(fault.text()));
    EXPECT_FALSE(Button("cmdStart").isEnabled());
    Type(Edit("txtHeight"), "2:3:0.5");
    EXPECT_FALSE(fault.isVisible());
    EXPECT_TRUE(Button("cmdStart").isEnabled());
  });
}

TEST_F(VariantsOnScreen, StaysLiveWhileItComputesAndShowsAllInTheEnd) {
  Open([&] {
    WriteSmall();
    EXPECT_TRUE(LabelOf("lblCount").text().startsWith(QStringLiteral("Вариантов: 6, примерно ")));
    Click(Button("cmdStart"));
    EXPECT_TRUE(Form->IsRunning());
    EXPECT_FALSE(Button("cmdStart").isEnabled());
    EXPECT_TRUE(Button("cmdCancel").isEnabled());
    ASSERT_TRUE(Ends());
    EXPECT_EQ(Rows(), 6);
    EXPECT_EQ(Find<QProgressBar>(*Window, "Progress").value(), 1000);
    EXPECT_TRUE(LabelOf("lblProgress").text().startsWith(QStringLiteral("Посчитано 6: ")));
    EXPECT_TRUE(Button("cmdStart").isEnabled());
  });
}

TEST_F(VariantsOnScreen, SortsByAPressOnAHead) {
  Open([&] {
    WriteSmall();
    RunToTheEnd();
    const int mass = ColumnOf("Масса, т");
    auto* heads = Table().horizontalHeader();
    for (const bool descending : {false, true}) {
      QTest::mouseClick(heads->viewport(), Qt::LeftButton, {},
                        {heads->sectionViewportPosition(mass) + 8, heads->height() / 2});
      const auto& shown = Form->List().Shown();
      ASSERT_EQ(shown.size(), 6U);
      for (std::size_t row = 1; row < shown.size(); ++row) {
        EXPECT_TRUE(descending ? shown[row]->Mass <= shown[row - 1]->Mass
                               : shown[row]->Mass >= shown[row - 1]->Mass);
      }
      EXPECT_EQ(Cell(0, mass), FormatShown(shown.front()->Mass, 3, Form->Locale()));
    }
  });
}

TEST_F(VariantsOnScreen, FiltersByChoiceAndByText) {
  Open([&] {
    WriteSmall();
    Type(Edit("txtPanels"), "7,8,10");
    RunToTheEnd();
    EXPECT_EQ(Rows(), 9);
    Pick(Find<QComboBox>(*Window, "cmbShow"), "только годные");
    EXPECT_EQ(Rows(), 6);
    Pick(Find<QComboBox>(*Window, "cmbShow"), "все");
    Type(Edit("txtFilter"), "не бывает");
    EXPECT_EQ(Rows(), 3);
    EXPECT_EQ(Cell(0, ColumnOf("Причина")), "в схеме 1 не бывает панелей: 7");
    EXPECT_EQ(FromQt(LabelOf("lblShown").text()), "Показано 3 из 9");
  });
}

TEST_F(VariantsOnScreen, LeavesAwayWhatIsAlikeInAllRows) {
  Open([&] {
    WriteSmall();
    RunToTheEnd();
    const int span = ColumnOf("Пролет, м");
    EXPECT_TRUE(Table().isColumnHidden(span));
    EXPECT_FALSE(Table().isColumnHidden(ColumnOf("Высота, м")));
    Click(Button("chkAllColumns"));
    for (int column = 0; column < Table().model()->columnCount(); ++column) {
      EXPECT_FALSE(Table().isColumnHidden(column)) << column;
    }
  });
}

TEST_F(VariantsOnScreen, APressOnAPointChoosesItsRowAndTheOtherWay) {
  Open([&] {
    WriteSmall();
    RunToTheEnd();
    const QColor mark = MarkColor(Plot().palette());
    EXPECT_EQ(CountPixels(Plot(), mark), 0);
    const std::optional<QPointF> place = Plot().PlaceOf(3);
    ASSERT_TRUE(place.has_value());
    QTest::mouseClick(&Plot(), Qt::LeftButton, {}, place->toPoint());
    ASSERT_TRUE(Form->Chosen().has_value());
    EXPECT_EQ(Table().currentIndex().row(), static_cast<int>(*Form->Chosen()));
    EXPECT_EQ(Plot().PlaceOf(*Form->Chosen()), place);
    EXPECT_GT(CountPixels(Plot(), mark), 0);
    EXPECT_TRUE(LabelOf("lblChosen").text().startsWith(QStringLiteral("Вариант ")));
    EXPECT_EQ(Plot().accessibleDescription(), LabelOf("lblChosen").text());

    Table().setFocus();
    QTest::keyClick(&Table(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(Form->Chosen(), 0U);
    QTest::keyClick(&Table(), Qt::Key_Down);
    EXPECT_EQ(Form->Chosen(), 1U);
  });
}

TEST_F(VariantsOnScreen, APointTellsOfItself) {
  Open([&] {
    WriteSmall();
    RunToTheEnd();
    const QPoint place = Plot().PlaceOf(0)->toPoint();
    QHelpEvent hint(QEvent::ToolTip, place, Plot().mapToGlobal(place));
    QApplication::sendEvent(&Plot(), &hint);
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("высота 1.5 м")))
        << FromQt(QToolTip::text());
    QToolTip::hideText();
  });
}

TEST_F(VariantsOnScreen, ThePlotHasTheDeflectionAsAnotherChoice) {
  Open([&] {
    WriteSmall();
    RunToTheEnd();
    const auto before = Plot().PlaceOf(0);
    Pick(Find<QComboBox>(*Window, "cmbPlot"), "прогиба");
    EXPECT_EQ(Form->Labels().Across, "Прогиб, м");
    EXPECT_NE(Plot().PlaceOf(0), before);
    Pick(Find<QComboBox>(*Window, "cmbColour"), "схеме");
    EXPECT_EQ(Form->Labels().Kind, "Схема");
  });
}

TEST_F(VariantsOnScreen, EscapeEndsFirstTheStudyThenTheWindow) {
  Open([&] {
    WriteSmall();
    Type(Edit("txtHeight"), "1.5:3:0.00001");
    Click(Button("cmdStart"));
    constexpr int longest = 20'000;
    ASSERT_TRUE(QTest::qWaitFor([&] { return Rows() > 0; }, longest));
    ASSERT_TRUE(Form->IsRunning());
    Window->reject();
    EXPECT_TRUE(Window->isVisible());
    ASSERT_TRUE(Ends());
    EXPECT_GT(Rows(), 0);
    EXPECT_TRUE(LabelOf("lblProgress").text().startsWith(QStringLiteral("Прервано: ")));
    Window->reject();
    EXPECT_FALSE(Window->isVisible());
  });
}

TEST_F(VariantsOnScreen, ClosingWhileItRunsEndsTheStudyAndKeepsWhatIsComputed) {
  Open([&] {
    WriteSmall();
    Type(Edit("txtHeight"), "1.5:3:0.00001");
    Click(Button("cmdStart"));
    QTest::qWait(100);
    ASSERT_TRUE(Form->IsRunning());
    Click(Button("cmdClose"));
    EXPECT_FALSE(Window->isVisible());
    EXPECT_FALSE(Form->IsRunning());
  });
  Open([&] { EXPECT_GT(Rows(), 0); });
}

TEST_F(VariantsOnScreen, MayGoWithoutBeingClosed) {
  Open([&] {
    WriteSmall();
    Type(Edit("txtHeight"), "1.5:3:0.00001");
    Click(Button("cmdStart"));
    EXPECT_TRUE(Form->IsRunning());
  });
  EXPECT_FALSE(Form->IsRunning());
}

TEST_F(VariantsOnScreen, AppliesTheChosenOneAsOneStep) {
  Program.Window->History().Note();
  const QString before = Program.Window->findChild<QAction*>("mnuUndo")->text();
  Open([&] {
    WriteSmall();
    RunToTheEnd();
    EXPECT_FALSE(Button("cmdApply").isEnabled());
    Table().setFocus();
    Table().selectRow(0);
    ASSERT_TRUE(Button("cmdApply").isEnabled());
    Click(Button("cmdApply"));
    EXPECT_FALSE(Window->isVisible());
  });
  EXPECT_EQ(Program.TextIn("txtHight"), "1.5");
  EXPECT_EQ(Program.Root.Main().cmbPanelNum.Text(), "8");
  Program.Window->History().Note();
  Program.Trigger("mnuUndo");
  EXPECT_EQ(Program.Root.Main().cmbPanelNum.Text(), "10");
  EXPECT_EQ(Program.Window->findChild<QAction*>("mnuUndo")->text(), before);
}

TEST_F(VariantsOnScreen, SavesTableAndPictures) {
  Open([&] {
    WriteSmall();
    RunToTheEnd();
    Program.Outside.Dialogs.Names = {"/table.csv", "/plot.svg", "/plot.png"};
    for (const char* name : {"mnuSaveCsv", "mnuSaveSvg", "mnuSavePng"}) {
      EXPECT_FALSE(Entry(name).shortcut().isEmpty()) << name;
      Entry(name).trigger();
    }
  });
  auto& files = Program.Outside.Files.Content;
  EXPECT_NE(files["/table.csv"].find("Масса"), std::string::npos);
  EXPECT_EQ(files["/plot.svg"].find("<svg"), 0U);
  QImage picture;
  ASSERT_TRUE(picture.loadFromData(QByteArray::fromStdString(files["/plot.png"]), "PNG"));
  EXPECT_EQ(picture.size(), QSize(1800, 1120));
  EXPECT_EQ(picture.pixelColor(2, 2), QColor(Qt::white));
  EXPECT_EQ(Program.Outside.Messages.Shown, Messages());
}

TEST_F(VariantsOnScreen, TicksKindsByTheirNames) {
  Open([&] {
    auto& button = Find<QToolButton>(*Window, "cmdKindsLower");
    emit button.menu()->aboutToShow();
    const QAction* tee = button.menu()->actions().at(1);
    ASSERT_TRUE(tee->text().startsWith(QStringLiteral("2  ")));
    QAction* kind = tee->menu()->actions().at(1);
    EXPECT_TRUE(kind->text().startsWith(QStringLiteral("2/2  ")));
    kind->trigger();
    EXPECT_EQ(FromQt(Edit("txtLower").text()), "1/1,2/2");
    EXPECT_TRUE(Button("chkLower").isChecked());
    emit button.menu()->aboutToShow();
    EXPECT_TRUE(button.menu()->actions().at(1)->menu()->actions().at(1)->isChecked());
  });
}

TEST_F(VariantsOnScreen, RemembersItsPlaceItsAxesAndItsChoices) {
  Open([&] {
    Window->resize(1000, 660);
    WriteSmall();
    Pick(Find<QComboBox>(*Window, "cmbShow"), "лучшие");
    Window->close();
  });
  Open([&] {
    EXPECT_EQ(Window->size(), QSize(1000, 660));
    EXPECT_EQ(FromQt(Edit("txtHeight").text()), "1.5:2.5:0.5");
    EXPECT_EQ(FromQt(Find<QComboBox>(*Window, "cmbShow").currentText()), "лучшие");
    Click(Button("cmdOffer"));
    EXPECT_EQ(FromQt(Edit("txtHeight").text()), "1.65:3.15:0.15");
  });
}

TEST_F(VariantsOnScreen, EveryInputHasANameAndIsReachedByTab) {
  Open([&] {
    ShowActive(*Window);
    ExpectEveryInputHasAName(*Window);
    Edit("txtHeight").setFocus();
    ExpectTabReachesEveryInputOnce(*Window);
  });
}

}  // namespace
}  // namespace trelonit::test

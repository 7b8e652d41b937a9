// The second opinion in the results window.

#include <QMenuBar>
#include <QToolButton>

#include "tests/windows/DialogHands.h"
#include "tests/windows/Pixels.h"
#include "tests/windows/results/FilledResults.h"
#include "windows/binding/Pictures.h"
#include "windows/results/ExplanationView.h"
#include "windows/results/ResultViews.h"

namespace trelonit::test {
namespace {

class ResultsOpinion : public ::testing::Test, public FilledResults {
 protected:
  ResultsOpinion() { Open(); }
  QTableWidget& Table() { return Find<QTableWidget>(*Window, "MSFlexGKoefUse"); }
  TrussView& Truss() { return dynamic_cast<TrussView&>(Find<QWidget>(*Window, "TrussView")); }
  std::string Explained() {
    return FromQt(dynamic_cast<ExplanationView&>(Find<QWidget>(*Window, "Explanation")).InLine());
  }
  bool Says(const std::string& text) { return Explained().find(text) != std::string::npos; }
  /// The row of a group with this check.
  int RowOf(ElementGroup group, const std::string& check) {
    for (std::size_t row = 0; row < Lists.Rows.size(); ++row) {
      const std::vector<std::string>& checks = Lists.Rows[row].Checks;
      if (Lists.Rows[row].Group == group &&
          std::find(checks.begin(), checks.end(), check) != checks.end()) {
        return static_cast<int>(row);
      }
    }
    throw std::logic_error("no row of " + check);
  }
  void PressRow(int row) {
    Table().scrollToItem(Table().item(row, 0));
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {},
                      Table().visualItemRect(Table().item(row, 0)).center());
  }
};

TEST_F(ResultsOpinion, StandsInAThirdColumn) {
  ASSERT_EQ(Table().columnCount(), 3);
  EXPECT_EQ(FromQt(Table().horizontalHeaderItem(2)->text()), "СНиП");
  ASSERT_EQ(static_cast<std::size_t>(Table().rowCount()), Lists.Rows.size());
  int filled = 0;
  for (int row = 0; row < Table().rowCount(); ++row) {
    const std::string& opinion = Lists.Rows[static_cast<std::size_t>(row)].Opinion;
    EXPECT_EQ(FromQt(Table().item(row, 2)->text()), opinion);
    filled += opinion.empty() ? 0 : 1;
  }
  EXPECT_GT(filled, 10);
}

TEST(ResultsOpinionColumn, IsRedAndBoldWhereItFailsWhateverTheCalculationSays) {
  // Held at its ends alone, the upper chord has a short length for the calculation and a long one
  // for the norm.
  FilledResults results([](frmMain& form) {
    form.optUpPoyas.Select(1);
    form.optElementSection.Select(1);
    form.imgProfileSecSelect_Click(2);
    Choose(form.cmbTypeProfile, "Уголок равнополочный по ГОСТ 8509-93");
    Choose(form.cmbSectType, "L75x6");
  });
  auto& table = Find<QTableWidget>(results.Open(), "MSFlexGKoefUse");
  const QColor red = WarningColor(table.palette());
  int fails = 0;
  int holds = 0;
  for (int row = 0; row < table.rowCount(); ++row) {
    const auto place = static_cast<std::size_t>(row);
    const bool failing = results.Lists.Rows[place].OpinionFails;
    const QTableWidgetItem& item = *table.item(row, 2);
    EXPECT_EQ(item.font().bold(), failing) << row;
    EXPECT_EQ(item.foreground().color() == red, failing) << row;
    if (failing && !results.Lists.Picture.OverLimit[place]) {
      EXPECT_NE(table.item(row, 1)->foreground().color(), red) << row;
      ++fails;
    }
    holds += failing ? 0 : 1;
  }
  EXPECT_GT(fails, 0);
  EXPECT_GT(holds, 0);
}

TEST_F(ResultsOpinion, TellsNothingBeforeARowIsChosen) {
  EXPECT_EQ(Truss().Marked(), std::nullopt);
  EXPECT_EQ(CountPixels(Truss(), MarkColor(Truss().palette())), 0);
  EXPECT_TRUE(Says("Выберите строку"));
  EXPECT_TRUE(Says("Второе мнение не рассматривает: изгиб поясов между узлами"));
}

TEST_F(ResultsOpinion, ExplainsTheChosenRowByBoth) {
  PressRow(RowOf(ElementGroup::UpPoyas, "StabY"));
  EXPECT_TRUE(Says("Верхний пояс, устойчивость из плоскости фермы\n")) << Explained();
  for (const ExplanationSource source : {ExplanationSource::Told, ExplanationSource::Opinion}) {
    const auto explanation = Lists.Opinion.FindExplanation(source, ElementGroup::UpPoyas, "StabY");
    ASSERT_TRUE(explanation.has_value());
    EXPECT_TRUE(Says(FormatShown(explanation->Value, 5, PointLocale()))) << Explained();
  }
  EXPECT_TRUE(Says("N·γn·98.1/(φ·A·Ry·γc)"));
  EXPECT_FALSE(Says("Выберите строку"));
}

TEST_F(ResultsOpinion, ExplainsEveryCheckOfARowTheOneThatRulesFirst) {
  PressRow(RowOf(ElementGroup::UpPoyas, "FlexX"));
  const std::string text = Explained();
  const std::size_t across = text.find("Верхний пояс, гибкость из плоскости фермы");
  const std::size_t inPlane = text.find("Верхний пояс, гибкость в плоскости фермы");
  ASSERT_NE(across, std::string::npos) << text;
  ASSERT_NE(inPlane, std::string::npos) << text;
  const auto greatest = [&](const char* check) {
    double value = 0;
    for (const ExplanationSource source : {ExplanationSource::Told, ExplanationSource::Opinion}) {
      value = std::max(value,
                       Lists.Opinion.FindExplanation(source, ElementGroup::UpPoyas, check)->Value);
    }
    return value;
  };
  EXPECT_EQ(across<inPlane, greatest("FlexY")> greatest("FlexX"));
}

TEST_F(ResultsOpinion, MarksTheBarThatRulesTheChosenRow) {
  const int row = RowOf(ElementGroup::Raskos, "Strength");
  PressRow(row);
  const ResultRow& chosen = Lists.Rows[static_cast<std::size_t>(row)];
  ASSERT_TRUE(chosen.Bar.has_value());
  EXPECT_EQ(Truss().Marked(), (MarkedBar{optionRaskos, *chosen.Bar}));
  EXPECT_GT(CountPixels(Truss(), MarkColor(Truss().palette())), 50);
  EXPECT_TRUE(FromQt(Truss().accessibleDescription())
                  .starts_with("Отмечен: Раскосы, стержень " + std::to_string(*chosen.Bar)));
}

TEST_F(ResultsOpinion, KnowsTheSupportDiagonalsOfThePicture) {
  const int row = RowOf(ElementGroup::OpornRaskos, "Strength");
  PressRow(row);
  ASSERT_TRUE(Lists.Rows[static_cast<std::size_t>(row)].Bar.has_value());
  EXPECT_EQ(Truss().Marked()->Group, optionOpornRaskos);
  EXPECT_GT(CountPixels(Truss(), MarkColor(Truss().palette())), 50);
}

TEST_F(ResultsOpinion, TakesTheMarkAwayWithTheChoice) {
  PressRow(RowOf(ElementGroup::UpPoyas, "Strength"));
  ASSERT_TRUE(Truss().Marked().has_value());
  Table().clearSelection();
  EXPECT_EQ(Truss().Marked(), std::nullopt);
  EXPECT_EQ(CountPixels(Truss(), MarkColor(Truss().palette())), 0);
  EXPECT_TRUE(Says("Выберите строку"));
}

TEST_F(ResultsOpinion, HasNothingToExplainInTheHeadOfAGroup) {
  PressRow(RowOf(ElementGroup::UpPoyas, "Strength"));
  PressRow(0);
  EXPECT_EQ(Truss().Marked(), std::nullopt);
  EXPECT_TRUE(Says("Выберите строку"));
}

TEST_F(ResultsOpinion, FollowsTheKeys) {
  Table().setFocus();
  PressRow(1);
  const std::string first = Explained();
  QTest::keyClick(&Table(), Qt::Key_Down);
  EXPECT_NE(Explained(), first);
  EXPECT_EQ(Table().currentRow(), 2);
}

TEST_F(ResultsOpinion, PutsTheFindingsOverTheLists) {
  auto& strip = Find<QWidget>(*Window, "Findings");
  EXPECT_TRUE(strip.isVisible());
  EXPECT_LT(strip.mapTo(Window.get(), QPoint(0, strip.height())).y(),
            Table().mapTo(Window.get(), QPoint()).y());
  EXPECT_EQ(FromQt(Find<QLabel>(strip, "FindingsText").text()), Lists.Opinion.Findings[0].Text);
}

TEST_F(ResultsOpinion, FitsASmallScreenWithAllFindingsOpen) {
  Click(Find<QToolButton>(*Window, "cmdFindings"));
  QTest::qWait(1);
  // 1280 x 720 without the title bar and the bar of the desktop.
  EXPECT_LE(Window->minimumSizeHint().width(), 1180);
  EXPECT_LE(Window->minimumSizeHint().height(), 650);
  Window->resize(1180, 650);
  QTest::qWait(1);
  EXPECT_LE(Window->height(), 650);
  EXPECT_TRUE(Find<QWidget>(*Window, "cmdClose").isVisible());
}

TEST_F(ResultsOpinion, GivesItsRoomToTheListsAndTheExplanation) {
  Window->resize(1180, 650);
  const QSize before = Table().size();
  auto& explanation = Find<QWidget>(*Window, "Explanation");
  const int room = explanation.height();
  Window->resize(1900, 1000);
  EXPECT_GT(Table().width(), before.width() + 200);
  EXPECT_GT(Table().height(), before.height() + 100);
  EXPECT_GT(explanation.height(), room + 100);
}

TEST_F(ResultsOpinion, ClosesByEnterFromEveryList) {
  for (const char* list : {"MSFlexGKoefUse", "Explanation", "lstForces"}) {
    ShowActive(Open());
    Find<QWidget>(*Window, list).setFocus();
    Press(Qt::Key_Return);
    EXPECT_FALSE(Window->isVisible()) << list;
  }
}

TEST_F(ResultsOpinion, IsReachedByTab) {
  Window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
  Table().setFocus();
  ExpectTabReachesEveryInputOnce(*Window);
  ExpectEveryInputHasAName(*Window);
}

TEST_F(ResultsOpinion, AppendixIsOffAndSwitchedByItsEntry) {
  std::vector<bool> switched;
  Form.AppendixChanged = [&](bool on) { switched.push_back(on); };
  auto* entry = Window->findChild<QAction*>("mnuAppendix");
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(FromQt(entry->text()), "Приложение «Второе мнение» в отчете");
  EXPECT_TRUE(entry->isCheckable());
  EXPECT_FALSE(entry->isChecked());
  entry->trigger();
  EXPECT_TRUE(entry->isChecked());
  EXPECT_TRUE(Form.mnuAppendix.Checked());
  entry->trigger();
  EXPECT_FALSE(entry->isChecked());
  EXPECT_EQ(switched, (std::vector<bool>{true, false}));
  Form.mnuAppendix.SetChecked(true);
  EXPECT_TRUE(entry->isChecked());
}

TEST_F(ResultsOpinion, AppendixStandsInTheMenuOfTheWindow) {
  auto* bar = Window->findChild<QMenuBar*>();
  ASSERT_NE(bar, nullptr);
  ASSERT_EQ(bar->actions().size(), 2);
  EXPECT_EQ(FromQt(bar->actions()[0]->text()), "&Вид");
  EXPECT_EQ(bar->actions()[0]->menu()->actions()[0]->objectName(), "mnuAppendix");
}

TEST(ResultsOfARefusal, HaveAnEmptyColumnAndSayWhy) {
  FilledResults results([](frmMain& form) { form.txtRy.SetText("0"); });
  ASSERT_TRUE(results.Lists.Opinion.Figures.HasRefused());
  KoeffOfUseWindow& window = results.Open();
  EXPECT_EQ(FromQt(Find<QLabel>(window, "FindingsText").text()),
            results.Lists.Opinion.Figures.Refusal);
  auto& table = Find<QTableWidget>(window, "MSFlexGKoefUse");
  EXPECT_GT(table.rowCount(), 0);
  for (int row = 0; row < table.rowCount(); ++row) {
    EXPECT_EQ(FromQt(table.item(row, 2)->text()), "") << row;
    table.selectRow(row);
    EXPECT_EQ(dynamic_cast<TrussView&>(Find<QWidget>(window, "TrussView")).Marked(), std::nullopt);
  }
}

TEST(ResultsWithADeflection, ExplainItWhileNoRowIsChosen) {
  FilledResults results([](frmMain& form) { form.chkProgib.SetChecked(true); });
  ASSERT_TRUE(results.Lists.Of.Progib.has_value());
  KoeffOfUseWindow& window = results.Open();
  const std::string text =
      FromQt(dynamic_cast<ExplanationView&>(Find<QWidget>(window, "Explanation")).InLine());
  EXPECT_NE(text.find("Ферма, прогиб"), std::string::npos) << text;
  EXPECT_NE(text.find("f/fu"), std::string::npos) << text;
}

TEST(ResultsInAComma, WriteTheirFormulasWithIt) {
  FilledResults results([](frmMain&) {}, CommaLocale());
  KoeffOfUseWindow& window = results.Open();
  Find<QTableWidget>(window, "MSFlexGKoefUse").selectRow(1);
  const std::string text =
      FromQt(dynamic_cast<ExplanationView&>(Find<QWidget>(window, "Explanation")).InLine());
  EXPECT_NE(text.find("98,1"), std::string::npos) << text;
  EXPECT_EQ(text.find("98.1"), std::string::npos) << text;
}

}  // namespace
}  // namespace trelonit::test

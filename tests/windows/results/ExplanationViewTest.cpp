#include "opinion/FormulaText.h"
#include "tests/windows/DialogHands.h"
#include "tests/windows/Pixels.h"
#include "tests/windows/results/FilledResults.h"
#include "windows/binding/Pictures.h"
#include "windows/results/ExplanationView.h"

namespace trelonit::test {
namespace {

/// Strength of a bar with 10 t on 20 cm2 of steel with 240 MPa: 10 * 98.1 / (20 * 240) = 0.204375.
Explanation Strength(ExplanationSource source) {
  return {.Group = ElementGroup::DwnPoyas,
          .Check = "Strength",
          .CheckName = "прочность",
          .Source = source,
          .Clause = "п. 5.1, формула (5)",
          .Formula = "N*98.1/(A*Ry)",
          .Substitution = "10*98.1/(20*240)",
          .Value = 0.204375,
          .Passed = true,
          .Steps = {{.Symbol = "N", .Value = 10, .Unit = "т", .Note = "растяжение"},
                    {.Symbol = "A", .Value = 20, .Unit = "см²"},
                    {.Symbol = "σ",
                     .Formula = "N*98.1/A",
                     .Substitution = "10*98.1/20",
                     .Value = 49.05,
                     .Unit = "МПа"}},
          .OwnRules = {},
          .Bar = source == ExplanationSource::Opinion ? std::optional<Long>(3) : std::nullopt};
}

struct ViewScreen {
  explicit ViewScreen(std::vector<ExplainedCheck> checks, int width = 1100,
                      const NumberLocale& locale = CommaLocale())
      : View(locale) {
    View.resize(width, 500);
    View.show();
    View.Show({}, std::move(checks));
  }
  std::string Text() const { return FromQt(View.InLine()); }
  bool Says(const std::string& text) const { return Text().find(text) != std::string::npos; }
  /// Where a word stands on the screen.
  QRect Place(const std::string& word) {
    const QTextCursor found = View.document()->find(ToQt(word));
    EXPECT_FALSE(found.isNull()) << word;
    return View.cursorRect(found);
  }

  ExplanationView View;
};

TEST(ExplanationView, TellsClauseFormulaNumbersResultAndVerdict) {
  ViewScreen screen({{.Told = Strength(ExplanationSource::Told)}});
  for (const char* text :
       {"Нижний пояс, прочность", "Расчет: 0,20438, проходит", "п. 5.1, формула (5)",
        "N·98,1/(A·Ry) = 10·98,1/(20·240) = 0,20438 ≤ 1", "Дано: N = 10 т — растяжение; A = 20 см²",
        "σ = N·98,1/A = 10·98,1/20 = 49,05 МПа"}) {
    EXPECT_TRUE(screen.Says(text)) << text << "\nin\n" << screen.Text();
  }
}

TEST(ExplanationView, TellsTheRulesThatAreTheProgramsOwn) {
  Explanation told = Strength(ExplanationSource::Told);
  told.OwnRules = {"Первое правило.", "Второе правило."};
  ViewScreen screen({{.Told = told}});
  EXPECT_TRUE(screen.Says("Правило программы. Первое правило."));
  EXPECT_TRUE(screen.Says("Правило программы. Второе правило."));
}

TEST(ExplanationView, IsRedWhereTheCheckFails) {
  Explanation told = Strength(ExplanationSource::Told);
  ViewScreen passed({{.Told = told}});
  const QColor red = WarningColor(passed.View.palette());
  EXPECT_EQ(CountPixels(*passed.View.viewport(), red), 0);
  told.Value = 1.204375;
  told.Passed = false;
  ViewScreen failed({{.Told = told}});
  EXPECT_GT(CountPixels(*failed.View.viewport(), red), 10);
  EXPECT_TRUE(failed.Says("Расчет: 1,20438, не проходит"));
  EXPECT_TRUE(failed.Says("= 1,20438 > 1"));
}

TEST(ExplanationView, SetsTheOpinionBesideTheCalculationAndTellsItsBar) {
  ViewScreen screen({{.Told = Strength(ExplanationSource::Told),
                      .Opinion = Strength(ExplanationSource::Opinion)}});
  ASSERT_TRUE(screen.View.IsWide());
  const QRect told = screen.Place("Расчет: ");
  const QRect opinion = screen.Place("СНиП II-23-81*: ");
  EXPECT_EQ(told.top(), opinion.top());
  EXPECT_GT(opinion.left(), screen.View.width() / 2);
  EXPECT_TRUE(screen.Says("формула (5); стержень 3"));
}

TEST(ExplanationViewNarrow, SetsTheOpinionBelowTheCalculation) {
  ViewScreen screen({{.Told = Strength(ExplanationSource::Told),
                      .Opinion = Strength(ExplanationSource::Opinion)}},
                    420);
  ASSERT_FALSE(screen.View.IsWide());
  EXPECT_GT(screen.Place("СНиП II-23-81*: ").top(), screen.Place("49,05").bottom());
  const std::string narrow = screen.Text();
  screen.View.resize(1100, 500);
  EXPECT_EQ(screen.Place("Расчет: ").top(), screen.Place("СНиП II-23-81*: ").top());
  EXPECT_EQ(screen.Text(), narrow);
}

TEST(ExplanationView, SaysWhereOneOfTheTwoIsMissing) {
  ViewScreen told({{.Told = Strength(ExplanationSource::Told)}});
  EXPECT_TRUE(told.Says("Второго мнения об этой проверке нет."));
  ViewScreen opinion({{.Opinion = Strength(ExplanationSource::Opinion)}});
  EXPECT_TRUE(opinion.Says("В расчете такой проверки нет."));
  ViewScreen none(std::vector<ExplainedCheck>(1));
  EXPECT_EQ(none.Text(), "");
}

TEST(ExplanationView, ShowsRemarksBeforeTheChecks) {
  ViewScreen screen({});
  screen.View.Show({QStringLiteral("Первое"), QStringLiteral("Второе")},
                   {{.Told = Strength(ExplanationSource::Told)}});
  EXPECT_TRUE(screen.Text().starts_with("Первое\nВторое\nНижний пояс, прочность\n"))
      << screen.Text();
}

TEST(ExplanationView, ForgetsWhatItShowedBefore) {
  ViewScreen screen({{.Told = Strength(ExplanationSource::Told)}});
  screen.View.Show({QStringLiteral("Слово")}, {});
  EXPECT_EQ(screen.Text(), "Слово");
}

TEST(ExplanationView, TakesTheColoursOfANewTheme) {
  ViewScreen screen({{.Told = Strength(ExplanationSource::Told)}});
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(20, 20, 20));
  dark.setColor(QPalette::Text, QColor(250, 250, 250));
  screen.View.setPalette(dark);
  EXPECT_GT(CountPixels(*screen.View.viewport(), QColor(250, 250, 250)), 50);
  EXPECT_GT(CountPixels(*screen.View.viewport(), PassedColor(dark)), 10);
}

TEST(ExplanationViewOfADesign, HasEveryFigureOfEveryExplanation) {
  FilledResults results;
  std::size_t steps = 0;
  ASSERT_GT(results.Form.Opinion.Explanations().size(), 40U);
  for (const Explanation& explanation : results.Form.Opinion.Explanations()) {
    ViewScreen screen({{.Told = explanation}}, 1100, PointLocale());
    const auto expect = [&](const std::string& text) {
      EXPECT_TRUE(screen.Says(text)) << text << "\nin\n" << screen.Text();
    };
    expect(explanation.Clause);
    expect(FormulaInLine(explanation.Formula, PointLocale()) + " = " +
           FormulaInLine(explanation.Substitution, PointLocale()) + " = ");
    for (const ExplanationStep& step : explanation.Steps) {
      expect(step.Symbol + " = " + FormulaInLine(step.Formula, PointLocale()));
      expect(FormulaInLine(step.Substitution, PointLocale()));
      expect(step.Note);
      ++steps;
    }
    for (const std::string& rule : explanation.OwnRules) {
      expect(rule);
    }
  }
  EXPECT_GT(steps, 200U);
}

}  // namespace
}  // namespace trelonit::test

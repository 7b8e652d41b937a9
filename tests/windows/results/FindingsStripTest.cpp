#include <QScrollArea>
#include <QToolButton>

#include "tests/windows/DialogHands.h"
#include "tests/windows/Pixels.h"
#include "tests/windows/results/FilledResults.h"
#include "windows/binding/Pictures.h"
#include "windows/help/HelpKey.h"
#include "windows/results/FindingsStrip.h"

namespace trelonit::test {
namespace {

Finding Found(Severity grade, FindingCode code, const std::string& text) {
  return {.Code = code, .Grade = grade, .Text = text};
}

const Finding danger = Found(Severity::Danger, FindingCode::CheckDiffers, "Верхний пояс плох.");
const Finding shortLength = Found(Severity::Warning, FindingCode::BracingLength, "Длина <3 м>.");
const Finding note = Found(Severity::Note, FindingCode::ChordBending, "Изгиб не проверен.");

/// A strip on screen, in a window of a width.
struct StripScreen {
  explicit StripScreen(std::vector<Finding> findings, const std::string& refusal = {},
                       int width = 1000) {
    SecondOpinion opinion;
    opinion.Findings = std::move(findings);
    opinion.Figures.Refusal = refusal;
    Strip = new FindingsStrip(opinion);
    auto* column = new QVBoxLayout(&Window);
    column->addWidget(Strip);
    column->addStretch();
    Window.resize(width, 400);
    ShowActive(Window);
  }
  QLabel& Text() { return Find<QLabel>(Window, "FindingsText"); }
  QToolButton& More() { return Find<QToolButton>(Window, "cmdFindings"); }
  QScrollArea& List() { return Find<QScrollArea>(Window, "FindingsList"); }
  bool HasList() const { return Window.findChild<QScrollArea*>("FindingsList") != nullptr; }
  QColor Ink(const QLabel& label) { return label.palette().color(QPalette::WindowText); }
  QColor Red() { return WarningColor(Window.palette()); }
  /// What the rows of the open list say.
  Texts Rows() {
    Texts rows;
    for (const QLabel* label : List().findChildren<QLabel*>()) {
      QTextDocument plain;
      plain.setHtml(label->text());
      rows.push_back(FromQt(plain.toPlainText()));
    }
    return rows;
  }

  QWidget Window;
  FindingsStrip* Strip = nullptr;
};

TEST(FindingsStripWithDanger, IsRedBoldWithItsMarkAndItsWord) {
  StripScreen screen({danger, danger, shortLength, note});
  auto& counts = Find<QLabel>(screen.Window, "FindingsCounts");
  EXPECT_EQ(FromQt(counts.text().simplified()), "Опасно: 2 Внимание: 1 Примечание: 1");
  EXPECT_GT(CountPixels(counts, screen.Red()), 50);
  EXPECT_GT(CountPixels(counts, SeverityColor(Severity::Warning, screen.Window.palette())), 10);
  EXPECT_GT(CountPixels(counts, SeverityColor(Severity::Note, screen.Window.palette())), 10);
  EXPECT_EQ(FromQt(screen.Text().text()), "Верхний пояс плох.");
  EXPECT_TRUE(screen.Text().font().bold());
  EXPECT_EQ(screen.Ink(screen.Text()), screen.Red());
  // The edge, the mark and the words.
  EXPECT_GT(CountPixels(*screen.Strip, screen.Red()), 300);
}

TEST(FindingsStripWithoutDanger, HasNoRedInIt) {
  StripScreen screen({shortLength, note});
  EXPECT_EQ(FromQt(screen.Text().text()), "Длина <3 м>.");
  EXPECT_FALSE(screen.Text().font().bold());
  EXPECT_EQ(CountPixels(*screen.Strip, screen.Red()), 0);
  EXPECT_GT(CountPixels(*screen.Strip, CautionColor(screen.Window.palette())), 30);
}

TEST(FindingsStripWithoutFindings, SaysSoInOneQuietLine) {
  StripScreen screen({});
  EXPECT_EQ(FromQt(screen.Text().text()), "Второе мнение по СНиП II-23-81*: замечаний нет");
  EXPECT_FALSE(screen.HasList());
  EXPECT_EQ(CountPixels(*screen.Strip, screen.Red()), 0);
  EXPECT_LT(screen.Strip->height(), 3 * screen.Window.fontMetrics().height());
}

TEST(FindingsStripOfARefusal, ShowsWhyThereIsNoOpinion) {
  StripScreen screen({}, "Второго мнения нет: схема не рассчитывается.");
  EXPECT_EQ(FromQt(screen.Text().text()), "Второго мнения нет: схема не рассчитывается.");
  EXPECT_FALSE(screen.HasList());
}

TEST(FindingsStripList, OpensOnlyWhenItIsAskedFor) {
  StripScreen screen({danger, shortLength, note});
  EXPECT_FALSE(screen.List().isVisible());
  const QWidgetList windows = QApplication::topLevelWidgets();
  EXPECT_EQ(std::count_if(windows.begin(), windows.end(),
                          [](const QWidget* window) { return window->isVisible(); }),
            1)
      << "nothing pops up";
  const int closed = screen.Strip->height();
  Click(screen.More());
  EXPECT_TRUE(screen.List().isVisible());
  EXPECT_EQ(screen.Rows(), (Texts{"Опасно. Верхний пояс плох.", "Внимание. Длина <3 м>.",
                                  "Примечание. Изгиб не проверен."}));
  EXPECT_GT(screen.Strip->height(), closed);
  Click(screen.More());
  EXPECT_FALSE(screen.List().isVisible());
}

TEST(FindingsStripList, IsRedAndBoldWhereItIsDangerous) {
  StripScreen screen({danger, shortLength});
  Click(screen.More());
  const QList<QLabel*> rows = screen.List().findChildren<QLabel*>();
  ASSERT_EQ(rows.size(), 2);
  EXPECT_EQ(screen.Ink(*rows[0]), screen.Red());
  EXPECT_TRUE(rows[0]->font().bold());
  EXPECT_NE(screen.Ink(*rows[1]), screen.Red());
  EXPECT_FALSE(rows[1]->font().bold());
}

TEST(FindingsStripList, WrapsItsWordsAndScrollsWhenItIsLong) {
  Finding wordy = note;
  for (int word = 0; word < 60; ++word) {
    wordy.Text += " слово";
  }
  StripScreen screen(std::vector<Finding>(12, wordy), {}, 420);
  Click(screen.More());
  QTest::qWait(1);
  EXPECT_LE(screen.List().widget()->width(), screen.List().viewport()->width());
  EXPECT_GT(screen.List().widget()->height(), screen.List().height());
  EXPECT_LT(screen.List().height(), 200);
}

TEST(FindingsStripList, IsAsHighAsItsFindings) {
  StripScreen screen({danger, shortLength});
  Click(screen.More());
  QTest::qWait(1);
  EXPECT_GE(screen.List().height(), screen.List().widget()->height());
  EXPECT_LE(screen.List().height(), screen.List().widget()->height() + 4);
}

/// Notes the places that are asked for.
struct Asked {
  Texts Places;
  HelpKey Key{[this](const QString& place) { Places.push_back(FromQt(place)); }};
};

TEST(FindingsStripHelp, HasAWayToThePageOfEachFinding) {
  std::vector<Finding> all;
  Texts expected;
  for (const char* code :
       {"check-differs", "bracing-length", "not-balanced", "load-differs", "own-weight-twice",
        "chord-bending", "section-data", "phi-gap", "selection-open"}) {
    all.push_back(Found(Severity::Warning, static_cast<FindingCode>(all.size()), code));
    expected.push_back(std::string("finding-") + code);
  }
  StripScreen screen(all);
  Click(screen.More());
  Asked asked;
  for (QToolButton* help : screen.List().findChildren<QToolButton*>()) {
    help->setFocus();
    QTest::keyClick(help, Qt::Key_Space);
  }
  EXPECT_EQ(asked.Places, expected);
}

TEST(FindingsStripHelp, OfAFindingIsOnF1Too) {
  StripScreen screen({danger, note});
  Click(screen.More());
  Asked asked;
  QTest::keyClick(screen.List().findChildren<QToolButton*>()[1], Qt::Key_F1);
  EXPECT_EQ(asked.Places, Texts{"finding-chord-bending"});
}

TEST(FindingsStripHelp, TellsOfTheOpinionWhereThereIsNoFinding) {
  for (const char* refusal : {"", "Второго мнения нет."}) {
    StripScreen screen({}, refusal);
    Asked asked;
    Click(Find<QToolButton>(screen.Window, "opinion"));
    EXPECT_EQ(asked.Places, Texts{"opinion"}) << refusal;
  }
}

TEST(FindingsStripKeyboard, TabReachesEveryButtonOnce) {
  StripScreen screen({danger, shortLength, note});
  Click(screen.More());
  screen.More().setFocus();
  ExpectTabReachesEveryInputOnce(screen.Window);
  ExpectEveryInputHasAName(screen.Window);
}

TEST(FindingsStripNarrow, CutsTheLineOffAndKeepsTheWholeInItsHint) {
  Finding wordy = danger;
  for (int word = 0; word < 60; ++word) {
    wordy.Text += " слово";
  }
  StripScreen screen({wordy}, {}, 500);
  EXPECT_LE(screen.Window.width(), 500);
  QTextDocument hint;
  hint.setHtml(screen.Text().toolTip());
  EXPECT_EQ(FromQt(hint.toPlainText()), wordy.Text);
  EXPECT_EQ(FromQt(screen.Text().text()), wordy.Text);
}

}  // namespace
}  // namespace trelonit::test

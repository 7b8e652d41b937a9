#include <QListWidget>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QWindow>

#include "tests/windows/DialogHands.h"
#include "windows/help/HelpWindow.h"

namespace trelonit::test {
namespace {

/// The window on screen, on its first page.
class HelpWindowOnScreen : public testing::Test {
 protected:
  HelpWindowOnScreen() { ShowActive(Window); }

  QTextBrowser& Page() { return Find<QTextBrowser>(Window, "Page"); }
  QTreeWidget& Contents() { return Find<QTreeWidget>(Window, "Contents"); }
  QListWidget& List(const std::string& name) { return Find<QListWidget>(Window, name); }
  QLineEdit& Edit(const std::string& name) { return Find<QLineEdit>(Window, name); }
  std::string Says(const std::string& label) { return FromQt(Find<QLabel>(Window, label).text()); }
  QAction& Entry(const std::string& name) {
    auto* action = Window.findChild<QAction*>(ToQt(name));
    if (action == nullptr) {
      throw std::logic_error("no tool " + name);
    }
    return *action;
  }
  /// The page in sight, with its anchor.
  std::string Shown() { return FromQt(HelpPages::PageAt(Page().source())); }
  void GoToSide(int side) { ClickTab(Find<QTabWidget>(Window, "Sides"), side); }
  void SearchFor(const std::string& words) {
    GoToSide(2);
    Type(Edit("Words"), words);
    Click(Find<QAbstractButton>(Window, "Search"));
  }
  Texts Lines(const std::string& name) {
    Texts lines;
    for (int row = 0; row < List(name).count(); ++row) {
      lines.push_back(FromQt(List(name).item(row)->text()));
    }
    return lines;
  }
  void ClickLine(const std::string& name, int row) {
    QListWidget& list = List(name);
    list.scrollToItem(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(row)).center());
  }
  /// What is marked on the page.
  Texts Marked() {
    Texts texts;
    for (const QTextEdit::ExtraSelection& mark : Page().extraSelections()) {
      texts.push_back(FromQt(mark.cursor.selectedText()));
    }
    return texts;
  }
  std::string Selected() { return FromQt(Page().textCursor().selectedText()); }
  bool Sees(const QTextCursor& cursor) {
    return Page().viewport()->rect().intersects(Page().cursorRect(cursor));
  }

  HelpWindow Window;
};

TEST_F(HelpWindowOnScreen, BeginsWithTheFirstPage) {
  EXPECT_EQ(Shown(), "index.html");
  EXPECT_EQ(FromQt(Window.windowTitle()), "Трелонит: руководство пользователя - Трелонит: справка");
  EXPECT_NE(Page().toPlainText().indexOf(ToQt("стропильные фермы")), -1);
  EXPECT_FALSE(Entry("Back").isEnabled());
  EXPECT_FALSE(Entry("Forward").isEnabled());
}

TEST_F(HelpWindowOnScreen, ListsEveryPageInTheContents) {
  std::set<QString> listed;
  int entries = 0;
  for (QTreeWidgetItemIterator item(&Contents()); *item != nullptr; ++item) {
    const QString page = (*item)->data(0, Qt::UserRole).toString();
    EXPECT_FALSE((*item)->text(0).isEmpty()) << FromQt(page);
    EXPECT_NE(HelpPages::PageAt(HelpPages::UrlOf(page)), QString()) << FromQt(page);
    listed.insert(page.section(QLatin1Char('#'), 0, 0));
    ++entries;
  }
  EXPECT_GT(entries, 60);
  EXPECT_EQ(listed.size(), 32U);
}

TEST_F(HelpWindowOnScreen, EveryEntryOfTheContentsOpensItsPage) {
  for (QTreeWidgetItemIterator item(&Contents()); *item != nullptr; ++item) {
    Contents().setCurrentItem(*item);
    EXPECT_EQ(Shown(), FromQt((*item)->data(0, Qt::UserRole).toString()));
    EXPECT_FALSE(Page().toPlainText().isEmpty());
    EXPECT_EQ(Contents().currentItem(), *item);
  }
}

TEST_F(HelpWindowOnScreen, MarksThePageInTheContents) {
  Window.ShowPage("catalogue.html#manager");
  ASSERT_NE(Contents().currentItem(), nullptr);
  EXPECT_EQ(Contents().currentItem()->data(0, Qt::UserRole).toString(), "catalogue.html#manager");
  EXPECT_TRUE(Contents().visualItemRect(Contents().currentItem()).isValid());
}

TEST_F(HelpWindowOnScreen, ShowsThePicturesAndTheStyle) {
  Window.ShowPage("scheme.html");
  const QVariant picture =
      Page().document()->resource(QTextDocument::ImageResource, QUrl("../pictures/scheme.png"));
  EXPECT_TRUE(picture.isValid());
  const QVariant style =
      Page().document()->resource(QTextDocument::StyleSheetResource, QUrl("../style.css"));
  EXPECT_TRUE(style.isValid());
}

TEST_F(HelpWindowOnScreen, LinksOpenPages) {
  emit Page().anchorClicked(Page().source().resolved(QUrl("start.html#example")));
  EXPECT_EQ(Shown(), "start.html#example");
  EXPECT_TRUE(Entry("Back").isEnabled());
}

TEST_F(HelpWindowOnScreen, AClickOnALinkOpensItsPage) {
  // The first link of the first page.
  const QTextBlock block = Page().document()->begin();
  QTextCursor link;
  for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
    if (piece.fragment().charFormat().isAnchor()) {
      link = QTextCursor(Page().document());
      link.setPosition(piece.fragment().position() + 2);
    }
  }
  ASSERT_FALSE(link.isNull());
  QTest::mouseClick(Page().viewport(), Qt::LeftButton, {}, Page().cursorRect(link).center());
  EXPECT_EQ(Shown(), "start.html");
}

TEST_F(HelpWindowOnScreen, LinksOutOfTheGuideAreNotFollowed) {
  for (const char* link :
       {"https://example.org/index.html", "file:///etc/passwd", "qrc:/pictures/trelonit.svg",
        "qrc:/help/pages/none.html", "qrc:/help/pages/../contents.json", "mailto:a@b.c"}) {
    emit Page().anchorClicked(QUrl(QLatin1String(link)));
    EXPECT_EQ(Shown(), "index.html") << link;
    EXPECT_NE(Window.statusBar()->currentMessage().indexOf(ToQt("за пределы справки")), -1) << link;
  }
}

TEST_F(HelpWindowOnScreen, GoesBackForwardAndHome) {
  Window.ShowPage("loads.html");
  Window.ShowPage("steel.html");
  QTest::keyClick(&Page(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Shown(), "loads.html");
  Entry("Back").trigger();
  EXPECT_EQ(Shown(), "index.html");
  EXPECT_FALSE(Entry("Back").isEnabled());
  QTest::keyClick(&Page(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Shown(), "loads.html");
  Entry("Home").trigger();
  EXPECT_EQ(Shown(), "index.html");
  Entry("Back").trigger();
  EXPECT_EQ(Shown(), "loads.html");
}

TEST_F(HelpWindowOnScreen, FiltersTheIndexInAnyCase) {
  GoToSide(1);
  const Texts all = Lines("Terms");
  EXPECT_GT(all.size(), 50U);
  Type(Edit("Term"), "ДВУТАВР");
  ASSERT_EQ(Lines("Terms"), Texts{"двутавр"});
  ClickLine("Terms", 0);
  EXPECT_EQ(Shown(), "sections.html#layouts");
  Type(Edit("Term"), "нет такого термина");
  EXPECT_TRUE(Lines("Terms").empty());
  Empty(Edit("Term"));
  EXPECT_EQ(Lines("Terms"), all);
}

TEST_F(HelpWindowOnScreen, EveryTermLeadsToAPage) {
  for (int row = 0; row < List("Terms").count(); ++row) {
    const QString page = List("Terms").item(row)->data(Qt::UserRole).toString();
    EXPECT_NE(HelpPages::PageAt(HelpPages::UrlOf(page)), QString()) << FromQt(page);
  }
}

TEST_F(HelpWindowOnScreen, SearchesInAnyCase) {
  SearchFor("сварные ШВЫ");
  const Texts lower = Lines("Hits");
  ASSERT_EQ(lower.size(), 1U);
  EXPECT_EQ(lower[0].substr(0, lower[0].find('\n')), "Трелонит: руководство пользователя (2)");
  EXPECT_NE(lower[0].find("сварные швы"), std::string::npos) << lower[0];
  EXPECT_EQ(Says("Found"), "Найдено страниц: 1");
  SearchFor("СВАРНЫЕ швы");
  EXPECT_EQ(Lines("Hits"), lower);
}

TEST_F(HelpWindowOnScreen, MarksWhatWasFoundAndGoesThere) {
  SearchFor("scheme.tsav");
  SearchFor("ПРОГИБ");
  ASSERT_GT(List("Hits").count(), 3);
  const int last = List("Hits").count() - 1;
  const std::string page = FromQt(List("Hits").item(last)->data(Qt::UserRole).toString());
  ClickLine("Hits", last);
  EXPECT_EQ(Shown(), page);
  ASSERT_FALSE(Marked().empty());
  for (const std::string& text : Marked()) {
    EXPECT_EQ(FromQt(ToQt(text).toLower()), "прогиб");
  }
  EXPECT_TRUE(Sees(Page().textCursor()));
  EXPECT_EQ(FromQt(ToQt(Selected()).toLower()), "прогиб");
  // Another page has nothing marked.
  Window.ShowPage("console.html");
  EXPECT_TRUE(Marked().empty());
}

TEST_F(HelpWindowOnScreen, TellsThatNothingIsFound) {
  for (const char* words : {"абракадабра", "   ", "\""}) {
    SearchFor(words);
    EXPECT_EQ(Says("Found"), "Ничего не найдено") << words;
    EXPECT_TRUE(Lines("Hits").empty()) << words;
  }
}

TEST_F(HelpWindowOnScreen, FindsOnThePageRoundAndRound) {
  Window.ShowPage("units.html");
  EXPECT_FALSE(Find<QWidget>(Window, "FindBar").isVisible());
  QTest::keyClick(&Page(), Qt::Key_F, Qt::ControlModifier);
  ASSERT_TRUE(Find<QWidget>(Window, "FindBar").isVisible());
  EXPECT_TRUE(Edit("FindText").hasFocus());
  Type(Edit("FindText"), "ЕДИНИЦЫ");
  const auto places = static_cast<int>(Marked().size());
  ASSERT_GT(places, 1);
  EXPECT_EQ(Says("FindResult"), "1 из " + std::to_string(places));
  std::set<int> seen;
  for (int step = 0; step < places; ++step) {
    EXPECT_EQ(FromQt(ToQt(Selected()).toUpper()), "ЕДИНИЦЫ");
    seen.insert(Page().textCursor().selectionStart());
    Entry("FindNext").trigger();
  }
  EXPECT_EQ(static_cast<int>(seen.size()), places);
  EXPECT_EQ(Says("FindResult"), "1 из " + std::to_string(places));
  Entry("FindPrevious").trigger();
  EXPECT_EQ(Says("FindResult"), std::to_string(places) + " из " + std::to_string(places));
  Entry("FindPrevious").trigger();
  EXPECT_EQ(Says("FindResult"), std::to_string(places - 1) + " из " + std::to_string(places));
  Type(Edit("FindText"), "zzz");
  EXPECT_EQ(Says("FindResult"), "Не найдено");
  EXPECT_TRUE(Marked().empty());
}

TEST_F(HelpWindowOnScreen, EscapeEndsTheFindingThenTheWindow) {
  Entry("Find").trigger();
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Find<QWidget>(Window, "FindBar").isVisible());
  EXPECT_TRUE(Window.isVisible());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Window.isVisible());
}

TEST_F(HelpWindowOnScreen, ZoomsWithinBounds) {
  const double usual = Page().font().pointSizeF();
  Entry("ZoomIn").trigger();
  EXPECT_GT(Page().font().pointSizeF(), usual);
  Entry("ZoomOut").trigger();
  EXPECT_EQ(Page().font().pointSizeF(), usual);
  for (int step = 0; step < 50; ++step) {
    Entry("ZoomOut").trigger();
  }
  EXPECT_GT(Page().font().pointSizeF(), 0);
  EXPECT_LT(Page().font().pointSizeF(), usual);
  Entry("ZoomUsual").trigger();
  EXPECT_EQ(Page().font().pointSizeF(), usual);
}

TEST_F(HelpWindowOnScreen, IsReadableInADarkTheme) {
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(30, 30, 30));
  dark.setColor(QPalette::Text, Qt::white);
  Page().setPalette(dark);
  SearchFor("ферма");
  ClickLine("Hits", 0);
  for (const QTextEdit::ExtraSelection& mark : Page().extraSelections()) {
    EXPECT_LT(mark.format.foreground().color().lightness(), 64);
    EXPECT_GT(mark.format.background().color().lightness(), 128);
  }
  // A page gives no colour of its own to its letters, but to the heads with their background.
  for (QTextBlock block = Page().document()->begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      const QTextCharFormat format = piece.fragment().charFormat();
      EXPECT_TRUE(format.isAnchor() || !format.hasProperty(QTextFormat::ForegroundBrush) ||
                  format.foreground().color() == QColor(Qt::white))
          << FromQt(piece.fragment().text());
    }
  }
}

TEST_F(HelpWindowOnScreen, NamesWhatCanHaveTheFocus) {
  Entry("Find").trigger();
  for (int side = 0; side < 3; ++side) {
    GoToSide(side);
    ExpectEveryInputHasAName(Window);
  }
}

// Words ----------------------------------------------------------------------------------------

TEST(HelpWords, AreFoundInAnyCaseAndWithEitherLetter) {
  const auto found = [](const char* text, const QStringList& words) {
    return FindWords(QString::fromUtf8(text), words);
  };
  EXPECT_EQ(found("Расчет и РАСЧЁТ", {"расчёт"}), (std::vector<HelpSpan>{{0, 6}, {9, 6}}));
  EXPECT_EQ(found("узелов", {"узел", "лов"}), (std::vector<HelpSpan>{{0, 6}}));
  EXPECT_EQ(found("узел лов", {"лов", "узел"}), (std::vector<HelpSpan>{{0, 4}, {5, 3}}));
  EXPECT_EQ(found("aaaa", {"aa"}), (std::vector<HelpSpan>{{0, 2}, {2, 2}}));
  EXPECT_EQ(found("a\u00A0b", {"a b"}), (std::vector<HelpSpan>{{0, 3}}));
  EXPECT_TRUE(found("text", {""}).empty());
  EXPECT_TRUE(found("", {"a"}).empty());
}

TEST(HelpWords, InQuotationMarksBelongTogether) {
  EXPECT_EQ(SearchWords("шаг ферм"), (QStringList{"шаг", "ферм"}));
  EXPECT_EQ(SearchWords("\"шаг  ферм\" вес"), (QStringList{"шаг ферм", "вес"}));
  EXPECT_EQ(SearchWords("«шаг ферм»"), QStringList{"шаг ферм"});
  EXPECT_EQ(SearchWords("  \" "), QStringList());
}

TEST(HelpPagesSearch, WantsEveryWord) {
  const HelpPages pages;
  const auto both = pages.Search({"раскос", "консольн"});
  ASSERT_FALSE(both.empty());
  EXPECT_LT(both.size(), pages.Search({"раскос"}).size());
  EXPECT_TRUE(pages.Search({"раскос", "абракадабра"}).empty());
}

TEST(HelpPagesSearch, PutsAWordOfTheTitleFirst) {
  const std::vector<HelpHit> hits = HelpPages().Search({"каталог"});
  ASSERT_GT(hits.size(), 2U);
  EXPECT_EQ(hits[0].Page, "catalogue.html");
}

TEST(HelpViewerOpens, OneWindowForAllPlaces) {
  HelpViewer viewer;
  EXPECT_EQ(viewer.Window(), nullptr);
  viewer.OpenPlace("steel");
  HelpWindow* window = viewer.Window();
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->isVisible());
  auto& page = Find<QTextBrowser>(*window, "Page");
  EXPECT_EQ(HelpPages::PageAt(page.source()), "steel.html");
  window->close();
  viewer.Open();
  EXPECT_EQ(viewer.Window(), window);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(HelpPages::PageAt(page.source()), "index.html");
  viewer.OpenPlace("no such place");
  EXPECT_EQ(HelpPages::PageAt(page.source()), "index.html");
}

}  // namespace
}  // namespace trelonit::test

// The calculation report in its window, made by the whole program.

#include <QListWidget>
#include <QTextBlock>

#include "tests/windows/Modal.h"
#include "tests/windows/editor/OtchetScreen.h"

namespace trelonit::test {
namespace {

class ReportWindowOnScreen : public ::testing::Test {
 protected:
  /// Chooses a menu entry or presses a button of the main window, which shows the report until the
  /// user has acted and the window is closed.
  void Show(const std::function<void()>& command, std::function<void()> user) {
    act_ = std::move(user);
    command();
  }
  void Trigger(const std::string& name) { screen.Trigger(name); }
  Texts Said() {
    Texts texts;
    for (const Message& message : std::exchange(screen.Outside.Messages.Shown, {})) {
      texts.push_back(message.Text);
    }
    return texts;
  }
  std::string ReportText() {
    std::string text;
    screen.Root.Main().MakeReport([&](const ReportPiece& piece) { text += piece.Text(); });
    return text;
  }
  /// The widget's text with the line ends of the report.
  std::string ShownText() {
    return FromQt(Find<QTextEdit>(*document, "RTF").toPlainText().replace("\n", "\r\n"));
  }
  void Answer(MessageAnswer answer) { screen.Outside.Messages.Answers.push_back(answer); }

  QtRichTextBox* box = nullptr;
  frmOtchetMain* form = nullptr;
  std::unique_ptr<OtchetWindow> document;
  ScriptedCommonDialogs dialogs;
  ProgramWith screen{
      {.ShowOtchet =
           [this](frmOtchetMain& shown) {
             form = &shown;
             document = std::make_unique<OtchetWindow>(shown, *box, screen.Window.get());
             {
               const OnceModal<OtchetWindow> user([this](OtchetWindow&) { act_(); });
               document->ShowModal();
             }
             document.reset();
           },
       .ShowFind = [this](frmFind& find) { document->ShowFind(find); },
       .ShowDate = [this](frmDate& date) { DateWindow(date, document.get()).exec(); },
       .MakeRichText =
           [this] {
             auto made = std::make_unique<QtRichTextBox>();
             box = made.get();
             return made;
           },
       .Dialogs = &dialogs,
       .EndProgram = [] {}}};

 private:
  std::function<void()> act_;
};

TEST_F(ReportWindowOnScreen, ShowsExactlyTheTextOfTheReport) {
  ASSERT_TRUE(screen.Window->findChild<QAction*>("mnuOtchet")->isEnabled());
  bool shown = false;
  Show([this] { Trigger("mnuOtchet"); },
       [&] {
         shown = document->isVisible();
         EXPECT_EQ(QApplication::activeModalWidget(), document.get());
         EXPECT_EQ(FromQt(document->windowTitle()), "Vestra");
         EXPECT_GT(ReportText().size(), 1000U);
         EXPECT_TRUE(ShownText() == ReportText());
         EXPECT_TRUE(box->Text() == ReportText());
         EXPECT_EQ(Find<QTextEdit>(*document, "RTF").textCursor().position(), 0);
         EXPECT_EQ(FromQt(Find<QLabel>(*document, "SB2").text()), "Строка 1, столбец 1");
         Answer(MessageAnswer::No);
         document->close();
       });
  EXPECT_TRUE(shown);
  EXPECT_EQ(Said(), Texts{OtchetScreen::saveQuestion});
  EXPECT_TRUE(screen.Window->isVisible());
}

TEST_F(ReportWindowOnScreen, OpensByTheButtonToo) {
  screen.GoTo(2);
  bool shown = false;
  Show([this] { screen.Press("cmdShowResults"); },
       [&] {
         shown = true;
         Answer(MessageAnswer::No);
         document->close();
       });
  EXPECT_TRUE(shown);
}

TEST_F(ReportWindowOnScreen, LooksLikeADocument) {
  Show([this] { Trigger("mnuOtchet"); },
       [this] {
         int bold = 0;
         const QTextDocument& text = *Find<QTextEdit>(*document, "RTF").document();
         for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
           for (auto part = block.begin(); !part.atEnd(); ++part) {
             bold += part.fragment().charFormat().font().bold() ? 1 : 0;
           }
         }
         EXPECT_GT(bold, 0);
         EXPECT_LT(bold, text.blockCount());
         Answer(MessageAnswer::No);
         document->close();
       });
}

TEST_F(ReportWindowOnScreen, ClosesOnlyWhenTheQuestionIsAnswered) {
  dialogs.ToSave = {{"/home/report", richTextKind}};
  Show([this] { Trigger("mnuOtchet"); },
       [this] {
         Answer(MessageAnswer::Cancel);
         EXPECT_FALSE(document->close());
         EXPECT_TRUE(document->isVisible());
         Answer(MessageAnswer::Yes);
         EXPECT_TRUE(document->close());
       });
  EXPECT_EQ(Said(), (Texts{OtchetScreen::saveQuestion, OtchetScreen::saveQuestion}));
  EXPECT_EQ(dialogs.Saved, (std::vector<FileChoice>{{{}, richTextKind}}));
  EXPECT_EQ(screen.Outside.Files.Content["/home/report.rtf"].substr(0, 6), "{\\rtf1");
}

TEST_F(ReportWindowOnScreen, BeginsAfreshWithEachReport) {
  std::string first;
  Show([this] { Trigger("mnuOtchet"); },
       [&] {
         QTest::keyClick(&Find<QTextEdit>(*document, "RTF"), Qt::Key_X);
         EXPECT_TRUE(ShownText() == "x" + ReportText());
         first = ReportText();
         Answer(MessageAnswer::No);
         document->close();
       });
  Show([this] { Trigger("mnuOtchet"); },
       [&] {
         EXPECT_TRUE(ShownText() == first);
         Answer(MessageAnswer::No);
         document->close();
       });
  EXPECT_FALSE(first.empty());
}

TEST_F(ReportWindowOnScreen, IsUndonePieceByPiece) {
  Show([this] { Trigger("mnuOtchet"); },
       [this] {
         const std::string whole = ReportText();
         std::string last;
         screen.Root.Main().MakeReport([&](const ReportPiece& piece) { last = piece.Text(); });
         document->findChild<QAction*>("mnuEdit0")->trigger();
         EXPECT_TRUE(ShownText() == whole.substr(0, whole.size() - last.size()));
         document->findChild<QAction*>("mnuEdit1")->trigger();
         EXPECT_TRUE(ShownText() == whole);
         Answer(MessageAnswer::No);
         document->close();
       });
}

TEST_F(ReportWindowOnScreen, IsSearchedAndStampedWithTheDate) {
  Show([this] { Trigger("mnuOtchet"); },
       [this] {
         document->findChild<QAction*>("mnuEdit12")->trigger();
         Type(*Find<QComboBox>(*document, "cboFind").lineEdit(), "фермы");
         Click(Find<QPushButton>(*document, "cmdFindNext"));
         EXPECT_EQ(FromQt(Find<QTextEdit>(*document, "RTF").textCursor().selectedText()), "фермы");
         box->SetSelStart(0);
         const OnceModal<QDialog> once([](QDialog& window) {
           QTest::keyClick(&Find<QListWidget>(window, "List1"), Qt::Key_Down);
           QTest::keyClick(&window, Qt::Key_Return);
         });
         document->findChild<QAction*>("mnuEdit11")->trigger();
         EXPECT_TRUE(once.Acted());
         EXPECT_TRUE(ShownText() == "02/01/26\r\n" + ReportText());
         Answer(MessageAnswer::No);
         document->close();
       });
}

TEST_F(ReportWindowOnScreen, StaysAsItIsWhereABadFileIsOpened) {
  screen.Outside.Files.Content["/home/bad.rtf"] = "{\\rtf";
  dialogs.ToOpen = {{"/home/bad.rtf", richTextKind}, {"/home/none.txt", plainTextKind}};
  Show([this] { Trigger("mnuOtchet"); },
       [this] {
         for (int file = 0; file < 2; ++file) {
           Answer(MessageAnswer::No);  // the report is not saved
           Answer(MessageAnswer::No);  // a damaged file is not opened
           document->findChild<QAction*>("mnuFileOpen")->trigger();
           screen.Outside.Messages.Answers.clear();
           EXPECT_EQ(Said().size(), 2U);
           EXPECT_TRUE(ShownText() == ReportText());
           EXPECT_EQ(FromQt(document->windowTitle()), "Vestra");
         }
         Answer(MessageAnswer::No);
         document->close();
       });
}

TEST_F(ReportWindowOnScreen, IsNotThereWhereADocumentIsOpened) {
  const std::string name = WholeName("home/a.txt");
  screen.Outside.Files.Content[name] = "beam";
  std::string text;
  Show([&] { screen.Root.Open(name); },
       [&] {
         Soon([this] { return box->TextLength() > 0; });
         text = ShownText();
         document->close();
       });
  EXPECT_EQ(text, "beam");
  EXPECT_EQ(Said(), Texts());
}

}  // namespace
}  // namespace trelonit::test

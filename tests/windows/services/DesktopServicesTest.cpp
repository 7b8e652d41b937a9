#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include "editor/rtf/RtfReader.h"
#include "platform/errors/RuntimeError.h"
#include "tests/windows/Hands.h"
#include "tests/windows/Modal.h"
#include "windows/help/HelpWindow.h"
#include "windows/services/DesktopServices.h"

namespace trelonit::test {
namespace {

/// Shows the message and lets the action answer it.
MessageAnswer Answer(const Message& message, std::function<void(QMessageBox&)> act) {
  const OnceModal<QMessageBox> once(std::move(act));
  const MessageAnswer answer = DesktopMessages().Show(message);
  EXPECT_TRUE(once.Acted());
  return answer;
}

const Message question{"Переписать файл ?", "Такой файл уже существует! Заменить?",
                       MessageStyle::QuestionYesNo};

TEST(DesktopMessageBox, ShowsTitleTextAndIcon) {
  struct Case {
    MessageStyle Style;
    QMessageBox::Icon Icon;
  };
  for (const Case& shown : {Case{MessageStyle::Plain, QMessageBox::NoIcon},
                            Case{MessageStyle::Critical, QMessageBox::Critical},
                            Case{MessageStyle::Exclamation, QMessageBox::Warning},
                            Case{MessageStyle::Information, QMessageBox::Information}}) {
    const MessageAnswer answer =
        Answer({"Form_Load", "первая\nвторая", shown.Style}, [&](QMessageBox& box) {
          EXPECT_EQ(FromQt(box.windowTitle()), "Form_Load");
          EXPECT_EQ(FromQt(box.text()), "первая\nвторая");
          EXPECT_EQ(box.icon(), shown.Icon);
          EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
          QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        });
    EXPECT_EQ(answer, MessageAnswer::Ok);
  }
}

TEST(DesktopMessageBox, OffersACancelWhereTheQuestionDoes) {
  const Message saving{"", "Save ?", MessageStyle::QuestionYesNoCancel};
  struct Case {
    QMessageBox::StandardButton Button;
    MessageAnswer Answer;
  };
  for (const Case& pressed :
       {Case{QMessageBox::Yes, MessageAnswer::Yes}, Case{QMessageBox::No, MessageAnswer::No},
        Case{QMessageBox::Cancel, MessageAnswer::Cancel}}) {
    EXPECT_EQ(Answer(saving,
                     [&](QMessageBox& box) {
                       QTest::mouseClick(box.button(pressed.Button), Qt::LeftButton);
                     }),
              pressed.Answer);
  }
  EXPECT_EQ(Answer(saving, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
            MessageAnswer::Cancel);
}

TEST(DesktopMessageBox, WithoutATitleHasTheProgramsName) {
  Answer({.Text = "x"}, [](QMessageBox& box) { EXPECT_EQ(FromQt(box.windowTitle()), "Трелонит"); });
}

TEST(DesktopMessageBox, TakesNoTextForRichText) {
  Answer({"t", "<b>a</b> & <img src='x'>", MessageStyle::Critical}, [](QMessageBox& box) {
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.text(), "<b>a</b> & <img src='x'>");
  });
}

TEST(DesktopMessageBox, EscapeAndEnterEndAMessage) {
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    EXPECT_EQ(Answer({"t", "x", MessageStyle::Critical},
                     [&](QMessageBox& box) {
                       QTest::keyClick(&box, key);
                       EXPECT_FALSE(box.isVisible());
                     }),
              MessageAnswer::Ok);
  }
}

TEST(DesktopQuestion, TakesYesAndNo) {
  EXPECT_EQ(Answer(question,
                   [](QMessageBox& box) {
                     EXPECT_EQ(box.icon(), QMessageBox::Question);
                     EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
                     QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
                   }),
            MessageAnswer::Yes);
  EXPECT_EQ(Answer(question,
                   [](QMessageBox& box) {
                     QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
                   }),
            MessageAnswer::No);
}

TEST(DesktopQuestion, IsNoOnEscapeAndOnClosing) {
  EXPECT_EQ(Answer(question, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
            MessageAnswer::No);
  EXPECT_EQ(Answer(question, [](QMessageBox& box) { box.close(); }), MessageAnswer::No);
}

const FileDialogRequest request{"Укажите имя нового файла сохранения параметров", "tsav",
                                "trelo save files (*.tsav)|*.tsav"};

/// Writes the name and presses Enter.
void Take(QFileDialog& dialog, const QString& name) {
  auto& edit = Find<QLineEdit>(dialog, "fileNameEdit");
  edit.setText(name);
  QTest::keyClick(&edit, Qt::Key_Return);
}

TEST(DesktopFileDialog, OpensInTheFolderThatItIsToldOf) {
  const QTemporaryDir folder;
  const OnceModal<QFileDialog> once([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory(), QDir(folder.path()));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  FileDialogRequest there = request;
  there.Folder = FromQt(folder.path());
  EXPECT_EQ(DesktopDialogs().AskOpenName(there), "");
  EXPECT_TRUE(once.Acted());
}

TEST(DesktopFileDialog, AsksForANameToSave) {
  const QTemporaryDir folder;
  const QString chosen = folder.filePath("ферма.tsav");
  const OnceModal<QFileDialog> once([&](QFileDialog& dialog) {
    EXPECT_EQ(FromQt(dialog.windowTitle()), request.Title);
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog.nameFilters(), QStringList{"trelo save files (*.tsav)"});
    EXPECT_EQ(dialog.defaultSuffix(), "tsav");
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    Take(dialog, chosen);
  });
  EXPECT_EQ(DesktopDialogs().AskSaveName(request), FileFromQt(chosen));
  EXPECT_TRUE(once.Acted());
}

TEST(DesktopFileDialog, DoesNotAskBeforeReplacing) {
  const QTemporaryDir folder;
  const QString chosen = folder.filePath("old.tsav");
  QFile file(chosen);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  const OnceModal<QFileDialog> once([&](QFileDialog& dialog) {
    Take(dialog, chosen);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(DesktopDialogs().AskSaveName(request), FileFromQt(chosen));
}

TEST(DesktopFileDialog, AsksForAFileToOpen) {
  const QTemporaryDir folder;
  const QString chosen = folder.filePath("old.tsav");
  QFile file(chosen);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  const OnceModal<QFileDialog> once([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
    Take(dialog, chosen);
  });
  EXPECT_EQ(DesktopDialogs().AskOpenName(request), FileFromQt(chosen));
}

TEST(DesktopFileDialog, GivesNothingWhenItIsCancelled) {
  const OnceModal<QFileDialog> once([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(DesktopDialogs().AskSaveName(request), "");
  EXPECT_TRUE(once.Acted());
  const OnceModal<QFileDialog> again([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(DesktopDialogs().AskOpenName(request), "");
}

TEST(DesktopClipboardTexts, AreOfferedInEveryForm) {
  DesktopClipboard clipboard;
  EXPECT_EQ(clipboard.RichText(), "");
  const std::string rtf = "{\\rtf1\\ansi\\ansicpg1251 \\b beam}";
  clipboard.SetRichText(rtf, "beam");
  const QMimeData* content = QApplication::clipboard()->mimeData();
  EXPECT_EQ(FromQt(content->text()), "beam");
  EXPECT_EQ(content->data("text/rtf").toStdString(), rtf);
  EXPECT_TRUE(content->html().contains("beam"));
  EXPECT_EQ(clipboard.RichText(), rtf);
  clipboard.SetText("plain");
  EXPECT_EQ(clipboard.RichText(), "");
}

TEST(DesktopClipboardTexts, OfAPageComeAsRichText) {
  auto* page = new QMimeData;
  page->setHtml("<p>one <b>two</b></p>");
  page->setText("one two");
  QApplication::clipboard()->setMimeData(page);
  const RichDocument read = ReadRtf(DesktopClipboard().RichText());
  ASSERT_EQ(read.Paragraphs.size(), 1U);
  ASSERT_EQ(read.Paragraphs[0].Runs.size(), 2U);
  EXPECT_EQ(read.Paragraphs[0].Runs[1].Text, u"two");
  EXPECT_TRUE(read.Paragraphs[0].Runs[1].Format.Bold);
  QApplication::clipboard()->clear();
}

TEST(DesktopClipboardTexts, GoBothWays) {
  DesktopClipboard clipboard;
  clipboard.SetText("балка");
  EXPECT_EQ(FromQt(QApplication::clipboard()->text()), "балка");
  EXPECT_TRUE(clipboard.HasText());
  QApplication::clipboard()->setText("other");
  EXPECT_EQ(clipboard.Text(), "other");
  QApplication::clipboard()->clear();
  // Some systems tell of the change by a message.
  EXPECT_TRUE(QTest::qWaitFor([&] { return !clipboard.HasText(); }));
}

/// A content that counts how often its text is fetched.
class WatchedContent : public QMimeData {
 public:
  explicit WatchedContent(int& fetches) : fetches_(fetches) { setText(QStringLiteral("x")); }

 protected:
  QVariant retrieveData(const QString& form, QMetaType type) const override {
    ++fetches_;
    return QMimeData::retrieveData(form, type);
  }

 private:
  int& fetches_;
};

TEST(DesktopClipboardTexts, AreNotFetchedToTellWhetherThereIsOne) {
  DesktopClipboard clipboard;
  int fetches = 0;
  QApplication::clipboard()->setMimeData(new WatchedContent(fetches));
  fetches = 0;
  EXPECT_TRUE(clipboard.HasText());
  EXPECT_TRUE(clipboard.HasText());
  EXPECT_EQ(fetches, 0);
  QApplication::clipboard()->clear();
}

TEST(DesktopSettingsTexts, AreKeptBySectionAndKey) {
  const QTemporaryDir folder;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
  DesktopSettings settings;
  EXPECT_EQ(settings.Get("Window", "Geometry", "fallback"), "fallback");
  settings.Set("Window", "Geometry", "значение, a;b=c");
  settings.Set("Other", "Geometry", "2");
  EXPECT_EQ(DesktopSettings().Get("Window", "Geometry", ""), "значение, a;b=c");
  EXPECT_EQ(DesktopSettings().Get("Other", "Geometry", ""), "2");
}

/// Elsewhere they are in the system's registry.
bool AreInAFile() {
  return !QSettings().fileName().startsWith(QLatin1Char('\\'));
}

TEST(DesktopSettingsTexts, AreStoredInOneGoOnceTheEventsRun) {
  if (!AreInAFile()) {
    GTEST_SKIP();
  }
  const QTemporaryDir folder;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
  DesktopSettings settings;
  const QString file = QSettings().fileName();
  settings.Set("Window", "Geometry", "1");
  settings.Set("Other", "Geometry", "2");
  // The disk would be waited for each time.
  EXPECT_FALSE(QFile::exists(file));
  QApplication::processEvents();
  const QSettings stored(file, QSettings::IniFormat);
  EXPECT_EQ(stored.value(QStringLiteral("Window/Geometry")), QStringLiteral("1"));
  EXPECT_EQ(stored.value(QStringLiteral("Other/Geometry")), QStringLiteral("2"));
}

TEST(DesktopSettingsTexts, OfAnotherProgramAreSeen) {
  if (!AreInAFile()) {
    GTEST_SKIP();
  }
  const QTemporaryDir folder;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
  DesktopSettings settings;
  settings.Set("Window", "Geometry", "1");
  QApplication::processEvents();
  EXPECT_EQ(settings.Get("Recent", "1", "none"), "none");
  QFile file(QSettings().fileName());
  ASSERT_TRUE(file.open(QIODevice::Append));
  file.write("\n[Recent]\n1=ferma.tsav\n");
  file.close();
  EXPECT_EQ(settings.Get("Recent", "1", "none"), "ferma.tsav");
  settings.Set("Window", "Geometry", "2");
  QApplication::processEvents();
  EXPECT_EQ(settings.Get("Recent", "1", "none"), "ferma.tsav");
  EXPECT_EQ(settings.Get("Window", "Geometry", ""), "2");
}

TEST(DesktopSettingsTexts, AreStoredWhenTheProgramEnds) {
  if (!AreInAFile()) {
    GTEST_SKIP();
  }
  const QTemporaryDir folder;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
  const QString file = QSettings().fileName();
  DesktopSettings().Set("Window", "Geometry", "1");
  EXPECT_TRUE(QFile::exists(file));
}

TEST(DesktopPrograms, ThatAreNotThereRaiseFileNotFound) {
  try {
    HelpViewer help;
    DesktopShell(help).StartProgram("/no/such/program");
    FAIL() << "started";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 53);
  }
}

}  // namespace
}  // namespace trelonit::test

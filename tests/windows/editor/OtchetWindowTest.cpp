// The document window: its place, look and status bar, what comes to it from outside.

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScreen>
#include <QUrl>
#include <QWheelEvent>

#include "tests/windows/editor/OtchetScreen.h"

namespace trelonit::test {
namespace {

class OtchetWindowOnScreen : public ::testing::Test, protected OtchetScreen {
 protected:
  QRect Place() const { return {Window->pos(), Window->size()}; }
  /// Drags the data over the text and lets it go near the upper left corner.
  void Drop(const QMimeData& data) {
    const QPoint place(2, 2);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(Edit().viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(Edit().viewport(), &event);
    EXPECT_TRUE(event.isAccepted());
  }
  void DropFile(const std::string& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(ToQt(path))});
    Drop(data);
  }
};

// Place --------------------------------------------------------------------------------------

TEST_F(OtchetWindowOnScreen, HasItsDefaultPlaceAndLookWithoutSettings) {
  Start();
  // 1000, 1000, 8500 and 6500 twips.
  EXPECT_EQ(Place(), QRect(66, 66, 566, 433));
  EXPECT_EQ(FromQt(Window->windowTitle()), "Vestra");
  EXPECT_FALSE(ToolBar().isVisible());
  EXPECT_TRUE(Window->statusBar()->isVisible());
  EXPECT_EQ(Edit().palette().color(QPalette::Base), QColor(Qt::white));
  EXPECT_EQ(Edit().lineWrapMode(), QTextEdit::WidgetWidth);
  EXPECT_EQ(Box->SelFormat(), CharFormat());
  EXPECT_TRUE(Edit().hasFocus());
  EXPECT_TRUE(Find<QWidget>(*Window, "PicLeft").isVisible());
}

TEST_F(OtchetWindowOnScreen, TakesPlaceAndLookFromTheSettings) {
  Store("MainLeft", "1500");
  Store("MainTop", "750");
  Store("MainWidth", "7500");
  Store("MainHeight", "6000");
  Store("Toolbar", "True");
  Store("Statusbar", "False");
  Store("Wordwrap", "False");
  Store("Backcolor", "65535");
  Store("Fontname", "DejaVu Serif");
  Store("FontSize", "14");
  Store("Bold", "True");
  Start();
  EXPECT_EQ(Place(), QRect(100, 50, 500, 400));
  EXPECT_TRUE(ToolBar().isVisible());
  EXPECT_FALSE(Window->statusBar()->isVisible());
  EXPECT_EQ(Edit().lineWrapMode(), QTextEdit::NoWrap);
  EXPECT_EQ(Edit().palette().color(QPalette::Base), QColor(255, 255, 0));
  EXPECT_TRUE(Entry("mnuViewToolbar").isChecked());
  EXPECT_FALSE(Entry("mnuViewStatusbar").isChecked());
  EXPECT_FALSE(Entry("mnuFormatWordwrap").isChecked());
  Key(Qt::Key_X);
  const QFont font = FirstLook().font();
  EXPECT_EQ(FromQt(font.families().value(0)), "DejaVu Serif");
  EXPECT_EQ(font.pointSizeF(), 14);
  EXPECT_TRUE(font.bold());
}

TEST_F(OtchetWindowOnScreen, ComesBackOntoTheScreen) {
  const QRect room = QGuiApplication::primaryScreen()->availableVirtualGeometry();
  for (const char* far : {"900000", "-900000"}) {
    Store("MainLeft", far);
    Store("MainTop", far);
    Start();
    EXPECT_TRUE(room.contains(Place())) << far;
    EXPECT_EQ(Window->size(), QSize(566, 433)) << far;
  }
  Store("MainWidth", "900000");
  Store("MainHeight", "900000");
  Start();
  // The frame of a window that fills the screen may push it aside.
  EXPECT_EQ(Window->size().boundedTo(room.size()), Window->size());
}

TEST_F(OtchetWindowOnScreen, LeavesItsPlaceInTheSettings) {
  Start();
  Window->move(30, 45);
  Window->resize(520, 400);
  Trigger("mnuFormatWordwrap");
  Settings.Written.clear();
  EXPECT_TRUE(Window->close());
  EXPECT_EQ(Settings.Written, (std::vector<RecordingSettings::Entry>{{"Wordwrap", "False"},
                                                                     {"Statusbar", "True"},
                                                                     {"Toolbar", "False"},
                                                                     {"MainLeft", "450"},
                                                                     {"MainTop", "675"},
                                                                     {"MainWidth", "7800"},
                                                                     {"MainHeight", "6000"}}));
  Start();
  EXPECT_EQ(Place(), QRect(30, 45, 520, 400));
}

TEST_F(OtchetWindowOnScreen, KeepsItsUsualPlaceWhileItIsMaximized) {
  Start();
  Window->move(30, 45);
  Window->resize(520, 400);
  Window->showMaximized();
  ASSERT_TRUE(Soon([this] { return Window->isMaximized(); }));
  EXPECT_TRUE(Window->close());
  EXPECT_EQ(Settings.Get(settingsSection, "MainLeft", ""), "450");
  EXPECT_EQ(Settings.Get(settingsSection, "MainWidth", ""), "7800");
  EXPECT_EQ(Settings.Get(settingsSection, "MainHeight", ""), "6000");
}

TEST_F(OtchetWindowOnScreen, RemembersThatItWasMaximized) {
  Start();
  Window->showMaximized();
  ASSERT_TRUE(Soon([this] { return Window->isMaximized(); }));
  EXPECT_TRUE(Window->close());
  Start();
  EXPECT_TRUE(Window->isMaximized());
  // Its usual place waits behind.
  EXPECT_EQ(Window->normalGeometry().size(), QSize(566, 433));
  Window->showNormal();
  ASSERT_TRUE(Soon([this] { return !Window->isMaximized(); }));
  EXPECT_TRUE(Window->close());
  Start();
  EXPECT_FALSE(Window->isMaximized());
}

TEST_F(OtchetWindowOnScreen, TellsWhyItCannotBeTiedToFiles) {
  WhyNoAssoc = "Программа не установлена.";
  Start();
  EXPECT_FALSE(Entry("mnuFileAssoc").isEnabled());
  EXPECT_EQ(FromQt(Entry("mnuFileAssoc").toolTip()), WhyNoAssoc);
  EXPECT_EQ(FromQt(Entry("mnuFileAssoc").statusTip()), WhyNoAssoc);
  WhyNoAssoc = "";
  Start();
  EXPECT_TRUE(Entry("mnuFileAssoc").isEnabled());
  EXPECT_EQ(FromQt(Entry("mnuFileAssoc").toolTip()), "Какие файлы открывает эта программа");
}

// What the window tells ------------------------------------------------------------------------

TEST_F(OtchetWindowOnScreen, TellsItsStateInTheStatusBar) {
  Start();
  EXPECT_EQ(Panel(1), "File not saved");
  EXPECT_EQ(Panel(2), "Строка 1, столбец 1");
  EXPECT_EQ(Panel(3), "");
  EXPECT_EQ(Panel(4), "0 bytes");
  Enter("ab\r\ncde");
  EXPECT_EQ(Panel(2), "Строка 2, столбец 4");
  EXPECT_EQ(Panel(3), "Изменен");
  Key(Qt::Key_Left);
  EXPECT_EQ(Panel(2), "Строка 2, столбец 3");
  Key(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(Panel(2), "Строка 2, столбец 3");
  Key(Qt::Key_Up);
  EXPECT_EQ(Panel(2), "Строка 1, столбец 3");
  Dialogs.ToSave = {{"/home/a.txt", plainTextKind}};
  Trigger("mnuFileSaveAs");
  EXPECT_EQ(Panel(1), "/home/a.txt");
  EXPECT_EQ(Panel(3), "");
  EXPECT_EQ(Panel(4), "7 bytes");
}

TEST_F(OtchetWindowOnScreen, HasTheTitleOfTheForm) {
  Start();
  Form->Form.SetCaption("отчет 1.rtf");
  EXPECT_EQ(FromQt(Window->windowTitle()), "отчет 1.rtf");
  Trigger("mnuFileNew");
  EXPECT_EQ(FromQt(Window->windowTitle()), "Untitled.txt");
}

TEST_F(OtchetWindowOnScreen, ShowsALongNameWithoutGrowing) {
  Start();
  const QSize before = Window->size();
  const int caretPlace = Find<QLabel>(*Window, "SB2").x();
  Form->SBPanels[frmOtchetMain::messagePanel].SetCaption("/home/<b>" + std::string(300, 'x'));
  QTest::qWait(20);
  EXPECT_EQ(Window->size(), before);
  EXPECT_EQ(Find<QLabel>(*Window, "SB2").x(), caretPlace);
  EXPECT_EQ(Find<QLabel>(*Window, "SB1").textFormat(), Qt::PlainText);
}

// What comes from outside ------------------------------------------------------------------------

TEST_F(OtchetWindowOnScreen, OpensTheFileOfTheCommandLineOnce) {
  const std::string name = WholeName("home/a.txt");
  Outside.Files.Content[name] = "one\r\ntwo";
  Start("\"" + name + "\"");
  ASSERT_TRUE(Soon([this] { return Box->TextLength() > 0; }));
  EXPECT_EQ(FromQt(Edit().toPlainText()), "one\ntwo");
  EXPECT_EQ(FromQt(Window->windowTitle()), "a.txt");
  EXPECT_EQ(Panel(1), name);
  EXPECT_EQ(Panel(3), "");
  Trigger("mnuFileNew");
  Window->hide();
  ShowActive(*Window);
  QTest::qWait(50);
  EXPECT_EQ(Box->Text(), "");
}

TEST_F(OtchetWindowOnScreen, TellsThatTheFileOfTheCommandLineIsMissing) {
  Start("/home/none.txt");
  ASSERT_TRUE(Soon([this] { return !Outside.Messages.Shown.empty(); }));
  EXPECT_EQ(Said(), Texts{" Err # 53 Discription : File not found"});
  EXPECT_EQ(Panel(1), "File not saved");
  EXPECT_EQ(FromQt(Window->windowTitle()), "Vestra");
}

TEST_F(OtchetWindowOnScreen, OpensADroppedFile) {
  const std::string name = WholeName("home/отчет 1.rtf");
  Outside.Files.Content[name] = "{\\rtf1\\ansi \\b beam}";
  Start();
  DropFile(name);
  ASSERT_TRUE(Soon([this] { return Box->TextLength() > 0; }));
  EXPECT_EQ(FromQt(Edit().toPlainText()), "beam");
  EXPECT_EQ(FromQt(Window->windowTitle()), "отчет 1.rtf");
}

TEST_F(OtchetWindowOnScreen, AsksBeforeADroppedFileTakesTheTextsPlace) {
  const std::string name = WholeName("home/a.txt");
  Outside.Files.Content[name] = "new";
  Start();
  Enter("old");
  Answer(MessageAnswer::Cancel);
  DropFile(name);
  ASSERT_TRUE(Soon([this] { return !Outside.Messages.Shown.empty(); }));
  EXPECT_EQ(Said(), Texts{saveQuestion});
  EXPECT_EQ(FromQt(Edit().toPlainText()), "old");
  Answer(MessageAnswer::No);
  DropFile(name);
  ASSERT_TRUE(Soon([this] { return Box->Text() == "new"; }));
}

TEST_F(OtchetWindowOnScreen, LeavesTheTextAloneWhereADroppedFileIsBad) {
  const std::string name = WholeName("home/bad.rtf");
  Outside.Files.Content[name] = "no rich text";
  Start();
  Enter("old");
  Answer(MessageAnswer::No);
  DropFile(name);
  ASSERT_TRUE(Soon([this] { return Outside.Messages.Shown.size() == 2; }));
  EXPECT_EQ(Said()[1], "Файл не содержит текста в формате RTF.\n" + name);
  EXPECT_EQ(FromQt(Edit().toPlainText()), "old");
  EXPECT_EQ(FromQt(Window->windowTitle()), "Vestra");
  EXPECT_EQ(Panel(1), "File not saved");
  EXPECT_EQ(Panel(3), "Изменен");
  Trigger("mnuEdit0");
  EXPECT_EQ(Box->Text(), "");
}

TEST_F(OtchetWindowOnScreen, TakesADroppedTextAsOneStep) {
  Start();
  Enter("cd");
  QMimeData data;
  data.setText("ab");
  Drop(data);
  EXPECT_EQ(Box->Text(), "abcd");
  Trigger("mnuEdit0");
  EXPECT_EQ(Box->Text(), "cd");
}

TEST_F(OtchetWindowOnScreen, TakesTextOfAnInputMethodAsOneStep) {
  Start();
  QInputMethodEvent unfinished(QStringLiteral("ба"), {});
  QApplication::sendEvent(&Edit(), &unfinished);
  EXPECT_EQ(Box->Text(), "");
  QInputMethodEvent finished;
  finished.setCommitString(QStringLiteral("балка"));
  QApplication::sendEvent(&Edit(), &finished);
  EXPECT_EQ(Box->Text(), "балка");
  EXPECT_EQ(Form->Undo.UndoCount(), 1);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Box->Text(), "");
}

TEST_F(OtchetWindowOnScreen, OffersTheEditMenuOnTheText) {
  Start();
  Enter("abc");
  QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5), Edit().mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(Edit().viewport(), &asked);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->actions().front(), &Entry("mnuEdit0"));
  EXPECT_EQ(menu->actions().back(), &Entry("mnuEdit12"));
  menu->setActiveAction(&Entry("mnuEdit8"));
  QTest::keyClick(menu, Qt::Key_Return);
  EXPECT_EQ(ShownSelection(), "abc");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(OtchetWindowOnScreen, AllowsPastingWhileTheClipboardHoldsText) {
  Start();
  const auto soon = [this](bool enabled) {
    return Soon([&] { return Entry("mnuEdit5").isEnabled() == enabled; });
  };
  EXPECT_FALSE(Entry("mnuEdit5").isEnabled());
  Outside.Clipboard.SetText("x");
  EXPECT_TRUE(soon(true));
  Outside.Clipboard.SetText("");
  EXPECT_TRUE(soon(false));
}

// Zoom -----------------------------------------------------------------------------------------

TEST_F(OtchetWindowOnScreen, ShowsItsTextLargerAndSmaller) {
  Start();
  Enter("ab\r\ncd");
  Box->Select(1, 3);
  const double usual = FirstLook().fontPointSize();
  Trigger("ZoomIn");
  Trigger("ZoomIn");
  EXPECT_NEAR(FirstLook().fontPointSize(), 1.21 * usual, 1e-6);
  EXPECT_EQ(FromQt(Find<QLabel>(*Window, "Zoom").text()), "121 %");
  EXPECT_TRUE(Find<QLabel>(*Window, "Zoom").isVisible());
  EXPECT_EQ(Selection(), (TextSpan{1, 3}));
  EXPECT_EQ(ShownSelection(), "b\n");
  // What is put in now is as large, and the document knows nothing of it.
  Key(Qt::Key_X);
  EXPECT_EQ(FromQt(Edit().toPlainText()), "axcd");
  EXPECT_NEAR(FirstLook().fontPointSize(), 1.21 * usual, 1e-6);
  EXPECT_EQ(Box->SelFormat(), CharFormat());
  EXPECT_EQ(Box->TextRTF().find("fs22"), std::string::npos);
  Trigger("ZoomUsual");
  EXPECT_NEAR(FirstLook().fontPointSize(), usual, 1e-6);
  EXPECT_FALSE(Find<QLabel>(*Window, "Zoom").isVisible());
  Trigger("ZoomOut");
  EXPECT_NEAR(FirstLook().fontPointSize(), usual / 1.1, 1e-6);
  for (int turn = 0; turn < 40; ++turn) {
    Trigger("ZoomOut");
  }
  EXPECT_GT(FirstLook().fontPointSize(), usual / 2);
}

TEST_F(OtchetWindowOnScreen, ZoomsByTheWheelWithCtrl) {
  Start();
  Enter("ab");
  const double usual = FirstLook().fontPointSize();
  const auto turn = [&](int units, Qt::KeyboardModifiers modifiers) {
    QWidget* target = Edit().viewport();
    QWheelEvent event(QPointF(5, 5), target->mapToGlobal(QPointF(5, 5)), {}, {0, units},
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
  };
  turn(120, Qt::NoModifier);
  EXPECT_EQ(FirstLook().fontPointSize(), usual);
  turn(60, Qt::ControlModifier);
  EXPECT_EQ(FirstLook().fontPointSize(), usual);
  turn(60, Qt::ControlModifier);
  EXPECT_NEAR(FirstLook().fontPointSize(), 1.1 * usual, 1e-6);
  turn(-120, Qt::ControlModifier);
  EXPECT_NEAR(FirstLook().fontPointSize(), usual, 1e-6);
}

TEST_F(OtchetWindowOnScreen, HasTheUsualKeysForZoom) {
  Start();
  EXPECT_EQ(Entry("ZoomIn").shortcut(), QKeySequence("Ctrl++"));
  EXPECT_EQ(Entry("ZoomOut").shortcut(), QKeySequence("Ctrl+-"));
  EXPECT_EQ(Entry("ZoomUsual").shortcut(), QKeySequence("Ctrl+0"));
}

}  // namespace
}  // namespace trelonit::test

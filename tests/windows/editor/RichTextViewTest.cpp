#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QUrl>
#include <QVBoxLayout>

#include "editor/undo/clsUndo.h"
#include "platform/console/ConsoleServices.h"
#include "tests/windows/Hands.h"
#include "windows/editor/QtRichTextBox.h"
#include "windows/editor/RichTextView.h"

namespace trelonit::test {
namespace {

struct SeenKey {
  Integer Key;
  Integer Shift;
  friend bool operator==(const SeenKey&, const SeenKey&) = default;
};

/// A box in a window, wired as the document window wires it.
class BoxKeys : public ::testing::Test {
 protected:
  BoxKeys() {
    auto* layout = new QVBoxLayout(&window_);
    layout->addWidget(&before_);
    layout->addWidget(&widget_);
    layout->addWidget(&after_);
    window_.resize(400, 300);
    window_.show();
    QApplication::setActiveWindow(&window_);
    widget_.setFocus();
    undo_.SetRichBox(&box_);
    undo_.SetRichEditing(true);
    box_.Change = [this] { undo_.RichBox_Change(); };
    box_.KeyDown = [this](Integer& key, Integer shift) {
      seen_.push_back({key, shift});
      undo_.RichBox_KeyDown(key, shift);
    };
    box_.TextCommitted = [this](const std::string& text) {
      ++committed_;
      undo_.InsertText(text);
    };
    box_.FileDropped = [this](const std::string& path) { files_.push_back(path); };
  }
  ~BoxKeys() override {
    // The widgets are members of their own.
    before_.setParent(nullptr);
    after_.setParent(nullptr);
  }

  void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&widget_, static_cast<Qt::Key>(key), modifiers);
  }
  /// A key with the text that a layout gives it.
  void PressWithText(int key, const std::string& text, Qt::KeyboardModifiers modifiers = {}) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, ToQt(text));
    QApplication::sendEvent(&widget_, &event);
  }
  void SendInputMethod(const std::string& preedit, const std::string& commit) {
    QInputMethodEvent event(ToQt(preedit), {});
    event.setCommitString(ToQt(commit));
    QApplication::sendEvent(&widget_, &event);
  }
  void Drop(const QMimeData& data, const QPointF& place = {5, 5}) {
    QDragEnterEvent enter(place.toPoint(), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          {});
    QApplication::sendEvent(widget_.viewport(), &enter);
    QDropEvent event(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(widget_.viewport(), &event);
    dropTaken_ = event.isAccepted();
    dropAction_ = event.dropAction();
  }
  void UndoAll() {
    while (undo_.canUndo()) {
      undo_.Undo();
    }
  }
  bool OverrideTaken(int key, Qt::KeyboardModifiers modifiers, const std::string& text = {}) {
    QKeyEvent event(QEvent::ShortcutOverride, key, modifiers, ToQt(text));
    event.ignore();
    QApplication::sendEvent(&widget_, &event);
    return event.isAccepted();
  }

  QtRichTextBox box_;
  QTextEdit& widget_ = *box_.Widget();
  QLineEdit before_;
  QLineEdit after_;
  QWidget window_;
  MemoryClipboard clipboard_;
  clsUndo undo_{clipboard_};
  std::vector<SeenKey> seen_;
  std::vector<std::string> files_;
  int committed_ = 0;
  bool dropTaken_ = false;
  Qt::DropAction dropAction_ = Qt::IgnoreAction;
};

TEST_F(BoxKeys, TypeWhatTheyTypeAndTellTheirCodes) {
  QTest::keyClicks(&widget_, QStringLiteral("a"));
  PressWithText(Qt::Key_B, "B", Qt::ShiftModifier);
  QTest::keyClicks(&widget_, QStringLiteral(" 1;"));
  EXPECT_EQ(box_.Text(), "aB 1;");
  EXPECT_EQ(seen_, (std::vector<SeenKey>{{'A', 0}, {'B', 1}, {32, 0}, {'1', 0}, {186, 0}}));
  EXPECT_EQ(undo_.UndoCount(), 5);
  UndoAll();
  EXPECT_EQ(box_.Text(), "");
}

TEST_F(BoxKeys, TypeRussianLettersByTheCodesOfTheirKeys) {
  PressWithText(0x0424, "ф");
  PressWithText(0x0411, "Б", Qt::ShiftModifier);
  EXPECT_EQ(box_.Text(), "фБ");
  EXPECT_EQ(seen_, (std::vector<SeenKey>{{'A', 0}, {188, 1}}));
  undo_.Undo();
  EXPECT_EQ(box_.Text(), "ф");
}

TEST_F(BoxKeys, MakeTheSameParagraphByEveryReturn) {
  Press(Qt::Key_Return);
  Press(Qt::Key_Return, Qt::ShiftModifier);
  Press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(box_.Text(), "\r\n\r\n\r\n");
  EXPECT_EQ(widget_.document()->blockCount(), 4);
  EXPECT_EQ(undo_.UndoCount(), 3);
  UndoAll();
  EXPECT_EQ(box_.Text(), "");
}

TEST_F(BoxKeys, PutInATabAndRecordItsLine) {
  box_.SetText("ab\r\ncd");
  box_.SetSelStart(5);
  Press(Qt::Key_Tab);
  EXPECT_EQ(box_.Text(), "ab\r\nc\td");
  EXPECT_TRUE(widget_.hasFocus());
  EXPECT_FALSE(undo_.ChangePending());
  undo_.Undo();
  EXPECT_EQ(box_.Text(), "ab\r\ncd");
  EXPECT_EQ(box_.SelStart(), 5);
  undo_.Redo();
  EXPECT_EQ(box_.Text(), "ab\r\nc\td");
}

TEST_F(BoxKeys, LeaveTheBoxByShiftTabAndByControlTab) {
  const auto leavesTo = [&](int key, Qt::KeyboardModifiers modifiers, QWidget& other) {
    widget_.setFocus();
    Press(key, modifiers);
    return QApplication::focusWidget() == &other;
  };
  EXPECT_TRUE(leavesTo(Qt::Key_Backtab, Qt::ShiftModifier, before_));
  EXPECT_TRUE(leavesTo(Qt::Key_Tab, Qt::ControlModifier, after_));
  EXPECT_TRUE(leavesTo(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, before_));
  EXPECT_EQ(box_.Text(), "");
}

TEST_F(BoxKeys, RemoveByDeleteAndBack) {
  box_.SetText("ab\r\nc");
  box_.SetSelStart(2);
  Press(Qt::Key_Delete);
  EXPECT_EQ(box_.Text(), "abc");
  Press(Qt::Key_Backspace);
  EXPECT_EQ(box_.Text(), "ac");
  UndoAll();
  EXPECT_EQ(box_.Text(), "ab\r\nc");
}

TEST_F(BoxKeys, RemoveWithoutAReceiverToo) {
  box_.KeyDown = nullptr;
  box_.SetText("a\U0001F600b\r\nc");
  box_.SetSelStart(3);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(box_.Text(), "ab\r\nc");
  box_.SetSelStart(2);
  Press(Qt::Key_Delete);
  EXPECT_EQ(box_.Text(), "abc");
  box_.SetSelStart(0);
  Press(Qt::Key_Backspace);
  box_.SetSelStart(3);
  Press(Qt::Key_Delete);
  EXPECT_EQ(box_.Text(), "abc");
  box_.Select(0, 2);
  Press(Qt::Key_Delete);
  EXPECT_EQ(box_.Text(), "c");
}

TEST_F(BoxKeys, MoveTheCaretAndSelect) {
  box_.SetText("ab\r\ncd");
  Press(Qt::Key_End);
  EXPECT_EQ(box_.SelStart(), 2);
  Press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(box_.SelText(), "\r\n");
  Press(Qt::Key_Down);
  Press(Qt::Key_Home);
  EXPECT_EQ(box_.SelStart(), 4);
  EXPECT_EQ(undo_.UndoCount(), 0);
}

TEST_F(BoxKeys, DoWhatTheEditingTableTells) {
  box_.SetText("ab\r\ncd");
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(box_.SelLength(), 6);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard_.Text(), "ab\r\ncd");
  Press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(box_.Text(), "");
  Press(Qt::Key_V, Qt::ControlModifier);
  Press(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(box_.Text(), "ab\r\ncdab\r\ncd");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box_.Text(), "ab\r\ncd");
  Press(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(box_.Text(), "ab\r\ncdab\r\ncd");
  box_.SetSelStart(4);
  Press(Qt::Key_T, Qt::ControlModifier);
  EXPECT_EQ(box_.SelText(), "ab\r\n");
  box_.SetSelStart(4);
  Press(Qt::Key_B, Qt::ControlModifier);
  EXPECT_EQ(box_.SelText(), "cdab\r\ncd");
}

TEST_F(BoxKeys, ChangeNothingInOtherCombinations) {
  box_.SetText("ab");
  box_.SetSelStart(1);
  for (const int key : {Qt::Key_K, Qt::Key_Y, Qt::Key_H, Qt::Key_Backspace, Qt::Key_Return}) {
    Press(key, Qt::ControlModifier);
  }
  PressWithText(Qt::Key_X, "x", Qt::AltModifier);
  PressWithText(Qt::Key_Escape, "\x1b");
  Press(Qt::Key_F5);
  EXPECT_EQ(box_.Text(), "ab");
  EXPECT_EQ(undo_.UndoCount(), 0);
}

TEST_F(BoxKeys, RecordWhatNoKeyCodeStandsForByItsText) {
  PressWithText(0x1234, "ї");
  PressWithText(Qt::Key_A, "\U0001F600");
  PressWithText(Qt::Key_B, "bc");
  EXPECT_EQ(box_.Text(), "ї\U0001F600bc");
  EXPECT_EQ(committed_, 3);
  EXPECT_TRUE(seen_.empty());
  UndoAll();
  EXPECT_EQ(box_.Text(), "");
}

TEST_F(BoxKeys, RecordNoDeadKey) {
  PressWithText(Qt::Key_Apostrophe, "");
  EXPECT_EQ(undo_.UndoCount(), 0);
  EXPECT_EQ(box_.Text(), "");
}

TEST_F(BoxKeys, AreTakenBeforeShortcutsWhereTheyEdit) {
  for (const int key : {Qt::Key_Z, Qt::Key_R, Qt::Key_X, Qt::Key_V, Qt::Key_C, Qt::Key_A, Qt::Key_T,
                        Qt::Key_B, Qt::Key_Delete}) {
    EXPECT_TRUE(OverrideTaken(key, Qt::ControlModifier)) << key;
  }
  EXPECT_TRUE(OverrideTaken(Qt::Key_E, {}, "e"));
  EXPECT_TRUE(OverrideTaken(Qt::Key_Home, {}));
  EXPECT_TRUE(OverrideTaken(Qt::Key_Insert, Qt::ShiftModifier));
  for (const int key : {Qt::Key_S, Qt::Key_F, Qt::Key_N, Qt::Key_K, Qt::Key_Insert}) {
    EXPECT_FALSE(OverrideTaken(key, Qt::ControlModifier)) << key;
  }
  EXPECT_FALSE(OverrideTaken(Qt::Key_F1, {}));
  EXPECT_FALSE(OverrideTaken(Qt::Key_Escape, {}, "\x1b"));
  EXPECT_FALSE(OverrideTaken(Qt::Key_X, Qt::AltModifier, "x"));
}

// Input method, drops, mouse --------------------------------------------------------------------

TEST_F(BoxKeys, CommitTheTextOfAnInputMethodOnce) {
  box_.SetText("ab");
  box_.SetSelStart(1);
  SendInputMethod("ni", "");
  EXPECT_EQ(box_.Text(), "ab");
  EXPECT_EQ(FromQt(widget_.textCursor().block().layout()->preeditAreaText()), "ni");
  const auto put = box_.TextCommitted;
  QString unfinished = QStringLiteral("not asked");
  box_.TextCommitted = [&](const std::string& text) {
    unfinished = widget_.textCursor().block().layout()->preeditAreaText();
    put(text);
  };
  SendInputMethod("", "你好");
  EXPECT_EQ(unfinished, QString());
  EXPECT_EQ(box_.Text(), "a你好b");
  EXPECT_EQ(FromQt(widget_.document()->toPlainText()), "a你好b");
  EXPECT_EQ(widget_.textCursor().block().layout()->preeditAreaText(), QString());
  EXPECT_EQ(undo_.UndoCount(), 1);
  undo_.Undo();
  EXPECT_EQ(box_.Text(), "ab");
}

TEST_F(BoxKeys, RecordTheSelectionThatAnUnfinishedTextReplaces) {
  box_.SetText("abc");
  box_.Select(0, 2);
  SendInputMethod("n", "");
  EXPECT_EQ(box_.Text(), "c");
  EXPECT_EQ(FromQt(widget_.document()->toPlainText()), "c");
  SendInputMethod("", "");
  UndoAll();
  EXPECT_EQ(box_.Text(), "abc");
}

TEST_F(BoxKeys, ReplaceWhatAnInputMethodTells) {
  box_.SetText("a\r\nbcd");
  box_.SetSelStart(5);
  QInputMethodEvent event;
  event.setCommitString(QStringLiteral("X"), -1, 1);
  QApplication::sendEvent(&widget_, &event);
  EXPECT_EQ(box_.Text(), "a\r\nbXd");
  undo_.Undo();
  EXPECT_EQ(box_.Text(), "a\r\nbcd");
}

TEST_F(BoxKeys, TellTheFileThatIsDropped) {
  const std::string name = WholeName("tmp/отчет.rtf");
  QMimeData data;
  data.setUrls({QUrl(QStringLiteral("http://example.org/x")), QUrl::fromLocalFile(ToQt(name))});
  Drop(data);
  EXPECT_TRUE(dropTaken_);
  EXPECT_TRUE(files_.empty());
  QApplication::processEvents();
  EXPECT_EQ(files_, std::vector<std::string>{name});
  EXPECT_EQ(box_.Text(), "");
}

TEST_F(BoxKeys, RecordATextThatIsDropped) {
  box_.SetText("ab");
  QMimeData data;
  data.setText(QStringLiteral("x\ny"));
  data.setHtml(QStringLiteral("<table><tr><td>x<br>y</td></tr></table>"));
  Drop(data, {390, 5});
  EXPECT_TRUE(dropTaken_);
  EXPECT_EQ(dropAction_, Qt::CopyAction);
  EXPECT_EQ(box_.Text(), "abx\r\ny");
  undo_.Undo();
  EXPECT_EQ(box_.Text(), "ab");
}

TEST_F(BoxKeys, RefuseADropWithoutText) {
  QMimeData data;
  data.setData(QStringLiteral("image/png"), "x");
  Drop(data);
  EXPECT_FALSE(dropTaken_);
  EXPECT_EQ(box_.Text(), "");
}

TEST_F(BoxKeys, BeginANewSelectionByAPressOnTheOldOne) {
  box_.SetText("a long line of text");
  box_.Select(0, 12);
  const QPoint within = widget_.cursorRect(QTextCursor(widget_.document())).center() + QPoint(9, 0);
  QTest::mousePress(widget_.viewport(), Qt::LeftButton, {}, within);
  EXPECT_EQ(box_.SelLength(), 0);
  QTest::mouseMove(widget_.viewport(), within + QPoint(300, 0));
  QTest::mouseRelease(widget_.viewport(), Qt::LeftButton, {}, within + QPoint(300, 0));
  EXPECT_EQ(box_.Text(), "a long line of text");
}

TEST_F(BoxKeys, AskForTheContextMenuAndShowNoneOfTheirOwn) {
  std::vector<QPoint> places;
  box_.ContextMenu = [&](const QPoint& place) { places.push_back(place); };
  QContextMenuEvent byMouse(QContextMenuEvent::Mouse, {3, 4}, {30, 40});
  QApplication::sendEvent(widget_.viewport(), &byMouse);
  QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {3, 4}, {30, 40});
  QApplication::sendEvent(widget_.viewport(), &byKey);
  ASSERT_EQ(places.size(), 2u);
  EXPECT_EQ(places[0], QPoint(30, 40));
  EXPECT_EQ(places[1], widget_.viewport()->mapToGlobal(widget_.cursorRect().bottomLeft()));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(BoxKeys, RecordWhatTheMiddleButtonBrings) {
  // Where the platform has no such selection, the text comes in by the same door.
  box_.SetText("ab");
  QMimeData data;
  data.setText(QStringLiteral("mid"));
  struct Door : RichTextView {
    using RichTextView::insertFromMimeData;
  };
  (static_cast<RichTextView&>(widget_).*&Door::insertFromMimeData)(&data);
  EXPECT_EQ(box_.Text(), "midab");
  undo_.Undo();
  EXPECT_EQ(box_.Text(), "ab");
}

}  // namespace
}  // namespace trelonit::test

#include <QApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <limits>

#include "tests/editor/document/RichTextBoxContract.h"
#include "tests/windows/Pixels.h"
#include "tests/windows/dialogs/ShownSelection.h"
#include "windows/binding/Binding.h"
#include "windows/editor/FittingScale.h"
#include "windows/editor/QtRichTextBox.h"

namespace trelonit::test {
namespace {

struct QtBoxMaker {
  std::unique_ptr<RichTextBox> Make() { return std::make_unique<QtRichTextBox>(); }
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, RichTextBoxContract, QtBoxMaker);

/// A box that is to be seen.
class QtBox : public ::testing::Test {
 protected:
  QtBox() {
    widget_.resize(400, 200);
    widget_.show();
    box_.SelChange = [this] { ++selections_; };
    box_.Change = [this] { ++changes_; };
  }
  void HoldLines(int count) {
    std::string text;
    for (int line = 0; line < count; ++line) {
      text += "line " + std::to_string(line) + "\r\n";
    }
    box_.SetText(text);
    selections_ = 0;
    changes_ = 0;
  }
  static std::string LongLine() {
    std::string line;
    for (int word = 0; word < 100; ++word) {
      line += "word ";
    }
    return line;
  }

  QtRichTextBox box_;
  QTextEdit& widget_ = *box_.Widget();
  int selections_ = 0;
  int changes_ = 0;
};

/// Of letters that would come to more than the toolkit can lay out: it would never come back.
RichDocument TallDocument(double size) {
  RichDocument document;
  document.Paragraphs.assign(400, {});
  for (RichParagraph& paragraph : document.Paragraphs) {
    paragraph.Runs = {{std::u16string(100, u'x'), {.FontSize = size}}};
  }
  return document;
}

double ShownSize(const QTextEdit& widget) {
  return widget.document()->begin().begin().fragment().charFormat().fontPointSize();
}

TEST_F(QtBox, ShowsATextTooTallForTheLayoutSmaller) {
  box_.SetDocument(TallDocument(814));
  EXPECT_EQ(box_.Document(), TallDocument(814));
  EXPECT_GT(box_.LineCount(), 400);
  EXPECT_LT(ShownSize(widget_), 814);
  EXPECT_GT(ShownSize(widget_), 100);
  box_.SetDocument(TallDocument(10));
  EXPECT_EQ(ShownSize(widget_), 10);
}

TEST_F(QtBox, ShowsATextThatGetsTooTallSmaller) {
  box_.SetDocument(TallDocument(11));
  box_.Select(0, box_.TextLength());
  box_.SetSelFormat({.FontSize = 700});
  EXPECT_EQ(box_.Document(), TallDocument(700));
  EXPECT_LT(ShownSize(widget_), 700);
  EXPECT_EQ(box_.SelLength(), box_.TextLength());
  EXPECT_EQ(widget_.textCursor().selectionEnd() - widget_.textCursor().selectionStart(),
            400 * 101 - 1);
  box_.SetDocument({});
  box_.LockUpdates();
  for (int part = 0; part < 20; ++part) {
    box_.SetSelFormat({.FontSize = 700});
    box_.SetSelText(std::string(2000, 'x'));
  }
  box_.UnlockUpdates();
  EXPECT_EQ(box_.TextLength(), 40000);
  EXPECT_EQ(widget_.document()->characterCount(), 40001);
  EXPECT_LT(ShownSize(widget_), 700);
  EXPECT_EQ(box_.SelStart(), 40000);
  EXPECT_EQ(widget_.textCursor().position(), 40000);
}

TEST_F(QtBox, KeepsItsZoomWhereTheTextIsShownSmaller) {
  box_.SetDocument(TallDocument(100));
  EXPECT_EQ(ShownSize(widget_), 100);
  box_.SetZoom(5);
  EXPECT_EQ(box_.Zoom(), 5);
  EXPECT_LT(ShownSize(widget_), 500);
  box_.SetZoom(1);
  EXPECT_EQ(ShownSize(widget_), 100);
}

TEST(FittingScales, LeaveTextsThatAreReadAsTheyAre) {
  EXPECT_EQ(FittingScale({}), 1);
  // Some hundred pages, five times as large as told.
  RichDocument report;
  report.Paragraphs.assign(8000, {{{std::u16string(60, u'x'), {.FontSize = 9}}}});
  EXPECT_EQ(FittingScale(report, 5), 1);
  // One large heading.
  report.Paragraphs.front().Runs.front().Format.FontSize = 72;
  EXPECT_EQ(FittingScale(report), 1);
}

TEST(FittingScales, EndForLettersOfAnySize) {
  for (const double size : {1e4, 1e9, 1e300, std::numeric_limits<double>::infinity()}) {
    EXPECT_GT(FittingScale(TallDocument(size)), 0);
    EXPECT_LT(FittingScale(TallDocument(size)), 1);
  }
}

TEST_F(QtBox, TakesTheSelectionThatTheUserMakes) {
  box_.SetText("ab\r\ncd\r\nef");
  changes_ = 0;
  QTextCursor cursor = widget_.textCursor();
  cursor.setPosition(7);
  cursor.setPosition(4, QTextCursor::KeepAnchor);
  widget_.setTextCursor(cursor);
  EXPECT_EQ(box_.SelStart(), 5);
  EXPECT_EQ(box_.SelLength(), 4);
  EXPECT_EQ(box_.SelText(), "d\r\ne");
  EXPECT_GE(selections_, 1);
  EXPECT_EQ(changes_, 0);
  // The caret stays on the side where the user has it.
  EXPECT_EQ(widget_.textCursor().position(), 4);
}

TEST_F(QtBox, TellsANewSelectionOnceAndAnOldOneNever) {
  HoldLines(3);
  box_.SetSelStart(4);
  EXPECT_EQ(selections_, 1);
  box_.SetSelStart(4);
  EXPECT_EQ(selections_, 1);
  {
    const UpdateLock lock(box_);
    box_.Select(1, 3);
    box_.SetSelText("x");
    EXPECT_EQ(selections_, 1);
  }
  EXPECT_EQ(selections_, 2);
  EXPECT_EQ(changes_, 1);
}

TEST_F(QtBox, TellsTheUsersSelectionOfHalfAPairAsTheWhole) {
  box_.SetText("a\U0001F600b");
  QTextCursor cursor = widget_.textCursor();
  cursor.setPosition(0);
  cursor.setPosition(2, QTextCursor::KeepAnchor);
  widget_.setTextCursor(cursor);
  EXPECT_EQ(box_.SelText(), "a\U0001F600");
  EXPECT_EQ(widget_.textCursor().selectionEnd(), 3);
}

TEST_F(QtBox, PaintsNothingBetweenLockAndUnlock) {
  HoldLines(2);
  box_.LockUpdates();
  box_.LockUpdates();
  box_.SetSelText("new ");
  EXPECT_FALSE(widget_.updatesEnabled());
  box_.UnlockUpdates();
  EXPECT_FALSE(widget_.updatesEnabled());
  box_.UnlockUpdates();
  EXPECT_TRUE(widget_.updatesEnabled());
  EXPECT_EQ(FromQt(widget_.document()->firstBlock().text()), "new line 0");
  EXPECT_EQ(widget_.textCursor().position(), 4);
}

TEST_F(QtBox, CountsTheLinesThatALongOneWrapsInto) {
  box_.SetText("a\r\n" + LongLine() + "\r\nb");
  const Long wrapped = box_.LineCount();
  EXPECT_GT(wrapped, 8);
  EXPECT_EQ(box_.LineOf(box_.TextLength()), 2);
  box_.SetRightMargin(200000);
  EXPECT_EQ(box_.LineCount(), 3);
  EXPECT_EQ(widget_.lineWrapMode(), QTextEdit::NoWrap);
  box_.SetRightMargin(3000);
  EXPECT_EQ(widget_.lineWrapMode(), QTextEdit::FixedPixelWidth);
  EXPECT_EQ(widget_.lineWrapColumnOrWidth(), 200);
  box_.SetRightMargin(0);
  EXPECT_EQ(box_.LineCount(), wrapped);
}

TEST_F(QtBox, CountsLinesUnderALockToo) {
  const UpdateLock lock(box_);
  box_.SetSelText("a\r\nb\r\nc");
  EXPECT_EQ(box_.LineCount(), 3);
  box_.SetSelText("\r\nd");
  EXPECT_EQ(box_.LineCount(), 4);
}

TEST_F(QtBox, ScrollsToALineAndTellsIt) {
  HoldLines(200);
  EXPECT_EQ(box_.FirstVisibleLine(), 0);
  for (const Long line : {1, 7, 100, 150}) {
    box_.SetFirstVisibleLine(line);
    EXPECT_EQ(box_.FirstVisibleLine(), line);
  }
  box_.SetFirstVisibleLine(0);
  EXPECT_EQ(widget_.verticalScrollBar()->value(), 0);
  box_.SetFirstVisibleLine(100000);
  EXPECT_EQ(widget_.verticalScrollBar()->value(), widget_.verticalScrollBar()->maximum());
}

TEST_F(QtBox, CountsWrappedLinesAboveTheFirstVisibleOne) {
  box_.SetText(LongLine() + "\r\n" + LongLine() + "\r\n" + LongLine());
  const Long each = box_.LineCount() / 3;
  ASSERT_GT(each, 5);
  for (const Long line : {Long{3}, each, each + 2}) {
    box_.SetFirstVisibleLine(line);
    EXPECT_EQ(box_.FirstVisibleLine(), line);
  }
}

TEST_F(QtBox, KeepsTheViewWhenTheSelectionAndTheLineAreSetUnderALock) {
  HoldLines(200);
  box_.SetSelStart(0);
  widget_.verticalScrollBar()->setValue(333);
  {
    const UpdateLock lock(box_);
    const Long line = box_.FirstVisibleLine();
    box_.Select(0, box_.TextLength());
    box_.SetFirstVisibleLine(line);
  }
  EXPECT_EQ(widget_.verticalScrollBar()->value(), 333);
  EXPECT_EQ(ShownSelection(widget_), (TextSpan{0, box_.TextLength()}));
}

TEST_F(QtBox, ScrollsToTheCaretWhenTextGoesIn) {
  HoldLines(200);
  box_.SetSelStart(box_.TextLength());
  widget_.verticalScrollBar()->setValue(0);
  ASSERT_FALSE(widget_.viewport()->rect().contains(widget_.cursorRect()));
  box_.SetSelText("last");
  EXPECT_TRUE(widget_.viewport()->rect().contains(widget_.cursorRect()));
}

TEST_F(QtBox, HoldsCharactersThatQtTakesForMarks) {
  const std::string marks = "a\u2028b\u2029c\uFDD0d\uFDD1e\uFFFCf\uFEFFg";
  box_.SetText(marks);
  EXPECT_EQ(box_.Text(), marks);
  EXPECT_EQ(box_.TextLength(), 13);
  EXPECT_EQ(widget_.document()->blockCount(), 1);
  EXPECT_EQ(FromQt(widget_.document()->firstBlock().text()),
            "a\uFFFDb\uFFFDc\uFFFDd\uFFFDe\uFFFDf\uFEFFg");
  box_.Select(4, 1);
  box_.SetSelText("x");
  EXPECT_EQ(box_.TextLength(), 13);
  EXPECT_EQ(widget_.document()->firstBlock().text().at(4), QLatin1Char('x'));
}

TEST_F(QtBox, DrawsBlackOnItsOwnPaperAndWhiteOnDarkPaper) {
  EXPECT_EQ(widget_.palette().color(QPalette::Base), QColor(Qt::white));
  EXPECT_EQ(widget_.palette().color(QPalette::Text), QColor(Qt::black));
  box_.SetBackColor(0x400000);
  EXPECT_EQ(widget_.palette().color(QPalette::Base), QColor(0, 0, 0x40));
  EXPECT_EQ(widget_.palette().color(QPalette::Text), QColor(Qt::white));
  EXPECT_GT(CountPixels(widget_, QColor(0, 0, 0x40)), 10000);
  box_.SetBackColor(colorWindowBackground);
  EXPECT_EQ(widget_.palette().color(QPalette::Base), QColor(Qt::white));
}

TEST_F(QtBox, KeepsItsPaperWhenTheDesktopTurnsDark) {
  const QPalette before = QApplication::palette();
  QPalette dark = before;
  dark.setColor(QPalette::Base, Qt::darkGray);
  dark.setColor(QPalette::Text, Qt::yellow);
  QApplication::setPalette(dark);
  EXPECT_EQ(widget_.palette().color(QPalette::Base), QColor(Qt::white));
  EXPECT_EQ(widget_.palette().color(QPalette::Text), QColor(Qt::black));
  QApplication::setPalette(before);
}

TEST_F(QtBox, ShowsItsState) {
  box_.SetEnabled(false);
  EXPECT_FALSE(widget_.isEnabled());
  box_.SetEnabled(true);
  EXPECT_TRUE(widget_.isEnabled());
  box_.SetHourglass(true);
  EXPECT_EQ(widget_.viewport()->cursor().shape(), Qt::WaitCursor);
  box_.SetHourglass(false);
  EXPECT_EQ(widget_.viewport()->cursor().shape(), Qt::IBeamCursor);
  box_.SetVisible(false);
  EXPECT_TRUE(widget_.isHidden());
}

TEST_F(QtBox, ShowsFormatsByFontAndColour) {
  box_.SetText("ab");
  CharFormat format{.FontName = "Arial", .FontSize = 14, .TextColor = colorRed};
  format.Underline = true;
  box_.Select(0, 1);
  box_.SetSelFormat(format);
  QTextCursor cursor(widget_.document());
  cursor.setPosition(1);
  EXPECT_EQ(cursor.charFormat().font().pointSizeF(), 14);
  EXPECT_TRUE(cursor.charFormat().fontUnderline());
  EXPECT_EQ(cursor.charFormat().foreground().color(), QColor(Qt::red));
  cursor.setPosition(2);
  EXPECT_EQ(cursor.charFormat().foreground().style(), Qt::NoBrush);
}

TEST(QtRichTextBoxLife, GoesOnWithoutItsWidget) {
  QtRichTextBox box;
  auto window = std::make_unique<QWidget>();
  box.Widget()->setParent(window.get());
  box.SetText("a\r\nb");
  box.LockUpdates();
  box.SetSelText("x");
  window.reset();
  EXPECT_EQ(box.Widget(), nullptr);
  box.UnlockUpdates();
  box.SetSelText("y");
  box.Select(0, 1);
  box.SetSelFormat({});
  box.SetRightMargin(100);
  box.SetEnabled(false);
  box.SetFirstVisibleLine(1);
  EXPECT_EQ(box.FirstVisibleLine(), 1);
  EXPECT_EQ(box.LineCount(), 2);
  EXPECT_EQ(box.Text(), "xya\r\nb");
}

TEST(QtRichTextBoxLife, TakesItsWidgetAlong) {
  QWidget window;
  QPointer<QTextEdit> widget;
  {
    QtRichTextBox box;
    widget = box.Widget();
    widget->setParent(&window);
    box.LockUpdates();
    box.SetSelText("x");
  }
  EXPECT_TRUE(widget.isNull());
}

TEST(QtRichTextBoxLife, HasNoUndoOfItsOwn) {
  QtRichTextBox box;
  EXPECT_FALSE(box.Widget()->isUndoRedoEnabled());
  box.SetText("new document");
  EXPECT_FALSE(box.Widget()->isUndoRedoEnabled());
}

}  // namespace
}  // namespace trelonit::test

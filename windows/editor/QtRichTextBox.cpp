#include "windows/editor/QtRichTextBox.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <utility>

#include "windows/binding/Binding.h"
#include "windows/binding/ShownLines.h"
#include "windows/binding/Units.h"
#include "windows/editor/FittingScale.h"

namespace trelonit {

namespace {

/// Of 255: what is darker needs white letters.
constexpr int middleGrey = 128;

}  // namespace

class QtRichTextBox::Own {
 public:
  explicit Own(const QtRichTextBox& box) : box_(box), before_(box.own_) { box_.own_ = true; }
  ~Own() { box_.own_ = before_; }
  Own(const Own&) = delete;
  Own& operator=(const Own&) = delete;

 private:
  const QtRichTextBox& box_;
  bool before_;
};

QtRichTextBox::QtRichTextBox() : view_(std::make_unique<RichTextView>().release()) {
  text_.Change = [this] { changed_ = true; };
  ShowDocument();
  ConnectView();
  Follow(*this, view_, [this] { ShowState(); });
}

QtRichTextBox::~QtRichTextBox() {
  // Before the members that its events would use.
  const std::unique_ptr<RichTextView> gone(view_);
}

void QtRichTextBox::ConnectView() {
  QObject::connect(view_, &QTextEdit::cursorPositionChanged, view_, [this] { TakeSelection(); });
  QObject::connect(view_, &QTextEdit::selectionChanged, view_, [this] { TakeSelection(); });
  view_->KeyDown = [this](Integer& key, Integer shift) {
    if (KeyDown) {
      KeyDown(key, shift);
    }
  };
  view_->Typed = [this](const std::string& text) {
    if (KeyTyped) {
      KeyTyped(text);
    }
    SetSelText(text);
  };
  view_->Erased = [this](bool back) { Erase(back); };
  view_->Committed = [this](const std::string& text) {
    if (TextCommitted) {
      TextCommitted(text);
    } else {
      SetSelText(text);
    }
  };
  view_->ZoomAsked = [this](int steps) {
    if (ZoomAsked) {
      ZoomAsked(steps);
    }
  };
  view_->TakesFiles = [this] { return static_cast<bool>(FileDropped); };
  view_->FileDropped = [this](const std::string& path) {
    // Later: a question to the user must not keep the program waiting that the file comes from.
    QTimer::singleShot(0, view_, [this, path] {
      if (FileDropped) {
        FileDropped(path);
      }
    });
  };
  view_->ContextMenu = [this](const QPoint& place) {
    if (ContextMenu) {
      ContextMenu(place);
    }
  };
}

// State ----------------------------------------------------------------------------------------

void QtRichTextBox::ShowState() {
  if (!view_) {
    return;
  }
  const Own own(*this);
  ShowColors();
  ShowRightMargin();
  view_->viewport()->setCursor(Hourglass() ? Qt::WaitCursor : Qt::IBeamCursor);
  ShowCommon(*this, view_);
}

void QtRichTextBox::ShowColors() {
  // The paper has its own colour, whatever the desktop's colours are. A colour of the desktop
  // itself stands for white.
  const QColor paper = (BackColor() & systemColor) != 0 ? QColor(Qt::white) : ToQt(BackColor());
  const QColor ink = qGray(paper.rgb()) < middleGrey ? Qt::white : Qt::black;
  // Only what is set here stands against a change of the desktop's colours.
  QPalette palette;
  palette.setColor(QPalette::Base, paper);
  palette.setColor(QPalette::Text, ink);
  view_->setPalette(palette);
}

void QtRichTextBox::ShowRightMargin() {
  if (RightMargin() <= 0) {
    view_->setLineWrapMode(QTextEdit::WidgetWidth);
    return;
  }
  // A margin wider than any screen means that nothing is wrapped: paper of that width would put
  // centred paragraphs far out of sight.
  constexpr Long widest = 150000;
  if (RightMargin() >= widest) {
    view_->setLineWrapMode(QTextEdit::NoWrap);
    return;
  }
  // At least one pixel: Qt takes 0 for no margin at all.
  const int width = std::max<Long>(1, RightMargin() / static_cast<Long>(twipsPerPixel));
  if (view_->lineWrapMode() != QTextEdit::FixedPixelWidth ||
      view_->lineWrapColumnOrWidth() != width) {
    view_->setLineWrapColumnOrWidth(width);
    view_->setLineWrapMode(QTextEdit::FixedPixelWidth);
  }
}

void QtRichTextBox::LockUpdates() {
  if (locks_++ == 0 && view_) {
    view_->setUpdatesEnabled(false);
  }
}

void QtRichTextBox::UnlockUpdates() {
  if (--locks_ > 0) {
    return;
  }
  if (view_) {
    KeepFitting();
    Flush();
    view_->setUpdatesEnabled(true);
  }
  SelectionMayHaveChanged();
}

void QtRichTextBox::OpenGroup() const {
  if (!groupOpen_) {
    group_ = QTextCursor(view_->document());
    group_.beginEditBlock();
    groupOpen_ = true;
  }
}

void QtRichTextBox::CloseGroup() const {
  if (groupOpen_) {
    groupOpen_ = false;
    group_.endEditBlock();
    group_ = {};
  }
}

void QtRichTextBox::Flush() const {
  if (!view_) {
    return;
  }
  const Own own(*this);
  CloseGroup();
  if (std::exchange(selectionPutOff_, false)) {
    ShowSelection(true);
  }
}

// Text -----------------------------------------------------------------------------------------

RichPlace QtRichTextBox::PlaceOf(Long position) const {
  return {static_cast<std::size_t>(text_.LineOf(position)),
          static_cast<std::size_t>(position - text_.LineSpan(position).Start)};
}

int QtRichTextBox::QtPosition(Long position) const {
  return position - text_.LineOf(position);
}

void QtRichTextBox::SetText(const std::string& text) {
  MirrorAll([&] { text_.SetText(text); });
}

void QtRichTextBox::SetTextRTF(const std::string& rtf) {
  MirrorAll([&] { text_.SetTextRTF(rtf); });
}

void QtRichTextBox::SetDocument(RichDocument document) {
  MirrorAll([&] { text_.SetDocument(std::move(document)); });
}

void QtRichTextBox::MirrorAll(const std::function<void()>& edit) {
  edit();
  if (view_) {
    const Own own(*this);
    CloseGroup();
    ShowDocument();
    ShowSelection(true);
  }
  SelectionMayHaveChanged();
  RaiseChange();
}

void QtRichTextBox::ShowDocument() {
  fitting_ = FittingScale(text_.Document(), zoom_);
  writer_.SetZoom(fitting_ * zoom_);
  // A document that is in view while it is filled is laid out as a whole; one that comes complete
  // is laid out as far as it is seen, and the rest when there is time.
  auto document = std::make_unique<QTextDocument>();
  document->setUndoRedoEnabled(false);
  document->setDefaultFont(writer_.FormatOf(text_.SelFormat()).font());
  FillDocument(*document, text_.Document(), writer_);
  // With the parent of the one before it, it is the widget's own, which deletes it with the next.
  document->setParent(view_->document()->parent());
  view_->setDocument(document.release());
}

void QtRichTextBox::KeepFitting() {
  // The estimate leaves room for what is typed, so that not each letter shows all anew.
  constexpr double room = 0.7;
  if (FittingScale(text_.Document(), zoom_) >= room * fitting_) {
    return;
  }
  const Own own(*this);
  // The group goes unclosed, with its document: closing it would lay that out.
  groupOpen_ = false;
  group_ = {};
  ShowDocument();
  ShowSelection(false);
}

void QtRichTextBox::SetZoom(double zoom) {
  if (zoom == zoom_) {
    return;
  }
  zoom_ = zoom;
  if (!view_) {
    return;
  }
  const Long line = FirstVisibleLine();
  {
    const Own own(*this);
    CloseGroup();
    ShowDocument();
    ShowSelection(false);
  }
  SetFirstVisibleLine(line);
}

void QtRichTextBox::SetSelText(const std::string& text) {
  Replace([&] { text_.SetSelText(text); });
}

void QtRichTextBox::SetSelRTF(const std::string& rtf) {
  Replace([&] { text_.SetSelRTF(rtf); });
}

void QtRichTextBox::Replace(const std::function<void()>& edit) {
  const Long length = text_.TextLength();
  const Long removed = text_.SelLength();
  const RichPlace first = PlaceOf(text_.SelStart());
  const RichPlace last = PlaceOf(text_.SelStart() + removed);
  changed_ = false;
  edit();
  if (!changed_) {
    return;
  }
  if (view_) {
    MirrorReplacement(first, last, text_.TextLength() - length + removed);
  }
  RaiseChange();
  SelectionMayHaveChanged();
}

void QtRichTextBox::MirrorReplacement(const RichPlace& first, const RichPlace& last, Long added) {
  const Own own(*this);
  OpenGroup();
  QTextDocument& shown = *view_->document();
  const auto position = [&shown](const RichPlace& place) {
    return shown.findBlockByNumber(static_cast<int>(place.Paragraph)).position() +
           static_cast<int>(place.Offset);
  };
  QTextCursor cursor(&shown);
  cursor.setPosition(position(first));
  cursor.setPosition(position(last), QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  // The caret stands behind the new text.
  const RichPlace end = PlaceOf(text_.SelStart());
  if (added > 0) {
    writer_.Insert(cursor, text_.Document(), first, end);
  }
  // Qt has its own rules for the paragraphs that a removal joins.
  for (const std::size_t paragraph : {first.Paragraph, end.Paragraph}) {
    const QTextBlock block = shown.findBlockByNumber(static_cast<int>(paragraph));
    const QTextBlockFormat format =
        BlockFormatOf(text_.Document().Paragraphs[paragraph], writer_.Zoom());
    if (block.blockFormat() != format) {
      QTextCursor(block).setBlockFormat(format);
    }
  }
  if (locks_ > 0) {
    selectionPutOff_ = true;
  } else {
    KeepFitting();
    CloseGroup();
    ShowSelection(true);
  }
}

void QtRichTextBox::Erase(bool back) {
  if (SelLength() == 0) {
    const Long caret = SelStart();
    if (back && caret == 0) {
      return;
    }
    // The start moves in front of a whole line end or surrogate pair, the end behind.
    text_.SetSelStart(back ? caret - 1 : caret);
    text_.SetSelLength(back ? caret - text_.SelStart() : 1);
  }
  SetSelText("");
}

void QtRichTextBox::SetSelFormat(const CharFormat& format) {
  changed_ = false;
  text_.SetSelFormat(format);
  if (view_) {
    const Own own(*this);
    if (text_.TextLength() == 0) {
      view_->document()->setDefaultFont(writer_.FormatOf(format).font());
    }
    if (changed_) {
      OpenGroup();
      QTextCursor cursor(view_->document());
      cursor.setPosition(QtPosition(SelStart()));
      cursor.setPosition(QtPosition(SelStart() + SelLength()), QTextCursor::KeepAnchor);
      cursor.setCharFormat(writer_.FormatOf(format));
      if (locks_ == 0) {
        KeepFitting();
        CloseGroup();
      }
    }
  }
  if (changed_) {
    RaiseChange();
  }
}

// Selection ------------------------------------------------------------------------------------

void QtRichTextBox::SetSelStart(Long start) {
  text_.SetSelStart(start);
  ShowSelection(true);
  SelectionMayHaveChanged();
}

void QtRichTextBox::SetSelLength(Long length) {
  text_.SetSelLength(length);
  ShowSelection(true);
  SelectionMayHaveChanged();
}

void QtRichTextBox::ShowSelection(bool scroll) const {
  if (!view_) {
    return;
  }
  if (locks_ > 0 && !own_) {
    selectionPutOff_ = true;
    return;
  }
  const Own own(*this);
  QTextCursor cursor = view_->textCursor();
  const int start = QtPosition(SelStart());
  const int end = QtPosition(SelStart() + SelLength());
  // The user may have selected backwards; that is as good.
  if (cursor.selectionStart() != start || cursor.selectionEnd() != end) {
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    view_->setTextCursor(cursor);
  } else if (scroll) {
    view_->ensureCursorVisible();
  }
}

void QtRichTextBox::TakeSelection() {
  if (own_) {
    return;
  }
  const QTextCursor cursor = view_->textCursor();
  const auto position = [this](int place) {
    return static_cast<Long>(place + view_->document()->findBlock(place).blockNumber());
  };
  const TextSpan span{position(cursor.selectionStart()),
                      position(cursor.selectionEnd()) - position(cursor.selectionStart())};
  if (span != TextSpan{SelStart(), SelLength()}) {
    text_.Select(span.Start, span.Length);
    // A surrogate pair may have been divided.
    ShowSelection(false);
  }
  SelectionMayHaveChanged();
}

void QtRichTextBox::SelectionMayHaveChanged() {
  const TextSpan selection{SelStart(), SelLength()};
  if (locks_ == 0 && selection != toldSelection_) {
    toldSelection_ = selection;
    Raise(SelChange);
  }
}

// Lines ------------------------------------------------------------------------------------------

Long QtRichTextBox::LineCount() const {
  if (!view_) {
    return text_.LineCount();
  }
  Flush();
  return CountLines(*view_->document());
}

Long QtRichTextBox::FirstVisibleLine() const {
  if (!view_) {
    return text_.FirstVisibleLine();
  }
  Flush();
  return FirstLineInView(*view_);
}

void QtRichTextBox::SetFirstVisibleLine(Long line) {
  if (!view_) {
    text_.SetFirstVisibleLine(line);
    return;
  }
  QScrollBar& bar = *view_->verticalScrollBar();
  const int before = bar.value();
  Flush();
  bar.setValue(before);
  // A line that is seen in part stays so.
  if (FirstLineInView(*view_) != line) {
    ScrollToLine(*view_, line);
  }
}

}  // namespace trelonit

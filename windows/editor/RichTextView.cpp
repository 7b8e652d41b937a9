#include "windows/editor/RichTextView.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWheelEvent>
#include <algorithm>
#include <string_view>
#include <type_traits>

#include "editor/document/TextUnits.h"
#include "editor/undo/TypedKeys.h"
#include "editor/undo/clsUndo.h"
#include "windows/binding/Binding.h"
#include "windows/editor/KeyCodes.h"

namespace trelonit {

namespace {

constexpr Integer keyPageUp = 33;
constexpr Integer keyDown = 40;

/// Page up and down, End, Home, arrows.
bool MovesCaret(Integer key) {
  return key >= keyPageUp && key <= keyDown;
}

/// The combinations with Ctrl that edit.
bool EditsWithControl(Integer key) {
  return std::string_view("ZRXVCATB").find(static_cast<char>(key)) != std::string_view::npos;
}

template <class... Arguments>
void Tell(const std::function<void(Arguments...)>& hook,
          const std::type_identity_t<Arguments>&... arguments) {
  if (hook) {
    hook(arguments...);
  }
}

bool IsPrintable(const QString& text) {
  return !text.isEmpty() && text.front() >= QLatin1Char(' ') && text.front() != QChar(0x7F);
}

/// What the key puts into the text; Shift+Return no other line end than Return.
std::string TextOf(const QKeyEvent& event, Integer key) {
  if (key == keyReturn) {
    return std::string(lineEnd);
  }
  if (key == keyTab) {
    return "\t";
  }
  return IsPrintable(event.text()) ? FromQt(event.text()) : std::string();
}

QString FirstFile(const QMimeData& data) {
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) {
      return url.toLocalFile();
    }
  }
  return {};
}

}  // namespace

RichTextView::RichTextView(QWidget* parent) : QTextEdit(parent) {
  setUndoRedoEnabled(false);
  // Each key is an event of its own, since each is a step of its own.
  setAttribute(Qt::WA_KeyCompression, false);
}

bool RichTextView::TakesShortcut(const QKeyEvent& event) const {
  const Integer key = KeyCodeOf(event);
  const Integer shift = ShiftStateOf(event);
  if (key == keyDelete) {
    return true;
  }
  if (key == keyInsert) {
    return (shift & clsUndo::shiftKey) != 0 && (shift & clsUndo::altKey) == 0;
  }
  if (shift == clsUndo::controlKey) {
    return EditsWithControl(key);
  }
  return shift <= clsUndo::shiftKey && (KeyTypesText(key) || MovesCaret(key) || key == keyBack ||
                                        key == keyTab || IsPrintable(event.text()));
}

bool RichTextView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    // The text edit itself would take more than the editing keys, and so from the menus.
    event->setAccepted(TakesShortcut(static_cast<const QKeyEvent&>(*event)));
    return true;
  }
  return QTextEdit::event(event);
}

void RichTextView::keyPressEvent(QKeyEvent* event) {
  Integer key = KeyCodeOf(*event);
  const Integer shift = ShiftStateOf(*event);
  if (key == keyTab && (shift & clsUndo::controlKey) != 0) {
    // A box that keeps every tab would never let go who works by keys alone.
    LeaveByTab(shift);
    return;
  }
  const std::string text = TextOf(*event, key);
  if (shift <= clsUndo::shiftKey && key != keyTab && (KeyTypesText(key) || !text.empty())) {
    // A key code stands for one character. A dead key types none yet, and a key that types several
    // or has no code is told by its text alone.
    if (!KeyTypesText(key) || (text != lineEnd && UnitCount(text) != 1)) {
      if (!text.empty()) {
        Tell(Committed, text);
      }
      return;
    }
  }
  if (KeyDown) {
    KeyDown(key, shift);
  }
  if (key == 0) {
    return;
  }
  const bool plain = shift <= clsUndo::shiftKey;
  if (MovesCaret(key)) {
    QTextEdit::keyPressEvent(event);
  } else if (plain && (key == keyBack || key == keyDelete)) {
    Tell(Erased, key == keyBack);
  } else if (plain && key == keyTab && shift != 0) {
    LeaveByTab(shift);
  } else if (plain && !text.empty()) {
    Tell(Typed, text);
  } else {
    event->ignore();
  }
}

void RichTextView::LeaveByTab(Integer shift) {
  // Otherwise the text edit never lets a tab go.
  setTabChangesFocus(true);
  focusNextPrevChild((shift & clsUndo::shiftKey) == 0);
  setTabChangesFocus(false);
}

void RichTextView::inputMethodEvent(QInputMethodEvent* event) {
  const std::string text = FromQt(event->commitString());
  if (!text.empty() || event->replacementLength() > 0) {
    // The unfinished text goes first: it is no part of the document.
    QInputMethodEvent nothing;
    QTextEdit::inputMethodEvent(&nothing);
    if (event->replacementLength() > 0) {
      QTextCursor cursor = textCursor();
      const int start = cursor.selectionStart() + event->replacementStart();
      cursor.setPosition(std::max(0, start));
      cursor.setPosition(
          std::min(start + event->replacementLength(), document()->characterCount() - 1),
          QTextCursor::KeepAnchor);
      setTextCursor(cursor);
    }
    Tell(Committed, text);
  }
  if (!event->preeditString().isEmpty() && textCursor().hasSelection()) {
    // The text edit would take the selection out by itself.
    Integer key = keyDelete;
    if (KeyDown) {
      KeyDown(key, 0);
    }
    if (key != 0) {
      Tell(Erased, false);
    }
  }
  QInputMethodEvent unfinished(event->preeditString(), event->attributes());
  QTextEdit::inputMethodEvent(&unfinished);
  event->accept();
}

void RichTextView::wheelEvent(QWheelEvent* event) {
  constexpr int unitsOfStep = 120;
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    turned_ = 0;
    QTextEdit::wheelEvent(event);
    return;
  }
  // A fine wheel turns a step in several parts.
  turned_ += event->angleDelta().y();
  if (const int steps = turned_ / unitsOfStep) {
    turned_ -= steps * unitsOfStep;
    Tell(ZoomAsked, steps);
  }
  event->accept();
}

void RichTextView::mousePressEvent(QMouseEvent* event) {
  QTextCursor cursor = textCursor();
  if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
      cursor.hasSelection()) {
    // A press on the selection begins a new one, and not the drag by which the text edit would
    // take text out.
    cursor.setPosition(cursorForPosition(event->position().toPoint()).position());
    setTextCursor(cursor);
  }
  QTextEdit::mousePressEvent(event);
}

void RichTextView::contextMenuEvent(QContextMenuEvent* event) {
  // By the keyboard it opens at the caret.
  const QPoint place = event->reason() == QContextMenuEvent::Keyboard
                           ? viewport()->mapToGlobal(cursorRect().bottomLeft())
                           : event->globalPos();
  Tell(ContextMenu, place);
  event->accept();
}

bool RichTextView::Welcome(const QMimeData& carried) const {
  return FirstFile(carried).isEmpty() ? carried.hasText() : TakesFiles && TakesFiles();
}

void RichTextView::dragEnterEvent(QDragEnterEvent* event) {
  dragMoveEvent(event);
}

void RichTextView::dragMoveEvent(QDragMoveEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->setAccepted(Welcome(*event->mimeData()));
}

void RichTextView::dropEvent(QDropEvent* event) {
  if (!Welcome(*event->mimeData())) {
    event->ignore();
    return;
  }
  // Never a move: the other program would remove what the user can still undo here.
  event->setDropAction(Qt::CopyAction);
  event->accept();
  if (const QString file = FirstFile(*event->mimeData()); !file.isEmpty()) {
    Tell(FileDropped, FileFromQt(file));
    return;
  }
  setTextCursor(cursorForPosition(event->position().toPoint()));
  insertFromMimeData(event->mimeData());
}

bool RichTextView::canInsertFromMimeData(const QMimeData* source) const {
  return source->hasText();
}

void RichTextView::insertFromMimeData(const QMimeData* source) {
  if (source->hasText()) {
    Tell(Committed, FromQt(source->text()));
  }
}

}  // namespace trelonit

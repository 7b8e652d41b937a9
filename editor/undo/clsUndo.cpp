#include "editor/undo/clsUndo.h"

#include "editor/document/TextUnits.h"
#include "editor/undo/TypedKeys.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit {

namespace {

/// Keeps a flag off as long as it lives.
class SwitchedOff {
 public:
  explicit SwitchedOff(bool& flag) : flag_(flag) { flag_ = false; }
  ~SwitchedOff() { flag_ = true; }
  SwitchedOff(const SwitchedOff&) = delete;
  SwitchedOff& operator=(const SwitchedOff&) = delete;

 private:
  bool& flag_;
};

/// Shows the hourglass as long as it lives.
class HourglassShown {
 public:
  explicit HourglassShown(RichTextBox& box) : box_(box) { box_.SetHourglass(true); }
  ~HourglassShown() { box_.SetHourglass(false); }
  HourglassShown(const HourglassShown&) = delete;
  HourglassShown& operator=(const HourglassShown&) = delete;

 private:
  RichTextBox& box_;
};

}  // namespace

RichTextBox& clsUndo::Box() const {
  if (richBox_ == nullptr) {
    throw RuntimeError(ErrorNumber::ObjectNotSet);
  }
  return *richBox_;
}

void clsUndo::UpdateStateChange() {
  if (StateChanged) {
    StateChanged();
  }
}

void clsUndo::Reset() {
  undoElements_.clear();
  redoElements_.clear();
  enabled_ = true;
  changePending_ = false;
  typedByCode_ = false;
  UpdateStateChange();
}

void clsUndo::Record() {
  undoElements_.push_back(current_);
  redoElements_.clear();
  typedByCode_ = false;
  UpdateStateChange();
}

// Undo and redo ------------------------------------------------------------------------------

void clsUndo::Apply(std::vector<clsUndoElement>& from, std::vector<clsUndoElement>& to,
                    const std::function<void(const clsUndoElement&)>& step) {
  if (from.empty()) {
    return;
  }
  {
    const UpdateLock lock(Box());
    const SwitchedOff recording(enabled_);
    changePending_ = false;
    typedByCode_ = false;
    step(from.back());
    to.push_back(std::move(from.back()));
    from.pop_back();
  }
  UpdateStateChange();
}

void clsUndo::Undo() {
  Apply(undoElements_, redoElements_, [this](const clsUndoElement& element) {
    Box().Select(element.Start, element.OldLength);
    Box().SetSelRTF(element.OldText);
    if (element.CaretBefore != clsUndoElement::leaveCaret) {
      Box().SetSelStart(element.CaretBefore);
    }
  });
}

void clsUndo::Redo() {
  Apply(redoElements_, undoElements_, [this](const clsUndoElement& element) {
    Box().Select(element.Start, element.NewLength);
    if (element.Plain) {
      Box().SetSelText(element.NewText);
    } else {
      PutIn(element.NewText);
    }
    if (element.CaretAfter != clsUndoElement::leaveCaret) {
      Box().SetSelStart(element.CaretAfter);
    }
  });
}

void clsUndo::PutIn(const std::string& text) {
  if (richEditing_) {
    Box().SetSelRTF(text);
  } else {
    Box().SetSelText(text);
  }
}

// Commands -----------------------------------------------------------------------------------

void clsUndo::Cut() {
  Integer key = 'X';
  RichBox_KeyDown(key, controlKey);
}

void clsUndo::Paste() {
  Integer key = 'V';
  RichBox_KeyDown(key, controlKey);
}

void clsUndo::Delete() {
  Integer key = keyDelete;
  RichBox_KeyDown(key, 0);
}

void clsUndo::Copy() {
  // Nothing selected: the clipboard keeps what it holds.
  if (Box().SelLength() > 0) {
    PutOnClipboard();
  }
}

void clsUndo::PutOnClipboard() {
  if (richEditing_) {
    clipboard_.SetRichText(Box().SelRTF(), Box().SelText());
  } else {
    clipboard_.SetText(Box().SelText());
  }
}

void clsUndo::SelectAll() {
  Box().Select(0, Box().TextLength());
}

void clsUndo::SelectAbove() {
  SelectKeepingView(0, Box().SelStart());
}

void clsUndo::SelectBelow() {
  // No selection goes beyond the text.
  SelectKeepingView(Box().SelStart(), Box().TextLength());
}

void clsUndo::SelectKeepingView(Long start, Long length) {
  const HourglassShown hourglass(Box());
  const Long line = Box().FirstVisibleLine();
  Box().Select(start, length);
  Box().SetFirstVisibleLine(line);
}

void clsUndo::InsertText(const std::string& text) {
  const std::string whole = WithWholeLineEnds(text);
  BeginEdit();
  current_.NewText = whole;
  current_.Plain = true;
  current_.OldLength = UnitCount(whole);
  if (current_.OldLength > 0 || current_.NewLength > 0) {
    Record();
    Box().SetSelText(whole);
  }
}

// Keys ---------------------------------------------------------------------------------------

void clsUndo::RichBox_KeyDown(Integer& KeyCode, Integer Shift) {
  const UpdateLock lock(Box());
  current_.CaretBefore = clsUndoElement::leaveCaret;
  current_.CaretAfter = clsUndoElement::leaveCaret;
  // A tab that the box did not take must not be completed by another key's change.
  changePending_ = false;
  typedByCode_ = false;
  if (TakeKey(KeyCode, Shift)) {
    KeyCode = 0;
  }
}

bool clsUndo::TakeKey(Integer keyCode, Integer shift) {
  if (keyCode == keyDelete) {
    DeleteForward();
    return true;
  }
  // Shift+Insert pastes in every text box: it must not go past the recording.
  if (keyCode == keyInsert && (shift == (shiftKey | controlKey) || shift == shiftKey)) {
    PasteClipboard();
    return true;
  }
  if (shift == controlKey) {
    return TakeControlKey(keyCode);
  }
  if (shift > shiftKey) {
    return shift != altKey;
  }
  if (keyCode == keyBack) {
    DeleteBackward();
    return true;
  }
  if (keyCode == keyTab && shift == 0) {
    BeginLineEdit();
  } else if (KeyTypesText(keyCode)) {
    Type(keyCode, shift);
  }
  return false;
}

bool clsUndo::TakeControlKey(Integer keyCode) {
  switch (keyCode) {
    case 'Z':
      Undo();
      break;
    case 'R':
      Redo();
      break;
    case 'X':
      CutSelection();
      break;
    case 'V':
      PasteClipboard();
      break;
    case 'C':
      Copy();
      break;
    case 'A':
      SelectAll();
      break;
    case 'T':
      SelectAbove();
      break;
    case 'B':
      SelectBelow();
      break;
    default:
      // The box gets no other combination with Ctrl.
      break;
  }
  return true;
}

void clsUndo::BeginEdit() {
  current_ = {};
  current_.Start = Box().SelStart();
  current_.NewLength = Box().SelLength();
  current_.OldText = Box().SelRTF();
}

void clsUndo::RemoveSelection() {
  BeginEdit();
  current_.Removal = true;
  Box().SetSelText("");
}

void clsUndo::DeleteForward() {
  const bool nothingSelected = Box().SelLength() == 0;
  if (nothingSelected) {
    // The box takes a divided line end or surrogate pair for the whole, so 1 stands for each.
    Box().SetSelLength(1);
  }
  if (Box().SelLength() == 0) {
    return;  // at the end of the text there is nothing to take out, and nothing to undo
  }
  RemoveSelection();
  if (nothingSelected) {
    current_.NewLength = 1;
  }
  Record();
}

void clsUndo::DeleteBackward() {
  if (Box().SelLength() == 0) {
    const Long caret = Box().SelStart();
    if (caret == 0) {
      return;
    }
    // The start moves in front of a whole line end or surrogate pair.
    Box().SetSelStart(caret - 1);
    Box().SetSelLength(caret - Box().SelStart());
  }
  RemoveSelection();
  Record();
}

void clsUndo::CutSelection() {
  PutOnClipboard();
  DeleteForward();
}

void clsUndo::PasteClipboard() {
  BeginEdit();
  const std::string rich = richEditing_ ? clipboard_.RichText() : std::string();
  if (rich.empty() && !clipboard_.HasText()) {
    return;
  }
  current_.NewText = rich.empty() ? WithWholeLineEnds(clipboard_.Text()) : rich;
  PutIn(current_.NewText);
  current_.OldLength = Box().SelStart() - current_.Start;
  if (current_.OldLength > 0 || current_.NewLength > 0) {
    Record();
  }
}

void clsUndo::BeginLineEdit() {
  RichTextBox& box = Box();
  const TextSpan selection{box.SelStart(), box.SelLength()};
  const Long start = box.LineSpan(selection.Start).Start;
  const TextSpan last = box.LineSpan(selection.Start + selection.Length);
  box.Select(start, last.Start + last.Length - start);
  BeginEdit();
  current_.CaretBefore = selection.Start;
  // The change event brings the line with its tab. Until then undoing leaves the line as it is.
  current_.OldLength = current_.NewLength;
  current_.NewText = richEditing_ ? current_.OldText : box.SelText();
  box.Select(selection.Start, selection.Length);
  changePending_ = true;
  Record();
}

void clsUndo::Type(Integer keyCode, Integer shift) {
  BeginEdit();
  current_.NewText = TypedText(keyCode, shift);
  current_.OldLength = UnitCount(current_.NewText);
  Record();
  typedByCode_ = true;
}

void clsUndo::RichBox_Typed(const std::string& text) {
  if (!typedByCode_) {
    return;
  }
  typedByCode_ = false;
  clsUndoElement& element = undoElements_.back();
  element.NewText = text;
  element.OldLength = UnitCount(text);
  element.Plain = true;
}

void clsUndo::RichBox_Change() {
  if (ignoreChange_) {
    ignoreChange_ = false;
    return;
  }
  if (!changePending_) {
    return;
  }
  changePending_ = false;
  {
    RichTextBox& box = Box();
    const UpdateLock lock(box);
    const TextSpan selection{box.SelStart(), box.SelLength()};
    const TextSpan line = box.LineSpan(selection.Start);
    box.Select(line.Start, line.Length);
    clsUndoElement& element = undoElements_.back();
    element.NewText = richEditing_ ? box.SelRTF() : box.SelText();
    element.OldLength = box.SelLength();
    element.CaretAfter = selection.Start + (box.SelLength() == 0 ? 1 : 0);
    box.Select(selection.Start, selection.Length);
  }
  UpdateStateChange();
}

}  // namespace trelonit

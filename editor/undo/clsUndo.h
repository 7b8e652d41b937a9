#pragma once

#include <functional>
#include <string>
#include <vector>

#include "editor/document/RichTextBox.h"
#include "editor/undo/clsUndoElement.h"
#include "platform/system/Services.h"

namespace trelonit {

/// Undo and redo of a rich-text box. It takes the editing keys itself and records each edit, one
/// key one step, however fast they come: the steps are never merged and none is ever dropped. The
/// box's owner hands on every key (RichBox_KeyDown, before the box acts) and every change
/// (RichBox_Change).
class clsUndo {
 public:
  /// Key codes and shift states (added together) of the keyboard.
  static constexpr Integer shiftKey = 1;
  static constexpr Integer controlKey = 2;
  static constexpr Integer altKey = 4;

  explicit clsUndo(ClipboardService& clipboard) : clipboard_(clipboard) {}

  bool canUndo() const { return enabled_ && !undoElements_.empty(); }
  bool canRedo() const { return enabled_ && !redoElements_.empty(); }
  Long UndoCount() const { return static_cast<Long>(undoElements_.size()); }
  Long RedoCount() const { return static_cast<Long>(redoElements_.size()); }

  /// Recording state: off for the time of an undo or redo.
  bool Enabled() const { return enabled_; }
  const std::vector<clsUndoElement>& UndoElements() const { return undoElements_; }
  const std::vector<clsUndoElement>& RedoElements() const { return redoElements_; }
  bool ChangePending() const { return changePending_; }
  const clsUndoElement& Current() const { return current_; }

  /// The bound box, which must outlive the binding. Commands and keys raise 91 without one.
  RichTextBox* RichBox() const { return richBox_; }
  void SetRichBox(RichTextBox* box) { richBox_ = box; }
  /// Whether new text is taken as rich text or as plain text.
  bool RichEditing() const { return richEditing_; }
  void SetRichEditing(bool rich) { richEditing_ = rich; }

  /// Forgets all steps.
  void Reset();
  /// One step back or forth; without one they do nothing.
  void Undo();
  void Redo();
  /// The next change event does nothing.
  void IgnoreChange() { ignoreChange_ = true; }
  /// What the keys do.
  void Cut();
  void Paste();
  void Delete();
  void Copy();
  void SelectAll();
  /// From the start of the text to the caret, and from the caret to its end. What is to be seen
  /// stays where it is.
  void SelectAbove();
  void SelectBelow();
  /// Puts the text in place of the selection, as one step.
  void InsertText(const std::string& text);
  void UpdateStateChange();

  /// Sets the key code to 0 where the box must not see the key any more.
  void RichBox_KeyDown(Integer& KeyCode, Integer Shift);
  void RichBox_Change();
  /// What the key handed on last puts in, where the box knows it: Redo gives the same, whatever the
  /// keyboard's layout. Without it Redo goes by the key's code.
  void RichBox_Typed(const std::string& text);

  /// Counts or recording state have changed.
  std::function<void()> StateChanged;

 private:
  RichTextBox& Box() const;
  /// One of the keys above; whether the box must not see it any more.
  bool TakeKey(Integer keyCode, Integer shift);
  bool TakeControlKey(Integer keyCode);
  void Record();
  void BeginEdit();
  void RemoveSelection();
  void DeleteForward();
  void DeleteBackward();
  void CutSelection();
  void PasteClipboard();
  void BeginLineEdit();
  void Type(Integer keyCode, Integer shift);
  void PutOnClipboard();
  void PutIn(const std::string& text);
  void SelectKeepingView(Long start, Long length);
  void Apply(std::vector<clsUndoElement>& from, std::vector<clsUndoElement>& to,
             const std::function<void(const clsUndoElement&)>& step);

  ClipboardService& clipboard_;
  bool enabled_ = true;
  std::vector<clsUndoElement> undoElements_;
  std::vector<clsUndoElement> redoElements_;
  RichTextBox* richBox_ = nullptr;
  bool changePending_ = false;
  /// The last element stands for a typed key of which only the code is known.
  bool typedByCode_ = false;
  bool richEditing_ = false;
  clsUndoElement current_;
  bool ignoreChange_ = false;
};

}  // namespace trelonit

#pragma once

#include <string>

#include "platform/values/Integers.h"

namespace trelonit {

/// One edit. Positions and lengths as the rich-text box counts them.
struct clsUndoElement {
  static constexpr Long leaveCaret = -1;

  /// Selection start of the edit.
  Long Start = 0;
  /// Length to select when the edit is undone: of the text that the edit put in.
  Long OldLength = 0;
  /// Length to select when the edit is redone: of the text that the edit took out.
  Long NewLength = 0;
  /// The rich text that the edit took out.
  std::string OldText;
  /// The text that the edit put in.
  std::string NewText;
  /// Where the caret goes after undo.
  Long CaretBefore = leaveCaret;
  /// Where the caret goes after redo.
  Long CaretAfter = leaveCaret;
  /// The edit removed text.
  bool Removal = false;
  /// The new text is text whatever it begins like.
  bool Plain = false;

  friend bool operator==(const clsUndoElement&, const clsUndoElement&) = default;
};

}  // namespace trelonit

#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "editor/document/MemoryRichTextBox.h"
#include "editor/undo/TypedKeys.h"
#include "editor/undo/clsUndo.h"
#include "platform/console/ConsoleServices.h"

namespace trelonit::test {

/// A box in memory that counts how deep its updates are locked.
class WatchedBox : public MemoryRichTextBox {
 public:
  void LockUpdates() override {
    ++Locks;
    Deepest = std::max(Deepest, Locks);
  }
  void UnlockUpdates() override { --Locks; }
  int Locks = 0;
  int Deepest = 0;
};

/// A box with its undo class, and the hands of a user on it.
struct UndoDesk {
  UndoDesk() {
    undo.SetRichBox(&box);
    undo.StateChanged = [this] { ++stateChanges; };
    box.Change = [this] { undo.RichBox_Change(); };
  }

  /// Presses a key. What the undo class leaves to the box, the box does: it puts in the text.
  /// Returns the key code as the box saw it.
  Integer Press(Integer key, Integer shift, const std::string& text) {
    undo.RichBox_KeyDown(key, shift);
    if (key != 0 && !text.empty()) {
      box.SetSelText(text);
    }
    return key;
  }
  Integer Press(Integer key, Integer shift = 0) {
    if (key == keyTab) {
      return Press(key, shift, shift == 0 ? "\t" : "");
    }
    return Press(key, shift, shift < 2 && KeyTypesText(key) ? TypedText(key, shift) : "");
  }
  /// Types small Latin letters, digits and blanks.
  void Type(const std::string& text) {
    for (const char character : text) {
      Press(static_cast<Integer>(character >= 'a' ? character - 'a' + 'A' : character));
    }
  }
  void Hold(const std::string& text) {
    box.SetText(text);
    undo.Reset();
    stateChanges = 0;
  }
  TextSpan Selection() const { return {box.SelStart(), box.SelLength()}; }
  const clsUndoElement& Newest() const { return undo.UndoElements().back(); }

  WatchedBox box;
  MemoryClipboard clipboard;
  clsUndo undo{clipboard};
  int stateChanges = 0;
};

class Undo : public ::testing::Test, protected UndoDesk {};

}  // namespace trelonit::test

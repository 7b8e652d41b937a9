#pragma once

#include <string>
#include <vector>

#include "editor/dialogs/frmFind.h"
#include "tests/editor/undo/UndoDesk.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

/// The find form over a text.
class Find : public ::testing::Test, protected UndoDesk {
 protected:
  Find() {
    form.Unload = [this] { ++unloads; };
    form.Form_Load();
  }
  void Look(const std::string& text, const std::string& wanted,
            const std::string& replacement = "") {
    Hold(text);
    form.cboFind.SetText(wanted);
    form.cboReplace.SetText(replacement);
  }
  /// The texts of the boxes shown since the last question.
  std::vector<std::string> Said() {
    std::vector<std::string> texts;
    for (const Message& message : messages.Shown) {
      texts.push_back(message.Text);
    }
    messages.Shown.clear();
    return texts;
  }

  using Texts = std::vector<std::string>;
  RecordingMessages messages;
  MemorySettings settings;
  frmFind form{box, undo, messages, settings, "Vestra"};
  int unloads = 0;
};

}  // namespace trelonit::test

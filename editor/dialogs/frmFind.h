#pragma once

#include <functional>
#include <string>

#include "editor/undo/clsUndo.h"
#include "platform/forms/Controls.h"
#include "platform/system/Services.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

/// Find and replace in the document window's text.
class frmFind {
 public:
  /// How many texts of each box are remembered; the oldest are forgotten.
  static constexpr std::size_t historyLength = 20;

  /// The program title is a part of the settings' name. The box must be the one that the undo
  /// class is bound to.
  frmFind(RichTextBox& rtf, clsUndo& undo, MessageService& messages, SettingsService& settings,
          std::string programTitle);

  void Form_Load();
  /// Whether the form has been loaded and not yet unloaded: its window stands open.
  bool Loaded() const { return loaded_; }
  /// Remembers the texts of both boxes. The window calls it whichever way it closes.
  void Form_Unload();
  void cmdFindNext_Click();
  void cmdReplace_Click();
  void cmdReplaceAll_Click();
  /// 0 takes the selected text as the text to find, 1 as the replacement. Raises 9 otherwise.
  void cmdSelection_Click(Long index);
  /// Stops a running replace-all, otherwise closes the form.
  void cmdCancel_Click();

  /// Where the next search starts.
  Long SearchPos() const { return searchPos_; }
  /// The last hit, or -1.
  Long HitPos() const { return hitPos_; }
  bool Replacing() const { return replacing_; }

  Label Form;
  ComboBox cboFind;
  ComboBox cboReplace;
  CheckBox ChWord;
  CheckBox ChCase;
  Label cmdFindNext;
  Label cmdReplace;
  Label cmdReplaceAll;
  BoundedArray<Label> cmdSelection{0, 1};
  Label cmdCancel;
  /// Lets the window handle its events while a replace-all runs.
  std::function<void()> DoEvents;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  class Run;

  Long Options() const;
  void SayNotFound();
  bool WantedIsSelected() const;
  Long ReplaceFromHere();
  void LoadHistory(ComboBox& box, const char* section);
  void SaveHistory(const ComboBox& box, const char* section);
  std::string SettingsSection(const char* section) const;

  RichTextBox& rtf_;
  clsUndo& undo_;
  MessageService& messages_;
  SettingsService& settings_;
  std::string programTitle_;
  Long searchPos_ = 0;
  Long hitPos_ = RichTextBox::notFound;
  bool replacing_ = false;
  bool cancelRun_ = false;
  bool loaded_ = false;
};

}  // namespace trelonit

#pragma once

#include <functional>

#include "editor/associations/FileAssociations.h"
#include "platform/errors/Message.h"
#include "platform/forms/Controls.h"

namespace trelonit {

/// Lets the pad take over the system's plain text files, or gives them back.
class frmAssoc {
 public:
  /// Both outlive the form.
  frmAssoc(FileAssociations& associations, MessageService& messages);
  ~frmAssoc() = default;
  frmAssoc(const frmAssoc&) = delete;
  frmAssoc& operator=(const frmAssoc&) = delete;

  /// Shows the machine's present state.
  void Form_Load();
  void Option1_Click();
  void Option2_Click();
  void ChSendto_Click();
  void ChSC_Click();
  /// Carries the choice out and looks at the machine again; the form stays open.
  void cmdApply_Click();
  void cmdCancel_Click();

  Label Form;
  Label lblOwner;
  /// The pad owns the text types.
  OptionButton Option1;
  Label lblOption1;
  /// The system does.
  OptionButton Option2;
  Label lblOption2;
  CheckBox ChSendto;
  Label lblSendto;
  /// Why ChSendto is disabled; hidden while it is not.
  Label lblNoSendto;
  CheckBox ChSC;
  Label lblSC;
  Label lblNoSC;
  /// Enabled only while the choice differs from the machine's state.
  Label cmdApply;
  Label cmdCancel;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  AssociationChoice Choice() const;
  void ShowWhetherToApply();

  FileAssociations& associations_;
  MessageService& messages_;
  AssociationChoice present_;
};

}  // namespace trelonit

#pragma once

#include <functional>

#include "editor/undo/clsUndo.h"
#include "platform/forms/Controls.h"
#include "platform/system/Services.h"

namespace trelonit {

/// Puts the present date or time into the document, in one of eight forms.
class frmDate {
 public:
  frmDate(clsUndo& undo, ClockService& clock);

  /// Offers the forms with the date and time of this moment.
  void Form_Load();
  /// Inserts the selected form, with the date and time of now, and a line end; any other selection
  /// inserts nothing. Closes the form.
  void cmdOK_Click();
  void cmdCancel_Click();

  Label Form;
  ListBox List1;
  Label cmdOK;
  Label cmdCancel;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  void Close();

  clsUndo& undo_;
  ClockService& clock_;
};

}  // namespace trelonit

#include "editor/dialogs/frmDate.h"

#include "editor/dialogs/DateForms.h"
#include "editor/document/TextUnits.h"

namespace trelonit {

frmDate::frmDate(clsUndo& undo, ClockService& clock) : undo_(undo), clock_(clock) {
  Form.SetCaption("Дата и время");
  cmdOK.SetCaption("OK");
  cmdCancel.SetCaption("Cancel");
}

void frmDate::Form_Load() {
  List1.SetList(DateFormList(clock_.Now()));
}

void frmDate::cmdOK_Click() {
  const Long form = List1.ListIndex();
  if (form >= 0 && form < dateFormCount) {
    undo_.InsertText(DateForm(form, clock_.Now()) + std::string(lineEnd));
  }
  Close();
}

void frmDate::cmdCancel_Click() {
  Close();
}

void frmDate::Close() {
  if (Unload) {
    Unload();
  }
}

}  // namespace trelonit

#include "editor/frmDate.h"

#include "editor/DateForms.h"
#include "editor/TextUnits.h"

namespace trelonit {

frmDate::frmDate(clsUndo& undo, ClockService& clock) : undo_(undo), clock_(clock) {
  Form.SetCaption("Datestamp");
  cmdOK.SetCaption("OK");
  cmdCancel.SetCaption("Cancel");
}

void frmDate::Form_Load() {
  ListIndex = noSelection;
  List1.SetList(DateFormList(clock_.Now()));
}

void frmDate::cmdOK_Click() {
  if (ListIndex >= 0 && ListIndex < dateFormCount) {
    undo_.InsertText(DateForm(ListIndex, clock_.Now()) + std::string(lineEnd));
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

#include "workstation/dialogs/frmKoeffOfUse.h"

namespace trelonit {

frmKoeffOfUse::frmKoeffOfUse() {
  Form.SetCaption("Коэффициенты использования и усилия в стержнях");
  framKoef.SetCaption("Коэффициенты использования :");
  framForces.SetCaption("Усилия в стержнях фермы и реакции опор :");
  cmdClose.SetCaption("Close");
  mnuAppendix.SetCaption("Приложение «Второе мнение» в отчете");
}

void frmKoeffOfUse::Fill(const ResultLists& lists) {
  std::vector<Grid::Row> rows{{"Проверка", "Коэффициент"}};
  rows.insert(rows.end(), lists.MSFlexGKoefUse.begin(), lists.MSFlexGKoefUse.end());
  MSFlexGKoefUse.SetRows(std::move(rows));
  lstForces.SetList(lists.lstForces);
  Picture = lists.Picture;
  Opinion = lists.Opinion;
  Rows = lists.Rows;
  Locale = lists.Locale;
}

void frmKoeffOfUse::mnuAppendix_Click() {
  mnuAppendix.SetChecked(!mnuAppendix.Checked());
  if (AppendixChanged) {
    AppendixChanged(mnuAppendix.Checked());
  }
}

void frmKoeffOfUse::cmdClose_Click() {
  if (Unload) {
    Unload();
  }
}

}  // namespace trelonit

#include "workstation/frmKoeffOfUse.h"

namespace trelonit {

frmKoeffOfUse::frmKoeffOfUse() {
  Form.SetCaption("Коэффициенты использования и усилия в стержнях");
  framKoef.SetCaption("Коэффициенты использования :");
  framForces.SetCaption("Усилия в стержнях фермы и реакции опор :");
  cmdClose.SetCaption("Close");
}

void frmKoeffOfUse::Fill(const ResultLists& lists) {
  std::vector<Grid::Row> rows{{"Проверка", "Коэффициент"}};
  rows.insert(rows.end(), lists.MSFlexGKoefUse.begin(), lists.MSFlexGKoefUse.end());
  MSFlexGKoefUse.SetRows(std::move(rows));
  lstForces.SetList(lists.lstForces);
  Picture = lists.Picture;
}

void frmKoeffOfUse::cmdClose_Click() {
  if (Unload) {
    Unload();
  }
}

}  // namespace trelonit

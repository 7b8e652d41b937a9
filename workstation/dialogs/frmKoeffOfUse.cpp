#include "workstation/dialogs/frmKoeffOfUse.h"

#include <utility>

namespace trelonit {

frmKoeffOfUse::frmKoeffOfUse() {
  Form.SetCaption("Коэффициенты использования и усилия в стержнях");
  framKoef.SetCaption("Коэффициенты использования :");
  framForces.SetCaption("Усилия в стержнях фермы и реакции опор :");
  cmdClose.SetCaption("Close");
  mnuAppendix.SetCaption("Приложение «Второе мнение» в отчете");
  mnuSaveCsv.SetCaption("Сохранить в CSV...");
  mnuSaveXlsx.SetCaption("Сохранить в XLSX...");
  SetTableFiles(nullptr, nullptr);
}

void frmKoeffOfUse::Fill(const ResultLists& lists) {
  std::vector<Grid::Row> rows{{"Проверка", "Коэффициент"}};
  rows.insert(rows.end(), lists.MSFlexGKoefUse.begin(), lists.MSFlexGKoefUse.end());
  MSFlexGKoefUse.SetRows(std::move(rows));
  lstForces.SetList(lists.lstForces);
  Picture = lists.Picture;
  Opinion = lists.Opinion;
  Rows = lists.Rows;
  Bars = BuildBarTable(lists.Of, lists.Opinion.Figures);
  Locale = lists.Locale;
}

void frmKoeffOfUse::mnuAppendix_Click() {
  mnuAppendix.SetChecked(!mnuAppendix.Checked());
  if (AppendixChanged) {
    AppendixChanged(mnuAppendix.Checked());
  }
}

void frmKoeffOfUse::SetTableFiles(std::function<void(const ResultTable&)> saveCsv,
                                  std::function<void(const ResultTable&)> saveXlsx) {
  saveCsv_ = std::move(saveCsv);
  saveXlsx_ = std::move(saveXlsx);
  mnuSaveCsv.SetEnabled(static_cast<bool>(saveCsv_));
  mnuSaveXlsx.SetEnabled(static_cast<bool>(saveXlsx_));
}

void frmKoeffOfUse::mnuSaveCsv_Click(const ResultTable& table) {
  if (saveCsv_) {
    saveCsv_(table);
  }
}

void frmKoeffOfUse::mnuSaveXlsx_Click(const ResultTable& table) {
  if (saveXlsx_) {
    saveXlsx_(table);
  }
}

void frmKoeffOfUse::cmdClose_Click() {
  if (Unload) {
    Unload();
  }
}

}  // namespace trelonit

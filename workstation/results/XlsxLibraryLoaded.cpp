#include "platform/posix/LoadedLibrary.h"
#include "workstation/results/XlsxLibrary.h"

namespace trelonit {

namespace {

XlsxLibrary FindRoutines(const LoadedLibrary& library) {
  XlsxLibrary routines;
  library.Find(routines.NewWorkbook, "workbook_new_opt");
  library.Find(routines.SetProperties, "workbook_set_properties");
  library.Find(routines.AddWorksheet, "workbook_add_worksheet");
  library.Find(routines.AddFormat, "workbook_add_format");
  library.Find(routines.CloseWorkbook, "workbook_close");
  library.Find(routines.SetBold, "format_set_bold");
  library.Find(routines.SetTextWrap, "format_set_text_wrap");
  library.Find(routines.SetAlign, "format_set_align");
  library.Find(routines.SetNumberFormat, "format_set_num_format");
  library.Find(routines.WriteString, "worksheet_write_string");
  library.Find(routines.WriteNumber, "worksheet_write_number");
  library.Find(routines.SetColumn, "worksheet_set_column");
  library.Find(routines.FreezePanes, "worksheet_freeze_panes");
  library.Find(routines.SetLandscape, "worksheet_set_landscape");
  library.Find(routines.SetPaper, "worksheet_set_paper");
  library.Find(routines.FitToPages, "worksheet_fit_to_pages");
  library.Find(routines.RepeatRows, "worksheet_repeat_rows");
  return routines;
}

}  // namespace

const XlsxLibrary& LoadXlsxLibrary() {
  // Where it fails, the next table tries again.
  static const XlsxLibrary routines = FindRoutines(LoadedLibrary(TRELONIT_XLSXWRITER));
  return routines;
}

}  // namespace trelonit

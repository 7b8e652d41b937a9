#include "workstation/results/XlsxLibrary.h"

namespace trelonit {

const XlsxLibrary& LoadXlsxLibrary() {
  static constexpr XlsxLibrary library{.NewWorkbook = workbook_new_opt,
                                       .SetProperties = workbook_set_properties,
                                       .AddWorksheet = workbook_add_worksheet,
                                       .AddFormat = workbook_add_format,
                                       .CloseWorkbook = workbook_close,
                                       .SetBold = format_set_bold,
                                       .SetTextWrap = format_set_text_wrap,
                                       .SetAlign = format_set_align,
                                       .SetNumberFormat = format_set_num_format,
                                       .WriteString = worksheet_write_string,
                                       .WriteNumber = worksheet_write_number,
                                       .SetColumn = worksheet_set_column,
                                       .FreezePanes = worksheet_freeze_panes,
                                       .SetLandscape = worksheet_set_landscape,
                                       .SetPaper = worksheet_set_paper,
                                       .FitToPages = worksheet_fit_to_pages,
                                       .RepeatRows = worksheet_repeat_rows};
  return library;
}

}  // namespace trelonit

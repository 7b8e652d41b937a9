#pragma once

#include <string>
#include <xlsxwriter.h>

#include "workstation/results/ResultTable.h"

namespace trelonit {

/// The routines of libxlsxwriter that tables are written with.
struct XlsxLibrary {
  decltype(&workbook_new_opt) NewWorkbook = nullptr;
  decltype(&workbook_set_properties) SetProperties = nullptr;
  decltype(&workbook_add_worksheet) AddWorksheet = nullptr;
  decltype(&workbook_add_format) AddFormat = nullptr;
  decltype(&workbook_close) CloseWorkbook = nullptr;
  decltype(&format_set_bold) SetBold = nullptr;
  decltype(&format_set_text_wrap) SetTextWrap = nullptr;
  decltype(&format_set_align) SetAlign = nullptr;
  decltype(&format_set_num_format) SetNumberFormat = nullptr;
  decltype(&worksheet_write_string) WriteString = nullptr;
  decltype(&worksheet_write_number) WriteNumber = nullptr;
  decltype(&worksheet_set_column) SetColumn = nullptr;
  decltype(&worksheet_freeze_panes) FreezePanes = nullptr;
  decltype(&worksheet_set_landscape) SetLandscape = nullptr;
  decltype(&worksheet_set_paper) SetPaper = nullptr;
  decltype(&worksheet_fit_to_pages) FitToPages = nullptr;
  decltype(&worksheet_repeat_rows) RepeatRows = nullptr;
};

/// The library, loaded when the first table is written: it brings a library of ciphers along, whose
/// loading would be the longest part of the program's start before its own first line. Raises 53
/// where it is not installed.
const XlsxLibrary& LoadXlsxLibrary();

/// The bytes of a workbook with this table. Raises 61 where it cannot be stored, 57 where the
/// library refuses anything else.
std::string WriteXlsx(const XlsxLibrary& library, const ResultTable& table);

}  // namespace trelonit

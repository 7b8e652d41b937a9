#pragma once

#include "workstation/results/TableFile.h"

namespace trelonit {

/// Writes tables as Office Open XML workbooks (.xlsx): one sheet, the head fixed, numbers as
/// numbers with the decimals of their column, a page's width on landscape paper. Null in a program
/// that was built without the library for it.
SpreadsheetWriter XlsxWriter();

}  // namespace trelonit

#pragma once

#include <functional>

#include "platform/system/Services.h"
#include "workstation/results/ResultTable.h"

namespace trelonit {

/// The bytes of a spreadsheet file with the table. Raises 57 or 61 where it cannot be made.
using SpreadsheetWriter = std::function<std::string(const ResultTable&)>;

// Both ask for a name and put the file there. A cancel does nothing, a failure is told and leaves
// the file that was there.

void SaveAsCsv(const ResultTable& table, const Services& services);
void SaveAsSpreadsheet(const ResultTable& table, const SpreadsheetWriter& write,
                       const Services& services);

}  // namespace trelonit

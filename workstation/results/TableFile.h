#pragma once

#include <functional>
#include <string>

#include "platform/system/Services.h"
#include "workstation/results/ResultTable.h"

namespace trelonit {

/// The bytes of a spreadsheet file with the table. Raises 57 or 61 where it cannot be made.
using SpreadsheetWriter = std::function<std::string(const ResultTable&)>;

/// What the dialog of a file to be saved says.
struct FileToSave {
  std::string Title;
  std::string Extension;
  std::string Description;
};
/// Asks for a name and puts the bytes there; a cancel does nothing. Raises what writing raises and
/// leaves the file that was there then.
void SaveUnderName(const FileToSave& file, const Services& services,
                   const std::function<std::string()>& bytes);

// Both ask for a name and put the file there. A cancel does nothing, a failure is told and leaves
// the file that was there.

void SaveAsCsv(const ResultTable& table, const Services& services);
void SaveAsSpreadsheet(const ResultTable& table, const SpreadsheetWriter& write,
                       const Services& services);

}  // namespace trelonit

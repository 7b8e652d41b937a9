#include "workstation/results/TableFile.h"

#include "platform/errors/Guard.h"
#include "workstation/design/FileNames.h"

namespace trelonit {

void SaveUnderName(const FileToSave& file, const Services& services,
                   const std::function<std::string()>& bytes) {
  const std::string name = ShowSaveDialog(file.Title, file.Extension, file.Description, services);
  if (!name.empty()) {
    services.Files.ReplaceFile(name, bytes());
  }
}

void SaveAsCsv(const ResultTable& table, const Services& services) {
  Guard(services.Messages, "mnuSaveCsv_Click", [&] {
    SaveUnderName({"Сохранить таблицу", "csv", "Таблица CSV"}, services,
                  [&] { return CommaSeparated(table, services.Locale); });
  });
}

void SaveAsSpreadsheet(const ResultTable& table, const SpreadsheetWriter& write,
                       const Services& services) {
  Guard(services.Messages, "mnuSaveXlsx_Click", [&] {
    SaveUnderName({"Сохранить таблицу", "xlsx", "Электронная таблица"}, services,
                  [&] { return write(table); });
  });
}

}  // namespace trelonit

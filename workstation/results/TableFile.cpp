#include "workstation/results/TableFile.h"

#include "platform/errors/Guard.h"
#include "workstation/design/FileNames.h"

namespace trelonit {

namespace {

void Save(const std::string& extension, const std::string& description, const Services& services,
          const std::function<std::string()>& bytes) {
  const std::string name = ShowSaveDialog("Сохранить таблицу", extension, description, services);
  if (!name.empty()) {
    services.Files.ReplaceFile(name, bytes());
  }
}

}  // namespace

void SaveAsCsv(const ResultTable& table, const Services& services) {
  Guard(services.Messages, "mnuSaveCsv_Click", [&] {
    Save("csv", "Таблица CSV", services, [&] { return CommaSeparated(table, services.Locale); });
  });
}

void SaveAsSpreadsheet(const ResultTable& table, const SpreadsheetWriter& write,
                       const Services& services) {
  Guard(services.Messages, "mnuSaveXlsx_Click",
        [&] { Save("xlsx", "Электронная таблица", services, [&] { return write(table); }); });
}

}  // namespace trelonit

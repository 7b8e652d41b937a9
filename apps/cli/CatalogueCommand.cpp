#include <iostream>
#include <optional>

#include "apps/cli/Commands.h"
#include "apps/cli/TextTable.h"
#include "catalogue/CatalogueHealth.h"
#include "catalogue/DataFile.h"
#include "catalogue/ProfileFields.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit::cli {

namespace {

using Row = std::vector<std::string>;

/// The catalogue as the program has it in memory after its start; nothing when it did not start.
std::optional<ProfileTypeArray> LoadedCatalogue() {
  ConsoleSession session;
  if (!session.Start()) {
    return std::nullopt;
  }
  return session.Main().Model.ProfileTypes;
}

Row HeadRow() {
  Row row{"Name"};
  for (const ProfileField& field : profileFields) {
    row.emplace_back(field.Name);
  }
  return row;
}

Row RecordRow(const ProfileRec& record) {
  Row row{record.Name.Trimmed()};
  for (const ProfileField& field : profileFields) {
    row.push_back(NumberToText(record.*field.Number, {}));
  }
  return row;
}

/// By number or by name; 0 where there is none.
Long FindStandard(const ProfileTypeArray& catalogue, const std::string& wanted) {
  for (Long standard = 1; standard <= catalogue.UpperBound(); ++standard) {
    if (std::to_string(standard) == wanted || catalogue[standard].Name.Trimmed() == wanted) {
      return standard;
    }
  }
  return 0;
}

/// The records of a data file by the standard that they name, in the catalogue's order; those of no
/// standard of the catalogue come last. Nothing where the file cannot be read: the user is told.
std::optional<ProfileTypeArray> RecordsOfFile(const std::string& file,
                                              const ProfileTypeArray& catalogue) {
  DiskFiles files;
  BoundedArray<ProfileRec> records;
  try {
    const std::unique_ptr<std::istream> stream = files.OpenForReading(file);
    const std::uint64_t length = files.FileLength(file);
    if (CountProfileRecords(length) > mostCatalogueRecords) {
      throw RuntimeError(static_cast<int>(ErrorNumber::Overflow),
                         "записей больше " + std::to_string(mostCatalogueRecords) +
                             ", столько каталог не вмещает");
    }
    records = ReadProfileRecords(*stream, length);
  } catch (const RuntimeError& error) {
    std::cerr << "trelonit-cli: файл «" << file << "» не прочитан: " << error.Description() << "\n";
    return std::nullopt;
  }
  ProfileTypeArray standards(1, catalogue.UpperBound() + 1);
  for (Long number = 1; number <= standards.UpperBound(); ++number) {
    standards[number].Rec = BoundedArray<ProfileRec>(1, 0);
    if (number <= catalogue.UpperBound()) {
      standards[number].Name = catalogue[number].Name;
    }
  }
  for (const ProfileRec& record : records) {
    Long number = 1;
    while (number <= catalogue.UpperBound() && catalogue[number].Name != record.Type) {
      ++number;
    }
    standards[number].Rec.Append(record);
  }
  return standards;
}

}  // namespace

Status RunCatalogueList() {
  const auto catalogue = LoadedCatalogue();
  if (!catalogue) {
    return Status::Failed;
  }
  std::vector<Row> rows{{"Стандарт", "№", "Размеров"}};
  for (Long standard = 1; standard <= catalogue->UpperBound(); ++standard) {
    const ProfileType& type = (*catalogue)[standard];
    rows.push_back(
        {type.Name.Trimmed(), std::to_string(standard), std::to_string(type.Rec.UpperBound())});
  }
  return Print(TextTable(rows));
}

Status RunCatalogueShow(const CatalogueShowOptions& options) {
  const auto catalogue = LoadedCatalogue();
  if (!catalogue) {
    return Status::Failed;
  }
  const Long standard = FindStandard(*catalogue, options.Standard);
  if (standard == 0) {
    std::cerr << "trelonit-cli: в каталоге нет стандарта «" << options.Standard
              << "»; номера и названия показывает «catalogue list»\n";
    return Status::Failed;
  }
  std::vector<Row> rows{HeadRow()};
  for (const ProfileRec& record : (*catalogue)[standard].Rec) {
    if (options.Size.empty() || record.Name.Trimmed() == options.Size) {
      rows.push_back(RecordRow(record));
    }
  }
  if (rows.size() == 1) {
    Tell("trelonit-cli: в стандарте «" + (*catalogue)[standard].Name.Trimmed() +
         "» нет типоразмера «" + options.Size + "»");
    return Status::Failed;
  }
  return Print((*catalogue)[standard].Name.Trimmed() + "\n" + TextTable(rows));
}

Status RunCatalogueVerify(const std::string& file) {
  auto catalogue = LoadedCatalogue();
  if (!catalogue) {
    return Status::Failed;
  }
  if (!file.empty()) {
    catalogue = RecordsOfFile(file, *catalogue);
    if (!catalogue) {
      return Status::Failed;
    }
  }
  Long records = 0;
  for (const ProfileType& standard : *catalogue) {
    records += standard.Rec.UpperBound();
  }
  std::vector<Deviation> deviations = VerifyCatalogue(*catalogue);
  if (!file.empty()) {
    // A file of the user's own need not have records of every standard.
    std::erase_if(deviations, [](const Deviation& found) { return found.SizeIdx == 0; });
  }
  std::string text;
  if (!deviations.empty()) {
    std::vector<Row> rows{{"Типоразмер", "№ стандарта", "Величина", "В каталоге", "По размерам",
                           "Отклонение, %", "Допуск, %"}};
    for (const Deviation& found : deviations) {
      rows.push_back({found.Name, std::to_string(found.TypeIdx), found.Quantity,
                      NumberToText(found.Stored, {}), FormatPlain(found.Computed, 3, {}),
                      FormatPlain(found.Percent, 2, {}), FormatPlain(found.Tolerance, 2, {})});
    }
    text = TextTable(rows);
  }
  return Print(text + "Проверено типоразмеров: " + std::to_string(records) +
               ", отклонений: " + std::to_string(deviations.size()) + "\n");
}

}  // namespace trelonit::cli

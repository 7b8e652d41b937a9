#include "workstation/results/XlsxTable.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <random>

#include "platform/errors/RuntimeError.h"
#include "platform/files/FileBytes.h"
#include "platform/files/Paths.h"
#include "platform/text/Text.h"
#include "workstation/results/XlsxLibrary.h"

namespace trelonit {

namespace {

namespace fs = std::filesystem;

/// The library writes files only. This folder for one goes with the object.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::random_device random;
    std::error_code code;
    const fs::path folder = fs::temp_directory_path(code);
    bool made = false;
    while (!made && !code) {
      path_ = folder / ("trelonit-table-" + std::to_string(random()));
      made = fs::create_directory(path_, code);
    }
    if (code) {
      throw RuntimeError(ErrorNumber::PathFileAccess);
    }
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code code;
    fs::remove_all(path_, code);
  }
  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

void Require(lxw_error error) {
  if (error != LXW_NO_ERROR) {
    throw RuntimeError(error == LXW_ERROR_CREATING_TMPFILE || error == LXW_ERROR_ZIP_CLOSE
                           ? ErrorNumber::DiskFull
                           : ErrorNumber::DeviceIoError);
  }
}

/// The sheet of one table in a workbook.
class Sheet {
 public:
  Sheet(const XlsxLibrary& library, lxw_workbook* book, const ResultTable& table)
      : library_(library), book_(book), sheet_(library.AddWorksheet(book, nullptr)), table_(table) {
    if (sheet_ == nullptr) {
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
  }

  void Fill() {
    AddHead();
    for (std::size_t row = 0; row < table_.Rows.size(); ++row) {
      for (std::size_t column = 0; column < table_.Rows[row].size(); ++column) {
        Add(static_cast<lxw_row_t>(row + 1), column, table_.Rows[row][column]);
      }
    }
    library_.FreezePanes(sheet_, 1, 0);
    library_.SetLandscape(sheet_);
    constexpr std::uint8_t a4 = 9;
    library_.SetPaper(sheet_, a4);
    library_.FitToPages(sheet_, 1, 0);
    Require(library_.RepeatRows(sheet_, 0, 0));
  }

 private:
  void AddHead() {
    lxw_format* bold = library_.AddFormat(book_);
    library_.SetBold(bold);
    library_.SetTextWrap(bold);
    library_.SetAlign(bold, LXW_ALIGN_VERTICAL_TOP);
    for (std::size_t column = 0; column < table_.Columns.size(); ++column) {
      const auto place = static_cast<lxw_col_t>(column);
      Require(library_.WriteString(sheet_, 0, place, table_.Columns[column].Caption.c_str(), bold));
      Require(library_.SetColumn(sheet_, place, place, Width(column), nullptr));
    }
  }

  void Add(lxw_row_t row, std::size_t column, const TableCell& cell) {
    const auto place = static_cast<lxw_col_t>(column);
    if (const auto* text = std::get_if<std::string>(&cell)) {
      Require(library_.WriteString(sheet_, row, place, text->c_str(), nullptr));
    } else if (const auto* number = std::get_if<double>(&cell)) {
      Require(library_.WriteNumber(sheet_, row, place, *number,
                                   FormatOf(table_.Columns[column].Decimals)));
    }
  }

  lxw_format* FormatOf(int decimals) {
    lxw_format*& format = formats_[decimals];
    if (format == nullptr) {
      format = library_.AddFormat(book_);
      const std::string pattern =
          decimals == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(decimals), '0');
      library_.SetNumberFormat(format, pattern.c_str());
    }
    return format;
  }

  /// In letters; long heads take several lines.
  double Width(std::size_t column) const {
    std::size_t letters = 12;
    for (const TableRow& row : table_.Rows) {
      if (const auto* text = std::get_if<std::string>(&row[column])) {
        letters = std::max(letters, Characters(*text).size() + 2);
      }
    }
    constexpr std::size_t widest = 50;
    return static_cast<double>(std::min(letters, widest));
  }

  const XlsxLibrary& library_;
  lxw_workbook* book_;
  lxw_worksheet* sheet_;
  const ResultTable& table_;
  std::map<int, lxw_format*> formats_;
};

}  // namespace

std::string WriteXlsx(const XlsxLibrary& library, const ResultTable& table) {
  const ScratchFolder folder;
  const std::string path = Utf8OfPath(folder.Path() / "table.xlsx");
  std::string tmpdir = Utf8OfPath(folder.Path());
  lxw_workbook_options options{};
  options.tmpdir = tmpdir.data();
  lxw_workbook* book = library.NewWorkbook(path.c_str(), &options);
  if (book == nullptr) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  std::string title = table.Title;
  lxw_doc_properties properties{};
  properties.title = title.data();
  try {
    Require(library.SetProperties(book, &properties));
    Sheet(library, book, table).Fill();
  } catch (...) {
    // The only way to have the library let go of it.
    library.CloseWorkbook(book);
    throw;
  }
  Require(library.CloseWorkbook(book));
  DiskFiles files;
  return ReadBytes(files, path);
}

SpreadsheetWriter XlsxWriter() {
  return [](const ResultTable& table) { return WriteXlsx(LoadXlsxLibrary(), table); };
}

}  // namespace trelonit

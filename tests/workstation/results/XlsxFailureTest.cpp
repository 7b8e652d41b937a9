// What becomes of a table that the library of spreadsheets cannot write.
#if __has_include(<xlsxwriter.h>)

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>

#include "platform/errors/RuntimeError.h"
#include "workstation/results/XlsxLibrary.h"
#include "workstation/results/XlsxTable.h"

namespace trelonit::test {
namespace {

namespace fs = std::filesystem;

/// The library with one of its routines changed, and a folder for scratch files of its own.
class FailingSpreadsheet : public ::testing::Test {
 protected:
  FailingSpreadsheet() {
    if (const char* before = std::getenv("TMPDIR")) {
      before_ = before;
    }
    fs::create_directory(folder_);
    ::setenv("TMPDIR", folder_.c_str(), 1);
  }
  ~FailingSpreadsheet() override {
    before_.empty() ? ::unsetenv("TMPDIR") : ::setenv("TMPDIR", before_.c_str(), 1);
    fs::remove_all(folder_);
  }
  /// Of writing a small table; nothing is left of it.
  int ErrorOfWriting() {
    const ResultTable table{
        .Title = "Стержни", .Columns = {{.Caption = "Группа"}}, .Rows = {{std::string("a")}}};
    int number = 0;
    try {
      WriteXlsx(library, table);
    } catch (const RuntimeError& error) {
      number = error.Number();
    }
    EXPECT_TRUE(fs::is_empty(folder_));
    return number;
  }

  XlsxLibrary library = LoadXlsxLibrary();

 private:
  fs::path folder_ =
      fs::temp_directory_path() / ("xlsx-failure-" + std::to_string(std::random_device()()));
  std::string before_;
};

constexpr int deviceError = 57;
constexpr int diskFull = 61;

TEST_F(FailingSpreadsheet, IsNoneWhereTheLibraryDoesNotFail) {
  EXPECT_EQ(ErrorOfWriting(), 0);
}

TEST_F(FailingSpreadsheet, WithoutAWorkbookIsADeviceError) {
  library.NewWorkbook = [](const char*, lxw_workbook_options*) -> lxw_workbook* { return nullptr; };
  EXPECT_EQ(ErrorOfWriting(), deviceError);
}

TEST_F(FailingSpreadsheet, WithoutASheetIsADeviceError) {
  library.AddWorksheet = [](lxw_workbook*, const char*) -> lxw_worksheet* { return nullptr; };
  EXPECT_EQ(ErrorOfWriting(), deviceError);
}

TEST_F(FailingSpreadsheet, ThatTakesNoTextIsADeviceError) {
  library.WriteString = [](lxw_worksheet*, lxw_row_t, lxw_col_t, const char*, lxw_format*) {
    return LXW_ERROR_MEMORY_MALLOC_FAILED;
  };
  EXPECT_EQ(ErrorOfWriting(), deviceError);
}

TEST_F(FailingSpreadsheet, ThatCannotBePackedIsAFullDisk) {
  static const XlsxLibrary whole = LoadXlsxLibrary();
  for (const lxw_error failure : {LXW_ERROR_CREATING_TMPFILE, LXW_ERROR_ZIP_CLOSE}) {
    static lxw_error told = LXW_NO_ERROR;
    told = failure;
    library.CloseWorkbook = [](lxw_workbook* book) {
      whole.CloseWorkbook(book);
      return told;
    };
    EXPECT_EQ(ErrorOfWriting(), diskFull);
  }
}

}  // namespace
}  // namespace trelonit::test

#endif

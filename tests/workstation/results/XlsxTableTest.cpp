#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

#include "workstation/results/XlsxTable.h"

namespace trelonit::test {
namespace {

namespace fs = std::filesystem;

/// The system's folder for scratch files during a test: what the writer leaves there is seen.
class XlsxFile : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!XlsxWriter()) {
      GTEST_SKIP() << "built without the library that writes spreadsheets";
    }
    folder_ = fs::temp_directory_path() / ("xlsx-test-" + std::to_string(std::random_device()()));
    fs::create_directory(folder_);
    const char* before = std::getenv("TMPDIR");
    before_ = before == nullptr ? "" : before;
    ::setenv("TMPDIR", folder_.c_str(), 1);
  }
  void TearDown() override {
    if (!folder_.empty()) {
      before_.empty() ? ::unsetenv("TMPDIR") : ::setenv("TMPDIR", before_.c_str(), 1);
      fs::remove_all(folder_);
    }
  }
  std::ptrdiff_t Left() const {
    return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
  }
  /// What another program reads in the file.
  std::string Read(const ResultTable& table) const {
    const fs::path file = folder_ / "read.xlsx";
    const fs::path out = folder_ / "read.txt";
    std::ofstream(file, std::ios::binary) << XlsxWriter()(table);
    const std::string command = std::string(SYSTEM_PYTHON) + " '" + READ_SHEET + "' '" +
                                file.string() + "' > '" + out.string() + "' 2>&1";
    const int status = std::system(command.c_str());
    std::ifstream stream(out);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_EQ(status, 0) << text;
    fs::remove(file);
    fs::remove(out);
    return text;
  }

 private:
  fs::path folder_;
  std::string before_;
};

TEST_F(XlsxFile, HasTextsAsTextsAndNumbersAsNumbersWithTheirDecimals) {
  const ResultTable table{
      .Title = "Стержни",
      .Columns = {{.Caption = "Группа"}, {.Caption = "Усилие, т", .Decimals = 4}, {.Caption = "№"}},
      .Rows = {{std::string("Верхний пояс"), -46.182875, 4.0},
               {std::string("=1+1"), TableCell(), 17.0}}};
  EXPECT_EQ(Read(table),
            "sheet Sheet1\n"
            "fixed rows 1\n"
            "A1 text General 'Группа'\n"
            "B1 text General 'Усилие, т'\n"
            "C1 text General '№'\n"
            "A2 text General 'Верхний пояс'\n"
            "B2 number 0.0000 '-46.182875'\n"
            "C2 number 0 '4'\n"
            // No formula, whatever it begins with.
            "A3 text General '=1+1'\n"
            "C3 number 0 '17'\n");
}

TEST_F(XlsxFile, IsMadeOfAnEmptyTableToo) {
  EXPECT_EQ(Read({.Columns = {{.Caption = "a"}}}),
            "sheet Sheet1\nfixed rows 1\nA1 text General 'a'\n");
}

TEST_F(XlsxFile, LeavesNothingBehind) {
  EXPECT_FALSE(XlsxWriter()({.Columns = {{.Caption = "a"}}, .Rows = {{1.0}}}).empty());
  EXPECT_EQ(Left(), 0);
}

TEST_F(XlsxFile, RaisesWhereThereIsNoFolderForIt) {
  ::setenv("TMPDIR", "/nowhere", 1);
  EXPECT_THROW(XlsxWriter()({.Columns = {{.Caption = "a"}}}), RuntimeError);
}

}  // namespace
}  // namespace trelonit::test

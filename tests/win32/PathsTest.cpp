#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "editor/document/FileHandler.h"
#include "platform/files/Paths.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit::test {

namespace {

namespace fs = std::filesystem;

/// A file with a long name in a folder with one.
class ShortNames : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(folder);
    std::ofstream(file) << "text";
    if (ShortOf(file) == file) {
      GTEST_SKIP() << "this file system keeps no short names";
    }
  }
  ~ShortNames() override {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }

  static fs::path ShortOf(const fs::path& path) {
    std::wstring name(MAX_PATH, L'\0');
    name.resize(GetShortPathNameW(path.c_str(), name.data(), MAX_PATH));
    return name;
  }
  static fs::path LongTemporaryFolder() {
    std::wstring name(MAX_PATH, L'\0');
    name.resize(
        GetLongPathNameW(fs::temp_directory_path().parent_path().c_str(), name.data(), MAX_PATH));
    return name;
  }

  const fs::path folder = LongTemporaryFolder() / L"Фермы большого пролёта";
  const fs::path file = folder / L"Ферма над третьим пролётом.tsav";
};

TEST_F(ShortNames, BecomeTheLongOnes) {
  EXPECT_EQ(LongName(ShortOf(file)), file);
  EXPECT_EQ(LongName(ShortOf(folder)), folder);
}

TEST_F(ShortNames, OfTheFolderBecomeTheLongOnesWhereTheFileIsNotThereYet) {
  EXPECT_EQ(LongName(ShortOf(folder) / L"new" / L"Новая.tsav"), folder / L"new" / L"Новая.tsav");
}

TEST_F(ShortNames, OnTheCommandLineOpenTheFileUnderItsLongOne) {
  EXPECT_EQ(LongPathName("\"" + FromWide(ShortOf(file).native()) + "\""), FromWide(file.native()));
}

TEST(LongNames, StayAsTheyAre) {
  for (const wchar_t* name : {L"", L"C:\\", L"C:", L"a", L"C:\\no such folder\\a.tsav"}) {
    EXPECT_EQ(LongName(name), fs::path(name)) << FromWide(name);
  }
}

}  // namespace

}  // namespace trelonit::test

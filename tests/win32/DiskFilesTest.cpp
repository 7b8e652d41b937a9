#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

#include "platform/files/Files.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/WindowsHeader.h"
#include "tests/win32/ErrorOf.h"

namespace trelonit::test {

namespace {

namespace fs = std::filesystem;

class Disk : public testing::Test {
 protected:
  Disk() { fs::create_directories(folder); }
  ~Disk() override {
    for (const auto& entry : fs::directory_iterator(folder)) {
      SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }

  std::string Path(const std::string& name) const {
    return FromWide((folder / ToWide(name)).native());
  }
  std::string Content(const std::string& name) {
    const std::unique_ptr<std::istream> stream = files.OpenForReading(Path(name));
    return {std::istreambuf_iterator<char>(*stream), {}};
  }
  std::size_t FilesThere() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
  }

  const fs::path folder = fs::temp_directory_path() / L"Папка trelonit";
  DiskFiles files;
};

TEST_F(Disk, KeepsBytesAsTheyAreUnderACyrillicName) {
  const std::string bytes("a\r\nb\n\0\x1A\xFF", 8);
  files.ReplaceFile(Path("Ферма.tsav"), bytes);
  EXPECT_TRUE(files.FileExists(Path("Ферма.tsav")));
  EXPECT_EQ(files.FileLength(Path("Ферма.tsav")), bytes.size());
  EXPECT_EQ(Content("Ферма.tsav"), bytes);
  EXPECT_TRUE(fs::exists(folder / L"Ферма.tsav"));
}

TEST_F(Disk, ReplacesAFileAndLeavesNothingBeside) {
  files.ReplaceFile(Path("a"), "before, and longer");
  files.ReplaceFile(Path("a"), "after");
  EXPECT_EQ(Content("a"), "after");
  EXPECT_EQ(FilesThere(), 1U);
}

TEST_F(Disk, WritesInPlace) {
  files.ReplaceFile(Path("a"), "0123456789");
  {
    const std::unique_ptr<FileUpdate> update = files.OpenForUpdate(Path("a"));
    update->WriteAt(4, "xy");
    update->WriteAt(10, "end");
  }
  EXPECT_EQ(Content("a"), "0123xy6789end");
}

TEST_F(Disk, TellsWhatIsMissing) {
  EXPECT_FALSE(files.FileExists(Path("none")));
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(Path("none")); }), 53);
  EXPECT_EQ(ErrorOf([&] { files.FileLength(Path("none")); }), 53);
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(Path("none")); }), 53);
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(Path("none\\a")); }), 76);
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(Path("none\\a"), "x"); }), 76);
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(Path("none\\a")); }), 76);
}

TEST_F(Disk, RefusesWhatIsNoFile) {
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(""); }), 52);
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(FromWide(folder.native())); }), 75);
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(FromWide(folder.native()), "x"); }), 75);
}

TEST_F(Disk, RefusesToWriteAReadOnlyFile) {
  files.ReplaceFile(Path("a"), "before");
  ASSERT_TRUE(SetFileAttributesW((folder / "a").c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(Path("a"), "after"); }), 70);
  EXPECT_EQ(Content("a"), "before");
  EXPECT_EQ(FilesThere(), 1U);
}

TEST_F(Disk, KeepsTheOldFileWhereAnotherProgramHoldsIt) {
  files.ReplaceFile(Path("a"), "before");
  const HANDLE holder = CreateFileW((folder / "a").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(holder, INVALID_HANDLE_VALUE);
  const int replacing = ErrorOf([&] { files.ReplaceFile(Path("a"), "after"); });
  const int reading = ErrorOf([&] { files.OpenForReading(Path("a")); });
  const int updating = ErrorOf([&] { files.OpenForUpdate(Path("a")); });
  CloseHandle(holder);
  EXPECT_EQ(replacing, 70);
  EXPECT_EQ(reading, 70);
  EXPECT_EQ(updating, 70);
  EXPECT_EQ(Content("a"), "before");
  EXPECT_EQ(FilesThere(), 1U);
}

}  // namespace

}  // namespace trelonit::test

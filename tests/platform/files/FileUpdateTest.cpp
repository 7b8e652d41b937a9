#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>

#include "platform/files/Files.h"

namespace trelonit::test {

namespace fs = std::filesystem;

int ErrorOf(const std::function<void()>& body);
std::shared_ptr<const fs::path> TemporaryFolder();

namespace {

class FileUpdateTest : public testing::Test {
 protected:
  fs::path At(const std::string& name) const {
    return *folder_ / fs::path(std::u8string(name.begin(), name.end()));
  }
  std::string In(const std::string& name) const {
    const std::u8string text = At(name).u8string();
    return {text.begin(), text.end()};
  }
  void Put(const std::string& name, const std::string& content) const {
    std::ofstream(At(name), std::ios::binary) << content;
  }
  std::string Content(const std::string& name) const {
    std::ifstream stream(At(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  DiskFiles files;

 private:
  std::shared_ptr<const fs::path> folder_ = TemporaryFolder();
};

TEST_F(FileUpdateTest, WritesOverBytesAndTouchesNoOther) {
  Put("file", "0123456789");
  files.OpenForUpdate(In("file"))->WriteAt(3, "abc");
  EXPECT_EQ(Content("file"), "012abc6789");
}

TEST_F(FileUpdateTest, WritesAtBothEnds) {
  Put("file", "0123456789");
  const auto file = files.OpenForUpdate(In("file"));
  file->WriteAt(9, "z");
  file->WriteAt(0, "a");
  EXPECT_EQ(Content("file"), "a12345678z");
}

TEST_F(FileUpdateTest, ShowsEachWriteToOtherReadersAtOnce) {
  Put("file", "0123456789");
  const auto file = files.OpenForUpdate(In("file"));
  file->WriteAt(5, "x");
  EXPECT_EQ(Content("file"), "01234x6789");
  file->WriteAt(1, "y");
  EXPECT_EQ(Content("file"), "0y234x6789");
}

TEST_F(FileUpdateTest, ChangesNothingByBeingOpened) {
  Put("file", "0123456789");
  files.OpenForUpdate(In("file"));
  EXPECT_EQ(Content("file"), "0123456789");
}

TEST_F(FileUpdateTest, ChangesNothingByWritingNothing) {
  Put("file", "0123456789");
  const auto file = files.OpenForUpdate(In("file"));
  file->WriteAt(3, "");
  file->WriteAt(100, "");
  EXPECT_EQ(Content("file"), "0123456789");
}

TEST_F(FileUpdateTest, WritesAnyBytes) {
  Put("file", std::string(6, 'x'));
  const std::string bytes("\0\n\r\x1A\xFF", 5);
  files.OpenForUpdate(In("file"))->WriteAt(1, bytes);
  EXPECT_EQ(Content("file"), "x" + bytes);
}

TEST_F(FileUpdateTest, GrowsTheFileAcrossItsEnd) {
  Put("file", "0123");
  files.OpenForUpdate(In("file"))->WriteAt(3, "abc");
  EXPECT_EQ(Content("file"), "012abc");
}

TEST_F(FileUpdateTest, FillsAGapBehindTheEndWithZeros) {
  Put("file", "01");
  files.OpenForUpdate(In("file"))->WriteAt(4, "ab");
  EXPECT_EQ(Content("file"), std::string("01\0\0ab", 6));
}

TEST_F(FileUpdateTest, WritesIntoAnEmptyFile) {
  Put("file", "");
  files.OpenForUpdate(In("file"))->WriteAt(0, "ab");
  EXPECT_EQ(Content("file"), "ab");
}

TEST_F(FileUpdateTest, ReachesPlacesBeyondFourGigabytes) {
  constexpr std::uint64_t place = (std::uint64_t{1} << 32) + 7;
  Put("file", "0123");
  files.OpenForUpdate(In("file"))->WriteAt(place, "ab");
  EXPECT_EQ(fs::file_size(At("file")), place + 2);
  std::ifstream stream(At("file"), std::ios::binary);
  std::string begin(4, ' ');
  stream.read(begin.data(), 4);
  EXPECT_EQ(begin, "0123");
}

TEST_F(FileUpdateTest, TakesCyrillicNames) {
  Put("ГОСТ профили.dat", "0123");
  files.OpenForUpdate(In("ГОСТ профили.dat"))->WriteAt(1, "ab");
  EXPECT_EQ(Content("ГОСТ профили.dat"), "0ab3");
}

TEST_F(FileUpdateTest, MakesNoFile) {
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(In("missing")); }), 53);
  EXPECT_FALSE(fs::exists(At("missing")));
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(In("no folder/missing")); }), 76);
  EXPECT_FALSE(fs::exists(At("no folder")));
}

TEST_F(FileUpdateTest, RaisesBadFileNameForAnEmptyOrEndlessName) {
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(""); }), 52);
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(In(std::string(5000, 'x'))); }), 52);
}

TEST_F(FileUpdateTest, RefusesAFolder) {
  fs::create_directory(At("folder"));
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(In("folder")); }), 75);
}

RC_GTEST_FIXTURE_PROP(FileUpdateTest, TouchesExactlyTheBytesItIsGiven, ()) {
  auto expected = *rc::gen::container<std::string>(rc::gen::arbitrary<char>());
  Put("file", expected);
  const auto file = files.OpenForUpdate(In("file"));
  const int writes = *rc::gen::inRange(1, 6);
  for (int write = 0; write < writes; ++write) {
    const auto place = *rc::gen::inRange<std::size_t>(0, 200);
    const auto bytes = *rc::gen::container<std::string>(rc::gen::arbitrary<char>());
    file->WriteAt(place, bytes);
    if (!bytes.empty() && expected.size() < place + bytes.size()) {
      expected.resize(place + bytes.size(), '\0');
    }
    if (!bytes.empty()) {
      expected.replace(place, bytes.size(), bytes);
    }
  }
  RC_ASSERT(Content("file") == expected);
}

}  // namespace

}  // namespace trelonit::test

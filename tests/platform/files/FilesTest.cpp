#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

#include "platform/files/Files.h"

namespace trelonit::test {

namespace fs = std::filesystem;

int ErrorOf(const std::function<void()>& body);
std::shared_ptr<const fs::path> TemporaryFolder();

namespace {

std::string ToUtf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

class DiskFilesTest : public testing::Test {
 protected:
  std::string In(const std::string& name) const {
    return ToUtf8(*folder_ / fs::path(std::u8string(name.begin(), name.end())));
  }
  std::string Read(const std::string& path) {
    const auto stream = files.OpenForReading(path);
    return {std::istreambuf_iterator<char>(*stream), {}};
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(*folder_)) {
      names.push_back(ToUtf8(entry.path().filename()));
    }
    return names;
  }
  DiskFiles files;

 private:
  std::shared_ptr<const fs::path> folder_ = TemporaryFolder();
};

TEST_F(DiskFilesTest, WritesANewFile) {
  files.ReplaceFile(In("new.tsav"), "content");
  EXPECT_EQ(Read(In("new.tsav")), "content");
  EXPECT_EQ(Names(), std::vector<std::string>{"new.tsav"});
}

TEST_F(DiskFilesTest, ReplacesTheWholeFileAndLeavesNothingBeside) {
  files.ReplaceFile(In("file"), "a long first content");
  files.ReplaceFile(In("file"), "second");
  EXPECT_EQ(Read(In("file")), "second");
  EXPECT_EQ(Names(), std::vector<std::string>{"file"});
}

TEST_F(DiskFilesTest, WritesAnEmptyFile) {
  files.ReplaceFile(In("file"), "first");
  files.ReplaceFile(In("file"), "");
  EXPECT_TRUE(files.FileExists(In("file")));
  EXPECT_EQ(files.FileLength(In("file")), 0U);
}

TEST_F(DiskFilesTest, TakesPathsInUtf8) {
  const std::string path = In("Ферма 18 м № 1.tsav");
  files.ReplaceFile(path, "x");
  EXPECT_TRUE(files.FileExists(path));
  EXPECT_EQ(Read(path), "x");
  EXPECT_EQ(Names(), std::vector<std::string>{"Ферма 18 м № 1.tsav"});
}

TEST_F(DiskFilesTest, WritesAndReadsBytesAsTheyStand) {
  EXPECT_TRUE(rc::check([this] {
    const auto bytes = *rc::gen::container<std::string>(
        rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<char>()));
    files.ReplaceFile(In("bytes"), bytes);
    RC_ASSERT(Read(In("bytes")) == bytes);
    RC_ASSERT(files.FileLength(In("bytes")) == bytes.size());
  }));
  files.ReplaceFile(In("lines"), std::string("a\r\nb\n\x1A\0c", 8));
  EXPECT_EQ(Read(In("lines")), std::string("a\r\nb\n\x1A\0c", 8));
}

TEST_F(DiskFilesTest, WritesMoreThanOneBuffer) {
  std::string bytes;
  for (int count = 0; count < 300000; ++count) {
    bytes += std::to_string(count);
  }
  files.ReplaceFile(In("large"), bytes);
  EXPECT_EQ(files.FileLength(In("large")), bytes.size());
  EXPECT_TRUE(Read(In("large")) == bytes);
}

TEST_F(DiskFilesTest, OpensAFileAtItsBeginningEveryTime) {
  files.ReplaceFile(In("file"), "abc");
  const auto first = files.OpenForReading(In("file"));
  EXPECT_EQ(first->get(), 'a');
  const auto second = files.OpenForReading(In("file"));
  EXPECT_EQ(second->get(), 'a');
  EXPECT_EQ(first->get(), 'b');
}

TEST_F(DiskFilesTest, FindsFilesButNoFolders) {
  files.ReplaceFile(In("file"), "");
  fs::create_directory(In("folder"));
  EXPECT_TRUE(files.FileExists(In("file")));
  EXPECT_FALSE(files.FileExists(In("folder")));
  EXPECT_FALSE(files.FileExists(In("")));
  EXPECT_FALSE(files.FileExists(In("missing")));
  EXPECT_FALSE(files.FileExists(In("missing/file")));
  EXPECT_FALSE(files.FileExists(In("file/below")));
  EXPECT_FALSE(files.FileExists(""));
}

TEST_F(DiskFilesTest, RaisesBadFileNameForAnEmptyName) {
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(""); }), 52);
  EXPECT_EQ(ErrorOf([&] { files.FileLength(""); }), 52);
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile("", "x"); }), 52);
}

TEST_F(DiskFilesTest, RaisesBadFileNameForANameThatIsTooLong) {
  const std::string path = In(std::string(400, 'n'));
  EXPECT_FALSE(files.FileExists(path));
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(path); }), 52);
  EXPECT_EQ(ErrorOf([&] { files.FileLength(path); }), 52);
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(path, "x"); }), 52);
  EXPECT_TRUE(Names().empty());
}

TEST_F(DiskFilesTest, ReplacesAFileWhoseNameIsAsLongAsNamesMayBe) {
  const std::string name(255, 'n');
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(In(name), "x"); }), 0);
  EXPECT_EQ(Names(), std::vector<std::string>{name});
}

TEST_F(DiskFilesTest, RaisesFileNotFoundForAMissingFile) {
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(In("missing")); }), 53);
  EXPECT_EQ(ErrorOf([&] { files.FileLength(In("missing")); }), 53);
  // A bare name has no folder that could be missing.
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading("trelonit-no-such-file"); }), 53);
}

TEST_F(DiskFilesTest, RaisesPathNotFoundWhenReadingInAMissingFolder) {
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(In("missing/file")); }), 76);
}

TEST_F(DiskFilesTest, RaisesPathNotFoundForTheLengthOfAFileInAMissingFolder) {
  EXPECT_EQ(ErrorOf([&] { files.FileLength(In("missing/file")); }), 76);
}

TEST_F(DiskFilesTest, RaisesPathNotFoundWhenWritingInAMissingFolder) {
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(In("missing/file"), "x"); }), 76);
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(In("a/b/c/file"), "x"); }), 76);
  EXPECT_TRUE(Names().empty());
}

TEST_F(DiskFilesTest, RaisesPathNotFoundWhereAFileStandsForAFolder) {
  files.ReplaceFile(In("file"), "x");
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(In("file/below")); }), 76);
  EXPECT_EQ(ErrorOf([&] { files.FileLength(In("file/below")); }), 76);
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(In("file/below"), "y"); }), 76);
  EXPECT_EQ(Read(In("file")), "x");
}

TEST_F(DiskFilesTest, RaisesPathFileAccessForAFolderInPlaceOfAFile) {
  fs::create_directory(In("folder"));
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(In("folder")); }), 75);
  EXPECT_EQ(ErrorOf([&] { files.FileLength(In("folder")); }), 75);
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(In("folder"), "x"); }), 75);
  EXPECT_TRUE(fs::is_directory(In("folder")));
  EXPECT_EQ(Names(), std::vector<std::string>{"folder"});
}

}  // namespace

}  // namespace trelonit::test

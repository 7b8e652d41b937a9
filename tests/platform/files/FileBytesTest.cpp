#include <gtest/gtest.h>

#include "platform/files/FileBytes.h"
#include "tests/support/FailingDisk.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {
namespace {

int NumberOf(FileService& files, const std::string& path) {
  try {
    ReadBytes(files, path);
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(BytesOfAFile, AreAllOfThemInTheirOrder) {
  MemoryFiles files;
  const std::string bytes(
      "a\0\r\n\xFF"
      "b",
      6);
  files.Content["/a"] = bytes;
  files.Content["/empty"] = "";
  EXPECT_EQ(ReadBytes(files, "/a"), bytes);
  EXPECT_EQ(ReadBytes(files, "/empty"), "");
}

TEST(BytesOfAFile, ThatIsNotThereRaise53) {
  MemoryFiles files;
  EXPECT_EQ(NumberOf(files, "/missing"), 53);
}

TEST(BytesOfAFile, AreNoneWhereItNeedNotBeThere) {
  MemoryFiles files;
  files.Content["/a"] = "bytes";
  EXPECT_EQ(ReadBytesIfThere(files, "/a"), "bytes");
  EXPECT_EQ(ReadBytesIfThere(files, "/missing"), "");
}

TEST(CopyOfAFile, TakesTheOthersPlace) {
  MemoryFiles files;
  files.Content["/a"] = "new";
  files.Content["/b"] = "old one";
  CopyBytes(files, "/a", "/b");
  EXPECT_EQ(files.Content["/a"], "new");
  EXPECT_EQ(files.Content["/b"], "new");
}

TEST(CopyOfAFile, ThatIsNotThereLeavesTheOtherAlone) {
  MemoryFiles files;
  files.Content["/b"] = "old one";
  EXPECT_THROW(CopyBytes(files, "/a", "/b"), RuntimeError);
  EXPECT_EQ(files.Content["/b"], "old one");
}

#ifdef __linux__
TEST(BytesOfAFile, Raise57WhereTheReadingBreaksOff) {
  FailingDisk disk;
  // Any file with bytes in it.
  EXPECT_EQ(NumberOf(disk, "/proc/self/exe"), 57);
}
#endif

}  // namespace
}  // namespace trelonit::test

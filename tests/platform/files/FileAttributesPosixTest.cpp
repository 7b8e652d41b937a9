#ifdef __linux__

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>

#include "tests/platform/files/FileFolder.h"
#include "tests/platform/system/SystemCalls.h"

namespace trelonit::test {

namespace {

constexpr const char* accessList = "system.posix_acl_access";
constexpr const char* standardList = "system.posix_acl_default";

/// An entry of the kernel's list: a tag, rights as 4 + 2 + 1, and for a named user his number.
struct Entry {
  std::uint16_t Tag;
  std::uint16_t Rights;
  std::uint32_t Id;
};

constexpr std::uint32_t nobody = 0xffffffff;

/// Version 2 and the entries, low byte first: the owner may read and write, the user 4711 read, the
/// group and the others nothing.
std::string ListWithOneReader() {
  constexpr std::uint32_t version = 2;
  constexpr std::array<Entry, 5> entries{
      {{1, 6, nobody}, {2, 4, 4711}, {4, 0, nobody}, {16, 4, nobody}, {32, 0, nobody}}};
  std::string bytes(sizeof version + sizeof entries, '\0');
  std::memcpy(bytes.data(), &version, sizeof version);
  std::memcpy(bytes.data() + sizeof version, entries.data(), sizeof entries);
  return bytes;
}

/// Files whose rights are more than nine bits.
class FileAttributes : public FileFolder {
 protected:
  bool Give(const std::string& path, const char* name, const std::string& value) {
    return ::setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
  }
  std::string Attribute(const std::string& name, const char* attribute) {
    std::string value(1024, '\0');
    const ssize_t size = ::getxattr(In(name).c_str(), attribute, value.data(), value.size());
    return size < 0 ? "none" : value.substr(0, static_cast<std::size_t>(size));
  }
  ino_t NumberOf(const std::string& name) const {
    struct stat status {};
    EXPECT_EQ(::stat(In(name).c_str(), &status), 0);
    return status.st_ino;
  }
};

/// A file with an access list, to be replaced.
class AccessList : public FileAttributes {
 protected:
  void SetUp() override {
    Put("file", "old", 0600);
    if (!Give(In("file"), accessList, ListWithOneReader())) {
      GTEST_SKIP() << "a file system without access lists";
    }
    Before = NumberOf("file");
  }

  void ReplaceAndExpectTheList() {
    files.ReplaceFile(In("file"), "new");
    EXPECT_EQ(Content("file"), "new");
    EXPECT_EQ(Attribute("file", accessList), ListWithOneReader());
  }

  ino_t Before = 0;
};

TEST_F(AccessList, StaysWithAReplacedFile) {
  ReplaceAndExpectTheList();
  // By a new file, which is whole or not there.
  EXPECT_NE(NumberOf("file"), Before);
}

TEST_F(AccessList, StaysWhereTheFolderGivesNewFilesOne) {
  ASSERT_TRUE(Give(Folder().string(), standardList, ListWithOneReader()));
  ReplaceAndExpectTheList();
  EXPECT_NE(NumberOf("file"), Before);
}

TEST_F(AccessList, StaysWhereNoNewFileTakesIt) {
  const WatchedCall failing(SystemCall::Fsetxattr, [] { return EOPNOTSUPP; });
  ReplaceAndExpectTheList();
  EXPECT_EQ(NumberOf("file"), Before);
}

TEST_F(FileAttributes, GiveNobodyRightsThatTheFolderWouldGiveANewFile) {
  Put("file", "old", 0640);
  if (!Give(Folder().string(), standardList, ListWithOneReader())) {
    GTEST_SKIP() << "a file system without access lists";
  }
  files.ReplaceFile(In("file"), "new");
  EXPECT_EQ(Attribute("file", accessList), "none");
  struct stat status {};
  ASSERT_EQ(::stat(In("file").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST_F(FileAttributes, KeepWhatTheUserRemarked) {
  Put("file", "old");
  if (!Give(In("file"), "user.comment", "checked by hand")) {
    GTEST_SKIP() << "a file system without attributes of the user";
  }
  // What is there says something already.
  ASSERT_TRUE(Give(In("file"), "user.checked", ""));
  files.ReplaceFile(In("file"), "new");
  EXPECT_EQ(Attribute("file", "user.comment"), "checked by hand");
  EXPECT_EQ(Attribute("file", "user.checked"), "");
}

}  // namespace

}  // namespace trelonit::test

#endif

#ifndef _WIN32

#include <csignal>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/Claim.h"
#include "platform/files/FileBytes.h"
#include "platform/files/Files.h"
#include "tests/platform/files/FileFolder.h"

namespace trelonit::test {

namespace fs = std::filesystem;

int ErrorOf(const std::function<void()>& body);
std::string InChild(const std::function<std::string()>& body);
void DropRights();

namespace {

/// Links, permissions and limits of the real file system.
class DiskFilesPosixTest : public FileFolder {
 protected:
  unsigned Permissions(const std::string& name) const {
    return static_cast<unsigned>(fs::status(In(name)).permissions());
  }
  /// The answer of a replacement by a plain user, in a child process.
  std::string ReplaceAsPlainUser(const std::string& name) {
    return InChild([&]() -> std::string {
      DropRights();
      files.ReplaceFile(In(name), "new");
      return "replaced";
    });
  }
  /// The same on a disk with room for a few bytes only.
  std::string ReplaceOnAFullDisk(const std::string& name) {
    return InChild([&]() -> std::string {
      // Otherwise the limit ends the process instead of failing the write.
      std::signal(SIGXFSZ, SIG_IGN);
      const rlimit limit{4096, RLIM_INFINITY};
      if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) {
        throw std::runtime_error("no limit");
      }
      files.ReplaceFile(In(name), std::string(100000, 'x'));
      return "replaced";
    });
  }
};

TEST_F(DiskFilesPosixTest, PutsANewFileInPlaceOfTheOldOne) {
  Put("file", "old");
  const auto reader = files.OpenForReading(In("file"));
  files.ReplaceFile(In("file"), "new content");
  EXPECT_EQ(Content("file"), "new content");
  // Nothing was written into the old file: whoever still holds it sees it whole.
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(*reader), {}), "old");
}

TEST_F(DiskFilesPosixTest, ServesAProgramThatHasNoStandardInput) {
  Put("file", "old");
  const std::string answer = InChild([&] {
    // The next file gets its number.
    ::close(STDIN_FILENO);
    const std::string content = ReadBytes(files, In("file"));
    files.ReplaceFile(In("file"), "new");
    return TryClaim(In("claim")).Held ? content : "no claim";
  });
  EXPECT_EQ(answer, "old");
  EXPECT_EQ(Content("file"), "new");
}

TEST_F(DiskFilesPosixTest, LetsNobodyElseOpenAClaim) {
  const ClaimAttempt attempt = TryClaim(In("claim"));
  ASSERT_NE(attempt.Held, nullptr);
  EXPECT_EQ(Permissions("claim"), 0600U);
}

TEST_F(DiskFilesPosixTest, KeepsThePermissionsOfTheOldFile) {
  for (const unsigned permissions : {0600U, 0640U, 0755U, 0666U}) {
    Put("file", "old", permissions);
    files.ReplaceFile(In("file"), "new");
    EXPECT_EQ(Permissions("file"), permissions);
    EXPECT_EQ(Content("file"), "new");
  }
}

TEST_F(DiskFilesPosixTest, GivesANewFileThePermissionsThatTheUserGivesNewFiles) {
  for (const unsigned mask : {0U, 027U}) {
    const std::string name = "file" + std::to_string(mask);
    const std::string answer = InChild([&]() -> std::string {
      ::umask(mask);
      files.ReplaceFile(In(name), "new");
      return "replaced";
    });
    EXPECT_EQ(answer, "replaced");
    EXPECT_EQ(Permissions(name), 0666U & ~mask);
  }
}

TEST_F(DiskFilesPosixTest, ReplacesTheFileThatALinkNamesAndKeepsTheLink) {
  fs::create_directory(In("elsewhere"));
  Put("elsewhere/file", "old", 0640);
  fs::create_symlink("elsewhere/file", In("link"));
  files.ReplaceFile(In("link"), "new");
  EXPECT_EQ(fs::read_symlink(In("link")), "elsewhere/file");
  EXPECT_FALSE(fs::is_symlink(In("elsewhere/file")));
  EXPECT_EQ(Content("elsewhere/file"), "new");
  EXPECT_EQ(Permissions("elsewhere/file"), 0640U);
  EXPECT_EQ(Names(), (std::set<std::string>{"elsewhere", "link"}));
  EXPECT_EQ(Names("elsewhere"), (std::set<std::string>{"file"}));
}

TEST_F(DiskFilesPosixTest, FollowsALinkToALink) {
  Put("file", "old");
  fs::create_symlink(In("file"), In("second"));
  fs::create_symlink("second", In("first"));
  files.ReplaceFile(In("first"), "new");
  EXPECT_TRUE(fs::is_symlink(In("first")));
  EXPECT_TRUE(fs::is_symlink(In("second")));
  EXPECT_FALSE(fs::is_symlink(In("file")));
  EXPECT_EQ(Content("file"), "new");
}

TEST_F(DiskFilesPosixTest, FollowsALinkInTheFolders) {
  fs::create_directory(In("real"));
  fs::create_directory_symlink("real", In("alias"));
  files.ReplaceFile(In("alias/file"), "new");
  EXPECT_TRUE(fs::is_symlink(In("alias")));
  EXPECT_EQ(Content("real/file"), "new");
}

TEST_F(DiskFilesPosixTest, WritesTheFileThatALinkNamesThoughItIsNotThereYet) {
  fs::create_directory(In("elsewhere"));
  fs::create_symlink("elsewhere/file", In("link"));
  files.ReplaceFile(In("link"), "new");
  EXPECT_TRUE(fs::is_symlink(In("link")));
  EXPECT_EQ(Names("elsewhere"), (std::set<std::string>{"file"}));
  EXPECT_EQ(Content("link"), "new");
}

TEST_F(DiskFilesPosixTest, FindsNoFileBehindALinkToNothing) {
  fs::create_symlink("nothing", In("link"));
  EXPECT_FALSE(files.FileExists(In("link")));
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(In("link")); }), 53);
}

TEST_F(DiskFilesPosixTest, FindsAFileBehindALink) {
  Put("file", "abc");
  fs::create_symlink("file", In("link"));
  EXPECT_TRUE(files.FileExists(In("link")));
  EXPECT_EQ(files.FileLength(In("link")), 3U);
}

TEST_F(DiskFilesPosixTest, RaisesPathFileAccessForLinksInACircle) {
  fs::create_symlink("one", In("other"));
  fs::create_symlink("other", In("one"));
  EXPECT_FALSE(files.FileExists(In("one")));
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(In("one")); }), 75);
  EXPECT_EQ(ErrorOf([&] { files.FileLength(In("one")); }), 75);
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(In("one"), "x"); }), 75);
  EXPECT_EQ(Names(), (std::set<std::string>{"one", "other"}));
}

TEST_F(DiskFilesPosixTest, NeverReplacesWhatIsNoOrdinaryFile) {
  ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0644), 0);
  EXPECT_EQ(ErrorOf([&] { files.ReplaceFile(In("pipe"), "x"); }), 75);
  EXPECT_TRUE(fs::is_fifo(In("pipe")));
  EXPECT_EQ(Names(), (std::set<std::string>{"pipe"}));
}

TEST_F(DiskFilesPosixTest, TakesAPathRelativeToTheWorkingFolder) {
  const std::string answer = InChild([&]() -> std::string {
    fs::current_path(In(""));
    files.ReplaceFile("fresh", "first");
    files.ReplaceFile("fresh", "second");
    return files.FileExists("fresh") ? "there" : "missing";
  });
  EXPECT_EQ(answer, "there");
  EXPECT_EQ(Content("fresh"), "second");
  EXPECT_EQ(Names(), (std::set<std::string>{"fresh"}));
}

TEST_F(DiskFilesPosixTest, RefusesAReadOnlyFileThoughItsFolderIsWritable) {
  fs::permissions(In(""), fs::perms(0777));
  Put("file", "old", 0444);
  EXPECT_EQ(ReplaceAsPlainUser("file"), "error 70");
  EXPECT_EQ(Content("file"), "old");
  EXPECT_EQ(Permissions("file"), 0444U);
  EXPECT_EQ(Names(), (std::set<std::string>{"file"}));
}

TEST_F(DiskFilesPosixTest, ReplacesAWritableFileAsAPlainUser) {
  fs::permissions(In(""), fs::perms(0777));
  Put("file", "old", 0666);
  EXPECT_EQ(ReplaceAsPlainUser("file"), "replaced");
  EXPECT_EQ(Content("file"), "new");
}

TEST_F(DiskFilesPosixTest, RefusesAFolderThatIsNotWritable) {
  fs::create_directory(In("folder"));
  fs::permissions(In("folder"), fs::perms(0555));
  EXPECT_EQ(ReplaceAsPlainUser("folder/file"), "error 70");
  EXPECT_TRUE(Names("folder").empty());
}

TEST_F(DiskFilesPosixTest, RefusesToReadAFileWithoutThePermission) {
  Put("file", "secret", 0000);
  const std::string answer = InChild([&]() -> std::string {
    DropRights();
    files.OpenForReading(In("file"));
    return "opened";
  });
  EXPECT_EQ(answer, "error 70");
}

TEST_F(DiskFilesPosixTest, RefusesAFolderThatMayNotBeEntered) {
  fs::create_directory(In("folder"));
  Put("folder/file", "secret");
  fs::permissions(In("folder"), fs::perms(0000));
  const std::string found = InChild([&]() -> std::string {
    DropRights();
    return files.FileExists(In("folder/file")) ? "found" : "not found";
  });
  const std::string opened = InChild([&]() -> std::string {
    DropRights();
    files.OpenForReading(In("folder/file"));
    return "opened";
  });
  const std::string replaced = ReplaceAsPlainUser("folder/file");
  fs::permissions(In("folder"), fs::perms(0755));
  EXPECT_EQ(found, "not found");
  EXPECT_EQ(opened, "error 70");
  EXPECT_EQ(replaced, "error 70");
  EXPECT_EQ(Content("folder/file"), "secret");
}

TEST_F(DiskFilesPosixTest, LeavesTheOldFileWholeOnAFullDisk) {
  Put("file", "old");
  EXPECT_EQ(ReplaceOnAFullDisk("file"), "error 61");
  EXPECT_EQ(Content("file"), "old");
  EXPECT_EQ(Names(), (std::set<std::string>{"file"}));
}

TEST_F(DiskFilesPosixTest, LeavesNothingOfANewFileOnAFullDisk) {
  EXPECT_EQ(ReplaceOnAFullDisk("file"), "error 61");
  EXPECT_TRUE(Names().empty());
}

TEST_F(DiskFilesPosixTest, LeavesALinkAndItsFileWholeOnAFullDisk) {
  fs::create_directory(In("elsewhere"));
  Put("elsewhere/file", "old");
  fs::create_symlink("elsewhere/file", In("link"));
  EXPECT_EQ(ReplaceOnAFullDisk("link"), "error 61");
  EXPECT_TRUE(fs::is_symlink(In("link")));
  EXPECT_EQ(Content("link"), "old");
  EXPECT_EQ(Names("elsewhere"), (std::set<std::string>{"file"}));
}

}  // namespace

}  // namespace trelonit::test

#endif

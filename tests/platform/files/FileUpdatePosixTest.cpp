#ifndef _WIN32

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <sys/resource.h>

#include "platform/files/Files.h"
#include "tests/platform/files/FileFolder.h"

namespace trelonit::test {

namespace fs = std::filesystem;

int ErrorOf(const std::function<void()>& body);
std::string InChild(const std::function<std::string()>& body);
void DropRights();

namespace {

/// Links, permissions and limits of the real file system.
class FileUpdatePosixTest : public FileFolder {
 protected:
  /// The answer to a plain user who writes one byte at the beginning, from a child process.
  std::string WrittenByAPlainUser(const std::string& name) {
    return InChild([&]() -> std::string {
      DropRights();
      files.OpenForUpdate(In(name))->WriteAt(0, "x");
      return "written";
    });
  }
};

TEST_F(FileUpdatePosixTest, WritesTheFileItselfAndNoNewOneInItsPlace) {
  Put("file", "0123", 0640);
  fs::create_hard_link(In("file"), In("other"));
  files.OpenForUpdate(In("file"))->WriteAt(1, "ab");
  EXPECT_EQ(Content("other"), "0ab3");
  EXPECT_EQ(fs::hard_link_count(In("file")), 2U);
  EXPECT_EQ(static_cast<unsigned>(fs::status(In("file")).permissions()), 0640U);
  EXPECT_EQ(std::distance(fs::directory_iterator(In("")), {}), 2);
}

TEST_F(FileUpdatePosixTest, WritesTheFileThatALinkNames) {
  Put("file", "0123", 0644);
  fs::create_symlink("file", In("link"));
  files.OpenForUpdate(In("link"))->WriteAt(1, "ab");
  EXPECT_EQ(Content("file"), "0ab3");
  EXPECT_TRUE(fs::is_symlink(In("link")));
}

TEST_F(FileUpdatePosixTest, FindsNoFileBehindALinkToNothing) {
  fs::create_symlink("nothing", In("link"));
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(In("link")); }), 53);
  EXPECT_FALSE(fs::exists(In("nothing")));
}

TEST_F(FileUpdatePosixTest, RaisesPathFileAccessForLinksInACircle) {
  fs::create_symlink("one", In("other"));
  fs::create_symlink("other", In("one"));
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(In("one")); }), 75);
}

TEST_F(FileUpdatePosixTest, RefusesAReadOnlyFileThoughItsFolderIsWritable) {
  fs::permissions(In(""), fs::perms(0777));
  Put("file", "0123", 0444);
  EXPECT_EQ(WrittenByAPlainUser("file"), "error 70");
  EXPECT_EQ(Content("file"), "0123");
}

TEST_F(FileUpdatePosixTest, NeedsNoRightsInTheFolder) {
  Put("file", "0123", 0666);
  EXPECT_EQ(WrittenByAPlainUser("file"), "written");
  EXPECT_EQ(Content("file"), "x123");
}

TEST_F(FileUpdatePosixTest, RefusesAFolderThatMayNotBeEntered) {
  fs::create_directory(In("folder"));
  Put("folder/file", "0123", 0666);
  fs::permissions(In("folder"), fs::perms(0000));
  const std::string answer = WrittenByAPlainUser("folder/file");
  fs::permissions(In("folder"), fs::perms(0755));
  EXPECT_EQ(answer, "error 70");
  EXPECT_EQ(Content("folder/file"), "0123");
}

TEST_F(FileUpdatePosixTest, RaisesPathNotFoundBelowAFile) {
  Put("file", "0123", 0666);
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(In("file/below")); }), 76);
}

TEST_F(FileUpdatePosixTest, RaisesDiskFullWhereTheFileCannotGrow) {
  Put("file", std::string(4000, 'o'), 0666);
  const std::string answer = InChild([&]() -> std::string {
    // Otherwise the limit ends the process instead of failing the write.
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{4096, RLIM_INFINITY};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) {
      throw std::runtime_error("no limit");
    }
    files.OpenForUpdate(In("file"))->WriteAt(3990, std::string(1000, 'n'));
    return "written";
  });
  EXPECT_EQ(answer, "error 61");
  // All of it as before: what fitted is taken back.
  EXPECT_EQ(Content("file"), std::string(4000, 'o'));
}

/// In a child process whose copies of old contents go into a folder of their own.
std::string InChildWithCopies(const fs::path& copies, const std::function<std::string()>& body) {
  return InChild([&]() -> std::string {
    ::setenv("XDG_DATA_HOME", "/nowhere", 1);
    ::setenv("TMPDIR", copies.c_str(), 1);
    return body();
  });
}

TEST_F(FileUpdatePosixTest, LeavesNoCopyOfTheOldContent) {
  Put("file", "0123", 0644);
  fs::create_directory(In("copies"));
  EXPECT_EQ(InChildWithCopies(In("copies"),
                              [&]() -> std::string {
                                files.OpenForUpdate(In("file"))->WriteAt(2, "abcd");
                                return "written";
                              }),
            "written");
  EXPECT_EQ(Content("file"), "01abcd");
  EXPECT_TRUE(fs::is_empty(In("copies")));
}

TEST_F(FileUpdatePosixTest, TouchesNothingWhereNoCopyCanBeKept) {
  Put("file", "0123", 0644);
  EXPECT_EQ(InChildWithCopies(In("none"),
                              [&]() -> std::string {
                                // The copy, of four bytes, does not fit.
                                const rlimit limit{2, RLIM_INFINITY};
                                std::signal(SIGXFSZ, SIG_IGN);
                                if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) {
                                  throw std::runtime_error("no limit");
                                }
                                files.OpenForUpdate(In("file"))->WriteAt(0, "a");
                                return "written";
                              }),
            "error 61");
  EXPECT_EQ(Content("file"), "0123");
}

TEST_F(FileUpdatePosixTest, WritesInsideAFileThatCannotGrow) {
  Put("file", std::string(4096, 'o'), 0666);
  const std::string answer = InChild([&]() -> std::string {
    const rlimit limit{4096, RLIM_INFINITY};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) {
      throw std::runtime_error("no limit");
    }
    files.OpenForUpdate(In("file"))->WriteAt(4090, "nnnnnn");
    return "written";
  });
  EXPECT_EQ(answer, "written");
  EXPECT_EQ(Content("file"), std::string(4090, 'o') + "nnnnnn");
}

}  // namespace

}  // namespace trelonit::test

#endif

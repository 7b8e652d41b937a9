#ifndef _WIN32

#include <csignal>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <sched.h>
#include <set>
#include <stdexcept>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/Files.h"
#include "tests/platform/files/FileFolder.h"

namespace trelonit::test {

namespace fs = std::filesystem;

std::string InChild(const std::function<std::string()>& body);
void DropRights();

namespace {

constexpr unsigned someUser = 12345;
constexpr unsigned someGroup = 54321;

/// Files that no new one can take the place of, and what else a new one would lose.
class FileInItsPlace : public FileFolder {
 protected:
  FileInItsPlace() {
    fs::create_directory(Copies());
    fs::permissions(Copies(), fs::perms(0777));
  }
  ~FileInItsPlace() override {
    for (const fs::path& folder : {Folder(), Folder() / "folder"}) {
      std::error_code ignored;
      fs::permissions(folder, fs::perms(0777), ignored);
    }
  }
  /// Where the copies of old contents go.
  fs::path Copies() const { return Folder() / "copies"; }
  /// A file that everybody may write, in a folder that nobody may.
  void PutInReadOnlyFolder(const std::string& content) {
    fs::create_directory(In("folder"));
    Put("folder/file", content, 0666);
    fs::permissions(In("folder"), fs::perms(0555));
  }
  struct stat Status(const std::string& name) const {
    struct stat status {};
    EXPECT_EQ(::stat(In(name).c_str(), &status), 0);
    return status;
  }
  /// What comes of a replacement in a child process of which the preparation is told.
  std::string Replace(const std::string& name, const std::string& content,
                      const std::function<void()>& prepare) {
    return InChild([&]() -> std::string {
      ::setenv("TMPDIR", Copies().c_str(), 1);
      ::setenv("XDG_DATA_HOME", In("no data").c_str(), 1);
      prepare();
      DiskFiles().ReplaceFile(In(name), content);
      return "replaced";
    });
  }
  static void LimitFiles() {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{4096, RLIM_INFINITY};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) {
      throw std::runtime_error("no limit");
    }
  }
};

TEST_F(FileInItsPlace, IsWrittenThereInAReadOnlyFolder) {
  PutInReadOnlyFolder("a longer old content");
  const auto before = Status("folder/file").st_ino;
  EXPECT_EQ(Replace("folder/file", "new", DropRights), "replaced");
  EXPECT_EQ(Content("folder/file"), "new");
  EXPECT_EQ(Status("folder/file").st_ino, before);
  EXPECT_TRUE(Names("copies").empty());
}

TEST_F(FileInItsPlace, GetsItsOldContentBackOnAFullDisk) {
  PutInReadOnlyFolder("old");
  EXPECT_EQ(Replace("folder/file", std::string(100000, 'x'),
                    [] {
                      DropRights();
                      LimitFiles();
                    }),
            "error 61");
  EXPECT_EQ(Content("folder/file"), "old");
  EXPECT_TRUE(Names("copies").empty());
}

TEST_F(FileInItsPlace, IsNotTouchedWhereNoCopyOfItCanBeKept) {
  PutInReadOnlyFolder(std::string(5000, 'o'));
  EXPECT_EQ(Replace("folder/file", "new",
                    [] {
                      DropRights();
                      LimitFiles();
                    }),
            "error 61");
  EXPECT_EQ(Content("folder/file"), std::string(5000, 'o'));
  EXPECT_TRUE(Names("copies").empty());
}

TEST_F(FileInItsPlace, KeepsItsOtherNames) {
  Put("file", "a longer old content", 0640);
  fs::create_hard_link(In("file"), In("other"));
  EXPECT_EQ(Replace("file", "new", [] {}), "replaced");
  EXPECT_EQ(Content("file"), "new");
  EXPECT_EQ(Content("other"), "new");
  EXPECT_EQ(fs::hard_link_count(In("file")), 2U);
  EXPECT_EQ(Status("file").st_mode & 07777U, 0640U);
  EXPECT_TRUE(Names("copies").empty());
}

TEST_F(FileInItsPlace, WithOtherNamesGetsItsOldContentBackOnAFullDisk) {
  Put("file", "old");
  fs::create_hard_link(In("file"), In("other"));
  EXPECT_EQ(Replace("file", std::string(100000, 'x'), LimitFiles), "error 61");
  EXPECT_EQ(Content("other"), "old");
  EXPECT_TRUE(Names("copies").empty());
}

TEST_F(FileInItsPlace, IsWrittenThereWhereItIsMounted) {
  Put("source", "old");
  Put("mounted", "below");
  const std::string answer = Replace("mounted", "new", [&] {
    if (::unshare(CLONE_NEWNS) != 0 ||
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount(In("source").c_str(), In("mounted").c_str(), nullptr, MS_BIND, nullptr) != 0) {
      throw std::runtime_error("no mounts");
    }
  });
  if (answer == "exception no mounts") {
    GTEST_SKIP() << "nothing may be mounted here";
  }
  EXPECT_EQ(answer, "replaced");
  EXPECT_EQ(Content("source"), "new");
  EXPECT_EQ(Content("mounted"), "below");
  EXPECT_EQ(Names(), (std::set<std::string>{"copies", "mounted", "source"}));
}

TEST_F(FileInItsPlace, KeepsItsOwnerAndGroupWhereTheUserMayGiveThem) {
  if (::geteuid() != 0) {
    GTEST_SKIP() << "only root gives files away";
  }
  Put("file", "old", 0640);
  ASSERT_EQ(::chown(In("file").c_str(), someUser, someGroup), 0);
  EXPECT_EQ(Replace("file", "new", [] {}), "replaced");
  EXPECT_EQ(Content("file"), "new");
  EXPECT_EQ(Status("file").st_uid, someUser);
  EXPECT_EQ(Status("file").st_gid, someGroup);
  EXPECT_EQ(Status("file").st_mode & 07777U, 0640U);
}

TEST_F(FileInItsPlace, KeepsItsOwnerWhereOnlyItsGroupIsAnother) {
  if (::geteuid() != 0) {
    GTEST_SKIP() << "only root is in every group";
  }
  Put("file", "old");
  ASSERT_EQ(::chown(In("file").c_str(), ::geteuid(), someGroup), 0);
  const auto before = Status("file").st_ino;
  EXPECT_EQ(Replace("file", "new", [] {}), "replaced");
  // By a new file, which is whole or not there.
  EXPECT_NE(Status("file").st_ino, before);
  EXPECT_EQ(Status("file").st_uid, ::geteuid());
  EXPECT_EQ(Status("file").st_gid, someGroup);
}

TEST_F(FileInItsPlace, KeepsAGroupThatTheUserMayNotGive) {
  if (::geteuid() != 0) {
    GTEST_SKIP() << "only root gives files away";
  }
  fs::permissions(In(""), fs::perms(0777));
  Put("file", "old", 0666);
  ASSERT_EQ(::chown(In("file").c_str(), someUser, someGroup), 0);
  EXPECT_EQ(Replace("file", "new", DropRights), "replaced");
  EXPECT_EQ(Content("file"), "new");
  EXPECT_EQ(Status("file").st_uid, someUser);
  EXPECT_EQ(Status("file").st_gid, someGroup);
}

}  // namespace

}  // namespace trelonit::test

#endif

#ifndef _WIN32

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/files/Files.h"
#include "platform/posix/Leftovers.h"
#include "platform/posix/PosixReplacement.h"
#include "tests/platform/files/FileFolder.h"

namespace trelonit::test {

namespace fs = std::filesystem;

std::string InChild(const std::function<std::string()>& body);
void DropRights();

namespace {

/// What is left of a save that never came to its end.
class InterruptedSave : public FileFolder {
 protected:
  /// A save that dies in the middle of its writing, by the signal of a file that grows too large.
  void DieWhileSaving(const std::string& name, WhileWritten way = WhileWritten::Nameless) {
    const std::string answer = InChild([&]() -> std::string {
      std::signal(SIGXFSZ, SIG_DFL);
      const rlimit noCore{0, 0};
      const rlimit limit{4096, RLIM_INFINITY};
      if (::setrlimit(RLIMIT_CORE, &noCore) != 0 || ::setrlimit(RLIMIT_FSIZE, &limit) != 0) {
        throw std::runtime_error("no limit");
      }
      ReplaceOnDisk(In(name), std::string(100000, 'x'), way);
      return "replaced";
    });
    ASSERT_EQ(answer, "died");
  }
};

/// The number of a process that has come to its end and is forgotten.
pid_t DeadProcess() {
  const pid_t child = ::fork();
  if (child == 0) {
    ::_exit(0);
  }
  ::waitpid(child, nullptr, 0);
  return child;
}

std::string LeftoverOf(pid_t process) {
  return ".trelonit-new-" + std::to_string(process) + "-12345-678";
}

TEST_F(InterruptedSave, LeavesTheOldFileWholeAndNothingThatMoreMayRead) {
  Put("file", "secret", 0600);
  DieWhileSaving("file");
  EXPECT_EQ(Content("file"), "secret");
  for (const std::string& name : Names()) {
    EXPECT_EQ(static_cast<unsigned>(fs::status(In(name)).permissions()), 0600U) << name;
  }
}

TEST_F(InterruptedSave, LeavesNothingAtAllWhereFilesMayBeNameless) {
  const int nameless = ::open(In("").c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, 0600);
  if (nameless < 0) {
    GTEST_SKIP() << "this file system knows no nameless files";
  }
  ::close(nameless);
  Put("file", "old");
  DieWhileSaving("file");
  EXPECT_EQ(Names(), std::set<std::string>{"file"});
}

TEST_F(InterruptedSave, HasTheRightsOfTheFileAlsoWhereItHasAName) {
  Put("file", "secret", 0640);
  DieWhileSaving("file", WhileWritten::Named);
  EXPECT_EQ(Content("file"), "secret");
  EXPECT_EQ(Names().size(), 2U);
  for (const std::string& name : Names()) {
    EXPECT_EQ(static_cast<unsigned>(fs::status(In(name)).permissions()), 0640U) << name;
  }
  ReplaceOnDisk(In("file"), "new", WhileWritten::Named);
  EXPECT_EQ(Names(), std::set<std::string>{"file"});
  EXPECT_EQ(Content("file"), "new");
  EXPECT_EQ(static_cast<unsigned>(fs::status(In("file")).permissions()), 0640U);
}

TEST_F(InterruptedSave, LeavesNothingBehindTheNextSave) {
  Put("file", "old");
  DieWhileSaving("file");
  files.ReplaceFile(In("file"), "new");
  EXPECT_EQ(Names(), std::set<std::string>{"file"});
  EXPECT_EQ(Content("file"), "new");
}

TEST_F(InterruptedSave, OfAProcessThatIsGoneIsRemovedByTheNextOne) {
  Put(LeftoverOf(DeadProcess()), "half");
  files.ReplaceFile(In("file"), "new");
  EXPECT_EQ(Names(), std::set<std::string>{"file"});
}

TEST_F(InterruptedSave, OfAProcessThatLivesIsLeftAlone) {
  Put(LeftoverOf(::getpid()), "half");
  Put(LeftoverOf(1), "half");
  files.ReplaceFile(In("file"), "new");
  EXPECT_EQ(Names(), (std::set<std::string>{"file", LeftoverOf(::getpid()), LeftoverOf(1)}));
}

TEST_F(InterruptedSave, OfAProcessThatLivesIsLeftAloneAfterOneThatIsGone) {
  Put(LeftoverOf(::getpid()), "half");
  // As the question for a process that is gone leaves it.
  errno = ESRCH;
  RemoveLeftovers(Folder());
  EXPECT_EQ(Names(), std::set<std::string>{LeftoverOf(::getpid())});
}

TEST_F(InterruptedSave, OfAProcessOfAnotherUserIsLeftAlone) {
  fs::permissions(Folder(), fs::perms(0777));
  Put(LeftoverOf(1), "half", 0666);
  EXPECT_EQ(InChild([&]() -> std::string {
              DropRights();
              files.ReplaceFile(In("file"), "new");
              return "replaced";
            }),
            "replaced");
  EXPECT_EQ(Names(), (std::set<std::string>{"file", LeftoverOf(1)}));
}

TEST_F(InterruptedSave, IsNotTakenForAFileOfTheUsers) {
  const std::string dead = std::to_string(DeadProcess());
  const std::set<std::string> names{".trelonit-new",
                                    ".trelonit-new-",
                                    ".trelonit-new-" + dead,
                                    ".trelonit-new-x" + dead + "-1-2",
                                    ".trelonit-new--1-1-2",
                                    ".trelonit-new-0-1-2",
                                    "trelonit-new-" + dead + "-1-2"};
  for (const std::string& name : names) {
    Put(name, "mine");
  }
  fs::create_directory(In(".trelonit-new-" + dead + "-1-2"));
  fs::create_symlink("nowhere", In(".trelonit-new-" + dead + "-3-4"));
  files.ReplaceFile(In("file"), "new");
  std::set<std::string> expected = names;
  expected.insert({"file", ".trelonit-new-" + dead + "-1-2", ".trelonit-new-" + dead + "-3-4"});
  EXPECT_EQ(Names(), expected);
}

}  // namespace

}  // namespace trelonit::test

#endif

#ifdef __linux__

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>
#include <unistd.h>
#include <vector>

#include "platform/console/ConsoleServices.h"
#include "platform/files/Claim.h"
#include "platform/files/FileBytes.h"
#include "platform/posix/ContentCopy.h"
#include "tests/platform/files/FileFolder.h"
#include "tests/platform/system/SystemCalls.h"

namespace trelonit::test {

namespace fs = std::filesystem;

int ErrorOf(const std::function<void()>& body);

namespace {

constexpr int deviceError = 57;
constexpr int pathFileAccess = 75;

/// Files on a disk that fails one of the system's calls.
class FailingCalls : public FileFolder {
 protected:
  int ErrorOfReplacing(const std::string& name, const std::string& content) {
    return ErrorOf([&] { files.ReplaceFile(In(name), content); });
  }
};

TEST_F(FailingCalls, LeaveTheOldFileWhereTheNewOneIsNotSeenOnTheDisk) {
  Put("file", "old");
  const WatchedCall failing(SystemCall::Fsync, FailsOnce(EIO));
  EXPECT_EQ(ErrorOfReplacing("file", "new"), deviceError);
  EXPECT_EQ(Content("file"), "old");
  EXPECT_EQ(Names(), std::set<std::string>{"file"});
}

TEST_F(FailingCalls, AreNoneWhereTheFileSystemHasNoFlush) {
  Put("file", "old");
  const WatchedCall failing(SystemCall::Fsync, FailsOnce(EINVAL));
  EXPECT_EQ(ErrorOfReplacing("file", "new"), 0);
  EXPECT_EQ(Content("file"), "new");
}

TEST_F(FailingCalls, ThatASignalBrokeOffAreMadeAgain) {
  Put("file", "old");
  {
    const WatchedCall writing(SystemCall::Pwrite, FailsOnce(EINTR));
    EXPECT_EQ(ErrorOfReplacing("file", "new"), 0);
  }
  {
    const WatchedCall reading(SystemCall::Read, FailsOnce(EINTR));
    EXPECT_EQ(ReadBytes(files, In("file")), "new");
  }
  // The copy of the old content is read so.
  const WatchedCall copying(SystemCall::Pread, FailsOnce(EINTR));
  files.OpenForUpdate(In("file"))->WriteAt(0, "N");
  EXPECT_EQ(Content("file"), "New");
}

TEST_F(FailingCalls, OfBeforeAreNotTakenForOnesAtTheEndOfAFile) {
  Put("file", "content");
  ::alarm(20);
  const auto stream = files.OpenForReading(In("file"));
  errno = EINTR;
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(*stream), {}), "content");
  const Descriptor file(::open(In("file").c_str(), O_RDONLY | O_CLOEXEC));
  errno = EINTR;
  EXPECT_EQ(ReadAll(file), "content");
  ::alarm(0);
}

TEST_F(FailingCalls, AreToldWhereAFileBreaksOff) {
  Put("file", "content");
  const auto stream = files.OpenForReading(In("file"));
  const WatchedCall failing(SystemCall::Read, FailsOnce(EIO));
  EXPECT_EQ(stream->get(), std::istream::traits_type::eof());
  EXPECT_TRUE(stream->bad());
}

TEST_F(FailingCalls, AreToldWhereNothingIsKnownOfAnOpenFile) {
  Put("file", "old");
  const WatchedCall failing(SystemCall::Fstat, [] { return EIO; });
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(In("file")); }), deviceError);
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(In("file")); }), pathFileAccess);
}

TEST_F(FailingCalls, AreTakenForAFileThatMightStandThere) {
  // A device that does not answer has not said that there is none: each of the questions about the
  // file is one of them.
  Put("file", "old");
  const WatchedCall failing(SystemCall::Stat, [] { return EIO; });
  EXPECT_TRUE(files.FileExists(In("file")));
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(In("file")); }), deviceError);
}

TEST_F(FailingCalls, ReplaceNoFileThatNothingIsKnownOf) {
  Put("file", "old");
  int asked = 0;
  for (int failing = 1; failing == 1 || asked >= failing; ++failing) {
    ASSERT_LT(failing, 100);
    asked = 0;
    int error = 0;
    {
      const WatchedCall call(SystemCall::Stat, [&] { return ++asked == failing ? EIO : 0; });
      error = ErrorOfReplacing("file", "new");
    }
    if (asked >= failing) {
      EXPECT_EQ(error, deviceError) << failing;
      EXPECT_EQ(Content("file"), "old") << failing;
    } else {
      EXPECT_EQ(error, 0);
      EXPECT_EQ(Content("file"), "new");
    }
  }
}

TEST_F(FailingCalls, GiveTheNewFileANameFromTheStartWhereItGetsNoneAtTheEnd) {
  Put("file", "old");
  // As where the system tells nothing of its processes.
  const WatchedCall failing(SystemCall::Linkat, [] { return ENOENT; });
  EXPECT_EQ(ErrorOfReplacing("file", "new"), 0);
  EXPECT_EQ(Content("file"), "new");
  EXPECT_EQ(Names(), std::set<std::string>{"file"});
}

TEST_F(FailingCalls, AreToldWhereAPipeCannotBeRead) {
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe(ends.data()), 0);
  const WatchedCall failing(SystemCall::Read, FailsOnce(EIO));
  const std::string pipe = "/dev/fd/" + std::to_string(ends[0]);
  EXPECT_EQ(ErrorOf([&] { files.OpenForReading(pipe); }), deviceError);
  ::close(ends[0]);
  ::close(ends[1]);
}

TEST_F(FailingCalls, LeaveAFileThatIsUpdatedAsItWas) {
  Put("file", "0123456789");
  const WatchedCall failing(SystemCall::Ftruncate, FailsOnce(EIO));
  EXPECT_EQ(ErrorOf([&] { files.OpenForUpdate(In("file"))->WriteAt(2, "ab"); }), deviceError);
  EXPECT_EQ(Content("file"), "0123456789");
}

TEST_F(FailingCalls, LeaveAFileWithTwoNamesAsItWas) {
  Put("file", "old content");
  fs::create_hard_link(In("file"), In("other"));
  const WatchedCall failing(SystemCall::Ftruncate, FailsOnce(EIO));
  EXPECT_EQ(ErrorOfReplacing("file", "new"), deviceError);
  EXPECT_EQ(Content("other"), "old content");
  EXPECT_EQ(fs::hard_link_count(In("file")), 2U);
}

TEST_F(FailingCalls, MakeNoClaimWhereTheFileSystemHasNoLocks) {
  const WatchedCall failing(SystemCall::Flock, [] { return ENOLCK; });
  const ClaimAttempt attempt = TryClaim(In("a"));
  EXPECT_EQ(attempt.Held, nullptr);
  EXPECT_FALSE(attempt.ByAnother);
}

/// Whose calls all happen.
class OrdinarySave : public FailingCalls {};

TEST_F(OrdinarySave, WritesTheFileOnce) {
  Put("file", "old");
  int flushes = 0;
  const WatchedCall watched(SystemCall::Fsync, [&flushes] {
    ++flushes;
    return 0;
  });
  EXPECT_EQ(ErrorOfReplacing("file", "new"), 0);
  EXPECT_EQ(flushes, 1);
}

/// What its last holder takes away while it is opened anew.
class VanishingClaim : public FailingCalls {
 protected:
  std::function<int()> Vanishes(int times) {
    return [this, times]() mutable {
      if (times > 0) {
        --times;
        fs::remove(In("a"));
      }
      return 0;
    };
  }
};

TEST_F(VanishingClaim, IsMadeAnew) {
  const WatchedCall vanishing(SystemCall::Flock, Vanishes(3));
  const ClaimAttempt attempt = TryClaim(In("a"));
  ASSERT_NE(attempt.Held, nullptr);
  EXPECT_EQ(Names(), std::set<std::string>{"a"});
}

TEST_F(VanishingClaim, OfAnotherIsNotTakenForTheOwn) {
  // Whoever comes first after the last holder has a new file of the same name.
  const WatchedCall vanishing(SystemCall::Flock, [this, first = true]() mutable {
    if (std::exchange(first, false)) {
      // The new file is there before the old one goes, so that it is another one.
      Put("b", "");
      fs::rename(In("b"), In("a"));
    }
    return 0;
  });
  const ClaimAttempt attempt = TryClaim(In("a"));
  ASSERT_NE(attempt.Held, nullptr);
  EXPECT_TRUE(TryClaim(In("a")).ByAnother);
}

TEST_F(VanishingClaim, IsGivenUpInTheEnd) {
  const WatchedCall vanishing(SystemCall::Flock, Vanishes(1'000'000));
  const ClaimAttempt attempt = TryClaim(In("a"));
  EXPECT_EQ(attempt.Held, nullptr);
  EXPECT_FALSE(attempt.ByAnother);
}

TEST(ConsoleShell, RaisesADeviceErrorWhereTheMachineHasNoName) {
  const WatchedCall failing(SystemCall::Gethostname, FailsOnce(EIO));
  EXPECT_EQ(ErrorOf([] { ConsoleShell().ComputerName(); }), deviceError);
}

}  // namespace

}  // namespace trelonit::test

#endif

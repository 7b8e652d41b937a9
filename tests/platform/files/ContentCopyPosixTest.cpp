#ifndef _WIN32

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <sys/resource.h>

#include "platform/posix/ContentCopy.h"
#include "tests/platform/files/FileFolder.h"

namespace trelonit::test {

namespace fs = std::filesystem;

int ErrorOf(const std::function<void()>& body);
std::string InChild(const std::function<std::string()>& body);
void DropRights();

namespace {

/// In a child process whose folders of the user's data and of temporary files are these.
class ContentCopyTest : public FileFolder {
 protected:
  std::string With(const std::string& data, const std::string& temporary,
                   const std::function<std::string()>& body) const {
    return InChild([&] {
      ::setenv("XDG_DATA_HOME", In(data).c_str(), 1);
      ::setenv("TMPDIR", In(temporary).c_str(), 1);
      return body();
    });
  }
};

std::string KeptCopy() {
  return ContentCopy("old").Keep();
}

TEST_F(ContentCopyTest, StandsInTheUsersFolderWhereThereIsOne) {
  fs::create_directories(In("data/trelonit"));
  fs::create_directory(In("temporary"));
  const fs::path copy = With("data", "temporary", KeptCopy);
  EXPECT_EQ(copy.parent_path(), In("data/trelonit"));
  EXPECT_EQ(Content(fs::relative(copy, Folder()).string()), "old");
  EXPECT_EQ(static_cast<unsigned>(fs::status(copy).permissions()), 0600U);
}

TEST_F(ContentCopyTest, StandsAmongTheTemporaryFilesOtherwise) {
  fs::create_directory(In("temporary"));
  EXPECT_EQ(fs::path(With("data", "temporary", KeptCopy)).parent_path(), In("temporary"));
}

TEST_F(ContentCopyTest, StandsAmongTheSystemsTemporaryFilesWhereTheUsersAreMissing) {
  const fs::path copy = With("data", "temporary", KeptCopy);
  EXPECT_EQ(copy.parent_path(), "/tmp");
  EXPECT_TRUE(fs::remove(copy));
}

TEST_F(ContentCopyTest, IsRefusedWhereNoFolderTakesIt) {
  fs::create_directory(In("temporary"));
  fs::permissions(In("temporary"), fs::perms(0555));
  EXPECT_EQ(With("data", "temporary",
                 [] {
                   DropRights();
                   return KeptCopy();
                 }),
            "error 70");
}

TEST_F(ContentCopyTest, GoesUnlessItIsKept) {
  fs::create_directories(In("data/trelonit"));
  const std::string copies = With("data", "data", [this] {
    const ContentCopy copy("old");
    return std::to_string(Names("data/trelonit").size());
  });
  EXPECT_EQ(copies, "1");
  EXPECT_TRUE(Names("data/trelonit").empty());
}

TEST_F(ContentCopyTest, LeavesNothingOnAFullDisk) {
  fs::create_directories(In("data/trelonit"));
  const std::string answer = With("data", "data", []() -> std::string {
    // Otherwise the limit ends the process instead of failing the write.
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{4096, RLIM_INFINITY};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) {
      throw std::runtime_error("no limit");
    }
    const ContentCopy copy(std::string(100000, 'x'));
    return "copied";
  });
  EXPECT_EQ(answer, "error 61");
  EXPECT_TRUE(Names("data/trelonit").empty());
}

TEST_F(ContentCopyTest, OfAFileIsAllOfIt) {
  // More than one part of the reading.
  std::string content;
  for (int line = 0; line < 20'000; ++line) {
    content += std::to_string(line) + '\n';
  }
  Put("file", content);
  const Descriptor file(::open(In("file").c_str(), O_RDONLY | O_CLOEXEC));
  EXPECT_EQ(ReadAll(file), content);
}

TEST_F(ContentCopyTest, OfAFolderCannotBeMade) {
  const Descriptor folder(::open(Folder().c_str(), O_RDONLY | O_CLOEXEC));
  EXPECT_EQ(ErrorOf([&] { ReadAll(folder); }), 75);
}

}  // namespace

}  // namespace trelonit::test

#endif

#ifndef _WIN32

#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "platform/errors/RuntimeError.h"
#include "platform/files/Files.h"

namespace trelonit::test {

namespace fs = std::filesystem;

int ErrorOf(const std::function<void()>& body);
std::shared_ptr<const fs::path> TemporaryFolder();
std::string InChild(const std::function<std::string()>& body);

namespace {

/// What has a name and is no ordinary file. A reading that waits for ever would be ended by the
/// alarm.
class NamedPipe : public testing::Test {
 protected:
  NamedPipe() {
    if (::mkfifo(Pipe().c_str(), 0644) != 0) {
      throw std::runtime_error("no pipe");
    }
  }
  std::string Pipe() const { return (*folder_ / "pipe").string(); }
  static std::string Read(const std::string& path) {
    const auto stream = DiskFiles().OpenForReading(path);
    return {std::istreambuf_iterator<char>(*stream), {}};
  }
  static std::string ReadInTime(const std::string& path) {
    return InChild([&]() -> std::string {
      ::alarm(5);
      return Read(path);
    });
  }

 private:
  std::shared_ptr<const fs::path> folder_ = TemporaryFolder();
};

TEST_F(NamedPipe, IsRefusedAtOnceWhereNobodyWritesIntoIt) {
  EXPECT_EQ(ReadInTime(Pipe()), "error 75");
}

TEST_F(NamedPipe, IsReadToTheEndOfItsWriter) {
  const std::string bytes(200000, 'x');
  // A reader that was there before the writer has refused the pipe and left it.
  const auto before = std::signal(SIGPIPE, SIG_IGN);
  std::thread writer([&] {
    bool written = false;
    for (int turn = 0; turn < 5000 && !written; ++turn) {
      std::ofstream pipe(Pipe(), std::ios::binary);
      pipe << bytes << std::flush;
      written = pipe.good();
    }
  });
  std::string read;
  // The writer needs a moment to come to its pipe.
  for (int turn = 0; turn < 5000 && read.empty(); ++turn) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    ErrorOf([&] { read = Read(Pipe()); });
  }
  writer.join();
  std::signal(SIGPIPE, before);
  EXPECT_EQ(read.size(), bytes.size());
}

TEST_F(NamedPipe, IsAwaitedWhileItsWriterHasNothingYet) {
  std::string read;
  // On a busy machine the writer may have come and gone before the reader is there.
  for (int turn = 0; turn < 20 && read.empty(); ++turn) {
    const int keep = ::open(Pipe().c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_GE(keep, 0);
    const std::jthread writer([&] {
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
      EXPECT_EQ(::write(keep, "late", 4), 4);
      ::close(keep);
    });
    ErrorOf([&] { read = Read(Pipe()); });
  }
  EXPECT_EQ(read, "late");
}

TEST_F(NamedPipe, IsNotOpenedForWritingInPlace) {
  EXPECT_EQ(InChild([&]() -> std::string {
              ::alarm(5);
              DiskFiles().OpenForUpdate(Pipe());
              return "opened";
            }),
            "error 75");
}

TEST_F(NamedPipe, SaysInWordsWhatIsWrong) {
  try {
    ::alarm(20);
    Read(Pipe());
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Description(), "Path/File access error: в этот канал никто не пишет");
  }
  ::alarm(0);
}

TEST(DeviceFile, IsRefused) {
  EXPECT_EQ(ErrorOf([] { DiskFiles().OpenForReading("/dev/full"); }), 75);
}

/// What the program reads, as a rule from its standard input.
std::string StandardInput(int input, const std::string& name = "/dev/stdin") {
  return InChild([&]() -> std::string {
    ::alarm(5);
    ::dup2(input, STDIN_FILENO);
    const auto stream = DiskFiles().OpenForReading(name);
    std::array<char, 4> bytes{};
    stream->read(bytes.data(), bytes.size());
    return {bytes.data(), static_cast<std::size_t>(stream->gcount())};
  });
}

TEST(StandardInput, IsReadFromAPipe) {
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
  ASSERT_EQ(::write(ends[1], "abcd", 4), 4);
  ::close(ends[1]);
  EXPECT_EQ(StandardInput(ends[0]), "abcd");
  ::close(ends[0]);
}

TEST(StandardInput, MayBeADevice) {
  const int zeros = ::open("/dev/zero", O_RDONLY | O_CLOEXEC);
  EXPECT_EQ(StandardInput(zeros), std::string(4, '\0'));
  // That allows no other one.
  EXPECT_EQ(StandardInput(zeros, "/dev/full"), "error 75");
  ::close(zeros);
}

}  // namespace

}  // namespace trelonit::test

#endif

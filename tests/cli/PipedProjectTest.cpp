#ifndef _WIN32

#include <chrono>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "tests/cli/Workbench.h"

namespace trelonit::test {

namespace {

const std::string openFailure =
    "WriteApplParameters: Ошибка создания файла для записи ! err discription : \n";
const std::string tooFewLines =
    "ReadApplParameters: Ошибка чтения файла сохранения.\n"
    "колличество строк не соответствует ожидаемому!\n";
const std::string wrongHeader = "Ошибка считывания первой строки файла сохранения !\n";

/// A project that comes from something else than a file.
class PipedProject : public CliTest {
 protected:
  PipedProject() { Put("a.tsav", ExampleBytes(1)); }

  Launch InTime(std::vector<std::string> arguments) const {
    Launch launch = Command(std::move(arguments));
    launch.TimeLimit = std::chrono::seconds(10);
    return launch;
  }
  Outcome Calculated(const std::string& project) const {
    return RunProgram(InTime({"calc", project}));
  }
  void ExpectResult(const Outcome& outcome) const {
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, "");
    EXPECT_EQ(outcome.Out, Run({"calc", "a.tsav"}).Out);
  }
  static void ExpectFailure(const Outcome& outcome, const std::string& err) {
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(outcome.Err.substr(0, err.size()), err);
  }
  std::string MakePipe() const {
    EXPECT_EQ(::mkfifo((WorkFolder() / "pipe.tsav").c_str(), 0644), 0);
    return (WorkFolder() / "pipe.tsav").string();
  }
};

TEST_F(PipedProject, IsReadFromStandardInput) {
  for (const char* name : {"/dev/stdin", "/dev/fd/0", "/proc/self/fd/0"}) {
    Launch launch = InTime({"calc", name});
    launch.PipedInput = ExampleBytes(1);
    ExpectResult(RunProgram(launch));
    launch.PipedInput.reset();
    launch.InputFrom = (WorkFolder() / "a.tsav").string();
    ExpectResult(RunProgram(launch));
  }
}

TEST_F(PipedProject, IsReadByEveryCommandThatTakesOne) {
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"audit"}, {"select"}, {"report", "-o", "-"}}) {
    std::vector<std::string> fromFile = command;
    fromFile.insert(fromFile.begin() + 1, "a.tsav");
    std::vector<std::string> piped = command;
    piped.insert(piped.begin() + 1, "/dev/stdin");
    Launch launch = InTime(piped);
    launch.PipedInput = ExampleBytes(1);
    const Outcome outcome = RunProgram(launch);
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Out, Run(fromFile).Out);
  }
}

TEST_F(PipedProject, ThatIsCutIsToldLikeACutFile) {
  Launch launch = InTime({"calc", "/dev/stdin"});
  launch.PipedInput = ExampleBytes(1).substr(0, 100);
  ExpectFailure(RunProgram(launch), tooFewLines);
}

TEST_F(PipedProject, IsReadFromANamedPipeWhileSomebodyWritesIntoIt) {
  const std::string pipe = MakePipe();
  const int keep = ::open(pipe.c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_GE(keep, 0);
  Subprocess program(InTime({"calc", "pipe.tsav"}));
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  const std::string bytes = ExampleBytes(1);
  // The writer never closes its end: all that the format needs is there.
  ASSERT_EQ(::write(keep, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  ExpectResult(program.Wait());
  ::close(keep);
}

TEST_F(PipedProject, IsRefusedAtOnceWhereNobodyWrites) {
  MakePipe();
  const Outcome outcome = Calculated("pipe.tsav");
  EXPECT_FALSE(outcome.TimedOut);
  ExpectFailure(outcome, openFailure + "Path/File access error: в этот канал никто не пишет\n" +
                             tooFewLines + wrongHeader);
}

TEST_F(PipedProject, IsNotReadFromADevice) {
  ExpectFailure(Calculated("/dev/full"), openFailure +
                                             "Path/File access error: это не файл, а устройство\n" +
                                             tooFewLines + wrongHeader);
}

TEST_F(PipedProject, WithoutAnEndIsDamaged) {
  Launch launch = InTime({"calc", "/dev/stdin"});
  launch.InputFrom = "/dev/zero";
  const Outcome outcome = RunProgram(launch);
  EXPECT_FALSE(outcome.TimedOut);
  EXPECT_LT(outcome.PeakMemory, MemoryLimit(100));
  ExpectFailure(outcome, tooFewLines + wrongHeader);
}

TEST_F(PipedProject, ThatBreaksOffIsToldLikeOneThatCannotBeOpened) {
  // The first page of a process is never there: reading it is a failure of the device.
  const Outcome outcome = Calculated("/proc/self/mem");
  Put("empty.tsav", "");
  ExpectFailure(outcome, openFailure + "Device I/O error\n" + Calculated("empty.tsav").Err);
}

}  // namespace

}  // namespace trelonit::test

#endif

#ifndef _WIN32

#include <algorithm>
#include <fstream>
#include <string>

#include "tests/cli/Workbench.h"

namespace trelonit::test {

namespace {

constexpr std::uint64_t megabyte = 1U << 20U;
constexpr std::uint64_t hundredMegabytes = 100 * megabyte;

/// Files whose size must cost neither memory nor more than the time to read them.
class HugeInput : public CliTest {
 protected:
  Outcome Calculated() {
    Launch launch = Command({"calc", "huge.tsav"});
    launch.TimeLimit = std::chrono::seconds(120);
    const Outcome outcome = RunProgram(launch);
    EXPECT_FALSE(outcome.TimedOut);
    EXPECT_LE(outcome.PeakMemory, MemoryLimit(40));
    return outcome;
  }

  void ExpectRefused(const std::string& message) {
    const Outcome outcome = Calculated();
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_NE(outcome.Err.find(message), std::string::npos) << outcome.Err;
  }

  /// Never holds more than a megabyte: the memory of this program counts for the one it starts.
  void PutRepeated(const std::string& head, char byte, const std::string& tail) {
    std::ofstream stream(WorkFolder() / "huge.tsav", std::ios::binary);
    stream << head;
    const std::string block(megabyte, byte);
    for (std::uint64_t written = 0; written < hundredMegabytes; written += megabyte) {
      stream << block;
    }
    stream << tail;
    ASSERT_TRUE(stream.flush());
  }
};

const std::string countMessage = "колличество строк не соответствует ожидаемому!\n";
const std::string headerMessage = "Ошибка считывания первой строки файла сохранения !\n";

TEST_F(HugeInput, OfZerosIsRefused) {
  Put("huge.tsav", "");
  // Without blocks of its own on most file systems.
  fs::resize_file(WorkFolder() / "huge.tsav", hundredMegabytes);
  ExpectRefused(countMessage + headerMessage);
}

TEST_F(HugeInput, OfOneLineIsRefused) {
  PutRepeated("\"", 'x', "\"\r\n");
  ExpectRefused(countMessage + headerMessage);
}

TEST_F(HugeInput, OfEmptyLinesIsRefused) {
  PutRepeated("", '\n', "");
  ExpectRefused(headerMessage);
}

TEST_F(HugeInput, BehindAGoodProjectIsNotRead) {
  PutRepeated(ExampleBytes(1), 'x', "");
  const Outcome outcome = Calculated();
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Err, "");
  EXPECT_FALSE(outcome.Out.empty());
}

TEST_F(HugeInput, AsTheNameOfTheSteelIsCut) {
  const std::string project = ExampleBytes(1);
  const std::string mark = "mark";
  const std::string marked = WithLine(project, 9, mark);
  const std::size_t place = marked.find(mark);
  PutRepeated(marked.substr(0, place), 'x', marked.substr(place + mark.size()));
  const Outcome outcome = Calculated();
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Err, "");
}

TEST_F(HugeInput, OfThirtyThousandPanelsIsRefused) {
  std::string zeros = "0";
  std::string ones = "1";
  for (int panel = 1; panel < 30000; ++panel) {
    zeros += ";0";
    ones += ";1";
  }
  std::string project = WithLine(ExampleBytes(1), 8, "30000");
  for (const auto& [line, value] :
       {std::pair(49, zeros + ";0"), {50, ones}, {51, zeros + ";0"}, {52, zeros}}) {
    project = WithLine(project, line, value);
  }
  Put("huge.tsav", project);
  ExpectRefused(ErrorLine("CalcTrelo1", 9, "Subscript out of range"));
}

TEST_F(HugeInput, OfThirtyThousandPanelsWithoutTheirLoadsIsRefused) {
  Put("huge.tsav", WithLine(ExampleBytes(1), 8, "30000"));
  ExpectRefused(ErrorLine("CalcTrelo1", 9, "Subscript out of range"));
}

}  // namespace

}  // namespace trelonit::test

#endif

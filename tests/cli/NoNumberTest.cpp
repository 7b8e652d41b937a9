#ifndef _WIN32

#include <cmath>
#include <cstring>
#include <fstream>
#include <limits>
#include <string>

#include "tests/cli/JsonOutput.h"
#include "tests/cli/ProgramFiles.h"

namespace trelonit::test {

namespace {

/// A catalogue with a field that is no number in every record.
class NoNumber : public ProgramFiles {
 protected:
  NoNumber() { Put("a.tsav", ExampleBytes(1)); }

  /// Fields stand behind name and standard, eight bytes each.
  void PutInField(std::size_t field, double value) {
    Unpack();
    std::string data = FileBytes(ProgramFolder() / dataName);
    for (std::size_t record = 0; (record + 1) * recordSize <= data.size(); ++record) {
      std::memcpy(&data[record * recordSize + 65 + field * 8], &value, sizeof value);
    }
    std::ofstream(ProgramFolder() / dataName, std::ios::binary) << data;
  }
};

TEST_F(NoNumber, IsToldInsteadOfANullInTheResult) {
  for (const double value :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity()}) {
    // A radius, which no check looks at.
    PutInField(4, value);
    for (const char* command : {"calc", "select"}) {
      const Outcome outcome = Run({command, "a.tsav", "--json"});
      EXPECT_EQ(outcome.Status, failed) << command;
      const Json object = ParsedOutput(outcome);
      EXPECT_EQ(Keys(object), std::vector<std::string>{"Messages"});
      EXPECT_EQ(outcome.Err, MessagesAsText(object));
      EXPECT_NE(outcome.Err.find("trelonit-cli: результат не выведен: "
                                 "«ElementSection/1/Profile/r1» ("),
                std::string::npos)
          << outcome.Err;
    }
  }
}

}  // namespace

}  // namespace trelonit::test

#endif

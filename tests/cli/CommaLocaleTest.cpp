#ifndef _WIN32

#include <cctype>
#include <string>
#include <utility>
#include <vector>

#include "tests/cli/JsonOutput.h"

namespace trelonit::test {

namespace {

constexpr const char* compiler = "/usr/bin/localedef";
constexpr const char* localeName = "comma";

// What the user's system would say in Russia, as far as it concerns numbers.
constexpr const char* localeSource =
    "comment_char %\n"
    "escape_char /\n"
    "LC_NUMERIC\n"
    "decimal_point \"<U002C>\"\n"
    "thousands_sep \"<U00A0>\"\n"
    "grouping 3;3\n"
    "END LC_NUMERIC\n";

/// The text with every point between two digits as a comma.
std::string WithCommas(std::string text) {
  const auto isDigit = [&text](std::size_t place) {
    return std::isdigit(static_cast<unsigned char>(text[place])) != 0;
  };
  for (std::size_t place = 1; place + 1 < text.size(); ++place) {
    if (text[place] == '.' && isDigit(place - 1) && isDigit(place + 1)) {
      text[place] = ',';
    }
  }
  return text;
}

/// Programs in a locale that writes 1,5 and parts thousands by a no-break blank. It is made on the
/// spot, for hardly a machine has one installed that a test could count on.
class CommaLocale : public CalcJsonTest {
 protected:
  void SetUp() override {
    if (!fs::exists(compiler)) {
      GTEST_SKIP() << "nothing here makes a locale";
    }
    Put("locale.src", localeSource);
    Launch launch;
    launch.Arguments = {
        compiler,     "--no-archive", "--force", "-i",
        "locale.src", "-f",           "UTF-8",   (LocaleFolder() / localeName).string()};
    launch.Folder = WorkFolder();
    launch.Environment = {{"LC_ALL", "C"}};
    const Outcome outcome = RunProgram(launch);
    // Its status is 1, because of the categories that nobody told it.
    if (!fs::exists(LocaleFolder() / localeName / "LC_NUMERIC")) {
      GTEST_SKIP() << outcome.Err;
    }
    fs::remove(WorkFolder() / "locale.src");
  }

  Outcome RunHere(std::vector<std::string> arguments) const {
    return RunProgram(Here(Command(std::move(arguments))));
  }

  Launch Here(Launch launch) const {
    launch.Environment["LOCPATH"] = LocaleFolder().string();
    launch.Environment["LC_ALL"] = localeName;
    // The C library never frees the parts of LOCPATH, which a build that looks for leaks would
    // tell.
    launch.Environment["ASAN_OPTIONS"] = "detect_leaks=0";
    return launch;
  }

 private:
  fs::path LocaleFolder() const { return DataFolder(); }
};

TEST_F(CommaLocale, ShowsNumbersWithACommaAndElseTheSame) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    Put("a.tsav", ExampleBytes(scheme));
    const Outcome outcome = RunHere({"calc", "a.tsav"});
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, "");
    const std::string neutral = Run({"calc", "a.tsav"}).Out;
    EXPECT_NE(outcome.Out, neutral);
    EXPECT_EQ(outcome.Out, WithCommas(neutral)) << scheme;
  }
}

TEST_F(CommaLocale, PartsThousandsByANoBreakBlank) {
  // 1680 t/m on the 24 m of the first example.
  Put("a.tsav", WithLine(ExampleBytes(1), 50, "1680;1680;1680;1680;1680;1680;1680;1680"));
  const Outcome outcome = RunHere({"calc", "a.tsav"});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_NE(outcome.Out.find("\n20\u00A0161,3920 тонн\n"), std::string::npos) << outcome.Out;
  EXPECT_NE(Run({"calc", "a.tsav"}).Out.find("\n20161.3920 тонн\n"), std::string::npos);
}

TEST_F(CommaLocale, LeavesTheNumbersOfJsonAsTheyAre) {
  const Json neutral = Calculated(ExampleBytes(1), {"--bar-force"});
  const Outcome outcome = RunHere({"calc", "project.tsav", "--json", "--bar-force"});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Err, "");
  const Json object = ParsedOutput(outcome);
  for (const char* key : {"TreloData", "TreloResult", "CheckResult", "ElementSection",
                          "OwnWeightAdded", "OwnWeightPerMetre", "Progib", "Messages"}) {
    EXPECT_EQ(object.at(key), neutral.at(key)) << key;
  }
  ASSERT_EQ(object.at("lstForces").size(), neutral.at("lstForces").size());
  for (std::size_t line = 0; line < neutral.at("lstForces").size(); ++line) {
    EXPECT_EQ(object.at("lstForces").at(line).get<std::string>(),
              WithCommas(neutral.at("lstForces").at(line).get<std::string>()));
  }
}

TEST_F(CommaLocale, SavesProjectsThatReadTheSameInAnotherLocale) {
  PlaceProgram(TRELONIT_EXAMPLES, ProgramFolder());
  Launch launch = Here(Command({"."}));
  launch.Arguments.front() = (ProgramFolder() / fs::path(TRELONIT_EXAMPLES).filename()).string();
  ASSERT_EQ(RunProgram(launch).Status, done);
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const std::string name = exampleNames.at(static_cast<std::size_t>(scheme - 1));
    EXPECT_TRUE(Content(name) == WithCommas(ExampleBytes(scheme))) << name;
    EXPECT_NE(Content(name), ExampleBytes(scheme)) << name;
    const Json shipped = Calculated(ExampleBytes(scheme));
    EXPECT_EQ(Calculated(Content(name)), shipped) << name;
  }
}

TEST_F(CommaLocale, SavesTheStartUpDefaultsWithAComma) {
  ASSERT_EQ(Run({"new", "-o", "point.tsav"}).Status, done);
  const Outcome outcome = RunHere({"new", "-o", "comma.tsav"});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Err, "");
  EXPECT_NE(Content("point.tsav"), Content("comma.tsav"));
  EXPECT_EQ(WithCommas(Content("point.tsav")), Content("comma.tsav"));
}

}  // namespace

}  // namespace trelonit::test

#endif

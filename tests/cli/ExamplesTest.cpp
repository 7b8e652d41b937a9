#ifndef _WIN32

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "tests/cli/JsonOutput.h"

namespace trelonit::test {

namespace {

const std::set<std::string>& KnownExamples() {
  static const std::set<std::string> names(exampleNames.begin(), exampleNames.end());
  return names;
}

/// The program that makes the example projects, in a folder of its own.
class ExampleMaker : public CalcJsonTest {
 protected:
  ExampleMaker() { PlaceProgram(TRELONIT_EXAMPLES, ProgramFolder()); }

  Outcome Make(const std::vector<std::string>& arguments) {
    Launch launch = Command(arguments);
    launch.Arguments.front() = (ProgramFolder() / fs::path(TRELONIT_EXAMPLES).filename()).string();
    return RunProgram(launch);
  }

  void ExpectTheShippedFiles() {
    EXPECT_EQ(Names(), KnownExamples());
    for (int scheme = 1; scheme <= 4; ++scheme) {
      const char* name = exampleNames.at(static_cast<std::size_t>(scheme - 1));
      EXPECT_TRUE(Content(name) == ExampleBytes(scheme)) << name;
    }
  }
};

TEST_F(ExampleMaker, MakesTheShippedFilesByteForByte) {
  const Outcome outcome = Make({WorkFolder().string()});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Err, "");
  ExpectTheShippedFiles();
}

TEST_F(ExampleMaker, TellsTheUseOfEveryGroupAndNoneAboveOne) {
  const std::vector<std::string> lines = Lines(Make({"."}).Out);
  ASSERT_EQ(lines.size(), exampleNames.size());
  for (std::size_t place = 0; place < lines.size(); ++place) {
    const std::vector<std::string> words = Words(lines[place]);
    ASSERT_EQ(words.size(), 6U) << lines[place];
    EXPECT_EQ(words[0], std::string(exampleNames[place]) + ":");
    for (std::size_t group = 1; group < words.size(); ++group) {
      EXPECT_LE(std::stod(words[group]), 1) << lines[place];
    }
    // A design that a norm rules is worth showing: some group is used up by more than nine tenths.
    EXPECT_TRUE(std::any_of(words.begin() + 1, words.end(), [](const std::string& use) {
      return std::stod(use) > 0.9;
    })) << lines[place];
  }
}

TEST_F(ExampleMaker, MakesTheSameOverWhatIsThere) {
  ASSERT_EQ(Make({"."}).Status, done);
  Put(exampleNames[2], "spoilt");
  EXPECT_EQ(Make({"."}).Status, done);
  ExpectTheShippedFiles();
}

TEST_F(ExampleMaker, FailsWhereItsFolderIsMissing) {
  const Outcome outcome = Make({"no/such/folder"});
  EXPECT_EQ(outcome.Status, failed);
  for (const char* name : exampleNames) {
    EXPECT_NE(outcome.Err.find(std::string(name) + ": "), std::string::npos) << name;
  }
  EXPECT_TRUE(Names().empty());
}

TEST_F(ExampleMaker, IsRefusedWithoutExactlyOneFolder) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{}, std::vector<std::string>{"a", "b"}}) {
    const Outcome outcome = Make(arguments);
    EXPECT_EQ(outcome.Status, wrongUsage);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(Lines(outcome.Err).size(), 1U) << outcome.Err;
  }
  EXPECT_TRUE(Names().empty());
}

/// The files as they stand in the folder, by their full paths.
class ShippedExample : public CliTest {};

TEST_F(ShippedExample, IsKnownToTheTests) {
  std::set<std::string> projects;
  for (const std::string& name : Names(EXAMPLES_FOLDER)) {
    if (name.ends_with(".tsav")) {
      projects.insert(name);
    }
  }
  EXPECT_EQ(projects, KnownExamples());
}

TEST_F(ShippedExample, PassesEveryCheckWhereItStands) {
  for (const char* name : exampleNames) {
    const Outcome outcome = Run({"calc", (fs::path(EXAMPLES_FOLDER) / name).string(), "--json"});
    EXPECT_EQ(outcome.Status, done) << name;
    EXPECT_EQ(outcome.Err, "") << name;
    const Json object = ParsedOutput(outcome);
    EXPECT_EQ(object.at("Progib").at("Satisfied"), true) << name;
    EXPECT_TRUE(object.at("Messages").empty()) << name;
    int coefficients = 0;
    for (const auto& [block, group] : object.at("CheckResult").items()) {
      if (!group.is_object()) {
        continue;
      }
      for (const auto& [key, value] : group.items()) {
        if (key.starts_with("K")) {
          EXPECT_LE(value.get<double>(), 1) << name << block << key;
          ++coefficients;
        }
      }
    }
    EXPECT_EQ(coefficients, 5 * 7) << name;
  }
  EXPECT_TRUE(Names().empty());
}

TEST_F(ShippedExample, PassesTheSecondOpinionWhereItStands) {
  for (const char* name : exampleNames) {
    const std::string path = (fs::path(EXAMPLES_FOLDER) / name).string();
    const Outcome outcome = Run({"audit", path, "--json", "--strict"});
    EXPECT_EQ(outcome.Status, done) << name;
    EXPECT_EQ(outcome.Err, "") << name;
    const Json object = ParsedOutput(outcome);
    for (const Json& finding : object.at("Findings")) {
      EXPECT_NE(finding.at("Severity"), "danger") << name << finding;
      EXPECT_NE(finding.at("Code"), "section-data") << name << finding;
    }
    for (const Json& group : object.at("Groups")) {
      for (const auto& [check, figure] : group.at("Opinion").items()) {
        EXPECT_LE(figure.get<double>(), 1) << name << group.at("Group") << check;
      }
    }
  }
}

TEST_F(ShippedExample, AsksForItsOwnWeightWithoutHoldingItYet) {
  // Line 46 asks for it, line 53 tells whether it is inside the loads.
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const std::vector<std::string> lines = Lines(ExampleBytes(scheme));
    ASSERT_EQ(lines.size(), 53U);
    EXPECT_EQ(lines[45], "\"1\"\r") << scheme;
    EXPECT_EQ(lines[52], "\"False\"\r") << scheme;
  }
}

}  // namespace

}  // namespace trelonit::test

#endif

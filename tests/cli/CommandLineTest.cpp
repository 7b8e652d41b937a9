#ifndef _WIN32

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

#include "tests/cli/Workbench.h"

namespace trelonit::test {

namespace {

using Arguments = std::vector<std::string>;

/// Every place in the tree of commands, as it is typed.
const std::vector<Arguments>& Commands() {
  static const std::vector<Arguments> commands{
      {},
      {"new"},
      {"calc"},
      {"audit"},
      {"select"},
      {"report"},
      {"draw"},
      {"catalogue"},
      {"catalogue", "list"},
      {"catalogue", "show"},
      {"catalogue", "verify"},
  };
  return commands;
}

std::string Typed(const Arguments& arguments) {
  std::string text = "trelonit-cli";
  for (const std::string& argument : arguments) {
    text += ' ' + argument;
  }
  return text;
}

Arguments With(Arguments arguments, const std::string& more) {
  arguments.push_back(more);
  return arguments;
}

/// The runs of Latin letters in a text.
std::set<std::string> LatinWords(const std::string& text) {
  std::set<std::string> words;
  std::string word;
  for (const char byte : text + ' ') {
    // A byte of a Cyrillic character is no letter in the locale C.
    if (std::isalpha(static_cast<unsigned char>(byte)) != 0) {
      word += byte;
    } else if (!word.empty()) {
      words.insert(word);
      word.clear();
    }
  }
  return words;
}

/// Names that stand in the help as they are typed or as the code has them.
const std::set<std::string>& LatinNames() {
  static const std::set<std::string> names{
      "trelonit", "cli",       "new",    "calc",     "audit",  "strict", "opinion", "appendix",
      "select",   "catalogue", "list",   "show",     "verify", "h",      "help",    "o",
      "version",  "output",    "f",      "force",    "json",   "bar",    "tsav",    "FILE",
      "JSON",     "STANDARD",  "SIZE",   "BarForce", "report", "txt",    "rtf",     "pdf",
      "html",     "A",         "Jy",     "Jz",       "draw",   "dxf",    "svg",     "png",
      "variants", "csv",       "a",      "b",        "c",      "K",      "N",       "Ry",
      "scheme",   "span",      "height", "end",      "panels", "upper",  "lower",   "diagonals",
      "support",  "posts",     "gap",    "steel",    "best",   "front",  "progib",  "jobs",
      "shard"};
  return names;
}

class CommandLine : public CliTest {
 protected:
  Outcome Printed(const Arguments& arguments) {
    Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.Status, done) << Typed(arguments);
    EXPECT_EQ(outcome.Err, "") << Typed(arguments);
    return outcome;
  }

  void ExpectRefused(const Arguments& arguments, const std::string& complaint) {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.Status, wrongUsage) << Typed(arguments);
    EXPECT_EQ(outcome.Out, "") << Typed(arguments);
    EXPECT_EQ(outcome.Err, "trelonit-cli: " + complaint + "; справка: trelonit-cli --help\n")
        << Typed(arguments);
  }

  /// Neither a file of the user nor a catalogue.
  void ExpectNothingWritten() {
    EXPECT_TRUE(Names().empty());
    EXPECT_EQ(Names(ProgramFolder()).size(), 1U);
    EXPECT_TRUE(Names(DataFolder()).empty());
  }
};

TEST_F(CommandLine, IsRefusedWithoutACommand) {
  ExpectRefused({}, "не указана команда");
  ExpectRefused({"catalogue"}, "не указана команда");
  ExpectNothingWritten();
}

TEST_F(CommandLine, IsRefusedWithAnUnknownCommand) {
  for (const char* name : {"frobnicate", "NEW", "help", "рассчитать", ""}) {
    ExpectRefused({name}, "неизвестная команда «" + std::string(name) + "»");
    ExpectRefused({"catalogue", name}, "неизвестная команда «" + std::string(name) + "»");
  }
  ExpectNothingWritten();
}

TEST_F(CommandLine, IsRefusedWithoutAnArgumentThatTheCommandNeeds) {
  ExpectRefused({"new"}, "не указан аргумент «--output»");
  ExpectRefused({"new", "--force"}, "не указан аргумент «--output»");
  ExpectRefused({"calc"}, "не указан аргумент «FILE»");
  ExpectRefused({"calc", "--json"}, "не указан аргумент «FILE»");
  ExpectRefused({"audit"}, "не указан аргумент «FILE»");
  ExpectRefused({"audit", "--json", "--strict"}, "не указан аргумент «FILE»");
  ExpectRefused({"select"}, "не указан аргумент «FILE»");
  ExpectRefused({"select", "-o", "a.tsav", "--json"}, "не указан аргумент «FILE»");
  ExpectRefused({"catalogue", "show"}, "не указан аргумент «STANDARD»");
  ExpectNothingWritten();
}

TEST_F(CommandLine, IsRefusedWithAnOptionThatLacksItsValueOrComesTwice) {
  const std::string complaint = "у ключа «--output» неверное число значений";
  ExpectRefused({"new", "-o"}, complaint);
  ExpectRefused({"new", "--output"}, complaint);
  ExpectRefused({"new", "-o", "a.tsav", "-o", "b.tsav"}, complaint);
  ExpectRefused({"select", "a.tsav", "-o"}, complaint);
  ExpectRefused({"select", "a.tsav", "-o", "b.tsav", "-o", "c.tsav"}, complaint);
  ExpectNothingWritten();
}

TEST_F(CommandLine, IsRefusedWithAnArgumentTooMany) {
  const std::string complaint = "лишний или неизвестный аргумент «лишний»";
  ExpectRefused({"new", "-o", "a.tsav", "лишний"}, complaint);
  ExpectRefused({"calc", "a.tsav", "лишний"}, complaint);
  ExpectRefused({"audit", "a.tsav", "лишний"}, complaint);
  ExpectRefused({"select", "a.tsav", "лишний"}, complaint);
  ExpectRefused({"catalogue", "verify", "a.dat", "лишний"}, complaint);
  ExpectRefused({"catalogue", "list", "лишний"}, complaint);
  ExpectRefused({"catalogue", "show", "1", "L25x16x3", "лишний"}, complaint);
  ExpectNothingWritten();
}

TEST_F(CommandLine, IsRefusedWithTwoCommandsAtOnce) {
  ExpectRefused({"calc", "a.tsav", "new", "-o", "b.tsav"}, "лишний или неизвестный аргумент «new»");
  ExpectRefused({"catalogue", "list", "verify"}, "лишний или неизвестный аргумент «verify»");
  ExpectNothingWritten();
}

TEST_F(CommandLine, IsRefusedWithAnUnknownOption) {
  for (const char* option : {"--bogus", "-z", "--jso", "--JSON"}) {
    const std::string complaint = "лишний или неизвестный аргумент «" + std::string(option) + "»";
    ExpectRefused({"new", "-o", "a.tsav", option}, complaint);
    ExpectRefused({"calc", "a.tsav", option}, complaint);
    ExpectRefused({"audit", "a.tsav", option}, complaint);
    ExpectRefused({"select", "a.tsav", option}, complaint);
    ExpectRefused({"catalogue", "list", option}, complaint);
    ExpectRefused({"catalogue", "show", "1", option}, complaint);
    ExpectRefused({"catalogue", "verify", option}, complaint);
    ExpectRefused({option, "catalogue", "list"}, complaint);
  }
  ExpectNothingWritten();
}

TEST_F(CommandLine, IsRefusedWithAnUnknownOptionInTheCommandsPlace) {
  for (const Arguments& arguments : {Arguments{"--bogus"}, Arguments{"catalogue", "--bogus"}}) {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.Status, wrongUsage);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(Lines(outcome.Err).size(), 1U) << outcome.Err;
    EXPECT_NE(outcome.Err.find("«--bogus»"), std::string::npos) << outcome.Err;
  }
  ExpectNothingWritten();
}

TEST_F(CommandLine, IsRefusedInRussianWithAValueForAnOptionThatTakesNone) {
  std::set<std::string> allowed = LatinNames();
  allowed.insert("maybe");
  for (const Arguments& arguments : {Arguments{"calc", "a.tsav", "--json=maybe"},
                                     Arguments{"new", "-o", "a.tsav", "--force=maybe"}}) {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.Status, wrongUsage) << Typed(arguments);
    EXPECT_EQ(outcome.Out, "") << Typed(arguments);
    EXPECT_EQ(Lines(outcome.Err).size(), 1U) << outcome.Err;
    for (const std::string& word : LatinWords(outcome.Err)) {
      EXPECT_EQ(allowed.count(word), 1U) << word << " in " << outcome.Err;
    }
  }
  ExpectNothingWritten();
}

TEST_F(CommandLine, IsRefusedWithAnOptionThatNeedsAnother) {
  Put("a.tsav", ExampleBytes(1));
  const std::string complaint = "ключ «--bar-force» не имеет смысла без «--json»";
  ExpectRefused({"calc", "a.tsav", "--bar-force"}, complaint);
  ExpectRefused({"calc", "--bar-force", "a.tsav"}, complaint);
}

TEST_F(CommandLine, TakesOptionsOnEitherSideOfTheFile) {
  Put("a.tsav", ExampleBytes(1));
  const std::string behind = Printed({"calc", "a.tsav", "--json", "--bar-force"}).Out;
  EXPECT_NE(behind.find("\"BarForce\""), std::string::npos);
  EXPECT_EQ(Printed({"calc", "--bar-force", "--json", "a.tsav"}).Out, behind);
  EXPECT_EQ(Printed({"calc", "--json", "--bar-force", "--", "a.tsav"}).Out, behind);
}

TEST_F(CommandLine, TakesANameThatLooksLikeAnOptionBehindTwoDashes) {
  Put("--json", ExampleBytes(1));
  Put("a.tsav", ExampleBytes(1));
  EXPECT_EQ(Printed({"calc", "--", "--json"}).Out, Printed({"calc", "a.tsav"}).Out);
}

TEST_F(CommandLine, GivesTheHelpOfEveryCommand) {
  for (const Arguments& command : Commands()) {
    const std::string help = Printed(With(command, "--help")).Out;
    EXPECT_NE(help.find("\nИспользование: " + Typed(command) + " [КЛЮЧИ]"), std::string::npos)
        << help;
    for (const char* text : {"-h,--help", "показать эту справку", "--version", "показать версию"}) {
      EXPECT_NE(help.find(text), std::string::npos) << Typed(command) << ": " << text;
    }
    EXPECT_EQ(Printed(With(command, "-h")).Out, help) << Typed(command);
  }
  ExpectNothingWritten();
}

TEST_F(CommandLine, WritesNoEnglishWordInItsHelp) {
  for (const Arguments& command : Commands()) {
    for (const std::string& word : LatinWords(Printed(With(command, "--help")).Out)) {
      EXPECT_EQ(LatinNames().count(word), 1U) << Typed(command) << ": " << word;
    }
  }
}

TEST_F(CommandLine, NamesEveryCommandAndOptionInItsHelp) {
  const auto expectNamed = [this](const Arguments& command, const Arguments& names) {
    const std::vector<std::string> words = Words(Printed(With(command, "--help")).Out);
    for (const std::string& name : names) {
      EXPECT_NE(std::find(words.begin(), words.end(), name), words.end())
          << Typed(command) << ": " << name;
    }
  };
  expectNamed({}, {"new", "calc", "audit", "select", "report", "draw", "catalogue"});
  expectNamed({"new"}, {"-o,--output", "-f,--force"});
  expectNamed({"calc"}, {"FILE", "--json", "--bar-force"});
  expectNamed({"audit"}, {"FILE", "--json", "--strict"});
  expectNamed({"select"}, {"FILE", "-o,--output", "-f,--force", "--json", "--opinion"});
  expectNamed({"report"}, {"FILE", "-o,--output", "--appendix"});
  expectNamed({"draw"}, {"FILE", "-o,--output"});
  expectNamed({"catalogue"}, {"list", "show", "verify"});
  expectNamed({"catalogue", "verify"}, {"[FILE]"});
  expectNamed({"catalogue", "show"}, {"STANDARD", "SIZE", "[SIZE]"});
}

TEST_F(CommandLine, GivesTheSameVersionForEveryCommand) {
  const std::string version = Printed({"--version"}).Out;
  EXPECT_TRUE(version.starts_with("trelonit-cli ")) << version;
  EXPECT_TRUE(version.ends_with("\n")) << version;
  const std::string number = version.substr(version.find(' ') + 1);
  EXPECT_EQ(std::count(number.begin(), number.end(), '.'), 2) << version;
  EXPECT_EQ(number.find_first_not_of("0123456789.\n"), std::string::npos) << version;
  for (const Arguments& command : Commands()) {
    EXPECT_EQ(Printed(With(command, "--version")).Out, version) << Typed(command);
  }
  ExpectNothingWritten();
}

TEST_F(CommandLine, AnswersAQuestionForHelpOrVersionWhateverElseIsMissing) {
  EXPECT_EQ(Printed({"new", "--force", "--help"}).Out, Printed({"new", "--help"}).Out);
  EXPECT_EQ(Printed({"calc", "missing.tsav", "--help"}).Out, Printed({"calc", "--help"}).Out);
  EXPECT_EQ(Printed({"--help", "catalogue", "show"}).Out,
            Printed({"catalogue", "show", "--help"}).Out);
  EXPECT_EQ(Printed({"calc", "--version"}).Out, Printed({"--version"}).Out);
  ExpectNothingWritten();
}

/// Standard output on a device that is always full.
class FullOutput : public CommandLine {
 protected:
  void SetUp() override {
    if (!fs::exists("/dev/full")) {
      GTEST_SKIP() << "no device that is always full";
    }
  }
  void ExpectTold(const std::vector<Arguments>& commands) {
    for (const Arguments& arguments : commands) {
      Launch launch = Command(arguments);
      launch.OutputTo = "/dev/full";
      const Outcome outcome = RunProgram(launch);
      EXPECT_EQ(outcome.Status, failed) << Typed(arguments);
      EXPECT_EQ(outcome.Err, "trelonit-cli: не удалось записать результат в стандартный вывод\n")
          << Typed(arguments);
    }
  }
};

TEST_F(FullOutput, KeepsAResultFromArrivingAndIsTold) {
  Put("a.tsav", ExampleBytes(1));
  ExpectTold({{"calc", "a.tsav"},
              {"calc", "a.tsav", "--json"},
              {"audit", "a.tsav"},
              {"select", "a.tsav"},
              {"select", "a.tsav", "--json"},
              {"catalogue", "list"},
              {"catalogue", "show", "1"},
              {"catalogue", "verify"}});
}

TEST_F(FullOutput, KeepsHelpAndVersionFromArrivingAndIsTold) {
  ExpectTold({{"--help"}, {"calc", "--help"}, {"--version"}, {"calc", "--version"}});
}

}  // namespace

}  // namespace trelonit::test

#endif

#ifndef _WIN32

#include <random>
#include <string>
#include <vector>

#include "tests/cli/JsonOutput.h"

namespace trelonit::test {

namespace {

const std::string notFound = "Указаный файл не найден ! Восстановление отменено !\n";
const std::string tooFewLines =
    "ReadApplParameters: Ошибка чтения файла сохранения.\n"
    "колличество строк не соответствует ожидаемому!\n";
const std::string wrongHeader = "Ошибка считывания первой строки файла сохранения !\n";
const std::string outOfRange = "Subscript out of range";
const std::string divisionByZero = "Division by zero";
const std::string applicationTitle = "Трелонит v 1.0.0 (alpha)";

std::string NoScheme(int scheme) {
  return ErrorLine("imgTreloType_Click", 326,
                   "Resource with identifier '" + std::to_string(100 + scheme) + "' not found");
}

/// The first lines of a project.
std::string Head(const std::string& project, std::size_t lines) {
  std::string head;
  for (const std::string& line : Lines(project)) {
    if (lines-- == 0) {
      break;
    }
    head += line + '\n';
  }
  return head;
}

/// The same bytes everywhere and every time.
std::string Noise(std::size_t size, unsigned seed) {
  std::mt19937 generator(seed);
  std::string bytes(size, '\0');
  for (char& byte : bytes) {
    byte = static_cast<char>(generator() & 0xFFU);
  }
  return bytes;
}

class DamagedProject : public CliTest {
 protected:
  Outcome Calculated(const std::string& project) {
    Put("project.tsav", project);
    return Run({"calc", "project.tsav"});
  }

  /// Messages, and nothing on standard output.
  static void ExpectFailure(const Outcome& outcome, const std::string& err) {
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(outcome.Err, err);
  }

  /// As before, where more messages may follow the first ones.
  static void ExpectFailureAfter(const Outcome& outcome, const std::string& err) {
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(outcome.Err.substr(0, err.size()), err);
  }

  /// The result of the good file, in spite of a message.
  void ExpectResultOf(const std::string& good, const Outcome& outcome, const std::string& err) {
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, err);
    const Outcome expected = Calculated(good);
    EXPECT_EQ(expected.Status, done);
    EXPECT_EQ(outcome.Out, expected.Out);
  }

  const std::string good_ = ExampleBytes(1);
};

TEST_F(DamagedProject, IsNotFoundWhereThereIsNoFile) {
  ExpectFailure(Run({"calc", "missing.tsav"}), notFound);
  ExpectFailure(Run({"calc", "no/such/folder/missing.tsav"}), notFound);
  EXPECT_TRUE(Names().empty());
}

TEST_F(DamagedProject, IsNotFoundWhereTheNameIsAFolder) {
  fs::create_directory(WorkFolder() / "folder.tsav");
  ExpectFailure(Run({"calc", "folder.tsav"}), notFound);
}

TEST_F(DamagedProject, IsRefusedWhereItMayNotBeRead) {
  ASSERT_EQ(Run({"catalogue", "list"}).Status, done);
  Put("secret.tsav", good_);
  fs::permissions(WorkFolder() / "secret.tsav", fs::perms(0000));
  Launch launch = Command({"calc", "secret.tsav"});
  launch.PlainUser = true;
  ExpectFailureAfter(RunProgram(launch),
                     "WriteApplParameters: Ошибка создания файла для записи ! err discription : \n"
                     "Permission denied\n" +
                         tooFewLines + wrongHeader);
}

TEST_F(DamagedProject, IsRefusedWhereItIsEmpty) {
  ExpectFailureAfter(Calculated(""), tooFewLines + wrongHeader + NoScheme(0));
}

TEST_F(DamagedProject, IsRefusedWhereItIsOneShortLine) {
  ExpectFailureAfter(Calculated("abc"), tooFewLines + wrongHeader + NoScheme(0));
}

TEST_F(DamagedProject, StillCalculatesWithFiftyTwoLines) {
  ExpectResultOf(good_, Calculated(Head(good_, 52)), tooFewLines);
}

TEST_F(DamagedProject, StillCalculatesWithAnotherFirstLine) {
  ExpectResultOf(good_, Calculated(WithLine(good_, 1, "Trelo calculation save")), wrongHeader);
}

TEST_F(DamagedProject, StillCalculatesWithBothOfTheseFaults) {
  ExpectResultOf(good_, Calculated(Head(WithLine(good_, 1, ""), 52)), tooFewLines + wrongHeader);
}

TEST_F(DamagedProject, StillCalculatesWithMoreLines) {
  ExpectResultOf(good_, Calculated(good_ + "\"more\"\r\n\"and more\"\r\n"), "");
}

TEST_F(DamagedProject, StillCalculatesWithoutCarriageReturns) {
  std::string project = good_;
  std::erase(project, '\r');
  ExpectResultOf(good_, Calculated(project), "");
}

TEST_F(DamagedProject, StillCalculatesWithoutTheLastLineEnd) {
  ExpectResultOf(good_, Calculated(good_.substr(0, good_.size() - 2)), "");
}

TEST_F(DamagedProject, TakesTheFallbackOfAHeightThatIsNotPositive) {
  const Outcome fallback = Calculated(WithLine(good_, 6, "1.5"));
  ASSERT_EQ(fallback.Status, done);
  for (const char* height : {"0", "-3", "abc", ""}) {
    const Outcome outcome = Calculated(WithLine(good_, 6, height));
    EXPECT_EQ(outcome.Status, done) << height;
    EXPECT_EQ(outcome.Err, "") << height;
    EXPECT_EQ(outcome.Out, fallback.Out) << height;
  }
}

TEST_F(DamagedProject, IsRefusedWithASchemeThatHasNoPicture) {
  for (const int scheme : {0, 7, 11}) {
    ExpectFailureAfter(Calculated(WithLine(good_, 2, std::to_string(scheme))), NoScheme(scheme));
  }
}

TEST_F(DamagedProject, IsRefusedWithASchemeThatNobodySolvesYet) {
  ExpectFailureAfter(Calculated(WithLine(good_, 2, "5")),
                     applicationTitle + ": Не правильно расчитана масса фермы !\n");
}

TEST_F(DamagedProject, IsRefusedWithPanelsThatItsLoadsDoNotFit) {
  for (const char* panels : {"10", "40000", "0", "-8", "abc"}) {
    ExpectFailureAfter(Calculated(WithLine(good_, 8, panels)),
                       ErrorLine("CalcTrelo1", 9, outOfRange));
  }
}

TEST_F(DamagedProject, IsRefusedWithEndPanelsThatLeaveNoRoom) {
  ExpectFailureAfter(Calculated(WithLine(good_, 7, "12")),
                     ErrorLine("CalcTrelo1", 11, divisionByZero));
}

TEST_F(DamagedProject, IsRefusedWithASectionOutsideTheCatalogue) {
  // Lines 20 and 21: size and standard of the upper chord, the group that the form shows.
  const std::string shownGroup = ErrorLine("optElementSection_Click", 9, outOfRange);
  for (const char* index : {"23", "0", "-1", "32767"}) {
    ExpectFailureAfter(Calculated(WithLine(good_, 21, index)), shownGroup);
  }
  for (const char* index : {"122", "0", "-1", "32767"}) {
    ExpectFailureAfter(Calculated(WithLine(good_, 20, index)), shownGroup);
  }
  // Lines 25 and 26: the lower chord, whose empty section nobody shows before the check.
  const std::string emptySection = ErrorLine(applicationTitle, 11, divisionByZero);
  for (const int line : {25, 26}) {
    ExpectFailureAfter(Calculated(WithLine(good_, line, "999")), emptySection);
  }
}

TEST_F(DamagedProject, IsRefusedWithALimitOfTheDeflectionThatIsNone) {
  ExpectFailure(Calculated(WithLine(good_, 17, "1 / 0")),
                ErrorLine("cmdCalculate_Click", 11, divisionByZero));
  ExpectFailure(Calculated(WithLine(good_, 17, "1 / x")),
                ErrorLine("cmdCalculate_Click", 13, "Type mismatch"));
}

TEST_F(DamagedProject, IsRefusedWithLoadsBeyondAllNumbers) {
  ExpectFailureAfter(Calculated(WithLine(good_, 50, "1e308;1e308;1e308;1e308;1;1;1;1")),
                     ErrorLine("CalcTrelo1", 6, "Overflow"));
}

TEST_F(DamagedProject, IsRefusedAsUtf16Text) {
  std::string wide = "\xFF\xFE";
  for (const char byte : good_) {
    wide += byte;
    wide += '\0';
  }
  ExpectFailureAfter(Calculated(wide), wrongHeader + NoScheme(0));
}

TEST_F(DamagedProject, IsRefusedAsAMegabyteOfNoise) {
  ExpectFailureAfter(Calculated(Noise(1U << 20U, 1)), wrongHeader + NoScheme(0));
}

TEST_F(DamagedProject, PrintsAnObjectWithMessagesAloneOnFailure) {
  Put("scheme.tsav", WithLine(good_, 2, "7"));
  Put("noise.tsav", Noise(5000, 2));
  for (const char* name : {"missing.tsav", "scheme.tsav", "noise.tsav"}) {
    const Outcome outcome = Run({"calc", name, "--json"});
    EXPECT_EQ(outcome.Status, failed) << name;
    const Json object = ParsedOutput(outcome);
    EXPECT_EQ(Keys(object), std::vector<std::string>{"Messages"}) << name;
    EXPECT_FALSE(object.at("Messages").empty()) << name;
    for (const Json& message : object.at("Messages")) {
      EXPECT_EQ(Keys(message), (std::vector<std::string>{"Title", "Text", "Style"})) << name;
    }
    EXPECT_EQ(outcome.Err, MessagesAsText(object)) << name;
  }
}

TEST_F(DamagedProject, KeepsTheMessageOfADamageThatItCouldRepair) {
  Put("header.tsav", WithLine(good_, 1, "Another file"));
  const Outcome outcome = Run({"calc", "header.tsav", "--json"});
  EXPECT_EQ(outcome.Status, done);
  const Json object = ParsedOutput(outcome);
  EXPECT_TRUE(object.contains("TreloResult"));
  EXPECT_EQ(MessagesAsText(object), wrongHeader);
  EXPECT_EQ(object.at("Messages").at(0).at("Style"), 16);
}

/// Whatever a file holds, there is a result, or there are messages; never a crash, never both a
/// result and a failure.
class SpoiltProject : public DamagedProject {
 protected:
  void ExpectAnAnswer(const std::string& project) {
    const Outcome outcome = Calculated(project);
    EXPECT_FALSE(outcome.TimedOut);
    ASSERT_TRUE(outcome.Status == done || outcome.Status == failed)
        << outcome.Status << outcome.Err;
    EXPECT_EQ(outcome.Out.empty(), outcome.Status == failed) << outcome.Err;
    EXPECT_TRUE(outcome.Status == done || !outcome.Err.empty());
  }
};

TEST_F(SpoiltProject, GetsAnAnswerWhereverItIsCutOff) {
  std::mt19937 generator(3);
  for (int turn = 0; turn < 25; ++turn) {
    ExpectAnAnswer(good_.substr(0, generator() % good_.size()));
  }
}

TEST_F(SpoiltProject, GetsAnAnswerWithWrongBytes) {
  std::mt19937 generator(4);
  for (int turn = 0; turn < 40; ++turn) {
    std::string project = ExampleBytes(1 + turn % 4);
    for (int byte = 0; byte < 3; ++byte) {
      project[generator() % project.size()] = static_cast<char>(generator() & 0xFFU);
    }
    ExpectAnAnswer(project);
  }
}

TEST_F(SpoiltProject, GetsAnAnswerWithStrangeValuesInAnyLine) {
  const std::array<const char*, 6> values{"", "-1", "32767", "1e300", "0", "True"};
  for (int line = 2; line <= 53; ++line) {
    ExpectAnAnswer(WithLine(good_, line, values[static_cast<std::size_t>(line) % values.size()]));
  }
}

}  // namespace

}  // namespace trelonit::test

#endif

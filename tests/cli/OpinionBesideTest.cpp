// The second opinion beside calc, select and report.

#ifndef _WIN32

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "editor/document/MemoryRichTextBox.h"
#include "tests/cli/AuditCommand.h"

namespace trelonit::test {

namespace {

using Texts = std::vector<std::string>;

/// The texts of the dangerous findings of an object.
Texts DangersOf(const Json& object) {
  Texts texts;
  for (const Json& finding : object.at("Findings")) {
    if (finding.at("Severity") == "danger") {
      texts.push_back(finding.at("Text"));
    }
  }
  return texts;
}

std::string AsLines(const Texts& dangers) {
  std::string lines;
  for (const std::string& danger : dangers) {
    lines += "Второе мнение: " + danger + '\n';
  }
  return lines;
}

class OpinionBeside : public AuditTest {
 protected:
  Outcome Started(const std::string& command, const std::string& project,
                  const Texts& options = {}) {
    Put("project.tsav", project);
    Texts arguments{command, "project.tsav"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Run(arguments);
  }
};

TEST_F(OpinionBeside, TellsDangersOfACalculationOnStandardError) {
  const Texts dangers = DangersOf(Object(DangerousProject()));
  ASSERT_EQ(dangers.size(), 2U);
  for (const Texts& options : {Texts{}, Texts{"--json"}}) {
    const Outcome outcome = Started("calc", DangerousProject(), options);
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, AsLines(dangers));
  }
  for (int scheme = 1; scheme <= 4; ++scheme) {
    EXPECT_EQ(Started("calc", ExampleBytes(scheme)).Err, "");
  }
}

TEST_F(OpinionBeside, LeavesTheListsOfACalculationAlone) {
  // What the caption means is no matter of the calculation: as far as it goes, the first two
  // captions are the same.
  EXPECT_EQ(Started("calc", DangerousProject()).Out,
            Started("calc", WithLine(ExampleBytes(1), lineUpperBracing, "2")).Out);
}

TEST_F(OpinionBeside, GivesTheFindingsToTheObjectOfACalculation) {
  for (const std::string& project : {ExampleBytes(2), ExampleBytes(3), DangerousProject()}) {
    const Json findings = ParsedOutput(Started("calc", project, {"--json"})).at("Findings");
    EXPECT_EQ(findings, Object(project).at("Findings"));
    EXPECT_FALSE(findings.empty());
  }
}

TEST_F(OpinionBeside, KeepsFindingsAndMessagesApart) {
  const Json object = ParsedOutput(Started("calc", DangerousProject(), {"--json"}));
  EXPECT_EQ(object.at("Messages"), Json::array());
}

TEST_F(OpinionBeside, TellsDangersOfAUsualSelectionOnStandardError) {
  // Told 3 m between held joints instead of 24: the sizes that pass are far too slender.
  const Outcome outcome = Started("select", DangerousProject(), {"-o", "light.tsav"});
  EXPECT_EQ(outcome.Status, done);
  const Texts lines = Lines(outcome.Err);
  ASSERT_FALSE(lines.empty());
  for (const std::string& line : lines) {
    EXPECT_TRUE(line.starts_with("Второе мнение: Верхний пояс, ")) << line;
    EXPECT_NE(line.find(", проходит; по СНиП "), std::string::npos) << line;
  }
  // The own weight that is inside by now would be added again.
  const Outcome audit = Audited(WithLine(Content("light.tsav"), lineOwnWeight, "0"), {"--strict"});
  EXPECT_EQ(audit.Status, dangerous);
}

/// select --opinion.
class SelectByOpinion : public OpinionBeside {
 protected:
  /// The first example with the caption under which the norm takes half of the span.
  static std::string HalfHeld() { return WithLine(ExampleBytes(1), lineUpperBracing, "2"); }

  Json Selected(const std::string& project, Texts options = {}) {
    options.insert(options.end(), {"--opinion", "--json"});
    const Outcome outcome = Started("select", project, options);
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, "");
    return ParsedOutput(outcome);
  }

  static void ExpectAllPassed(const Json& audit) {
    for (const Json& group : audit.at("Groups")) {
      for (const char* side : {"Told", "Opinion"}) {
        for (const auto& [check, figure] : group.at(side).items()) {
          EXPECT_LE(figure.get<double>(), 1) << group.at("Group") << side << check;
        }
      }
    }
  }
};

TEST_F(SelectByOpinion, SavesAProjectThatBothPass) {
  Texts projects{HalfHeld()};
  for (int scheme = 1; scheme <= 4; ++scheme) {
    projects.push_back(ExampleBytes(scheme));
  }
  for (const std::string& project : projects) {
    const Json selected = Selected(project, {"-o", "chosen.tsav"});
    for (const Json& row : selected.at("Selection")) {
      EXPECT_EQ(row.at("Possible"), true);
    }
    const std::string chosen = Content("chosen.tsav");
    const Outcome strict = Audited(chosen, {"--strict"});
    EXPECT_EQ(strict.Status, done) << strict.Out;
    ExpectAllPassed(Object(chosen));
    // The saved project is calculated as the selection was.
    const Json calculated = Calculated(chosen);
    EXPECT_EQ(calculated.at("ElementSection"), selected.at("ElementSection"));
    EXPECT_EQ(calculated.at("TreloResult"), selected.at("TreloResult"));
    EXPECT_EQ(calculated.at("CheckResult"), selected.at("CheckResult"));
    fs::remove(WorkFolder() / "chosen.tsav");
  }
}

TEST_F(SelectByOpinion, FindsWhatTheUsualSelectionLeavesTooSlender) {
  const auto upperArea = [](const Json& object) {
    return object.at("CheckResult").at("UpPoyas").at("Area").get<double>();
  };
  const Outcome usual = Started("select", HalfHeld(), {"--json"});
  EXPECT_NE(usual.Err.find("Второе мнение: Верхний пояс, устойчивость из плоскости"),
            std::string::npos)
      << usual.Err;
  EXPECT_LT(upperArea(ParsedOutput(usual)), upperArea(Selected(HalfHeld())));
}

TEST_F(SelectByOpinion, PutsNoOwnWeightIntoTheLoadsOfTheSavedProject) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    Selected(ExampleBytes(scheme), {"-o", "chosen.tsav"});
    const Texts before = Lines(ExampleBytes(scheme));
    const Texts after = Lines(Content("chosen.tsav"));
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t line = lineOwnWeight - 1; line < before.size(); ++line) {
      EXPECT_EQ(after[line], before[line]) << line + 1;
    }
    EXPECT_EQ(CountFindings(Object(Content("chosen.tsav")), "own-weight-twice"), 0U);
    fs::remove(WorkFolder() / "chosen.tsav");
  }
}

TEST_F(SelectByOpinion, CountsItsRounds) {
  const Json object = Selected(HalfHeld());
  // At least one in which something changed and one in which nothing did.
  const int rounds = object.at("Rounds");
  EXPECT_GE(rounds, 2);
  const std::string line = "Кругов подбора до неизменности: " + std::to_string(rounds);
  const Texts text = Lines(Started("select", HalfHeld(), {"--opinion"}).Out);
  const auto found = std::find(text.begin(), text.end(), line);
  ASSERT_NE(found, text.end());
  EXPECT_EQ(found - text.begin(), 7) << "behind the head, the five groups and an empty line";
  EXPECT_EQ(*(found - 1), "");
  EXPECT_EQ(*(found + 1), "");
  EXPECT_EQ(*(found + 2), " Усилия в стержнях фермы даны с лева на право");
}

TEST_F(SelectByOpinion, NeedsOneRoundWithoutOwnWeight) {
  EXPECT_EQ(Selected(WithLine(HalfHeld(), lineOwnWeight, "0")).at("Rounds"), 1);
}

TEST_F(SelectByOpinion, EndsAtTheSameSizesTheSecondTime) {
  const Json first = Selected(HalfHeld(), {"-o", "chosen.tsav"});
  EXPECT_EQ(Selected(Content("chosen.tsav")).at("Selection"), first.at("Selection"));
}

TEST_F(SelectByOpinion, IsWhatTheUsualSelectionIsNot) {
  const Outcome usual = Started("select", ExampleBytes(1), {"--json"});
  EXPECT_FALSE(ParsedOutput(usual).contains("Rounds"));
  EXPECT_EQ(Started("select", ExampleBytes(1)).Out.find("Кругов подбора"), std::string::npos);
}

TEST_F(SelectByOpinion, SaysWhichGroupNoSizePasses) {
  // No pair of angles is stiff enough over 24 m, and the last of them is told to be dangerous.
  const Outcome outcome = Started("select", DangerousProject(), {"--opinion", "--json"});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_NE(outcome.Err.find("Второе мнение: Верхний пояс, "), std::string::npos) << outcome.Err;
  const Json output = ParsedOutput(outcome);
  for (const Json& row : output.at("Selection")) {
    EXPECT_EQ(row.at("Possible"), row.at("Group") != "UpPoyas");
  }
}

TEST_F(SelectByOpinion, IsRefusedWithoutAnOpinion) {
  for (const std::string& project :
       {WithLine(ExampleBytes(1), 2, "5"), WithLine(ExampleBytes(1), 7, "12"),
        WithLine(ExampleBytes(1), 7, "13")}) {
    const Outcome outcome = Started("select", project, {"--opinion", "-o", "chosen.tsav"});
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_FALSE(outcome.Err.empty());
    EXPECT_EQ(Names(), std::set<std::string>{"project.tsav"});
  }
}

class OwnWeightTwice : public OpinionBeside {};

TEST_F(OwnWeightTwice, IsFoundInAProjectThatWasSavedWithItsOwnWeight) {
  ASSERT_EQ(Started("select", ExampleBytes(1), {"-o", "saved.tsav"}).Status, done);
  const std::string saved = Content("saved.tsav");
  const Json object = Object(saved);
  ASSERT_EQ(CountFindings(object, "own-weight-twice", "warning"), 1U);
  const auto finding =
      std::find_if(object.at("Findings").begin(), object.at("Findings").end(),
                   [](const Json& each) { return each.at("Code") == "own-weight-twice"; });
  // What the lower chord holds, which was without load: see the mass of the first example.
  EXPECT_EQ(Lines(saved).at(51), "\"0.058;0.058;0.058;0.058;0.058;0.058;0.058;0.058\"\r");
  EXPECT_NE(finding->at("Text").get<std::string>().find("по 0.058 т/м"), std::string::npos);
  EXPECT_TRUE(finding->at("Group").is_null());
  // Told, not undone: the loads hold it twice.
  const std::vector<double> loads =
      Numbers(ParsedOutput(Started("calc", saved, {"--json"})).at("TreloData").at("DwnDistForce"));
  EXPECT_GT(loads.at(0), 1.5 * 0.058);
}

TEST_F(OwnWeightTwice, IsNoMatterOfAProjectThatDoesNotAskForIt) {
  ASSERT_EQ(Started("select", ExampleBytes(1), {"-o", "saved.tsav"}).Status, done);
  const Json object = Object(WithLine(Content("saved.tsav"), lineOwnWeight, "0"));
  EXPECT_EQ(CountFindings(object, "own-weight-twice"), 0U);
}

/// report --appendix.
class AppendixOption : public OpinionBeside {
 protected:
  AppendixOption() { Put("a.tsav", DangerousProject()); }

  std::string Report(const std::string& file, bool appendix) {
    Texts arguments{"report", "a.tsav", "-o", file};
    if (appendix) {
      arguments.emplace_back("--appendix");
    }
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.Status, done) << file;
    EXPECT_EQ(outcome.Err, "") << file;
    return file == "-" ? outcome.Out : Content(file);
  }
};

TEST_F(AppendixOption, PutsItBehindTheWholeReport) {
  const std::string without = Report("-", false);
  const std::string with = Report("-", true);
  ASSERT_TRUE(with.starts_with(without));
  const Texts appendix = Lines(with.substr(without.size()));
  const auto has = [&appendix](const std::string& line) {
    return std::find(appendix.begin(), appendix.end(), line) != appendix.end();
  };
  EXPECT_EQ(appendix.at(0), "");
  EXPECT_EQ(appendix.at(1), "Приложение. Второе мнение : ");
  for (const char* line :
       {"Нормы : СНиП II-23-81*", "Замечания : ", "Коэффициенты расчета и по СНиП : ",
        "Проверки расчета с подстановкой : ", "Проверки по СНиП с подстановкой : "}) {
    EXPECT_TRUE(has(line)) << line;
  }
  // Figures of the design by hand: see AuditText.TellsTheGravestFirstEachWithItsCode.
  EXPECT_TRUE(has("Верхний пояс, устойчивость из плоскости фермы : расчет 0.325, СНиП 2.797"));
  for (const std::string& danger : DangersOf(Object(DangerousProject()))) {
    EXPECT_TRUE(has("Опасно. " + danger)) << danger;
  }
}

TEST_F(AppendixOption, IsOffByDefault) {
  for (const char* file : {"-", "report.txt", "report.html", "report.rtf"}) {
    EXPECT_EQ(Report(file, false).find("Второе мнение"), std::string::npos) << file;
  }
}

TEST_F(AppendixOption, WritesTheSameTextInEveryForm) {
  const std::string lines = Report("-", true);
  std::string text = Report("report.txt", true);
  EXPECT_NE(text.find("\r\nПриложение. Второе мнение : \r\n"), std::string::npos);
  std::erase(text, '\r');
  EXPECT_EQ(text, lines);
  MemoryRichTextBox box;
  box.SetTextRTF(Report("report.rtf", true));
  std::string rich = box.Text();
  std::erase(rich, '\r');
  EXPECT_EQ(rich, lines);
  box.SetSelStart(box.Find("Приложение. Второе мнение :", 0, 0));
  box.SetSelLength(1);
  EXPECT_TRUE(box.SelFormat().Bold);
  const std::string page = Report("report.html", true);
  for (const char* piece : {"Приложение. Второе мнение :", "√(", " ≤ 1", " &gt; 1: не выполнено",
                            "Правило программы. Расчетная длина из плоскости взята"}) {
    EXPECT_NE(page.find(piece), std::string::npos) << piece;
  }
}

TEST_F(AppendixOption, ExplainsEveryCheckOfTheObject) {
  // A check is told with its clause in brackets, once each.
  const Texts lines = Lines(Report("-", true));
  const Json told = Object(DangerousProject());
  for (const Json& explanation : told.at("Explanation")) {
    const std::string clause = " (" + explanation.at("Clause").get<std::string>() + ")";
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&clause](const std::string& line) {
      return line.ends_with(clause);
    })) << clause;
  }
  const auto results = std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
    return line.ends_with(" ≤ 1") || line.ends_with(" > 1: не выполнено");
  });
  EXPECT_EQ(static_cast<std::size_t>(results), Object(DangerousProject()).at("Explanation").size());
}

#ifdef TRELONIT_PAPER
TEST_F(AppendixOption, HasMorePages) {
  PlaceProgram(TRELONIT_PAPER, ProgramFolder());
  const std::string without = Report("without.pdf", false);
  const std::string with = Report("with.pdf", true);
  EXPECT_TRUE(with.starts_with("%PDF-"));
  EXPECT_GT(with.size(), without.size() + 1000);
}
#endif

}  // namespace

}  // namespace trelonit::test

#endif

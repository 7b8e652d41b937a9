#ifndef _WIN32

#include <algorithm>
#include <fstream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/cli/AuditCommand.h"

namespace trelonit::test {

namespace {

const std::string title = "Второе мнение (СНиП II-23-81*)";
const std::string limits =
    "Второе мнение не рассматривает: изгиб поясов между узлами от распределенной нагрузки, "
    "эксцентриситеты в узлах, одиночные уголки относительно оси наименьшего момента инерции, сами "
    "узлы, толщину стенок.";

/// The findings and the table of an audit, which empty lines part.
struct PrintedAudit {
  explicit PrintedAudit(const std::string& out) {
    const std::vector<std::string> lines = Lines(out);
    EXPECT_GE(lines.size(), 8U) << out;
    EXPECT_EQ(lines.front(), title);
    EXPECT_EQ(lines.at(1), "");
    EXPECT_EQ(lines.at(lines.size() - 2), "");
    EXPECT_EQ(lines.back(), limits);
    const auto gap = std::find(lines.begin() + 2, lines.end(), "");
    Findings.assign(lines.begin() + 2, gap);
    Table.assign(gap + 1, lines.end() - 2);
  }
  std::vector<std::string> Findings;
  std::vector<std::string> Table;
};

class AuditText : public AuditTest {
 protected:
  PrintedAudit Printed(const std::string& project) { return PrintedAudit(Text(project)); }
};

TEST_F(AuditText, HasTheFindingsFirstAndThenEveryCheckOfEveryGroup) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const PrintedAudit audit = Printed(ExampleBytes(scheme));
    EXPECT_FALSE(audit.Findings.empty());
    // A head and five checks a group; scheme 3 has no verticals.
    ASSERT_EQ(audit.Table.size(), scheme == 3 ? 21U : 26U) << scheme;
    EXPECT_EQ(Words(audit.Table.front()),
              (std::vector<std::string>{"Группа,", "проверка", "Расчет", "СНиП"}));
    const auto groups =
        scheme == 3
            ? std::vector<std::string>{"Верхний пояс", "Нижний пояс", "Раскосы", "Опорные раскосы"}
            : std::vector<std::string>{"Верхний пояс", "Нижний пояс", "Стойки", "Раскосы",
                                       "Опорные раскосы"};
    std::size_t row = 1;
    for (const std::string& group : groups) {
      for (const char* check :
           {"прочность", "устойчивость в плоскости фермы", "устойчивость из плоскости фермы",
            "гибкость в плоскости фермы", "гибкость из плоскости фермы"}) {
        EXPECT_TRUE(audit.Table.at(row).starts_with(group + ", " + check + "  "))
            << audit.Table.at(row);
        ++row;
      }
    }
  }
}

TEST_F(AuditText, TellsTheGravestFirstEachWithItsCode) {
  const PrintedAudit audit = Printed(DangerousProject());
  // Two angles L200x125x11, 10 mm apart: A = 2 * 34.87, J out = 2 (1449.02 + 34.87 * 7.0^2) =
  // 6315.3, i = 9.516 cm. On 24 m lambda = 252.2, on sqrt(240 / 210000) 8.526, so phi = 332 /
  // (8.526^2 (51 - 8.526)) = 0.1075. Bar 4 has 21.552 * 12 - 1.796 * 12^2 / 2 = 129.31 tm over
  // 2.8 m: 46.18 t, 0.30076 of the strength; 0.30076 / 0.1075 = 2.797. On the 3 m of the
  // calculation phi is 0.9266: 0.325.
  ASSERT_EQ(audit.Findings.size(), 6U);
  EXPECT_EQ(audit.Findings[0],
            "Опасно: Верхний пояс, устойчивость из плоскости фермы: в расчете 0.325, проходит; по "
            "СНиП 2.797, не проходит: стержень 4, усилие -46.18 т, расчетная длина 24.000 м. "
            "[check-differs]");
  // 252.2 / 120 in every bar, since even the first is used up: 0.1316 / 0.1075. Told: 31.53 of 180
  // - 60 * 0.325.
  EXPECT_TRUE(audit.Findings[1].starts_with(
      "Опасно: Верхний пояс, гибкость из плоскости фермы: в расчете 0.196, проходит; по СНиП "
      "2.102, не проходит: стержень 1, "))
      << audit.Findings[1];
  EXPECT_EQ(audit.Findings[2],
            "Внимание: Верхний пояс закреплен «Только крайние»: из плоскости фермы расчет берет "
            "длину 3.000 м, а по смыслу подписи она 24.000 м. Это не в запас. [bracing-length]");
  EXPECT_TRUE(audit.Findings[3].starts_with("Внимание: Нижний пояс закреплен «Крайние"));
  for (const std::size_t note : {4U, 5U}) {
    EXPECT_TRUE(audit.Findings[note].starts_with("Примечание: ")) << audit.Findings[note];
    EXPECT_TRUE(audit.Findings[note].ends_with(" [chord-bending]")) << audit.Findings[note];
  }
}

TEST_F(AuditText, MarksTheChecksThatTheNormRefuses) {
  const PrintedAudit audit = Printed(DangerousProject());
  std::vector<std::string> marked;
  for (const std::string& row : audit.Table) {
    if (row.ends_with("не выполнено")) {
      marked.push_back(row.substr(0, row.find("  ")));
    }
  }
  EXPECT_EQ(marked, (std::vector<std::string>{"Верхний пояс, устойчивость из плоскости фермы",
                                              "Верхний пояс, гибкость из плоскости фермы"}));
}

TEST_F(AuditText, HasTheFiguresOfTheObject) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const std::string project = ExampleBytes(scheme);
    const PrintedAudit audit = Printed(project);
    std::size_t row = 1;
    const Json object = Object(project);
    for (const Json& group : object.at("Groups")) {
      for (const auto& [check, told] : group.at("Told").items()) {
        const std::vector<std::string> words = Words(audit.Table.at(row++));
        ASSERT_GE(words.size(), 3U);
        constexpr double halfDigit = 0.5001e-5;
        EXPECT_NEAR(std::stod(words[words.size() - 2]), told.get<double>(), halfDigit);
        EXPECT_NEAR(std::stod(words.back()), group.at("Opinion").at(check).get<double>(),
                    halfDigit);
      }
    }
  }
}

TEST_F(AuditText, SaysSoWhereThereIsNothingToFind) {
  // Two panels of 3 m, held in the middle, one lower panel, and a load in a joint: both lengths of
  // both chords agree and nothing is bent.
  std::string project = ExampleBytes(3);
  const std::vector<std::pair<int, std::string>> lines{
      {3, "2"},       {4, "1"},    {5, "6"},    {8, "2"}, {lineOwnWeight, "0"},
      {49, "0;10;0"}, {50, "0;0"}, {51, "0;0"}, {52, "0"}};
  for (const auto& [line, value] : lines) {
    project = WithLine(project, line, value);
  }
  EXPECT_EQ(Printed(project).Findings, std::vector<std::string>{"Замечаний нет."});
}

TEST_F(AuditText, LeavesTheProjectAsItIs) {
  Text(ExampleBytes(2));
  EXPECT_EQ(Content("project.tsav"), ExampleBytes(2));
  EXPECT_EQ(Names(), std::set<std::string>{"project.tsav"});
}

TEST_F(AuditText, IsTheSameEveryTime) {
  EXPECT_EQ(Text(ExampleBytes(4)), Text(ExampleBytes(4)));
}

using StrictAudit = AuditTest;

TEST_F(StrictAudit, EndsWithAStatusOfItsOwnWhereSomethingIsDangerous) {
  const std::string project = DangerousProject();
  const std::string text = Text(project);
  const Outcome strict = Audited(project, {"--strict"});
  EXPECT_EQ(strict.Status, dangerous);
  EXPECT_EQ(strict.Out, text);
  EXPECT_EQ(strict.Err, "");
  EXPECT_EQ(Audited(project, {"--strict", "--json"}).Status, dangerous);
}

TEST_F(StrictAudit, EndsWellWhereOnlyWarningsAndNotesAre) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const std::string project = ExampleBytes(scheme);
    const Outcome strict = Audited(project, {"--strict"});
    EXPECT_EQ(strict.Status, done) << strict.Out;
    EXPECT_EQ(strict.Out, Text(project));
  }
}

class RefusedAudit : public AuditTest {
 protected:
  static std::vector<std::string> OwnLines(const std::string& err) {
    std::vector<std::string> own;
    for (const std::string& line : Lines(err)) {
      if (line.starts_with("Второе мнение: ")) {
        own.push_back(line);
      }
    }
    return own;
  }

  /// Nothing printed but one line of the opinion's own, behind what the calculation tells.
  void ExpectRefused(const Outcome& outcome, const std::string& why) {
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(OwnLines(outcome.Err), std::vector<std::string>{"Второе мнение: " + why});
    EXPECT_TRUE(outcome.Err.ends_with("Второе мнение: " + why + "\n")) << outcome.Err;
  }
};

TEST_F(RefusedAudit, TellsAMissingProjectInOneLine) {
  const std::string notFound = "Указаный файл не найден ! Восстановление отменено !\n";
  const Outcome outcome = Run({"audit", "missing.tsav"});
  EXPECT_EQ(outcome.Status, failed);
  EXPECT_EQ(outcome.Out, "");
  EXPECT_EQ(outcome.Err, notFound);
  const Outcome object = Run({"audit", "missing.tsav", "--json", "--strict"});
  EXPECT_EQ(object.Status, failed);
  EXPECT_EQ(MessagesAsText(ParsedOutput(object)), notFound);
}

TEST_F(RefusedAudit, TellsAReservedScheme) {
  for (const char* ownWeight : {"0", "1"}) {
    const std::string project =
        WithLine(WithLine(ExampleBytes(1), 2, "5"), lineOwnWeight, ownWeight);
    ExpectRefused(Audited(project),
                  "Эта схема фермы не рассчитывается: усилий нет, сравнивать нечего.");
  }
}

TEST_F(RefusedAudit, TellsACalculationThatFailed) {
  // Two end panels of 12 m leave nothing of 24 m.
  ExpectRefused(Audited(WithLine(ExampleBytes(1), 7, "12")),
                "Усилий нет: расчет не выполнен или закончился ошибкой.");
  // Longer ones give forces and no truss.
  ExpectRefused(Audited(WithLine(ExampleBytes(1), 7, "13")),
                "По заданным размерам ферма не строится: пролет, высота и панели должны быть "
                "больше нуля, а две опорные панели вместе короче пролета.");
}

TEST_F(RefusedAudit, TellsTheSameInItsObject) {
  const Outcome outcome = Audited(WithLine(ExampleBytes(1), 2, "5"), {"--json"});
  EXPECT_EQ(outcome.Status, failed);
  const Json object = ParsedOutput(outcome);
  EXPECT_EQ(Keys(object), std::vector<std::string>{"Messages"});
  EXPECT_EQ(MessagesAsText(object), outcome.Err);
}

TEST_F(RefusedAudit, TakesTheDefaultForACoefficientOfZeroLikeTheCalculation) {
  // Lines of Ry, gamma n and gamma c; their defaults are those of the example.
  for (const int line : {10, 14, 15}) {
    for (const char* value : {"0", "-1", ""}) {
      EXPECT_EQ(Text(WithLine(ExampleBytes(1), line, value)), Text(ExampleBytes(1)))
          << line << value;
    }
  }
}

TEST_F(RefusedAudit, TellsASectionWithoutAnArea) {
  ASSERT_EQ(Run({"catalogue", "list"}).Status, done);
  const fs::path catalogue = ProgramFolder() / "GOST profile.dat";
  std::string data = FileBytes(catalogue);
  const std::size_t record = data.find("L200x125x11 ");
  ASSERT_NE(record, std::string::npos);
  // The area is the seventh of the Doubles behind 65 bytes of text.
  constexpr std::size_t areaPlace = 65 + 6 * sizeof(double);
  data.replace(record + areaPlace, sizeof(double), sizeof(double), '\0');
  std::ofstream(catalogue, std::ios::binary) << data;
  ExpectRefused(Audited(ExampleBytes(1)),
                "Проверки не выполнены: программа не рассчитала коэффициенты.");
}

TEST_F(RefusedAudit, EndsWithAFailureWhateverIsInTheFile) {
  const std::string good = ExampleBytes(1);
  for (const std::string& project :
       {std::string(), std::string("abc"), std::string(3000, '\xFF'), WithLine(good, 2, "0"),
        WithLine(good, 2, "11"), WithLine(good, 3, "9"), WithLine(good, 8, "0"),
        WithLine(good, 8, "1000"), WithLine(good, 20, "0"), WithLine(good, 24, "12"),
        WithLine(good, 49, "x")}) {
    for (const std::vector<std::string>& options :
         {std::vector<std::string>{}, std::vector<std::string>{"--strict"}}) {
      const Outcome outcome = Audited(project, options);
      EXPECT_EQ(outcome.Status, failed) << project.substr(0, 100);
      EXPECT_EQ(outcome.Out, "");
      EXPECT_EQ(OwnLines(outcome.Err).size(), 1U) << outcome.Err;
    }
  }
}

TEST_F(RefusedAudit, TellsAStandardOutputThatIsFull) {
  if (!fs::exists("/dev/full")) {
    GTEST_SKIP() << "no device that is always full";
  }
  Put("project.tsav", DangerousProject());
  for (const char* option : {"--strict", "--json"}) {
    Launch launch = Command({"audit", "project.tsav", option});
    launch.OutputTo = "/dev/full";
    const Outcome outcome = RunProgram(launch);
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(outcome.Err, "trelonit-cli: не удалось записать результат в стандартный вывод\n");
  }
}

}  // namespace

}  // namespace trelonit::test

#endif

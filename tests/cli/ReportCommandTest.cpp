#ifndef _WIN32

#include <algorithm>
#include <regex>
#include <string>
#include <vector>

#include "editor/document/MemoryRichTextBox.h"
#include "tests/cli/OutputCommand.h"
#include "tests/workstation/report/ReportComparison.h"

namespace trelonit::test {

namespace {

/// The report of an example, line by line. All but the forces has been worked out from these by the
/// formulas, apart from the program; the forces are those of the golden force lists.
std::vector<std::string> GoldenReport(int scheme) {
  fs::path name = "report-" + std::string(exampleNames.at(static_cast<std::size_t>(scheme - 1)));
  name.replace_extension(".txt");
  return Lines(FileBytes(fs::path(EXAMPLES_FOLDER).parent_path() / "tests/cli/golden" / name));
}

std::string Replaced(const std::string& text, const std::string& what, const std::string& with) {
  std::string result;
  std::size_t begin = 0;
  for (std::size_t place = text.find(what); place != std::string::npos;
       place = text.find(what, begin)) {
    result += text.substr(begin, place - begin) + with;
    begin = place + what.size();
  }
  return result + text.substr(begin);
}

class ReportCommandLine : public OutputCommand {
 protected:
  ReportCommandLine() : OutputCommand("report") {}

  std::string Printed(const std::string& project) {
    const Outcome outcome = Run({"report", project, "-o", "-"});
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, "");
    return outcome.Out;
  }
};

TEST_F(ReportCommandLine, PrintsTheReportOfEveryExampleToTheLetter) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    Put("example.tsav", ExampleBytes(scheme));
    ExpectSameReport(Lines(Printed("example.tsav")), GoldenReport(scheme));
  }
}

TEST_F(ReportCommandLine, PrintsLinesWithoutCarriageReturns) {
  const std::string text = Printed("a.tsav");
  EXPECT_EQ(text.find('\r'), std::string::npos);
  EXPECT_TRUE(text.starts_with("\nРасчет фермы\n\nВходные данные :\n")) << text.substr(0, 100);
  EXPECT_TRUE(text.ends_with("\n"));
}

TEST_F(ReportCommandLine, WritesTheSameTextWithCarriageReturnsIntoAFile) {
  const std::string expected = Replaced(Printed("a.tsav"), "\n", "\r\n");
  for (const char* name : {"report.txt", "REPORT.TXT", "Отчёт фермы.txt", "a.html.txt"}) {
    EXPECT_EQ(Written("a.tsav", name), expected) << name;
  }
}

/// The text of a page's body, a line for each paragraph.
std::string TextOfPage(const std::string& page) {
  const std::string opening = "<body>\n";
  const std::size_t begin = page.find(opening) + opening.size();
  std::string body = page.substr(begin, page.find("</body>") - begin);
  for (const char* tag : {"<p>", "</p>", "<br>", "<span class=\"f[0-9]+\">", "</span>"}) {
    body = std::regex_replace(body, std::regex(tag), "");
  }
  return body;
}

TEST_F(ReportCommandLine, WritesAPageWithTheSameText) {
  const std::string page = Written("a.tsav", "report.html");
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>\n<html lang=\"ru\">\n"));
  EXPECT_NE(page.find("<meta charset=\"utf-8\">"), std::string::npos);
  EXPECT_NE(page.find("<title>Расчет фермы</title>"), std::string::npos);
  EXPECT_TRUE(page.ends_with("</body>\n</html>\n"));
  EXPECT_EQ(page.find('\r'), std::string::npos);
  // The report ends with a line end, behind which the page has an empty line.
  EXPECT_EQ(TextOfPage(page), Printed("a.tsav") + "\n");
  EXPECT_EQ(Written("a.tsav", "Report.HTML"), page);
}

TEST_F(ReportCommandLine, EscapesWhatMeansSomethingInAPage) {
  constexpr int steelLine = 9;
  Put("b.tsav", WithLine(ExampleBytes(1), steelLine, "<b>A & B</b> &lt;"));
  EXPECT_NE(Printed("b.tsav").find("\n<b>A & B</b> &lt;\n"), std::string::npos);
  const std::string page = Written("b.tsav", "report.html");
  EXPECT_NE(page.find(">&lt;b&gt;A &amp; B&lt;/b&gt; &amp;lt;</span></p>\n"), std::string::npos);
}

TEST_F(ReportCommandLine, WritesRichTextWithTheSameText) {
  const std::string rtf = Written("a.tsav", "report.rtf");
  EXPECT_TRUE(rtf.starts_with("{\\rtf1"));
  MemoryRichTextBox box;
  box.SetTextRTF(rtf);
  EXPECT_EQ(box.Text(), Replaced(Printed("a.tsav"), "\n", "\r\n"));
  box.SetSelStart(box.Find("Входные данные :", 0, 0));
  box.SetSelLength(1);
  EXPECT_TRUE(box.SelFormat().Bold);
}

TEST_F(ReportCommandLine, TellsWhichProgramIsMissingForPages) {
  ExpectRefused(Command({"report", "a.tsav", "-o", "report.pdf"}), failed,
                "trelonit-cli: для этого вида файла нужна программа trelonit-paper в той же папке: "
                "No such file or directory\n");
}

#ifdef TRELONIT_PAPER
TEST_F(ReportCommandLine, WritesPagesWithoutADisplay) {
  PlaceProgram(TRELONIT_PAPER, ProgramFolder());
  for (int scheme = 1; scheme <= 4; ++scheme) {
    Put("a.tsav", ExampleBytes(scheme));
    const std::string pdf = Written("a.tsav", "report.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-")) << scheme;
    EXPECT_NE(pdf.find("%%EOF"), std::string::npos) << scheme;
    // Letters of the report's font are in the file.
    EXPECT_NE(pdf.find("/FontFile"), std::string::npos) << scheme;
  }
}

TEST_F(ReportCommandLine, GivesNoPagesOfAMissingProject) {
  PlaceProgram(TRELONIT_PAPER, ProgramFolder());
  ExpectRefused(Command({"report", "missing.tsav", "-o", "report.pdf"}), failed,
                "Указаный файл не найден ! Восстановление отменено !\n");
}
#endif

TEST_F(ReportCommandLine, LeavesOutADeflectionThatIsNotAskedFor) {
  constexpr int deflectionLine = 16;
  Put("b.tsav", WithLine(ExampleBytes(1), deflectionLine, "0"));
  std::vector<std::string> expected = GoldenReport(1);
  const auto first = [&expected](const std::string& line) {
    const auto found = std::find(expected.begin(), expected.end(), line);
    EXPECT_NE(found, expected.end()) << line;
    return found;
  };
  const auto inputs = first("Предельно допустимый прогиб = L * 1 / 250");
  expected.erase(inputs, inputs + 2);
  const auto section = first("Результаты расчета прогиба : ");
  expected.erase(section - 1, section + 4);
  ExpectSameReport(Lines(Printed("b.tsav")), expected);
}

TEST_F(ReportCommandLine, TellsADeflectionBeyondItsLimit) {
  constexpr int limitLine = 17;
  Put("b.tsav", WithLine(ExampleBytes(1), limitLine, "1 / 2500"));
  const std::string text = Printed("b.tsav");
  EXPECT_NE(text.find("\nРезультаты расчета прогиба : \n\nНе выполнено условие жесткости !!! \n"
                      "Максимальный прогиб фермы : 0.03512 м \n"
                      "Допустимый прогиб фермы : 0.00960 м \n  \n"),
            std::string::npos);
}

TEST_F(ReportCommandLine, LeavesTheProjectAsItIsAndReplacesAnOlderReport) {
  Put("report.txt", std::string(100000, 'x'));
  const std::string first = Written("a.tsav", "report.txt");
  EXPECT_EQ(Written("a.tsav", "report.txt"), first);
  EXPECT_EQ(Content("a.tsav"), ExampleBytes(1));
  EXPECT_EQ(Names(), (std::set<std::string>{"a.tsav", "report.txt"}));
}

TEST_F(ReportCommandLine, IsRefusedWithAKindThatIsNone) {
  for (const std::string name : {"report.doc", "report", "txt", ".txt", ".html", "report.txt.zip",
                                 "report.htm", "report.txt ", "--"}) {
    ExpectRefused(Command({"report", "a.tsav", "--output=" + name}), wrongUsage,
                  "trelonit-cli: вид отчёта «" + name +
                      "» неизвестен: нужен файл .txt, .rtf, .pdf или .html или «-»\n");
  }
}

TEST_F(ReportCommandLine, IsRefusedWithoutItsArguments) {
  const std::string help = "; справка: trelonit-cli --help\n";
  ExpectRefused(Command({"report"}), wrongUsage, "trelonit-cli: не указан аргумент «FILE»" + help);
  ExpectRefused(Command({"report", "a.tsav"}), wrongUsage,
                "trelonit-cli: не указан аргумент «--output»" + help);
  ExpectRefused(Command({"report", "a.tsav", "-o"}), wrongUsage,
                "trelonit-cli: у ключа «--output» неверное число значений" + help);
  ExpectRefused(Command({"report", "a.tsav", "-o", "-", "лишний"}), wrongUsage,
                "trelonit-cli: лишний или неизвестный аргумент «лишний»" + help);
}

TEST_F(ReportCommandLine, FailsWithoutItsProject) {
  for (const char* file : {"-", "report.txt", "report.html", "report.rtf"}) {
    ExpectRefused(Command({"report", "missing.tsav", "-o", file}), failed,
                  "Указаный файл не найден ! Восстановление отменено !\n");
  }
}

TEST_F(ReportCommandLine, GivesTheReportWithAHintOnItsProportions) {
  constexpr int heightLine = 6;
  Put("b.tsav", WithLine(ExampleBytes(1), heightLine, "30"));
  const Outcome outcome = Run({"report", "b.tsav", "-o", "-"});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_TRUE(
      outcome.Err.starts_with("Трелонит v 1.0.0 (alpha): Высота фермы превышает ее длинну !\n"))
      << outcome.Err;
  EXPECT_NE(outcome.Out.find("\nВысота фермы - 30\n"), std::string::npos);
}

TEST_F(ReportCommandLine, GivesNoPartOfAReportThatFailed) {
  constexpr int schemeLine = 2;
  constexpr int limitLine = 17;
  constexpr int ownWeightLine = 46;
  const auto expectFailure = [this](const std::string& project, const std::string& tail) {
    Put("b.tsav", project);
    for (const char* file : {"-", "report.txt"}) {
      const Outcome outcome = Run({"report", "b.tsav", "-o", file});
      EXPECT_EQ(outcome.Status, failed) << file;
      EXPECT_EQ(outcome.Out.size(), 0U) << file;
      EXPECT_TRUE(outcome.Err.ends_with(tail)) << outcome.Err;
    }
    EXPECT_EQ(Names(), (std::set<std::string>{"a.tsav", "b.tsav"}));
  };
  // Fails behind the reactions.
  expectFailure(WithLine(ExampleBytes(1), limitLine, "1 / x"),
                ErrorLine("cmdShowResults_Click", 13, "Type mismatch"));
  // A reserved scheme fails at the forces, or at the own weight before the first line.
  const std::string reserved = WithLine(ExampleBytes(1), schemeLine, "5");
  expectFailure(WithLine(reserved, ownWeightLine, "0"),
                ErrorLine("cmdShowResults_Click", 9, "Subscript out of range"));
  expectFailure(reserved, ErrorLine("cmdShowResults_Click", 6, "Overflow"));
}

TEST_F(ReportCommandLine, TellsATargetThatCannotBe) {
  fs::create_directory(WorkFolder() / "folder.txt");
  ExpectRefused(Command({"report", "a.tsav", "-o", "no/such/report.txt"}), failed,
                "trelonit-cli: файл «no/such/report.txt» не записан: Path not found\n");
  ExpectRefused(Command({"report", "a.tsav", "-o", "folder.txt"}), failed,
                "trelonit-cli: файл «folder.txt» не записан: Path/File access error\n");
}

TEST_F(ReportCommandLine, LeavesAnOlderReportWholeWhereNothingMayBeWritten) {
  UnpackCatalogue();
  Put("report.txt", "mine");
  fs::permissions(WorkFolder(), fs::perms(0555));
  for (const std::string name : {"report.txt", "report.html", "report.rtf"}) {
    Launch launch = Command({"report", "a.tsav", "-o", name});
    launch.PlainUser = true;
    ExpectRefused(launch, failed,
                  "trelonit-cli: файл «" + name + "» не записан: Permission denied\n");
  }
  fs::permissions(WorkFolder(), fs::perms(0755));
  EXPECT_EQ(Content("report.txt"), "mine");
}

TEST_F(ReportCommandLine, LeavesAnOlderReportWholeOnAFullDisk) {
  UnpackCatalogue();
  Put("report.txt", "mine");
  for (const std::string name : {"report.txt", "report.html", "report.rtf"}) {
    Launch launch = Command({"report", "a.tsav", "-o", name});
    launch.LargestFile = 1000;
    ExpectRefused(launch, failed, "trelonit-cli: файл «" + name + "» не записан: Disk full\n");
  }
  EXPECT_EQ(Content("report.txt"), "mine");
}

TEST_F(ReportCommandLine, TellsAStandardOutputThatIsFull) {
  if (!fs::exists("/dev/full")) {
    GTEST_SKIP() << "no device that is always full";
  }
  Launch launch = Command({"report", "a.tsav", "-o", "-"});
  launch.OutputTo = "/dev/full";
  ExpectRefused(launch, failed,
                "trelonit-cli: не удалось записать результат в стандартный вывод\n");
}

}  // namespace

}  // namespace trelonit::test

#endif

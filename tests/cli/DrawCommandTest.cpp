#ifndef _WIN32

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "tests/cli/OutputCommand.h"

namespace trelonit::test {

namespace {

constexpr int schemeLine = 2;

class DrawCommandLine : public OutputCommand {
 protected:
  DrawCommandLine() : OutputCommand("draw") {}
};

/// The pairs of a file: group code and value.
std::vector<std::pair<std::string, std::string>> Pairs(const std::string& dxf) {
  std::vector<std::string> lines = Lines(dxf);
  EXPECT_EQ(lines.size() % 2, 0U);
  std::vector<std::pair<std::string, std::string>> pairs;
  for (std::size_t place = 0; place + 1 < lines.size(); place += 2) {
    std::erase(lines[place], ' ');
    std::erase(lines[place + 1], '\r');
    pairs.emplace_back(lines[place], lines[place + 1]);
  }
  return pairs;
}

/// How many entities of a kind stand in the model space.
int Entities(const std::string& dxf, const std::string& kind) {
  const auto pairs = Pairs(dxf);
  const auto begin =
      std::find(pairs.begin(), pairs.end(), std::pair<std::string, std::string>("2", "ENTITIES"));
  const auto end =
      std::find(begin, pairs.end(), std::pair<std::string, std::string>("0", "ENDSEC"));
  return static_cast<int>(std::count(begin, end, std::pair<std::string, std::string>("0", kind)));
}

bool HasText(const std::string& dxf, const std::string& text) {
  const auto pairs = Pairs(dxf);
  return std::find(pairs.begin(), pairs.end(), std::pair<std::string, std::string>("1", text)) !=
         pairs.end();
}

TEST_F(DrawCommandLine, WritesADrawingFromItsHeadToItsEnd) {
  const auto pairs = Pairs(Written("a.tsav", "a.dxf"));
  ASSERT_GT(pairs.size(), 100U);
  EXPECT_EQ(pairs.front(), (std::pair<std::string, std::string>("0", "SECTION")));
  EXPECT_EQ(pairs.at(1), (std::pair<std::string, std::string>("2", "HEADER")));
  EXPECT_EQ(pairs.back(), (std::pair<std::string, std::string>("0", "EOF")));
}

TEST_F(DrawCommandLine, DrawsBothSchemesOfEveryExample) {
  struct Case {
    int Scheme;
    int Bars;  ///< of one scheme
    int Dimensions;
    const char* Title;
  };
  // Panels: 8, 10, 6 and 12.
  for (const Case& c : {Case{1, 4 * 8 + 1, 8 + 2, "Геометрическая схема фермы"},
                        Case{2, 10 + 10 + 9 + 8, 10 + 2, "Геометрическая схема"},
                        Case{3, 6 + 12 + 5, 6 + 7 + 2, "Геометрическая схема"},
                        Case{4, 12 + 12 + 6 + 5, 12 + 2, "Геометрическая схема"}}) {
    SCOPED_TRACE(c.Scheme);
    Put("example.tsav", ExampleBytes(c.Scheme));
    const std::string dxf = Written("example.tsav", "example.dxf");
    // Two arrows of three lines each.
    EXPECT_EQ(Entities(dxf, "LINE"), 2 * c.Bars + 6);
    EXPECT_EQ(Entities(dxf, "DIMENSION"), 2 * c.Dimensions);
    // One label a bar, then two; two titles and two reactions.
    EXPECT_EQ(Entities(dxf, "TEXT"), 3 * c.Bars + 4);
    EXPECT_TRUE(HasText(dxf, " Схема усилий"));
    EXPECT_TRUE(HasText(dxf, " " + std::string(c.Title)) ||
                HasText(dxf, " " + std::string(c.Title) + " "));
  }
}

TEST_F(DrawCommandLine, WritesTheForcesOfTheCalculation) {
  const std::string dxf = Written("a.tsav", "a.dxf");
  for (const char* text :
       {"-46.18", "43.30", "27.64", "Ra = 21.552", "Rb = 21.552", "L = 3.00 м ", "L = 2.80 м "}) {
    EXPECT_TRUE(HasText(dxf, text)) << text;
  }
}

TEST_F(DrawCommandLine, LeavesTheProjectAsItIsAndReplacesAnOlderDrawing) {
  Put("a.dxf", std::string(1000000, 'x'));
  const std::string first = Written("a.tsav", "a.dxf");
  EXPECT_EQ(Written("a.tsav", "A.DXF"), first);
  EXPECT_EQ(Written("a.tsav", "Чертёж фермы.dxf"), first);
  EXPECT_EQ(Content("a.tsav"), ExampleBytes(1));
  EXPECT_EQ(Names(), (std::set<std::string>{"a.tsav", "a.dxf", "A.DXF", "Чертёж фермы.dxf"}));
}

TEST_F(DrawCommandLine, TellsWhichProgramIsMissingForPages) {
  for (const std::string kind : {"pdf", "png"}) {
    ExpectRefused(Command({"draw", "a.tsav", "-o", "a." + kind}), failed,
                  "trelonit-cli: для этого вида файла нужна программа trelonit-paper в той же "
                  "папке: No such file or directory\n");
  }
}

TEST_F(DrawCommandLine, WritesVectorsWithoutAnotherProgram) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    Put("a.tsav", ExampleBytes(scheme));
    const std::string svg = Written("a.tsav", "a.SVG");
    EXPECT_TRUE(svg.starts_with("<?xml")) << scheme;
    EXPECT_TRUE(svg.ends_with("</svg>\n")) << scheme;
  }
}

#ifdef TRELONIT_PAPER
TEST_F(DrawCommandLine, WritesPagesAndPicturesWithoutADisplay) {
  PlaceProgram(TRELONIT_PAPER, ProgramFolder());
  struct Kind {
    const char* Name;
    std::string Beginning;
    std::string Part;
  };
  for (int scheme = 1; scheme <= 4; ++scheme) {
    Put("a.tsav", ExampleBytes(scheme));
    for (const Kind& kind :
         {Kind{"a.pdf", "%PDF-", "/FontFile"}, Kind{"A.PNG", "\x89PNG", "IEND"}}) {
      Launch launch = Command({"draw", "a.tsav", "-o", kind.Name});
      launch.Environment["DISPLAY"] = "";
      launch.Environment["WAYLAND_DISPLAY"] = "";
      launch.Environment["QT_QPA_PLATFORM"] = "xcb";
      const Outcome outcome = RunProgram(launch);
      EXPECT_EQ(outcome.Status, done) << kind.Name;
      EXPECT_EQ(outcome.Err, "") << kind.Name;
      const std::string bytes = Content(kind.Name);
      EXPECT_TRUE(bytes.starts_with(kind.Beginning)) << kind.Name << scheme;
      EXPECT_NE(bytes.find(kind.Part), std::string::npos) << kind.Name << scheme;
    }
  }
}

TEST_F(DrawCommandLine, GivesTheSameDrawingFromBothPrograms) {
  const std::string expected = Written("a.tsav", "a.dxf");
  PlaceProgram(TRELONIT_PAPER, ProgramFolder());
  Launch launch = Command({"draw", "a.tsav", "-o", "b.dxf"});
  launch.Arguments[0] = (ProgramFolder() / fs::path(TRELONIT_PAPER).filename()).string();
  EXPECT_EQ(RunProgram(launch).Status, done);
  EXPECT_EQ(Content("b.dxf"), expected);
}

TEST_F(DrawCommandLine, GivesNoPagesOfAMissingProject) {
  PlaceProgram(TRELONIT_PAPER, ProgramFolder());
  for (const std::string kind : {"svg", "pdf", "png"}) {
    ExpectRefused(Command({"draw", "missing.tsav", "-o", "a." + kind}), failed,
                  "Указаный файл не найден ! Восстановление отменено !\n");
  }
}

TEST_F(DrawCommandLine, LeavesAnOlderPageWholeOnAFullDisk) {
  PlaceProgram(TRELONIT_PAPER, ProgramFolder());
  UnpackCatalogue();
  for (const std::string name : {"a.svg", "a.pdf", "a.png"}) {
    Put(name, "mine");
    Launch launch = Command({"draw", "a.tsav", "-o", name});
    launch.LargestFile = 1000;
    ExpectRefused(launch, failed, "trelonit-cli: файл «" + name + "» не записан: Disk full\n");
    EXPECT_EQ(Content(name), "mine");
  }
}
#endif

TEST_F(DrawCommandLine, IsRefusedWithAKindThatIsNone) {
  for (const std::string name :
       {"a.dwg", "a", "dxf", ".dxf", ".png", "a.dxf.zip", "a.dxf ", "-", "--"}) {
    ExpectRefused(Command({"draw", "a.tsav", "--output=" + name}), wrongUsage,
                  "trelonit-cli: вид чертежа «" + name +
                      "» неизвестен: нужен файл .dxf, .svg, .pdf или .png\n");
  }
}

TEST_F(DrawCommandLine, IsRefusedWithoutItsArguments) {
  const std::string help = "; справка: trelonit-cli --help\n";
  ExpectRefused(Command({"draw"}), wrongUsage, "trelonit-cli: не указан аргумент «FILE»" + help);
  ExpectRefused(Command({"draw", "a.tsav"}), wrongUsage,
                "trelonit-cli: не указан аргумент «--output»" + help);
  ExpectRefused(Command({"draw", "a.tsav", "-o", "a.dxf", "лишний"}), wrongUsage,
                "trelonit-cli: лишний или неизвестный аргумент «лишний»" + help);
}

TEST_F(DrawCommandLine, HasItsOwnHelp) {
  const Outcome outcome = Run({"draw", "--help"});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_NE(outcome.Out.find(".dxf, .svg, .pdf, .png"), std::string::npos);
  EXPECT_NE(Run({"--help"}).Out.find("draw"), std::string::npos);
}

TEST_F(DrawCommandLine, FailsWithoutItsProject) {
  ExpectRefused(Command({"draw", "missing.tsav", "-o", "a.dxf"}), failed,
                "Указаный файл не найден ! Восстановление отменено !\n");
}

TEST_F(DrawCommandLine, GivesTheDrawingWithAHintOnItsProportions) {
  constexpr int heightLine = 6;
  Put("b.tsav", WithLine(ExampleBytes(1), heightLine, "30"));
  const Outcome outcome = Run({"draw", "b.tsav", "-o", "b.dxf"});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_TRUE(
      outcome.Err.starts_with("Трелонит v 1.0.0 (alpha): Высота фермы превышает ее длинну !\n"))
      << outcome.Err;
  EXPECT_TRUE(HasText(Content("b.dxf"), "L = 30.00 м "));
}

TEST_F(DrawCommandLine, GivesNoDrawingWithoutAReport) {
  constexpr int limitLine = 17;
  constexpr int ownWeightLine = 46;
  const std::string reserved = WithLine(ExampleBytes(1), schemeLine, "5");
  struct Case {
    std::string Project;
    std::string Tail;
  };
  // The deflection fails, or a reserved scheme does: at its forces, or at its own weight.
  for (const Case& c : {Case{WithLine(ExampleBytes(1), limitLine, "1 / x"),
                             ErrorLine("cmdShowResults_Click", 13, "Type mismatch")},
                        Case{WithLine(reserved, ownWeightLine, "0"),
                             ErrorLine("cmdShowResults_Click", 9, "Subscript out of range")},
                        Case{reserved, ErrorLine("cmdShowResults_Click", 6, "Overflow")}}) {
    Put("b.tsav", c.Project);
    const Outcome outcome = Run({"draw", "b.tsav", "-o", "b.dxf"});
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_TRUE(outcome.Err.ends_with(c.Tail)) << outcome.Err;
    EXPECT_EQ(Names(), (std::set<std::string>{"a.tsav", "b.tsav"}));
  }
}

TEST_F(DrawCommandLine, TellsATargetThatCannotBe) {
  fs::create_directory(WorkFolder() / "folder.dxf");
  ExpectRefused(Command({"draw", "a.tsav", "-o", "no/such/a.dxf"}), failed,
                "trelonit-cli: файл «no/such/a.dxf» не записан: Path not found\n");
  ExpectRefused(Command({"draw", "a.tsav", "-o", "folder.dxf"}), failed,
                "trelonit-cli: файл «folder.dxf» не записан: Path/File access error\n");
}

TEST_F(DrawCommandLine, LeavesAnOlderDrawingWholeWhereNothingMayBeWritten) {
  UnpackCatalogue();
  Put("a.dxf", "mine");
  fs::permissions(WorkFolder(), fs::perms(0555));
  Launch launch = Command({"draw", "a.tsav", "-o", "a.dxf"});
  launch.PlainUser = true;
  ExpectRefused(launch, failed, "trelonit-cli: файл «a.dxf» не записан: Permission denied\n");
  fs::permissions(WorkFolder(), fs::perms(0755));
  EXPECT_EQ(Content("a.dxf"), "mine");
}

TEST_F(DrawCommandLine, LeavesAnOlderDrawingWholeOnAFullDisk) {
  UnpackCatalogue();
  Put("a.dxf", "mine");
  Launch launch = Command({"draw", "a.tsav", "-o", "a.dxf"});
  launch.LargestFile = 1000;
  ExpectRefused(launch, failed, "trelonit-cli: файл «a.dxf» не записан: Disk full\n");
  EXPECT_EQ(Content("a.dxf"), "mine");
}

}  // namespace

}  // namespace trelonit::test

#endif

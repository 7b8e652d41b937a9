#ifndef _WIN32

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/cli/Workbench.h"

namespace trelonit::test {

namespace {

using Texts = std::vector<std::string>;

class VariantsCommand : public CliTest {
 protected:
  VariantsCommand() { Put("project.tsav", ExampleBytes(1)); }

  Outcome Study(const Texts& options) const {
    Texts arguments{"variants", "project.tsav"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Run(arguments);
  }
  std::string Made(const std::string& name) const { return FileBytes(WorkFolder() / name); }

  const Texts axes{"--height", "2:3:0.25", "--panels", "6:12:2", "--scheme", "1,4"};

  Texts With(Texts more) const {
    more.insert(more.begin(), axes.begin(), axes.end());
    return more;
  }
};

TEST_F(VariantsCommand, MakesATableWithARowForEachVariant) {
  const Outcome outcome = Study(With({"-o", "table.csv"}));
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Out, "");
  EXPECT_EQ(outcome.Err, "");
  const std::string table = Made("table.csv");
  EXPECT_TRUE(table.starts_with("Номер,Схема,\"Пролет, м\",\"Высота, м\","));
  EXPECT_EQ(Lines(table).size(), 1 + 5 * 4 * 2U);
}

TEST_F(VariantsCommand, PrintsTheSameTable) {
  EXPECT_EQ(Study(With({"-o", "table.csv"})).Status, done);
  const Outcome printed = Study(With({"-o", "-"}));
  EXPECT_EQ(printed.Status, done);
  EXPECT_EQ(printed.Out, Made("table.csv"));
}

TEST_F(VariantsCommand, MakesTheSameTableOfShardsAndOfAnyJobs) {
  EXPECT_EQ(Study(With({"-o", "table.csv", "--jobs", "1"})).Status, done);
  std::string joined;
  for (const char* shard : {"1/3", "2/3", "3/3"}) {
    EXPECT_EQ(Study(With({"-o", "part.csv", "--shard", shard, "--jobs", "3"})).Status, done);
    joined += Made("part.csv");
  }
  EXPECT_EQ(joined, Made("table.csv"));
}

TEST_F(VariantsCommand, GivesTheLightestAndTheFront) {
  EXPECT_EQ(Study(With({"-o", "best.json", "--best", "3"})).Status, done);
  const auto best = nlohmann::json::parse(Made("best.json"));
  ASSERT_EQ(best.size(), 3U);
  EXPECT_LE(best[0].at("Mass"), best[1].at("Mass"));
  EXPECT_LE(best[1].at("Mass"), best[2].at("Mass"));
  EXPECT_EQ(Study(With({"-o", "all.json"})).Status, done);
  for (const auto& variant : nlohmann::json::parse(Made("all.json"))) {
    if (variant.at("Verdict") == "годится") {
      EXPECT_GE(variant.at("Mass"), best[0].at("Mass"));
    }
  }
  EXPECT_EQ(Study(With({"-o", "front.json", "--front", "height"})).Status, done);
  const auto front = nlohmann::json::parse(Made("front.json"));
  ASSERT_FALSE(front.empty());
  EXPECT_EQ(front[0].at("Number"), best[0].at("Number"));
  for (std::size_t place = 1; place < front.size(); ++place) {
    EXPECT_LT(front[place].at("Hight"), front[place - 1].at("Hight"));
  }
}

TEST_F(VariantsCommand, MakesAPictureOfThem) {
  EXPECT_EQ(Study(With({"-o", "plot.svg"})).Status, done);
  EXPECT_TRUE(Made("plot.svg").starts_with("<svg xmlns="));
}

TEST_F(VariantsCommand, RefusesWrongAxesInOneLineAndLeavesNothing) {
  const auto refused = [this](const Texts& options, const std::string& line) {
    Texts whole = options;
    whole.insert(whole.end(), {"-o", "table.csv"});
    const Outcome outcome = Study(whole);
    EXPECT_EQ(outcome.Status, wrongUsage) << line;
    EXPECT_EQ(outcome.Err, "trelonit-cli: " + line + "\n");
    EXPECT_FALSE(fs::exists(WorkFolder() / "table.csv"));
  };
  refused({"--height", "4:2:1"}, "ключ «--height»: диапазон «4:2:1» идет назад");
  refused({"--height", "1:2:0"}, "ключ «--height»: в диапазоне «1:2:0» шаг не больше нуля");
  refused({"--panels", "6.5"}, "ключ «--panels»: в «6.5» не все числа целые");
  refused({"--upper", "1/99"}, "для расположения профилей 1 нет сортамента 99");
  refused({"--upper", "1"}, "ключ «--upper»: «1» записывается как расположение/сортамент");
  refused({"--steel", "С245"}, "ключ «--steel»: «С245» записывается как марка:Ry");
  refused({"--height", "1:2:0.00001", "--span", "10:20:0.0001"}, "вариантов больше 100 000 000");
  refused({"--front", "x"}, "ключ «--front»: «height» или «progib»");
  refused({"--shard", "3/2"}, "нет части «3/2»");
}

TEST_F(VariantsCommand, RefusesATableThatItDoesNotKnowOrCannotWrite) {
  Outcome outcome = Study({"-o", "table.txt"});
  EXPECT_EQ(outcome.Status, wrongUsage);
  EXPECT_EQ(outcome.Err,
            "trelonit-cli: файл «table.txt»: варианты записываются в .csv, .json, .svg\n");
  outcome = Study({"-o", "none/table.csv"});
  EXPECT_EQ(outcome.Status, failed);
  EXPECT_EQ(outcome.Err, "trelonit-cli: файл «none/table.csv» не записан: Path not found\n");
}

TEST_F(VariantsCommand, LeavesTheOldTableWhereTheDiskIsFullHalfWay) {
  Put("table.csv", "old");
  Launch launch =
      Command({"variants", "project.tsav", "--height", "2:4:0.0002", "-o", "table.csv"});
  // Enough for what the program puts beside itself.
  launch.LargestFile = 2'000'000;
  const Outcome outcome = Subprocess(launch).Wait();
  EXPECT_EQ(outcome.Status, failed);
  EXPECT_TRUE(outcome.Err.starts_with("trelonit-cli: файл «table.csv» не записан: "));
  EXPECT_EQ(Made("table.csv"), "old");
  std::size_t files = 0;
  for ([[maybe_unused]] const auto& entry : fs::directory_iterator(WorkFolder())) {
    ++files;
  }
  EXPECT_EQ(files, 2U);
}

TEST_F(VariantsCommand, LeavesAWholeTableOfWhatIsDoneWhenItIsInterrupted) {
  Launch launch =
      Command({"variants", "project.tsav", "--height", "2:4:0.00001", "-o", "table.csv"});
  const Texts interrupted{"/usr/bin/timeout", "--preserve-status", "--signal=INT", "1"};
  launch.Arguments.insert(launch.Arguments.begin(), interrupted.begin(), interrupted.end());
  const Outcome outcome = Subprocess(launch).Wait();
  EXPECT_EQ(outcome.Status, failed);
  const std::string table = Made("table.csv");
  const std::size_t rows = Lines(table).size() - 1;
  EXPECT_GT(rows, 0U);
  EXPECT_EQ(outcome.Err,
            "trelonit-cli: прервано: посчитано " + std::to_string(rows) + " из 200001\n");
  EXPECT_TRUE(table.ends_with("\r\n"));
}

TEST_F(VariantsCommand, FailsOnAProjectThatIsNone) {
  Put("project.tsav", "nothing");
  const Outcome outcome = Study(With({"-o", "table.csv"}));
  EXPECT_EQ(outcome.Status, failed);
  EXPECT_NE(outcome.Err, "");
  EXPECT_FALSE(fs::exists(WorkFolder() / "table.csv"));
}

}  // namespace

}  // namespace trelonit::test

#endif

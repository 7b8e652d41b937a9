#ifndef _WIN32

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "tests/cli/JsonOutput.h"

namespace trelonit::test {

namespace {

using Texts = std::vector<std::string>;

const std::string question = "Переписать файл ?: Такой файл уже существует! Заменить?\n";
const std::string cancelled = "Сохранение отменено !\n";
const std::string notFound = "Указаный файл не найден ! Восстановление отменено !\n";
const std::string impossible = "Подбор невозможен";

const std::string cannotWrite =
    "WriteApplParameters: Ошибка создания файла для записи ! err discription : \n";

/// Lines of a project.
constexpr int lineRy = 10;
constexpr int lineOwnWeightOn = 46;

/// Blocks in the order of the search, with their places in the list of sections and their rows.
struct Group {
  const char* Block;
  std::size_t Place;
  const char* Caption;
};
const std::vector<Group>& Groups() {
  static const std::vector<Group> groups{{"UpPoyas", 0, "Верхний пояс"},
                                         {"DwnPoyas", 1, "Нижний пояс"},
                                         {"Raskos", 2, "Раскосы"},
                                         {"Stoyka", 4, "Стойки"},
                                         {"OpornRaskos", 3, "Опорные раскосы"}};
  return groups;
}

/// The groups that a scheme has.
std::vector<Group> GroupsOf(int scheme) {
  std::vector<Group> groups = Groups();
  if (scheme == 3) {
    groups.erase(groups.begin() + 3);
  }
  return groups;
}

class SelectCommand : public CalcJsonTest {
 protected:
  Outcome Selected(const std::string& project, const Texts& options = {}) {
    Put("project.tsav", project);
    Texts arguments{"select", "project.tsav"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Run(arguments);
  }

  /// A selection that must succeed without a message.
  std::string Printed(const std::string& project, const Texts& options = {}) {
    const Outcome outcome = Selected(project, options);
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, "");
    return outcome.Out;
  }
  Json Object(const std::string& project, Texts options = {}) {
    options.emplace_back("--json");
    return ParsedOutput({.Status = done, .Out = Printed(project, options)});
  }

  void ExpectFailure(const Outcome& outcome, const std::string& err) {
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(outcome.Err, err);
  }
};

TEST_F(SelectCommand, HasTheSelectionInThePlaceOfTheFindingsOfACalculation) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const std::string project = ExampleBytes(scheme);
    Texts keys = Keys(Calculated(project));
    EXPECT_EQ(keys.back(), "Findings");
    keys.back() = "Selection";
    const Json object = Object(project);
    EXPECT_EQ(Keys(object), keys);
    EXPECT_EQ(object.at("Messages"), Json::array());
  }
}

TEST_F(SelectCommand, HasARowForEachGroupThatTheSchemeHas) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json rows = Object(ExampleBytes(scheme)).at("Selection");
    Texts blocks;
    for (const Json& row : rows) {
      EXPECT_EQ(Keys(row), (Texts{"Group", "Name", "SizeIdx", "Gdist", "Possible"}));
      blocks.push_back(row.at("Group"));
    }
    Texts expected;
    for (const Group& group : GroupsOf(scheme)) {
      expected.emplace_back(group.Block);
    }
    EXPECT_EQ(blocks, expected);
  }
}

TEST_F(SelectCommand, ShowsTheSectionsOfTheProposal) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json object = Object(ExampleBytes(scheme));
    const std::vector<Group> groups = GroupsOf(scheme);
    for (std::size_t row = 0; row < groups.size(); ++row) {
      const Json& selected = object.at("Selection").at(row);
      const Json& section = object.at("ElementSection").at(groups[row].Place);
      EXPECT_EQ(selected.at("Name"), section.at("Profile").at("Name"));
      EXPECT_EQ(selected.at("SizeIdx"), section.at("SizeIdx"));
      EXPECT_EQ(selected.at("Gdist"), section.at("Gdist"));
      EXPECT_EQ(selected.at("Possible"), true);
    }
  }
}

TEST_F(SelectCommand, NamesTheRecordOfTheCatalogueAtItsPlace) {
  const Json object = Object(ExampleBytes(4));
  for (const Json& section : object.at("ElementSection")) {
    const Texts lines =
        Lines(Run({"catalogue", "show", std::to_string(section.at("TypeIdx").get<int>())}).Out);
    // The standard's name and the head of the table come before the first size.
    const std::string& line = lines.at(section.at("SizeIdx").get<std::size_t>() + 1);
    EXPECT_EQ(Words(line).front(), section.at("Profile").at("Name"));
  }
}

TEST_F(SelectCommand, ChangesNeitherStandardNorLayout) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json before = Calculated(ExampleBytes(scheme)).at("ElementSection");
    const Json after = Object(ExampleBytes(scheme)).at("ElementSection");
    EXPECT_NE(before, after);
    for (std::size_t place = 0; place < 5; ++place) {
      for (const char* key : {"TypeIdx", "Paired", "Layout"}) {
        EXPECT_EQ(after.at(place).at(key), before.at(place).at(key)) << key;
      }
    }
    if (scheme == 3) {
      EXPECT_EQ(after.at(4), before.at(4));
    }
  }
}

TEST_F(SelectCommand, LeavesForcesAndLoadsAsCalculateHasThem) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json before = Calculated(ExampleBytes(scheme));
    const Json after = Object(ExampleBytes(scheme));
    for (const char* key : {"TreloData", "TreloResult", "OwnWeightAdded", "OwnWeightPerMetre"}) {
      EXPECT_EQ(after.at(key), before.at(key)) << key;
    }
  }
}

TEST_F(SelectCommand, GivesTheSelectedSectionsACheckThatPasses) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    // Own weight would change with the sections and move the forces.
    Printed(WithLine(ExampleBytes(scheme), lineOwnWeightOn, "0"), {"-o", "selected.tsav"});
    const Json check = Calculated(Content("selected.tsav")).at("CheckResult");
    for (const Group& group : GroupsOf(scheme)) {
      for (const char* key :
           {"KStrength", "KStabX", "KStabY", "KFlexX", "KFlexY", "KUserX", "KUserY"}) {
        EXPECT_LE(check.at(group.Block).at(key).get<double>(), 1) << scheme << group.Block << key;
      }
    }
    fs::remove(WorkFolder() / "selected.tsav");
  }
}

TEST_F(SelectCommand, PrintsTheSizesAboveTheTwoLists) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json object = Object(ExampleBytes(scheme));
    const Texts lines = Lines(Printed(ExampleBytes(scheme)));
    EXPECT_EQ(Words(lines.at(0)), (Texts{"Группа", "Профиль"}));
    const std::vector<Group> groups = GroupsOf(scheme);
    for (std::size_t row = 0; row < groups.size(); ++row) {
      Texts words = Words(groups[row].Caption);
      words.push_back(object.at("Selection").at(row).at("Name"));
      EXPECT_EQ(Words(lines.at(row + 1)), words);
    }
    EXPECT_EQ(lines.at(groups.size() + 1), "");
    const Texts forces(lines.begin() + static_cast<std::ptrdiff_t>(groups.size()) + 2, lines.end());
    const auto expected = object.at("lstForces").get<Texts>();
    ASSERT_GT(forces.size(), expected.size() + 1);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), forces.begin()));
    EXPECT_EQ(forces.at(expected.size()), "");
    EXPECT_EQ(Words(forces.at(expected.size() + 1)), (Texts{"Проверка", "Коэффициент"}));
    EXPECT_EQ(forces.size(), expected.size() + 2 + object.at("MSFlexGKoefUse").size());
  }
}

TEST_F(SelectCommand, TellsWhereNoSizePasses) {
  const std::string project = WithLine(ExampleBytes(1), lineRy, "0.001");
  const std::map<int, std::size_t> sizes{{1, 62}, {2, 121}};
  const Json object = Object(project);
  for (std::size_t row = 0; row < Groups().size(); ++row) {
    const Json& selected = object.at("Selection").at(row);
    EXPECT_EQ(selected.at("Possible"), false);
    const Json& section = object.at("ElementSection").at(Groups()[row].Place);
    EXPECT_EQ(selected.at("SizeIdx"), sizes.at(section.at("TypeIdx").get<int>()));
  }
  const Texts lines = Lines(Printed(project));
  for (std::size_t row = 1; row <= 5; ++row) {
    EXPECT_TRUE(lines.at(row).ends_with(impossible)) << lines.at(row);
  }
}

TEST_F(SelectCommand, SavesAProjectWithTheSameSections) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    for (const char* option : {"-o", "--output"}) {
      const Json object = Object(ExampleBytes(scheme), {option, "selected.tsav"});
      EXPECT_EQ(Content("project.tsav"), ExampleBytes(scheme));
      EXPECT_EQ(Calculated(Content("selected.tsav")).at("ElementSection"),
                object.at("ElementSection"));
      fs::remove(WorkFolder() / "selected.tsav");
    }
  }
}

TEST_F(SelectCommand, SavesNothingButWhatTheSelectionHasChanged) {
  const std::string project = WithLine(ExampleBytes(1), lineOwnWeightOn, "0");
  Printed(project, {"-o", "selected.tsav"});
  const Texts before = Lines(project);
  const Texts after = Lines(Content("selected.tsav"));
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t line = 0; line < before.size(); ++line) {
    // Sizes and gaps of the five sections stand in every fifth line from 20 and 22 on.
    const std::size_t number = line + 1;
    const bool maySelect = number >= 20 && number < 45 && (number % 5 == 0 || number % 5 == 2);
    if (!maySelect) {
      EXPECT_EQ(after[line], before[line]) << number;
    }
  }
  EXPECT_NE(after, before);
}

TEST_F(SelectCommand, EndsAtTheSameSizesTheSecondTime) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json first =
        Object(WithLine(ExampleBytes(scheme), lineOwnWeightOn, "0"), {"-o", "selected.tsav"});
    const Json second = Object(Content("selected.tsav"));
    for (std::size_t row = 0; row < first.at("Selection").size(); ++row) {
      EXPECT_EQ(second.at("Selection").at(row).at("SizeIdx"),
                first.at("Selection").at(row).at("SizeIdx"));
    }
    fs::remove(WorkFolder() / "selected.tsav");
  }
}

TEST_F(SelectCommand, SavesNothingWithoutAnOutput) {
  Printed(ExampleBytes(1));
  Printed(ExampleBytes(1), {"--force"});
  EXPECT_EQ(Names(), std::set<std::string>{"project.tsav"});
  EXPECT_EQ(Content("project.tsav"), ExampleBytes(1));
}

TEST_F(SelectCommand, LeavesAnExistingFileWholeAndAsks) {
  Put("mine.tsav", "mine");
  ExpectFailure(Selected(ExampleBytes(1), {"-o", "mine.tsav"}), question + cancelled);
  EXPECT_EQ(Content("mine.tsav"), "mine");
  ExpectFailure(Selected(ExampleBytes(1), {"-o", "project.tsav"}), question + cancelled);
  EXPECT_EQ(Content("project.tsav"), ExampleBytes(1));
}

TEST_F(SelectCommand, ReplacesAnExistingFileWithForce) {
  Printed(ExampleBytes(1), {"-o", "fresh.tsav"});
  for (const char* option : {"-f", "--force"}) {
    Put("mine.tsav", std::string(100000, 'x'));
    for (const char* output : {"mine.tsav", "project.tsav"}) {
      const Outcome outcome = Selected(ExampleBytes(1), {"-o", output, option});
      EXPECT_EQ(outcome.Status, done);
      EXPECT_EQ(outcome.Err.find(cancelled), std::string::npos);
      EXPECT_EQ(Content(output), Content("fresh.tsav")) << output;
    }
  }
}

TEST_F(SelectCommand, TellsAProjectThatCannotBeWritten) {
  ExpectFailure(Selected(ExampleBytes(1), {"-o", "no/such/a.tsav"}),
                cannotWrite + "Path not found\n");
  fs::create_directory(WorkFolder() / "folder.tsav");
  ExpectFailure(Selected(ExampleBytes(1), {"-o", "folder.tsav", "-f"}),
                cannotWrite + "Path/File access error\n");
}

TEST_F(SelectCommand, PrintsAnObjectAlsoWhereItsProjectIsNotSaved) {
  Put("mine.tsav", "mine");
  for (const char* output : {"mine.tsav", "no/such/a.tsav"}) {
    const Outcome outcome = Selected(ExampleBytes(1), {"--json", "-o", output});
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(MessagesAsText(ParsedOutput(outcome)), outcome.Err);
  }
}

TEST_F(SelectCommand, TellsAMissingProject) {
  ExpectFailure(Run({"select", "missing.tsav"}), notFound);
  ExpectFailure(Run({"select", "missing.tsav", "-o", "a.tsav"}), notFound);
  EXPECT_TRUE(Names().empty());
  const Outcome outcome = Run({"select", "missing.tsav", "--json"});
  EXPECT_EQ(outcome.Status, failed);
  EXPECT_EQ(outcome.Err, notFound);
  EXPECT_EQ(Keys(ParsedOutput(outcome)), Texts{"Messages"});
}

TEST_F(SelectCommand, RefusesAProjectThatCalculateRefuses) {
  const std::string good = ExampleBytes(1);
  for (const std::string& project :
       {std::string(), std::string("abc"), std::string(3000, '\xFF'), WithLine(good, 2, "0"),
        WithLine(good, 2, "5"), WithLine(good, 2, "11"), WithLine(good, 5, "0"),
        WithLine(good, 6, "-1"), WithLine(good, 8, "0"), WithLine(good, 20, "0"),
        WithLine(good, 21, "99"), WithLine(good, 24, "12"), WithLine(good, 49, "x")}) {
    Put("project.tsav", project);
    const Outcome calc = Run({"calc", "project.tsav"});
    const Outcome select = Run({"select", "project.tsav", "-o", "selected.tsav"});
    EXPECT_EQ(select.Status, calc.Status) << project.substr(0, 200);
    if (calc.Status == failed) {
      EXPECT_EQ(select.Out, "");
      EXPECT_FALSE(select.Err.empty());
      EXPECT_EQ(Names(), std::set<std::string>{"project.tsav"});
    }
    fs::remove(WorkFolder() / "selected.tsav");
  }
}

}  // namespace

}  // namespace trelonit::test

#endif

#ifndef _WIN32

#include <string>
#include <vector>

#include "tests/cli/Workbench.h"

namespace trelonit::test {

namespace {

const std::string question = "Переписать файл ?: Такой файл уже существует! Заменить?\n";
const std::string cancelled = "Сохранение отменено !\n";

/// What the program says when it cannot make the project.
std::string CannotWrite(const std::string& reason) {
  return "WriteApplParameters: Ошибка создания файла для записи ! err discription : \n" + reason +
         '\n';
}

/// The start-up defaults as the file must hold them; the name of the steel is in code page 1251.
std::vector<std::string> StartUpLines() {
  const std::string steel =
      "\xD1\xF2\xE0\xEB\xFC \xD1"
      "245 - \xEB\xE8\xF1\xF2 \xEE\xF2 2 \xE4\xEE 20 \xEC\xEC";
  std::vector<std::string> values{"Trelo calculation save file",
                                  // scheme, bracing, span, height, end panel, panels
                                  "1", "2", "2", "20", "1.5", "2", "10",
                                  // steel: name, Ry, density, E, limit slenderness, coefficients
                                  steel, "240", "7.85", "210000", "150", "1", "0.9",
                                  // deflection off, its limit, upper chord; first group
                                  "0", "1 / 120", "1", "1"};
  for (int section = 0; section < 5; ++section) {
    values.insert(values.end(), {"1", "1", "0", "False", "1"});
  }
  // dynamic loads, own weight and all panels off, the nodal tool
  values.insert(values.end(), {"0", "0", "0", "1"});
  const std::string elevenZeros = "0;0;0;0;0;0;0;0;0;0;0";
  const std::string tenZeros = "0;0;0;0;0;0;0;0;0;0";
  values.insert(values.end(), {elevenZeros, tenZeros, elevenZeros, tenZeros, "False"});
  for (std::string& value : values) {
    value = '"' + value + "\"\r";
  }
  return values;
}

class NewCommand : public CliTest {
 protected:
  /// Runs the command on a folder whose one file must stay as it is.
  void ExpectRefused(const Launch& launch, const std::string& expectedError) {
    const auto namesBefore = Names();
    const Outcome outcome = RunProgram(launch);
    EXPECT_EQ(outcome.Status, failed);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(outcome.Err, expectedError);
    EXPECT_EQ(Names(), namesBefore);
  }

  /// Room for the catalogue files is taken before any limit comes into force.
  void UnpackCatalogue() { ASSERT_EQ(Run({"catalogue", "list"}).Status, done); }

  void OpenWorkFolder() { fs::permissions(WorkFolder(), fs::perms(0777)); }

  /// Root ends up as another user, for whom 0555 is enough; a plain user is the owner.
  void CloseWorkFolder() { fs::permissions(WorkFolder(), fs::perms(0555)); }

  Launch AsPlainUser(std::vector<std::string> arguments) {
    Launch launch = Command(std::move(arguments));
    launch.PlainUser = true;
    return launch;
  }

  Launch OnFullDisk(std::vector<std::string> arguments) {
    Launch launch = Command(std::move(arguments));
    launch.LargestFile = 100;
    return launch;
  }
};

TEST_F(NewCommand, WritesTheStartUpDefaultsAsAProject) {
  const Outcome outcome = Run({"new", "-o", "a.tsav"});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Out, "");
  EXPECT_EQ(outcome.Err, "");
  EXPECT_EQ(Names(), std::set<std::string>{"a.tsav"});
  const std::string content = Content("a.tsav");
  EXPECT_EQ(Lines(content), StartUpLines());
  EXPECT_EQ(StartUpLines().size(), 53U);
  EXPECT_TRUE(content.ends_with("\"False\"\r\n"));
}

TEST_F(NewCommand, WritesTheSameProjectEveryTime) {
  ASSERT_EQ(Run({"new", "-o", "a.tsav"}).Status, done);
  ASSERT_EQ(Run({"new", "--output", "b.tsav"}).Status, done);
  EXPECT_EQ(Content("a.tsav"), Content("b.tsav"));
}

TEST_F(NewCommand, TakesAFullPathAndARussianName) {
  const std::string name = "Ферма 1.tsav";
  const Outcome outcome = Run({"new", "-o", (WorkFolder() / name).string()});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(Names(), std::set<std::string>{name});
}

TEST_F(NewCommand, LeavesAnExistingFileWholeAndAsks) {
  Put("a.tsav", "mine");
  ExpectRefused(Command({"new", "-o", "a.tsav"}), question + cancelled);
  EXPECT_EQ(Content("a.tsav"), "mine");
}

TEST_F(NewCommand, ReplacesAnExistingFileWithForce) {
  for (const char* option : {"--force", "-f"}) {
    Put("a.tsav", std::string(100000, 'x'));
    const Outcome outcome = Run({"new", "-o", "a.tsav", option});
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Out, "");
    // Nobody is asked what is answered already.
    EXPECT_EQ(outcome.Err, "");
    EXPECT_EQ(Lines(Content("a.tsav")), StartUpLines());
    EXPECT_EQ(Names(), std::set<std::string>{"a.tsav"});
  }
}

TEST_F(NewCommand, TellsThatTheFolderIsMissing) {
  ExpectRefused(Command({"new", "-o", "no/such/a.tsav"}), CannotWrite("Path not found"));
}

TEST_F(NewCommand, TellsThatTheNameIsAFolder) {
  fs::create_directory(WorkFolder() / "a.tsav");
  for (const char* name : {"a.tsav", "a.tsav/"}) {
    ExpectRefused(Command({"new", "-o", name, "--force"}), CannotWrite("Path/File access error"));
  }
  EXPECT_TRUE(fs::is_empty(WorkFolder() / "a.tsav"));
}

TEST_F(NewCommand, TellsThatTheFolderIsNotWritable) {
  UnpackCatalogue();
  CloseWorkFolder();
  ExpectRefused(AsPlainUser({"new", "-o", "a.tsav"}), CannotWrite("Permission denied"));
}

TEST_F(NewCommand, WritesAWritableFileInAFolderThatIsNot) {
  UnpackCatalogue();
  Put("a.tsav", std::string(100000, 'x'));
  fs::permissions(WorkFolder() / "a.tsav", fs::perms(0666));
  CloseWorkFolder();
  const Outcome outcome = RunProgram(AsPlainUser({"new", "-o", "a.tsav", "--force"}));
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Err, "");
  EXPECT_EQ(Lines(Content("a.tsav")), StartUpLines());
}

TEST_F(NewCommand, LeavesAReadOnlyFileWholeInAFolderThatIsWritable) {
  UnpackCatalogue();
  Put("a.tsav", "mine");
  fs::permissions(WorkFolder() / "a.tsav", fs::perms(0444));
  OpenWorkFolder();
  ExpectRefused(AsPlainUser({"new", "-o", "a.tsav", "--force"}), CannotWrite("Permission denied"));
  EXPECT_EQ(Content("a.tsav"), "mine");
}

TEST_F(NewCommand, LeavesNothingBehindOnAFullDisk) {
  UnpackCatalogue();
  ExpectRefused(OnFullDisk({"new", "-o", "a.tsav"}), CannotWrite("Disk full"));
}

TEST_F(NewCommand, LeavesTheOldFileWholeOnAFullDisk) {
  UnpackCatalogue();
  Put("a.tsav", "mine");
  ExpectRefused(OnFullDisk({"new", "-o", "a.tsav", "--force"}), CannotWrite("Disk full"));
  EXPECT_EQ(Content("a.tsav"), "mine");
}

TEST_F(NewCommand, WritesAProjectThatCalculates) {
  ASSERT_EQ(Run({"new", "-o", "a.tsav"}).Status, done);
  const std::string before = Content("a.tsav");
  const Outcome outcome = Run({"calc", "a.tsav"});
  EXPECT_EQ(outcome.Status, done) << outcome.Err;
  EXPECT_EQ(outcome.Err, "");
  EXPECT_EQ(Content("a.tsav"), before);
}

}  // namespace

}  // namespace trelonit::test

#endif

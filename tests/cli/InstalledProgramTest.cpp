#ifndef _WIN32

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tests/cli/ProgramFiles.h"

namespace trelonit::test {

namespace {

/// A program that stands where its user may not write, as an installed one does.
class InstalledProgram : public ProgramFiles {
 protected:
  fs::path UserFolder() const { return DataFolder() / "trelonit"; }

  void Install() { fs::permissions(ProgramFolder(), fs::perms(0555)); }

  Launch AsUser(const std::vector<std::string>& arguments) const {
    Launch launch = Command(arguments);
    launch.PlainUser = true;
    return launch;
  }
  std::size_t StandardsListedToUser() const {
    return StandardsListed(RunProgram(AsUser({"catalogue", "list"})));
  }
};

TEST_F(InstalledProgram, KeepsItsFilesInTheUsersDataFolder) {
  Install();
  EXPECT_EQ(StandardsListedToUser(), 22U);
  EXPECT_EQ(Names(ProgramFolder()), std::set<std::string>{ProgramName()});
  EXPECT_EQ(Names(DataFolder()), std::set<std::string>{"trelonit"});
  ExpectWholeFiles(UserFolder(), {});
}

TEST_F(InstalledProgram, UsesTheUsersFilesAsTheyStand) {
  Install();
  ASSERT_EQ(StandardsListedToUser(), 22U);
  Cut(UserFolder() / indexName, 5 * rowSize);
  EXPECT_EQ(StandardsListedToUser(), 5U);
  fs::remove(UserFolder() / indexName);
  EXPECT_EQ(StandardsListedToUser(), 22U);
  ExpectWholeFiles(UserFolder(), {});
}

TEST_F(InstalledProgram, UsesTheFilesBesideItWhereBothAreThere) {
  Unpack();
  CutIndex(5);
  Install();
  EXPECT_EQ(StandardsListedToUser(), 5U);
  EXPECT_TRUE(Names(DataFolder()).empty());
}

TEST_F(InstalledProgram, LeavesASingleFileBesideItAlone) {
  Unpack();
  CutIndex(5);
  fs::remove(ProgramFolder() / dataName);
  Install();
  EXPECT_EQ(StandardsListedToUser(), 22U);
  ExpectWholeFiles(UserFolder(), {});
  EXPECT_EQ(Names(ProgramFolder()), (std::set<std::string>{ProgramName(), indexName}));
}

TEST_F(InstalledProgram, CalculatesForAUserWithoutRights) {
  Put("a.tsav", ExampleBytes(1));
  Install();
  const Outcome outcome = RunProgram(AsUser({"calc", "a.tsav"}));
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Err, "");
  EXPECT_NE(outcome.Out.find(" Теоретическая масса фермы:\n2.7849 тонн\n"), std::string::npos);
}

TEST_F(InstalledProgram, MakesTheUsersDataFolderWithItsParents) {
  Install();
  Launch launch = AsUser({"catalogue", "list"});
  launch.Environment["XDG_DATA_HOME"] = (DataFolder() / "not" / "yet").string();
  EXPECT_EQ(RunProgram(launch).Status, done);
  ExpectWholeFiles(DataFolder() / "not" / "yet" / "trelonit", {});
}

TEST_F(InstalledProgram, UsesTheHomeFolderWhereNoDataFolderIsSet) {
  Install();
  Launch launch = AsUser({"catalogue", "list"});
  launch.Environment["HOME"] = DataFolder().string();
  launch.Environment["XDG_DATA_HOME"] = "";
  EXPECT_EQ(RunProgram(launch).Status, done);
  ExpectWholeFiles(DataFolder() / ".local" / "share" / "trelonit", {});
}

TEST_F(InstalledProgram, MakesNoFolderInTheWorkingOneWhereTheHomeIsEmpty) {
  Install();
  fs::permissions(WorkFolder(), fs::perms(0777));
  for (const char* home : {"", "home", "./home"}) {
    Launch launch = AsUser({"catalogue", "list"});
    launch.Environment["HOME"] = home;
    launch.Environment["XDG_DATA_HOME"] = "";
    RunProgram(launch);
    EXPECT_TRUE(Names().empty()) << home;
  }
}

TEST_F(InstalledProgram, IsTakenForOneWhereItsDocumentsMayNotBeRead) {
  fs::create_directories(ProgramFolder().parent_path() / "share" / "doc");
  fs::permissions(ProgramFolder().parent_path() / "share" / "doc", fs::perms(0000));
  fs::permissions(ProgramFolder(), fs::perms(0777));
  EXPECT_EQ(StandardsListedToUser(), 22U);
  EXPECT_EQ(Names(ProgramFolder()), std::set<std::string>{ProgramName()});
  ExpectWholeFiles(UserFolder(), {});
}

TEST_F(InstalledProgram, TellsThatItCannotKeepItsFilesAnywhere) {
  Install();
  fs::permissions(DataFolder(), fs::perms(0555));
  ExpectFailure(RunProgram(AsUser({"catalogue", "list"})), cannotWrite + cannotWrite + badFileName);
  EXPECT_TRUE(Names(DataFolder()).empty());
}

/// Programs that start together in a folder without catalogue files.
class ProgramsAtOnce : public ProgramFiles {
 protected:
  /// Every one must give what it gives alone.
  void ExpectAllSucceed(const std::vector<std::vector<std::string>>& commands,
                        const std::vector<std::string>& expected) {
    RemoveBoth();
    std::vector<std::unique_ptr<Subprocess>> programs;
    programs.reserve(commands.size());
    for (const std::vector<std::string>& command : commands) {
      programs.push_back(std::make_unique<Subprocess>(Command(command)));
    }
    for (std::size_t place = 0; place < programs.size(); ++place) {
      const Outcome outcome = programs[place]->Wait();
      EXPECT_EQ(outcome.Status, done);
      EXPECT_EQ(outcome.Err, "");
      EXPECT_TRUE(outcome.Out == expected.at(place)) << outcome.Out;
    }
    ExpectWholeFiles(ProgramFolder(), {ProgramName()});
  }
};

TEST_F(ProgramsAtOnce, BothSucceedInAnEmptyFolder) {
  Put("a.tsav", ExampleBytes(1));
  const std::vector<std::vector<std::string>> commands{{"catalogue", "list"}, {"calc", "a.tsav"}};
  const std::vector<std::string> expected{Run(commands[0]).Out, Run(commands[1]).Out};
  for (int round = 0; round < 10; ++round) {
    ExpectAllSucceed(commands, expected);
  }
}

TEST_F(ProgramsAtOnce, ManySucceedInAnEmptyFolder) {
  const std::vector<std::vector<std::string>> commands(8, {"catalogue", "show", "22"});
  const std::vector<std::string> expected(commands.size(), Run(commands[0]).Out);
  for (int round = 0; round < 3; ++round) {
    ExpectAllSucceed(commands, expected);
  }
}

}  // namespace

}  // namespace trelonit::test

#endif

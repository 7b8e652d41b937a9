#ifndef _WIN32

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

#include "platform/system/ProgramFolder.h"

namespace trelonit::test {

namespace fs = std::filesystem;

std::shared_ptr<const fs::path> TemporaryFolder();
std::string InChild(const std::function<std::string()>& body);
void DropRights();

namespace {

/// Names the file for the answer of a copy of this program that runs elsewhere.
constexpr const char* answerVariable = "TRELONIT_TEST_ANSWER";

/// Runs a copy of this program as a plain user in a folder of its own and asks it where it looks
/// for its files: the folder of the running executable cannot be chosen in any other way.
class ProgramFolder : public testing::Test {
 protected:
  using Environment = std::vector<std::pair<std::string, std::string>>;

  ProgramFolder() {
    fs::create_directory(Own());
    fs::copy_file("/proc/self/exe", Own() / "copy");
    fs::permissions(Own() / "copy", fs::perms(0755));
    for (const char* name : {"answer", "home", "data"}) {
      fs::create_directory(*folder_ / name);
      fs::permissions(*folder_ / name, fs::perms(0777));
    }
    fs::permissions(Own(), fs::perms(0777));
  }
  ~ProgramFolder() override { fs::permissions(Own(), fs::perms(0755)); }

  fs::path Own() const { return *folder_ / "own"; }
  fs::path Home() const { return *folder_ / "home"; }
  fs::path Data() const { return *folder_ / "data"; }
  void Put(const std::string& name) const { std::ofstream(Own() / name) << name; }
  /// As an installation does.
  void PutLicence() const {
    const fs::path documents = *folder_ / "share" / "doc" / "trelonit";
    fs::create_directories(documents);
    std::ofstream(documents / "copyright") << "MIT";
  }
  void MakeOwnReadOnly() const { fs::permissions(Own(), fs::perms(0555)); }

  fs::path Answer(const Environment& environment) const { return Answer(environment, DropRights); }
  fs::path AnswerWithAllRights(const Environment& environment) const {
    return Answer(environment, [] {});
  }

 private:
  fs::path Answer(const Environment& environment, void (*prepare)()) const {
    const fs::path answer = *folder_ / "answer" / "text";
    InChild([&]() -> std::string {
      prepare();
      ::unsetenv("XDG_DATA_HOME");
      ::unsetenv("HOME");
      for (const auto& [name, value] : environment) {
        ::setenv(name.c_str(), value.c_str(), 1);
      }
      ::setenv(answerVariable, answer.c_str(), 1);
      const std::string program = (Own() / "copy").string();
      ::execl(program.c_str(), program.c_str(), "--gtest_brief=1",
              "--gtest_filter=OwnProgramFolder.IsThatOfTheExecutableWhereItIsWritable",
              "--gtest_output=", static_cast<char*>(nullptr));
      return "not started";
    });
    std::ifstream stream(answer);
    std::string text;
    std::getline(stream, text);
    return text;
  }

  std::shared_ptr<const fs::path> folder_ = TemporaryFolder();
};

TEST(OwnProgramFolder, IsThatOfTheExecutableWhereItIsWritable) {
  if (const char* answer = std::getenv(answerVariable)) {
    std::ofstream(answer) << FindProgramFolder() << "\n";
    return;
  }
  const fs::path own = fs::read_symlink("/proc/self/exe").parent_path();
  if (::access(own.c_str(), W_OK) != 0) {
    GTEST_SKIP() << "this program stands in a folder that is not writable";
  }
  EXPECT_EQ(FindProgramFolder(), own.string());
}

TEST_F(ProgramFolder, IsTheExecutablesOwnWhereAPlainUserMayWriteThere) {
  EXPECT_EQ(Answer({{"HOME", Home().string()}}), Own());
  EXPECT_TRUE(fs::is_empty(Home()));
}

TEST_F(ProgramFolder, IsTheExecutablesOwnWhereItHoldsTheCatalogueAlready) {
  Put("GOST profile.dat");
  Put("Index.ind");
  MakeOwnReadOnly();
  EXPECT_EQ(Answer({{"HOME", Home().string()}}), Own());
  EXPECT_TRUE(fs::is_empty(Home()));
}

TEST_F(ProgramFolder, IsTheUsersOwnForAnInstalledProgramWhateverItMayWrite) {
  PutLicence();
  EXPECT_EQ(Answer({{"HOME", Home().string()}}), Home() / ".local/share/trelonit");
  EXPECT_EQ(AnswerWithAllRights({{"XDG_DATA_HOME", Data().string()}}), Data() / "trelonit");
}

TEST_F(ProgramFolder, IsTheInstalledProgramsOwnWhereItHoldsTheCatalogue) {
  PutLicence();
  Put("GOST profile.dat");
  Put("Index.ind");
  EXPECT_EQ(Answer({{"HOME", Home().string()}}), Own());
}

TEST_F(ProgramFolder, IsTheUsersOwnWhereTheCatalogueIsNotWhole) {
  Put("GOST profile.dat");
  MakeOwnReadOnly();
  EXPECT_EQ(Answer({{"XDG_DATA_HOME", Data().string()}}), Data() / "trelonit");
}

TEST_F(ProgramFolder, IsMadeInTheUsersDataFolder) {
  MakeOwnReadOnly();
  EXPECT_EQ(Answer({{"XDG_DATA_HOME", Data().string()}, {"HOME", Home().string()}}),
            Data() / "trelonit");
  EXPECT_TRUE(fs::is_directory(Data() / "trelonit"));
  EXPECT_TRUE(fs::is_empty(Home()));
}

TEST_F(ProgramFolder, IsMadeBelowTheHomeFolderWithoutADataFolder) {
  MakeOwnReadOnly();
  EXPECT_EQ(Answer({{"HOME", Home().string()}}), Home() / ".local/share/trelonit");
  EXPECT_TRUE(fs::is_directory(Home() / ".local/share/trelonit"));
}

TEST_F(ProgramFolder, PaysNoHeedToADataFolderWithARelativePath) {
  MakeOwnReadOnly();
  EXPECT_EQ(Answer({{"XDG_DATA_HOME", "data"}, {"HOME", Home().string()}}),
            Home() / ".local/share/trelonit");
}

}  // namespace

}  // namespace trelonit::test

#endif

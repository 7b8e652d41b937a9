// The packer as the build starts it.

#ifndef _WIN32

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>
#include <string>
#include <sys/wait.h>

namespace trelonit::packer {
namespace {

namespace fs = std::filesystem;

class PackProgram : public testing::Test {
 protected:
  PackProgram() {
    std::string name = (fs::temp_directory_path() / "trelonit-pack-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
      throw std::runtime_error("no folder");
    }
    folder_ = name;
    fs::create_directory(Results());
  }
  ~PackProgram() override {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }

  fs::path Results() const { return folder_ / "results"; }
  /// The status that it ends with. Names of the folders hold nothing that a shell would read.
  int Run(const std::string& arguments) const {
    const std::string command = std::string(PACK_RESOURCES) + ' ' + arguments + " 2>" + Messages();
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  std::string Told() const {
    std::ifstream stream(Messages());
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  static std::string Tables() { return CATALOGUE_TABLES; }
  static std::string Steels() { return STEEL_TABLE; }

 private:
  std::string Messages() const { return (folder_ / "messages").string(); }
  fs::path folder_;
};

TEST_F(PackProgram, WritesTheBlocksAndTheirSource) {
  ASSERT_EQ(Run(Tables() + ' ' + Steels() + ' ' + Results().string()), 0) << Told();
  EXPECT_EQ(Told(), "");
  for (const char* name : {"101.bin", "102.bin", "103.bin", "EmbeddedBlocks.cpp"}) {
    EXPECT_TRUE(fs::exists(Results() / name)) << name;
  }
}

TEST_F(PackProgram, TellsItsUseForAWrongCountOfArguments) {
  for (const std::string& arguments : {std::string(), Tables(), Tables() + ' ' + Steels(),
                                       Tables() + ' ' + Steels() + " results more"}) {
    EXPECT_EQ(Run(arguments), 2) << arguments;
    EXPECT_TRUE(Told().starts_with("usage: ")) << Told();
  }
}

TEST_F(PackProgram, NamesTheTableThatIsMissingAndWritesNothing) {
  EXPECT_EQ(Run(Results().string() + ' ' + Steels() + ' ' + Results().string()), 1);
  EXPECT_NE(Told().find("standards.csv"), std::string::npos) << Told();
  EXPECT_TRUE(fs::is_empty(Results()));
}

TEST_F(PackProgram, NamesTheFileThatCannotBeWritten) {
  const std::string nowhere = (Results() / "nowhere").string();
  EXPECT_EQ(Run(Tables() + ' ' + Steels() + ' ' + nowhere), 1);
  EXPECT_EQ(Told(), nowhere + "/101.bin: the file cannot be written\n");
}

}  // namespace
}  // namespace trelonit::packer

#endif

#include <chrono>
#include <fstream>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <thread>

#include "tests/office/WordDesk.h"
#include "windows/office/OfficeProgram.h"

// Converters that fail in every way, by scripts in the place of LibreOffice.

namespace trelonit::test {
namespace {

constexpr int deviceError = 57;
constexpr const char* hang = "sleep 300 & echo $! > \"$desk/child\"; echo $$ > \"$desk/own\"; wait";

class Converter : public ::testing::Test {
 protected:
  Converter() { desk_.Put("old.doc", LikeWordDocument() + "old"); }

  /// Reading and writing fail, nothing is changed and nothing stays behind.
  void ExpectFailure() {
    desk_.Clipboard.SetText("before");
    EXPECT_EQ(ErrorOf([&] { desk_.Open(desk_.Path("old.doc")); }), deviceError);
    EXPECT_EQ(desk_.Clipboard.Text(), "before");
    EXPECT_TRUE(desk_.IsClean());
    EXPECT_EQ(ErrorOf([&] { desk_.Save(desk_.Path("old.doc")); }), deviceError);
    EXPECT_EQ(desk_.Content("old.doc"), LikeWordDocument() + "old");
    EXPECT_TRUE(desk_.IsClean());
  }

  /// Whether the process whose number is in this file ends; it was killed a moment ago.
  bool Ends(const std::string& pidFile) const {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (std::chrono::steady_clock::now() < deadline) {
      if (!IsRunning(pidFile)) {
        return true;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
  }

  WordDesk desk_;

 private:
  /// A process that has ended but that nobody has asked for does not run any more.
  bool IsRunning(const std::string& pidFile) const {
    const std::string pid = desk_.Content(pidFile);
    EXPECT_FALSE(pid.empty()) << pidFile;
    std::ifstream file("/proc/" + pid.substr(0, pid.find('\n')) + "/stat");
    std::string number;
    std::string name;
    std::string state;
    return (file >> number >> name >> state) && state != "Z" && state != "X";
  }
};

TEST_F(Converter, ThatFailsIsAnError) {
  desk_.UseScript("exit 3");
  ExpectFailure();
}

TEST_F(Converter, ThatEndsByASignalIsAnError) {
  desk_.UseScript("kill -SEGV $$");
  ExpectFailure();
}

TEST_F(Converter, ThatGivesNothingIsAnError) {
  desk_.UseScript("exit 0");
  ExpectFailure();
}

TEST_F(Converter, ThatGivesAnEmptyResultIsAnError) {
  desk_.UseScript("mkdir \"$out\"; : > \"$out/document.rtf\"; : > \"$out/document.doc\"");
  ExpectFailure();
}

TEST_F(Converter, ThatGivesGarbageIsAnError) {
  desk_.UseScript(
      "mkdir \"$out\"; echo garbage > \"$out/document.rtf\"; echo garbage > \"$out/document.doc\"");
  ExpectFailure();
}

TEST_F(Converter, IsAskedForEachReaderUntilOneReads) {
  desk_.UseScript(
      "echo x >> \"$desk/runs\"; [ $(wc -l < \"$desk/runs\") -lt 3 ] && exit 0\n"
      "mkdir \"$out\"; printf %s '{\\rtf1 x}' > \"$out/document.rtf\"");
  desk_.Open(desk_.Path("old.doc"));
  EXPECT_EQ(desk_.Clipboard.Text(), "x");
}

TEST_F(Converter, ThatFailsAfterItsResultIsAnError) {
  desk_.UseScript(
      "mkdir \"$out\"; printf %s '{\\rtf1 x}' > \"$out/document.rtf\"\n"
      "cp \"$desk/old.doc\" \"$out/document.doc\"; exit 1");
  ExpectFailure();
}

TEST_F(Converter, ThatIsNoProgramIsAnError) {
  desk_.UseScript("");
  std::ofstream(desk_.Settings.Program) << "#!/no/such/interpreter\n";
  ExpectFailure();
}

TEST_F(Converter, ThatHangsIsKilledWithAllThatItStarted) {
  desk_.UseScript(hang);
  desk_.Settings.TimeLimit = std::chrono::milliseconds(300);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(ErrorOf([&] { desk_.Open(desk_.Path("old.doc")); }), deviceError);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  EXPECT_TRUE(Ends("own"));
  EXPECT_TRUE(Ends("child"));
  EXPECT_TRUE(desk_.IsClean());
}

TEST_F(Converter, ThatIgnoresSignalsIsKilledToo) {
  desk_.UseScript("trap '' TERM INT HUP\n" + std::string(hang));
  desk_.Settings.TimeLimit = std::chrono::milliseconds(300);
  ExpectFailure();
  EXPECT_TRUE(Ends("own"));
  EXPECT_TRUE(Ends("child"));
}

TEST_F(Converter, ThatEndsLeavesNobodyAtWork) {
  desk_.UseScript(
      "sleep 300 & echo $! > \"$desk/child\"\nmkdir \"$out\"; printf %s '{\\rtf1 x}' > "
      "\"$out/document.rtf\"");
  desk_.Open(desk_.Path("old.doc"));
  EXPECT_EQ(desk_.Clipboard.Text(), "x");
  EXPECT_TRUE(Ends("child"));
  EXPECT_TRUE(desk_.IsClean());
}

/// Stops the conversion once the script runs.
class StopsWhenStarted : public ConversionWatch {
 public:
  StopsWhenStarted(const WordDesk& desk, int& asked) : desk_(desk), asked_(asked) {}
  bool Cancelled() override {
    ++asked_;
    return desk_.Has("own") && !desk_.Content("own").empty();
  }

 private:
  const WordDesk& desk_;
  int& asked_;
};

TEST_F(Converter, ThatHangsCanBeStopped) {
  int asked = 0;
  desk_.UseScript(hang);
  desk_.Settings.Watch = [&] { return std::make_unique<StopsWhenStarted>(desk_, asked); };
  EXPECT_THROW(desk_.Open(desk_.Path("old.doc")), ConversionCancelled);
  EXPECT_GE(asked, 1);
  EXPECT_TRUE(Ends("own"));
  EXPECT_TRUE(Ends("child"));
  EXPECT_TRUE(desk_.IsClean());
  EXPECT_EQ(ErrorOf([&] { desk_.Save(desk_.Path("old.doc")); }), deviceError);
  EXPECT_EQ(desk_.Content("old.doc"), LikeWordDocument() + "old");
}

TEST_F(Converter, MayHaveNoWatch) {
  desk_.UseScript("mkdir \"$out\"; printf %s '{\\rtf1 x}' > \"$out/document.rtf\"");
  desk_.Settings.Watch = [] { return std::unique_ptr<ConversionWatch>(); };
  desk_.Open(desk_.Path("old.doc"));
  EXPECT_EQ(desk_.Clipboard.Text(), "x");
}

TEST_F(Converter, SeesNothingOfTheUsersSession) {
  ::setenv("TRELONIT_TEST_SECRET", "secret", 1);
  desk_.UseScript("env > \"$desk/env\"; echo \"$document\" > \"$desk/name\"; exit 1");
  EXPECT_EQ(ErrorOf([&] { desk_.Open(desk_.Path("old.doc")); }), deviceError);
  ::unsetenv("TRELONIT_TEST_SECRET");
  const std::string environment = desk_.Content("env");
  EXPECT_EQ(environment.find("TRELONIT_TEST_SECRET"), std::string::npos) << environment;
  EXPECT_NE(environment.find("HOME=" + desk_.Settings.TemporaryFolder + "/"), std::string::npos)
      << environment;
  const std::string name = desk_.Content("name");
  EXPECT_EQ(name.rfind(desk_.Settings.TemporaryFolder + "/", 0), 0U) << name;
  EXPECT_EQ(name.find("old"), std::string::npos) << name;
}

TEST_F(Converter, WithoutAPlaceForItsFolderIsAnError) {
  desk_.UseScript("exit 1");
  desk_.Settings.TemporaryFolder = desk_.Path("absent");
  EXPECT_EQ(ErrorOf([&] { desk_.Open(desk_.Path("old.doc")); }), 75);
}

TEST(ConverterProgram, IsSearchedForInTheAbsoluteFoldersOfPath) {
  WordDesk desk;
  desk.UseScript("exit 1");
  const std::string found = FindOfficeProgram();
  ASSERT_FALSE(found.empty());
  const std::string program = desk.Settings.Program;
  const std::string folder = program.substr(0, program.rfind('/'));
  const std::string path = ::getenv("PATH");
  ::setenv("PATH", (folder + ":" + path).c_str(), 1);
  EXPECT_EQ(FindOfficeProgram(), program);
  // What stands in the working folder is not started.
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder);
  ::setenv("PATH", (".::" + path).c_str(), 1);
  EXPECT_EQ(FindOfficeProgram(), found);
  std::filesystem::current_path(before);
  ::setenv("PATH", path.c_str(), 1);
}

}  // namespace
}  // namespace trelonit::test

#pragma once

#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/cli/Subprocess.h"

namespace trelonit::test {

namespace fs = std::filesystem;

/// Exit statuses of the console program.
constexpr int done = 0;
constexpr int failed = 1;
constexpr int wrongUsage = 2;

/// The example projects, by scheme.
constexpr std::array<const char*, 4> exampleNames{"scheme1-24m.tsav", "scheme2-30m.tsav",
                                                  "scheme3-18m.tsav", "scheme4-36m.tsav"};

/// The bytes of a file; a failure of the test where it cannot be read.
std::string FileBytes(const fs::path& file);

/// A project of the examples folder, by its scheme.
std::string ExampleBytes(int scheme);

/// Text cut at its line ends; an open last line counts.
std::vector<std::string> Lines(std::string_view text);

/// Cut at runs of blanks.
std::vector<std::string> Words(std::string_view text);

/// A project with another value in a line, numbered from 1; the value is in code page 1251.
std::string WithLine(const std::string& project, int line, const std::string& value);

/// How a failure message reads on standard error.
std::string ErrorLine(const std::string& title, int number, const std::string& description);

/// The program in a folder of its own, so that its catalogue files stand in nobody's way, and a
/// working folder for the files of the test. Both go with the test.
class CliTest : public testing::Test {
 protected:
  CliTest();
  ~CliTest() override;

  fs::path ProgramFolder() const { return root_ / "bin"; }
  fs::path WorkFolder() const { return root_ / "work"; }
  /// What the program is told of the user's data folder; open to every user.
  fs::path DataFolder() const { return root_ / "data"; }

  /// The program with these arguments, in the working folder; locale C.
  Launch Command(std::vector<std::string> arguments) const;
  Outcome Run(std::vector<std::string> arguments) const;

  /// A file of the working folder.
  void Put(const std::string& name, std::string_view bytes) const;
  std::string Content(const std::string& name) const { return FileBytes(WorkFolder() / name); }

  /// Names in a folder; the working folder's unless told.
  std::set<std::string> Names() const { return Names(WorkFolder()); }
  static std::set<std::string> Names(const fs::path& folder);

 private:
  fs::path root_;
};

/// A copy of a program, or a second name of it where the file system gives one.
void PlaceProgram(const fs::path& program, const fs::path& folder);

}  // namespace trelonit::test

#pragma once

#include <string>
#include <utility>

#include "tests/cli/Workbench.h"

namespace trelonit::test {

/// A command that makes a file of a project, and the first example as "a.tsav".
class OutputCommand : public CliTest {
 protected:
  explicit OutputCommand(std::string command) : command_(std::move(command)) {
    Put("a.tsav", ExampleBytes(1));
  }

  std::string Written(const std::string& project, const std::string& file) {
    const Outcome outcome = Run({command_, project, "-o", file});
    EXPECT_EQ(outcome.Status, done) << file;
    EXPECT_EQ(outcome.Out, "") << file;
    EXPECT_EQ(outcome.Err, "") << file;
    return Content(file);
  }

  void ExpectRefused(const Launch& launch, int status, const std::string& error) {
    const auto names = Names();
    const Outcome outcome = RunProgram(launch);
    EXPECT_EQ(outcome.Status, status);
    EXPECT_EQ(outcome.Out, "");
    EXPECT_EQ(outcome.Err, error);
    EXPECT_EQ(Names(), names);
  }

  /// Room for the catalogue files is taken before any limit comes into force.
  void UnpackCatalogue() { ASSERT_EQ(Run({"catalogue", "list"}).Status, done); }

 private:
  std::string command_;
};

}  // namespace trelonit::test

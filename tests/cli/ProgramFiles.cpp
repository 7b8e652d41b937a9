#ifndef _WIN32

#include "tests/cli/ProgramFiles.h"

#include <vector>

namespace trelonit::test {

std::string ProgramFiles::ProgramName() {
  return fs::path(TRELONIT_CLI).filename().string();
}

void ProgramFiles::Unpack() {
  ASSERT_EQ(Run({"catalogue", "list"}).Status, done);
}

void ProgramFiles::RemoveBoth() {
  for (const std::string& name : bothNames) {
    fs::remove(ProgramFolder() / name);
  }
}

Outcome ProgramFiles::CalculatedExample(int scheme) {
  Put("example.tsav", ExampleBytes(scheme));
  return Run({"calc", "example.tsav"});
}

std::size_t ProgramFiles::StandardsListed(const Outcome& list) {
  EXPECT_EQ(list.Status, done);
  EXPECT_EQ(list.Err, "");
  // The first line is the head.
  return Lines(list.Out).size() - 1;
}

void ProgramFiles::ExpectFailure(const Outcome& outcome, const std::string& err) {
  EXPECT_EQ(outcome.Status, failed);
  EXPECT_EQ(outcome.Out, "");
  EXPECT_EQ(outcome.Err, err);
}

void ProgramFiles::ExpectWholeFiles(const fs::path& folder, std::set<std::string> others) {
  others.insert(bothNames.begin(), bothNames.end());
  ASSERT_EQ(Names(folder), others);
  const std::string data = FileBytes(folder / dataName);
  EXPECT_EQ(data.size(), dataSize);
  EXPECT_TRUE(data.starts_with("L25x16x3       "));
  EXPECT_TRUE(data.ends_with('\0'));
  EXPECT_EQ(FileBytes(folder / indexName).size(), indexSize);
}

}  // namespace trelonit::test

#endif

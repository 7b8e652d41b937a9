#pragma once

#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace trelonit::test {

/// The lines of a file of tests/workstation/expected, without their ends.
inline std::vector<std::string> ExpectedLines(const std::string& name) {
  std::ifstream file(EXPECTED_FOLDER "/" + name);
  EXPECT_TRUE(file) << name;
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    lines.push_back(line);
  }
  return lines;
}

}  // namespace trelonit::test

#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/cli/Workbench.h"

namespace trelonit::test {

/// Keeps the keys in the order of the text.
using Json = nlohmann::ordered_json;

/// The one object that a program has printed; a failure of the test where it is none.
Json ParsedOutput(const Outcome& outcome);

std::vector<std::string> Keys(const Json& object);

inline std::vector<double> Numbers(const Json& list) {
  return list.get<std::vector<double>>();
}

/// Messages of an object as they stand on standard error.
std::string MessagesAsText(const Json& object);

/// Starts calc with --json.
class CalcJsonTest : public CliTest {
 protected:
  /// A calculation that must succeed without a message.
  Json Calculated(const std::string& project, const std::vector<std::string>& options = {});
};

}  // namespace trelonit::test

#pragma once

#include <string>
#include <vector>

#include "tests/cli/JsonOutput.h"

namespace trelonit::test {

/// Exit status of an audit that is strict, where something is dangerous.
constexpr int dangerous = 3;

/// Lines of a project.
constexpr int lineUpperBracing = 3;
constexpr int lineOwnWeight = 46;

/// The first example with only the ends of its upper chord held: the calculation takes one panel of
/// 3 m out of the plane, the caption means the whole chord of 24 m.
inline std::string DangerousProject() {
  return WithLine(ExampleBytes(1), lineUpperBracing, "1");
}

class AuditTest : public CalcJsonTest {
 protected:
  Outcome Audited(const std::string& project, const std::vector<std::string>& options = {}) {
    Put("project.tsav", project);
    std::vector<std::string> arguments{"audit", "project.tsav"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Run(arguments);
  }

  /// An audit that must succeed without a message.
  std::string Text(const std::string& project) { return Good(Audited(project)).Out; }
  Json Object(const std::string& project) {
    return ParsedOutput(Good(Audited(project, {"--json"})));
  }

 private:
  static Outcome Good(Outcome outcome) {
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, "");
    return outcome;
  }
};

/// How many findings of this code and severity an object holds; any severity where none is named.
inline std::size_t CountFindings(const Json& object, const std::string& code,
                                 const std::string& severity = {}) {
  std::size_t count = 0;
  for (const Json& finding : object.at("Findings")) {
    const bool fits =
        finding.at("Code") == code && (severity.empty() || finding.at("Severity") == severity);
    count += fits ? 1 : 0;
  }
  return count;
}

}  // namespace trelonit::test

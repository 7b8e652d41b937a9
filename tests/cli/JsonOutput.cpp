#ifndef _WIN32

#include "tests/cli/JsonOutput.h"

namespace trelonit::test {

Json ParsedOutput(const Outcome& outcome) {
  Json object = Json::parse(outcome.Out, nullptr, false);
  EXPECT_TRUE(object.is_object()) << outcome.Out.substr(0, 500);
  EXPECT_TRUE(outcome.Out.ends_with("}\n"));
  return object;
}

std::vector<std::string> Keys(const Json& object) {
  std::vector<std::string> keys;
  for (const auto& item : object.items()) {
    keys.push_back(item.key());
  }
  return keys;
}

std::string MessagesAsText(const Json& object) {
  std::string text;
  for (const Json& message : object.at("Messages")) {
    const auto title = message.at("Title").get<std::string>();
    text += (title.empty() ? "" : title + ": ") + message.at("Text").get<std::string>() + '\n';
  }
  return text;
}

Json CalcJsonTest::Calculated(const std::string& project, const std::vector<std::string>& options) {
  Put("project.tsav", project);
  std::vector<std::string> arguments{"calc", "project.tsav", "--json"};
  arguments.insert(arguments.end(), options.begin(), options.end());
  const Outcome outcome = Run(arguments);
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Err, "");
  return ParsedOutput(outcome);
}

}  // namespace trelonit::test

#endif

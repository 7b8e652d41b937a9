#include "apps/cli/PrintJson.h"

#include <vector>

#include "apps/cli/ResultJson.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit::cli {

Status PrintJson(const ConsoleSession& session, const std::function<std::string()>& object) {
  std::string text;
  try {
    text = object();
  } catch (const RuntimeError& error) {
    std::vector<Message> messages = session.Messages();
    messages.push_back({.Title = "trelonit-cli", .Text = error.Description()});
    Tell(messages.back().Title + ": " + messages.back().Text);
    Print(FailureJson(messages));
    return Status::Failed;
  }
  return Print(text);
}

}  // namespace trelonit::cli

#include "fuzz/support/FuzzWorld.h"

#include <algorithm>

#include "platform/text/Text.h"

namespace trelonit::fuzz {

std::string ComplaintAboutMessages(const Messages& told) {
  // The number of an exception that is none of the program's own.
  const std::string foreign = " " + std::to_string(static_cast<int>(ErrorNumber::InternalError));
  const auto found = std::find_if(told.begin(), told.end(), [&](const Message& message) {
    return message.Failure && message.Text.find("Err #" + foreign) != std::string::npos;
  });
  return found == told.end() ? "" : "an unforeseen error was told: " + found->Text;
}

std::string ComplaintAboutShown(std::string_view text) {
  const std::string lower = LowerLatin(std::string(text));
  for (const char* word : {"nan", "inf"}) {
    if (lower.find(word) != std::string::npos) {
      return "what is no number is shown: " + std::string(text);
    }
  }
  return {};
}

}  // namespace trelonit::fuzz

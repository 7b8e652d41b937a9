#include "platform/errors/Message.h"

#include <algorithm>

namespace trelonit {

Message ErrorMessage(std::string_view title, int number, std::string_view description) {
  return {.Title = std::string(title),
          .Text = " Err # " + std::to_string(number) + " Discription : " + std::string(description),
          .Style = MessageStyle::Critical,
          .Failure = true};
}

bool IsQuestion(const Message& message) {
  return message.Style == MessageStyle::QuestionYesNo ||
         message.Style == MessageStyle::QuestionYesNoCancel;
}

bool TellFailure(const Messages& messages) {
  return std::any_of(messages.begin(), messages.end(),
                     [](const Message& message) { return message.Failure; });
}

void ShowAll(MessageService& messages, const Messages& told) {
  for (const Message& message : told) {
    messages.Show(message);
  }
}

}  // namespace trelonit

#include "platform/Message.h"

namespace trelonit {

namespace {

constexpr std::string_view errorPrefix = " Err # ";

}  // namespace

Message ErrorMessage(std::string_view title, int number, std::string_view description) {
  return {.Title = std::string(title),
          .Text = std::string(errorPrefix) + std::to_string(number) +
                  " Discription : " + std::string(description),
          .Style = MessageStyle::Critical};
}

bool IsQuestion(const Message& message) {
  return message.Style == MessageStyle::QuestionYesNo ||
         message.Style == MessageStyle::QuestionYesNoCancel;
}

bool TellsRuntimeError(const Message& message) {
  return message.Text.starts_with(errorPrefix);
}

}  // namespace trelonit

#include "platform/console/ConsoleServices.h"

#include <ctime>

#include "platform/errors/RuntimeError.h"
#include "platform/system/LocalTime.h"
#include "platform/text/TerminalText.h"

namespace trelonit {

MessageAnswer ConsoleMessages::Show(const Message& message) {
  if (message.Style == MessageStyle::QuestionYesNo && toQuestions_ == MessageAnswer::Yes) {
    return MessageAnswer::Yes;
  }
  shown_.push_back(message);
  const std::string line =
      message.Title.empty() ? message.Text : message.Title + ": " + message.Text;
  stream_ << (onTerminal_ ? TerminalText(line) : line) << std::endl;
  if (!IsQuestion(message)) {
    return MessageAnswer::Ok;
  }
  // Where a cancel is offered, it is the answer that changes nothing.
  return message.Style == MessageStyle::QuestionYesNoCancel ? MessageAnswer::Cancel : toQuestions_;
}

std::string MemorySettings::Get(const std::string& section, const std::string& key,
                                const std::string& fallback) {
  const auto found = values_.find({section, key});
  return found == values_.end() ? fallback : found->second;
}

void MemorySettings::Set(const std::string& section, const std::string& key,
                         const std::string& value) {
  values_[{section, key}] = value;
}

AutomationHandle NoAutomation::Create(const std::string&) {
  throw RuntimeError(ErrorNumber::CannotCreateObject);
}

void ConsoleShell::StartProgram(const std::string&) {
  throw RuntimeError(ErrorNumber::FileNotFound);
}

void ConsoleShell::OpenHelp(const std::string&) {
  throw RuntimeError(ErrorNumber::CannotCreateObject);
}

ClockReading SystemClock::Now() {
  const std::tm local = LocalTime(std::time(nullptr));
  return {.Year = local.tm_year + 1900,
          .Month = local.tm_mon + 1,
          .Day = local.tm_mday,
          .Hour = local.tm_hour,
          .Minute = local.tm_min,
          .Second = local.tm_sec};
}

}  // namespace trelonit

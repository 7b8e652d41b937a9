#pragma once

#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "platform/system/Services.h"
#include "platform/system/SystemShell.h"

namespace trelonit {

/// Message boxes as lines "title: text" on a stream; a question takes its safe answer, No. Where
/// Yes is the answer from the start, it is not asked. Keeps what it has shown.
class ConsoleMessages : public MessageService {
 public:
  explicit ConsoleMessages(std::ostream& stream, MessageAnswer toQuestions = MessageAnswer::No,
                           bool onTerminal = false)
      : stream_(stream), toQuestions_(toQuestions), onTerminal_(onTerminal) {}
  MessageAnswer Show(const Message& message) override;
  const std::vector<Message>& Shown() const { return shown_; }

 private:
  std::ostream& stream_;
  MessageAnswer toQuestions_;
  bool onTerminal_;
  std::vector<Message> shown_;
};

/// Dialogs of a program without windows: every one is cancelled.
class NoDialogs : public DialogService {
 public:
  std::string AskSaveName(const FileDialogRequest&) override { return {}; }
  std::string AskOpenName(const FileDialogRequest&) override { return {}; }
};

/// A clipboard of the process's own.
class MemoryClipboard : public ClipboardService {
 public:
  bool HasText() override { return !text_.empty(); }
  std::string Text() override { return text_; }
  void SetText(const std::string& text) override { SetRichText({}, text); }
  std::string RichText() override { return rtf_; }
  void SetRichText(const std::string& rtf, const std::string& plain) override {
    rtf_ = rtf;
    text_ = plain;
  }

 private:
  std::string text_;
  std::string rtf_;
};

/// Settings that last as long as the process.
class MemorySettings : public SettingsService {
 public:
  std::string Get(const std::string& section, const std::string& key,
                  const std::string& fallback) override;
  void Set(const std::string& section, const std::string& key, const std::string& value) override;

 private:
  std::map<std::pair<std::string, std::string>, std::string> values_;
};

/// A machine without a registry: no key opens.
class NoRegistry : public RegistryService {
 public:
  std::unique_ptr<RegistryKey> Open(RegistryRoot, const std::string&) override { return nullptr; }
};

/// A machine without programs to automate: every name raises 429.
class NoAutomation : public AutomationService {
 public:
  AutomationHandle Create(const std::string& programIdentifier) override;
};

/// A machine without a desktop: nothing can be started; names and places are the system's.
class ConsoleShell : public SystemShell {
 public:
  void StartProgram(const std::string& path) override;
  void OpenHelp(const std::string& path) override;
};

class SystemClock : public ClockService {
 public:
  ClockReading Now() override;
};

}  // namespace trelonit

#pragma once

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/console/ConsoleServices.h"
#include "platform/errors/RuntimeError.h"
#include "platform/system/Services.h"

namespace trelonit::test {

/// Keeps every message; questions take the queued answers, then Cancel or No.
class RecordingMessages : public MessageService {
 public:
  MessageAnswer Show(const Message& message) override {
    Shown.push_back(message);
    if (!IsQuestion(message)) {
      return MessageAnswer::Ok;
    }
    if (Answers.empty()) {
      return message.Style == MessageStyle::QuestionYesNo ? MessageAnswer::No
                                                          : MessageAnswer::Cancel;
    }
    const MessageAnswer answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
  std::vector<Message> Shown;
  std::deque<MessageAnswer> Answers;
};

/// Answers dialogs with the queued names, then cancels; keeps the requests.
class ScriptedDialogs : public DialogService {
 public:
  std::string AskSaveName(const FileDialogRequest& request) override { return Next(request); }
  std::string AskOpenName(const FileDialogRequest& request) override { return Next(request); }
  std::deque<std::string> Names;
  std::vector<FileDialogRequest> Requests;

 private:
  std::string Next(const FileDialogRequest& request) {
    Requests.push_back(request);
    if (Names.empty()) {
      return {};
    }
    std::string name = Names.front();
    Names.pop_front();
    return name;
  }
};

/// Files in memory. A path in Refused raises its error on every access that opens the file.
class MemoryFiles : public FileService {
 public:
  bool FileExists(const std::string& path) override {
    if (NoFileSystem) {
      throw RuntimeError(ErrorNumber::CannotCreateObject);
    }
    return Content.count(path) != 0;
  }
  std::unique_ptr<std::istream> OpenForReading(const std::string& path) override {
    Require(path);
    return std::make_unique<std::istringstream>(Content.at(path));
  }
  std::uint64_t FileLength(const std::string& path) override {
    Require(path);
    return Content.at(path).size();
  }
  void ReplaceFile(const std::string& path, std::string_view bytes) override {
    if (path.empty()) {
      throw RuntimeError(ErrorNumber::BadFileName);
    }
    if (const auto refused = Refused.find(path); refused != Refused.end()) {
      throw RuntimeError(refused->second);
    }
    Content[path] = bytes;
    ++Writes;
  }
  std::unique_ptr<FileUpdate> OpenForUpdate(const std::string& path) override {
    Require(path);
    if (ReadOnly.count(path) != 0) {
      throw RuntimeError(ErrorNumber::PermissionDenied);
    }
    return std::make_unique<Update>(*this, path);
  }
  std::map<std::string, std::string> Content;
  std::map<std::string, ErrorNumber> Refused;
  /// Files that open for reading only.
  std::set<std::string> ReadOnly;
  bool NoFileSystem = false;
  int Writes = 0;

 private:
  class Update : public FileUpdate {
   public:
    Update(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) {}
    void WriteAt(std::uint64_t place, std::string_view bytes) override {
      std::string& content = files_.Content.at(path_);
      const auto start = static_cast<std::size_t>(place);
      if (content.size() < start + bytes.size()) {
        content.resize(start + bytes.size(), '\0');
      }
      content.replace(start, bytes.size(), bytes);
      ++files_.Writes;
    }

   private:
    MemoryFiles& files_;
    std::string path_;
  };

  void Require(const std::string& path) const {
    if (path.empty()) {
      throw RuntimeError(ErrorNumber::BadFileName);
    }
    if (const auto refused = Refused.find(path); refused != Refused.end()) {
      throw RuntimeError(refused->second);
    }
    if (Content.count(path) == 0) {
      throw RuntimeError(ErrorNumber::FileNotFound);
    }
  }
};

/// Keeps what it was told to open or start; the names are what the test sets.
class RecordingShell : public ShellService {
 public:
  void StartProgram(const std::string& path) override { Started.push_back(path); }
  void OpenHelp(const std::string& path) override { HelpOpened.push_back(path); }
  std::string ComputerName() override {
    if (!Computer) {
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
    return *Computer;
  }
  std::string UserName() override { return User; }
  std::vector<std::string> Started;
  std::vector<std::string> HelpOpened;
  std::optional<std::string> Computer = "computer";
  std::string User = "user";
};

/// A registry of the test's own: values by root, key and name.
class MemoryRegistry : public RegistryService {
 public:
  using KeyName = std::pair<RegistryRoot, std::string>;
  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& key) override {
    const auto found = Keys.find({root, key});
    if (found == Keys.end()) {
      return nullptr;
    }
    ++Opened;
    return std::make_unique<OpenKey>(*this, found->second);
  }
  std::map<KeyName, std::map<std::string, RegistryValue>> Keys;
  int Opened = 0;
  int Closed = 0;

 private:
  class OpenKey : public RegistryKey {
   public:
    OpenKey(MemoryRegistry& registry, const std::map<std::string, RegistryValue>& values)
        : registry_(registry), values_(values) {}
    ~OpenKey() override { ++registry_.Closed; }
    std::optional<RegistryValue> Query(const std::string& name) override {
      const auto found = values_.find(name);
      return found == values_.end() ? std::nullopt : std::optional(found->second);
    }

   private:
    MemoryRegistry& registry_;
    const std::map<std::string, RegistryValue>& values_;
  };
};

class FrozenClock : public ClockService {
 public:
  ClockReading Now() override { return Reading; }
  ClockReading Reading{2026, 1, 2, 3, 4, 5};
};

/// A whole outside world in memory, with the resources of the caller.
class World {
 public:
  explicit World(ResourceService& resources) : resources_(resources) {}

  /// A bundle of references to this world; the world must outlive whoever holds it.
  Services Bundle() {
    return {Messages, Dialogs, Clipboard,  Settings, Registry, Automation,
            Shell,    Clock,   resources_, Files,    Locale,   ProgramFolder};
  }

  RecordingMessages Messages;
  ScriptedDialogs Dialogs;
  MemoryClipboard Clipboard;
  MemorySettings Settings;
  MemoryRegistry Registry;
  NoAutomation Automation;
  RecordingShell Shell;
  FrozenClock Clock;
  MemoryFiles Files;
  NumberLocale Locale;
  std::string ProgramFolder = "/program";

 private:
  ResourceService& resources_;
};

inline NumberLocale PointLocale() {
  return {".", ",", 3};
}

inline NumberLocale CommaLocale() {
  return {",", "\u00A0", 3};
}

}  // namespace trelonit::test

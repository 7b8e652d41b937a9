#pragma once

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <set>
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
  MessageAnswer Show(const Message& message) override;
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
  std::string Next(const FileDialogRequest& request);
};

/// Files in memory. A path in Refused raises its error on every access that opens the file.
class MemoryFiles : public FileService {
 public:
  bool FileExists(const std::string& path) override;
  std::unique_ptr<std::istream> OpenForReading(const std::string& path) override;
  std::uint64_t FileLength(const std::string& path) override;
  void ReplaceFile(const std::string& path, std::string_view bytes) override;
  std::unique_ptr<FileUpdate> OpenForUpdate(const std::string& path) override;
  std::map<std::string, std::string> Content;
  std::map<std::string, ErrorNumber> Refused;
  /// Files that open for reading only.
  std::set<std::string> ReadOnly;
  bool NoFileSystem = false;
  int Writes = 0;

 private:
  class Update;

  void Require(const std::string& path) const;
};

/// Keeps what it was told to open or start; the names are what the test sets.
class RecordingShell : public ShellService {
 public:
  void StartProgram(const std::string& path) override { Started.push_back(path); }
  void OpenHelp(const std::string& path) override { HelpOpened.push_back(path); }
  std::string ComputerName() override;
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
  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& key) override;
  std::map<KeyName, std::map<std::string, RegistryValue>> Keys;
  int Opened = 0;
  int Closed = 0;

 private:
  class OpenKey;
};

class FrozenClock : public ClockService {
 public:
  ClockReading Now() override { return Reading; }
  ClockReading Reading{2026, 1, 2, 3, 4, 5};
};

/// A whole outside world in memory, with the resources of the caller.
class World {
 public:
  explicit World(ResourceService& resources);
  World(const World&) = delete;
  World& operator=(const World&) = delete;
  ~World();

  /// A bundle of references to this world; the world must outlive whoever holds it.
  Services Bundle();

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

NumberLocale PointLocale();
NumberLocale CommaLocale();

}  // namespace trelonit::test

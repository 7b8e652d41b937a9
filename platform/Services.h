#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/Files.h"
#include "platform/Message.h"
#include "platform/NumberText.h"
#include "platform/Resources.h"
#include "platform/RuntimeError.h"

namespace trelonit {

/// The dialogs that ask for a file name. An empty result is a cancel.
struct FileDialogRequest {
  std::string Title;
  std::string Extension;
  /// Description + " (*." + extension + ")|*." + extension.
  std::string Filter;
};

class DialogService {
 public:
  virtual ~DialogService() = default;
  virtual std::string AskSaveName(const FileDialogRequest& request) = 0;
  virtual std::string AskOpenName(const FileDialogRequest& request) = 0;
};

/// Texts that other programs share with this one.
class ClipboardService {
 public:
  virtual ~ClipboardService() = default;
  virtual bool HasText() = 0;
  virtual std::string Text() = 0;
  virtual void SetText(const std::string& text) = 0;
  /// Formatted text in rich text format; empty where the clipboard holds none.
  virtual std::string RichText() = 0;
  /// Puts one text there in both forms.
  virtual void SetRichText(const std::string& rtf, const std::string& plain) = 0;
};

/// Per-user settings, kept between runs.
class SettingsService {
 public:
  virtual ~SettingsService() = default;
  /// The stored text, or the fallback where nothing is stored.
  virtual std::string Get(const std::string& section, const std::string& key,
                          const std::string& fallback) = 0;
  virtual void Set(const std::string& section, const std::string& key,
                   const std::string& value) = 0;
};

enum class RegistryRoot { ClassesRoot, CurrentUser, LocalMachine };

/// A string or a double word.
using RegistryValue = std::variant<std::string, std::uint32_t>;

/// The machine's registry. An open key is closed with the object that Open returned.
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;
  /// The raw value, trailing character 0 included; nothing where it is absent.
  virtual std::optional<RegistryValue> Query(const std::string& name) = 0;
};

class RegistryService {
 public:
  virtual ~RegistryService() = default;
  /// Null where the key cannot be opened.
  virtual std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& key) = 0;
};

/// An object of another program, reached by member name only. Every member raises RuntimeError:
/// 438 where the object has no such member, the host's own number otherwise.
class AutomationObject;
using AutomationHandle = std::shared_ptr<AutomationObject>;
/// A list of values of any kind; see AutomationItem.
struct AutomationItem;
using AutomationList = std::vector<AutomationItem>;
using AutomationValue = std::variant<std::monostate, bool, Long, double, std::string,
                                     std::vector<double>, AutomationHandle, AutomationList>;

/// One value of a list, which may be a list itself.
struct AutomationItem {
  AutomationValue Value;

  friend bool operator==(const AutomationItem&, const AutomationItem&) = default;
};

class AutomationObject {
 public:
  virtual ~AutomationObject() = default;
  virtual AutomationValue Get(const std::string& member) = 0;
  virtual void Set(const std::string& member, const AutomationValue& value) = 0;
  /// An argument that the host fills stands as an empty value in its place; the result of such a
  /// member is the list of what the host filled in, in the order of these arguments.
  virtual AutomationValue Call(const std::string& member,
                               const std::vector<AutomationValue>& arguments) = 0;
  /// The items of a collection, in order.
  virtual std::vector<AutomationHandle> Enumerate() = 0;
};

class AutomationService {
 public:
  virtual ~AutomationService() = default;
  /// A new or running object of the program with this identifier. Raises 429 where the machine has
  /// no provider for it.
  virtual AutomationHandle Create(const std::string& programIdentifier) = 0;
  /// The running object of the program; starts nothing. Raises 429 where none runs.
  virtual AutomationHandle GetRunning(const std::string& /*programIdentifier*/) {
    throw RuntimeError(ErrorNumber::CannotCreateObject);
  }
};

/// The desktop round the program.
class ShellService {
 public:
  virtual ~ShellService() = default;
  /// Starts a program in a normal window. Raises 53 where it cannot be started.
  virtual void StartProgram(const std::string& path) = 0;
  /// Opens the help viewer on the file's first topic.
  virtual void OpenHelp(const std::string& path) = 0;
  /// Raises a RuntimeError where the machine has no name to give.
  virtual std::string ComputerName() = 0;
  virtual std::string UserName() = 0;
};

/// Local date and time, to the second.
struct ClockReading {
  int Year = 0;
  int Month = 0;
  int Day = 0;
  int Hour = 0;
  int Minute = 0;
  int Second = 0;
};

class ClockService {
 public:
  virtual ~ClockService() = default;
  virtual ClockReading Now() = 0;
};

/// Everything outside the logic, handed down from the composition root. Holds references only: the
/// root owns the services and outlives every form.
struct Services {
  MessageService& Messages;
  DialogService& Dialogs;
  ClipboardService& Clipboard;
  SettingsService& Settings;
  RegistryService& Registry;
  AutomationService& Automation;
  ShellService& Shell;
  ClockService& Clock;
  ResourceService& Resources;
  FileService& Files;
  NumberLocale Locale;
  /// The folder that holds the catalogue files and the help file.
  std::string ProgramFolder;
};

}  // namespace trelonit

#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/errors/Message.h"
#include "platform/errors/RuntimeError.h"
#include "platform/files/Files.h"
#include "platform/forms/Resources.h"
#include "platform/text/NumberText.h"

namespace trelonit {

/// The dialogs that ask for a file name. An empty result is a cancel.
struct FileDialogRequest {
  std::string Title;
  std::string Extension;
  /// Description + " (*." + extension + ")|*." + extension.
  std::string Filter;
  /// Where the dialog opens; empty for where the last one was.
  std::string Folder = {};
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
  /// Writes a value, and the key where it is missing; an empty name is the key's default value.
  /// Raises 70 where the user may not, 438 on a machine without a registry.
  virtual void SetValue(RegistryRoot /*root*/, const std::string& /*key*/,
                        const std::string& /*name*/, const RegistryValue& /*value*/) {
    throw RuntimeError(ErrorNumber::PropertyNotSupported);
  }
  /// Deletes a key with its values and all keys below it. Raises as SetValue does.
  virtual void DeleteKey(RegistryRoot /*root*/, const std::string& /*key*/) {
    throw RuntimeError(ErrorNumber::PropertyNotSupported);
  }
};

/// The desktop's choice of a program for each MIME type, where it keeps one. Programs are named by
/// their desktop entries, as "name.desktop".
class MimeDefaultService {
 public:
  virtual ~MimeDefaultService() = default;
  /// Whether the desktop has this entry.
  virtual bool HasProgram(const std::string& entry) = 0;
  /// The entry that opens files of this type for the user; empty where there is none.
  virtual std::string DefaultProgram(const std::string& mimeType) = 0;
  /// Makes the entry the user's choice for this type and keeps what the user had chosen before
  /// until the choice is undone; chosen once more, it changes nothing. Raises 53 where the desktop
  /// has no such entry, 70, 75 or 61 where the choice cannot be stored.
  virtual void SetDefaultProgram(const std::string& mimeType, const std::string& entry) = 0;
  /// Gives the type back to what the user had chosen before, or to the system where that was
  /// nothing. A choice of another entry that the user has made meanwhile stays. Raises 70, 75 or 61
  /// where this cannot be stored.
  virtual void UndoDefaultProgram(const std::string& mimeType, const std::string& entry) = 0;
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

  // The places of a Windows machine. They raise 438 where the machine has no such place.

  /// This program's own path without the ".exe" at its end.
  virtual std::string ProgramPath() { throw RuntimeError(ErrorNumber::PropertyNotSupported); }
  /// The folder of the system's own programs, without a separator at its end.
  virtual std::string SystemFolder() { throw RuntimeError(ErrorNumber::PropertyNotSupported); }
  /// The user's folder of the "Send to" menu, without a separator at its end.
  virtual std::string SendToFolder() { throw RuntimeError(ErrorNumber::PropertyNotSupported); }
  /// Deletes a shortcut. Raises 53 where there is none, 70 where the user may not.
  virtual void RemoveShortcut(const std::string& /*path*/) {
    throw RuntimeError(ErrorNumber::PropertyNotSupported);
  }
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

#include "editor/associations/ModAss.h"

#include <array>
#include <initializer_list>
#include <memory>
#include <optional>
#include <variant>

#include "platform/system/AutomationMembers.h"

namespace trelonit {

namespace {

constexpr const char* defaultValue = "";
constexpr const char* padType = "Quillet plain text";
constexpr const char* systemType = "txtfile";
constexpr const char* sourceViewerKey =
    "SOFTWARE\\Microsoft\\Internet Explorer\\View Source Editor\\Editor Name";
/// A window of the size that the program gives it.
constexpr Long normalWindow = 1;

constexpr std::array editingCommands{
    "inifile\\shell\\open\\command", "inffile\\shell\\open\\command",
    "batfile\\shell\\edit\\command", "JSEFile\\Shell\\Edit\\Command",
    "JSFile\\Shell\\Edit\\Command",  "scpfile\\shell\\open\\command",
    "VBEFile\\Shell\\Edit\\Command", "VBSFile\\Shell\\Edit\\Command",
    "WSFFile\\Shell\\Edit\\Command", "regfile\\shell\\edit\\command",
};

std::optional<std::string> DefaultText(RegistryService& registry, const std::string& key) {
  const std::unique_ptr<RegistryKey> open = registry.Open(RegistryRoot::ClassesRoot, key);
  if (!open) {
    return std::nullopt;
  }
  const std::optional<RegistryValue> value = open->Query(defaultValue);
  if (!value || !std::holds_alternative<std::string>(*value)) {
    return std::nullopt;
  }
  std::string text = std::get<std::string>(*value);
  if (!text.empty() && text.back() == '\0') {
    text.pop_back();
  }
  return text;
}

void SetClass(RegistryService& registry, const std::string& key, const std::string& text) {
  registry.SetValue(RegistryRoot::ClassesRoot, key, defaultValue, text);
}

void SetEditingCommands(RegistryService& registry, const std::string& command) {
  for (const char* key : editingCommands) {
    SetClass(registry, key, command);
  }
}

std::string ExecutableName(ShellService& shell) {
  return shell.ProgramPath() + ".exe";
}

void SetSourceViewer(RegistryService& registry, ShellService& shell) {
  registry.SetValue(RegistryRoot::LocalMachine, sourceViewerKey, defaultValue,
                    ExecutableName(shell));
}

}  // namespace

TextOwner ReadTextOwner(RegistryService& registry) {
  for (const char* ending : {".txt", ".TXT"}) {
    const std::optional<std::string> type = DefaultText(registry, ending);
    if (type == padType) {
      return TextOwner::Pad;
    }
    if (type == systemType) {
      return TextOwner::System;
    }
  }
  return TextOwner::Other;
}

void GiveTextFilesToPad(RegistryService& registry, ShellService& shell) {
  // Without quotes round the path, as intended: the pad takes the whole command line for one name.
  const std::string command = ExecutableName(shell) + " %1";
  const std::string type = padType;
  SetClass(registry, ".txt", type);
  SetClass(registry, ".TXT", type);
  registry.SetValue(RegistryRoot::ClassesRoot, ".txt\\ShellNew", "NullFile", std::string());
  SetClass(registry, type + "\\shell\\open\\command", command);
  SetClass(registry, type + "\\DefaultIcon", shell.SystemFolder() + "\\shell32.dll,-152");
  SetClass(registry, ".log", type);
  SetEditingCommands(registry, command);
  SetSourceViewer(registry, shell);
}

void GiveTextFilesToSystem(RegistryService& registry, ShellService& shell) {
  // The pad's own type stays for the next time; ".TXT" is the same key as ".txt" in a registry.
  SetClass(registry, ".txt", systemType);
  SetClass(registry, ".log", systemType);
  SetEditingCommands(registry, shell.SystemFolder() + "\\NOTEPAD.EXE %1");
}

std::string SendToShortcut(ShellService& shell) {
  return shell.SendToFolder() + "\\Quillet.lnk";
}

void CreateSendToShortcut(AutomationService& automation, ShellService& shell) {
  const std::string program = ExecutableName(shell);
  const AutomationHandle shortcut =
      CallForObject(automation.Create("WScript.Shell"), "CreateShortcut", {SendToShortcut(shell)});
  SetMember(shortcut, "TargetPath", program);
  SetMember(shortcut, "WorkingDirectory", program.substr(0, program.find_last_of("\\/")));
  SetMember(shortcut, "WindowStyle", normalWindow);
  SetMember(shortcut, "IconLocation", program + ",0");
  SetMember(shortcut, "Description", std::string("A better note pad"));
  CallMember(shortcut, "Save");
}

void RemoveSendToShortcut(FileService& files, ShellService& shell) {
  const std::string path = SendToShortcut(shell);
  if (files.FileExists(path)) {
    shell.RemoveShortcut(path);
  }
}

bool HasSourceViewer(RegistryService& registry) {
  return registry.Open(RegistryRoot::LocalMachine, sourceViewerKey) != nullptr;
}

void AddSourceViewer(RegistryService& registry, ShellService& shell) {
  if (!HasSourceViewer(registry)) {
    SetSourceViewer(registry, shell);
  }
}

void RemoveSourceViewer(RegistryService& registry) {
  if (HasSourceViewer(registry)) {
    registry.DeleteKey(RegistryRoot::LocalMachine, sourceViewerKey);
  }
}

AssociationChoice RegistryAssociations::Present() {
  return {.Owner = ReadTextOwner(registry_),
          .SendTo = services_.Files.FileExists(SendToShortcut(services_.Shell)),
          .SourceViewer = HasSourceViewer(registry_)};
}

void RegistryAssociations::Apply(const AssociationChoice& choice) {
  ApplyInOrder(choice);
  if (registry_.TakeRefused()) {
    services_.Messages.Show(
        {.Title = "Связь с файлами",
         .Text = "Прав администратора нет, поэтому выбор записан только для вас: у других "
                 "пользователей этого компьютера ничего не изменилось.",
         .Style = MessageStyle::Information});
  }
}

void RegistryAssociations::ApplyInOrder(const AssociationChoice& choice) {
  if (choice.Owner == TextOwner::Pad) {
    GiveTextFilesToPad(registry_, services_.Shell);
  } else if (choice.Owner == TextOwner::System) {
    GiveTextFilesToSystem(registry_, services_.Shell);
  }
  if (choice.SendTo) {
    CreateSendToShortcut(services_.Automation, services_.Shell);
  } else {
    RemoveSendToShortcut(services_.Files, services_.Shell);
  }
  // Last, as intended: taking the text files makes the pad the source viewer too, and a cleared box
  // takes that back. The other way round the box would never agree with the machine.
  if (choice.SourceViewer) {
    AddSourceViewer(registry_, services_.Shell);
  } else {
    RemoveSourceViewer(registry_);
  }
}

}  // namespace trelonit

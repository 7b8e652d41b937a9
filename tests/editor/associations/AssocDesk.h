#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "editor/associations/ModAss.h"
#include "editor/associations/frmAssoc.h"
#include "platform/text/Text.h"
#include "tests/editor/document/OtchetDesk.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

/// What was done to the machine, in order; the given step fails.
class MachineLog {
 public:
  void Step(const std::string& step) {
    if (Steps.size() + 1 == FailingStep) {
      FailingStep = 0;
      throw RuntimeError(Error);
    }
    Steps.push_back(step);
  }
  std::vector<std::string> Steps;
  /// From 1; 0 for none.
  std::size_t FailingStep = 0;
  ErrorNumber Error = ErrorNumber::DeviceIoError;
};

/// A registry whose keys know no case, as the real one's.
class RecordingRegistry : public RegistryService {
 public:
  explicit RecordingRegistry(MachineLog& log) : log_(log) {}

  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& key) override {
    const auto found = keys_.find({root, LowerLatin(key)});
    return found == keys_.end() ? nullptr : std::make_unique<OpenKey>(found->second);
  }
  void SetValue(RegistryRoot root, const std::string& key, const std::string& name,
                const RegistryValue& value) override {
    if (IsUsersOnly && root != RegistryRoot::CurrentUser) {
      throw RuntimeError(ErrorNumber::PermissionDenied);
    }
    log_.Step(Place(root, key) + (name.empty() ? "" : " : " + name) + " = " +
              std::get<std::string>(value));
    Put(root, key, name, value);
  }
  void DeleteKey(RegistryRoot root, const std::string& key) override {
    if (IsUsersOnly && root != RegistryRoot::CurrentUser) {
      throw RuntimeError(ErrorNumber::PermissionDenied);
    }
    log_.Step("delete " + Place(root, key));
    keys_.erase({root, LowerLatin(key)});
  }

  /// Whether only the user's own keys may be changed.
  bool IsUsersOnly = false;

  /// What the machine holds without anybody's doing.
  void Put(RegistryRoot root, const std::string& key, const std::string& name,
           RegistryValue value) {
    keys_[{root, LowerLatin(key)}][name] = std::move(value);
  }

 private:
  using Values = std::map<std::string, RegistryValue>;

  class OpenKey : public RegistryKey {
   public:
    explicit OpenKey(Values values) : values_(std::move(values)) {}
    std::optional<RegistryValue> Query(const std::string& name) override {
      const auto found = values_.find(name);
      return found == values_.end() ? std::nullopt : std::optional(found->second);
    }

   private:
    Values values_;
  };

  static std::string Place(RegistryRoot root, const std::string& key) {
    switch (root) {
      case RegistryRoot::ClassesRoot:
        return "classes\\" + key;
      case RegistryRoot::CurrentUser:
        return "user\\" + key;
      case RegistryRoot::LocalMachine:
        break;
    }
    return "machine\\" + key;
  }

  MachineLog& log_;
  std::map<std::pair<RegistryRoot, std::string>, Values> keys_;
};

/// The script host: makes shortcuts in the files' memory.
class RecordingScriptHost : public AutomationService {
 public:
  RecordingScriptHost(MachineLog& log, MemoryFiles& files) : log_(log), files_(files) {}

  AutomationHandle Create(const std::string& programIdentifier) override {
    log_.Step("create " + programIdentifier);
    return std::make_shared<Object>(*this, "");
  }
  /// What CreateShortcut gives is no object.
  bool GivesNothing = false;

 private:
  class Object : public AutomationObject {
   public:
    Object(RecordingScriptHost& host, std::string shortcut)
        : host_(host), shortcut_(std::move(shortcut)) {}
    AutomationValue Get(const std::string&) override {
      throw RuntimeError(ErrorNumber::PropertyNotSupported);
    }
    void Set(const std::string& member, const AutomationValue& value) override {
      const auto* number = std::get_if<Long>(&value);
      host_.log_.Step(member + " = " +
                      (number ? std::to_string(*number) : std::get<std::string>(value)));
    }
    AutomationValue Call(const std::string& member,
                         const std::vector<AutomationValue>& arguments) override {
      if (member == "Save") {
        host_.log_.Step(member);
        host_.files_.Content[shortcut_] = "shortcut";
        return {};
      }
      const std::string path = std::get<std::string>(arguments.at(0));
      host_.log_.Step(member + " " + path);
      if (host_.GivesNothing) {
        return {};
      }
      return AutomationHandle(std::make_shared<Object>(host_, path));
    }
    std::vector<AutomationHandle> Enumerate() override { return {}; }

   private:
    RecordingScriptHost& host_;
    std::string shortcut_;
  };

  MachineLog& log_;
  MemoryFiles& files_;
};

/// A machine with the places that the integration needs.
class RecordingPlaces : public RecordingShell {
 public:
  RecordingPlaces(MachineLog& log, MemoryFiles& files) : log_(log), files_(files) {}
  std::string ProgramPath() override { return "C:\\Program Files\\Trelonit\\trelonit"; }
  std::string SystemFolder() override { return "C:\\WINDOWS\\system32"; }
  std::string SendToFolder() override { return "C:\\Users\\user\\SendTo"; }
  void RemoveShortcut(const std::string& path) override {
    log_.Step("remove " + path);
    files_.Content.erase(path);
  }

 private:
  MachineLog& log_;
  MemoryFiles& files_;
};

/// The form over a recording machine, not yet loaded.
struct AssocDesk {
  using Steps = std::vector<std::string>;
  static constexpr const char* sourceViewer =
      "SOFTWARE\\Microsoft\\Internet Explorer\\View Source Editor\\Editor Name";
  static constexpr const char* shortcut = "C:\\Users\\user\\SendTo\\Quillet.lnk";

  Services Bundle() {
    return {world.Messages, world.Dialogs, world.Clipboard, world.Settings,
            registry,       scripts,       places,          world.Clock,
            resources,      world.Files,   world.Locale,    world.ProgramFolder};
  }
  void PutClass(const std::string& key, const std::string& text) {
    registry.Put(RegistryRoot::ClassesRoot, key, "", text);
  }
  void PutSourceViewer(const std::string& program) {
    registry.Put(RegistryRoot::LocalMachine, sourceViewer, "", program);
  }
  Steps Done() { return std::exchange(log.Steps, {}); }

  NoResources resources;
  World world{resources};
  MachineLog log;
  RecordingRegistry registry{log};
  RecordingScriptHost scripts{log, world.Files};
  RecordingPlaces places{log, world.Files};
  RegistryAssociations associations{Bundle()};
  frmAssoc form{associations, world.Messages};
};

}  // namespace trelonit::test

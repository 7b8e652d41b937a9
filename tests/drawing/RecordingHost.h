#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "platform/system/Services.h"

namespace trelonit::test {

/// How a value stands in the record: "text", True, 13, 40# (a Double), (0, 2000, 0), [a list],
/// Empty, the name of an object.
std::string ValueText(const AutomationValue& value);

/// A drawing host that answers the members that the drawing needs and no others, keeps each use of
/// them in order, and fails when it is told to.
class RecordingHost : public AutomationService {
 public:
  class Object;
  using ObjectPtr = std::shared_ptr<Object>;

  RecordingHost();
  ~RecordingHost() override;
  RecordingHost(const RecordingHost&) = delete;
  RecordingHost& operator=(const RecordingHost&) = delete;

  AutomationHandle Create(const std::string& programIdentifier) override;
  AutomationHandle GetRunning(const std::string& programIdentifier) override;

  /// An object outside the drawings: kinds "Entity", "Form", "XRecord", "Dictionary".
  ObjectPtr Make(const std::string& kind, const std::string& name);
  /// A drawing that the host has open.
  ObjectPtr OpenDocument();
  /// A selection set that the drawing has already.
  ObjectPtr AddSelectionSet(Object& document, const std::string& name);

  /// All objects of a kind, in the order of their making.
  std::vector<ObjectPtr> Objects(const std::string& kind) const;
  ObjectPtr Application() const { return application_; }
  /// How often the text stands in the record.
  std::size_t CountOf(const std::string& call) const;

  bool Installed = true;
  bool Running = false;

  /// As "Line1.Layer = "Main"", "Document1.SetVariable("DIMDEC", 0)", "Application.Documents".
  std::vector<std::string> Calls;
  /// The use of a member that fails, from 1; 0 for none.
  std::size_t FailingCall = 0;
  RuntimeError Error{77, "Broken"};
  /// Members that fail at every use, as "Line.Layer" or "Enumerate".
  std::map<std::string, RuntimeError> FailingMembers;
  /// Hears of each use of a member before it is done or fails.
  std::function<void(const std::string& member)> Watch;
  /// Whether the uses are kept in Calls; without them FailingCall has no effect.
  bool KeepsCalls = true;
  /// Members that answer with nothing.
  std::set<std::string> EmptyMembers;
  /// What the user selects on the screen.
  std::vector<AutomationHandle> Selected;

 private:
  friend class Object;
  /// Keeps the use of a member, as the text tells it, and fails where it is to fail.
  template <class CallText>
  void Step(const std::string& member, CallText&& text);

  std::vector<ObjectPtr> objects_;
  std::map<std::string, int> counts_;
  ObjectPtr application_;
};

/// One object of the host.
class RecordingHost::Object : public AutomationObject {
 public:
  Object(RecordingHost& host, std::string kind, std::string name)
      : Kind(std::move(kind)), Name(std::move(name)), host_(host) {}

  AutomationValue Get(const std::string& member) override;
  void Set(const std::string& member, const AutomationValue& value) override;
  AutomationValue Call(const std::string& member,
                       const std::vector<AutomationValue>& arguments) override;
  std::vector<AutomationHandle> Enumerate() override;

  std::string TextOf(const std::string& property) const {
    return std::get<std::string>(Properties.at(property));
  }

  std::string Kind;
  std::string Name;
  std::map<std::string, AutomationValue> Properties;
  /// What it was made from.
  std::vector<AutomationValue> Arguments;
  std::vector<AutomationHandle> Items;

 private:
  AutomationValue Answer(const std::string& member, const std::vector<AutomationValue>& arguments);
  ObjectPtr MakeItem(const std::string& kind, const std::string& name,
                     const std::vector<AutomationValue>& arguments);

  RecordingHost& host_;
};

}  // namespace trelonit::test

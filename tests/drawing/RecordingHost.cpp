#include "tests/drawing/RecordingHost.h"

#include <algorithm>
#include <type_traits>

#include "platform/text/NumberText.h"

namespace trelonit::test {

namespace {

/// What an object answers: members to get, to set and to call.
struct Members {
  std::set<std::string> Get;
  std::set<std::string> Set;
  std::set<std::string> Call;
};

const std::map<std::string, Members>& MembersOfKinds() {
  static const std::map<std::string, Members> members{
      {"Application",
       {{"Documents", "ActiveDocument", "Version"},
        {"ActiveDocument", "Visible"},
        {"ZoomExtents"}}},
      {"Documents", {{}, {}, {"Add", "Open"}}},
      {"Document",
       {{"Active", "Application", "SelectionSets", "Dictionaries", "Layers", "TextStyles",
         "DimStyles", "ModelSpace"},
        {"ActiveLayer", "ActiveTextStyle", "ActiveDimStyle"},
        {"SetVariable", "Close"}}},
      {"ModelSpace", {{"Document"}, {}, {"AddLine", "AddText", "AddDimRotated"}}},
      {"Layers", {{}, {}, {"Add"}}},
      {"TextStyles", {{}, {}, {"Add"}}},
      {"DimStyles", {{}, {}, {"Add"}}},
      {"Layer", {{}, {"Freeze", "LayerOn", "Linetype", "Lineweight", "Lock", "Plottable"}, {}}},
      {"TextStyle", {{}, {"ObliqueAngle", "Width"}, {}}},
      {"DimStyle", {}},
      {"Line", {{}, {"Layer"}, {}}},
      {"Text", {{}, {"Layer", "Alignment", "Rotation", "TextAlignmentPoint"}, {}}},
      {"Dimension",
       {{},
        {"Layer", "TextStyle", "ArrowheadSize", "TextGap", "TextHeight", "ScaleFactor",
         "TextInsideAlign", "TextInside", "PrimaryUnitsPrecision"},
        {}}},
      {"SelectionSets", {{"count"}, {}, {"Add"}}},
      {"SelectionSet", {{"Name", "count"}, {}, {"Delete", "SelectOnScreen", "AddItems"}}},
      {"Dictionaries", {{}, {}, {"Item", "Add"}}},
      {"Dictionary", {{}, {}, {"GetObject", "AddXRecord"}}},
      {"XRecord", {{}, {}, {"GetXRecordData", "SetXRecordData"}}},
      {"Entity", {{"ObjectName"}, {}, {"SetXData", "GetXData"}}},
      {"Form", {{"lstReportList"}, {}, {}}},
      {"List", {{}, {"BackColor"}, {"Clear", "AddItem", "Refresh"}}}};
  return members;
}

void RequireMember(const std::set<std::string>& known, const std::string& member) {
  if (known.count(member) == 0) {
    throw RuntimeError(ErrorNumber::PropertyNotSupported);
  }
}

template <class List, class Writer>
std::string Joined(const List& list, Writer&& write) {
  std::string text;
  for (const auto& element : list) {
    text += (text.empty() ? "" : ", ") + write(element);
  }
  return text;
}

std::string Number(double value) {
  return NumberToText(value, {});
}

}  // namespace

std::string ValueText(const AutomationValue& value) {
  return std::visit(
      [](const auto& held) -> std::string {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, std::monostate>) {
          return "Empty";
        } else if constexpr (std::is_same_v<Held, bool>) {
          return BooleanToText(held);
        } else if constexpr (std::is_same_v<Held, Long>) {
          return std::to_string(held);
        } else if constexpr (std::is_same_v<Held, double>) {
          return Number(held) + '#';
        } else if constexpr (std::is_same_v<Held, std::string>) {
          return '"' + held + '"';
        } else if constexpr (std::is_same_v<Held, std::vector<double>>) {
          return '(' + Joined(held, Number) + ')';
        } else if constexpr (std::is_same_v<Held, AutomationList>) {
          return '[' +
                 Joined(held, [](const AutomationItem& item) { return ValueText(item.Value); }) +
                 ']';
        } else {
          const auto* object = dynamic_cast<const RecordingHost::Object*>(held.get());
          return object == nullptr ? "Nothing" : object->Name;
        }
      },
      value);
}

RecordingHost::RecordingHost() {
  application_ = Make("Application", "Application");
  application_->Properties["Documents"] = Make("Documents", "Application.Documents");
  application_->Properties["Version"] = std::string("24.0");
}

RecordingHost::~RecordingHost() {
  // The objects refer to one another in circles.
  for (const ObjectPtr& object : objects_) {
    object->Properties.clear();
    object->Arguments.clear();
    object->Items.clear();
  }
}

template <class CallText>
void RecordingHost::Step(const std::string& member, CallText&& text) {
  if (KeepsCalls) {
    Calls.push_back(text());
  }
  if (Watch) {
    Watch(member);
  }
  if (KeepsCalls && Calls.size() == FailingCall) {
    throw RuntimeError(Error);
  }
  if (const auto failing = FailingMembers.find(member); failing != FailingMembers.end()) {
    throw RuntimeError(failing->second);
  }
}

AutomationHandle RecordingHost::GetRunning(const std::string& programIdentifier) {
  Step("GetRunning", [&] { return "GetRunning " + programIdentifier; });
  if (!Running || programIdentifier != "AutoCAD.Application") {
    throw RuntimeError(ErrorNumber::CannotCreateObject);
  }
  return application_;
}

AutomationHandle RecordingHost::Create(const std::string& programIdentifier) {
  Step("Create", [&] { return "Create " + programIdentifier; });
  if (!Installed || programIdentifier != "AutoCAD.Application") {
    throw RuntimeError(ErrorNumber::CannotCreateObject);
  }
  Running = true;
  return application_;
}

RecordingHost::ObjectPtr RecordingHost::Make(const std::string& kind, const std::string& name) {
  objects_.push_back(std::make_shared<Object>(*this, kind, name));
  ObjectPtr object = objects_.back();
  if (kind == "Form") {
    object->Properties["lstReportList"] = Make("List", name + ".lstReportList");
  }
  return object;
}

RecordingHost::ObjectPtr RecordingHost::OpenDocument() {
  const std::string name = "Document" + std::to_string(++counts_["Document"]);
  ObjectPtr document = Make("Document", name);
  for (const char* part :
       {"SelectionSets", "Dictionaries", "Layers", "TextStyles", "DimStyles", "ModelSpace"}) {
    document->Properties[part] = Make(part, name + '.' + part);
  }
  const auto space = std::get<AutomationHandle>(document->Properties["ModelSpace"]);
  static_cast<Object&>(*space).Properties["Document"] = AutomationHandle(document);
  document->Properties["Application"] = AutomationHandle(application_);
  document->Properties["Active"] = true;
  application_->Properties["ActiveDocument"] = AutomationHandle(document);
  const auto documents = std::get<AutomationHandle>(application_->Properties["Documents"]);
  static_cast<Object&>(*documents).Items.push_back(document);
  return document;
}

RecordingHost::ObjectPtr RecordingHost::AddSelectionSet(Object& document, const std::string& name) {
  const auto handle = std::get<AutomationHandle>(document.Properties["SelectionSets"]);
  ObjectPtr set = Make("SelectionSet", "SelectionSet(" + name + ')');
  set->Properties["Name"] = name;
  static_cast<Object&>(*handle).Items.push_back(set);
  return set;
}

std::vector<RecordingHost::ObjectPtr> RecordingHost::Objects(const std::string& kind) const {
  std::vector<ObjectPtr> found;
  std::copy_if(objects_.begin(), objects_.end(), std::back_inserter(found),
               [&](const ObjectPtr& object) { return object->Kind == kind; });
  return found;
}

std::size_t RecordingHost::CountOf(const std::string& call) const {
  return static_cast<std::size_t>(std::count(Calls.begin(), Calls.end(), call));
}

AutomationValue RecordingHost::Object::Get(const std::string& member) {
  host_.Step(Kind + '.' + member, [&] { return Name + '.' + member; });
  RequireMember(MembersOfKinds().at(Kind).Get, member);
  if (host_.EmptyMembers.count(Kind + '.' + member) != 0) {
    return {};
  }
  const auto found = Properties.find(member);
  if (found == Properties.end() && member == "count") {
    return static_cast<Long>(Items.size());
  }
  return found == Properties.end() ? AutomationValue() : found->second;
}

void RecordingHost::Object::Set(const std::string& member, const AutomationValue& value) {
  host_.Step(Kind + '.' + member, [&] { return Name + '.' + member + " = " + ValueText(value); });
  RequireMember(MembersOfKinds().at(Kind).Set, member);
  Properties[member] = value;
}

AutomationValue RecordingHost::Object::Call(const std::string& member,
                                            const std::vector<AutomationValue>& arguments) {
  host_.Step(Kind + '.' + member,
             [&] { return Name + '.' + member + '(' + Joined(arguments, ValueText) + ')'; });
  RequireMember(MembersOfKinds().at(Kind).Call, member);
  return host_.EmptyMembers.count(Kind + '.' + member) != 0 ? AutomationValue()
                                                            : Answer(member, arguments);
}

std::vector<AutomationHandle> RecordingHost::Object::Enumerate() {
  host_.Step(Kind + ".Enumerate", [&] { return Name + " enumerated"; });
  return Items;
}

RecordingHost::ObjectPtr RecordingHost::Object::MakeItem(
    const std::string& kind, const std::string& name,
    const std::vector<AutomationValue>& arguments) {
  ObjectPtr item = host_.Make(kind, name);
  item->Arguments = arguments;
  Items.push_back(item);
  return item;
}

AutomationValue RecordingHost::Object::Answer(const std::string& member,
                                              const std::vector<AutomationValue>& arguments) {
  // The collections that make a named object of their own kind.
  static const std::map<std::string, std::string> named{{"Layers.Add", "Layer"},
                                                        {"TextStyles.Add", "TextStyle"},
                                                        {"DimStyles.Add", "DimStyle"},
                                                        {"SelectionSets.Add", "SelectionSet"},
                                                        {"Dictionaries.Add", "Dictionary"},
                                                        {"Dictionary.AddXRecord", "XRecord"}};
  static const std::map<std::string, std::string> numbered{
      {"AddLine", "Line"}, {"AddText", "Text"}, {"AddDimRotated", "Dimension"}};
  if (const auto kind = named.find(Kind + '.' + member); kind != named.end()) {
    const auto& name = std::get<std::string>(arguments.at(0));
    const ObjectPtr item = MakeItem(kind->second, kind->second + '(' + name + ')', arguments);
    item->Properties["Name"] = name;
    return AutomationHandle(item);
  }
  if (const auto kind = numbered.find(member); kind != numbered.end()) {
    const int number = ++host_.counts_[kind->second];
    return AutomationHandle(
        MakeItem(kind->second, kind->second + std::to_string(number), arguments));
  }
  if (Kind == "Documents") {
    return AutomationHandle(host_.OpenDocument());
  }
  if (member == "SelectOnScreen") {
    Items = host_.Selected;
  } else if (member == "AddItems") {
    for (const AutomationItem& item : std::get<AutomationList>(arguments.at(0))) {
      Items.push_back(std::get<AutomationHandle>(item.Value));
    }
  } else if (member == "Delete") {
    for (const ObjectPtr& sets : host_.Objects("SelectionSets")) {
      std::erase_if(sets->Items, [&](const AutomationHandle& set) { return set.get() == this; });
    }
  } else if (member == "Item" || member == "GetObject") {
    const auto found = std::find_if(Items.begin(), Items.end(), [&](const AutomationHandle& item) {
      return static_cast<Object&>(*item).Properties["Name"] == arguments.at(0);
    });
    if (found == Items.end()) {
      throw RuntimeError(-2145386476, "Key not found");
    }
    return *found;
  } else if (member == "SetXData" || member == "SetXRecordData") {
    Properties["Types"] = arguments.at(0);
    Properties["Values"] = arguments.at(1);
  } else if (member == "GetXData" || member == "GetXRecordData") {
    return AutomationList{{Properties["Types"]}, {Properties["Values"]}};
  }
  return {};
}

}  // namespace trelonit::test

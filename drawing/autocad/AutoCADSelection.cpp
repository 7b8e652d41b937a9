#include <algorithm>
#include <array>
#include <optional>

#include "drawing/autocad/clsAutoCAD.h"
#include "platform/errors/Guard.h"
#include "platform/errors/RuntimeError.h"
#include "platform/forms/Controls.h"
#include "platform/system/AutomationMembers.h"

namespace trelonit {

namespace {

constexpr const char* screenSetName = "OnScreenEntitys";
constexpr const char* validSetName = "NewOnScreenEntitys";

std::string HostErrorText(const RuntimeError& error) {
  return "Error " + std::to_string(error.Number()) + " : " + error.Description();
}

/// Runs statements of which each may fail without keeping the next one from running; the last
/// failure stands until it is cleared.
class StandingError {
 public:
  template <class Statement>
  void Try(Statement&& statement) {
    try {
      statement();
    } catch (const RuntimeError& error) {
      error_ = error;
    }
  }
  bool Stands() const { return error_.has_value(); }
  /// The one failure that the host is expected to raise when a selection set is deleted.
  bool IsExpected() const {
    constexpr int exceptionInServer = -2147417851;
    return error_ && error_->Number() == exceptionInServer &&
           error_->Description() == "Automation error";
  }
  const RuntimeError& Error() const { return error_.value(); }
  void Clear() { error_.reset(); }

 private:
  std::optional<RuntimeError> error_;
};

void DeleteOwnSets(const AutomationHandle& sets, StandingError& standing) {
  standing.Try([&] {
    for (const AutomationHandle& set : Required(sets).Enumerate()) {
      standing.Try([&] {
        const std::string name = TextIn(Member(set, "Name"));
        if (name == screenSetName || name == validSetName) {
          CallMember(set, "Delete");
        }
      });
    }
  });
}

Long CountOf(const AutomationHandle& collection) {
  return LongIn(Member(collection, "count"));
}

void AddLine(const AutomationHandle& list, const std::string& line) {
  CallMember(list, "AddItem", {line});
}

/// How the selection was made up.
struct SelectionCounts {
  Long Valid = 0;
  Long Invalid = 0;
};

void TellCounts(const AutomationHandle& list, const SelectionCounts& counts,
                const AutomationHandle& set) {
  constexpr Long windowColor = -2147483643;
  CallMember(list, "Clear");
  SetMember(list, "BackColor", windowColor);
  AddLine(list, "Valid objects in selection set : " + std::to_string(counts.Valid));
  AddLine(list, "Invalid objects in selection set : " + std::to_string(counts.Invalid));
  AddLine(list, "Totally selected : " + std::to_string(CountOf(set)));
  AddLine(list, "Programm can use only valid objects ");
  if (counts.Valid > 0) {
    return;
  }
  AddLine(list, "Selected no valid objects !");
  AddLine(list, "Valid objects are :");
  // Fewer words than names that count: all polylines stand under one, which is intended.
  for (const char* word : {"Line", "Polyline", "Spline", "Circle", "Arc", "Ellipse", "Region",
                           "Solid", "Face", "PolygonMesh", "3dSolid"}) {
    constexpr std::size_t indent = 19;
    AddLine(list, std::string(indent, ' ') + word);
  }
  SetMember(list, "BackColor", static_cast<Long>(colorRed));
  CallMember(list, "Refresh");
}

/// What the host filled in for the two last arguments.
ExtendedData FilledIn(const AutomationValue& answer) {
  const auto* filled = std::get_if<AutomationList>(&answer);
  if (filled == nullptr || filled->size() != 2) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  return {.Types = filled->front().Value, .Values = filled->back().Value};
}

/// Tells a failure of the body by the text that the given form makes of it.
template <class Form, class Body>
bool Told(MessageService& messages, const char* title, Form&& form, Body&& body) {
  try {
    body();
    return true;
  } catch (const RuntimeError& error) {
    messages.Show({.Title = title, .Text = form(error), .Style = MessageStyle::Critical});
    return false;
  }
}

std::string RecordErrorText(const RuntimeError& error) {
  return "ERROR :" + error.Description();
}

}  // namespace

bool clsAutoCAD::IsValidObjectName(std::string_view objectName) {
  constexpr std::array<std::string_view, 13> names{
      "AcDbSpline",  "AcDbCircle",      "AcDbLine",       "AcDbPolyline",   "AcDbArc",
      "AcDbEllipse", "AcDbRegion",      "AcDb3dPolyline", "AcDb2dPolyline", "AcDbSolid",
      "AcDbFace",    "AcDbPolygonMesh", "AcDb3dSolid"};
  return std::find(names.begin(), names.end(), objectName) != names.end();
}

AutomationHandle clsAutoCAD::GetAutoCADSelectionSet(const AutomationHandle& document) const {
  StandingError standing;
  AutomationHandle sets;
  standing.Try([&] {
    const AutomationHandle application = ObjectMember(document, "Application");
    ObjectMember(application, "ActiveDocument");
    if (!FlagIn(Member(document, "Active"))) {
      SetMember(application, "ActiveDocument", document);
    }
  });
  standing.Try([&] {
    sets = ObjectMember(document, "SelectionSets");
    CountOf(sets);
  });
  DeleteOwnSets(sets, standing);
  if (standing.IsExpected()) {
    standing.Clear();
  }

  AutomationHandle set;
  bool selected = false;
  if (!standing.Stands()) {
    standing.Try([&] {
      const Long count = CountOf(sets);
      set = count > 0 ? CreateScratchSelectionSet(sets, screenSetName, count)
                      : CallForObject(sets, "Add", {std::string(screenSetName)});
      CallMember(set, "SelectOnScreen");
      selected = CountOf(set) > 0;
    });
  }
  if (standing.Stands()) {
    const std::string text = HostErrorText(standing.Error());
    Report("GetAutoCADSelectionSet",
           set == nullptr ? text + "\rSelectionSet hasn't been gotten" : text);
    return nullptr;
  }
  return selected ? set : nullptr;
}

AutomationHandle clsAutoCAD::CreateScratchSelectionSet(const AutomationHandle& sets,
                                                       const std::string& name,
                                                       Long /*count*/) const {
  constexpr double suffixes = 10000;
  StandingError standing;
  DeleteOwnSets(sets, standing);
  if (CountOf(sets) == 0) {
    return CallForObject(sets, "Add", {name});
  }
  if (standing.IsExpected()) {
    const Integer suffix = RoundToInteger(random_() * suffixes);
    return CallForObject(sets, "Add", {name + '~' + std::to_string(suffix)});
  }
  if (standing.Stands()) {
    return nullptr;
  }
  // Intended: the number is rounded before it is scaled, so that without an error the suffix is
  // only ever 0 or 10000.
  const double suffix = RoundToInteger(random_()) * suffixes;
  return CallForObject(sets, "Add", {name + std::to_string(RoundToInteger(suffix))});
}

AutomationHandle clsAutoCAD::FilterSelectionSet(const AutomationHandle& document,
                                                const AutomationHandle& set,
                                                const AutomationHandle& reportForm) const {
  AutomationHandle valid;
  PassOver([&] {
    valid =
        CallForObject(ObjectMember(document, "SelectionSets"), "Add", {std::string(validSetName)});
  });
  Told(messages_, "FilterSelectionSet", HostErrorText, [&] {
    SelectionCounts counts;
    // Without a set to put them in, nothing is counted.
    if (valid != nullptr) {
      for (const AutomationHandle& object : Required(set).Enumerate()) {
        if (IsValidObjectName(TextIn(Member(object, "ObjectName")))) {
          CallMember(valid, "AddItems", {AutomationList{AutomationItem{object}}});
          ++counts.Valid;
        } else {
          ++counts.Invalid;
        }
        if (CountOf(set) == 0) {
          break;
        }
      }
    }
    TellCounts(ObjectMember(reportForm, "lstReportList"), counts, set);
  });
  return valid;
}

void clsAutoCAD::SetXData(const std::vector<AutomationHandle>& entities,
                          const AutomationValue& values, const AutomationValue& types) const {
  Told(messages_, "SetXData", HostErrorText, [&] {
    for (const AutomationHandle& entity : entities) {
      CallMember(entity, "SetXData", {types, values});
    }
  });
}

ExtendedData clsAutoCAD::GetXData(const AutomationHandle& entity,
                                  const std::string& applicationName) const {
  ExtendedData data;
  Told(messages_, "GetXData", HostErrorText, [&] {
    // An empty name asks for the data of all applications.
    const std::string name = applicationName == " " ? std::string() : applicationName;
    data = FilledIn(CallMember(entity, "GetXData", {name, {}, {}}));
  });
  return data;
}

ExtendedData clsAutoCAD::GetXRecordData(const AutomationHandle& record) const {
  ExtendedData data;
  Told(messages_, "GetXRecordData", RecordErrorText, [&] {
    data = FilledIn(CallMember(record, "GetXRecordData", std::vector<AutomationValue>(2)));
  });
  return data;
}

bool clsAutoCAD::SetXRecordData(const AutomationHandle& record, const AutomationValue& types,
                                const AutomationValue& values) const {
  return Told(messages_, "SetXRecordData", RecordErrorText, [&] {
    CallMember(record, "SetXRecordData", {types, values});
  });
}

bool clsAutoCAD::CheckXDataSpace(const ExtendedData& /*data*/) const {
  return true;
}

}  // namespace trelonit

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "drawing/autocad/clsAutoCAD.h"
#include "drawing/host/BuiltInHost.h"
#include "drawing/scheme/modACADExport.h"
#include "platform/system/AutomationMembers.h"
#include "tests/analysis/Designs.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

/// What the host raises for a name that a collection does not have.
constexpr int keyNotFound = -2145386476;

/// The number of the run-time error that the statement raises; 0 without one.
template <class Statement>
int RaisedBy(Statement&& statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

inline AutomationValue At(double x, double y, double z = 0) {
  return std::vector<double>{x, y, z};
}

/// A running built-in host with its members at hand.
class HostDesk {
 public:
  BuiltInHost Host;
  BuiltInHostAutomation Automation{Host};
  AutomationHandle Application = Automation.Create(drawingHostIdentifier);

  AutomationHandle AddDocument() const {
    return CallForObject(ObjectMember(Application, "Documents"), "Add");
  }
};

/// The same with a document in it.
class DocumentDesk : public HostDesk {
 public:
  AutomationHandle Document = AddDocument();
  std::shared_ptr<Drawing> Sheet = Host.ActiveDocument();
  AutomationHandle Space = ObjectMember(Document, "ModelSpace");

  AutomationHandle AddLine() const { return CallForObject(Space, "AddLine", {At(0, 0), At(3, 4)}); }
  AutomationHandle AddText() const {
    return CallForObject(Space, "AddText", {std::string("Ферма"), At(1, 2), 5.0});
  }
  AutomationHandle AddDimension() const {
    return CallForObject(Space, "AddDimRotated", {At(0, 0), At(100, 0), At(50, 40), 0.0});
  }
  AutomationHandle AddNamed(const std::string& table, const std::string& name) const {
    return CallForObject(ObjectMember(Document, table), "Add", {name});
  }
  void SetVariable(const std::string& name, const AutomationValue& value) const {
    CallMember(Document, "SetVariable", {name, value});
  }
};

/// Sections with a name for each group; the chords are pairs.
inline SectionArray NamedSections() {
  SectionArray sections(1, sectionCount);
  for (Long group = 1; group <= sectionCount; ++group) {
    sections[group].Profile.Name = FixedText<15>("L" + std::to_string(50 + 5 * group) + "x5");
    sections[group].Paired = group <= sectionDwnPoyas;
  }
  return sections;
}

/// The design, loaded and solved, that the drawing tests show.
inline TreloData DrawnData(Long scheme, Long n) {
  TreloData data = Design(scheme, n, 2.0 * n, 1.5, 2);
  FillIrregular(data);
  return data;
}

/// Draws both schemes by the real export; the drawing outlives its host.
inline std::shared_ptr<Drawing> ExportedDrawing(const TreloData& data) {
  HostDesk desk;
  RecordingMessages messages;
  const TreloResult result = Solved(data);
  const SectionArray sections = NamedSections();
  Label panel;
  ACADExport drawingExport(desk.Automation, messages, NumberLocale{}, {data, result, sections},
                           panel);
  drawingExport.mnuFileAutoCAD_Click();
  if (!messages.Shown.empty()) {
    throw std::logic_error(messages.Shown.front().Title + ": " + messages.Shown.front().Text);
  }
  return desk.Host.ActiveDocument();
}
inline std::shared_ptr<Drawing> ExportedDrawing(Long scheme, Long n) {
  return ExportedDrawing(DrawnData(scheme, n));
}

/// As narrow as panels get: 30 of 1 m, at a height whose texts are as high as a fifth of them.
inline std::shared_ptr<Drawing> CrowdedDrawing(Long scheme) {
  TreloData data = Design(scheme, 30, 30, 2, 1);
  FillIrregular(data);
  return ExportedDrawing(data);
}

}  // namespace trelonit::test

#include "drawing/autocad/clsAutoCAD.h"

#include <array>
#include <random>
#include <utility>

#include "platform/errors/Guard.h"
#include "platform/system/AutomationMembers.h"

namespace trelonit {

namespace {

constexpr const char* programIdentifier = "AutoCAD.Application";

/// What the routine gives, or nothing where it fails.
template <class Routine>
AutomationHandle ObjectOrEmpty(Routine&& routine) {
  AutomationHandle object;
  PassOver([&] { object = routine(); });
  return object;
}

struct NamedVariable {
  const char* Name;
  Long Value;
};

// Sizes on paper, millimetres; DIMSCALE is set again by the schemes.
constexpr std::array<NamedVariable, 10> dimensionVariables{{{"DIMSCALE", 20},
                                                            {"DIMDLI", 10},
                                                            {"DIMEXE", 1},
                                                            {"DIMEXO", 1},
                                                            {"DIMDEC", 0},
                                                            {"DIMGAP", 1},
                                                            {"DIMTIH", 0},
                                                            {"DIMTAD", 1},
                                                            {"DIMTXT", 5},
                                                            {"DIMASZ", 4}}};

AutomationHandle AddLayer(const AutomationHandle& document, const std::string& name,
                          Long lineWeight) {
  AutomationHandle layer = CallForObject(ObjectMember(document, "Layers"), "Add", {name});
  SetMember(layer, "Freeze", false);
  SetMember(layer, "LayerOn", true);
  SetMember(layer, "Linetype", std::string("CONTINUOUS"));
  SetMember(layer, "Lineweight", lineWeight);
  SetMember(layer, "Lock", false);
  SetMember(layer, "Plottable", true);
  return layer;
}

}  // namespace

double clsAutoCAD::SystemRandomNumber() {
  std::mt19937 generator(std::random_device{}());
  return std::uniform_real_distribution<double>()(generator);
}

clsAutoCAD::clsAutoCAD(AutomationService& automation, MessageService& messages, NumberLocale locale,
                       RandomNumber random)
    : automation_(automation),
      messages_(messages),
      locale_(std::move(locale)),
      random_(std::move(random)) {}

void clsAutoCAD::Report(std::string_view title, const std::string& text) const {
  messages_.Show({.Title = std::string(title), .Text = text, .Style = MessageStyle::Critical});
}

AutomationHandle clsAutoCAD::GetACADObject() const {
  return ObjectOrEmpty([&] { return automation_.GetRunning(programIdentifier); });
}

AutomationHandle clsAutoCAD::GetOrCreateACADObject() const {
  const AutomationHandle running = GetACADObject();
  return running != nullptr ? running
                            : ObjectOrEmpty([&] { return automation_.Create(programIdentifier); });
}

AutomationHandle clsAutoCAD::GetACADDocument(const AutomationHandle& application,
                                             const std::string& fileName, bool readOnly,
                                             bool useActive) const {
  return ObjectOrEmpty([&] {
    const AutomationHandle documents = ObjectMember(application, "Documents");
    if (useActive) {
      return ObjectMember(application, "ActiveDocument");
    }
    // A file that may be written is opened by its name alone.
    return readOnly ? CallForObject(documents, "Open", {fileName, true})
                    : CallForObject(documents, "Open", {fileName});
  });
}

bool clsAutoCAD::CloseAll(const AutomationHandle& application) const {
  return PassOver([&] {
    for (const AutomationHandle& document :
         Required(ObjectMember(application, "Documents")).Enumerate()) {
      CallMember(document, "Close", {false});
    }
  });
}

AutomationHandle clsAutoCAD::TryGetActivDraw(const AutomationHandle& application) const {
  return ObjectOrEmpty([&] { return ObjectMember(application, "ActiveDocument"); });
}

AutomationHandle clsAutoCAD::GetOrCreateACADDictionary(const std::string& name,
                                                       const AutomationHandle& document) const {
  const AutomationHandle dictionaries =
      ObjectOrEmpty([&] { return ObjectMember(document, "Dictionaries"); });
  // The host raises an error for an absent name, which is as good as an empty answer.
  const AutomationHandle present =
      ObjectOrEmpty([&] { return CallForObject(dictionaries, "Item", {name}); });
  return present != nullptr
             ? present
             : ObjectOrEmpty([&] { return CallForObject(dictionaries, "Add", {name}); });
}

AutomationHandle clsAutoCAD::GetOrCreateXRecord(const AutomationHandle& dictionary,
                                                const std::string& name) const {
  const AutomationHandle present =
      ObjectOrEmpty([&] { return CallForObject(dictionary, "GetObject", {name}); });
  return present != nullptr
             ? present
             : ObjectOrEmpty([&] { return CallForObject(dictionary, "AddXRecord", {name}); });
}

void clsAutoCAD::SetupDrawing(const AutomationHandle& document) const {
  // Nothing asks whether a name is there already: the drawing is a new one.
  SetMember(document, "ActiveLayer", AddLayer(document, "Main", 50));
  AddLayer(document, "Dimension", 13);

  const AutomationHandle textStyle =
      CallForObject(ObjectMember(document, "TextStyles"), "Add", {std::string("Dimensional")});
  SetMember(textStyle, "ObliqueAngle", 0.262);
  SetMember(textStyle, "Width", 0.55);
  SetMember(document, "ActiveTextStyle", textStyle);

  const AutomationHandle dimensionStyle =
      CallForObject(ObjectMember(document, "DimStyles"), "Add", {std::string("NordDim")});
  SetMember(document, "ActiveDimStyle", dimensionStyle);
  for (const NamedVariable& variable : dimensionVariables) {
    CallMember(document, "SetVariable", {std::string(variable.Name), variable.Value});
  }
  CallMember(document, "SetVariable", {std::string("DIMTXSTY"), std::string("Dimensional")});
  CallMember(document, "SetVariable", {std::string("DIMBLK"), std::string()});
  // Again, so that the style takes up the variables.
  SetMember(document, "ActiveDimStyle", dimensionStyle);
}

}  // namespace trelonit

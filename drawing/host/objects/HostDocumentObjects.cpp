#include <algorithm>
#include <utility>

#include "drawing/host/DimensionTable.h"
#include "drawing/host/objects/HostDocument.h"
#include "drawing/host/objects/HostObject.h"
#include "drawing/host/objects/HostValues.h"

namespace trelonit {

namespace {

void SetField(DimensionVariables& variables, std::string DimensionVariables::*field,
              const Drawing& drawing, const AutomationValue& value) {
  const std::string text = TextIn(value);
  if (field == &DimensionVariables::DIMTXSTY) {
    const DrawingTextStyle* style = FindTextStyle(drawing, text);
    if (style == nullptr) {
      throw KeyNotFound();
    }
    variables.*field = style->Name;
    return;
  }
  // A point stands for the standard arrow, too; blocks with other ones are not there.
  if (!text.empty() && text != ".") {
    throw KeyNotFound();
  }
  (variables.*field).clear();
}

void SetVariable(HostDocument& document, const HostArguments& arguments) {
  const std::string name = FoldedName(TextIn(arguments.front()));
  const AutomationValue& value = arguments.back();
  const auto variable = std::find_if(dimensionTable.begin(), dimensionTable.end(),
                                     [&](const auto& known) { return known.Name == name; });
  if (variable == dimensionTable.end()) {
    throw UnknownVariable();
  }
  DimensionVariables& variables = document.Sheet->Variables;
  if (const auto* text = std::get_if<std::string DimensionVariables::*>(&variable->Field)) {
    SetField(variables, *text, *document.Sheet, value);
    return;
  }
  const double number = NumberIn(value);
  if (number < variable->Least || number > variable->Greatest) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  if (const auto* whole = std::get_if<Long DimensionVariables::*>(&variable->Field)) {
    variables.** whole = LongIn(value);
  } else {
    variables.*std::get<double DimensionVariables::*>(variable->Field) = number;
  }
}

template <class Self, AutomationHandle (*Make)(const DocumentReference&)>
consteval HostMember<Self> Part(std::string_view name) {
  return {.Name = name, .Get = [](Self& self) -> AutomationValue {
            Alive(self.Document());
            return Make(self.Document());
          }};
}

template <class Self, const ActiveRecord& Which>
consteval HostMember<Self> Active(std::string_view name) {
  return {
      .Name = name,
      .Get = [](Self& self) -> AutomationValue { return Which.Get(self.Document()); },
      .Set = [](Self& self, const AutomationValue& value) { Which.Set(self.Document(), value); }};
}

class DocumentObject : public HostObject<DocumentObject> {
 public:
  explicit DocumentObject(DocumentReference document) : document_(std::move(document)) {}

  const DocumentReference& Document() const { return document_; }

  static const auto& Members() {
    using Self = DocumentObject;
    static constexpr std::array members{
        HostMember<Self>{.Name = "Active",
                         .Get = [](Self& self) -> AutomationValue {
                           const auto document = Alive(self.document_);
                           return Alive(document->Host)->Active == document;
                         }},
        HostMember<Self>{.Name = "Application",
                         .Get = [](Self& self) -> AutomationValue {
                           return Alive(Alive(self.document_)->Host)->Application;
                         }},
        Part<Self, MakeSelectionSets>("SelectionSets"),
        Part<Self, MakeDictionaries>("Dictionaries"),
        Part<Self, MakeLayers>("Layers"),
        Part<Self, MakeTextStyles>("TextStyles"),
        Part<Self, MakeDimStyles>("DimStyles"),
        Part<Self, MakeModelSpace>("ModelSpace"),
        Active<Self, activeLayer>("ActiveLayer"),
        Active<Self, activeTextStyle>("ActiveTextStyle"),
        Active<Self, activeDimStyle>("ActiveDimStyle"),
        HostMember<Self>{.Name = "SetVariable",
                         .Call = [](Self& self, const HostArguments& arguments) -> AutomationValue {
                           SetVariable(*Alive(self.document_), arguments);
                           return {};
                         },
                         .FewestArguments = 2,
                         .MostArguments = 2},
        HostMember<Self>{.Name = "Close",
                         .Call = [](Self& self, const HostArguments& arguments) -> AutomationValue {
                           self.Close(arguments);
                           return {};
                         },
                         .MostArguments = 1}};
    return members;
  }

 private:
  void Close(const HostArguments& arguments) {
    const std::shared_ptr<HostDocument> document = Alive(document_);
    if (!arguments.empty() && FlagIn(arguments.front())) {
      // Nobody has given the drawing a file, so that a promise to save it could not be kept.
      throw RuntimeError(static_cast<int>(ErrorNumber::PathFileAccess),
                         "The drawing has no file to be saved to");
    }
    CloseDocument(*Alive(document->Host), document);
  }

  DocumentReference document_;
};

/// The entity that was added last.
AutomationValue AddEntity(const DocumentReference& reference, DrawingEntity entity) {
  const std::shared_ptr<HostDocument> document = Alive(reference);
  std::vector<DrawingEntity>& space = document->Sheet->ModelSpace;
  space.push_back(std::move(entity));
  NotifyChanged(*document);
  return MakeEntity(*document, reference, space.size() - 1);
}

class ModelSpaceObject : public HostObject<ModelSpaceObject> {
 public:
  explicit ModelSpaceObject(DocumentReference document) : document_(std::move(document)) {}

  static const auto& Members() {
    using Self = ModelSpaceObject;
    constexpr std::size_t lineArguments = 2;
    constexpr std::size_t textArguments = 3;
    constexpr std::size_t dimensionArguments = 4;
    static constexpr std::array members{
        HostMember<Self>{
            .Name = "Document",
            .Get = [](Self& self) -> AutomationValue { return Alive(self.document_)->Object; }},
        HostMember<Self>{.Name = "AddLine",
                         .Call =
                             [](Self& self, const HostArguments& arguments) {
                               return AddEntity(self.document_, self.Line(arguments));
                             },
                         .FewestArguments = lineArguments,
                         .MostArguments = lineArguments},
        HostMember<Self>{.Name = "AddText",
                         .Call =
                             [](Self& self, const HostArguments& arguments) {
                               return AddEntity(self.document_, self.Text(arguments));
                             },
                         .FewestArguments = textArguments,
                         .MostArguments = textArguments},
        HostMember<Self>{.Name = "AddDimRotated",
                         .Call =
                             [](Self& self, const HostArguments& arguments) {
                               return AddEntity(self.document_, self.Dimension(arguments));
                             },
                         .FewestArguments = dimensionArguments,
                         .MostArguments = dimensionArguments}};
    return members;
  }

 private:
  DrawingLine Line(const HostArguments& arguments) const {
    return {.Start = PointIn(arguments[0]),
            .End = PointIn(arguments[1]),
            .Layer = Alive(document_)->Sheet->ActiveLayer};
  }
  DrawingText Text(const HostArguments& arguments) const {
    const std::shared_ptr<HostDocument> document = Alive(document_);
    return {.Text = TextIn(arguments[0]),
            .InsertionPoint = PointIn(arguments[1]),
            .Height = SizeIn(arguments[2]),
            .Style = document->Sheet->ActiveTextStyle,
            .Layer = document->Sheet->ActiveLayer};
  }
  DrawingDimension Dimension(const HostArguments& arguments) const {
    const std::shared_ptr<HostDocument> document = Alive(document_);
    const DimensionVariables& variables = document->Sheet->Variables;
    return {.Point1 = PointIn(arguments[0]),
            .Point2 = PointIn(arguments[1]),
            .Location = PointIn(arguments[2]),
            .Rotation = NumberIn(arguments[3]),
            .Style = document->Sheet->ActiveDimStyle,
            .Layer = document->Sheet->ActiveLayer,
            .TextStyle = variables.DIMTXSTY,
            .ArrowheadSize = variables.DIMASZ,
            .TextGap = variables.DIMGAP,
            .TextHeight = variables.DIMTXT,
            .ScaleFactor = variables.DIMSCALE,
            .TextInsideAlign = variables.DIMTIH != 0,
            .PrimaryUnitsPrecision = variables.DIMDEC,
            .Variables = variables};
  }

  DocumentReference document_;
};

}  // namespace

AutomationHandle MakeDocument(const DocumentReference& document) {
  return std::make_shared<DocumentObject>(document);
}

AutomationHandle MakeModelSpace(const DocumentReference& document) {
  return std::make_shared<ModelSpaceObject>(document);
}

std::shared_ptr<HostDocument> DocumentBehind(const AutomationValue& object) {
  const auto document = std::dynamic_pointer_cast<DocumentObject>(ObjectIn(object));
  if (document == nullptr) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  return Alive(document->Document());
}

}  // namespace trelonit

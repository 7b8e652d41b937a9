#include <algorithm>

#include "drawing/host/objects/HostRecordObject.h"

namespace trelonit {

namespace {

std::string LinetypeIn(const AutomationValue& value) {
  std::string name = TextIn(value);
  if (!SameName(name, "CONTINUOUS")) {
    throw KeyNotFound();
  }
  return name;
}

Long LineweightIn(const AutomationValue& value) {
  constexpr std::array<Long, 25> weights{defaultLineweight,
                                         0,
                                         5,
                                         9,
                                         13,
                                         15,
                                         18,
                                         20,
                                         25,
                                         30,
                                         35,
                                         40,
                                         50,
                                         53,
                                         60,
                                         70,
                                         80,
                                         90,
                                         100,
                                         106,
                                         120,
                                         140,
                                         158,
                                         200,
                                         211};
  const Long weight = LongIn(value);
  if (std::find(weights.begin(), weights.end(), weight) == weights.end()) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  return weight;
}

/// Letters may lean less than a right angle to either side by the format's own limit.
double ObliqueAngleIn(const AutomationValue& value) {
  constexpr double limit = 1.4835298641951802;  // 85 degrees
  const double angle = NumberIn(value);
  if (angle < -limit || angle > limit) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  return angle;
}

/// Width factor in the range of the drawing format.
double WidthIn(const AutomationValue& value) {
  constexpr double least = 0.01;
  constexpr double greatest = 100;
  const double width = NumberIn(value);
  if (width < least || width > greatest) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  return width;
}

class LayerObject : public HostRecordObject<LayerObject> {
 public:
  using HostRecordObject::HostRecordObject;
  static DrawingLayer& RecordAt(HostDocument& document, std::size_t place) {
    return document.Sheet->Layers.at(place);
  }
  static const auto& Members() {
    using Self = LayerObject;
    static constexpr std::array members{
        FieldMember<Self, &DrawingLayer::Freeze, FlagIn>("Freeze"),
        FieldMember<Self, &DrawingLayer::LayerOn, FlagIn>("LayerOn"),
        FieldMember<Self, &DrawingLayer::Linetype, LinetypeIn>("Linetype"),
        FieldMember<Self, &DrawingLayer::Lineweight, LineweightIn>("Lineweight"),
        FieldMember<Self, &DrawingLayer::Lock, FlagIn>("Lock"),
        FieldMember<Self, &DrawingLayer::Plottable, FlagIn>("Plottable")};
    return members;
  }
};

class TextStyleObject : public HostRecordObject<TextStyleObject> {
 public:
  using HostRecordObject::HostRecordObject;
  static DrawingTextStyle& RecordAt(HostDocument& document, std::size_t place) {
    return document.Sheet->TextStyles.at(place);
  }
  static const auto& Members() {
    using Self = TextStyleObject;
    static constexpr std::array members{
        FieldMember<Self, &DrawingTextStyle::ObliqueAngle, ObliqueAngleIn>("ObliqueAngle"),
        FieldMember<Self, &DrawingTextStyle::Width, WidthIn>("Width")};
    return members;
  }
};

/// What it holds is set by the drawing's variables alone.
class DimStyleObject : public HostRecordObject<DimStyleObject> {
 public:
  using HostRecordObject::HostRecordObject;
  static const auto& Members() {
    static constexpr std::array<HostMember<DimStyleObject>, 0> members{};
    return members;
  }
};

DrawingLayer NewRecord(const Drawing& /*drawing*/, std::string name, const DrawingLayer*) {
  return {.Name = std::move(name)};
}

DrawingTextStyle NewRecord(const Drawing& /*drawing*/, std::string name, const DrawingTextStyle*) {
  return {.Name = std::move(name)};
}

/// A dimension style begins with the variables that the drawing has now.
DrawingDimStyle NewRecord(const Drawing& drawing, std::string name, const DrawingDimStyle*) {
  return {.Name = std::move(name), .Variables = drawing.Variables};
}

template <class Record>
std::size_t PlaceOf(const std::vector<Record>& records, std::string_view name) {
  return static_cast<std::size_t>(FindNamed(records, name) - records.data());
}

/// Layers, text styles or dimension styles of a document.
template <class Object, auto List>
class TableObject : public HostObject<TableObject<Object, List>> {
 public:
  explicit TableObject(DocumentReference document) : document_(std::move(document)) {}

  static const auto& Members() {
    static constexpr std::array members{HostMember<TableObject>{
        .Name = "Add",
        .Call = [](TableObject& self, const HostArguments& arguments) -> AutomationValue {
          return self.Add(NameIn(arguments.front()));
        },
        .FewestArguments = 1,
        .MostArguments = 1}};
    return members;
  }

 private:
  /// A name that is there already gives the record that has it.
  AutomationHandle Add(std::string name) {
    const std::shared_ptr<HostDocument> document = Alive(document_);
    auto& records = (*document->Sheet).*List;
    if (FindNamed(records, name) == nullptr) {
      records.push_back(NewRecord(*document->Sheet, name, records.data()));
      NotifyChanged(*document);
    }
    return std::make_shared<Object>(document_, PlaceOf(records, name));
  }

  DocumentReference document_;
};

template <class Object, auto List, auto Active>
AutomationValue GetActive(const DocumentReference& reference) {
  const std::shared_ptr<HostDocument> document = Alive(reference);
  const Drawing& drawing = *document->Sheet;
  return std::make_shared<Object>(reference, PlaceOf(drawing.*List, drawing.*Active));
}

template <class Object, auto List, auto Active>
void SetActive(const DocumentReference& reference, const AutomationValue& record) {
  const std::shared_ptr<HostDocument> document = Alive(reference);
  Drawing& drawing = *document->Sheet;
  drawing.*Active = (drawing.*List).at(PlaceBehind<Object>(record, *document)).Name;
  NotifyChanged(*document);
}

/// The style that is active already takes up the drawing's variables; another one brings its own.
void SetActiveDimStyle(const DocumentReference& reference, const AutomationValue& record) {
  const std::shared_ptr<HostDocument> document = Alive(reference);
  Drawing& drawing = *document->Sheet;
  DrawingDimStyle& style = drawing.DimStyles.at(PlaceBehind<DimStyleObject>(record, *document));
  if (SameName(style.Name, drawing.ActiveDimStyle)) {
    style.Variables = drawing.Variables;
  } else {
    drawing.Variables = style.Variables;
    drawing.ActiveDimStyle = style.Name;
  }
  NotifyChanged(*document);
}

}  // namespace

const ActiveRecord activeLayer{GetActive<LayerObject, &Drawing::Layers, &Drawing::ActiveLayer>,
                               SetActive<LayerObject, &Drawing::Layers, &Drawing::ActiveLayer>};
const ActiveRecord activeTextStyle{
    GetActive<TextStyleObject, &Drawing::TextStyles, &Drawing::ActiveTextStyle>,
    SetActive<TextStyleObject, &Drawing::TextStyles, &Drawing::ActiveTextStyle>};
const ActiveRecord activeDimStyle{
    GetActive<DimStyleObject, &Drawing::DimStyles, &Drawing::ActiveDimStyle>, SetActiveDimStyle};

AutomationHandle MakeLayers(const DocumentReference& document) {
  return std::make_shared<TableObject<LayerObject, &Drawing::Layers>>(document);
}

AutomationHandle MakeTextStyles(const DocumentReference& document) {
  return std::make_shared<TableObject<TextStyleObject, &Drawing::TextStyles>>(document);
}

AutomationHandle MakeDimStyles(const DocumentReference& document) {
  return std::make_shared<TableObject<DimStyleObject, &Drawing::DimStyles>>(document);
}

}  // namespace trelonit

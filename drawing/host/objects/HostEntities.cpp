#include <algorithm>

#include "drawing/host/objects/HostRecordObject.h"

namespace trelonit {

namespace {

std::string LayerIn(const Drawing& drawing, const AutomationValue& value) {
  return KnownName(drawing.Layers, value);
}

std::string TextStyleIn(const Drawing& drawing, const AutomationValue& value) {
  return KnownName(drawing.TextStyles, value);
}

/// Texts that are stretched between two points are not made here.
TextAlignment AlignmentIn(const AutomationValue& value) {
  const Long alignment = LongIn(value);
  constexpr Long aligned = 3;
  constexpr Long fitted = 5;
  if (alignment < static_cast<Long>(TextAlignment::Left) ||
      alignment > static_cast<Long>(TextAlignment::BottomRight) || alignment == aligned ||
      alignment == fitted) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  return static_cast<TextAlignment>(alignment);
}

Long PrecisionIn(const AutomationValue& value) {
  constexpr Long finest = 8;
  const Long precision = LongIn(value);
  if (precision < 0 || precision > finest) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  return precision;
}

/// What the class of any kind of entity tells about its place.
class EntityBase {
 public:
  virtual ~EntityBase() = default;
  virtual std::shared_ptr<HostDocument> Document() const = 0;
  virtual std::size_t Place() const = 0;
};

constexpr Long applicationNameCode = 1001;

/// Extended data come as one list in which each application's part begins with its name. Raises 5
/// where the list begins with something else.
std::map<std::string, TypedValues> ByApplication(const TypedValues& data) {
  std::map<std::string, TypedValues> parts;
  TypedValues* part = nullptr;
  for (std::size_t place = 0; place < data.Types.size(); ++place) {
    if (LongIn(data.Types[place].Value) == applicationNameCode) {
      part = &parts[FoldedName(NameIn(data.Values[place].Value))];
      *part = {};
    }
    if (part == nullptr) {
      throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    }
    part->Types.push_back(data.Types[place]);
    part->Values.push_back(data.Values[place]);
  }
  return parts;
}

/// Replaces the data of the named applications. A name alone takes that application's data away.
void SetXData(HostDocument& document, std::size_t place, const HostArguments& arguments) {
  auto& kept = document.XData[place];
  for (auto& [application, part] : ByApplication(TypedValuesIn(arguments[0], arguments[1]))) {
    if (part.Types.size() == 1) {
      kept.erase(application);
    } else {
      kept[application] = std::move(part);
    }
  }
}

AutomationValue GetXData(const HostDocument& document, std::size_t place,
                         const HostArguments& arguments) {
  const std::string application = FoldedName(TextIn(arguments.front()));
  TypedValues found;
  if (const auto kept = document.XData.find(place); kept != document.XData.end()) {
    for (const auto& [name, part] : kept->second) {
      // An empty name asks for all of them.
      if (application.empty() || application == name) {
        found.Types.insert(found.Types.end(), part.Types.begin(), part.Types.end());
        found.Values.insert(found.Values.end(), part.Values.begin(), part.Values.end());
      }
    }
  }
  return FilledArguments(found);
}

/// What entities of all kinds answer to.
template <class Self, class Record>
class EntityObject : public HostRecordObject<Self>, public EntityBase {
 public:
  using HostRecordObject<Self>::HostRecordObject;

  std::shared_ptr<HostDocument> Document() const override {
    return HostRecordObject<Self>::Document();
  }
  std::size_t Place() const override { return HostRecordObject<Self>::Place(); }

  static Record& RecordAt(HostDocument& document, std::size_t place) {
    return std::get<Record>(document.Sheet->ModelSpace.at(place));
  }

 protected:
  static consteval auto CommonMembers() {
    constexpr std::size_t setArguments = 2;
    constexpr std::size_t getArguments = 3;
    return std::array{
        FieldMember<Self, &Record::Layer, LayerIn>("Layer"),
        HostMember<Self>{.Name = "ObjectName",
                         .Get = [](Self& self) -> AutomationValue {
                           self.Document();
                           return std::string(Self::objectName);
                         }},
        HostMember<Self>{.Name = "SetXData",
                         .Call = [](Self& self, const HostArguments& arguments) -> AutomationValue {
                           SetXData(*self.Document(), self.Place(), arguments);
                           return {};
                         },
                         .FewestArguments = setArguments,
                         .MostArguments = setArguments},
        HostMember<Self>{.Name = "GetXData",
                         .Call = [](Self& self, const HostArguments& arguments) -> AutomationValue {
                           return GetXData(*self.Document(), self.Place(), arguments);
                         },
                         .FewestArguments = getArguments,
                         .MostArguments = getArguments}};
  }
};

class LineObject : public EntityObject<LineObject, DrawingLine> {
 public:
  using EntityObject::EntityObject;
  static constexpr const char* objectName = "AcDbLine";
  static const auto& Members() {
    static constexpr auto members = CommonMembers();
    return members;
  }
};

class TextObject : public EntityObject<TextObject, DrawingText> {
 public:
  using EntityObject::EntityObject;
  static constexpr const char* objectName = "AcDbText";
  static const auto& Members() {
    using Self = TextObject;
    static constexpr auto members = Joined(
        CommonMembers(),
        std::array{
            FieldMember<Self, &DrawingText::Alignment, AlignmentIn>("Alignment"),
            FieldMember<Self, &DrawingText::Rotation, NumberIn>("Rotation"),
            FieldMember<Self, &DrawingText::TextAlignmentPoint, PointIn>("TextAlignmentPoint")});
    return members;
  }
};

class DimensionObject : public EntityObject<DimensionObject, DrawingDimension> {
 public:
  using EntityObject::EntityObject;
  static constexpr const char* objectName = "AcDbRotatedDimension";
  static const auto& Members() {
    using Self = DimensionObject;
    using Record = DrawingDimension;
    static constexpr auto members =
        Joined(CommonMembers(),
               std::array{FieldMember<Self, &Record::TextStyle, TextStyleIn>("TextStyle"),
                          FieldMember<Self, &Record::ArrowheadSize, DistanceIn>("ArrowheadSize"),
                          FieldMember<Self, &Record::TextGap, NumberIn>("TextGap"),
                          FieldMember<Self, &Record::TextHeight, SizeIn>("TextHeight"),
                          FieldMember<Self, &Record::ScaleFactor, SizeIn>("ScaleFactor"),
                          FieldMember<Self, &Record::TextInsideAlign, FlagIn>("TextInsideAlign"),
                          FieldMember<Self, &Record::TextInside, FlagIn>("TextInside"),
                          FieldMember<Self, &Record::PrimaryUnitsPrecision, PrecisionIn>(
                              "PrimaryUnitsPrecision")});
    return members;
  }
};

}  // namespace

AutomationHandle MakeEntity(const HostDocument& document, const DocumentReference& reference,
                            std::size_t place) {
  const DrawingEntity& entity = document.Sheet->ModelSpace.at(place);
  if (std::holds_alternative<DrawingLine>(entity)) {
    return std::make_shared<LineObject>(reference, place);
  }
  if (std::holds_alternative<DrawingText>(entity)) {
    return std::make_shared<TextObject>(reference, place);
  }
  return std::make_shared<DimensionObject>(reference, place);
}

std::size_t EntityBehind(const AutomationValue& object, const HostDocument& document) {
  return PlaceBehind<EntityBase>(object, document);
}

}  // namespace trelonit

#pragma once

#include <type_traits>
#include <utility>

#include "drawing/host/objects/HostDocument.h"
#include "drawing/host/objects/HostObject.h"
#include "drawing/host/objects/HostValues.h"

namespace trelonit {

/// Base of an object that stands for one record of a document by its place there. Records are
/// only ever added, so a place stays right. The class has a static RecordAt(document, place).
template <class Self>
class HostRecordObject : public HostObject<Self> {
 public:
  HostRecordObject(DocumentReference document, std::size_t place)
      : document_(std::move(document)), place_(place) {}

  std::shared_ptr<HostDocument> Document() const { return Alive(document_); }
  std::size_t Place() const { return place_; }
  auto& RecordIn(HostDocument& document) const { return Self::RecordAt(document, place_); }

 private:
  DocumentReference document_;
  std::size_t place_;
};

/// A property that is a field of the object's record. Read turns the given value into the field's;
/// it may ask for the drawing as its first argument.
template <class Self, auto Field, auto Read>
constexpr HostMember<Self> FieldMember(std::string_view name) {
  return {.Name = name,
          .Get = [](Self& self) -> AutomationValue {
            const auto document = self.Document();
            return ValueOf(self.RecordIn(*document).*Field);
          },
          .Set =
              [](Self& self, const AutomationValue& value) {
                const auto document = self.Document();
                if constexpr (std::is_invocable_v<decltype(Read), const Drawing&,
                                                  const AutomationValue&>) {
                  self.RecordIn(*document).*Field = Read(*document->Sheet, value);
                } else {
                  self.RecordIn(*document).*Field = Read(value);
                }
                NotifyChanged(*document);
              }};
}

/// The place of what the object stands for. Raises 13 for an object of another class, 5 for a
/// record of another document.
template <class Object>
std::size_t PlaceBehind(const AutomationValue& value, const HostDocument& document) {
  const auto object = std::dynamic_pointer_cast<Object>(ObjectIn(value));
  if (object == nullptr) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  if (object->Document().get() != &document) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  return object->Place();
}

/// The name in the drawing's own writing of the record that is asked for; raises "key not found".
template <class Record>
std::string KnownName(const std::vector<Record>& records, const AutomationValue& value) {
  const Record* record = FindNamed(records, TextIn(value));
  if (record == nullptr) {
    throw KeyNotFound();
  }
  return record->Name;
}

}  // namespace trelonit

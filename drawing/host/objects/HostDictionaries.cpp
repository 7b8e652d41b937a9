#include <algorithm>
#include <utility>

#include "drawing/host/objects/HostDocument.h"
#include "drawing/host/objects/HostObject.h"
#include "drawing/host/objects/HostValues.h"

namespace trelonit {

namespace {

bool HoldsObject(const AutomationValue& value) {
  if (const auto* list = std::get_if<AutomationList>(&value)) {
    return std::any_of(list->begin(), list->end(),
                       [](const AutomationItem& item) { return HoldsObject(item.Value); });
  }
  return std::holds_alternative<AutomationHandle>(value);
}

}  // namespace

TypedValues TypedValuesIn(const AutomationValue& types, const AutomationValue& values) {
  const auto* codes = std::get_if<AutomationList>(&types);
  const auto* contents = std::get_if<AutomationList>(&values);
  if (codes == nullptr || contents == nullptr) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  if (codes->size() != contents->size()) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  for (const AutomationItem& code : *codes) {
    LongIn(code.Value);
  }
  // Such data is written into drawings, where objects have no place; and a record that keeps an
  // object over itself would never go.
  if (HoldsObject(values)) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  return {.Types = *codes, .Values = *contents};
}

AutomationValue FilledArguments(const TypedValues& data) {
  if (data.Types.empty()) {
    return AutomationList(2);
  }
  return AutomationList{{data.Types}, {data.Values}};
}

namespace {

/// An object over something that belongs to a document and is never deleted in it.
template <class Self, class Content>
class ContentObject : public HostObject<Self> {
 public:
  ContentObject(DocumentReference document, std::shared_ptr<Content> content)
      : document_(std::move(document)), content_(std::move(content)) {}

 protected:
  const DocumentReference& Document() const { return document_; }
  Content& Inside() const {
    Alive(document_);
    return *content_;
  }

 private:
  DocumentReference document_;
  std::shared_ptr<Content> content_;
};

/// A member that takes a name and gives an object.
template <class Self, AutomationHandle (Self::*Routine)(const std::string&)>
consteval HostMember<Self> NamedCall(std::string_view name) {
  return {.Name = name,
          .Call = [](Self& self, const HostArguments& arguments) -> AutomationValue {
            return (self.*Routine)(NameIn(arguments.front()));
          },
          .FewestArguments = 1,
          .MostArguments = 1};
}

/// The object over the named content; raises "key not found".
template <class Object, class Content>
AutomationHandle Present(const std::map<std::string, std::shared_ptr<Content>>& contents,
                         const std::string& name, const DocumentReference& document) {
  const auto found = contents.find(FoldedName(name));
  if (found == contents.end()) {
    throw KeyNotFound();
  }
  return std::make_shared<Object>(document, found->second);
}

/// The same, made where it is not there yet.
template <class Object, class Content>
AutomationHandle Added(std::map<std::string, std::shared_ptr<Content>>& contents,
                       const std::string& name, const DocumentReference& document) {
  std::shared_ptr<Content>& content = contents[FoldedName(name)];
  if (content == nullptr) {
    content = std::make_shared<Content>();
  }
  return std::make_shared<Object>(document, content);
}

class RecordObject : public ContentObject<RecordObject, HostRecord> {
 public:
  using ContentObject::ContentObject;
  static const auto& Members() {
    using Self = RecordObject;
    static constexpr std::array members{
        HostMember<Self>{
            .Name = "GetXRecordData",
            .Call = [](Self& self,
                       const HostArguments&) { return FilledArguments(self.Inside().Data); },
            .FewestArguments = 2,
            .MostArguments = 2},
        HostMember<Self>{.Name = "SetXRecordData",
                         .Call = [](Self& self, const HostArguments& arguments) -> AutomationValue {
                           self.Inside().Data = TypedValuesIn(arguments[0], arguments[1]);
                           return {};
                         },
                         .FewestArguments = 2,
                         .MostArguments = 2}};
    return members;
  }
};

class DictionaryObject : public ContentObject<DictionaryObject, HostDictionary> {
 public:
  using ContentObject::ContentObject;
  static const auto& Members() {
    using Self = DictionaryObject;
    static constexpr std::array members{NamedCall<Self, &Self::GetObject>("GetObject"),
                                        NamedCall<Self, &Self::AddXRecord>("AddXRecord")};
    return members;
  }

 private:
  AutomationHandle GetObject(const std::string& name) {
    return Present<RecordObject>(Inside().Records, name, Document());
  }
  AutomationHandle AddXRecord(const std::string& name) {
    return Added<RecordObject>(Inside().Records, name, Document());
  }
};

class DictionariesObject : public HostObject<DictionariesObject> {
 public:
  explicit DictionariesObject(DocumentReference document) : document_(std::move(document)) {}

  static const auto& Members() {
    using Self = DictionariesObject;
    static constexpr std::array members{NamedCall<Self, &Self::Item>("Item"),
                                        NamedCall<Self, &Self::Add>("Add")};
    return members;
  }

 private:
  AutomationHandle Item(const std::string& name) {
    return Present<DictionaryObject>(Alive(document_)->Dictionaries, name, document_);
  }
  AutomationHandle Add(const std::string& name) {
    return Added<DictionaryObject>(Alive(document_)->Dictionaries, name, document_);
  }

  DocumentReference document_;
};

}  // namespace

AutomationHandle MakeDictionaries(const DocumentReference& document) {
  return std::make_shared<DictionariesObject>(document);
}

}  // namespace trelonit

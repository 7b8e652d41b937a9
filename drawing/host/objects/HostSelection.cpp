#include <algorithm>
#include <utility>

#include "drawing/host/objects/HostDocument.h"
#include "drawing/host/objects/HostObject.h"
#include "drawing/host/objects/HostValues.h"

namespace trelonit {

namespace {

class SelectionSetObject : public HostObject<SelectionSetObject> {
 public:
  SelectionSetObject(DocumentReference document, std::weak_ptr<HostSelectionSet> set)
      : document_(std::move(document)), set_(std::move(set)) {}

  static const auto& Members() {
    using Self = SelectionSetObject;
    static constexpr std::array members{
        HostMember<Self>{.Name = "Name",
                         .Get = [](Self& self) -> AutomationValue { return self.ThisSet()->Name; }},
        HostMember<Self>{
            .Name = "Count",
            .Get = [](Self& self) { return CountIn(self.ThisSet()->Entities.size()); }},
        HostMember<Self>{.Name = "Delete",
                         .Call = [](Self& self, const HostArguments&) -> AutomationValue {
                           self.Delete();
                           return {};
                         }},
        HostMember<Self>{.Name = "SelectOnScreen",
                         .Call = [](Self& self, const HostArguments&) -> AutomationValue {
                           self.SelectOnScreen();
                           return {};
                         }},
        HostMember<Self>{.Name = "AddItems",
                         .Call = [](Self& self, const HostArguments& arguments) -> AutomationValue {
                           self.AddItems(arguments.front());
                           return {};
                         },
                         .FewestArguments = 1,
                         .MostArguments = 1}};
    return members;
  }

  std::vector<AutomationHandle> Enumerate() override {
    const std::shared_ptr<HostDocument> document = Alive(document_);
    std::vector<AutomationHandle> entities;
    for (const std::size_t place : ThisSet()->Entities) {
      entities.push_back(MakeEntity(*document, document_, place));
    }
    return entities;
  }

 private:
  std::shared_ptr<HostSelectionSet> ThisSet() const {
    Alive(document_);
    std::shared_ptr<HostSelectionSet> set = set_.lock();
    if (set == nullptr) {
      throw ObjectErased();
    }
    return set;
  }
  void Delete() {
    const std::shared_ptr<HostSelectionSet> set = ThisSet();
    auto& sets = Alive(document_)->SelectionSets;
    sets.erase(std::remove(sets.begin(), sets.end(), set), sets.end());
  }
  /// An entity is in a set once.
  static void Take(HostSelectionSet& set, std::size_t place) {
    if (set.Known.insert(place).second) {
      set.Entities.push_back(place);
    }
  }
  void SelectOnScreen() {
    const std::shared_ptr<HostSelectionSet> set = ThisSet();
    const std::shared_ptr<HostDocument> document = Alive(document_);
    const auto& hook = Alive(document->Host)->Hooks.SelectOnScreen;
    if (!hook) {
      return;
    }
    for (const std::size_t place : hook(document->Sheet)) {
      if (place < document->Sheet->ModelSpace.size()) {
        Take(*set, place);
      }
    }
  }
  /// All of them or, with a wrong one among them, none.
  void AddItems(const AutomationValue& items) {
    const std::shared_ptr<HostSelectionSet> set = ThisSet();
    const std::shared_ptr<HostDocument> document = Alive(document_);
    const auto* list = std::get_if<AutomationList>(&items);
    if (list == nullptr) {
      throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    std::vector<std::size_t> places;
    for (const AutomationItem& item : *list) {
      places.push_back(EntityBehind(item.Value, *document));
    }
    for (const std::size_t place : places) {
      Take(*set, place);
    }
  }

  DocumentReference document_;
  std::weak_ptr<HostSelectionSet> set_;
};

class SelectionSetsObject : public HostObject<SelectionSetsObject> {
 public:
  explicit SelectionSetsObject(DocumentReference document) : document_(std::move(document)) {}

  static const auto& Members() {
    using Self = SelectionSetsObject;
    static constexpr std::array members{
        HostMember<Self>{
            .Name = "Count",
            .Get = [](Self& self) { return CountIn(Alive(self.document_)->SelectionSets.size()); }},
        HostMember<Self>{.Name = "Add",
                         .Call = [](Self& self, const HostArguments& arguments) -> AutomationValue {
                           return self.Add(NameIn(arguments.front()));
                         },
                         .FewestArguments = 1,
                         .MostArguments = 1}};
    return members;
  }

  std::vector<AutomationHandle> Enumerate() override {
    std::vector<AutomationHandle> objects;
    for (const auto& set : Alive(document_)->SelectionSets) {
      objects.push_back(std::make_shared<SelectionSetObject>(document_, set));
    }
    return objects;
  }

 private:
  AutomationHandle Add(std::string name) {
    auto& sets = Alive(document_)->SelectionSets;
    if (std::any_of(sets.begin(), sets.end(),
                    [&](const auto& set) { return SameName(set->Name, name); })) {
      throw SetExists();
    }
    sets.push_back(std::make_shared<HostSelectionSet>());
    sets.back()->Name = std::move(name);
    return std::make_shared<SelectionSetObject>(document_, sets.back());
  }

  DocumentReference document_;
};

}  // namespace

AutomationHandle MakeSelectionSets(const DocumentReference& document) {
  return std::make_shared<SelectionSetsObject>(document);
}

}  // namespace trelonit

#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "drawing/host/BuiltInHost.h"
#include "drawing/host/Drawing.h"
#include "drawing/host/objects/HostErrors.h"
#include "platform/system/Services.h"

namespace trelonit {

// What stands behind the automation objects of the built-in host. The objects hold weak references
// to it, so that a closed document goes at once, whoever still holds an object of it.

/// Group codes and values of extended data or of an extended record, equally long.
struct TypedValues {
  AutomationList Types;
  AutomationList Values;
};

struct HostRecord {
  TypedValues Data;
};

struct HostDictionary {
  std::map<std::string, std::shared_ptr<HostRecord>> Records;  ///< by folded name
};

struct HostSelectionSet {
  std::string Name;
  std::vector<std::size_t> Entities;  ///< places in the model space
  std::set<std::size_t> Known;        ///< the same, to be looked up
};

/// One document with what does not belong to its drawing.
struct HostDocument {
  std::weak_ptr<HostState> Host;
  std::shared_ptr<Drawing> Sheet = std::make_shared<Drawing>();
  AutomationHandle Object;  ///< the one document object
  std::vector<std::shared_ptr<HostSelectionSet>> SelectionSets;
  std::map<std::string, std::shared_ptr<HostDictionary>> Dictionaries;  ///< by folded name
  /// By place in the model space, then by folded name of the application that owns the data.
  std::map<std::size_t, std::map<std::string, TypedValues>> XData;
};

/// The host.
struct HostState {
  HostHooks Hooks;
  bool Visible = false;
  Long DocumentsMade = 0;
  AutomationHandle Application;
  std::vector<std::shared_ptr<HostDocument>> Documents;
  std::shared_ptr<HostDocument> Active;
};

using HostReference = std::weak_ptr<HostState>;
using DocumentReference = std::weak_ptr<HostDocument>;

/// Raises the error of an object whose document or host is gone.
template <class Target>
std::shared_ptr<Target> Alive(const std::weak_ptr<Target>& reference) {
  std::shared_ptr<Target> target = reference.lock();
  if (target == nullptr) {
    throw Disconnected();
  }
  return target;
}

/// Tells the window.
void Notify(const std::function<void(const std::shared_ptr<Drawing>&)>& hook,
            const HostDocument& document);
void NotifyChanged(const HostDocument& document);

std::shared_ptr<HostDocument> AddDocument(const std::shared_ptr<HostState>& host);
void ActivateDocument(HostState& host, const std::shared_ptr<HostDocument>& document);
/// The last one that stays becomes active in the place of the closed one.
void CloseDocument(HostState& host, const std::shared_ptr<HostDocument>& document);
/// Null for a drawing that is no open document of this host.
std::shared_ptr<HostDocument> DocumentOf(const HostState& host,
                                         const std::shared_ptr<Drawing>& drawing);

// The automation objects.
AutomationHandle MakeApplication(const HostReference& host);
AutomationHandle MakeDocuments(const HostReference& host);
AutomationHandle MakeDocument(const DocumentReference& document);
AutomationHandle MakeModelSpace(const DocumentReference& document);
AutomationHandle MakeEntity(const HostDocument& document, const DocumentReference& reference,
                            std::size_t place);
AutomationHandle MakeLayers(const DocumentReference& document);
AutomationHandle MakeTextStyles(const DocumentReference& document);
AutomationHandle MakeDimStyles(const DocumentReference& document);
AutomationHandle MakeSelectionSets(const DocumentReference& document);
AutomationHandle MakeDictionaries(const DocumentReference& document);

// What objects stand for. Raise 13 for an object of another kind.
std::shared_ptr<HostDocument> DocumentBehind(const AutomationValue& object);
/// Place in the model space of this document; raises 5 for an entity of another one.
std::size_t EntityBehind(const AutomationValue& object, const HostDocument& document);

/// A property of the document that tells which of its layers or styles is the active one.
struct ActiveRecord {
  AutomationValue (*Get)(const DocumentReference& document);
  /// Raises 5 for a record of another document.
  void (*Set)(const DocumentReference& document, const AutomationValue& record);
};
extern const ActiveRecord activeLayer;
extern const ActiveRecord activeTextStyle;
extern const ActiveRecord activeDimStyle;

/// Two lists that fit each other. Raises 13 for other kinds of values, objects in the lists among
/// them, 5 for unequal lengths.
TypedValues TypedValuesIn(const AutomationValue& types, const AutomationValue& values);
/// As a member gives them out: two lists, or two empty values where there is nothing.
AutomationValue FilledArguments(const TypedValues& data);

}  // namespace trelonit

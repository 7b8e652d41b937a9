#include "drawing/host/BuiltInHost.h"

#include <algorithm>
#include <utility>

#include "drawing/host/objects/HostDocument.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit {

void Notify(const std::function<void(const std::shared_ptr<Drawing>&)>& hook,
            const HostDocument& document) {
  if (hook) {
    hook(document.Sheet);
  }
}

void NotifyChanged(const HostDocument& document) {
  // A host that is just going needs no news.
  if (const std::shared_ptr<HostState> host = document.Host.lock()) {
    Notify(host->Hooks.Changed, document);
  }
}

std::shared_ptr<HostDocument> AddDocument(const std::shared_ptr<HostState>& host) {
  auto document = std::make_shared<HostDocument>();
  document->Host = host;
  document->Sheet->Name = "Drawing" + std::to_string(++host->DocumentsMade) + ".dwg";
  document->Object = MakeDocument(document);
  host->Documents.push_back(document);
  Notify(host->Hooks.DocumentAdded, *document);
  ActivateDocument(*host, document);
  return document;
}

void ActivateDocument(HostState& host, const std::shared_ptr<HostDocument>& document) {
  if (host.Active == document) {
    return;
  }
  host.Active = document;
  if (document != nullptr) {
    Notify(host.Hooks.DocumentActivated, *document);
  }
}

void CloseDocument(HostState& host, const std::shared_ptr<HostDocument>& document) {
  host.Documents.erase(std::remove(host.Documents.begin(), host.Documents.end(), document),
                       host.Documents.end());
  Notify(host.Hooks.DocumentClosed, *document);
  if (host.Active == document) {
    ActivateDocument(host, host.Documents.empty() ? nullptr : host.Documents.back());
  }
}

std::shared_ptr<HostDocument> DocumentOf(const HostState& host,
                                         const std::shared_ptr<Drawing>& drawing) {
  const auto found = std::find_if(host.Documents.begin(), host.Documents.end(),
                                  [&](const auto& document) { return document->Sheet == drawing; });
  return found == host.Documents.end() ? nullptr : *found;
}

BuiltInHost::BuiltInHost(HostHooks hooks) : state_(std::make_shared<HostState>()) {
  state_->Hooks = std::move(hooks);
  state_->Application = MakeApplication(state_);
}

BuiltInHost::~BuiltInHost() = default;

HostHooks& BuiltInHost::Hooks() {
  return state_->Hooks;
}

AutomationHandle BuiltInHost::Application() const {
  return state_->Application;
}

bool BuiltInHost::Visible() const {
  return state_->Visible;
}

std::vector<std::shared_ptr<Drawing>> BuiltInHost::Documents() const {
  std::vector<std::shared_ptr<Drawing>> drawings;
  for (const auto& document : state_->Documents) {
    drawings.push_back(document->Sheet);
  }
  return drawings;
}

std::shared_ptr<Drawing> BuiltInHost::ActiveDocument() const {
  return state_->Active == nullptr ? nullptr : state_->Active->Sheet;
}

void BuiltInHost::Activate(const std::shared_ptr<Drawing>& drawing) {
  if (const auto document = DocumentOf(*state_, drawing)) {
    ActivateDocument(*state_, document);
  }
}

void BuiltInHost::Close(const std::shared_ptr<Drawing>& drawing) {
  if (const auto document = DocumentOf(*state_, drawing)) {
    CloseDocument(*state_, document);
  }
}

AutomationHandle BuiltInHostAutomation::Create(const std::string& programIdentifier) {
  return RealHostFirst(programIdentifier, &AutomationService::Create, [this] {
    running_ = true;
    return host_.Application();
  });
}

AutomationHandle BuiltInHostAutomation::GetRunning(const std::string& programIdentifier) {
  return RealHostFirst(programIdentifier, &AutomationService::GetRunning, [this] {
    if (!running_) {
      throw RuntimeError(ErrorNumber::CannotCreateObject);
    }
    return host_.Application();
  });
}

AutomationHandle BuiltInHostAutomation::RealHostFirst(
    const std::string& programIdentifier,
    AutomationHandle (AutomationService::*reach)(const std::string&),
    const std::function<AutomationHandle()>& own) {
  if (programIdentifier != drawingHostIdentifier) {
    return (Next().*reach)(programIdentifier);
  }
  try {
    return (Next().*reach)(programIdentifier);
  } catch (const RuntimeError&) {
    return own();
  }
}

AutomationService& BuiltInHostAutomation::Next() const {
  if (next_ == nullptr) {
    throw RuntimeError(ErrorNumber::CannotCreateObject);
  }
  return *next_;
}

}  // namespace trelonit

#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "drawing/host/Drawing.h"
#include "platform/system/Services.h"

namespace trelonit {

/// What a window of the built-in drawing host hears of; each may be empty.
struct HostHooks {
  std::function<void(const std::shared_ptr<Drawing>&)> DocumentAdded;
  std::function<void(const std::shared_ptr<Drawing>&)> DocumentClosed;
  /// Another document became the active one.
  std::function<void(const std::shared_ptr<Drawing>&)> DocumentActivated;
  /// Runs after every single change, some thousand times an export: a window notes it and repaints
  /// later.
  std::function<void(const std::shared_ptr<Drawing>&)> Changed;
  std::function<void(const std::shared_ptr<Drawing>&)> ZoomExtents;
  std::function<void(bool)> VisibleChanged;
  /// The entities (places in the model space) that the user points at; without it, none.
  std::function<std::vector<std::size_t>(const std::shared_ptr<Drawing>&)> SelectOnScreen;
};

struct HostState;

/// A drawing program inside this one, driven by the member names of the real one. It keeps its
/// documents in memory; what is closed is gone, and objects of it raise an error from then on, as
/// all objects do once the host itself is gone. A change from a hook's own routine is not foreseen.
class BuiltInHost {
 public:
  explicit BuiltInHost(HostHooks hooks = {});
  ~BuiltInHost();
  BuiltInHost(const BuiltInHost&) = delete;
  BuiltInHost& operator=(const BuiltInHost&) = delete;

  HostHooks& Hooks();

  /// The one application object.
  AutomationHandle Application() const;

  /// What the automation said: an invisible host shows no window.
  bool Visible() const;
  /// In the order in which they were made. The drawings may be painted and their layers switched;
  /// nobody takes records out of them.
  std::vector<std::shared_ptr<Drawing>> Documents() const;
  /// Null without a document.
  std::shared_ptr<Drawing> ActiveDocument() const;

  // What a user does in a window. A drawing of another host, or a closed one, changes nothing.
  void Activate(const std::shared_ptr<Drawing>& drawing);
  void Close(const std::shared_ptr<Drawing>& drawing);

 private:
  std::shared_ptr<HostState> state_;
};

/// The program identifier that the built-in host answers to.
constexpr const char* drawingHostIdentifier = "AutoCAD.Application";

/// Hands out a built-in host under the drawing program's name where the next service has no such
/// program; other names go on to that service. The host runs from its first Create on, and each
/// further one gives the same.
class BuiltInHostAutomation : public AutomationService {
 public:
  /// Keeps references: host and next service outlive it. Without a next one other names raise 429.
  explicit BuiltInHostAutomation(BuiltInHost& host, AutomationService* next = nullptr)
      : host_(host), next_(next) {}

  AutomationHandle Create(const std::string& programIdentifier) override;
  AutomationHandle GetRunning(const std::string& programIdentifier) override;

 private:
  AutomationHandle RealHostFirst(const std::string& programIdentifier,
                                 AutomationHandle (AutomationService::*reach)(const std::string&),
                                 const std::function<AutomationHandle()>& own);
  AutomationService& Next() const;

  BuiltInHost& host_;
  AutomationService* next_;
  bool running_ = false;
};

}  // namespace trelonit

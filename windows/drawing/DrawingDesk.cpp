#include "windows/drawing/DrawingDesk.h"

#include <utility>

namespace trelonit {

DrawingDesk::DrawingDesk(AutomationService* next, SettingsService* settings)
    : automation_(host_, next), settings_(settings) {
  ConnectHost();
}

DrawingDesk::~DrawingDesk() {
  host_.Hooks() = {};
  delete window_;
}

void DrawingDesk::ConnectHost() {
  // A window that is open follows the host.
  const auto forward = [this](void (DrawingWindow::*act)(const std::shared_ptr<Drawing>&)) {
    return [this, act](const std::shared_ptr<Drawing>& drawing) {
      if (window_ != nullptr) {
        (window_->*act)(drawing);
      }
    };
  };
  HostHooks& hooks = host_.Hooks();
  hooks.DocumentAdded = forward(&DrawingWindow::Add);
  hooks.DocumentClosed = forward(&DrawingWindow::Remove);
  hooks.DocumentActivated = forward(&DrawingWindow::Activate);
  hooks.Changed = forward(&DrawingWindow::Renew);
  hooks.ZoomExtents = forward(&DrawingWindow::ZoomExtents);
  hooks.VisibleChanged = [this](bool visible) {
    if (!visible && window_ != nullptr) {
      window_->close();
    }
  };
}

void DrawingDesk::FillWindow() {
  // Each one that is added comes to the front, so the active one is looked up before.
  const std::shared_ptr<Drawing> active = host_.ActiveDocument();
  for (const std::shared_ptr<Drawing>& drawing : host_.Documents()) {
    window_->Add(drawing);
  }
  window_->Activate(active);
  window_->Activated = [this](const std::shared_ptr<Drawing>& drawing) { host_.Activate(drawing); };
  window_->CloseAsked = [this](const std::shared_ptr<Drawing>& drawing) { host_.Close(drawing); };
}

void DrawingDesk::ShowDrawings(QWidget* parent) {
  if (!host_.Visible() || host_.Documents().empty()) {
    return;
  }
  if (window_ != nullptr) {
    window_->raise();
    window_->activateWindow();
    return;
  }
  window_ = new DrawingWindow(parent, settings_);
  FillWindow();
  window_->ShowModal();
  delete window_;
}

}  // namespace trelonit

#pragma once

#include <QPointer>
#include <memory>

#include "drawing/host/BuiltInHost.h"
#include "windows/drawing/DrawingWindow.h"

namespace trelonit {

/// The built-in drawing host with its window.
class DrawingDesk {
 public:
  /// Other programs than the drawing host are asked of the next service, which outlives this.
  /// The settings keep the title block of the sheets, if there are any.
  explicit DrawingDesk(AutomationService* next = nullptr, SettingsService* settings = nullptr);
  ~DrawingDesk();
  DrawingDesk(const DrawingDesk&) = delete;
  DrawingDesk& operator=(const DrawingDesk&) = delete;

  AutomationService& Automation() { return automation_; }
  const BuiltInHost& Host() const { return host_; }

  /// Shows the drawings in front of all other windows until the user closes the window; the active
  /// one is in front. Drawings that the user leaves open come again with the next ones. Nothing
  /// happens while the host is invisible or has no drawing.
  void ShowDrawings(QWidget* parent);

 private:
  void ConnectHost();
  void FillWindow();

  BuiltInHost host_;
  BuiltInHostAutomation automation_;
  SettingsService* settings_;
  /// There while it is shown; its parent may end it too.
  QPointer<DrawingWindow> window_;
};

}  // namespace trelonit

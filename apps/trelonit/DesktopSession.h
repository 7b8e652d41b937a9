#pragma once

#include "apps/Program.h"
#include "resources/EmbeddedResources.h"
#include "windows/DesktopServices.h"
#include "windows/MainWindow.h"

namespace trelonit {

/// The program with the services of a desktop, and its main window.
class DesktopSession {
 public:
  DesktopSession();
  DesktopSession(const DesktopSession&) = delete;
  DesktopSession& operator=(const DesktopSession&) = delete;
  ~DesktopSession() = default;

  /// Loads the form (catalogue, defaults) and shows the main window.
  void Start();

 private:
  Program::Windows MakeWindows();
  /// Shows a filled form in a window of its own until the user closes it.
  template <class Window, class Form>
  std::function<void(Form&)> Modal() {
    // A hidden main window would hide its children.
    return [this](Form& form) {
      Window(form, window_ && window_->isVisible() ? window_.get() : nullptr).exec();
    };
  }

  DesktopMessages messages_;
  DesktopDialogs dialogs_;
  DesktopClipboard clipboard_;
  DesktopSettings settings_;
  NoRegistry registry_;
  NoAutomation automation_;
  DesktopShell shell_;
  SystemClock clock_;
  EmbeddedResources resources_;
  DiskFiles files_;
  Program program_;
  // Made once the form is loaded: the window shows what is there.
  std::unique_ptr<MainWindow> window_;
};

}  // namespace trelonit

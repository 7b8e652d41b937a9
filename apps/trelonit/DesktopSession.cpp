#include "apps/trelonit/DesktopSession.h"

#include <QApplication>

#include "windows/AboutWindow.h"
#include "windows/KoeffOfUseWindow.h"

namespace trelonit {

DesktopSession::DesktopSession()
    : program_({messages_, dialogs_, clipboard_, settings_, registry_, automation_, shell_, clock_,
                resources_, files_, DesktopNumberLocale(), FindProgramFolder()},
               MakeWindows()) {}

Program::Windows DesktopSession::MakeWindows() {
  return {.ShowKoeffOfUse =
              [this](frmKoeffOfUse& form) { KoeffOfUseWindow(form, window_.get()).exec(); },
          .ShowAbout = [this](frmAbout& form) { AboutWindow(form, window_.get()).exec(); },
          .EndProgram = [] { QApplication::quit(); }};
}

void DesktopSession::Start() {
  program_.Main().Form_Load();
  window_ = std::make_unique<MainWindow>(program_.Main(), settings_);
  window_->show();
}

}  // namespace trelonit

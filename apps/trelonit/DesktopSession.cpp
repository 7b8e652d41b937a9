#include "apps/trelonit/DesktopSession.h"

#include <QApplication>

#include "windows/AboutWindow.h"
#include "windows/DataManagerWindow.h"
#include "windows/KoeffOfUseWindow.h"
#include "windows/ParamertyWindow.h"
#include "windows/SearchWindow.h"
#include "windows/SteelWindow.h"

namespace trelonit {

DesktopSession::DesktopSession()
    : program_({messages_, dialogs_, clipboard_, settings_, registry_, automation_, shell_, clock_,
                resources_, files_, DesktopNumberLocale(), FindProgramFolder()},
               MakeWindows()) {}

Program::Windows DesktopSession::MakeWindows() {
  return {.ShowKoeffOfUse = Modal<KoeffOfUseWindow, frmKoeffOfUse>(),
          .ShowAbout = Modal<AboutWindow, frmAbout>(),
          .ShowSearch = Modal<SearchWindow, frmSearch>(),
          .ShowSteel = Modal<SteelWindow, frmSteel>(),
          .ShowParamerty = Modal<ParamertyWindow, frmParamerty>(),
          .ShowDataManager = Modal<DataManagerWindow, frmDataManager>(),
          .EndProgram = [] { QApplication::exit(0); }};
}

void DesktopSession::Start() {
  program_.Main().Form_Load();
  window_ = std::make_unique<MainWindow>(program_.Main(), settings_);
  window_->show();
}

}  // namespace trelonit

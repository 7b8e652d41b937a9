#include "apps/Program.h"

#include <utility>

namespace trelonit {

Program::Program(Services services, Windows windows)
    : services_(services),
      windows_(std::move(windows)),
      about_(services),
      main_(services, MakeOpeners()) {}

frmMain::Openers Program::MakeOpeners() {
  frmMain::Openers openers;
  openers.ShowKoeffOfUse = [this](const ResultLists& lists) {
    lastResults_ = lists;
    koeffOfUse_.Fill(lists);
    if (windows_.ShowKoeffOfUse) {
      windows_.ShowKoeffOfUse(koeffOfUse_);
    }
  };
  if (windows_.ShowAbout) {
    openers.ShowAbout = [this] {
      about_.Form_Load();
      windows_.ShowAbout(about_);
    };
  }
  openers.EndProgram = windows_.EndProgram;
  return openers;
}

}  // namespace trelonit

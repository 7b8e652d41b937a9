#pragma once

#include <functional>

#include "platform/Services.h"
#include "workstation/frmAbout.h"
#include "workstation/frmKoeffOfUse.h"
#include "workstation/frmMain.h"

namespace trelonit {

/// The composition root: owns the forms and hands each one what it opens. Which windows there are
/// to show them, if any, is up to the caller.
class Program {
 public:
  /// Shows a form that has been filled, until the user closes it.
  struct Windows {
    std::function<void(frmKoeffOfUse&)> ShowKoeffOfUse;
    std::function<void(frmAbout&)> ShowAbout;
    std::function<void()> EndProgram;
  };

  Program(Services services, Windows windows);

  frmMain& Main() { return main_; }
  /// The results of the last Calculate that came to its end; nothing before one did.
  const std::optional<ResultLists>& LastResults() const { return lastResults_; }

 private:
  frmMain::Openers MakeOpeners();

  Services services_;
  Windows windows_;
  std::optional<ResultLists> lastResults_;
  frmKoeffOfUse koeffOfUse_;
  frmAbout about_;
  frmMain main_;
};

}  // namespace trelonit

#pragma once

#include <functional>

#include "catalogue/frmDataManager.h"
#include "checks/frmParamerty.h"
#include "checks/frmSteel.h"
#include "platform/Services.h"
#include "workstation/frmAbout.h"
#include "workstation/frmKoeffOfUse.h"
#include "workstation/frmMain.h"
#include "workstation/frmSearch.h"

namespace trelonit {

/// The composition root: owns the forms and hands each one what it opens. Which windows there are
/// to show them, if any, is up to the caller.
class Program {
 public:
  /// Shows a form that has been filled, until the user closes it.
  struct Windows {
    std::function<void(frmKoeffOfUse&)> ShowKoeffOfUse;
    std::function<void(frmAbout&)> ShowAbout;
    std::function<void(frmSearch&)> ShowSearch;
    std::function<void(frmSteel&)> ShowSteel;
    std::function<void(frmParamerty&)> ShowParamerty;
    std::function<void(frmDataManager&)> ShowDataManager;
    /// The pieces of the report, in order.
    std::function<void(const std::vector<ReportPiece>&)> ShowOtchet;
    std::function<void()> EndProgram;
  };

  Program(Services services, Windows windows);

  frmMain& Main() { return main_; }
  /// The results of the last Calculate that came to its end; nothing before one did.
  const std::optional<ResultLists>& LastResults() const { return lastResults_; }
  /// What automatic selection proposed last; nothing before it did.
  const std::optional<SelectionProposal>& LastProposal() const { return lastProposal_; }

 private:
  frmMain::Openers MakeOpeners();
  bool OpenSearch(const SelectionProposal& proposal);

  Services services_;
  Windows windows_;
  std::optional<ResultLists> lastResults_;
  std::optional<SelectionProposal> lastProposal_;
  std::optional<ReportSnapshot> snapshot_;
  std::vector<ReportPiece> report_;
  frmKoeffOfUse koeffOfUse_;
  frmAbout about_;
  frmSearch search_;
  frmDataManager dataManager_;
  frmMain main_;
  // These two write to controls of the main form.
  frmSteel steel_;
  frmParamerty paramerty_;
};

}  // namespace trelonit

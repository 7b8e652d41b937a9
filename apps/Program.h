#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "catalogue/frmDataManager.h"
#include "checks/frmParamerty.h"
#include "checks/frmSteel.h"
#include "drawing/scheme/modACADExport.h"
#include "editor/associations/frmAssoc.h"
#include "editor/document/frmOtchetMain.h"
#include "platform/system/Services.h"
#include "variants/frmVariants.h"
#include "workstation/dialogs/frmAbout.h"
#include "workstation/dialogs/frmKoeffOfUse.h"
#include "workstation/dialogs/frmSearch.h"
#include "workstation/main/frmMain.h"
#include "workstation/results/TableFile.h"

namespace trelonit {

/// A piece of the report as the editor shows it.
LookPiece LookOf(const ReportPiece& piece);

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
    std::function<void(frmOtchetMain&)> ShowOtchet;
    std::function<void(frmVariants&)> ShowVariants;
    /// Beside the document window, which goes on.
    std::function<void(frmFind&)> ShowFind;
    std::function<void(frmDate&)> ShowDate;
    std::function<void(frmAssoc&)> ShowAssoc;
    /// Null where the program writes no spreadsheets.
    SpreadsheetWriter WriteSpreadsheet;
    /// After a drawing has been made: shows what the built-in drawing host holds.
    std::function<void()> ShowDrawings;
    /// The bytes of a PDF file with the document and the drawings of the design.
    std::function<std::string(const RichTextBox& document, const std::string& title,
                              const DrawnDesign& design)>
        PdfWithDrawings;
    /// An empty box for a document; without it documents are kept in memory.
    std::function<std::unique_ptr<RichTextBox>()> MakeRichText;
    /// Null where the machine has none. They outlive the program.
    CommonDialogs* Dialogs = nullptr;
    FileAssociations* Associations = nullptr;
    std::function<void()> EndProgram;
  };

  Program(const Services& services, Windows windows);

  frmMain& Main() { return main_; }
  frmVariants& Variants() { return variants_; }
  /// The results of the last Calculate that came to its end; nothing before one did.
  const std::optional<ResultLists>& LastResults() const { return lastResults_; }
  /// What automatic selection proposed last; nothing before it did.
  const std::optional<SelectionProposal>& LastProposal() const { return lastProposal_; }

  /// Opens the file that a command line names, quotes round it or not: a project in the main form,
  /// anything else in the document window, until the user closes it.
  void Open(const std::string& commandLine);

 private:
  frmMain::Openers MakeOpeners();
  /// Whether reports end with the second opinion is kept between runs.
  void RestoreAppendix();
  void OfferTableFiles();
  std::optional<SelectionProposal> OpenSearch(const SelectionOffer& offer);
  /// A document window as it opens, with an empty document.
  frmOtchetMain& NewOtchet(const std::string& commandLine);
  void DrawReported();
  DrawnDesign Reported() const;
  void ShowOtchet();
  void OpenDocument(const std::string& commandLine);

  Services services_;
  Windows windows_;
  std::optional<ResultLists> lastResults_;
  std::optional<SelectionProposal> lastProposal_;
  // The design of the last report, which its drawings show too.
  std::optional<Calculation> snapshot_;
  NoCommonDialogs noDialogs_;
  std::unique_ptr<RichTextBox> richText_;
  std::optional<frmOtchetMain> otchet_;
  // Draws the snapshot; goes with its document window.
  std::optional<ACADExport> export_;
  // There where the machine has associations.
  std::optional<frmAssoc> assoc_;
  frmKoeffOfUse koeffOfUse_;
  frmAbout about_;
  frmSearch search_;
  frmDataManager dataManager_;
  frmMain main_;
  // These two write to controls of the main form.
  frmSteel steel_;
  frmParamerty paramerty_;
  // Takes the project from the main form and gives it another one.
  frmVariants variants_;
};

}  // namespace trelonit

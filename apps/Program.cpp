#include "apps/Program.h"

#include <utility>

#include "editor/document/FileHandler.h"
#include "editor/document/MemoryRichTextBox.h"
#include "workstation/design/ProjectFile.h"

namespace trelonit {

namespace {

// The settings of reports.
constexpr const char* reportSection = "Report";
constexpr const char* appendixKey = "SecondOpinion";

/// A form is loaded, then shown until the user closes it; without a window for it there is no way
/// to it either.
template <class Form>
std::function<void()> Opener(const std::function<void(Form&)>& show, Form& form) {
  return show ? std::function<void()>([&show, &form] {
    form.Form_Load();
    show(form);
  })
              : std::function<void()>();
}

}  // namespace

LookPiece LookOf(const ReportPiece& piece) {
  LookPiece look{.Role = piece.Heading   ? ReportRole::Heading
                         : piece.Warning ? ReportRole::Warning
                                         : ReportRole::Line};
  for (const ReportSpan& span : piece.Spans) {
    look.Spans.push_back({.Text = span.Text, .Strong = span.Is != ReportSpan::Kind::Caption});
  }
  return look;
}

Program::Program(const Services& services, Windows windows)
    : services_(services),
      windows_(std::move(windows)),
      about_(services),
      dataManager_(services, windows_.EndProgram),
      main_(services, MakeOpeners()),
      steel_(services, {.lblStillName = main_.lblStillName,
                        .txtRy = main_.txtRy,
                        .txtNadegnost = main_.txtNadegnost,
                        .txtUsloviyaRabot = main_.txtUsloviyaRabot}),
      paramerty_(services, main_.Steel),
      variants_(services, main_) {
  RestoreAppendix();
  OfferTableFiles();
  if (windows_.Associations != nullptr) {
    assoc_.emplace(*windows_.Associations, services_.Messages);
  }
}

void Program::RestoreAppendix() {
  main_.ReportAppendix = services_.Settings.Get(reportSection, appendixKey, BooleanToText(false)) ==
                         BooleanToText(true);
  koeffOfUse_.mnuAppendix.SetChecked(main_.ReportAppendix);
  koeffOfUse_.AppendixChanged = [this](bool on) {
    main_.ReportAppendix = on;
    services_.Settings.Set(reportSection, appendixKey, BooleanToText(on));
  };
}

void Program::OfferTableFiles() {
  const auto asSpreadsheet = [this](const ResultTable& table) {
    SaveAsSpreadsheet(table, windows_.WriteSpreadsheet, services_);
  };
  koeffOfUse_.SetTableFiles(
      [this](const ResultTable& table) { SaveAsCsv(table, services_); },
      windows_.WriteSpreadsheet ? asSpreadsheet : std::function<void(const ResultTable&)>());
}

frmMain::Openers Program::MakeOpeners() {
  frmMain::Openers openers;
  openers.ShowKoeffOfUse = [this](const ResultLists& lists) {
    lastResults_ = lists;
    koeffOfUse_.Fill(lists);
    if (windows_.ShowKoeffOfUse) {
      windows_.ShowKoeffOfUse(koeffOfUse_);
    }
  };
  openers.ShowAbout = Opener(windows_.ShowAbout, about_);
  openers.ShowSteel = Opener(windows_.ShowSteel, steel_);
  openers.ShowParamerty = Opener(windows_.ShowParamerty, paramerty_);
  openers.ShowDataManager = Opener(windows_.ShowDataManager, dataManager_);
  if (windows_.ShowSearch) {
    openers.ShowSearch = [this](const SelectionOffer& offer) { return OpenSearch(offer); };
  }
  if (windows_.ShowOtchet) {
    openers.BeginOtchet = [this](const Calculation& snapshot) {
      snapshot_ = snapshot;
      NewOtchet({}).BeginReport();
    };
    openers.AppendOtchet = [this](const ReportPiece& piece) {
      otchet_->AppendReport(LookOf(piece));
    };
    openers.ShowOtchet = [this] { ShowOtchet(); };
  }
  if (windows_.ShowVariants) {
    openers.ShowVariants = [this] {
      if (variants_.Form_Load()) {
        windows_.ShowVariants(variants_);
        variants_.Form_Unload();
      }
    };
  }
  openers.EndProgram = windows_.EndProgram;
  return openers;
}

std::optional<SelectionProposal> Program::OpenSearch(const SelectionOffer& offer) {
  search_.Fill(offer, main_.imgProfileSec, main_.Model.Inputs.TreloType);
  windows_.ShowSearch(search_);
  lastProposal_ = search_.Shown();
  return search_.SearchApplied ? lastProposal_ : std::nullopt;
}

frmOtchetMain& Program::NewOtchet(const std::string& commandLine) {
  export_.reset();
  otchet_.reset();
  richText_ =
      windows_.MakeRichText ? windows_.MakeRichText() : std::make_unique<MemoryRichTextBox>();
  CommonDialogs& dialogs = windows_.Dialogs != nullptr ? *windows_.Dialogs : noDialogs_;
  // Before the first report there is nothing to draw.
  const auto drawable =
      snapshot_ ? std::function<void()>([this] { DrawReported(); }) : std::function<void()>();
  std::function<std::string(const RichTextBox&, const std::string&)> printable;
  if (snapshot_ && windows_.PdfWithDrawings) {
    printable = [this](const RichTextBox& document, const std::string& title) {
      return windows_.PdfWithDrawings(document, title, Reported());
    };
  }
  otchet_.emplace(
      services_, *richText_, dialogs,
      frmOtchetMain::Openers{
          .ShowFind = windows_.ShowFind,
          .ShowDate = windows_.ShowDate,
          .ShowAssoc = assoc_ ? Opener(windows_.ShowAssoc, *assoc_) : std::function<void()>(),
          .WhyNoAssoc =
              windows_.Associations != nullptr ? windows_.Associations->WhyNot() : std::string(),
          .ExportToDrawing = drawable,
          .PdfWithDrawings = printable},
      commandLine);
  if (snapshot_) {
    export_.emplace(services_.Automation, services_.Messages, services_.Locale, Reported(),
                    otchet_->SBPanels[frmOtchetMain::messagePanel]);
  }
  otchet_->Form_Load();
  return *otchet_;
}

DrawnDesign Program::Reported() const {
  return {snapshot_->TreloData, snapshot_->TreloResult, snapshot_->ElementSection};
}

void Program::DrawReported() {
  export_->mnuFileAutoCAD_Click();
  if (windows_.ShowDrawings) {
    windows_.ShowDrawings();
  }
}

void Program::ShowOtchet() {
  otchet_->EndReport();
  windows_.ShowOtchet(*otchet_);
}

void Program::Open(const std::string& commandLine) {
  const std::string name = LongPathName(commandLine);
  if (ExtensionOf(name) == projectExtension) {
    main_.OpenProject(name);
  } else {
    OpenDocument(commandLine);
  }
}

void Program::OpenDocument(const std::string& commandLine) {
  // The command line is handed over this once: a report made later must not give way to the file.
  frmOtchetMain& form = NewOtchet(commandLine);
  if (windows_.ShowOtchet) {
    windows_.ShowOtchet(form);
  }
}

}  // namespace trelonit

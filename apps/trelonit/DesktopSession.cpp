#include "apps/trelonit/DesktopSession.h"

#include <QApplication>
#include <QTimer>
#include <chrono>

#include "apps/DesignDrawing.h"
#include "platform/system/ProgramFolder.h"
#include "windows/dialogs/AboutWindow.h"
#include "windows/dialogs/DataManagerWindow.h"
#include "windows/dialogs/ParamertyWindow.h"
#include "windows/dialogs/SearchWindow.h"
#include "windows/dialogs/SteelWindow.h"
#include "windows/editor/AssocWindow.h"
#include "windows/editor/DateWindow.h"
#include "windows/help/HelpFile.h"
#include "windows/main/DocumentDesk.h"
#include "windows/office/OfficeWorkFolder.h"
#include "windows/results/KoeffOfUseWindow.h"
#include "windows/variants/VariantsWindow.h"
#include "workstation/results/XlsxTable.h"

namespace trelonit {

namespace {

/// What nobody waits for comes behind the first paint.
constexpr std::chrono::milliseconds tidyingDelay{200};

}  // namespace

DesktopSession::DesktopSession() : program_(Bundle(), MakeWindows()) {}

Services DesktopSession::Bundle() {
  return {messages_, dialogs_, clipboard_, settings_, machine_->Registry(),  drawings_.Automation(),
          shell_,    clock_,   resources_, files_,    DesktopNumberLocale(), FindProgramFolder()};
}

Program::Windows DesktopSession::MakeWindows() {
  return {
      .ShowKoeffOfUse = Modal<KoeffOfUseWindow, frmKoeffOfUse>(help_place::Results),
      .ShowAbout = Modal<AboutWindow, frmAbout>(help_place::About),
      .ShowSearch = Modal<SearchWindow, frmSearch>(help_place::Search),
      .ShowSteel = Modal<SteelWindow, frmSteel>(help_place::Steel),
      .ShowParamerty = Modal<ParamertyWindow, frmParamerty>(help_place::Parameters),
      .ShowDataManager = Modal<DataManagerWindow, frmDataManager>(help_place::Manager),
      .ShowOtchet = [this](frmOtchetMain& form) { ShowOtchet(form); },
      .ShowVariants = Modal<VariantsWindow, frmVariants>(help_place::Variants),
      .ShowFind = [this](frmFind& form) { otchet_->ShowFind(form); },
      .ShowDate = ModalOverDocument<DateWindow, frmDate>(help_place::Date),
      .ShowAssoc = ModalOverDocument<AssocWindow, frmAssoc>(help_place::Assoc),
      .WriteSpreadsheet = XlsxWriter(),
      .ShowDrawings = [this] { drawings_.ShowDrawings(otchet_.get()); },
      .PdfWithDrawings =
          [this](const RichTextBox& document, const std::string& title, const DrawnDesign& design) {
            return PdfWithDrawings(document, title, design);
          },
      .MakeRichText =
          [this] {
            auto box = std::make_unique<QtRichTextBox>();
            richText_ = box.get();
            return box;
          },
      .Dialogs = &documentDialogs_,
      .Associations = associations_.get(),
      .EndProgram = [] { QApplication::exit(0); }};
}

void DesktopSession::ShowOtchet(frmOtchetMain& form) {
  otchet_ = std::make_unique<OtchetWindow>(form, *richText_, Parent());
  otchet_->ShowModal();
  otchet_.reset();
}

std::string DesktopSession::PdfWithDrawings(const RichTextBox& document, const std::string& title,
                                            const DrawnDesign& design) {
  std::vector<std::shared_ptr<Drawing>> drawings;
  if (std::shared_ptr<Drawing> drawing = DrawingOf(design, messages_, DesktopNumberLocale())) {
    drawings.push_back(std::move(drawing));
  }
  const TitleBlockChoice block = LoadTitleBlock(settings_);
  return documentDialogs_.PdfWithDrawings(document, title, drawings,
                                          block.Shown ? std::optional(block.Block) : std::nullopt);
}

QWidget* DesktopSession::Parent() const {
  // A hidden main window would hide its children.
  return window_ && window_->isVisible() ? window_.get() : nullptr;
}

void DesktopSession::Start(const std::string& commandLine,
                           const std::function<void()>& beforeWindows) {
  program_.Main().Form_Load();
  document_.emplace(program_.Main(), Bundle(), StateFolder(UserStateFolder()));
  beforeWindows();
  window_ = std::make_unique<MainWindow>(program_.Main(), settings_);
  new DocumentDesk(*document_, *window_, settings_);
  window_->show();
  // There may be a file to copy, and folders of a killed session to remove.
  QTimer::singleShot(tidyingDelay, window_.get(), [] {
    PlaceHelpFile(InstalledHelpFile(ExecutableFolder()), FindProgramFolder());
    RemoveLeftWorkFolders();
  });
  // Once the events run: the document window waits for its end.
  QTimer::singleShot(0, window_.get(), [this, commandLine] { OpenFirst(commandLine); });
}

void DesktopSession::OpenFirst(const std::string& commandLine) {
  if (!document_->OfferRecovery() && !commandLine.empty()) {
    program_.Open(commandLine);
  }
}

}  // namespace trelonit

#pragma once

#include "apps/Program.h"
#include "apps/trelonit/Machine.h"
#include "resources/EmbeddedResources.h"
#include "windows/drawing/DrawingDesk.h"
#include "windows/editor/DocumentDialogs.h"
#include "windows/editor/OtchetWindow.h"
#include "windows/help/HelpKey.h"
#include "windows/help/HelpWindow.h"
#include "windows/main/MainWindow.h"
#include "windows/office/ConversionProgress.h"
#include "windows/office/OfficeAutomation.h"
#include "windows/services/DesktopServices.h"
#include "workstation/document/ProjectDocument.h"

namespace trelonit {

/// The program with the services of a desktop, and its main window.
class DesktopSession {
 public:
  DesktopSession();
  DesktopSession(const DesktopSession&) = delete;
  DesktopSession& operator=(const DesktopSession&) = delete;
  ~DesktopSession() = default;

  /// Loads the form (catalogue, defaults) and shows the main window; then opens the project or the
  /// document that the command line names, if any.
  void Start(
      const std::string& commandLine, const std::function<void()>& beforeWindows = [] {});

 private:
  Services Bundle();
  /// What a program that did not end has left comes first; then the file of the command line.
  void OpenFirst(const std::string& commandLine);
  Program::Windows MakeWindows();
  void ShowOtchet(frmOtchetMain& form);
  std::string PdfWithDrawings(const RichTextBox& document, const std::string& title,
                              const DrawnDesign& design);
  QWidget* Parent() const;
  /// Shows a filled form in a window of its own until the user closes it; F1 opens the page of
  /// the place.
  template <class Window, class Form>
  std::function<void(Form&)> Modal(const char* place) {
    return [this, place](Form& form) { Run<Window>(form, place, Parent()); };
  }
  /// The same over the document.
  template <class Window, class Form>
  std::function<void(Form&)> ModalOverDocument(const char* place) {
    return [this, place](Form& form) { Run<Window>(form, place, otchet_.get()); };
  }
  template <class Window, class Form>
  static void Run(Form& form, const char* place, QWidget* parent) {
    Window window(form, parent);
    SetHelpPlace(window, place);
    window.exec();
  }

  DesktopMessages messages_;
  DesktopDialogs dialogs_;
  DesktopClipboard clipboard_;
  DesktopSettings settings_;
  HelpViewer help_;
  HelpKey helpKey_{[this](const QString& place) { help_.OpenPlace(place); }};
  DesktopShell shell_{help_};
  SystemClock clock_;
  EmbeddedResources resources_;
  DiskFiles files_;
  OfficeAutomation office_{clipboard_, files_, {.Watch = ShowConversionProgress}};
  std::unique_ptr<Machine> machine_ = MakeMachine(office_);
  DrawingDesk drawings_{&machine_->Programs(), &settings_};
  std::unique_ptr<FileAssociations> associations_ = MakeAssociations(Bundle());
  DocumentDialogs documentDialogs_;
  Program program_;
  // The box of the present document; the program owns it.
  QtRichTextBox* richText_ = nullptr;
  // There while a document is shown.
  std::unique_ptr<OtchetWindow> otchet_;
  // Made once the form is loaded: the window shows what is there.
  std::optional<ProjectDocument> document_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace trelonit

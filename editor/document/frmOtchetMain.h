#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "editor/dialogs/ModCmnDlg.h"
#include "editor/dialogs/frmDate.h"
#include "editor/dialogs/frmFind.h"
#include "editor/document/EditorSettings.h"
#include "editor/document/FileHandler.h"
#include "editor/document/ReportLook.h"
#include "editor/document/RichTextBox.h"
#include "editor/undo/clsUndo.h"
#include "platform/forms/Controls.h"
#include "platform/system/Services.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

/// The document window: a small rich-text pad in which the calculation report opens.
class frmOtchetMain {
 public:
  /// How the form reaches what it opens. What is not there leaves its command disabled.
  struct Openers {
    /// Shows the form beside the document until the user closes it; it has been loaded.
    std::function<void(frmFind&)> ShowFind;
    /// Shows the form until the user closes it.
    std::function<void(frmDate&)> ShowDate;
    /// Shows which files open in the pad, until the user closes it.
    std::function<void()> ShowAssoc;
    /// Why the machine does not let the pad open files, in the user's language; empty where it
    /// does.
    std::string WhyNoAssoc = {};
    /// Draws the truss that the report was made from.
    std::function<void()> ExportToDrawing;
    /// The bytes of a PDF file with this title: the document, then the drawings of that truss.
    std::function<std::string(const RichTextBox& document, const std::string& title)>
        PdfWithDrawings = {};
  };

  /// An entry of a menu; without a state it is a separator.
  struct MenuItem {
    std::string Name;
    MenuEntry* Entry = nullptr;
    std::function<void()> Click;
    /// Whether the entry carries a check mark.
    bool Checkable = false;
  };
  struct Menu {
    std::string Caption;
    std::vector<MenuItem> Items;
  };

  /// Width of a line when nothing is wrapped, twips.
  static constexpr Long unwrappedMargin = 200000;
  /// Panels of the status bar.
  static constexpr Long messagePanel = 1;
  static constexpr Long caretPanel = 2;
  static constexpr Long changedPanel = 3;
  static constexpr Long sizePanel = 4;
  /// Places in the edit menu.
  enum EditIndex : Integer {
    editUndo = 0,
    editRedo = 1,
    editCut = 3,
    editCopy = 4,
    editPaste = 5,
    editDelete = 6,
    editSelectAll = 8,
    editSelectAbove = 9,
    editSelectBelow = 10,
    editDatestamp = 11,
    editFind = 12,
  };

  /// The box and the dialogs outlive the form. The command line names a document to open, or
  /// nothing.
  frmOtchetMain(Services services, RichTextBox& rtf, CommonDialogs& dialogs, Openers openers,
                std::string commandLine);
  frmOtchetMain(const frmOtchetMain&) = delete;
  frmOtchetMain& operator=(const frmOtchetMain&) = delete;
  ~frmOtchetMain();

  // --- the window (frmOtchetMain.cpp)
  void Form_Load();
  /// Opens the document of the command line the first time.
  void Form_Activate();
  /// Asks whether the changes are to be saved. False keeps the window open.
  bool Form_QueryUnload();
  std::vector<Menu> Menus();
  /// What the tool bar offers, in its order.
  std::vector<MenuItem> ToolButtons();

  void mnuEdit_Click(Integer Index);
  void mnuFormatWordwrap_Click();
  void mnuFormatFont_Click();
  void mnuFormatBackcolor_Click();
  void mnuFormatStats_Click();
  void mnuViewToolbar_Click();
  void mnuViewStatusbar_Click();
  void mnuFileAbout_Click();
  void PasteTimer_Timer();
  void Undo_StateChanged();
  /// Enables the entries that need a selection.
  void EditEnable();

  /// Every key before the box acts on it; 0 when the box must not get it.
  void RTF_KeyDown(Integer& KeyCode, Integer Shift);
  /// What the key handed on last is about to put in.
  void RTF_Typed(const std::string& text);
  void RTF_Change();
  void RTF_SelChange();
  /// A text that was composed, or dropped from elsewhere: one step of undo.
  void RTF_TextCommitted(const std::string& text);
  /// A file dropped on the document.
  void RTF_FileDropped(const std::string& name);

  // --- the calculation report (frmOtchetMain.cpp)
  /// Empties the text for a new report.
  void BeginReport();
  void AppendReport(const LookPiece& piece);
  /// Shows the report from its beginning.
  void EndReport();

  // --- documents (frmOtchetFiles.cpp)
  void mnuFileNew_Click();
  void mnuFileOpen_Click();
  void mnuFileSave_Click();
  void mnuFileSaveAs_Click();
  void mnuFileAutoCAD_Click();
  void mnuFilePdf_Click();
  void mnuFilePdfDrawings_Click();
  void mnuFileProperties_Click();
  void mnuFileAssoc_Click();
  void mnuFilePageSetup_Click();
  void mnuFilePrint_Click();
  void mnuFilePrintPreview_Click();
  void mnuFileExit_Click();

  /// Why "Связь с файлами" is disabled; empty where it is not, or where there is no such window.
  const std::string& WhyNoAssoc() const { return openers_.WhyNoAssoc; }
  /// The open file; empty where there is none.
  const std::string& FileName() const { return fileName_; }
  /// Whether the document differs from its file.
  bool Changed() const { return changed_; }

  Label Form;
  /// Place of the window, twips.
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
  /// The window covers the screen; its usual place is kept for the time after.
  bool Maximized = false;
  RichTextBox& RTF;
  clsUndo Undo;
  ControlState TB;
  ControlState SB;
  BoundedArray<Label> SBPanels{messagePanel, sizePanel};
  Timer PasteTimer;

  MenuEntry mnuFileNew;
  MenuEntry mnuFileOpen;
  MenuEntry mnuFileSave;
  MenuEntry mnuFileSaveAs;
  MenuEntry mnuFileAutoCAD;
  MenuEntry mnuFilePdf;
  MenuEntry mnuFilePdfDrawings;
  MenuEntry mnuFileProperties;
  MenuEntry mnuFileAssoc;
  MenuEntry mnuFilePageSetup;
  MenuEntry mnuFilePrint;
  MenuEntry mnuFilePrintPreview;
  MenuEntry mnuFileExit;
  BoundedArray<MenuEntry> mnuEdit{editUndo, editFind};
  MenuEntry mnuFormatWordwrap;
  MenuEntry mnuFormatFont;
  MenuEntry mnuFormatBackcolor;
  MenuEntry mnuFormatStats;
  MenuEntry mnuViewToolbar;
  MenuEntry mnuViewStatusbar;
  MenuEntry mnuFileAbout;
  frmFind Find;
  frmDate Date;
  /// Closes the window.
  std::function<void()> Unload;

 private:
  MenuItem Item(const char* name, MenuEntry& entry, void (frmOtchetMain::*click)(),
                bool checkable = false);
  MenuItem EditItem(EditIndex index);
  void ApplyWordwrap();
  void SelFont(const CharFormat& font);
  EditorSettingsWriter Settings() { return {services_.Settings, services_.Locale}; }
  void ShowCaret();
  void SetChanged(bool changed);
  void ShowStatistics();

  /// The save question. False where the user cancels or the saving fails.
  bool MayLeaveDocument();
  void NewDocument();
  /// What is put in next has the font chosen last.
  void EmptyText();
  /// False where the document could not be loaded; the present one is then untouched.
  bool LoadDocument(const std::string& name, DocumentFormat format);
  bool IsShortEnough(const std::string& name, std::uint64_t length);
  bool ReadDocument(const std::string& name, DocumentFormat format);
  bool ReadRichText(const std::string& name);
  /// These return whether the document is stored.
  bool SaveAFile();
  bool SaveAs();
  bool StoreDocument(const std::string& name, DocumentFormat format);
  /// Pages beside the document, which keeps its name: they cannot be opened again.
  bool StorePages(const std::string& name, const std::string& pdf);
  /// Asks for a name and stores the pages that are made under that title.
  void ExportPages(const std::string& handler,
                   const std::function<std::optional<std::string>(const std::string& title)>& make);
  bool WriteDocument(const std::string& name, DocumentFormat format);
  DocumentFormat PresentFormat() const;
  bool MayReplace(const std::string& name);
  void ShowSize(std::uint64_t bytes);

  Services services_;
  CommonDialogs& dialogs_;
  Openers openers_;
  std::string commandLine_;
  bool loadPending_ = false;
  bool changed_ = false;
  bool storedMaximized_ = false;
  std::string fileName_;
  CharFormat font_;
  std::optional<ReportTypist> typist_;
};

}  // namespace trelonit

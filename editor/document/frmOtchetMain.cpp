#include "editor/document/frmOtchetMain.h"

#include <utility>

#include "platform/errors/Guard.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit {

namespace {

constexpr const char* windowTitle = "Vestra";
constexpr const char* aboutTitle = "Vestra - блокнот отчета расчетов";
constexpr int pasteInterval = 100;  // milliseconds

}  // namespace

frmOtchetMain::frmOtchetMain(Services services, RichTextBox& rtf, CommonDialogs& dialogs,
                             Openers openers, std::string commandLine)
    : RTF(rtf),
      Undo(services.Clipboard),
      Find(rtf, Undo, services.Messages, services.Settings, editorProgramTitle),
      Date(Undo, services.Clock),
      services_(std::move(services)),
      dialogs_(dialogs),
      openers_(std::move(openers)),
      commandLine_(std::move(commandLine)) {
  const auto caption = [](MenuEntry& entry, const char* text) { entry.SetCaption(text); };
  caption(mnuFileNew, "&New");
  caption(mnuFileOpen, "&Open");
  caption(mnuFileSave, "&Save");
  caption(mnuFileSaveAs, "Save &As");
  caption(mnuFileAutoCAD, "Вывести в AutoCAD");
  caption(mnuFilePdf, "Экспорт в PDF");
  caption(mnuFilePdfDrawings, "Экспорт в PDF с чертежами");
  caption(mnuFileProperties, "Properties");
  caption(mnuFileAssoc, "Связь с файлами");
  caption(mnuFilePageSetup, "Page Setup");
  caption(mnuFilePrint, "Print");
  caption(mnuFilePrintPreview, "Предварительный просмотр");
  caption(mnuFileExit, "&Exit");
  caption(mnuEdit[editUndo], "&Undo");
  caption(mnuEdit[editRedo], "&Redo");
  caption(mnuEdit[editCut], "Cut");
  caption(mnuEdit[editCopy], "Copy");
  caption(mnuEdit[editPaste], "Paste");
  caption(mnuEdit[editDelete], "Delete");
  caption(mnuEdit[editSelectAll], "Select All");
  caption(mnuEdit[editSelectAbove], "Select Above");
  caption(mnuEdit[editSelectBelow], "Select Below");
  caption(mnuEdit[editDatestamp], "Datestamp");
  caption(mnuEdit[editFind], "Find and Replace");
  caption(mnuFormatWordwrap, "Wordwrap");
  caption(mnuFormatFont, "Font");
  caption(mnuFormatBackcolor, "Backcolor");
  caption(mnuFormatStats, "Document Statistics");
  caption(mnuViewToolbar, "Toolbar");
  caption(mnuViewStatusbar, "Statusbar");
  caption(mnuFileAbout, "About");
  mnuFileAutoCAD.SetEnabled(static_cast<bool>(openers_.ExportToDrawing));
  mnuFilePdfDrawings.SetEnabled(static_cast<bool>(openers_.PdfWithDrawings));
  mnuFileAssoc.SetEnabled(openers_.ShowAssoc && openers_.WhyNoAssoc.empty());
  mnuEdit[editDatestamp].SetEnabled(static_cast<bool>(openers_.ShowDate));
  mnuEdit[editFind].SetEnabled(static_cast<bool>(openers_.ShowFind));
}

frmOtchetMain::~frmOtchetMain() {
  RTF.Change = nullptr;
}

void frmOtchetMain::Form_Load() {
  Guard(services_.Messages, "Form_Load", [this] {
    loadPending_ = true;
    Form.SetCaption(windowTitle);
    const EditorSettings settings = LoadEditorSettings(services_.Settings, services_.Locale);
    Left = settings.MainLeft;
    Top = settings.MainTop;
    Width = settings.MainWidth;
    Height = settings.MainHeight;
    Maximized = settings.MainMaximized;
    storedMaximized_ = Maximized;
    RTF.SetBackColor(settings.Backcolor);
    mnuViewStatusbar.SetChecked(settings.Statusbar);
    mnuViewToolbar.SetChecked(settings.Toolbar);
    mnuFormatWordwrap.SetChecked(settings.Wordwrap);
    SB.SetVisible(settings.Statusbar);
    TB.SetVisible(settings.Toolbar);
    ApplyWordwrap();
    Undo.SetRichBox(&RTF);
    Undo.StateChanged = [this] { Undo_StateChanged(); };
    RTF.Change = [this] { RTF_Change(); };
    SelFont(settings.Font);
    PasteTimer.SetInterval(pasteInterval);
    NewDocument();
    Form.SetCaption(windowTitle);
    EditEnable();
    PasteTimer_Timer();
  });
}

void frmOtchetMain::Form_Activate() {
  if (!loadPending_) {
    return;
  }
  loadPending_ = false;
  Guard(services_.Messages, "Form_Activate", [this] {
    const std::string name = LongPathName(commandLine_);
    if (!name.empty()) {
      LoadDocument(name, FormatOf(name));
    }
  });
}

bool frmOtchetMain::Form_QueryUnload() {
  bool mayClose = false;
  Guard(services_.Messages, "Form_QueryUnload", [&] {
    mayClose = MayLeaveDocument();
    if (!mayClose) {
      return;
    }
    EditorSettingsWriter settings = Settings();
    settings.Write("Wordwrap", mnuFormatWordwrap.Checked());
    settings.Write("Statusbar", mnuViewStatusbar.Checked());
    settings.Write("Toolbar", mnuViewToolbar.Checked());
    settings.Write("MainLeft", Left);
    settings.Write("MainTop", Top);
    settings.Write("MainWidth", Width);
    settings.Write("MainHeight", Height);
    if (Maximized != storedMaximized_) {
      settings.Write("MainMaximized", Maximized);
      storedMaximized_ = Maximized;
    }
  });
  return mayClose;
}

// Menus --------------------------------------------------------------------------------------

frmOtchetMain::MenuItem frmOtchetMain::Item(const char* name, MenuEntry& entry,
                                            void (frmOtchetMain::*click)(), bool checkable) {
  return {.Name = name,
          .Entry = &entry,
          .Click = [this, click] { (this->*click)(); },
          .Checkable = checkable};
}

frmOtchetMain::MenuItem frmOtchetMain::EditItem(EditIndex index) {
  return {.Name = "mnuEdit" + std::to_string(index),
          .Entry = &mnuEdit[index],
          .Click = [this, index] { mnuEdit_Click(index); }};
}

std::vector<frmOtchetMain::Menu> frmOtchetMain::Menus() {
  using Self = frmOtchetMain;
  const MenuItem separator;
  return {
      {"&File",
       {Item("mnuFileNew", mnuFileNew, &Self::mnuFileNew_Click),
        Item("mnuFileOpen", mnuFileOpen, &Self::mnuFileOpen_Click),
        Item("mnuFileSave", mnuFileSave, &Self::mnuFileSave_Click),
        Item("mnuFileSaveAs", mnuFileSaveAs, &Self::mnuFileSaveAs_Click), separator,
        Item("mnuFileAutoCAD", mnuFileAutoCAD, &Self::mnuFileAutoCAD_Click),
        Item("mnuFilePdf", mnuFilePdf, &Self::mnuFilePdf_Click),
        Item("mnuFilePdfDrawings", mnuFilePdfDrawings, &Self::mnuFilePdfDrawings_Click), separator,
        Item("mnuFileProperties", mnuFileProperties, &Self::mnuFileProperties_Click),
        Item("mnuFileAssoc", mnuFileAssoc, &Self::mnuFileAssoc_Click), separator,
        Item("mnuFilePageSetup", mnuFilePageSetup, &Self::mnuFilePageSetup_Click),
        Item("mnuFilePrintPreview", mnuFilePrintPreview, &Self::mnuFilePrintPreview_Click),
        Item("mnuFilePrint", mnuFilePrint, &Self::mnuFilePrint_Click), separator,
        Item("mnuFileExit", mnuFileExit, &Self::mnuFileExit_Click)}},
      {"&Edit",
       {EditItem(editUndo), EditItem(editRedo), separator, EditItem(editCut), EditItem(editCopy),
        EditItem(editPaste), EditItem(editDelete), separator, EditItem(editSelectAll),
        EditItem(editSelectAbove), EditItem(editSelectBelow), EditItem(editDatestamp),
        EditItem(editFind)}},
      {"F&ormat",
       {Item("mnuFormatWordwrap", mnuFormatWordwrap, &Self::mnuFormatWordwrap_Click, true),
        Item("mnuFormatFont", mnuFormatFont, &Self::mnuFormatFont_Click),
        Item("mnuFormatBackcolor", mnuFormatBackcolor, &Self::mnuFormatBackcolor_Click),
        Item("mnuFormatStats", mnuFormatStats, &Self::mnuFormatStats_Click)}},
      {"&View",
       {Item("mnuViewToolbar", mnuViewToolbar, &Self::mnuViewToolbar_Click, true),
        Item("mnuViewStatusbar", mnuViewStatusbar, &Self::mnuViewStatusbar_Click, true)}},
      {"&Help", {Item("mnuFileAbout", mnuFileAbout, &Self::mnuFileAbout_Click)}},
  };
}

std::vector<frmOtchetMain::MenuItem> frmOtchetMain::ToolButtons() {
  using Self = frmOtchetMain;
  const MenuItem separator;
  return {Item("mnuFileNew", mnuFileNew, &Self::mnuFileNew_Click),
          Item("mnuFileOpen", mnuFileOpen, &Self::mnuFileOpen_Click),
          Item("mnuFileSave", mnuFileSave, &Self::mnuFileSave_Click),
          separator,
          Item("mnuFilePrint", mnuFilePrint, &Self::mnuFilePrint_Click),
          Item("mnuFilePrintPreview", mnuFilePrintPreview, &Self::mnuFilePrintPreview_Click),
          separator,
          EditItem(editCut),
          EditItem(editCopy),
          EditItem(editPaste),
          EditItem(editDelete),
          separator,
          EditItem(editUndo),
          EditItem(editRedo),
          separator,
          EditItem(editFind),
          EditItem(editDatestamp),
          separator,
          Item("mnuFileAutoCAD", mnuFileAutoCAD, &Self::mnuFileAutoCAD_Click)};
}

void frmOtchetMain::mnuEdit_Click(Integer Index) {
  Guard(services_.Messages, "mnuEdit_Click", [&] {
    switch (Index) {
      case editUndo:
        Undo.Undo();
        break;
      case editRedo:
        Undo.Redo();
        break;
      case editCut:
        Undo.Cut();
        break;
      case editCopy:
        Undo.Copy();
        break;
      case editPaste:
        Undo.Paste();
        break;
      case editDelete:
        Undo.Delete();
        break;
      case editSelectAll:
        Undo.SelectAll();
        break;
      case editSelectAbove:
        Undo.SelectAbove();
        break;
      case editSelectBelow:
        Undo.SelectBelow();
        break;
      case editDatestamp:
        if (openers_.ShowDate) {
          Date.Form_Load();
          openers_.ShowDate(Date);
        }
        break;
      case editFind:
        if (openers_.ShowFind) {
          // A window that stands open keeps its history and place; it comes to the front.
          if (!Find.Loaded()) {
            Find.Form_Load();
          }
          openers_.ShowFind(Find);
        }
        break;
      default:
        break;  // the separators
    }
  });
}

void frmOtchetMain::ApplyWordwrap() {
  RTF.SetRightMargin(mnuFormatWordwrap.Checked() ? 0 : unwrappedMargin);
}

void frmOtchetMain::SelFont(const CharFormat& font) {
  font_ = font;
  RTF.SetSelFormat(font);
}

void frmOtchetMain::mnuFormatWordwrap_Click() {
  Guard(services_.Messages, "mnuFormatWordwrap_Click", [this] {
    mnuFormatWordwrap.SetChecked(!mnuFormatWordwrap.Checked());
    Settings().Write("Wordwrap", mnuFormatWordwrap.Checked());
    ApplyWordwrap();
  });
}

void frmOtchetMain::mnuFormatFont_Click() {
  Guard(services_.Messages, "mnuFormatFont_Click", [this] {
    if (const std::optional<CharFormat> chosen = dialogs_.ShowFont(RTF.SelFormat())) {
      SelFont(*chosen);
      Settings().WriteFont(*chosen);
    }
  });
}

void frmOtchetMain::mnuFormatBackcolor_Click() {
  Guard(services_.Messages, "mnuFormatBackcolor_Click", [this] {
    if (const std::optional<Color> chosen = dialogs_.ShowColor(RTF.BackColor())) {
      RTF.SetBackColor(*chosen);
      Settings().Write("Backcolor", static_cast<double>(*chosen));
    }
  });
}

void frmOtchetMain::mnuFormatStats_Click() {
  Guard(services_.Messages, "mnuFormatStats_Click", [this] { ShowStatistics(); });
}

void frmOtchetMain::mnuFileProperties_Click() {
  Guard(services_.Messages, "mnuFileProperties_Click", [this] { ShowStatistics(); });
}

void frmOtchetMain::ShowStatistics() {
  services_.Messages.Show({.Title = editorProgramTitle,
                           .Text = StatisticsText(RTF, fileName_, services_.Locale),
                           .Style = MessageStyle::Information});
}

void frmOtchetMain::mnuViewToolbar_Click() {
  Guard(services_.Messages, "mnuViewToolbar_Click", [this] {
    mnuViewToolbar.SetChecked(!mnuViewToolbar.Checked());
    Settings().Write("Toolbar", mnuViewToolbar.Checked());
    TB.SetVisible(mnuViewToolbar.Checked());
  });
}

void frmOtchetMain::mnuViewStatusbar_Click() {
  Guard(services_.Messages, "mnuViewStatusbar_Click", [this] {
    mnuViewStatusbar.SetChecked(!mnuViewStatusbar.Checked());
    Settings().Write("Statusbar", mnuViewStatusbar.Checked());
    SB.SetVisible(mnuViewStatusbar.Checked());
  });
}

void frmOtchetMain::mnuFileAbout_Click() {
  services_.Messages.Show(
      {.Title = aboutTitle,
       .Text = std::string(aboutTitle) +
               "\n\nПоказывает отчеты о расчете ферм, правит, сохраняет и печатает их.\n"
               "Открывает простой текст (*.txt), текст с оформлением (*.rtf)\n"
               "и документы Word (*.doc).",
       .Style = MessageStyle::Information});
}

// States -------------------------------------------------------------------------------------

void frmOtchetMain::PasteTimer_Timer() {
  mnuEdit[editPaste].SetEnabled(services_.Clipboard.HasText());
}

void frmOtchetMain::Undo_StateChanged() {
  mnuEdit[editUndo].SetEnabled(Undo.canUndo());
  mnuEdit[editRedo].SetEnabled(Undo.canRedo());
}

void frmOtchetMain::EditEnable() {
  const bool selected = RTF.SelLength() > 0;
  for (const EditIndex index : {editCut, editCopy, editDelete}) {
    mnuEdit[index].SetEnabled(selected);
  }
}

void frmOtchetMain::ShowCaret() {
  const Long caret = RTF.SelStart();
  SBPanels[caretPanel].SetCaption("Строка " + std::to_string(RTF.LineOf(caret) + 1) + ", столбец " +
                                  std::to_string(caret - RTF.LineSpan(caret).Start + 1));
}

void frmOtchetMain::SetChanged(bool changed) {
  changed_ = changed;
  SBPanels[changedPanel].SetCaption(changed ? "Изменен" : "");
}

void frmOtchetMain::RTF_KeyDown(Integer& KeyCode, Integer Shift) {
  const bool handled =
      Guard(services_.Messages, "RTF_KeyDown", [&] { Undo.RichBox_KeyDown(KeyCode, Shift); });
  if (!handled) {
    KeyCode = 0;
  }
}

void frmOtchetMain::RTF_Typed(const std::string& text) {
  Undo.RichBox_Typed(text);
}

void frmOtchetMain::RTF_Change() {
  SetChanged(true);
  Undo.RichBox_Change();
}

void frmOtchetMain::RTF_SelChange() {
  EditEnable();
  ShowCaret();
}

void frmOtchetMain::RTF_TextCommitted(const std::string& text) {
  Guard(services_.Messages, "RTF_TextCommitted", [&] { Undo.InsertText(text); });
}

// The report ---------------------------------------------------------------------------------

void frmOtchetMain::BeginReport() {
  NewDocument();
  Form.SetCaption(windowTitle);
  Undo.SetRichEditing(true);
  typist_.emplace(
      RTF, [this](const std::string& text) { Undo.InsertText(text); }, font_);
}

void frmOtchetMain::AppendReport(const LookPiece& piece) {
  if (typist_) {
    typist_->Append(piece);
  }
}

void frmOtchetMain::EndReport() {
  typist_.reset();
  RTF.SetSelStart(0);
  RTF_SelChange();
}

}  // namespace trelonit

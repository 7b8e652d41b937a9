// The file commands of the document window.

#include <string_view>

#include "editor/document/frmOtchetMain.h"
#include "editor/rtf/RtfHealth.h"
#include "platform/errors/Guard.h"
#include "platform/errors/RuntimeError.h"
#include "platform/files/FileBytes.h"
#include "platform/files/OverwriteQuestion.h"

namespace trelonit {

namespace {

/// From this length on the caret goes to the end and back once, by which a box takes in all of a
/// long text at once.
constexpr std::uint64_t longText = 100000;  // bytes

/// Whatever kind is chosen: a name that ends so asks for pages.
constexpr std::string_view pdfExtension = "pdf";

/// The kind that the save dialog begins with.
Long KindOf(DocumentFormat format) {
  switch (format) {
    case DocumentFormat::RichText:
      return richTextKind;
    case DocumentFormat::Word:
      return wordKind;
    case DocumentFormat::PlainText:
      break;
  }
  return plainTextKind;
}

Message WordFailure() {
  return {.Text = "Error converting Word Document", .Style = MessageStyle::Critical};
}

}  // namespace

bool frmOtchetMain::MayLeaveDocument() {
  // A replace-all lets events in; it must not go on in another document.
  if (Find.Replacing()) {
    return false;
  }
  if (!changed_) {
    return true;
  }
  switch (services_.Messages.Show(
      {.Text = "The current file has changed. Do you wish to save changes ?",
       .Style = MessageStyle::QuestionYesNoCancel})) {
    case MessageAnswer::Yes:
      return SaveAFile();
    case MessageAnswer::No:
      return true;
    default:
      return false;
  }
}

// New, open ----------------------------------------------------------------------------------

void frmOtchetMain::mnuFileNew_Click() {
  Guard(services_.Messages, "mnuFileNew_Click", [this] {
    if (MayLeaveDocument()) {
      NewDocument();
    }
  });
}

void frmOtchetMain::NewDocument() {
  fileName_.clear();
  Form.SetCaption("Untitled.txt");
  SBPanels[messagePanel].SetCaption("File not saved");
  EmptyText();
  RTF.SetEnabled(true);
  Undo.SetRichEditing(false);
  Undo.Reset();
  SetChanged(false);
  ShowSize(0);
  RTF_SelChange();
}

void frmOtchetMain::EmptyText() {
  RTF.SetText("");
  // The font may have been chosen for a part of the text before.
  RTF.SetSelFormat(font_);
}

void frmOtchetMain::mnuFileOpen_Click() {
  Guard(services_.Messages, "mnuFileOpen_Click", [this] {
    if (!MayLeaveDocument()) {
      return;
    }
    // All files at first: the extension tells the format then.
    const FileChoice chosen = dialogs_.ShowOpen({.Name = {}, .FilterIndex = allFilesKind});
    if (!chosen.Name.empty()) {
      LoadDocument(chosen.Name, FormatOf(chosen.FilterIndex, chosen.Name));
    }
  });
}

void frmOtchetMain::RTF_FileDropped(const std::string& name) {
  Guard(services_.Messages, "RTF_FileDropped", [&] {
    if (MayLeaveDocument()) {
      LoadDocument(name, FormatOf(name));
    }
  });
}

bool frmOtchetMain::LoadDocument(const std::string& name, DocumentFormat format) {
  Label& message = SBPanels[messagePanel];
  const std::string before = message.Caption();
  message.SetCaption("Loading file....");
  bool loaded = false;
  Guard(services_.Messages, "LoadDocument", [&] {
    const std::uint64_t length = services_.Files.FileLength(name);
    loaded = IsShortEnough(name, length) && ReadDocument(name, format);
    if (!loaded) {
      return;
    }
    if (length > longText) {
      const UpdateLock lock(RTF);
      RTF.SetSelStart(RTF.TextLength());
      RTF.SetSelStart(0);
    }
    fileName_ = name;
    Form.SetCaption(BareName(name));
    Undo.SetRichEditing(format != DocumentFormat::PlainText);
    Undo.Reset();
    SetChanged(false);
    ShowSize(length);
    RTF.SetEnabled(true);
    RTF_SelChange();
  });
  message.SetCaption(loaded ? name : before);
  return loaded;
}

bool frmOtchetMain::IsShortEnough(const std::string& name, std::uint64_t length) {
  if (length <= longestDocument) {
    return true;
  }
  services_.Messages.Show(
      {.Text = "Файл слишком велик для редактора: " + SizeText(length, services_.Locale) +
               ", наибольший размер " + SizeText(longestDocument, services_.Locale) + ".\n" + name,
       .Style = MessageStyle::Exclamation});
  return false;
}

bool frmOtchetMain::ReadDocument(const std::string& name, DocumentFormat format) {
  switch (format) {
    case DocumentFormat::PlainText: {
      const std::string text = ReadPlainText(services_.Files, name);
      EmptyText();
      RTF.SetText(text);
      return true;
    }
    case DocumentFormat::RichText:
      return ReadRichText(name);
    case DocumentFormat::Word:
      break;
  }
  if (!PassOver([&] { ReadWordDocument(services_, name, RTF); })) {
    services_.Messages.Show(WordFailure());
    return false;
  }
  return true;
}

bool frmOtchetMain::ReadRichText(const std::string& name) {
  const std::string bytes = ReadBytes(services_.Files, name);
  if (!bytes.empty() && !BeginsAsRtf(bytes)) {
    services_.Messages.Show({.Text = "Файл не содержит текста в формате RTF.\n" + name,
                             .Style = MessageStyle::Exclamation});
    return false;
  }
  if (!bytes.empty() && !IsWholeRtf(bytes) &&
      services_.Messages.Show({.Text = "Файл поврежден или записан не до конца. Открыть то, что "
                                       "удалось прочитать ?\n" +
                                       name,
                               .Style = MessageStyle::QuestionYesNo}) != MessageAnswer::Yes) {
    return false;
  }
  RTF.SetTextRTF(bytes);
  return true;
}

// Save ---------------------------------------------------------------------------------------

void frmOtchetMain::mnuFileSave_Click() {
  SaveAFile();
}

void frmOtchetMain::mnuFileSaveAs_Click() {
  SaveAs();
}

bool frmOtchetMain::SaveAFile() {
  if (!HasPath(fileName_)) {
    return SaveAs();
  }
  const DocumentFormat format = FormatOf(fileName_);
  if (format != DocumentFormat::PlainText) {
    const std::string kind = format == DocumentFormat::RichText ? "rich text" : "document";
    const MessageAnswer answer =
        services_.Messages.Show({.Text = "Any " + kind +
                                         " formatting in this file will be lost.\n"
                                         "Do you wish to save this file using a different name ?",
                                 .Style = MessageStyle::QuestionYesNoCancel});
    if (answer == MessageAnswer::Yes) {
      return SaveAs();
    }
    if (answer != MessageAnswer::No) {
      return false;
    }
  }
  // Intended, whatever the extension says: formatted text is written by Save As alone, which is
  // why the user has been warned.
  return StoreDocument(fileName_, DocumentFormat::PlainText);
}

bool frmOtchetMain::SaveAs() {
  bool saved = false;
  Guard(services_.Messages, "mnuFileSaveAs_Click", [&] {
    FileChoice choice{.Name = fileName_, .FilterIndex = KindOf(PresentFormat())};
    for (;;) {
      choice = dialogs_.ShowSave(choice);
      if (choice.Name.empty()) {
        return;
      }
      const std::optional<std::string> pdf = ExtensionOf(choice.Name) == pdfExtension
                                                 ? dialogs_.PdfOf(RTF, BareName(choice.Name))
                                                 : std::nullopt;
      if (!pdf) {
        choice.Name = NameToSave(choice.Name, choice.FilterIndex);
      }
      if (MayReplace(choice.Name)) {
        saved = pdf ? StorePages(choice.Name, *pdf)
                    : StoreDocument(choice.Name, FormatOf(choice.FilterIndex, choice.Name));
        return;
      }
    }
  });
  return saved;
}

DocumentFormat frmOtchetMain::PresentFormat() const {
  if (!fileName_.empty()) {
    return FormatOf(fileName_);
  }
  return Undo.RichEditing() ? DocumentFormat::RichText : DocumentFormat::PlainText;
}

bool frmOtchetMain::MayReplace(const std::string& name) {
  return name == fileName_ || !services_.Files.FileExists(name) || MayOverwrite(services_.Messages);
}

bool frmOtchetMain::StoreDocument(const std::string& name, DocumentFormat format) {
  bool stored = false;
  Guard(services_.Messages, "SaveAFile", [&] {
    stored = WriteDocument(name, format);
    if (stored) {
      fileName_ = name;
      Form.SetCaption(BareName(name));
      SBPanels[messagePanel].SetCaption(name);
      SetChanged(false);
      ShowSize(services_.Files.FileLength(name));
    }
  });
  return stored;
}

bool frmOtchetMain::StorePages(const std::string& name, const std::string& pdf) {
  return Guard(services_.Messages, "SaveAFile", [&] {
    services_.Files.ReplaceFile(name, pdf);
    SBPanels[messagePanel].SetCaption(name);
    SetChanged(false);
    ShowSize(pdf.size());
  });
}

void frmOtchetMain::ExportPages(
    const std::string& handler,
    const std::function<std::optional<std::string>(const std::string& title)>& make) {
  Guard(services_.Messages, handler, [&] {
    std::string name = fileName_.empty() ? "Отчет.pdf" : fileName_;
    if (ExtensionOf(name) != pdfExtension) {
      name = NameToSave(name, plainTextKind);
      name = name.substr(0, name.size() - ExtensionOf(name).size()) + std::string(pdfExtension);
    }
    do {
      name = dialogs_.ShowSavePdf(name);
      if (name.empty()) {
        return;
      }
    } while (services_.Files.FileExists(name) && !MayOverwrite(services_.Messages));
    if (const std::optional<std::string> pdf = make(BareName(name))) {
      services_.Files.ReplaceFile(name, *pdf);
      SBPanels[messagePanel].SetCaption(name);
    }
  });
}

void frmOtchetMain::mnuFilePdf_Click() {
  ExportPages("mnuFilePdf_Click",
              [this](const std::string& title) { return dialogs_.PdfOf(RTF, title); });
}

void frmOtchetMain::mnuFilePdfDrawings_Click() {
  if (openers_.PdfWithDrawings) {
    ExportPages("mnuFilePdfDrawings_Click", [this](const std::string& title) {
      return std::optional(openers_.PdfWithDrawings(RTF, title));
    });
  }
}

bool frmOtchetMain::WriteDocument(const std::string& name, DocumentFormat format) {
  switch (format) {
    case DocumentFormat::PlainText:
      WritePlainText(services_.Files, name, RTF.Text());
      return true;
    case DocumentFormat::RichText:
      services_.Files.ReplaceFile(name, RTF.TextRTF());
      return true;
    case DocumentFormat::Word:
      break;
  }
  if (!PassOver([&] { WriteWordDocument(services_, name, RTF); })) {
    services_.Messages.Show(WordFailure());
    return false;
  }
  return true;
}

// Properties, print, the rest ----------------------------------------------------------------

void frmOtchetMain::ShowSize(std::uint64_t bytes) {
  SBPanels[sizePanel].SetCaption(SizeText(bytes, services_.Locale));
}

void frmOtchetMain::mnuFilePageSetup_Click() {
  Guard(services_.Messages, "mnuFilePageSetup_Click", [this] { dialogs_.PageSetup(); });
}

void frmOtchetMain::mnuFilePrint_Click() {
  Guard(services_.Messages, "mnuFilePrint_Click",
        [this] { dialogs_.PrintDocument(RTF, Form.Caption()); });
}

void frmOtchetMain::mnuFilePrintPreview_Click() {
  Guard(services_.Messages, "mnuFilePrintPreview_Click",
        [this] { dialogs_.PreviewDocument(RTF, Form.Caption()); });
}

void frmOtchetMain::mnuFileAutoCAD_Click() {
  if (openers_.ExportToDrawing) {
    openers_.ExportToDrawing();
  }
}

void frmOtchetMain::mnuFileAssoc_Click() {
  if (openers_.ShowAssoc) {
    openers_.ShowAssoc();
  }
}

void frmOtchetMain::mnuFileExit_Click() {
  if (Unload) {
    Unload();
  }
}

}  // namespace trelonit

// Save and Save As.

#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

class DocumentSave : public OtchetTest {
 protected:
  /// A formatted text under this name, with a change after it was opened.
  void OpenRich(const std::string& name) {
    files.Content[name] = richBytes;
    Open(name, richTextKind);
    Enter("new ");
    dialogs.Opened.clear();
  }
  static Message Warning(const std::string& kind) {
    return {.Title = "",
            .Text = "Any " + kind +
                    " formatting in this file will be lost.\n"
                    "Do you wish to save this file using a different name ?",
            .Style = MessageStyle::QuestionYesNoCancel};
  }
  static std::vector<FileChoice> NoChoices() { return {}; }

  static constexpr const char* richBytes = "{\\rtf1 {\\b bold} text}";
};

// Save ---------------------------------------------------------------------------------------

TEST_F(DocumentSave, WritesPlainTextUnderItsName) {
  MakeUnsavedDocument();
  form.mnuFileSave_Click();
  EXPECT_EQ(files.Content["/home/old.txt"], "one old text");
  EXPECT_EQ(Said(), Messages{});
  EXPECT_EQ(dialogs.Saved, NoChoices());
  EXPECT_FALSE(form.Changed());
  EXPECT_EQ(Panel(1), "/home/old.txt");
  EXPECT_EQ(Panel(3), "");
  EXPECT_EQ(Panel(4), "12 bytes");
  EXPECT_EQ(form.Undo.UndoCount(), 1);
  EXPECT_EQ(form.Undo.RedoCount(), 1);
}

TEST_F(DocumentSave, AsksForANameWhereThereIsNone) {
  Enter("text");
  dialogs.ToSave.push_back({"/home/new", plainTextKind});
  form.mnuFileSave_Click();
  EXPECT_EQ(dialogs.Saved, (std::vector<FileChoice>{{"", 1}}));
  EXPECT_EQ(files.Content["/home/new.txt"], "text");
  EXPECT_EQ(form.FileName(), "/home/new.txt");
  EXPECT_EQ(form.Form.Caption(), "new.txt");
  form.mnuFileSave_Click();
  EXPECT_EQ(dialogs.Saved.size(), 1u);
}

TEST_F(DocumentSave, AsksForANameWhereItTellsNoFolder) {
  files.Content["old.txt"] = "text";
  Open("old.txt");
  form.mnuFileSave_Click();
  EXPECT_EQ(dialogs.Saved, (std::vector<FileChoice>{{"old.txt", 1}}));
}

TEST_F(DocumentSave, KnowsTheFoldersOfBothSystems) {
  for (const char* name : {"C:\\docs\\a.txt", "/docs/a.txt"}) {
    files.Content[name] = "text";
    Open(name);
    Enter("more ");
    form.mnuFileSave_Click();
    EXPECT_EQ(files.Content[name], "more text") << name;
    EXPECT_EQ(form.Form.Caption(), "a.txt") << name;
  }
  EXPECT_EQ(dialogs.Saved, NoChoices());
}

TEST_F(DocumentSave, WarnsThatFormattingWillBeLost) {
  for (const auto& [name, kind] : std::map<std::string, std::string>{{"/home/a.rtf", "rich text"},
                                                                     {"/home/A.RTF", "rich text"},
                                                                     {"/home/a.doc", "document"}}) {
    OpenRich(name);
    const DocumentState before = State();
    Answer(cancel);
    form.mnuFileSave_Click();
    EXPECT_EQ(Said(), Messages{Warning(kind)}) << name;
    EXPECT_EQ(State(), before) << name;
    EXPECT_EQ(files.Content[name], richBytes) << name;
    Answer(no);
    form.mnuFileSave_Click();
    EXPECT_EQ(Said(), Messages{Warning(kind)}) << name;
    EXPECT_EQ(files.Content[name], "new bold text") << name;
    EXPECT_FALSE(form.Changed());
  }
  EXPECT_EQ(dialogs.Saved, NoChoices());
  EXPECT_EQ(word.Steps, Texts{});
}

TEST_F(DocumentSave, SavesUnderAnotherNameOnYesToTheWarning) {
  OpenRich("/home/a.rtf");
  dialogs.ToSave.push_back({"/home/b", richTextKind});
  Answer(yes);
  form.mnuFileSave_Click();
  EXPECT_EQ(dialogs.Saved, (std::vector<FileChoice>{{"/home/a.rtf", 2}}));
  EXPECT_EQ(files.Content["/home/b.rtf"], box.TextRTF());
  EXPECT_EQ(files.Content["/home/a.rtf"], richBytes);
  EXPECT_EQ(form.FileName(), "/home/b.rtf");
}

TEST_F(DocumentSave, LeavesTheDocumentUntouchedWhereTheOtherNameIsNotGiven) {
  OpenRich("/home/a.doc");
  const DocumentState before = State();
  Answer(yes);
  form.mnuFileSave_Click();
  EXPECT_EQ(dialogs.Saved, (std::vector<FileChoice>{{"/home/a.doc", 3}}));
  EXPECT_EQ(State(), before);
}

TEST_F(DocumentSave, WritesRichTextBySaveAsAlone) {
  OpenRich("/home/a.rtf");
  SaveAs("/home/b.rtf", richTextKind);
  EXPECT_EQ(files.Content["/home/b.rtf"], box.TextRTF());
  EXPECT_EQ(Said(), Messages{});
  Answer(no);
  form.mnuFileSave_Click();
  EXPECT_EQ(files.Content["/home/b.rtf"], "new bold text");
}

TEST_F(DocumentSave, KeepsTheOldFileWhereTheSavingFails) {
  for (const ErrorNumber number :
       {ErrorNumber::DiskFull, ErrorNumber::PermissionDenied, ErrorNumber::PathFileAccess}) {
    files.Refused.clear();
    form.Form_Load();
    MakeUnsavedDocument();
    files.Refused["/home/old.txt"] = number;
    files.Refused["/home/other.rtf"] = number;
    const DocumentState before = State();
    form.mnuFileSave_Click();
    EXPECT_EQ(Said(), Messages{Failure("SaveAFile", number)});
    EXPECT_EQ(State(), before);
    SaveAs("/home/other", richTextKind);
    EXPECT_EQ(Said(), Messages{Failure("SaveAFile", number)});
    EXPECT_EQ(State(), before);
    EXPECT_EQ(files.Content["/home/old.txt"], "old text");
    EXPECT_EQ(files.Content.count("/home/other.rtf"), 0u);
  }
}

TEST_F(DocumentSave, IsDoneEvenWhereTheLengthCannotBeAsked) {
  /// Files that lose themselves behind the writing.
  class LostFiles : public ClaimingFiles {
   public:
    void ReplaceFile(const std::string& path, std::string_view bytes) override {
      ClaimingFiles::ReplaceFile(path, bytes);
      Refused[path] = ErrorNumber::PermissionDenied;
    }
  };
  LostFiles lost;
  frmOtchetMain other(Bundle(word, lost), box, dialogs, {}, "");
  other.Form_Load();
  other.RTF_TextCommitted("text");
  dialogs.ToSave.push_back({"/home/a.txt", plainTextKind});
  other.mnuFileSave_Click();
  EXPECT_EQ(Said(), Messages{Failure("SaveAFile", ErrorNumber::PermissionDenied)});
  EXPECT_EQ(lost.Content["/home/a.txt"], "text");
  EXPECT_EQ(other.FileName(), "/home/a.txt");
  EXPECT_FALSE(other.Changed());
}

// Save As ------------------------------------------------------------------------------------

TEST_F(DocumentSave, LeavesTheDocumentUntouchedWhereTheDialogIsCancelled) {
  MakeUnsavedDocument();
  const DocumentState before = State();
  form.mnuFileSaveAs_Click();
  EXPECT_EQ(dialogs.Saved, (std::vector<FileChoice>{{"/home/old.txt", 1}}));
  EXPECT_EQ(State(), before);
  EXPECT_EQ(Said(), Messages{});
}

TEST_F(DocumentSave, OffersTheKindOfTheDocument) {
  const auto offered = [this] {
    form.mnuFileSaveAs_Click();
    return dialogs.Saved.back();
  };
  EXPECT_EQ(offered(), (FileChoice{"", 1}));
  for (const auto& [name, kind] : std::map<std::string, Long>{
           {"/home/a.txt", 1}, {"/home/a.rtf", 2}, {"/home/a.doc", 3}, {"/home/a.log", 1}}) {
    files.Content[name] = "text";
    Open(name, plainTextKind);
    EXPECT_EQ(offered(), (FileChoice{name, kind}));
  }
  form.mnuFileNew_Click();
  form.BeginReport();  // a formatted text without a name
  EXPECT_EQ(offered(), (FileChoice{"", 2}));
}

TEST_F(DocumentSave, WritesEveryKind) {
  Enter("текст");
  CharFormat bold;
  bold.Bold = true;
  box.Select(0, 2);
  box.SetSelFormat(bold);
  for (const auto& [kind, stored] : std::map<Long, std::string>{
           {1, "/home/1.txt"}, {2, "/home/2.rtf"}, {3, "/home/3.doc"}, {4, "/home/4.txt"}}) {
    box.SetSelText("т");
    EXPECT_TRUE(form.Changed());
    SaveAs("/home/" + std::to_string(kind), kind);
    EXPECT_EQ(Said(), Messages{});
    EXPECT_EQ(form.FileName(), stored);
    EXPECT_EQ(form.Form.Caption(), stored.substr(6));
    EXPECT_EQ(Panel(1), stored);
    EXPECT_EQ(Panel(4), std::to_string(files.Content[stored].size()) + " bytes");
    EXPECT_FALSE(form.Changed());
  }
  EXPECT_EQ(files.Content["/home/1.txt"], "\xF2\xEA\xF1\xF2");
  EXPECT_EQ(files.Content["/home/2.rtf"].substr(0, 5), "{\\rtf");
  EXPECT_EQ(word.PastedPlain, "ттткст");
  EXPECT_EQ(word.PastedRich.substr(0, 5), "{\\rtf");
  EXPECT_EQ(files.Content["/home/4.txt"], "\xF2\xF2\xF2\xF2\xEA\xF1\xF2");
}

TEST_F(DocumentSave, WritesByTheExtensionWhereAllFilesAreShown) {
  Enter("text");
  SaveAs("/home/a.RTF", allFilesKind);
  EXPECT_EQ(files.Content["/home/a.RTF"], box.TextRTF());
  SaveAs("/home/a.doc", allFilesKind);
  EXPECT_EQ(word.PastedPlain, "text");
  SaveAs("/home/a.log", allFilesKind);
  EXPECT_EQ(files.Content["/home/a.log"], "text");
}

TEST_F(DocumentSave, ReconcilesTheExtensionWithTheKind) {
  Enter("text");
  SaveAs("/home/a.rtf", plainTextKind);
  EXPECT_EQ(files.Content["/home/a.txt"], "text");
  SaveAs("/home/a.txt", richTextKind);
  EXPECT_EQ(files.Content["/home/a.rtf"], box.TextRTF());
  EXPECT_EQ(files.Content["/home/a.txt"], "text");
}

TEST_F(DocumentSave, AsksBeforeItReplacesAnotherFile) {
  files.Content["/home/b.txt"] = "other";
  MakeUnsavedDocument();
  dialogs.ToSave.push_back({"/home/b", plainTextKind});
  Answer(yes);
  form.mnuFileSaveAs_Click();
  EXPECT_EQ(Said(), Messages{ReplaceQuestion()});
  EXPECT_EQ(files.Content["/home/b.txt"], "one old text");
  EXPECT_EQ(dialogs.Saved.size(), 1u);
}

TEST_F(DocumentSave, ShowsTheDialogAgainWhereTheFileIsToStay) {
  files.Content["/home/b.rtf"] = "other";
  MakeUnsavedDocument();
  dialogs.ToSave = {{"/home/b", richTextKind}, {"/home/c", richTextKind}};
  Answer(no);
  form.mnuFileSaveAs_Click();
  EXPECT_EQ(Said(), Messages{ReplaceQuestion()});
  EXPECT_EQ(dialogs.Saved, (std::vector<FileChoice>{{"/home/old.txt", 1}, {"/home/b.rtf", 2}}));
  EXPECT_EQ(files.Content["/home/b.rtf"], "other");
  EXPECT_EQ(form.FileName(), "/home/c.rtf");
}

TEST_F(DocumentSave, EndsUntouchedWhereTheSecondDialogIsCancelled) {
  files.Content["/home/b.txt"] = "other";
  MakeUnsavedDocument();
  const DocumentState before = State();
  dialogs.ToSave.push_back({"/home/b.txt", plainTextKind});
  Answer(no);
  form.mnuFileSaveAs_Click();
  EXPECT_EQ(dialogs.Saved.size(), 2u);
  EXPECT_EQ(files.Content["/home/b.txt"], "other");
  EXPECT_EQ(State(), before);
}

TEST_F(DocumentSave, AsksNothingBeforeItReplacesItsOwnFile) {
  MakeUnsavedDocument();
  SaveAs("/home/old.txt", plainTextKind);
  EXPECT_EQ(Said(), Messages{});
  EXPECT_EQ(files.Content["/home/old.txt"], "one old text");
}

TEST_F(DocumentSave, TellsWhereTheFilesCannotBeAsked) {
  MakeUnsavedDocument();
  const DocumentState before = State();
  files.NoFileSystem = true;
  SaveAs("/home/b.txt", plainTextKind);
  EXPECT_EQ(Said(), Messages{Failure("mnuFileSaveAs_Click", ErrorNumber::CannotCreateObject)});
  EXPECT_EQ(State(), before);
}

TEST_F(DocumentSave, MakesPagesUnderANameThatAsksForThem) {
  for (Long kind = plainTextKind; kind <= allFilesKind; ++kind) {
    const std::string name = "/home/Отчет " + std::to_string(kind) + ".PDF";
    Enter("beam ");
    SaveAs(name, kind);
    EXPECT_EQ(files.Content[name], "%PDF " + BareName(name) + ": " + box.Text());
    EXPECT_EQ(Panel(frmOtchetMain::messagePanel), name);
    EXPECT_FALSE(form.Changed());
    // The document itself cannot be read from it again: it keeps its own name.
    EXPECT_EQ(form.FileName(), "");
    EXPECT_EQ(form.Form.Caption(), "Vestra");
  }
  EXPECT_EQ(Said(), Messages());
}

TEST_F(DocumentSave, AsksBeforePagesTakeTheirPlace) {
  files.Content["/home/a.pdf"] = "old";
  Enter("beam");
  Answer(no);
  SaveAs("/home/a.pdf", richTextKind);
  EXPECT_EQ(Said(), Messages{ReplaceQuestion()});
  EXPECT_EQ(files.Content["/home/a.pdf"], "old");
  EXPECT_TRUE(form.Changed());
}

TEST_F(DocumentSave, TellsThatPagesCannotBeStored) {
  Enter("beam");
  files.Refused["/home/a.pdf"] = ErrorNumber::PermissionDenied;
  SaveAs("/home/a.pdf", allFilesKind);
  EXPECT_EQ(Said(), Messages{Failure("SaveAFile", ErrorNumber::PermissionDenied)});
  EXPECT_TRUE(form.Changed());
}

TEST_F(DocumentSave, KeepsToItsKindsOnAMachineWithoutPages) {
  dialogs.MakesPdf = false;
  Enter("beam");
  SaveAs("/home/a.pdf", plainTextKind);
  EXPECT_EQ(files.Content["/home/a.txt"], "beam");
}

TEST_F(DocumentSave, ExportsPagesBesideTheDocument) {
  Enter("beam");
  dialogs.ToSavePdf = {"/home/a.pdf", "/home/b.pdf"};
  form.mnuFilePdf_Click();
  EXPECT_EQ(files.Content["/home/a.pdf"], "%PDF a.pdf: beam");
  form.mnuFilePdfDrawings_Click();
  EXPECT_EQ(files.Content["/home/b.pdf"], "%PDF b.pdf: beam + drawings");
  EXPECT_EQ(dialogs.PdfsOffered, (Texts{"Отчет.pdf", "Отчет.pdf"}));
  EXPECT_EQ(Panel(frmOtchetMain::messagePanel), "/home/b.pdf");
  // The document itself is no more saved than before.
  EXPECT_TRUE(form.Changed());
  EXPECT_EQ(form.FileName(), "");
  EXPECT_EQ(Said(), Messages());
}

TEST_F(DocumentSave, OffersTheNameOfTheDocumentForItsPages) {
  files.Content["/home/Отчет 1.rtf"] = "{\\rtf1 x}";
  Open("/home/Отчет 1.rtf");
  form.mnuFilePdf_Click();
  files.Content["/home/Ферма 1.5"] = "x";
  Open("/home/Ферма 1.5");
  form.mnuFilePdf_Click();
  EXPECT_EQ(dialogs.PdfsOffered, (Texts{"/home/Отчет 1.pdf", "/home/Ферма 1.5.pdf"}));
  EXPECT_EQ(files.Content.size(), 2U);
}

TEST_F(DocumentSave, AsksForAnotherNameWherePagesAreNotToBeReplaced) {
  files.Content["/home/a.pdf"] = "old";
  Enter("beam");
  Answer(no);
  dialogs.ToSavePdf = {"/home/a.pdf", "/home/b.pdf"};
  form.mnuFilePdf_Click();
  EXPECT_EQ(Said(), Messages{ReplaceQuestion()});
  EXPECT_EQ(files.Content["/home/a.pdf"], "old");
  EXPECT_EQ(files.Content["/home/b.pdf"], "%PDF b.pdf: beam");
  EXPECT_EQ(dialogs.PdfsOffered.back(), "/home/a.pdf");
}

}  // namespace
}  // namespace trelonit::test

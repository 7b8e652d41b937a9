#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

constexpr const char* quitWithoutSaving = "Application.Quit(0)";

class WordDocument : public OtchetTest {
 protected:
  WordDocument() {
    files.Content["/home/a.doc"] = "bytes of Word";
    word.Rich = "{\\rtf1 from {\\b Word}}";
    word.Plain = "from Word";
  }
  static Texts StepsOfReading(const std::string& name) {
    return {"Create Word.Application",    "Application.Documents",  "Documents.Open(" + name + ")",
            "Application.ActiveDocument", "ActiveDocument.Content", "Content.Copy()",
            "Application.Quit()"};
  }
  static Texts StepsOfWriting(const std::string& name) {
    return {"Create Word.Application",
            "Application.Documents",
            "Documents.Add()",
            "Application.ActiveDocument",
            "ActiveDocument.Content",
            "Content.Paste()",
            "ActiveDocument.SaveAs(" + name + ")",
            "Application.Quit()"};
  }
  /// The steps up to the failing one. The program is ended whatever fails, and asks nothing.
  static Texts UpTo(Texts steps, std::size_t failing) {
    steps.resize(failing);
    if (failing > 1) {
      steps.emplace_back(quitWithoutSaving);
    }
    return steps;
  }
  void FailAt(std::size_t step, const RuntimeError& error) {
    word.Steps.clear();
    word.FailingStep = step;
    word.Error = error;
  }
};

// Reading ------------------------------------------------------------------------------------

TEST_F(WordDocument, IsReadThroughTheClipboard) {
  world.Clipboard.SetText("held before");
  Open("/home/a.doc", wordKind);
  EXPECT_EQ(word.Steps, StepsOfReading("/home/a.doc"));
  EXPECT_EQ(word.Held, 0);
  EXPECT_EQ(box.Text(), "from Word");
  ASSERT_EQ(box.Document().Paragraphs[0].Runs.size(), 2u);
  EXPECT_TRUE(box.Document().Paragraphs[0].Runs[1].Format.Bold);
  EXPECT_EQ(world.Clipboard.Text(), "from Word");
  EXPECT_EQ(world.Clipboard.RichText(), word.Rich);
  EXPECT_EQ(form.FileName(), "/home/a.doc");
  EXPECT_EQ(Panel(4), "13 bytes");
  EXPECT_FALSE(form.Changed());
  EXPECT_TRUE(form.Undo.RichEditing());
  EXPECT_EQ(Said(), Messages{});
}

TEST_F(WordDocument, IsReadAsPlainTextWhereTheClipboardHoldsNoOther) {
  word.Rich.clear();
  word.Plain = "plain from Word";
  Open("/home/a.doc");
  EXPECT_EQ(box.Text(), "plain from Word");
}

TEST_F(WordDocument, MayBeEmpty) {
  word.Rich.clear();
  word.Plain.clear();
  world.Clipboard.SetText("held before");
  Open("/home/a.doc");
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(form.FileName(), "/home/a.doc");
}

TEST_F(WordDocument, TakesThePlaceOfThePresentDocument) {
  MakeUnsavedDocument();
  Answer(no);
  Open("/home/a.doc");
  EXPECT_EQ(box.Text(), "from Word");
  EXPECT_FALSE(form.Undo.canUndo());
  EXPECT_FALSE(form.Undo.canRedo());
}

TEST_F(WordDocument, LeavesThePresentDocumentWhereAnyStepOfReadingFails) {
  MakeUnsavedDocument();
  const DocumentState before = State();
  const Texts steps = StepsOfReading("/home/a.doc");
  for (const RuntimeError& error : {RuntimeError(ErrorNumber::CannotCreateObject),
                                    RuntimeError(5174, "no such document"), RuntimeError(0, "")}) {
    for (std::size_t failing = 1; failing <= steps.size(); ++failing) {
      FailAt(failing, error);
      Answer(no);
      Open("/home/a.doc", wordKind);
      EXPECT_EQ(Said(), (Messages{SaveQuestion(), WordFailure()})) << failing;
      EXPECT_EQ(State(), before) << failing;
      EXPECT_EQ(word.Steps, UpTo(steps, failing));
      EXPECT_EQ(word.Held, 0);
    }
  }
}

TEST_F(WordDocument, TellsOneFailureWhereWordCannotEvenBeEnded) {
  MakeUnsavedDocument();
  const DocumentState before = State();
  word.StaysBroken = true;
  for (std::size_t failing = 1; failing <= 7; ++failing) {
    FailAt(failing, RuntimeError(-2147417848, "The object has disconnected from its clients"));
    Answer(no);
    Open("/home/a.doc", wordKind);
    EXPECT_EQ(Said(), (Messages{SaveQuestion(), WordFailure()})) << failing;
    EXPECT_EQ(State(), before) << failing;
    EXPECT_EQ(word.Steps, UpTo(StepsOfReading("/home/a.doc"), failing));
    EXPECT_EQ(word.Held, 0);
  }
}

TEST_F(WordDocument, LeavesThePresentDocumentWhereAMemberIsNoObject) {
  MakeUnsavedDocument();
  const DocumentState before = State();
  for (const char* member : {"Documents", "ActiveDocument", "Content"}) {
    word.Steps.clear();
    word.Missing = {member};
    Answer(no);
    Open("/home/a.doc");
    EXPECT_EQ(Said(), (Messages{SaveQuestion(), WordFailure()})) << member;
    EXPECT_EQ(State(), before) << member;
    EXPECT_EQ(word.Steps.back(), quitWithoutSaving);
  }
}

TEST(WordDocumentWithoutWord, CanNeitherBeReadNorWritten) {
  OtchetDesk desk;
  frmOtchetMain form(desk.Bundle(desk.world.Automation, desk.files), desk.box, desk.dialogs, {},
                     "");
  form.Form_Load();
  desk.files.Content["/home/a.doc"] = "bytes";
  desk.dialogs.ToOpen.push_back({"/home/a.doc", wordKind});
  form.mnuFileOpen_Click();
  EXPECT_EQ(desk.Said(), OtchetDesk::Messages{OtchetDesk::WordFailure()});
  desk.dialogs.ToSave.push_back({"/home/b", wordKind});
  form.mnuFileSaveAs_Click();
  EXPECT_EQ(desk.Said(), OtchetDesk::Messages{OtchetDesk::WordFailure()});
  EXPECT_EQ(form.FileName(), "");
}

// Writing ------------------------------------------------------------------------------------

TEST_F(WordDocument, IsWrittenThroughTheClipboard) {
  Enter("text");
  CharFormat bold;
  bold.Bold = true;
  box.Select(0, 4);
  box.SetSelFormat(bold);
  world.Clipboard.SetText("held before");
  SaveAs("/home/b", wordKind);
  EXPECT_EQ(word.Steps, StepsOfWriting("/home/b.doc"));
  EXPECT_EQ(word.Held, 0);
  EXPECT_EQ(word.PastedRich, box.TextRTF());
  EXPECT_EQ(word.PastedPlain, "text");
  EXPECT_EQ(world.Clipboard.RichText(), box.TextRTF());
  EXPECT_EQ(world.Clipboard.Text(), "text");
  EXPECT_EQ(form.FileName(), "/home/b.doc");
  EXPECT_EQ(Panel(4), "4 bytes");
  EXPECT_FALSE(form.Changed());
  EXPECT_EQ(Said(), Messages{});
}

TEST_F(WordDocument, StaysUnsavedWhereAnyStepOfWritingFails) {
  MakeUnsavedDocument();
  const DocumentState before = State();
  const Texts steps = StepsOfWriting("/home/b.doc");
  for (std::size_t failing = 1; failing <= steps.size(); ++failing) {
    FailAt(failing, RuntimeError(ErrorNumber::PropertyNotSupported));
    files.Content.erase("/home/b.doc");
    SaveAs("/home/b", wordKind);
    EXPECT_EQ(Said(), Messages{WordFailure()}) << failing;
    EXPECT_EQ(State(), before) << failing;
    EXPECT_EQ(word.Steps, UpTo(steps, failing));
    EXPECT_EQ(word.Held, 0);
  }
}

TEST_F(WordDocument, KeepsTheOldFileWhereItIsRefused) {
  files.Refused["/home/a.doc"] = ErrorNumber::PermissionDenied;
  Enter("text");
  Answer(yes);
  SaveAs("/home/a.doc", wordKind);
  EXPECT_EQ(Said(), (Messages{ReplaceQuestion(), WordFailure()}));
  EXPECT_EQ(files.Content["/home/a.doc"], "bytes of Word");
  EXPECT_EQ(form.FileName(), "");
  EXPECT_TRUE(form.Changed());
}

TEST_F(WordDocument, IsNotWrittenByAPlainSave) {
  Open("/home/a.doc");
  word.Steps.clear();
  Answer(no);
  form.mnuFileSave_Click();
  EXPECT_EQ(files.Content["/home/a.doc"], "from Word");
  EXPECT_EQ(word.Steps, Texts{});
}

}  // namespace
}  // namespace trelonit::test

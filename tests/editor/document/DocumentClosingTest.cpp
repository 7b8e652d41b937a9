// The first activation of the document window, and its closing.

#include <filesystem>

#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

// Activation ---------------------------------------------------------------------------------

TEST(DocumentActivation, OpensTheFileOfTheCommandLineOnce) {
  OtchetDesk desk("/home/a.txt");
  desk.files.Content["/home/a.txt"] = "text";
  desk.form.Form_Load();
  EXPECT_EQ(desk.box.Text(), "");
  desk.form.Form_Activate();
  EXPECT_EQ(desk.box.Text(), "text");
  EXPECT_EQ(desk.form.FileName(), "/home/a.txt");
  EXPECT_EQ(desk.form.Form.Caption(), "a.txt");
  EXPECT_FALSE(desk.form.Changed());
  desk.Enter("more ");
  desk.form.Form_Activate();
  EXPECT_EQ(desk.box.Text(), "more text");
  EXPECT_EQ(desk.Said(), OtchetDesk::Messages{});
}

TEST(DocumentActivation, TakesTheQuotesRoundTheNameAway) {
  for (const char* given : {"\"/home/two words.rtf\"", "  \"/home/two words.rtf\" ",
                            "/home/two words.rtf", "\"\"/home/two words.rtf\"\""}) {
    OtchetDesk desk(given);
    desk.files.Content["/home/two words.rtf"] = "{\\rtf1 rich}";
    desk.form.Form_Load();
    desk.form.Form_Activate();
    EXPECT_EQ(desk.box.Text(), "rich") << given;
    EXPECT_EQ(desk.form.FileName(), "/home/two words.rtf") << given;
    EXPECT_TRUE(desk.form.Undo.RichEditing());
  }
}

TEST(DocumentActivation, MakesANameWithoutAFolderWhole) {
  const std::u8string folder = std::filesystem::current_path().u8string();
  const std::string whole = std::string(folder.begin(), folder.end()) + "/отчет.txt";
  OtchetDesk desk("./docs/../отчет.txt");
  desk.files.Content[whole] = "text";
  desk.form.Form_Load();
  desk.form.Form_Activate();
  EXPECT_EQ(desk.box.Text(), "text");
  EXPECT_EQ(desk.form.FileName(), whole);
}

TEST(DocumentActivation, OpensNothingForAnEmptyCommandLine) {
  for (const char* given : {"", "  ", "\"\"", "\" \""}) {
    OtchetDesk desk(given);
    desk.form.Form_Load();
    const DocumentState before = desk.State();
    desk.form.Form_Activate();
    EXPECT_EQ(desk.State(), before) << given;
    EXPECT_EQ(desk.Said(), OtchetDesk::Messages{}) << given;
  }
}

TEST(DocumentActivation, TellsThatTheFileIsNotThere) {
  OtchetDesk desk("/home/none.txt");
  desk.form.Form_Load();
  const DocumentState before = desk.State();
  desk.form.Form_Activate();
  EXPECT_EQ(desk.State(), before);
  EXPECT_EQ(desk.Said(),
            OtchetDesk::Messages{OtchetDesk::Failure("LoadDocument", ErrorNumber::FileNotFound)});
  desk.form.Form_Activate();
  EXPECT_EQ(desk.Said(), OtchetDesk::Messages{});
}

TEST(DocumentActivation, ComesOnlyAfterTheLoad) {
  OtchetDesk desk("/home/a.txt");
  desk.files.Content["/home/a.txt"] = "text";
  desk.form.Form_Activate();
  EXPECT_EQ(desk.box.Text(), "");
}

// Closing ------------------------------------------------------------------------------------

class DocumentClosing : public OtchetTest {
 protected:
  DocumentClosing() { files.Content["/home/a.txt"] = "text"; }

  static std::vector<RecordingSettings::Entry> Kept() {
    return {{"Wordwrap", "True"},  {"Statusbar", "True"}, {"Toolbar", "False"},
            {"MainLeft", "1000"},  {"MainTop", "1000"},   {"MainWidth", "8500"},
            {"MainHeight", "6500"}};
  }
  static std::vector<RecordingSettings::Entry> Nothing() { return {}; }
};

TEST_F(DocumentClosing, AsksNothingForADocumentWithoutChanges) {
  EXPECT_TRUE(form.Form_QueryUnload());
  EXPECT_EQ(Said(), Messages{});
  EXPECT_EQ(settings.Written, Kept());
}

TEST_F(DocumentClosing, KeepsTheWindowsPlaceInItsOrder) {
  form.mnuFormatWordwrap_Click();
  form.mnuViewStatusbar_Click();
  form.mnuViewToolbar_Click();
  form.Left = -7.5;
  form.Top = 0;
  form.Width = 9000;
  form.Height = 700.25;
  settings.Written.clear();
  EXPECT_TRUE(form.Form_QueryUnload());
  EXPECT_EQ(settings.Written, (std::vector<RecordingSettings::Entry>{{"Wordwrap", "False"},
                                                                     {"Statusbar", "False"},
                                                                     {"Toolbar", "True"},
                                                                     {"MainLeft", "-7.5"},
                                                                     {"MainTop", "0"},
                                                                     {"MainWidth", "9000"},
                                                                     {"MainHeight", "700.25"}}));
}

TEST_F(DocumentClosing, WritesNeitherBackColorNorFont) {
  dialogs.ToColor.push_back(colorRed);
  form.mnuFormatBackcolor_Click();
  dialogs.ToFont.push_back(CharFormat{.FontName = "Arial"});
  form.mnuFormatFont_Click();
  settings.Written.clear();
  EXPECT_TRUE(form.Form_QueryUnload());
  EXPECT_EQ(settings.Written, Kept());
}

TEST_F(DocumentClosing, StaysOpenOnCancel) {
  MakeUnsavedDocument();
  const DocumentState before = State();
  Answer(cancel);
  EXPECT_FALSE(form.Form_QueryUnload());
  EXPECT_EQ(Said(), Messages{SaveQuestion()});
  EXPECT_EQ(State(), before);
  EXPECT_EQ(settings.Written, Nothing());
}

TEST_F(DocumentClosing, LosesTheChangesOnNo) {
  MakeUnsavedDocument();
  Answer(no);
  EXPECT_TRUE(form.Form_QueryUnload());
  EXPECT_EQ(files.Content["/home/old.txt"], "old text");
  EXPECT_EQ(settings.Written, Kept());
}

TEST_F(DocumentClosing, SavesOnYes) {
  MakeUnsavedDocument();
  Answer(yes);
  EXPECT_TRUE(form.Form_QueryUnload());
  EXPECT_EQ(files.Content["/home/old.txt"], "one old text");
  EXPECT_EQ(Said(), Messages{SaveQuestion()});
  EXPECT_EQ(settings.Written, Kept());
}

TEST_F(DocumentClosing, StaysOpenWhereTheSavingFails) {
  for (const ErrorNumber number :
       {ErrorNumber::DiskFull, ErrorNumber::PermissionDenied, ErrorNumber::PathFileAccess}) {
    files.Refused.clear();
    form.Form_Load();
    MakeUnsavedDocument();
    files.Refused["/home/old.txt"] = number;
    const DocumentState before = State();
    Answer(yes);
    EXPECT_FALSE(form.Form_QueryUnload());
    EXPECT_EQ(Said(), (Messages{SaveQuestion(), Failure("SaveAFile", number)}));
    EXPECT_EQ(State(), before);
    EXPECT_EQ(files.Content["/home/old.txt"], "old text");
    EXPECT_EQ(settings.Written, Nothing());
  }
}

TEST_F(DocumentClosing, StaysOpenWhereTheQuestionCannotBeAsked) {
  struct OnceFailing : RecordingMessages {
    MessageAnswer Show(const Message& message) override {
      if (!std::exchange(failed, true)) {
        throw RuntimeError(ErrorNumber::OutOfMemory);
      }
      return RecordingMessages::Show(message);
    }
    bool failed = false;
  };
  OnceFailing failing;
  frmOtchetMain window({failing, world.Dialogs, world.Clipboard, settings, world.Registry, word,
                        world.Shell, world.Clock, resources, files, numbers, "/program"},
                       box, dialogs, {}, "");
  window.Form_Load();
  window.RTF_TextCommitted("not saved");
  EXPECT_FALSE(window.Form_QueryUnload());
  EXPECT_EQ(failing.Shown, Messages{Failure("Form_QueryUnload", ErrorNumber::OutOfMemory)});
  EXPECT_EQ(box.Text(), "not saved");
  EXPECT_EQ(settings.Written, Nothing());
}

TEST_F(DocumentClosing, KeepsWhetherTheWindowIsMaximizedWhereThatHasChanged) {
  for (const bool maximized : {true, false}) {
    form.Maximized = maximized;
    settings.Written.clear();
    EXPECT_TRUE(form.Form_QueryUnload());
    std::vector<RecordingSettings::Entry> kept = Kept();
    kept.emplace_back("MainMaximized", maximized ? "True" : "False");
    EXPECT_EQ(settings.Written, kept);
    settings.Written.clear();
    EXPECT_TRUE(form.Form_QueryUnload());
    EXPECT_EQ(settings.Written, Kept());
    form.Form_Load();
    EXPECT_EQ(form.Maximized, maximized);
  }
}

TEST_F(DocumentClosing, StaysOpenWhereTheNameIsNotGiven) {
  Enter("text");
  const DocumentState before = State();
  Answer(yes);
  EXPECT_FALSE(form.Form_QueryUnload());
  EXPECT_EQ(dialogs.Saved.size(), 1u);
  EXPECT_EQ(State(), before);
  EXPECT_EQ(settings.Written, Nothing());
}

TEST_F(DocumentClosing, StaysOpenWhereTheWarningIsCancelled) {
  files.Content["/home/a.rtf"] = "{\\rtf1 rich}";
  Open("/home/a.rtf");
  Enter("more ");
  Answer(yes);
  Answer(cancel);
  EXPECT_FALSE(form.Form_QueryUnload());
  EXPECT_EQ(Said().size(), 2u);
  EXPECT_EQ(files.Content["/home/a.rtf"], "{\\rtf1 rich}");
}

TEST_F(DocumentClosing, ShowsAnEmptyDocumentWhenItIsLoadedAgain) {
  MakeUnsavedDocument();
  Answer(no);
  EXPECT_TRUE(form.Form_QueryUnload());
  form.Form_Load();
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(form.FileName(), "");
  EXPECT_EQ(form.Form.Caption(), "Vestra");
  EXPECT_FALSE(form.Changed());
  EXPECT_FALSE(form.Undo.canUndo());
}

}  // namespace
}  // namespace trelonit::test

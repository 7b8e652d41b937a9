#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

constexpr const char* settingsSection = "Kelv Software\\Trelo_calculation\\Settings";

using DocumentWindow = OtchetTest;

TEST_F(DocumentWindow, OpensWithTheDefaultsWhereNothingIsStored) {
  EXPECT_EQ(form.Form.Caption(), "Vestra");
  EXPECT_EQ(form.Left, 1000);
  EXPECT_EQ(form.Top, 1000);
  EXPECT_EQ(form.Width, 8500);
  EXPECT_EQ(form.Height, 6500);
  EXPECT_EQ(box.BackColor(), 0xFFFFFFu);
  EXPECT_EQ(box.SelFormat(), (CharFormat{.FontName = "Lucida Console", .FontSize = 9}));
  EXPECT_TRUE(form.mnuViewStatusbar.Checked());
  EXPECT_FALSE(form.mnuViewToolbar.Checked());
  EXPECT_TRUE(form.mnuFormatWordwrap.Checked());
  EXPECT_TRUE(form.SB.Visible());
  EXPECT_FALSE(form.TB.Visible());
  EXPECT_EQ(box.RightMargin(), 0);
  EXPECT_EQ(form.Undo.RichBox(), &box);
  EXPECT_EQ(form.PasteTimer.Interval(), 100);
  EXPECT_EQ(settings.Written, std::vector<RecordingSettings::Entry>{});
}

TEST_F(DocumentWindow, OpensWithAnEmptyDocumentThatHasNoFile) {
  EXPECT_EQ(State(),
            (DocumentState{.Rtf = MemoryRichTextBox().TextRTF(),
                           .FileName = "",
                           .Caption = "Vestra",
                           .Panels = {"File not saved", "Строка 1, столбец 1", "", "0 bytes"},
                           .Enabled = true}));
  EXPECT_EQ(Said(), Messages{});
}

TEST(DocumentWindowAtLoad, HasNoChangesBefore) {
  const OtchetDesk desk;
  EXPECT_FALSE(desk.form.Changed());
}

TEST(DocumentWindowAtLoad, TakesWhatIsStored) {
  OtchetDesk desk;
  for (const auto& [key, value] : std::vector<RecordingSettings::Entry>{{"MainLeft", "-300"},
                                                                        {"MainTop", "45.5"},
                                                                        {"MainWidth", "12000"},
                                                                        {"MainHeight", "9000"},
                                                                        {"Backcolor", "12632256"},
                                                                        {"Statusbar", "False"},
                                                                        {"Toolbar", "True"},
                                                                        {"Wordwrap", "False"},
                                                                        {"Fontname", "Arial"},
                                                                        {"FontSize", "12.5"},
                                                                        {"Italic", "True"},
                                                                        {"Color", "255"}}) {
    desk.settings.Set(settingsSection, key, value);
  }
  desk.form.Form_Load();
  EXPECT_EQ(desk.form.Left, -300);
  EXPECT_EQ(desk.form.Top, 45.5);
  EXPECT_EQ(desk.form.Width, 12000);
  EXPECT_EQ(desk.form.Height, 9000);
  EXPECT_EQ(desk.box.BackColor(), 0xC0C0C0u);
  EXPECT_FALSE(desk.form.SB.Visible());
  EXPECT_FALSE(desk.form.mnuViewStatusbar.Checked());
  EXPECT_TRUE(desk.form.TB.Visible());
  EXPECT_TRUE(desk.form.mnuViewToolbar.Checked());
  EXPECT_FALSE(desk.form.mnuFormatWordwrap.Checked());
  EXPECT_EQ(desk.box.RightMargin(), 200000);
  EXPECT_EQ(
      desk.box.SelFormat(),
      (CharFormat{.FontName = "Arial", .FontSize = 12.5, .Italic = true, .TextColor = colorRed}));
}

TEST(DocumentWindowAtLoad, HasNoPlaceBefore) {
  const OtchetDesk desk;
  EXPECT_EQ(desk.form.Left, 0);
  EXPECT_EQ(desk.form.Top, 0);
  EXPECT_EQ(desk.form.Width, 0);
  EXPECT_EQ(desk.form.Height, 0);
  EXPECT_FALSE(desk.form.Maximized);
}

TEST(DocumentWindowAtLoad, ReadsBackWhatItWroteWithACommaForAPoint) {
  OtchetDesk desk("", CommaLocale());
  desk.form.Form_Load();
  CharFormat chosen;
  chosen.FontSize = 10.5;
  desk.dialogs.ToFont.push_back(chosen);
  desk.form.mnuFormatFont_Click();
  EXPECT_EQ(desk.settings.Get(settingsSection, "FontSize", ""), "10,5");
  desk.form.Left = 15.25;
  EXPECT_TRUE(desk.form.Form_QueryUnload());
  desk.form.Form_Load();
  EXPECT_EQ(desk.box.SelFormat(), chosen);
  EXPECT_EQ(desk.form.Left, 15.25);
}

// View and format ----------------------------------------------------------------------------

TEST_F(DocumentWindow, FlipsWordwrapAndKeepsIt) {
  form.mnuFormatWordwrap_Click();
  EXPECT_FALSE(form.mnuFormatWordwrap.Checked());
  EXPECT_EQ(box.RightMargin(), 200000);
  form.mnuFormatWordwrap_Click();
  EXPECT_TRUE(form.mnuFormatWordwrap.Checked());
  EXPECT_EQ(box.RightMargin(), 0);
  EXPECT_EQ(settings.Written,
            (std::vector<RecordingSettings::Entry>{{"Wordwrap", "False"}, {"Wordwrap", "True"}}));
  EXPECT_EQ(settings.Sections, (Texts{settingsSection, settingsSection}));
  EXPECT_FALSE(form.Changed());
}

TEST_F(DocumentWindow, FlipsToolbarAndStatusbarEachByItself) {
  form.mnuViewToolbar_Click();
  EXPECT_TRUE(form.mnuViewToolbar.Checked());
  EXPECT_TRUE(form.TB.Visible());
  EXPECT_TRUE(form.SB.Visible());
  form.mnuViewStatusbar_Click();
  EXPECT_FALSE(form.mnuViewStatusbar.Checked());
  EXPECT_FALSE(form.SB.Visible());
  EXPECT_TRUE(form.TB.Visible());
  EXPECT_EQ(settings.Written,
            (std::vector<RecordingSettings::Entry>{{"Toolbar", "True"}, {"Statusbar", "False"}}));
}

TEST_F(DocumentWindow, AppliesAndKeepsTheChosenBackColor) {
  dialogs.ToColor.push_back(Color{0xC0FFEE});
  form.mnuFormatBackcolor_Click();
  EXPECT_EQ(dialogs.Colors, std::vector<Color>{0xFFFFFF});
  EXPECT_EQ(box.BackColor(), 0xC0FFEEu);
  EXPECT_EQ(settings.Written, (std::vector<RecordingSettings::Entry>{{"Backcolor", "12648430"}}));
  form.mnuFormatBackcolor_Click();  // and cancels
  EXPECT_EQ(dialogs.Colors.back(), 0xC0FFEEu);
  EXPECT_EQ(box.BackColor(), 0xC0FFEEu);
  EXPECT_EQ(settings.Written.size(), 1u);
}

TEST_F(DocumentWindow, KeepsEveryPropertyOfTheChosenFont) {
  const CharFormat chosen{.FontName = "Arial",
                          .FontSize = 10.5,
                          .Bold = true,
                          .Italic = false,
                          .Underline = true,
                          .StrikeThru = false,
                          .TextColor = 0x102030};
  dialogs.ToFont.push_back(chosen);
  form.mnuFormatFont_Click();
  EXPECT_EQ(box.SelFormat(), chosen);
  EXPECT_EQ(settings.Written, (std::vector<RecordingSettings::Entry>{{"Fontname", "Arial"},
                                                                     {"FontSize", "10.5"},
                                                                     {"Bold", "True"},
                                                                     {"Italic", "False"},
                                                                     {"StrikeThru", "False"},
                                                                     {"Underline", "True"},
                                                                     {"Color", "1056816"}}));
  form.Form_Load();
  EXPECT_EQ(box.SelFormat(), chosen);
}

TEST_F(DocumentWindow, OffersTheFontOfTheSelectionAndGivesItTheChosenOne) {
  Enter("раз два");
  CharFormat chosen = box.SelFormat();
  chosen.Bold = true;
  box.Select(4, 3);
  dialogs.ToFont.push_back(chosen);
  form.mnuFormatFont_Click();
  EXPECT_EQ(dialogs.Fonts, std::vector<CharFormat>{CharFormat()});
  ASSERT_EQ(box.Document().Paragraphs[0].Runs.size(), 2u);
  EXPECT_EQ(box.Document().Paragraphs[0].Runs[0], (TextRun{u"раз ", {}}));
  EXPECT_EQ(box.Document().Paragraphs[0].Runs[1], (TextRun{u"два", chosen}));
  EXPECT_TRUE(form.Changed());
  form.mnuFormatFont_Click();
  box.Select(0, 3);
  form.mnuFormatFont_Click();
  EXPECT_EQ(dialogs.Fonts, (std::vector<CharFormat>{CharFormat(), chosen, CharFormat()}));
}

TEST_F(DocumentWindow, LeavesTheFontAloneOnCancel) {
  MakeUnsavedDocument();
  const DocumentState before = State();
  form.mnuFormatFont_Click();
  EXPECT_EQ(State(), before);
  EXPECT_EQ(settings.Written, std::vector<RecordingSettings::Entry>{});
}

TEST_F(DocumentWindow, BeginsANewDocumentWithTheFontLastChosen) {
  Enter("a text");
  CharFormat chosen;
  chosen.FontName = "Courier New";
  chosen.FontSize = 14;
  dialogs.ToFont.push_back(chosen);
  form.mnuFormatFont_Click();
  Answer(no);
  form.mnuFileNew_Click();
  EXPECT_EQ(box.SelFormat(), chosen);
  Enter("new");
  EXPECT_EQ(box.Document().Paragraphs[0].Runs.at(0).Format, chosen);
}

TEST_F(DocumentWindow, ShowsPlainTextInTheFontLastChosen) {
  files.Content["/home/a.txt"] = "new text";
  Enter("a text");
  const CharFormat chosen{.FontName = "Arial", .FontSize = 14};
  box.Select(0, 1);
  dialogs.ToFont.push_back(chosen);
  form.mnuFormatFont_Click();
  Answer(no);
  Open("/home/a.txt", plainTextKind);
  EXPECT_EQ(box.Document().Paragraphs[0].Runs, std::vector<TextRun>({{u"new text", chosen}}));
}

// States -------------------------------------------------------------------------------------

TEST_F(DocumentWindow, OffersPasteWithinOneTickOfTheClipboardsChange) {
  EXPECT_FALSE(form.mnuEdit[5].Enabled());
  world.Clipboard.SetText("text");
  form.PasteTimer_Timer();
  EXPECT_TRUE(form.mnuEdit[5].Enabled());
  world.Clipboard.SetText("");
  form.PasteTimer_Timer();
  EXPECT_FALSE(form.mnuEdit[5].Enabled());
}

TEST_F(DocumentWindow, OffersUndoAndRedoWhereThereAreSteps) {
  const auto offered = [this] {
    return std::pair(form.mnuEdit[0].Enabled(), form.mnuEdit[1].Enabled());
  };
  EXPECT_EQ(offered(), std::pair(false, false));
  Enter("x");
  EXPECT_EQ(offered(), std::pair(true, false));
  form.mnuEdit_Click(0);
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(offered(), std::pair(false, true));
  form.mnuEdit_Click(1);
  EXPECT_EQ(box.Text(), "x");
  EXPECT_EQ(offered(), std::pair(true, false));
  Answer(no);
  form.mnuFileNew_Click();
  EXPECT_EQ(offered(), std::pair(false, false));
}

TEST_F(DocumentWindow, OffersCutCopyAndDeleteForASelectionAlone) {
  const auto offered = [this] {
    return std::vector<bool>{form.mnuEdit[3].Enabled(), form.mnuEdit[4].Enabled(),
                             form.mnuEdit[6].Enabled()};
  };
  EXPECT_EQ(offered(), (std::vector<bool>{false, false, false}));
  Enter("text");
  box.Select(0, 2);
  form.RTF_SelChange();
  EXPECT_EQ(offered(), (std::vector<bool>{true, true, true}));
  box.SetSelStart(1);
  form.RTF_SelChange();
  EXPECT_EQ(offered(), (std::vector<bool>{false, false, false}));
  box.SetSelLength(1);
  form.RTF_SelChange();
  EXPECT_EQ(offered(), (std::vector<bool>{true, true, true}));
}

TEST_F(DocumentWindow, ShowsWhereTheCaretIs) {
  Enter("раз\r\nдва");
  form.RTF_SelChange();
  EXPECT_EQ(Panel(2), "Строка 2, столбец 4");
  box.SetSelStart(1);
  form.RTF_SelChange();
  EXPECT_EQ(Panel(2), "Строка 1, столбец 2");
}

TEST_F(DocumentWindow, TellsThatTheDocumentHasChanged) {
  EXPECT_FALSE(form.Changed());
  Integer key = 'A';
  form.RTF_KeyDown(key, 0);
  EXPECT_EQ(key, 'A');
  EXPECT_FALSE(form.Changed());  // the box has not taken the key yet
  box.SetSelText("a");
  EXPECT_TRUE(form.Changed());
  EXPECT_EQ(Panel(3), "Изменен");
  EXPECT_EQ(form.Undo.UndoCount(), 1);
}

TEST_F(DocumentWindow, TakesAComposedTextAsOneStep) {
  Enter("мост");
  box.Select(1, 2);
  Enter("а\nб");
  EXPECT_EQ(box.Text(), "ма\r\nбт");
  EXPECT_EQ(form.Undo.UndoCount(), 2);
  form.Undo.Undo();
  EXPECT_EQ(box.Text(), "мост");
}

TEST(DocumentWindowAtLoad, KeepsAKeyFromTheBoxThatTheUndoCannotTake) {
  OtchetDesk desk;  // not loaded: the undo class has no box
  Integer key = 'A';
  desk.form.RTF_KeyDown(key, 0);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(desk.Said(),
            OtchetDesk::Messages{OtchetDesk::Failure("RTF_KeyDown", ErrorNumber::ObjectNotSet)});
}

// Print, about, the rest ---------------------------------------------------------------------

TEST_F(DocumentWindow, PrintsUnderItsCaption) {
  Enter("text");
  form.mnuFilePrint_Click();
  EXPECT_EQ(dialogs.Printed, (std::vector<ScriptedCommonDialogs::Print>{{"text", "Vestra"}}));
  form.mnuFilePrintPreview_Click();
  EXPECT_EQ(dialogs.Previewed, dialogs.Printed);
  form.mnuFilePageSetup_Click();
  EXPECT_EQ(dialogs.PageSetups, 1);
}

TEST_F(DocumentWindow, TellsWhatItIs) {
  form.mnuFileAbout_Click();
  const Messages said = Said();
  ASSERT_EQ(said.size(), 1u);
  EXPECT_EQ(said[0].Title, "Vestra - блокнот отчета расчетов");
  EXPECT_EQ(said[0].Style, MessageStyle::Information);
}

TEST_F(DocumentWindow, ClosesOnExitWhereItIsAWindow) {
  form.mnuFileExit_Click();
  int closed = 0;
  form.Unload = [&] { ++closed; };
  form.mnuFileExit_Click();
  EXPECT_EQ(closed, 1);
}

}  // namespace
}  // namespace trelonit::test

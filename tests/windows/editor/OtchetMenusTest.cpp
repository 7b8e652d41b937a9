// Every entry of the document window's menus and its tool bar.

#include "tests/windows/editor/OtchetScreen.h"

namespace trelonit::test {
namespace {

class OtchetWindowMenus : public ::testing::Test, protected OtchetScreen {
 protected:
  OtchetWindowMenus() { Start(); }

  /// Captions without the keys behind them; "-" for a separator.
  static Texts Captions(const QMenu& menu) {
    Texts captions;
    for (const QAction* action : menu.actions()) {
      captions.push_back(action->isSeparator() ? "-"
                                               : FromQt(action->text().section(QChar('\t'), 0, 0)));
    }
    return captions;
  }
  static std::string KeysBehind(const QAction& action) {
    return FromQt(action.shortcut().isEmpty() ? action.text().section(QChar('\t'), 1)
                                              : action.shortcut().toString());
  }
  /// Whether anything is drawn on the icon.
  static bool ShowsSomething(const QIcon& icon) {
    const QImage drawn = icon.pixmap(22, 22).toImage();
    QImage empty(drawn.size(), drawn.format());
    empty.fill(Qt::transparent);
    return drawn != empty;
  }
  std::string Setting(const std::string& key) { return Settings.Get(settingsSection, key, ""); }
};

TEST_F(OtchetWindowMenus, HaveTheirEntriesInOrder) {
  const std::vector<std::pair<std::string, Texts>> expected{
      {"&File",
       {"&New", "&Open", "&Save", "Save &As", "-", "Вывести в AutoCAD", "Экспорт в PDF",
        "Экспорт в PDF с чертежами", "-", "Properties", "Связь с файлами", "-", "Page Setup",
        "Предварительный просмотр", "Print", "-", "&Exit"}},
      {"&Edit",
       {"&Undo", "&Redo", "-", "Cut", "Copy", "Paste", "Delete", "-", "Select All", "Select Above",
        "Select Below", "Datestamp", "Find and Replace"}},
      {"F&ormat", {"Wordwrap", "Font", "Backcolor", "Document Statistics"}},
      {"&View", {"Toolbar", "Statusbar", "-", "Увеличить", "Уменьшить", "Обычный размер"}},
      {"&Help", {"About"}}};
  std::vector<std::pair<std::string, Texts>> shown;
  for (const QAction* action : Window->menuBar()->actions()) {
    shown.emplace_back(FromQt(action->text()), Captions(*action->menu()));
  }
  EXPECT_EQ(shown, expected);
}

TEST_F(OtchetWindowMenus, TellTheKeysOfTheirEntries) {
  const std::vector<std::pair<std::string, std::string>> expected{
      {"mnuFileNew", ""},         {"mnuFileOpen", "Ctrl+O"}, {"mnuFileSave", "Ctrl+S"},
      {"mnuFileExit", "Alt+F4"},  {"mnuEdit0", "Ctrl+Z"},    {"mnuEdit1", "Ctrl+R"},
      {"mnuEdit3", "Ctrl+X"},     {"mnuEdit4", "Ctrl+C"},    {"mnuEdit5", "Ctrl+V"},
      {"mnuEdit6", "Del"},        {"mnuEdit8", "Ctrl+A"},    {"mnuEdit9", "Ctrl+T"},
      {"mnuEdit10", "Ctrl+B"},    {"mnuEdit11", "F5"},       {"mnuEdit12", "Ctrl+F"},
      {"mnuFilePrint", "Ctrl+P"}, {"mnuFormatFont", ""}};
  for (const auto& [name, keys] : expected) {
    EXPECT_EQ(KeysBehind(Entry(name)), keys) << name;
  }
}

TEST_F(OtchetWindowMenus, MakeOpenAndSaveDocuments) {
  Outside.Files.Content["/home/a.txt"] = "one";
  Dialogs.ToOpen = {{"/home/a.txt", allFilesKind}};
  Trigger("mnuFileOpen");
  EXPECT_EQ(FromQt(Edit().toPlainText()), "one");
  EXPECT_EQ(FromQt(Window->windowTitle()), "a.txt");
  EXPECT_EQ(Panel(4), "3 bytes");
  Enter("1");
  Trigger("mnuFileSave");
  EXPECT_EQ(Outside.Files.Content["/home/a.txt"], "1one");
  Dialogs.ToSave = {{"/home/b", richTextKind}};
  Trigger("mnuFileSaveAs");
  EXPECT_EQ(FromQt(Window->windowTitle()), "b.rtf");
  EXPECT_EQ(Outside.Files.Content["/home/b.rtf"].substr(0, 6), "{\\rtf1");
  Trigger("mnuFileNew");
  EXPECT_EQ(FromQt(Window->windowTitle()), "Untitled.txt");
  EXPECT_EQ(FromQt(Edit().toPlainText()), "");
  EXPECT_EQ(Said(), Texts());
}

TEST_F(OtchetWindowMenus, LeaveTheTextAloneWhereAFileCannotBeOpened) {
  Outside.Files.Content["/home/a.txt"] = "one";
  Outside.Files.Content["/home/bad.rtf"] = std::string("\x00\xFF\x01 binary", 10);
  Outside.Files.Content["/home/cut.rtf"] = "{\\rtf1\\ansi beg";
  Outside.Files.Content["/home/a.doc"] = "no word here";
  Dialogs.ToOpen = {{"/home/a.txt", allFilesKind}};
  Trigger("mnuFileOpen");
  for (const auto& [name, message] :
       {std::pair{"/home/none.txt", " Err # 53 Discription : File not found"},
        {"/home/bad.rtf", "Файл не содержит текста в формате RTF.\n/home/bad.rtf"},
        {"/home/cut.rtf",
         "Файл поврежден или записан не до конца. Открыть то, что удалось прочитать ?\n"
         "/home/cut.rtf"},
        {"/home/a.doc", "Error converting Word Document"}}) {
    Dialogs.ToOpen = {{name, allFilesKind}};
    Trigger("mnuFileOpen");
    EXPECT_EQ(Said(), Texts{message});
    EXPECT_EQ(FromQt(Edit().toPlainText()), "one") << name;
    EXPECT_EQ(FromQt(Window->windowTitle()), "a.txt") << name;
    EXPECT_EQ(Panel(1), "/home/a.txt") << name;
  }
}

TEST_F(OtchetWindowMenus, SendTheTrussToTheDrawings) {
  Trigger("mnuFileAutoCAD");
  EXPECT_EQ(Exports, 1);
}

TEST_F(OtchetWindowMenus, ShowWhichFilesOpenInThePad) {
  Trigger("mnuFileAssoc");
  EXPECT_EQ(AssocsShown, 1);
}

TEST_F(OtchetWindowMenus, CountTheText) {
  Enter("one two\r\nthree");
  const std::string counted = "File not yet saved.";
  for (const char* name : {"mnuFileProperties", "mnuFormatStats"}) {
    Trigger(name);
    const Texts said = Said();
    ASSERT_EQ(said.size(), 1U) << name;
    EXPECT_EQ(said[0].substr(0, counted.size()), counted);
    EXPECT_NE(said[0].find("Words : 2"), std::string::npos) << said[0];
    EXPECT_NE(said[0].find("Characters : 14"), std::string::npos) << said[0];
    EXPECT_NE(said[0].find("Lines : 2"), std::string::npos) << said[0];
  }
}

TEST_F(OtchetWindowMenus, PrintTheText) {
  Enter("beam");
  Trigger("mnuFilePageSetup");
  EXPECT_EQ(Dialogs.PageSetups, 1);
  Trigger("mnuFilePrint");
  Trigger("mnuFilePrintPreview");
  const std::vector<ScriptedCommonDialogs::Print> printed{{"beam", "Vestra"}};
  EXPECT_EQ(Dialogs.Printed, printed);
  EXPECT_EQ(Dialogs.Previewed, printed);
}

TEST_F(OtchetWindowMenus, EditTheText) {
  EXPECT_FALSE(Entry("mnuEdit0").isEnabled());
  EXPECT_FALSE(Entry("mnuEdit1").isEnabled());
  Enter("abcd");
  for (const char* name : {"mnuEdit3", "mnuEdit4", "mnuEdit6"}) {
    EXPECT_FALSE(Entry(name).isEnabled()) << name;
  }
  Trigger("mnuEdit8");
  EXPECT_EQ(ShownSelection(), "abcd");
  Trigger("mnuEdit4");
  EXPECT_EQ(Outside.Clipboard.Text(), "abcd");
  Trigger("mnuEdit3");
  EXPECT_EQ(Box->Text(), "");
  EXPECT_FALSE(Entry("mnuEdit4").isEnabled());
  ASSERT_TRUE(Soon([this] { return Entry("mnuEdit5").isEnabled(); }));
  Trigger("mnuEdit5");
  Trigger("mnuEdit5");
  EXPECT_EQ(FromQt(Edit().toPlainText()), "abcdabcd");
  Box->SetSelStart(3);
  Trigger("mnuEdit9");
  EXPECT_EQ(Selection(), (TextSpan{0, 3}));
  Trigger("mnuEdit6");
  EXPECT_EQ(Box->Text(), "dabcd");
  Box->SetSelStart(2);
  Trigger("mnuEdit10");
  EXPECT_EQ(ShownSelection(), "bcd");
  Trigger("mnuEdit0");
  EXPECT_EQ(Box->Text(), "abcdabcd");
  Trigger("mnuEdit1");
  EXPECT_EQ(Box->Text(), "dabcd");
  EXPECT_FALSE(Entry("mnuEdit1").isEnabled());
}

TEST_F(OtchetWindowMenus, WrapTheLines) {
  Trigger("mnuFormatWordwrap");
  EXPECT_FALSE(Entry("mnuFormatWordwrap").isChecked());
  EXPECT_EQ(Edit().lineWrapMode(), QTextEdit::NoWrap);
  EXPECT_EQ(Box->RightMargin(), 200000);
  EXPECT_EQ(Setting("Wordwrap"), "False");
  Trigger("mnuFormatWordwrap");
  EXPECT_TRUE(Entry("mnuFormatWordwrap").isChecked());
  EXPECT_EQ(Edit().lineWrapMode(), QTextEdit::WidgetWidth);
}

TEST_F(OtchetWindowMenus, ShowAndHideTheBars) {
  Trigger("mnuViewToolbar");
  EXPECT_TRUE(Entry("mnuViewToolbar").isChecked());
  EXPECT_TRUE(ToolBar().isVisible());
  EXPECT_EQ(Setting("Toolbar"), "True");
  Trigger("mnuViewStatusbar");
  EXPECT_FALSE(Entry("mnuViewStatusbar").isChecked());
  EXPECT_FALSE(Window->statusBar()->isVisible());
  EXPECT_EQ(Setting("Statusbar"), "False");
  Trigger("mnuViewToolbar");
  Trigger("mnuViewStatusbar");
  EXPECT_FALSE(ToolBar().isVisible());
  EXPECT_TRUE(Window->statusBar()->isVisible());
}

TEST_F(OtchetWindowMenus, FollowTheMarksOfTheForm) {
  for (const bool checked : {true, false}) {
    Form->mnuViewToolbar.SetChecked(checked);
    EXPECT_EQ(Entry("mnuViewToolbar").isChecked(), checked);
  }
  EXPECT_FALSE(Entry("mnuFormatFont").isCheckable());
}

TEST_F(OtchetWindowMenus, ChooseTheFont) {
  Enter("ab");
  Box->Select(0, 1);
  CharFormat chosen{.FontName = "DejaVu Serif", .FontSize = 20, .Italic = true};
  chosen.TextColor = colorRed;
  Trigger("mnuFormatFont");
  EXPECT_EQ(Setting("Fontname"), "");
  Dialogs.ToFont = {chosen};
  Trigger("mnuFormatFont");
  EXPECT_EQ(Dialogs.Fonts, (std::vector<CharFormat>{{}, {}}));
  const QTextCharFormat shown = FirstLook();
  EXPECT_EQ(shown.fontPointSize(), 20);
  EXPECT_TRUE(shown.fontItalic());
  EXPECT_EQ(shown.foreground().color(), QColor(Qt::red));
  EXPECT_EQ(Setting("Fontname"), "DejaVu Serif");
}

TEST_F(OtchetWindowMenus, ChooseThePapersColour) {
  Dialogs.ToColor = {std::nullopt, Color{0x400000}};
  Trigger("mnuFormatBackcolor");
  EXPECT_EQ(Edit().palette().color(QPalette::Base), QColor(Qt::white));
  Trigger("mnuFormatBackcolor");
  EXPECT_EQ(Edit().palette().color(QPalette::Base), QColor(0, 0, 0x40));
  EXPECT_EQ(Edit().palette().color(QPalette::Text), QColor(Qt::white));
  EXPECT_EQ(Setting("Backcolor"), "4194304");
}

TEST_F(OtchetWindowMenus, TellAboutTheEditor) {
  Trigger("mnuFileAbout");
  ASSERT_EQ(Outside.Messages.Shown.size(), 1U);
  EXPECT_EQ(Outside.Messages.Shown[0].Title, "Vestra - блокнот отчета расчетов");
}

TEST_F(OtchetWindowMenus, GreyOutWhatNothingStandsBehind) {
  QtRichTextBox box;
  frmOtchetMain form(Bundle(), box, Dialogs, {}, "");
  form.Form_Load();
  OtchetWindow window(form, box, nullptr);
  for (const char* name : {"mnuFileAutoCAD", "mnuFileAssoc", "mnuEdit11", "mnuEdit12"}) {
    EXPECT_FALSE(window.findChild<QAction*>(QLatin1String(name))->isEnabled()) << name;
  }
}

// Tool bar -------------------------------------------------------------------------------------

TEST_F(OtchetWindowMenus, StandOnTheToolBarToo) {
  Trigger("mnuViewToolbar");
  Texts names;
  for (QAction* action : ToolBar().actions()) {
    if (action->isSeparator()) {
      continue;
    }
    names.push_back(FromQt(action->objectName()));
    EXPECT_EQ(action, &Entry(names.back()));
    EXPECT_TRUE(ShowsSomething(action->icon())) << names.back();
    EXPECT_FALSE(action->toolTip().isEmpty()) << names.back();
    EXPECT_NE(action->toolTip(), action->iconText()) << names.back();
  }
  EXPECT_EQ(names, (Texts{"mnuFileNew", "mnuFileOpen", "mnuFileSave", "mnuFilePrint",
                          "mnuFilePrintPreview", "mnuEdit3", "mnuEdit4", "mnuEdit5", "mnuEdit6",
                          "mnuEdit0", "mnuEdit1", "mnuEdit12", "mnuEdit11", "mnuFileAutoCAD"}));
}

TEST_F(OtchetWindowMenus, ShareTheStatesOfTheirButtons) {
  Trigger("mnuViewToolbar");
  QWidget* paste = ToolBar().widgetForAction(&Entry("mnuEdit5"));
  QWidget* undo = ToolBar().widgetForAction(&Entry("mnuEdit0"));
  ASSERT_NE(paste, nullptr);
  EXPECT_FALSE(paste->isEnabled());
  EXPECT_FALSE(undo->isEnabled());
  Outside.Clipboard.SetText("x");
  EXPECT_TRUE(Soon([paste] { return paste->isEnabled(); }));
  QTest::mouseClick(paste, Qt::LeftButton);
  EXPECT_EQ(Box->Text(), "x");
  EXPECT_TRUE(undo->isEnabled());
  QTest::mouseClick(undo, Qt::LeftButton);
  EXPECT_EQ(Box->Text(), "");
  // The keys go to the text again after a press.
  EXPECT_TRUE(Edit().hasFocus());
}

}  // namespace
}  // namespace trelonit::test

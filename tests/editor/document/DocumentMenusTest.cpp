#include <algorithm>
#include <iterator>

#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

using Menu = frmOtchetMain::Menu;
using MenuItem = frmOtchetMain::MenuItem;

constexpr const char* separator = "-";

std::string Captioned(const MenuItem& item) {
  return item.Entry == nullptr ? separator : item.Name + ": " + item.Entry->Caption();
}

std::vector<std::string> Captioned(const std::vector<MenuItem>& items) {
  std::vector<std::string> texts;
  std::transform(items.begin(), items.end(), std::back_inserter(texts),
                 [](const MenuItem& item) { return Captioned(item); });
  return texts;
}

class DocumentMenus : public OtchetTest {
 protected:
  std::vector<std::string> ItemsOf(std::size_t menu) {
    return Captioned(form.Menus().at(menu).Items);
  }
  void Choose(const std::string& name) {
    for (const Menu& menu : form.Menus()) {
      for (const MenuItem& item : menu.Items) {
        if (item.Name == name) {
          item.Click();
          return;
        }
      }
    }
    FAIL() << "no entry " << name;
  }
};

TEST_F(DocumentMenus, OffersTheFileCommands) {
  EXPECT_EQ(
      ItemsOf(0),
      (Texts{"mnuFileNew: &New", "mnuFileOpen: &Open", "mnuFileSave: &Save",
             "mnuFileSaveAs: Save &As", separator, "mnuFileAutoCAD: Вывести в AutoCAD",
             "mnuFilePdf: Экспорт в PDF", "mnuFilePdfDrawings: Экспорт в PDF с чертежами",
             separator, "mnuFileProperties: Properties", "mnuFileAssoc: Связь с файлами", separator,
             "mnuFilePageSetup: Page Setup", "mnuFilePrintPreview: Предварительный просмотр",
             "mnuFilePrint: Print", separator, "mnuFileExit: &Exit"}));
}

TEST_F(DocumentMenus, OffersTheEditCommandsAtTheirPlaces) {
  EXPECT_EQ(ItemsOf(1),
            (Texts{"mnuEdit0: &Undo", "mnuEdit1: &Redo", separator, "mnuEdit3: Cut",
                   "mnuEdit4: Copy", "mnuEdit5: Paste", "mnuEdit6: Delete", separator,
                   "mnuEdit8: Select All", "mnuEdit9: Select Above", "mnuEdit10: Select Below",
                   "mnuEdit11: Datestamp", "mnuEdit12: Find and Replace"}));
  for (Integer index = 0; index <= 12; ++index) {
    const MenuItem item = form.Menus().at(1).Items.at(static_cast<std::size_t>(index));
    EXPECT_EQ(item.Entry, index == 2 || index == 7 ? nullptr : &form.mnuEdit[index]) << index;
  }
}

TEST_F(DocumentMenus, OffersFormatViewAndHelp) {
  EXPECT_EQ(ItemsOf(2),
            (Texts{"mnuFormatWordwrap: Wordwrap", "mnuFormatFont: Font",
                   "mnuFormatBackcolor: Backcolor", "mnuFormatStats: Document Statistics"}));
  EXPECT_EQ(ItemsOf(3), (Texts{"mnuViewToolbar: Toolbar", "mnuViewStatusbar: Statusbar"}));
  EXPECT_EQ(ItemsOf(4), Texts{"mnuFileAbout: About"});
  EXPECT_EQ(form.Menus().size(), 5u);
}

TEST_F(DocumentMenus, MarksWhatCanBeSwitched) {
  Texts checkable;
  for (const Menu& menu : form.Menus()) {
    for (const MenuItem& item : menu.Items) {
      if (item.Checkable) {
        checkable.push_back(item.Name);
      }
    }
  }
  EXPECT_EQ(checkable, (Texts{"mnuFormatWordwrap", "mnuViewToolbar", "mnuViewStatusbar"}));
}

TEST_F(DocumentMenus, SharesTheStateOfAnEntryWithItsButton) {
  std::vector<const MenuEntry*> entries;
  for (const Menu& menu : form.Menus()) {
    for (const MenuItem& item : menu.Items) {
      entries.push_back(item.Entry);
    }
  }
  const std::vector<MenuItem> buttons = form.ToolButtons();
  for (const MenuItem& button : buttons) {
    EXPECT_NE(std::find(entries.begin(), entries.end(), button.Entry), entries.end())
        << button.Name;
  }
  const auto paste = std::find_if(buttons.begin(), buttons.end(), [this](const MenuItem& button) {
    return button.Entry == &form.mnuEdit[5];
  });
  ASSERT_NE(paste, buttons.end());
  world.Clipboard.SetText("text");
  form.PasteTimer_Timer();
  EXPECT_TRUE(paste->Entry->Enabled());
  paste->Click();
  EXPECT_EQ(box.Text(), "text");
}

TEST_F(DocumentMenus, RunsTheCommandOfEachEntry) {
  const auto flipped = [this](const char* name, const MenuEntry& entry) {
    const bool before = entry.Checked();
    Choose(name);
    return entry.Checked() != before;
  };
  EXPECT_TRUE(flipped("mnuFormatWordwrap", form.mnuFormatWordwrap));
  EXPECT_TRUE(flipped("mnuViewToolbar", form.mnuViewToolbar));
  EXPECT_TRUE(flipped("mnuViewStatusbar", form.mnuViewStatusbar));
  Choose("mnuFormatFont");
  EXPECT_EQ(dialogs.Fonts.size(), 1u);
  Choose("mnuFormatBackcolor");
  EXPECT_EQ(dialogs.Colors.size(), 1u);
  Choose("mnuFileOpen");
  EXPECT_EQ(dialogs.Opened.size(), 1u);
  Choose("mnuFileSave");
  Choose("mnuFileSaveAs");
  EXPECT_EQ(dialogs.Saved.size(), 2u);
  Choose("mnuFilePageSetup");
  EXPECT_EQ(dialogs.PageSetups, 1);
  Choose("mnuFilePrint");
  EXPECT_EQ(dialogs.Printed.size(), 1u);
  Choose("mnuFilePrintPreview");
  EXPECT_EQ(dialogs.Previewed.size(), 1u);
  Choose("mnuFileAutoCAD");
  EXPECT_EQ(exports, 1);
  Choose("mnuFileAssoc");
  EXPECT_EQ(assocsShown, 1);
  EXPECT_EQ(Said(), Messages{});
  Choose("mnuFileProperties");
  Choose("mnuFormatStats");
  Choose("mnuFileAbout");
  EXPECT_EQ(Said().size(), 3u);
  Enter("x");
  Answer(no);
  Choose("mnuFileNew");
  EXPECT_EQ(form.Form.Caption(), "Untitled.txt");
  bool closed = false;
  form.Unload = [&] { closed = true; };
  Choose("mnuFileExit");
  EXPECT_TRUE(closed);
}

TEST_F(DocumentMenus, DispatchesTheEditCommandsByTheirPlace) {
  Enter("один два");
  box.Select(0, 4);
  Choose("mnuEdit4");
  EXPECT_EQ(world.Clipboard.Text(), "один");
  Choose("mnuEdit3");
  EXPECT_EQ(box.Text(), " два");
  Choose("mnuEdit5");
  EXPECT_EQ(box.Text(), "один два");
  Choose("mnuEdit8");
  EXPECT_EQ(box.SelText(), "один два");
  Choose("mnuEdit6");
  EXPECT_EQ(box.Text(), "");
  Choose("mnuEdit0");
  EXPECT_EQ(box.Text(), "один два");
  Choose("mnuEdit1");
  EXPECT_EQ(box.Text(), "");
  Choose("mnuEdit0");
  box.SetSelStart(4);
  Choose("mnuEdit9");
  EXPECT_EQ(box.SelText(), "один");
  box.SetSelStart(4);
  Choose("mnuEdit10");
  EXPECT_EQ(box.SelText(), " два");
}

TEST_F(DocumentMenus, DoesNothingAtASeparator) {
  MakeUnsavedDocument();
  const DocumentState before = State();
  for (const Integer index : std::vector<Integer>{2, 7, 13, -1}) {
    form.mnuEdit_Click(index);
  }
  EXPECT_EQ(State(), before);
  EXPECT_EQ(Said(), Messages{});
}

TEST_F(DocumentMenus, OpensFindWithTheSelectedTextAndKeepsAnOpenOneAsItIs) {
  Enter("раз два");
  box.Select(4, 3);
  Choose("mnuEdit12");
  EXPECT_EQ(findsShown, 1);
  EXPECT_EQ(form.Find.cboFind.Text(), "два");
  box.Select(0, 3);
  Choose("mnuEdit12");
  EXPECT_EQ(findsShown, 2);
  EXPECT_EQ(form.Find.cboFind.Text(), "два");
  form.Find.Form_Unload();
  Choose("mnuEdit12");
  EXPECT_EQ(form.Find.cboFind.Text(), "раз");
}

TEST_F(DocumentMenus, ReplacesThroughTheUndoOfTheDocument) {
  Enter("раз два раз");
  Choose("mnuEdit12");
  form.Find.cboFind.SetText("раз");
  form.Find.cboReplace.SetText("три");
  form.Find.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "три два три");
  EXPECT_EQ(Said(), (Messages{{.Title = "", .Text = "2 items replaced"}}));
  EXPECT_EQ(form.Undo.UndoCount(), 3);
}

TEST_F(DocumentMenus, KeepsTheHistoryOfFindUnderTheProgramsTitle) {
  Choose("mnuEdit12");
  form.Find.cboFind.SetText("раз");
  form.Find.cmdFindNext_Click();
  form.Find.Form_Unload();
  EXPECT_EQ(settings.Get("KELV SOFTWARE\\Trelo_calculation\\FindText", "Text1", ""), "раз");
}

TEST_F(DocumentMenus, OffersTheDateAndPutsItInAsOneStep) {
  Choose("mnuEdit11");
  EXPECT_EQ(datesShown, 1);
  ASSERT_EQ(form.Date.List1.List().size(), 8u);
  form.Date.List1.Select(3);
  form.Date.cmdOK_Click();
  EXPECT_EQ(box.Text(), "2026-01-02\r\n");
  EXPECT_EQ(form.Undo.UndoCount(), 1);
}

TEST(DocumentMenusWithoutOpeners, DisableWhatCannotBeOpened) {
  OtchetDesk desk;
  frmOtchetMain form(desk.Bundle(), desk.box, desk.dialogs, {}, "");
  form.Form_Load();
  EXPECT_FALSE(form.mnuFileAutoCAD.Enabled());
  EXPECT_FALSE(form.mnuFileAssoc.Enabled());
  EXPECT_FALSE(form.mnuEdit[11].Enabled());
  EXPECT_FALSE(form.mnuEdit[12].Enabled());
  form.mnuFileAutoCAD_Click();
  form.mnuFileAssoc_Click();
  form.mnuEdit_Click(11);
  form.mnuEdit_Click(12);
  EXPECT_EQ(desk.Said(), OtchetDesk::Messages{});
  EXPECT_TRUE(desk.form.mnuFileAutoCAD.Enabled());
  EXPECT_TRUE(desk.form.mnuFileAssoc.Enabled());
  EXPECT_TRUE(desk.form.mnuEdit[11].Enabled());
  EXPECT_TRUE(desk.form.mnuEdit[12].Enabled());
}

}  // namespace
}  // namespace trelonit::test

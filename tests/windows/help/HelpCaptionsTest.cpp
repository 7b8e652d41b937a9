// The guide knows every caption of the windows.

#include <QDir>
#include <QFile>
#include <QTextDocument>

#include "tests/windows/Modal.h"
#include "tests/windows/dialogs/ManagerScreen.h"
#include "tests/windows/dialogs/ParamertyScreen.h"
#include "tests/windows/dialogs/SteelScreen.h"
#include "tests/windows/drawing/DrawingSheets.h"
#include "tests/windows/editor/AssocScreen.h"
#include "tests/windows/editor/OtchetScreen.h"
#include "tests/windows/main/Screen.h"
#include "tests/windows/results/ResultsScreen.h"
#include "tests/windows/variants/VariantsScreen.h"
#include "windows/dialogs/AboutWindow.h"
#include "windows/dialogs/SearchWindow.h"
#include "windows/drawing/DrawingWindow.h"
#include "windows/help/HelpWindow.h"

namespace trelonit::test {
namespace {

/// Without marks of access keys and keys, blanks in a row as one.
std::string Plain(QString text) {
  return FromQt(text.section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&')).simplified());
}

/// All that the guide says.
const std::string& Guide() {
  static const std::string guide = [] {
    QString text;
    const QDir pages(QStringLiteral(":/help/pages"));
    for (const QString& name : pages.entryList()) {
      QFile file(pages.filePath(name));
      if (file.open(QIODevice::ReadOnly)) {
        QTextDocument page;
        page.setHtml(QString::fromUtf8(file.readAll()));
        text += page.toPlainText() + QLatin1Char('\n');
      }
    }
    return FromQt(text.simplified());
  }();
  return guide;
}

void ExpectTold(const std::string& caption) {
  EXPECT_NE(Guide().find(caption), std::string::npos) << '"' << caption << '"';
}

void ExpectCaptionsTold(const QWidget& window, std::size_t fewest) {
  Texts captions;
  for (const auto* button : window.findChildren<QAbstractButton*>()) {
    captions.push_back(Plain(button->text()));
  }
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) {
      captions.push_back(Plain(label->text()));
    }
  }
  for (const auto* box : window.findChildren<QGroupBox*>()) {
    captions.push_back(Plain(box->title()));
  }
  for (const auto* action : window.findChildren<QAction*>()) {
    // Those without a name are the toolkit's own.
    if (!action->objectName().isEmpty() && !action->objectName().startsWith(QLatin1Char('_'))) {
      captions.push_back(Plain(action->text()));
    }
  }
  std::erase_if(captions, [](const std::string& caption) { return caption.empty(); });
  EXPECT_GE(captions.size(), fewest);
  for (const std::string& caption : captions) {
    ExpectTold(caption);
  }
}

TEST(HelpTellsTheCaptions, OfTheMainMenus) {
  Screen screen;
  std::size_t entries = 0;
  for (const frmMain::MenuItem& menu : screen.Main.Menus()) {
    ExpectTold(Plain(ToQt(menu.Caption)));
    for (const frmMain::MenuItem& item : menu.Items) {
      ExpectTold(Plain(ToQt(item.Caption)));
      ++entries;
    }
  }
  EXPECT_EQ(entries, 10U);
}

TEST(HelpTellsTheCaptions, OfTheDocumentMenus) {
  OtchetScreen screen;
  screen.Start();
  std::size_t entries = 0;
  for (const frmOtchetMain::Menu& menu : screen.Form->Menus()) {
    ExpectTold(Plain(ToQt(menu.Caption)));
    for (const frmOtchetMain::MenuItem& item : menu.Items) {
      if (item.Entry != nullptr) {
        ExpectTold(Plain(ToQt(item.Entry->Caption())));
        ++entries;
      }
    }
  }
  EXPECT_EQ(entries, 31U);
}

TEST(HelpTellsTheCaptions, OfTheMainWindow) {
  Screen screen;
  for (int tab = 0; tab < 3; ++tab) {
    ExpectTold(FromQt(screen.Tabs().tabText(tab)));
  }
  ExpectCaptionsTold(screen.Window, 30);
}

TEST(HelpTellsTheCaptions, OfTheSteelWindow) {
  const SteelScreen screen;
  ExpectCaptionsTold(screen.Window, 10);
}

TEST(HelpTellsTheCaptions, OfTheFindWindow) {
  OtchetScreen screen;
  screen.Start();
  screen.Trigger("mnuEdit12");
  const auto* find = screen.Window->findChild<FindWindow*>();
  ASSERT_NE(find, nullptr);
  ExpectCaptionsTold(*find, 5);
}

TEST(HelpTellsTheCaptions, OfTheWindowOfTheAssociations) {
  AssocScreen screen;
  screen.Machine.Files = ".txt, .log, .tsav";
  screen.Open();
  ExpectCaptionsTold(*screen.Window, 7);
}

TEST(HelpTellsTheCaptions, OfTheResults) {
  ProgramScreen screen;
  bool looked = false;
  screen.Inspect = [&looked](KoeffOfUseWindow& results) {
    ExpectTold(Plain(results.windowTitle()));
    ExpectCaptionsTold(results, 5);
    for (const std::string& head : Look(results).Heads) {
      ExpectTold(head);
    }
    looked = true;
  };
  screen.Trigger("mnuCalc");
  EXPECT_TRUE(looked);
}

TEST(HelpTellsTheCaptions, OfTheSelection) {
  SelectionProposal proposal;
  proposal.Sections = SectionArray(1, sectionCount);
  BoundedArray<Image> layouts{1, groupCount};
  frmSearch form;
  form.Fill({.Proposal = proposal}, layouts, 1);
  const SearchWindow window(form, nullptr);
  ExpectTold(Plain(window.windowTitle()));
  ExpectCaptionsTold(window, 3);
  for (Long option = 1; option <= groupCount; ++option) {
    ExpectTold(form.lblName[option - 1].Caption());
  }
}

TEST(HelpTellsTheCaptions, OfTheVariants) {
  VariantsScreen screen;
  ExpectTold(Plain(screen.Program.Window->findChild<QAction*>("mnuVariants")->text()));
  screen.Open([&] {
    ExpectTold(Plain(screen.Window->windowTitle()));
    ExpectCaptionsTold(*screen.Window, 30);
    for (const ComboBox* box :
         {&screen.Form->cmbShow, &screen.Form->cmbPlot, &screen.Form->cmbColour}) {
      for (const std::string& entry : box->List()) {
        ExpectTold(entry);
      }
    }
  });
  EXPECT_EQ(screen.Opened, 1);
}

TEST(HelpTellsTheCaptions, OfTheParameters) {
  const ParamertyScreen screen;
  ExpectTold(Plain(screen.Window->windowTitle()));
  ExpectCaptionsTold(*screen.Window, 5);
}

TEST(HelpTellsTheCaptions, OfTheCatalogueManager) {
  const ManagerScreen screen;
  ExpectTold(Plain(screen.Window.windowTitle()));
  ExpectCaptionsTold(screen.Window, 20);
}

TEST(HelpTellsTheCaptions, OfTheWindowAboutTheProgram) {
  Screen screen;
  frmAbout form(screen.Outside.Bundle());
  form.Form_Load();
  const AboutWindow window(form, nullptr);
  ExpectTold(Plain(window.windowTitle()));
  ExpectCaptionsTold(window, 2);
}

TEST(HelpTellsTheCaptions, OfTheDates) {
  OtchetScreen screen;
  screen.Start();
  const OnceModal<QDialog> once([](QDialog& window) {
    ExpectTold(Plain(window.windowTitle()));
    ExpectCaptionsTold(window, 2);
    window.reject();
  });
  screen.Trigger("mnuEdit11");
  EXPECT_TRUE(once.Acted());
}

TEST(HelpTellsTheCaptions, OfTheGuidesOwnWindow) {
  const HelpWindow window;
  ExpectCaptionsTold(window, 9);
  const auto& sides = Find<QTabWidget>(window, "Sides");
  for (int side = 0; side < sides.count(); ++side) {
    ExpectTold(FromQt(sides.tabText(side)));
  }
  for (const char* field : {"Term", "Words", "FindText"}) {
    ExpectTold(FromQt(Find<QLineEdit>(window, field).placeholderText()));
  }
}

TEST(HelpTellsTheCaptions, OfTheDrawingWindow) {
  DrawingWindow window;
  window.Add(SmallDrawing());
  ExpectCaptionsTold(window, 10);
}

}  // namespace
}  // namespace trelonit::test

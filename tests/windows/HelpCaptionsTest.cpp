// The guide knows every caption of the windows.

#include <QDir>
#include <QFile>
#include <QTextDocument>

#include "tests/windows/DrawingSheets.h"
#include "tests/windows/OtchetScreen.h"
#include "tests/windows/Screen.h"
#include "tests/windows/SteelScreen.h"
#include "windows/DrawingWindow.h"

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
  EXPECT_EQ(entries, 28U);
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

TEST(HelpTellsTheCaptions, OfTheDrawingWindow) {
  DrawingWindow window;
  window.Add(SmallDrawing());
  ExpectCaptionsTold(window, 10);
}

}  // namespace
}  // namespace trelonit::test

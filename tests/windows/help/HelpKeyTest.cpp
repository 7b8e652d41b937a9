#include <QFile>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QWindow>
#include <fstream>

#include "platform/errors/RuntimeError.h"
#include "platform/system/ProgramNames.h"
#include "tests/windows/Modal.h"
#include "tests/windows/drawing/DrawingSheets.h"
#include "tests/windows/editor/OtchetScreen.h"
#include "tests/windows/main/Screen.h"
#include "windows/drawing/DrawingWindow.h"
#include "windows/help/HelpFile.h"
#include "windows/help/HelpKey.h"
#include "windows/help/HelpWindow.h"
#include "windows/services/DesktopServices.h"

namespace trelonit::test {
namespace {

/// Notes the places at which the key was pressed.
class Pressed {
 public:
  /// The places since the last question.
  Texts Take() { return std::exchange(places_, {}); }

 private:
  Texts places_;
  HelpKey key_{[this](const QString& place) { places_.push_back(FromQt(place)); }};
};

TEST(HelpPlaces, HaveAPageEach) {
  const HelpPages pages;
  std::set<std::string> named(help_place::All.begin(), help_place::All.end());
  for (int code = 0; code <= static_cast<int>(FindingCode::SelectionOpen); ++code) {
    named.insert(FromQt(FindingPlace(static_cast<FindingCode>(code))));
  }
  EXPECT_EQ(named.size(), help_place::All.size() + 9);
  for (const std::string& place : named) {
    const QString page = pages.PageOf(ToQt(place));
    EXPECT_NE(page, HelpPages::FirstPage()) << place;
    EXPECT_EQ(HelpPages::PageAt(HelpPages::UrlOf(page)), page) << place;
  }
  std::set<std::string> listed;
  for (const QString& place : pages.Places()) {
    listed.insert(FromQt(place));
  }
  EXPECT_EQ(named, listed);
}

TEST(HelpPlaces, OfTheTabsAreThoseInFront) {
  Pressed pressed;
  Screen screen;
  screen.Window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&screen.Window));
  for (int tab = 0; tab < 3; ++tab) {
    screen.GoTo(tab);
    QTest::keyClick(screen.Tabs().tabBar(), Qt::Key_F1);
    QTest::keyClick(&screen.Window, Qt::Key_F1);
    const std::string place = "tab" + std::to_string(tab);
    EXPECT_EQ(pressed.Take(), (Texts{place, place}));
  }
  screen.GoTo(0);
  QTest::keyClick(&screen.Edit("txtLengthF"), Qt::Key_F1);
  EXPECT_EQ(pressed.Take(), Texts{"tab0"});
  EXPECT_EQ(screen.Edit("txtLengthF").text(), "20");
}

TEST(HelpPlaces, KeepTheMenusOwnKeyOut) {
  Pressed pressed;
  Screen screen;
  screen.Window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&screen.Window));
  QTest::keyClick(screen.Window.windowHandle(), Qt::Key_F1);
  EXPECT_EQ(pressed.Take(), Texts{"tab0"});
  EXPECT_TRUE(screen.TakeMessages().empty());
  EXPECT_TRUE(screen.Outside.Shell.HelpOpened.empty());
}

TEST(HelpPlaces, TakeOnlyTheBareKey) {
  Pressed pressed;
  QWidget window;
  ShowActive(window);
  QTest::keyClick(&window, Qt::Key_F1, Qt::ShiftModifier);
  QTest::keyClick(&window, Qt::Key_F2);
  EXPECT_TRUE(pressed.Take().empty());
  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_EQ(pressed.Take(), Texts{""});
}

TEST(HelpPlaces, OfTheDocumentAndOfTheFindWindow) {
  Pressed pressed;
  OtchetScreen screen;
  screen.Start();
  screen.Key(Qt::Key_F1);
  EXPECT_EQ(pressed.Take(), Texts{"otchet"});
  screen.Trigger("mnuEdit12");
  auto* find = screen.Window->findChild<FindWindow*>();
  ASSERT_NE(find, nullptr);
  QTest::keyClick(find->focusWidget() == nullptr ? find : find->focusWidget(), Qt::Key_F1);
  EXPECT_EQ(pressed.Take(), Texts{"find"});
}

TEST(HelpPlaces, OfTheDrawings) {
  Pressed pressed;
  DrawingWindow window;
  window.Add(SmallDrawing());
  ShowActive(window);
  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_EQ(pressed.Take(), Texts{"drawing"});
}

TEST(HelpPlaces, OfAMessageIsTheMessage) {
  Pressed pressed;
  const HelpPages pages;
  const auto pageOf = [&](const Message& message) {
    const OnceModal<QMessageBox> once([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_F1); });
    DesktopMessages().Show(message);
    EXPECT_TRUE(once.Acted());
    const Texts places = pressed.Take();
    return places.size() == 1 ? FromQt(pages.PageOf(ToQt(places.front()))) : "not asked once";
  };
  EXPECT_EQ(pageOf({warningTitle, wrongGeometry, MessageStyle::Critical}),
            "messages.html#geometry");
  EXPECT_EQ(pageOf({warningTitle, doubtfulProportions, MessageStyle::Information}),
            "messages.html#proportions");
  EXPECT_EQ(pageOf({"", "Гибкость должна быть < 400", MessageStyle::Critical}),
            "messages.html#flex-400");
  EXPECT_EQ(pageOf({"", "Не найден типоразмер L1x1 перехожу в начало списка типоразмеров"}),
            "messages.html#size");
  EXPECT_EQ(pageOf(ErrorMessage("CalcTrelo1", 11, "Division by zero")), "messages.html#runtime");
  EXPECT_EQ(pageOf({"Переписать файл ?", "Такой файл уже существует! Заменить?",
                    MessageStyle::QuestionYesNo}),
            "messages.html#overwrite");
  EXPECT_EQ(pageOf({"Подбор по СНиП", "Схема не имеет решения", MessageStyle::Exclamation}),
            "messages.html#opinion-selection");
  // One that the guide does not know.
  EXPECT_EQ(pageOf({"", "???"}), "messages.html");
}

TEST(HelpPlaces, OfEveryMessageOfTheGuideIsItsOwn) {
  // A message as the guide tells it leads back to where it stands.
  QFile file(QStringLiteral(":/help/pages/messages.html"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString guide = QString::fromUtf8(file.readAll());
  const QRegularExpression part(
      QStringLiteral("<h3 id=\"([^\"]+)\">[^<]*</h3>\\s*<p class=\"msg\">([^<]+)</p>"));
  int count = 0;
  for (auto parts = part.globalMatch(guide); parts.hasNext(); ++count) {
    const QRegularExpressionMatch match = parts.next();
    QString text = match.captured(2);
    text.replace(QLatin1String("&lt;"), QLatin1String("<"));
    text.replace(QLatin1String("&gt;"), QLatin1String(">"));
    EXPECT_EQ(FromQt(HelpPages::PageOfMessage({}, text)),
              "messages.html#" + FromQt(match.captured(1)));
  }
  EXPECT_GT(count, 20);
}

TEST(HelpPlaces, OfABoxAreThoseOfTheWindowBelow) {
  Pressed pressed;
  QWidget window;
  SetHelpPlace(window, help_place::Steel);
  QMessageBox box(&window);
  ShowActive(box);
  QTest::keyClick(&box, Qt::Key_F1);
  EXPECT_EQ(pressed.Take(), Texts{"steel"});
}

TEST(HelpPlaces, AreAskedForByButtons) {
  Pressed pressed;
  QWidget window;
  SetHelpPlace(window, help_place::Results);
  QPushButton button(&window);
  AskForHelp(button, FindingPlace(FindingCode::PhiGap));
  EXPECT_EQ(pressed.Take(), Texts{"finding-phi-gap"});
}

TEST(HelpPlaces, CloseAnOpenList) {
  Pressed pressed;
  Screen screen;
  QComboBox& box = screen.Combo("cmbPanelNum");
  box.showPopup();
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(box.view(), Qt::Key_F1);
  EXPECT_EQ(pressed.Take(), Texts{"tab0"});
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST(HelpOverAModalWindow, CanBeRead) {
  HelpViewer viewer;
  const HelpKey key([&](const QString& place) { viewer.OpenPlace(place); });
  QDialog dialog;
  SetHelpPlace(dialog, help_place::Parameters);
  const OnceModal<QDialog> user([&](QDialog& modal) {
    QTest::keyClick(&modal, Qt::Key_F1);
    ASSERT_NE(viewer.Window(), nullptr);
    // What belongs to the modal window is not kept from the user.
    EXPECT_EQ(viewer.Window()->windowHandle()->transientParent(), modal.windowHandle());
    const auto& page = Find<QTextBrowser>(*viewer.Window(), "Page");
    EXPECT_EQ(HelpPages::PageAt(page.source()), "parameters.html");
    QTest::keyClick(viewer.Window()->windowHandle(), Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(HelpPages::PageAt(page.source()), "index.html");
  });
  dialog.exec();
  EXPECT_TRUE(user.Acted());
  ASSERT_NE(viewer.Window(), nullptr);
  EXPECT_TRUE(viewer.Window()->isVisible());
  // Without the modal window it stands alone again.
  viewer.Open();
  EXPECT_EQ(viewer.Window()->windowHandle()->transientParent(), nullptr);
}

TEST(HelpOverAModalWindow, ComesOverAMessageThatStandsOverTheHelp) {
  HelpViewer viewer;
  const HelpKey key([&](const QString& place) { viewer.OpenPlace(place); });
  QDialog dialog;
  SetHelpPlace(dialog, help_place::Parameters);
  bool asked = false;
  const OnceModal<QDialog> user([&](QDialog& below) {
    QTest::keyClick(&below, Qt::Key_F1);
    ASSERT_NE(viewer.Window(), nullptr);
    // Of the window below, while the help is read.
    QMessageBox message(viewer.Window());
    SetHelpPlace(message, help_place::Results);
    const OnceModal<QMessageBox> reader([&](QMessageBox& above) {
      QTest::keyClick(&above, Qt::Key_F1);
      asked = true;
      // Each over the other would be a circle, in which the toolkit looks for ever.
      EXPECT_EQ(viewer.Window()->windowHandle()->transientParent(), above.windowHandle());
      EXPECT_EQ(above.windowHandle()->transientParent(), below.windowHandle());
      const auto& page = Find<QTextBrowser>(*viewer.Window(), "Page");
      EXPECT_EQ(HelpPages::PageAt(page.source()), "results.html");
      QTest::keyClick(viewer.Window()->windowHandle(), Qt::Key_Home, Qt::AltModifier);
      EXPECT_EQ(HelpPages::PageAt(page.source()), "index.html");
    });
    message.exec();
  });
  dialog.exec();
  EXPECT_TRUE(asked);
}

#ifndef _WIN32
TEST(DesktopHelp, OpensTheProgramsOwnViewer) {
  HelpViewer viewer;
  DesktopShell(viewer).OpenHelp("/program/Trelo calculation.chm");
  ASSERT_NE(viewer.Window(), nullptr);
  EXPECT_TRUE(viewer.Window()->isVisible());
}
#endif

// The file ----------------------------------------------------------------------------------------

class InstalledHelp : public testing::Test {
 protected:
  InstalledHelp() {
    std::filesystem::create_directories(Root / "bin");
    std::filesystem::create_directories(Root / "share/trelonit");
    std::filesystem::create_directories(User);
  }
  static void Write(const std::filesystem::path& file, const std::string& text) {
    std::ofstream(file) << text;
  }
  std::string Placed() const {
    std::ifstream file(User / helpFileName);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::size_t FilesOfUser() const {
    const std::filesystem::directory_iterator files(User);
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

  QTemporaryDir Folder;
  const std::filesystem::path Root = Folder.path().toStdU16String();
  const std::filesystem::path User = Root / u8"пользователь";
};

TEST_F(InstalledHelp, IsFoundBesideTheProgramOrInTheSharedFolder) {
  EXPECT_TRUE(InstalledHelpFile(Root / "bin").empty());
  EXPECT_TRUE(InstalledHelpFile({}).empty());
  Write(Root / "share/trelonit" / helpFileName, "shared");
  EXPECT_EQ(InstalledHelpFile(Root / "bin"), Root / "share/trelonit" / helpFileName);
  Write(Root / "bin" / helpFileName, "own");
  EXPECT_EQ(InstalledHelpFile(Root / "bin"), Root / "bin" / helpFileName);
}

TEST_F(InstalledHelp, ComesIntoTheProgramsFolderAndIsRenewed) {
  const std::filesystem::path installed = Root / "share/trelonit" / helpFileName;
  const std::string user = reinterpret_cast<const char*>(User.u8string().c_str());
  Write(installed, "first");
  PlaceHelpFile(installed, user);
  EXPECT_EQ(Placed(), "first");
  // The same file is left as it is.
  const auto then = std::filesystem::last_write_time(User / helpFileName);
  PlaceHelpFile(installed, user);
  EXPECT_EQ(std::filesystem::last_write_time(User / helpFileName), then);
  Write(installed, "the second");
  PlaceHelpFile(installed, user);
  EXPECT_EQ(Placed(), "the second");
  EXPECT_EQ(FilesOfUser(), 1U);
}

TEST_F(InstalledHelp, StaysWhereItIsTheProgramsOwn) {
  const std::filesystem::path installed = User / helpFileName;
  Write(installed, "own");
  PlaceHelpFile(installed, reinterpret_cast<const char*>(User.u8string().c_str()));
  EXPECT_EQ(Placed(), "own");
  EXPECT_EQ(FilesOfUser(), 1U);
}

TEST_F(InstalledHelp, ThatIsMissingOrCannotBePlacedIsNoNews) {
  const std::filesystem::path installed = Root / "bin" / helpFileName;
  PlaceHelpFile({}, Root.string());
  PlaceHelpFile(installed, Root.string());
  Write(installed, "own");
  PlaceHelpFile(installed, (Root / "no such folder").string());
  EXPECT_FALSE(std::filesystem::exists(Root / "no such folder"));
  EXPECT_FALSE(std::filesystem::exists(Root / helpFileName));
}

}  // namespace
}  // namespace trelonit::test

#include "platform/text/CodePage1251.h"
#include "tests/windows/Modal.h"
#include "tests/windows/dialogs/ManagerScreen.h"

namespace trelonit::test {
namespace {

TEST(DataManagerWindowEdit, WritesTheCurrentRecordAlone) {
  ManagerScreen screen(3);
  const std::string before = screen.Data();
  screen.Click("cmdForv");
  Type(screen.Box(1), "L99x9");
  Type(screen.Box(3), "77.5");
  screen.Click("cmdEditCurrent");
  ProfileRec wanted = NumberedRecord(2);
  wanted.Name = "L99x9";
  wanted.H = 77.5;
  EXPECT_EQ(screen.Data(), RecordBytes(before, 1) + BytesOf(wanted) + RecordBytes(before, 3));
  EXPECT_EQ(screen.Counts(), "2/3");
  EXPECT_EQ(screen.Told(), Texts{});
}

TEST(DataManagerWindowEdit, IsReachedByCtrlReturnInABox) {
  ManagerScreen screen(1);
  Type(screen.Box(16), "5");
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_TRUE(Soon([&] { return screen.Files.Writes == 1; }));
  EXPECT_EQ(screen.Desk.Form.Records[1].P, 5);
  EXPECT_TRUE(screen.Window.isVisible());
}

TEST(DataManagerWindowEdit, ReturnAloneWritesNothing) {
  ManagerScreen screen(1);
  Type(screen.Box(16), "5");
  Press(Qt::Key_Return);
  EXPECT_EQ(screen.Files.Writes, 0);
  EXPECT_TRUE(screen.Window.isVisible());
}

TEST(DataManagerWindowEdit, ForgetsWhatIsTypedWhenTheUserGoesOn) {
  ManagerScreen screen(2);
  Type(screen.Box(1), "typed");
  screen.Click("cmdForv");
  screen.Click("cmdPrew");
  EXPECT_EQ(screen.Seen(), NumberedBoxes(1));
  EXPECT_EQ(screen.Files.Writes, 0);
}

TEST(DataManagerWindowEdit, CutsTextsThatAreTooLong) {
  ManagerScreen screen(2);
  Type(screen.Box(1), "1234567890123456");
  Type(screen.Box(2), std::string(50, 't') + "u");
  screen.Click("cmdEditCurrent");
  screen.Click("cmdForv");
  screen.Click("cmdPrew");
  EXPECT_EQ(FromQt(screen.Box(1).text()), "123456789012345");
  EXPECT_EQ(FromQt(screen.Box(2).text()), std::string(50, 't'));
  EXPECT_EQ(RecordBytes(screen.Data(), 2), BytesOf(NumberedRecord(2)));
}

TEST(DataManagerWindowEdit, WritesAQuestionMarkForWhatTheFileCannotHold) {
  ManagerScreen screen(2);
  Paste(screen.Box(1), "\u03A9\u00D8\u4E2DЯ");
  Paste(screen.Box(2), "\U0001F600x");
  screen.Click("cmdEditCurrent");
  EXPECT_EQ(RecordBytes(screen.Data(), 1).substr(0, 5), EncodeCodePage1251("???Я "));
  EXPECT_EQ(screen.Told(), Texts{});
  screen.Click("cmdForv");
  screen.Click("cmdPrew");
  EXPECT_EQ(FromQt(screen.Box(1).text().trimmed()), "???Я");
  EXPECT_EQ(FromQt(screen.Box(2).text().trimmed()), "?x");
}

TEST(DataManagerWindowEdit, TakesTextsOfTheLocaleAndNonsenseAsNought) {
  ManagerScreen screen(1, CommaLocale());
  Type(screen.Box(3), "12,5");
  Type(screen.Box(4), "нет");
  Type(screen.Box(5), "");
  screen.Click("cmdEditCurrent");
  EXPECT_EQ(screen.Desk.Form.Records[1].H, 12.5);
  EXPECT_EQ(screen.Desk.Form.Records[1].B, 0);
  EXPECT_EQ(screen.Desk.Form.Records[1].s, 0);
}

TEST(DataManagerWindowEdit, UnderlinedLettersPressTheButtons) {
  ManagerScreen screen(2);
  Type(screen.Box(3), "5");
  PressMnemonic(screen.Button("cmdEditCurrent").text());
  EXPECT_TRUE(Soon([&] { return screen.Files.Writes == 1; }));
  screen.Desk.World.Dialogs.Names = {screen.Path};
  screen.Click("cmdForv");
  PressMnemonic(screen.Button("cmdLoadDB").text());
  EXPECT_TRUE(Soon([&] { return screen.Counts() == "1/2"; }));
}

TEST(DataManagerWindowCheck, RepairsTheNamesOfTheFileAndLeavesTheBoxes) {
  ManagerScreen screen(2);
  screen.Click("cmdForv");
  ProfileRec spaced = NumberedRecord(1);
  spaced.Name = "L 1 x";
  screen.Data() = BytesOf(spaced) + BytesOf(NumberedRecord(2));
  screen.Desk.World.Dialogs.Names = {screen.Path};
  screen.Entry("CheckueDB").trigger();
  spaced.Name = "L1x";
  EXPECT_EQ(RecordBytes(screen.Data(), 1), BytesOf(spaced));
  EXPECT_EQ(screen.Counts(), "2/2");
  EXPECT_EQ(screen.Seen(), NumberedBoxes(2));
  screen.Click("cmdPrew");
  EXPECT_EQ(FromQt(screen.Box(1).text().trimmed()), "L1x");
}

TEST(DataManagerWindowExit, IsAnEntryOfTheMenuAndTheEscapeKey) {
  ManagerScreen byMenu(1);
  byMenu.Entry("Exit").trigger();
  EXPECT_FALSE(byMenu.Window.isVisible());

  ManagerScreen byKey(1);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(byKey.Window.isVisible());
  EXPECT_EQ(byKey.Files.Writes, 0);
}

/// What the user does in the manager that the program has opened.
using Visit = std::function<void(DataManagerWindow&, ProgramWith&)>;

/// The program whose manager is a window of its own while the main window is away.
class WithManager {
 public:
  explicit WithManager(Visit visit)
      : Running({.ShowDataManager =
                     [this, visit = std::move(visit)](frmDataManager& form) {
                       ++Opened;
                       MainSeen = MainSeen || Running.Window->isVisible();
                       DataManagerWindow window(form, nullptr);
                       const OnceModal<QDialog> user([&](QDialog&) { visit(window, Running); });
                       window.exec();
                       EXPECT_TRUE(user.Acted());
                     },
                 .EndProgram = [this] { ++Ended; }}) {}
  int Opened = 0;
  int Ended = 0;
  bool MainSeen = false;
  ProgramWith Running;
};

TEST(DataManagerOfTheProgram, HidesTheMainWindowUntilItCloses) {
  WithManager user([](DataManagerWindow& window, ProgramWith&) {
    ManagerView(window).Entry("Exit").trigger();
    EXPECT_FALSE(window.isVisible());
  });
  ASSERT_TRUE(user.Running.Window->isVisible());
  user.Running.Trigger("mnuProfile");
  EXPECT_EQ(user.Opened, 1);
  EXPECT_FALSE(user.MainSeen);
  EXPECT_TRUE(user.Running.Window->isVisible());
  EXPECT_EQ(user.Ended, 0);
}

TEST(DataManagerOfTheProgram, StartsEmptyAtEachOpening) {
  WithManager user([](DataManagerWindow& window, ProgramWith& program) {
    ManagerView view(window);
    EXPECT_EQ(view.Counts(), "0/0");
    EXPECT_EQ(view.Seen(), Texts(16));
    program.Outside.Dialogs.Names = {"/data/some.dat"};
    view.Click("cmdLoadDB");
    EXPECT_EQ(view.Counts(), "1/5");
  });
  user.Running.Outside.Files.Content["/data/some.dat"] = NumberedFile(5);
  user.Running.Trigger("mnuProfile");
  user.Running.Trigger("mnuProfile");
  EXPECT_EQ(user.Opened, 2);
}

TEST(DataManagerOfTheProgram, LeavesTheCatalogueInMemoryAlone) {
  const std::string path = "/program/GOST profile.dat";
  WithManager user([&](DataManagerWindow& window, ProgramWith& program) {
    ManagerView view(window);
    program.Outside.Dialogs.Names = {path};
    view.Click("cmdLoadDB");
    Type(view.Box(1), "changed");
    view.Click("cmdEditCurrent");
  });
  MemoryFiles& files = user.Running.Outside.Files;
  if (files.Content.count(path) == 0) {
    files.Content[path] = NumberedFile(3);
  }
  const Texts before = Entries(Find<QComboBox>(*user.Running.Window, "cmbSectType"));
  user.Running.Trigger("mnuProfile");
  EXPECT_EQ(files.Content[path].substr(0, 15), "changed        ");
  EXPECT_EQ(Entries(Find<QComboBox>(*user.Running.Window, "cmbSectType")), before);
  EXPECT_EQ(std::count(before.begin(), before.end(), "changed"), 0);
  EXPECT_FALSE(before.empty());
}

TEST(DataManagerOfTheProgram, EndsTheProgramWhereAFileCannotBeOpened) {
  WithManager user([](DataManagerWindow& window, ProgramWith& program) {
    program.Outside.Files.Refused["/data/some.dat"] = ErrorNumber::PermissionDenied;
    program.Outside.Dialogs.Names = {"/data/some.dat"};
    ManagerView(window).Click("cmdLoadDB");
  });
  user.Running.Outside.Files.Content["/data/some.dat"] = NumberedFile(1);
  user.Running.Trigger("mnuProfile");
  EXPECT_EQ(user.Ended, 1);
}

}  // namespace
}  // namespace trelonit::test

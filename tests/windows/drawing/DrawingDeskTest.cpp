#include <QPointer>

#include "platform/system/AutomationMembers.h"
#include "tests/drawinghost/HostDesk.h"
#include "tests/windows/DialogHands.h"
#include "tests/windows/Modal.h"
#include "windows/drawing/DrawingDesk.h"

namespace trelonit::test {
namespace {

/// A machine without other programs.
class NoOtherProgram : public AutomationService {
 public:
  AutomationHandle Create(const std::string& programIdentifier) override {
    Asked = programIdentifier;
    throw RuntimeError(ErrorNumber::CannotCreateObject);
  }
  std::string Asked;
};

/// The desk, and the export of a real design to it.
class Exporting : public testing::Test {
 protected:
  void Export() {
    Messages.Shown.clear();
    ACADExport(Desk.Automation(), Messages, NumberLocale{}, {Data, Result, Sections}, Panel)
        .mnuFileAutoCAD_Click();
    EXPECT_TRUE(Messages.Shown.empty());
  }
  /// Shows the drawings and acts on the window; it is closed afterwards.
  bool Shown(const std::function<void(DrawingWindow&)>& act = [](DrawingWindow&) {}) {
    const OnceModal<DrawingWindow> user(act);
    Desk.ShowDrawings(&Parent);
    return user.Acted();
  }
  static int Tabs(DrawingWindow& window) { return Find<QTabWidget>(window, "Drawings").count(); }

  TreloData Data = DrawnData(1, 4);
  TreloResult Result = Solved(Data);
  SectionArray Sections = NamedSections();
  RecordingMessages Messages;
  Label Panel;
  QWidget Parent;
  DrawingDesk Desk;
};

TEST_F(Exporting, ShowsNothingBeforeThereIsADrawing) {
  EXPECT_FALSE(Shown());
  Desk.Automation().Create(drawingHostIdentifier);
  EXPECT_FALSE(Shown());
}

TEST_F(Exporting, ShowsTheDrawingInAWindowThatEndsWithTheUser) {
  Export();
  EXPECT_EQ(Panel.Caption(), "AutoCAD connected");
  EXPECT_TRUE(Shown([&](DrawingWindow& window) {
    EXPECT_EQ(FromQt(window.windowTitle()), "Чертеж - Drawing1.dwg");
    EXPECT_EQ(window.parentWidget(), &Parent);
    EXPECT_EQ(Tabs(window), 1);
  }));
  EXPECT_EQ(Parent.findChild<QMainWindow*>(), nullptr);
}

TEST_F(Exporting, ShowsEarlierDrawingsTooTheLastInFront) {
  Export();
  EXPECT_TRUE(Shown());
  Export();
  EXPECT_TRUE(Shown([&](DrawingWindow& window) {
    EXPECT_EQ(Tabs(window), 2);
    EXPECT_EQ(FromQt(window.windowTitle()), "Чертеж - Drawing2.dwg");
  }));
}

TEST_F(Exporting, ClosesInTheHostWhatTheUserCloses) {
  Export();
  Export();
  EXPECT_TRUE(Shown([&](DrawingWindow& window) {
    window.findChild<QAction*>(QStringLiteral("Close"))->trigger();
    EXPECT_EQ(Tabs(window), 1);
    EXPECT_EQ(Desk.Host().Documents().size(), 1U);
    EXPECT_EQ(Desk.Host().ActiveDocument()->Name, "Drawing1.dwg");
    window.findChild<QAction*>(QStringLiteral("Close"))->trigger();
    EXPECT_TRUE(Desk.Host().Documents().empty());
    EXPECT_FALSE(window.isVisible());
  }));
  EXPECT_FALSE(Shown());
}

TEST_F(Exporting, MakesTheDrawingInFrontTheActiveOne) {
  Export();
  Export();
  EXPECT_TRUE(Shown([&](DrawingWindow& window) {
    ClickTab(Find<QTabWidget>(window, "Drawings"), 0);
    EXPECT_EQ(Desk.Host().ActiveDocument()->Name, "Drawing1.dwg");
  }));
  EXPECT_TRUE(Shown([&](DrawingWindow& window) {
    EXPECT_EQ(FromQt(window.windowTitle()), "Чертеж - Drawing1.dwg");
  }));
}

TEST_F(Exporting, FollowsTheHostWhileItIsOpen) {
  Export();
  EXPECT_TRUE(Shown([&](DrawingWindow& window) {
    Export();
    EXPECT_EQ(Tabs(window), 2);
    EXPECT_EQ(FromQt(window.windowTitle()), "Чертеж - Drawing2.dwg");
    auto& view = dynamic_cast<DrawingView&>(*Find<QTabWidget>(window, "Drawings").currentWidget());
    EXPECT_GT(view.Painter().Bounds(false).width(), 8000);
    CallMember(ObjectMember(Desk.Host().Application(), "ActiveDocument"), "Close", {false});
    EXPECT_EQ(Tabs(window), 1);
    SetMember(Desk.Host().Application(), "Visible", false);
    EXPECT_FALSE(window.isVisible());
  }));
  EXPECT_FALSE(Shown());
}

TEST_F(Exporting, BringsAnOpenWindowToTheFront) {
  Export();
  EXPECT_TRUE(Shown([&](DrawingWindow& window) {
    Desk.ShowDrawings(&Parent);
    EXPECT_EQ(Parent.findChildren<QMainWindow*>().size(), 1);
    EXPECT_TRUE(window.isVisible());
  }));
}

TEST(DrawingDesk, AsksTheNextServiceForOtherPrograms) {
  NoOtherProgram next;
  DrawingDesk desk(&next);
  EXPECT_EQ(RaisedBy([&] { desk.Automation().Create("Word.Application"); }), 429);
  EXPECT_EQ(next.Asked, "Word.Application");
  DrawingDesk alone;
  EXPECT_EQ(RaisedBy([&] { alone.Automation().Create("Word.Application"); }), 429);
}

}  // namespace
}  // namespace trelonit::test

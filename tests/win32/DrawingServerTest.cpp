// The drawing in a real host's place: a process of its own, reached by COM as the drawing program
// is.

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/win32/ComAutomation.h"
#include "tests/drawing/DrawingDesk.h"
#include "tests/win32/ServerProgram.h"

namespace trelonit::test {

namespace {

constexpr const char* drawingProgram = "AutoCAD.Application";
constexpr int generalFailure = -2147467259;  // 80004005

Long PanelsOf(Long scheme) {
  return scheme == 3 ? 2 : 4;
}

/// What a host in this process is asked, without the reaching of it, and what the user is told.
struct DrawnHere {
  explicit DrawnHere(Long scheme, const std::map<std::string, RuntimeError>& failures = {}) {
    ExportDesk desk(scheme, PanelsOf(scheme));
    desk.Host.FailingMembers = failures;
    desk.Export.mnuFileAutoCAD_Click();
    Calls = desk.Host.Calls;
    std::erase_if(Calls, [](const std::string& call) {
      return call.starts_with("GetRunning ") || call.starts_with("Create ");
    });
    Told = desk.Messages.Shown;
  }

  std::vector<std::string> Calls;
  std::vector<Message> Told;
};

/// The export to whatever this machine has under the drawing program's name.
struct SentDrawing {
  explicit SentDrawing(Long scheme) : Design(scheme, PanelsOf(scheme)) {}
  void Send() { Export.mnuFileAutoCAD_Click(); }

  RoundDesign Design;
  ComAutomation Automation;
  RecordingMessages Messages;
  Label Panel;
  ACADExport Export{
      Automation, Messages, NumberLocale(), {Design.Data, Design.Result, Design.Sections}, Panel};
};

class DrawingServer : public testing::TestWithParam<Long> {};

TEST_P(DrawingServer, IsAskedWhatAHostInThisProcessIsAsked) {
  const DrawnHere here(GetParam());
  ASSERT_GT(here.Calls.size(), 300U);
  const ServerProgram server(drawingProgram);
  SentDrawing sent(GetParam());
  sent.Send();
  EXPECT_EQ(server.Calls(), here.Calls);
  EXPECT_EQ(sent.Panel.Caption(), "AutoCAD connected");
  EXPECT_TRUE(sent.Messages.Shown.empty());
  EXPECT_EQ(server.Starts(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Schemes, DrawingServer, testing::Values(1, 2, 3, 4));

TEST(DrawingServerThatRuns, IsTheOneThatDraws) {
  ServerProgram server(drawingProgram, {.Runs = true});
  server.Start();
  ASSERT_EQ(server.Starts(), 1U);
  SentDrawing sent(3);
  sent.Send();
  EXPECT_EQ(server.Calls(), DrawnHere(3).Calls);
  EXPECT_EQ(server.Starts(), 1U);
}

TEST(DrawingServerThatIsBusy, IsAskedAgainUntilItHasTime) {
  const ServerProgram server(drawingProgram, {.Busy = 1500});
  SentDrawing sent(3);
  sent.Send();
  EXPECT_GT(server.TurnedAway(), 0U);
  EXPECT_EQ(server.Calls(), DrawnHere(3).Calls);
  EXPECT_TRUE(sent.Messages.Shown.empty());
}

TEST(DrawingServerThatFails, IsToldAsOneInThisProcess) {
  const std::vector<std::map<std::string, RuntimeError>> failures{
      // The driver's own steps.
      {{"Application.Visible", RuntimeError(ErrorNumber::PropertyNotSupported)}},
      {{"DimStyles.Add", RuntimeError(1004, "Стиль уже есть")}},
      {{"Document.ModelSpace", RuntimeError(generalFailure, "Automation error")}},
      // Lines, texts and dimensions, each in the way of its own.
      {{"ModelSpace.AddLine", RuntimeError(1004, "Нет места")},
       {"Text.Alignment", RuntimeError(ErrorNumber::PropertyNotSupported)},
       {"Dimension.TextGap", RuntimeError(generalFailure, "Automation error")}},
      {{"Line.Layer", RuntimeError(1004, "Слой заперт")},
       {"ModelSpace.AddText", RuntimeError(generalFailure, "Automation error")},
       {"ModelSpace.AddDimRotated", RuntimeError(ErrorNumber::PropertyNotSupported)}},
  };
  for (const auto& failing : failures) {
    SCOPED_TRACE(failing.begin()->first);
    const DrawnHere here(3, failing);
    ASSERT_FALSE(here.Told.empty());
    const ServerProgram server(drawingProgram, {.Failures = failing});
    SentDrawing sent(3);
    sent.Send();
    EXPECT_EQ(server.Calls(), here.Calls);
    EXPECT_TRUE(sent.Messages.Shown == here.Told);
  }
}

TEST(DrawingServerThatDies, IsToldAndTheNextOneDraws) {
  SentDrawing sent(3);
  {
    constexpr std::size_t amongTheBars = 70;
    const ServerProgram server(drawingProgram, {.Death = amongTheBars});
    sent.Send();
    EXPECT_EQ(server.Calls().size(), amongTheBars - 1);
    EXPECT_TRUE(server.IsGone());
    EXPECT_FALSE(sent.Messages.Shown.empty());
    const std::set<std::string> titles{"ACADClass", "AutoCAD Class", "AutoCAD Export",
                                       "mnuFileAutoCAD_Click"};
    for (const Message& message : sent.Messages.Shown) {
      EXPECT_EQ(message.Style, MessageStyle::Critical);
      EXPECT_TRUE(titles.contains(message.Title)) << message.Title << ": " << message.Text;
    }
    sent.Messages.Shown.clear();
  }
  const ServerProgram next(drawingProgram);
  sent.Send();
  EXPECT_EQ(next.Calls(), DrawnHere(3).Calls);
  EXPECT_TRUE(sent.Messages.Shown.empty());
}

}  // namespace

}  // namespace trelonit::test

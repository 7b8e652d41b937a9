#include <algorithm>
#include <gtest/gtest.h>

#include "tests/drawing/DrawingDesk.h"

namespace trelonit::test {

namespace {

using Calls = std::vector<std::string>;
using Boxes = std::vector<Message>;

constexpr const char* spaceRead = "Document1.ModelSpace";

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

/// Where the export is at a call.
enum class Stage { Attaching, Driver, Scheme };

Stage StageOf(const std::string& call) {
  if (call.starts_with("GetRunning")) {
    return Stage::Attaching;
  }
  const bool scheme = call.starts_with("Line") || call.starts_with("Text1") ||
                      (call.starts_with("Text") && !call.starts_with("TextStyle")) ||
                      (call.starts_with("Dimension")) ||
                      call.starts_with(std::string(spaceRead) + '.') ||
                      call == "Document1.SetVariable(\"DIMSCALE\", 40#)";
  return scheme ? Stage::Scheme : Stage::Driver;
}

/// What the user is told where the call fails with error 77, "Broken".
Boxes BoxesFor(const std::string& call) {
  const Message driver = Box("mnuFileAutoCAD_Click", " Err # 77 Discription : Broken");
  const Message scheme = Box("AutoCAD Export", " Err # 77 Discription : Broken");
  const Message dimension = Box("AutoCAD Class", " Err # 77 Discription : Broken");
  const std::string unset = "Object variable or With block variable not set";
  switch (StageOf(call)) {
    case Stage::Attaching:
      return {};
    case Stage::Driver:
      return {driver};
    case Stage::Scheme:
      break;
  }
  if (Contains(call, ".AddLine(")) {
    return {Box("ACADClass", "Не удалось создать линию по указанным координатам!"),
            Box("ACADClass", "Err # 91 err discription : " + unset)};
  }
  if (call.starts_with("Line")) {
    return {Box("ACADClass", "Err # 77 err discription : Broken")};
  }
  if (Contains(call, ".AddText(")) {
    return {Box("ACADClass", "Не удалось создать текст по указанным координатам!")};
  }
  if (call.starts_with("Text")) {
    return {Box("ACADClass", "Не удалось задать тексту точку вставки!")};
  }
  if (Contains(call, ".AddDimRotated(")) {
    return {dimension, Box("AutoCAD Export", " Err # 91 Discription : " + unset)};
  }
  if (call.starts_with("Dimension") && Contains(call, ".Layer = ")) {
    return {dimension};
  }
  return {scheme};
}

/// What is put into the model space after its n-th reading, counted from 1, up to the next one.
Calls Additions(const Calls& calls, int reading) {
  Calls additions;
  int readings = 0;
  for (const std::string& call : calls) {
    readings += call == spaceRead ? 1 : 0;
    if (readings == reading && call.starts_with(std::string(spaceRead) + ".Add")) {
      additions.push_back(call);
    }
  }
  return additions;
}

class FailingHost : public testing::TestWithParam<Long> {
 protected:
  static Long Panels() { return GetParam() == 3 ? 2 : 4; }
};

TEST_P(FailingHost, AtEachSingleCallTellsItAndGoesOn) {
  ExportDesk whole(GetParam(), Panels());
  whole.Export.mnuFileAutoCAD_Click();
  ASSERT_TRUE(whole.Messages.Shown.empty());
  const Calls& calls = whole.Host.Calls;
  ASSERT_GT(calls.size(), 300U);

  for (std::size_t failing = 1; failing <= calls.size(); ++failing) {
    ExportDesk desk(GetParam(), Panels());
    desk.Host.FailingCall = failing;
    desk.Export.mnuFileAutoCAD_Click();
    const std::string& call = calls[failing - 1];
    SCOPED_TRACE(std::to_string(failing) + ": " + call);
    ASSERT_EQ(desk.Messages.Shown, BoxesFor(call));
    ASSERT_TRUE(std::equal(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(failing),
                           desk.Host.Calls.begin()));
    if (StageOf(call) == Stage::Driver) {
      ASSERT_EQ(desk.Host.Calls.size(), failing);
      continue;
    }
    ASSERT_EQ(desk.Host.Calls.back(), "Application.ZoomExtents()");
    const int readings = static_cast<int>(
        std::count(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(failing),
                   std::string(spaceRead)));
    const int other = readings == 2 ? 1 : 2;
    ASSERT_EQ(Additions(desk.Host.Calls, other), Additions(calls, other));
  }
}

TEST_P(FailingHost, AtEveryUseOfAMemberLetsNoErrorThrough) {
  for (const char* member : {"GetRunning",           "Application.Visible",
                             "Application.Version",  "Application.Documents",
                             "Documents.Add",        "Document.Layers",
                             "Layers.Add",           "Layer.Freeze",
                             "Document.ActiveLayer", "TextStyles.Add",
                             "TextStyle.Width",      "Document.ActiveTextStyle",
                             "DimStyles.Add",        "Document.ActiveDimStyle",
                             "Document.SetVariable", "Document.ModelSpace",
                             "ModelSpace.Document",  "ModelSpace.AddLine",
                             "ModelSpace.AddText",   "ModelSpace.AddDimRotated",
                             "Line.Layer",           "Text.Alignment",
                             "Text.Rotation",        "Text.TextAlignmentPoint",
                             "Text.Layer",           "Dimension.Layer",
                             "Dimension.TextStyle",  "Dimension.PrimaryUnitsPrecision",
                             "Document.Application", "Application.ZoomExtents"}) {
    ExportDesk desk(GetParam(), Panels());
    desk.Host.FailingMembers.emplace(member, RuntimeError(77, "Broken"));
    desk.Export.mnuFileAutoCAD_Click();
    for (const Message& message : desk.Messages.Shown) {
      EXPECT_EQ(message.Style, MessageStyle::Critical);
      EXPECT_TRUE(message.Title == "ACADClass" || message.Title == "AutoCAD Class" ||
                  message.Title == "AutoCAD Export" || message.Title == "mnuFileAutoCAD_Click")
          << message.Title;
    }
    EXPECT_EQ(desk.Messages.Shown.empty(), std::string(member) == "GetRunning") << member;
  }
}

TEST_P(FailingHost, ThatGivesNoObjectsLetsNoErrorThrough) {
  for (const char* member :
       {"Application.Documents", "Documents.Add", "Document.Layers", "Layers.Add", "TextStyles.Add",
        "DimStyles.Add", "Document.ModelSpace", "ModelSpace.Document", "ModelSpace.AddLine",
        "ModelSpace.AddText", "ModelSpace.AddDimRotated", "Document.Application"}) {
    ExportDesk desk(GetParam(), Panels());
    desk.Host.EmptyMembers.insert(member);
    desk.Export.mnuFileAutoCAD_Click();
    // The style of dimensions has no members of its own that would be missed.
    EXPECT_EQ(desk.Messages.Shown.empty(), std::string(member) == "DimStyles.Add") << member;
  }
}

INSTANTIATE_TEST_SUITE_P(Schemes, FailingHost, testing::Values(1, 2, 3, 4));

}  // namespace

}  // namespace trelonit::test

#include <gtest/gtest.h>

#include "tests/drawing/DrawingDesk.h"

namespace trelonit::test {

namespace {

using Calls = std::vector<std::string>;
using Values = std::vector<AutomationValue>;

const RuntimeError brokenConnection(77, "Broken");

TEST(Connection, WithoutAHostIsEmptyAndSilent) {
  WrapperDesk desk;
  desk.Host.Installed = false;
  EXPECT_EQ(desk.ACAD.GetACADObject(), nullptr);
  EXPECT_EQ(desk.ACAD.GetOrCreateACADObject(), nullptr);
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(Connection, OnAMachineWithoutAutomationIsEmptyToo) {
  NoAutomation none;
  RecordingMessages messages;
  const clsAutoCAD wrapper(none, messages, {});
  EXPECT_EQ(wrapper.GetACADObject(), nullptr);
  EXPECT_EQ(wrapper.GetOrCreateACADObject(), nullptr);
  EXPECT_TRUE(messages.Shown.empty());
}

TEST(Connection, AttachingNeverStartsTheHost) {
  WrapperDesk desk;
  EXPECT_EQ(desk.ACAD.GetACADObject(), nullptr);
  EXPECT_EQ(desk.Host.Calls, Calls{"GetRunning AutoCAD.Application"});
  desk.Host.Running = true;
  EXPECT_EQ(desk.ACAD.GetACADObject(), desk.Host.Application());
}

TEST(Connection, AttachesToARunningHostAndStartsNoSecondOne) {
  WrapperDesk desk;
  desk.Host.Running = true;
  EXPECT_EQ(desk.ACAD.GetOrCreateACADObject(), desk.Host.Application());
  EXPECT_EQ(desk.Host.Calls, Calls{"GetRunning AutoCAD.Application"});
}

TEST(Connection, StartsTheHostWhereNoneRuns) {
  WrapperDesk desk;
  EXPECT_EQ(desk.ACAD.GetOrCreateACADObject(), desk.Host.Application());
  EXPECT_EQ(desk.Host.Calls,
            (Calls{"GetRunning AutoCAD.Application", "Create AutoCAD.Application"}));
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(ActiveDrawing, IsTheApplicationsOwnOrEmpty) {
  WrapperDesk desk;
  EXPECT_EQ(desk.ACAD.TryGetActivDraw(desk.Host.Application()), desk.Document);
  desk.Host.FailingMembers.emplace("Application.ActiveDocument", brokenConnection);
  EXPECT_EQ(desk.ACAD.TryGetActivDraw(desk.Host.Application()), nullptr);
  EXPECT_EQ(desk.ACAD.TryGetActivDraw(nullptr), nullptr);
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(DocumentAccess, TakesTheActiveOneAndIgnoresTheName) {
  WrapperDesk desk;
  EXPECT_EQ(desk.ACAD.GetACADDocument(desk.Host.Application(), "C:\\a.dwg", true, true),
            desk.Document);
  EXPECT_EQ(desk.Host.Calls, (Calls{"Application.Documents", "Application.ActiveDocument"}));
}

TEST(DocumentAccess, OpensAFileByItsNameAlone) {
  WrapperDesk desk;
  const auto document =
      desk.ACAD.GetACADDocument(desk.Host.Application(), "C:\\a.dwg", false, false);
  EXPECT_EQ(document, desk.Host.Objects("Document").at(1));
  EXPECT_EQ(desk.Host.Calls,
            (Calls{"Application.Documents", "Application.Documents.Open(\"C:\\a.dwg\")"}));
}

TEST(DocumentAccess, TellsTheHostOnlyThatAFileIsReadOnly) {
  WrapperDesk desk;
  desk.ACAD.GetACADDocument(desk.Host.Application(), "C:\\a.dwg", true, false);
  EXPECT_EQ(desk.Host.Calls.back(), "Application.Documents.Open(\"C:\\a.dwg\", True)");
}

TEST(DocumentAccess, IsEmptyAndSilentAfterAnyError) {
  for (const char* member :
       {"Application.Documents", "Application.ActiveDocument", "Documents.Open"}) {
    WrapperDesk desk;
    desk.Host.FailingMembers.emplace(member, brokenConnection);
    const bool useActive = std::string(member) != "Documents.Open";
    EXPECT_EQ(desk.ACAD.GetACADDocument(desk.Host.Application(), "a", false, useActive), nullptr)
        << member;
    EXPECT_TRUE(desk.Messages.Shown.empty()) << member;
  }
}

TEST(ClosingAll, ClosesEveryDocumentWithoutSaving) {
  WrapperDesk desk;
  desk.Host.OpenDocument();
  EXPECT_TRUE(desk.ACAD.CloseAll(desk.Host.Application()));
  EXPECT_EQ(desk.Host.Calls, (Calls{"Application.Documents", "Application.Documents enumerated",
                                    "Document1.Close(False)", "Document2.Close(False)"}));
}

TEST(ClosingAll, SucceedsWithNoDocumentOpen) {
  RecordingHost host;
  RecordingMessages messages;
  EXPECT_TRUE(clsAutoCAD(host, messages, {}).CloseAll(host.Application()));
  EXPECT_EQ(host.Calls.back(), "Application.Documents enumerated");
}

TEST(ClosingAll, StopsAtTheFirstError) {
  WrapperDesk desk;
  desk.Host.OpenDocument();
  desk.Host.FailingMembers.emplace("Document.Close", brokenConnection);
  EXPECT_FALSE(desk.ACAD.CloseAll(desk.Host.Application()));
  EXPECT_EQ(desk.Host.Calls.back(), "Document1.Close(False)");
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(Dictionaries, AreAddedWhereTheyAreAbsent) {
  WrapperDesk desk;
  const auto made = desk.ACAD.GetOrCreateACADDictionary("TRUSS", desk.Document);
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(desk.Host.Calls,
            (Calls{"Document1.Dictionaries", "Document1.Dictionaries.Item(\"TRUSS\")",
                   "Document1.Dictionaries.Add(\"TRUSS\")"}));
  EXPECT_EQ(desk.ACAD.GetOrCreateACADDictionary("TRUSS", desk.Document), made);
  EXPECT_EQ(desk.Host.Calls.back(), "Document1.Dictionaries.Item(\"TRUSS\")");
}

TEST(Dictionaries, AreAddedAfterAnEmptyAnswerToo) {
  WrapperDesk desk;
  desk.Host.EmptyMembers.insert("Dictionaries.Item");
  EXPECT_NE(desk.ACAD.GetOrCreateACADDictionary("TRUSS", desk.Document), nullptr);
  EXPECT_EQ(desk.Host.CountOf("Document1.Dictionaries.Add(\"TRUSS\")"), 1U);
}

TEST(Dictionaries, AreEmptyAndSilentWhereTheHostRefuses) {
  for (const char* member : {"Document.Dictionaries", "Dictionaries.Add"}) {
    WrapperDesk desk;
    desk.Host.FailingMembers.emplace(member, brokenConnection);
    EXPECT_EQ(desk.ACAD.GetOrCreateACADDictionary("TRUSS", desk.Document), nullptr) << member;
    EXPECT_TRUE(desk.Messages.Shown.empty()) << member;
  }
}

TEST(ExtendedRecords, AreAddedToADictionaryWhereTheyAreAbsent) {
  WrapperDesk desk;
  const auto dictionary = desk.Host.Make("Dictionary", "Own");
  const auto made = desk.ACAD.GetOrCreateXRecord(dictionary, "LOADS");
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(desk.Host.Calls, (Calls{"Own.GetObject(\"LOADS\")", "Own.AddXRecord(\"LOADS\")"}));
  EXPECT_EQ(desk.ACAD.GetOrCreateXRecord(dictionary, "LOADS"), made);
  EXPECT_EQ(desk.ACAD.GetOrCreateXRecord(nullptr, "LOADS"), nullptr);
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(ExtendedRecords, KeepTypesAndValues) {
  WrapperDesk desk;
  const auto record = desk.Host.Make("XRecord", "Record");
  const AutomationList types{{Long{1}}, {Long{40}}};
  const AutomationList values{{std::string("a")}, {2.5}};
  EXPECT_TRUE(desk.ACAD.SetXRecordData(record, types, values));
  EXPECT_EQ(desk.Host.Calls.back(), "Record.SetXRecordData([1, 40], [\"a\", 2.5#])");
  const ExtendedData data = desk.ACAD.GetXRecordData(record);
  EXPECT_EQ(desk.Host.Calls.back(), "Record.GetXRecordData(Empty, Empty)");
  EXPECT_EQ(data.Types, AutomationValue(types));
  EXPECT_EQ(data.Values, AutomationValue(values));
  EXPECT_TRUE(desk.ACAD.CheckXDataSpace(data));
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(ExtendedRecords, TellTheDescriptionOfAnErrorAlone) {
  WrapperDesk desk;
  const auto record = desk.Host.Make("XRecord", "Record");
  desk.Host.FailingMembers.emplace("XRecord.SetXRecordData", brokenConnection);
  desk.Host.FailingMembers.emplace("XRecord.GetXRecordData", brokenConnection);
  EXPECT_FALSE(desk.ACAD.SetXRecordData(record, AutomationList(), AutomationList()));
  const ExtendedData data = desk.ACAD.GetXRecordData(record);
  EXPECT_EQ(data.Types, AutomationValue());
  EXPECT_EQ(data.Values, AutomationValue());
  EXPECT_EQ(desk.Messages.Shown, (std::vector<Message>{Box("SetXRecordData", "ERROR :Broken"),
                                                       Box("GetXRecordData", "ERROR :Broken")}));
}

TEST(ExtendedEntityData, GoesToEveryEntityOfTheCollection) {
  WrapperDesk desk;
  const auto first = desk.Host.Make("Entity", "First");
  const auto second = desk.Host.Make("Entity", "Second");
  desk.ACAD.SetXData({first, second}, AutomationList{{std::string("TRELO")}},
                     AutomationList{{Long{1001}}});
  EXPECT_EQ(desk.Host.Calls,
            (Calls{"First.SetXData([1001], [\"TRELO\"])", "Second.SetXData([1001], [\"TRELO\"])"}));
  const ExtendedData data = desk.ACAD.GetXData(second, "TRELO");
  EXPECT_EQ(ValueText(data.Types), "[1001]");
  EXPECT_EQ(ValueText(data.Values), "[\"TRELO\"]");
  EXPECT_EQ(desk.Host.Calls.back(), "Second.GetXData(\"TRELO\", Empty, Empty)");
}

TEST(ExtendedEntityData, OfABlankNameIsThatOfAllApplications) {
  WrapperDesk desk;
  const auto entity = desk.Host.Make("Entity", "Bar");
  for (const char* name : {"", " "}) {
    desk.ACAD.GetXData(entity, name);
    EXPECT_EQ(desk.Host.Calls.back(), "Bar.GetXData(\"\", Empty, Empty)");
  }
  desk.ACAD.GetXData(entity, "  ");
  EXPECT_EQ(desk.Host.Calls.back(), "Bar.GetXData(\"  \", Empty, Empty)");
}

TEST(ExtendedEntityData, TellsAnErrorWithItsNumber) {
  WrapperDesk desk;
  const auto entity = desk.Host.Make("Entity", "Bar");
  desk.Host.FailingMembers.emplace("Entity.SetXData", brokenConnection);
  desk.Host.FailingMembers.emplace("Entity.GetXData", brokenConnection);
  desk.ACAD.SetXData({entity}, AutomationList(), AutomationList());
  EXPECT_EQ(desk.ACAD.GetXData(entity, "TRELO").Values, AutomationValue());
  EXPECT_EQ(desk.Messages.Shown, (std::vector<Message>{Box("SetXData", "Error 77 : Broken"),
                                                       Box("GetXData", "Error 77 : Broken")}));
}

TEST(ExtendedEntityData, ThatIsNoPairOfListsIsATypeMismatch) {
  WrapperDesk desk;
  const auto entity = desk.Host.Make("Entity", "Bar");
  desk.Host.EmptyMembers.insert("Entity.GetXData");
  desk.ACAD.GetXData(entity, "TRELO");
  EXPECT_EQ(desk.Messages.Shown, std::vector<Message>{Box("GetXData", "Error 13 : Type mismatch")});
}

}  // namespace

}  // namespace trelonit::test

#include "platform/console/ConsoleServices.h"
#include "tests/drawinghost/HostDesk.h"

namespace trelonit::test {

namespace {

constexpr int disconnected = -2147417848;
constexpr int noDocument = -2145320900;

/// Answers every name with one object and keeps what it was asked.
class AutomationOfOtherPrograms : public AutomationService {
 public:
  AutomationHandle Create(const std::string& programIdentifier) override {
    Created.push_back(programIdentifier);
    return Object;
  }
  AutomationHandle GetRunning(const std::string& programIdentifier) override {
    Asked.push_back(programIdentifier);
    return Object;
  }
  BuiltInHost Any;
  AutomationHandle Object = Any.Application();
  std::vector<std::string> Created;
  std::vector<std::string> Asked;
};

TEST(BuiltInHostAutomation, RunsFromItsFirstCreationOn) {
  BuiltInHost host;
  BuiltInHostAutomation automation(host);
  EXPECT_EQ(RaisedBy([&] { automation.GetRunning("AutoCAD.Application"); }), 429);
  const AutomationHandle created = automation.Create("AutoCAD.Application");
  ASSERT_NE(created, nullptr);
  EXPECT_EQ(automation.Create("AutoCAD.Application"), created);
  EXPECT_EQ(automation.GetRunning("AutoCAD.Application"), created);
}

TEST(BuiltInHostAutomation, KnowsNoOtherProgram) {
  BuiltInHost host;
  BuiltInHostAutomation automation(host);
  EXPECT_EQ(RaisedBy([&] { automation.Create("Word.Application"); }), 429);
  EXPECT_EQ(RaisedBy([&] { automation.GetRunning("Word.Application"); }), 429);
}

TEST(BuiltInHostAutomation, HandsOtherNamesOn) {
  BuiltInHost host;
  AutomationOfOtherPrograms others;
  BuiltInHostAutomation automation(host, &others);
  EXPECT_EQ(automation.Create("Word.Application"), others.Object);
  EXPECT_EQ(automation.GetRunning("Word.Application"), others.Object);
  EXPECT_EQ(others.Created, std::vector<std::string>{"Word.Application"});
  EXPECT_EQ(others.Asked, std::vector<std::string>{"Word.Application"});
}

TEST(BuiltInHostAutomation, GivesWayToTheRealHost) {
  BuiltInHost host;
  AutomationOfOtherPrograms real;
  BuiltInHostAutomation automation(host, &real);
  EXPECT_EQ(automation.GetRunning("AutoCAD.Application"), real.Object);
  EXPECT_EQ(automation.Create("AutoCAD.Application"), real.Object);
}

TEST(BuiltInHostAutomation, StandsInWhereTheNextServiceHasNoDrawingHost) {
  BuiltInHost host;
  NoAutomation others;
  BuiltInHostAutomation automation(host, &others);
  EXPECT_EQ(RaisedBy([&] { automation.GetRunning("AutoCAD.Application"); }), 429);
  EXPECT_EQ(automation.Create("AutoCAD.Application"), host.Application());
  EXPECT_EQ(automation.GetRunning("AutoCAD.Application"), host.Application());
}

TEST(Application, BecomesVisibleOnlyWhenToldSo) {
  HostDesk desk;
  std::vector<bool> told;
  desk.Host.Hooks().VisibleChanged = [&](bool visible) { told.push_back(visible); };
  EXPECT_FALSE(desk.Host.Visible());
  EXPECT_FALSE(FlagIn(Member(desk.Application, "Visible")));
  SetMember(desk.Application, "Visible", true);
  EXPECT_TRUE(desk.Host.Visible());
  EXPECT_TRUE(FlagIn(Member(desk.Application, "Visible")));
  SetMember(desk.Application, "Visible", Long{0});
  EXPECT_FALSE(desk.Host.Visible());
  EXPECT_EQ(told, (std::vector<bool>{true, false}));
}

TEST(Application, TellsItsVersion) {
  HostDesk desk;
  EXPECT_EQ(TextIn(Member(desk.Application, "Version")).rfind("Trelonit ", 0), 0u);
}

TEST(Application, HasNoActiveDocumentBeforeTheFirstOne) {
  HostDesk desk;
  EXPECT_EQ(desk.Host.ActiveDocument(), nullptr);
  EXPECT_EQ(RaisedBy([&] { Member(desk.Application, "ActiveDocument"); }), noDocument);
  EXPECT_EQ(RaisedBy([&] { CallMember(desk.Application, "ZoomExtents"); }), noDocument);
}

TEST(Application, ZoomsTheActiveDocument) {
  HostDesk desk;
  std::vector<std::string> zoomed;
  desk.Host.Hooks().ZoomExtents = [&](const auto& sheet) { zoomed.push_back(sheet->Name); };
  const AutomationHandle first = desk.AddDocument();
  desk.AddDocument();
  CallMember(desk.Application, "ZoomExtents");
  SetMember(desk.Application, "ActiveDocument", first);
  CallMember(desk.Application, "ZoomExtents");
  EXPECT_EQ(zoomed, (std::vector<std::string>{"Drawing2.dwg", "Drawing1.dwg"}));
}

TEST(Application, TakesOnlyAnOpenDocumentOfItsOwnAsActive) {
  HostDesk desk;
  HostDesk other;
  const AutomationHandle document = desk.AddDocument();
  const AutomationHandle foreign = other.AddDocument();
  const auto activate = [&](const AutomationValue& value) {
    return RaisedBy([&] { SetMember(desk.Application, "ActiveDocument", value); });
  };
  EXPECT_EQ(activate(foreign), 5);
  EXPECT_EQ(activate(desk.Application), 13);
  EXPECT_EQ(activate(std::string("Drawing1.dwg")), 13);
  CallMember(document, "Close", {false});
  EXPECT_EQ(activate(document), disconnected);
}

TEST(Documents, AreNumberedAndTheNewOneIsActive) {
  HostDesk desk;
  std::vector<std::string> added;
  std::vector<std::string> activated;
  desk.Host.Hooks().DocumentAdded = [&](const auto& sheet) { added.push_back(sheet->Name); };
  desk.Host.Hooks().DocumentActivated = [&](const auto& sheet) {
    activated.push_back(sheet->Name);
  };
  const AutomationHandle first = desk.AddDocument();
  const AutomationHandle second = desk.AddDocument();
  EXPECT_EQ(added, (std::vector<std::string>{"Drawing1.dwg", "Drawing2.dwg"}));
  EXPECT_EQ(activated, added);
  EXPECT_FALSE(FlagIn(Member(first, "Active")));
  EXPECT_TRUE(FlagIn(Member(second, "Active")));
  EXPECT_EQ(ObjectMember(desk.Application, "ActiveDocument"), second);
  EXPECT_EQ(Required(ObjectMember(desk.Application, "Documents")).Enumerate(),
            (std::vector<AutomationHandle>{first, second}));
  EXPECT_EQ(ObjectMember(first, "Application"), desk.Application);
}

TEST(Documents, EachHasLayersAndStylesOfItsOwn) {
  HostDesk desk;
  const AutomationHandle first = desk.AddDocument();
  desk.AddDocument();
  CallForObject(ObjectMember(first, "Layers"), "Add", {std::string("Main")});
  EXPECT_NE(FindLayer(*desk.Host.Documents()[0], "Main"), nullptr);
  EXPECT_EQ(FindLayer(*desk.Host.Documents()[1], "Main"), nullptr);
}

TEST(Documents, OpenNoFilesAndSaySo) {
  HostDesk desk;
  const AutomationHandle documents = ObjectMember(desk.Application, "Documents");
  try {
    CallMember(documents, "Open", {std::string("a.dwg"), true});
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 438);
    EXPECT_NE(error.Description().find("opens no files"), std::string::npos);
  }
  EXPECT_EQ(RaisedBy([&] { CallMember(documents, "Open", {std::string("a.dwg")}); }), 438);
  EXPECT_EQ(RaisedBy([&] { CallMember(documents, "Open"); }), 5);
  EXPECT_EQ(RaisedBy([&] { CallMember(documents, "Open", {Long{1}}); }), 13);
  EXPECT_TRUE(desk.Host.Documents().empty());
}

TEST(Documents, AClosedOneIsGoneAndTheLastOfTheOthersBecomesActive) {
  HostDesk desk;
  std::vector<std::string> closed;
  desk.Host.Hooks().DocumentClosed = [&](const auto& sheet) { closed.push_back(sheet->Name); };
  const AutomationHandle first = desk.AddDocument();
  const AutomationHandle second = desk.AddDocument();
  CallMember(second, "Close", {false});
  EXPECT_EQ(closed, std::vector<std::string>{"Drawing2.dwg"});
  EXPECT_EQ(ObjectMember(desk.Application, "ActiveDocument"), first);
  EXPECT_EQ(desk.Host.Documents().size(), 1u);
  CallMember(first, "Close");
  EXPECT_EQ(desk.Host.ActiveDocument(), nullptr);
  // Numbers are not given twice.
  desk.AddDocument();
  EXPECT_EQ(desk.Host.ActiveDocument()->Name, "Drawing3.dwg");
}

TEST(Documents, CannotBeSavedAtTheirClosing) {
  HostDesk desk;
  const AutomationHandle document = desk.AddDocument();
  EXPECT_EQ(RaisedBy([&] { CallMember(document, "Close", {true}); }), 75);
  EXPECT_EQ(desk.Host.Documents().size(), 1u);
}

TEST(Documents, EveryObjectOfAClosedOneRaisesAnError) {
  DocumentDesk desk;
  const AutomationHandle layer = desk.AddNamed("Layers", "Main");
  const AutomationHandle line = desk.AddLine();
  const AutomationHandle sets = ObjectMember(desk.Document, "SelectionSets");
  const AutomationHandle set = CallForObject(sets, "Add", {std::string("S")});
  const AutomationHandle dictionaries = ObjectMember(desk.Document, "Dictionaries");
  const AutomationHandle dictionary = CallForObject(dictionaries, "Add", {std::string("D")});
  const AutomationHandle record = CallForObject(dictionary, "AddXRecord", {std::string("R")});
  CallMember(desk.Document, "Close", {false});
  EXPECT_EQ(RaisedBy([&] { Member(desk.Document, "Active"); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { Member(desk.Document, "Layers"); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { Member(desk.Space, "Document"); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { desk.AddLine(); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { Member(layer, "Lock"); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { SetMember(line, "Layer", std::string("Main")); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { Member(sets, "count"); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { Required(set).Enumerate(); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { CallMember(dictionaries, "Item", {std::string("D")}); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { CallMember(record, "GetXRecordData", {{}, {}}); }), disconnected);
}

TEST(BuiltInHost, ItsObjectsOutliveItWithoutHarm) {
  AutomationHandle application;
  AutomationHandle document;
  std::shared_ptr<Drawing> sheet;
  {
    DocumentDesk desk;
    application = desk.Application;
    document = desk.Document;
    sheet = desk.Sheet;
    desk.AddLine();
  }
  EXPECT_EQ(RaisedBy([&] { Member(application, "Documents"); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { SetMember(application, "Visible", true); }), disconnected);
  EXPECT_EQ(RaisedBy([&] { Member(document, "ModelSpace"); }), disconnected);
  EXPECT_EQ(sheet->ModelSpace.size(), 1u);
}

TEST(BuiltInHost, LetsAWindowActivateAndCloseDrawings) {
  HostDesk desk;
  desk.AddDocument();
  const AutomationHandle second = desk.AddDocument();
  const std::shared_ptr<Drawing> firstSheet = desk.Host.Documents().front();
  desk.Host.Activate(firstSheet);
  EXPECT_EQ(desk.Host.ActiveDocument(), firstSheet);
  desk.Host.Close(firstSheet);
  EXPECT_EQ(ObjectMember(desk.Application, "ActiveDocument"), second);
  // A drawing that is closed already changes nothing.
  desk.Host.Activate(firstSheet);
  desk.Host.Close(firstSheet);
  EXPECT_EQ(desk.Host.Documents().size(), 1u);
}

TEST(BuiltInHost, AnswersToNamesInAnyCaseAndToNoOtherNames) {
  DocumentDesk desk;
  EXPECT_EQ(ObjectMember(desk.Application, "activedocument"), desk.Document);
  EXPECT_EQ(RaisedBy([&] { Member(desk.Application, "Name"); }), 438);
  EXPECT_EQ(RaisedBy([&] { SetMember(desk.Application, "Name", true); }), 438);
  EXPECT_EQ(RaisedBy([&] { CallMember(desk.Application, "Quit"); }), 438);
  // A property is no method, a method no property, a member that is only read cannot be set.
  EXPECT_EQ(RaisedBy([&] { CallMember(desk.Application, "Visible"); }), 438);
  EXPECT_EQ(RaisedBy([&] { Member(desk.Application, "ZoomExtents"); }), 438);
  EXPECT_EQ(RaisedBy([&] { SetMember(desk.Application, "Version", std::string("2")); }), 438);
  EXPECT_EQ(RaisedBy([&] { Required(desk.Application).Enumerate(); }), 438);
  EXPECT_EQ(RaisedBy([&] { Member(desk.Application, "Visibl"); }), 438);
  EXPECT_EQ(RaisedBy([&] { Member(desk.Application, ""); }), 438);
}

TEST(BuiltInHost, RefusesTooFewAndTooManyArguments) {
  DocumentDesk desk;
  const AutomationHandle layers = ObjectMember(desk.Document, "Layers");
  const AutomationHandle sets = ObjectMember(desk.Document, "SelectionSets");
  const AutomationHandle set = CallForObject(sets, "Add", {std::string("S")});
  const AutomationHandle dictionaries = ObjectMember(desk.Document, "Dictionaries");
  const AutomationHandle dictionary = CallForObject(dictionaries, "Add", {std::string("D")});
  const AutomationHandle record = CallForObject(dictionary, "AddXRecord", {std::string("R")});
  const AutomationHandle documents = ObjectMember(desk.Application, "Documents");
  struct Bounds {
    AutomationHandle Object;
    std::string Member;
    std::size_t Fewest;
    std::size_t Most;
  };
  std::vector<Bounds> members{{desk.Application, "ZoomExtents", 0, 0},
                              {documents, "Add", 0, 0},
                              {documents, "Open", 1, 2},
                              {desk.Document, "SetVariable", 2, 2},
                              {desk.Document, "Close", 0, 1},
                              {desk.Space, "AddLine", 2, 2},
                              {desk.Space, "AddText", 3, 3},
                              {desk.Space, "AddDimRotated", 4, 4},
                              {layers, "Add", 1, 1},
                              {sets, "Add", 1, 1},
                              {set, "AddItems", 1, 1},
                              {set, "SelectOnScreen", 0, 0},
                              {set, "Delete", 0, 0},
                              {dictionaries, "Item", 1, 1},
                              {dictionaries, "Add", 1, 1},
                              {dictionary, "GetObject", 1, 1},
                              {dictionary, "AddXRecord", 1, 1},
                              {record, "GetXRecordData", 2, 2},
                              {record, "SetXRecordData", 2, 2}};
  for (const AutomationHandle& entity : {desk.AddLine(), desk.AddText(), desk.AddDimension()}) {
    members.push_back({entity, "SetXData", 2, 2});
    members.push_back({entity, "GetXData", 3, 3});
  }
  for (const Bounds& bounds : members) {
    const auto raised = [&bounds](std::size_t count) {
      const std::vector<AutomationValue> arguments(count);
      return RaisedBy([&] { CallMember(bounds.Object, bounds.Member, arguments); });
    };
    if (bounds.Fewest > 0) {
      EXPECT_EQ(raised(bounds.Fewest - 1), 5) << bounds.Member;
    }
    EXPECT_EQ(raised(bounds.Most + 1), 5) << bounds.Member;
  }
}

TEST(BuiltInHost, TellsOfEveryChangeOfADrawing) {
  DocumentDesk desk;
  int changes = 0;
  desk.Host.Hooks().Changed = [&](const auto& sheet) { changes += sheet == desk.Sheet ? 1 : 0; };
  const AutomationHandle layer = desk.AddNamed("Layers", "Main");
  EXPECT_EQ(changes, 1);
  SetMember(layer, "LayerOn", false);
  EXPECT_EQ(changes, 2);
  const AutomationHandle line = desk.AddLine();
  EXPECT_EQ(changes, 3);
  SetMember(line, "Layer", std::string("main"));
  EXPECT_EQ(changes, 4);
  Member(line, "Layer");
  EXPECT_EQ(changes, 4);
}

}  // namespace

}  // namespace trelonit::test

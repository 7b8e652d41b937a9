#include <gtest/gtest.h>

#include "tests/drawing/DrawingDesk.h"

namespace trelonit::test {

namespace {

using Calls = std::vector<std::string>;
using Boxes = std::vector<Message>;

const RuntimeError broken(77, "Broken");
const RuntimeError expected(-2147417851, "Automation error");

/// A drawing with something for the user to select.
struct SelectionDesk : WrapperDesk {
  SelectionDesk() { Host.Selected = {Host.Make("Entity", "Bar")}; }
  AutomationHandle Select() { return ACAD.GetAutoCADSelectionSet(Document); }
};

TEST(SelectionOnScreen, GoesIntoASetOfItsOwn) {
  SelectionDesk desk;
  const AutomationHandle set = desk.Select();
  EXPECT_EQ(set, desk.Host.Objects("SelectionSet").at(0));
  EXPECT_EQ(desk.Host.Calls,
            (Calls{"Document1.Application", "Application.ActiveDocument", "Document1.Active",
                   "Document1.SelectionSets", "Document1.SelectionSets.count",
                   "Document1.SelectionSets enumerated", "Document1.SelectionSets.count",
                   "Document1.SelectionSets.Add(\"OnScreenEntitys\")",
                   "SelectionSet(OnScreenEntitys).SelectOnScreen()",
                   "SelectionSet(OnScreenEntitys).count"}));
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(SelectionOnScreen, ActivatesTheDocumentFirst) {
  SelectionDesk desk;
  desk.Host.OpenDocument();
  desk.Document->Properties["Active"] = false;
  desk.Select();
  EXPECT_EQ(desk.Host.CountOf("Application.ActiveDocument = Document1"), 1U);
}

TEST(SelectionOnScreen, IsEmptyWhereNothingWasSelected) {
  SelectionDesk desk;
  desk.Host.Selected.clear();
  EXPECT_EQ(desk.Select(), nullptr);
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(SelectionOnScreen, DeletesItsEarlierSetsAndNoOthers) {
  SelectionDesk desk;
  desk.Host.AddSelectionSet(*desk.Document, "OnScreenEntitys");
  desk.Host.AddSelectionSet(*desk.Document, "NewOnScreenEntitys");
  EXPECT_NE(desk.Select(), nullptr);
  EXPECT_EQ(desk.Host.CountOf("SelectionSet(OnScreenEntitys).Delete()"), 1U);
  EXPECT_EQ(desk.Host.CountOf("SelectionSet(NewOnScreenEntitys).Delete()"), 1U);
  EXPECT_EQ(desk.Host.CountOf("Document1.SelectionSets.Add(\"OnScreenEntitys\")"), 1U);

  desk.Host.AddSelectionSet(*desk.Document, "OnScreenEntitys2");
  desk.Select();
  EXPECT_EQ(desk.Host.CountOf("SelectionSet(OnScreenEntitys2).Delete()"), 0U);
}

// The number is rounded before it is scaled: the set is called by 0 or by 10000, never by others.
TEST(SelectionOnScreen, BesideForeignSetsTakesANameWithOneOfTwoSuffixes) {
  for (const auto& [random, name] :
       std::vector<std::pair<double, std::string>>{{0, "OnScreenEntitys0"},
                                                   {0.4999, "OnScreenEntitys0"},
                                                   {0.5, "OnScreenEntitys0"},
                                                   {0.51, "OnScreenEntitys10000"},
                                                   {0.9999, "OnScreenEntitys10000"}}) {
    SelectionDesk desk;
    desk.Random = random;
    desk.Host.AddSelectionSet(*desk.Document, "Foreign");
    EXPECT_NE(desk.Select(), nullptr);
    EXPECT_EQ(desk.Host.CountOf("Document1.SelectionSets.Add(\"" + name + "\")"), 1U) << random;
  }
}

TEST(SelectionOnScreen, ToleratesTheFailureThatTheHostIsExpectedToRaise) {
  SelectionDesk desk;
  desk.Random = 0.12345;
  desk.Host.AddSelectionSet(*desk.Document, "NewOnScreenEntitys");
  desk.Host.FailingMembers.emplace("SelectionSet.Delete", expected);
  const AutomationHandle set = desk.Select();
  ASSERT_NE(set, nullptr);
  // 1234.5 is rounded to the even neighbour.
  EXPECT_EQ(desk.Host.Objects("SelectionSet").back()->TextOf("Name"), "OnScreenEntitys~1234");
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(SelectionOnScreen, SuffixesReachTenThousand) {
  SelectionDesk desk;
  desk.Random = 0.99999;
  desk.Host.AddSelectionSet(*desk.Document, "OnScreenEntitys");
  desk.Host.FailingMembers.emplace("SelectionSet.Delete", expected);
  desk.Select();
  EXPECT_EQ(desk.Host.Objects("SelectionSet").back()->TextOf("Name"), "OnScreenEntitys~10000");
}

TEST(SelectionOnScreen, TellsAnotherErrorOfTheSameNumber) {
  SelectionDesk desk;
  desk.Host.AddSelectionSet(*desk.Document, "OnScreenEntitys");
  desk.Host.FailingMembers.emplace("SelectionSet.Delete", RuntimeError(-2147417851, "Other"));
  EXPECT_EQ(desk.Select(), nullptr);
  EXPECT_EQ(desk.Messages.Shown,
            Boxes{Box("GetAutoCADSelectionSet",
                      "Error -2147417851 : Other\rSelectionSet hasn't been gotten")});
}

TEST(SelectionOnScreen, TellsThatThereIsNoSet) {
  for (const char* member :
       {"Document.Application", "Application.ActiveDocument", "Document.Active",
        "Document.SelectionSets", "SelectionSets.count", "SelectionSets.Enumerate",
        "SelectionSet.Name", "SelectionSet.Delete", "SelectionSets.Add"}) {
    SelectionDesk desk;
    desk.Host.AddSelectionSet(*desk.Document, "OnScreenEntitys");
    // With no other error a failed look at the sets themselves leaves an empty reference behind.
    const bool noSets = std::string(member) == "Document.SelectionSets";
    desk.Host.FailingMembers.emplace(member, broken);
    EXPECT_EQ(desk.Select(), nullptr) << member;
    const std::string error =
        noSets ? "91 : Object variable or With block variable not set" : "77 : Broken";
    EXPECT_EQ(desk.Messages.Shown,
              Boxes{Box("GetAutoCADSelectionSet",
                        "Error " + error + "\rSelectionSet hasn't been gotten")})
        << member;
    // Nobody is asked to select after that.
    EXPECT_EQ(desk.Host.CountOf("SelectionSet(OnScreenEntitys).SelectOnScreen()"), 0U) << member;
  }
}

TEST(SelectionOnScreen, TellsAnErrorOfTheSetItself) {
  SelectionDesk desk;
  desk.Host.FailingMembers.emplace("SelectionSet.SelectOnScreen", broken);
  EXPECT_EQ(desk.Select(), nullptr);
  EXPECT_EQ(desk.Messages.Shown, Boxes{Box("GetAutoCADSelectionSet", "Error 77 : Broken")});
}

TEST(SelectionOnScreen, TellsASetThatTheHostDoesNotGive) {
  SelectionDesk desk;
  desk.Host.EmptyMembers.insert("SelectionSets.Add");
  EXPECT_EQ(desk.Select(), nullptr);
  EXPECT_EQ(desk.Messages.Shown,
            Boxes{Box("GetAutoCADSelectionSet",
                      "Error 91 : Object variable or With block variable not set\r"
                      "SelectionSet hasn't been gotten")});
}

TEST(SelectionOnScreen, GivesUpBesideForeignSetsThatCannotBeRead) {
  SelectionDesk desk;
  desk.Host.AddSelectionSet(*desk.Document, "Foreign");
  // Fails only when the scratch set is made.
  desk.Host.FailingCall = 10;
  EXPECT_EQ(desk.Select(), nullptr);
  EXPECT_EQ(desk.Host.Calls.at(6), "SelectionSet(Foreign).Name");
  EXPECT_EQ(desk.Host.Calls.at(9), "SelectionSet(Foreign).Name");
  EXPECT_EQ(desk.Messages.Shown,
            Boxes{Box("GetAutoCADSelectionSet",
                      "Error 91 : Object variable or With block variable not set\r"
                      "SelectionSet hasn't been gotten")});
}

// The earlier set goes only at the second try, and the host complains all the same.
TEST(SelectionOnScreen, TakesItsOwnNameWhereAScratchSetFindsNoSetsLeft) {
  for (const RuntimeError& second : {expected, broken}) {
    SelectionDesk desk;
    const auto earlier = desk.Host.AddSelectionSet(*desk.Document, "OnScreenEntitys");
    desk.Host.FailingMembers.emplace("SelectionSet.Delete", expected);
    int tries = 0;
    desk.Host.Watch = [&](const std::string& member) {
      if (member == "SelectionSet.Delete" && ++tries == 2) {
        desk.Host.Objects("SelectionSets").at(0)->Items.clear();
        desk.Host.FailingMembers.insert_or_assign(member, second);
      }
    };
    EXPECT_NE(desk.Select(), nullptr);
    EXPECT_EQ(tries, 2);
    EXPECT_EQ(desk.Host.CountOf("Document1.SelectionSets.Add(\"OnScreenEntitys\")"), 1U);
    EXPECT_TRUE(desk.Messages.Shown.empty());
  }
}

/// A selection to filter, and the form that hears of it.
struct FilterDesk : WrapperDesk {
  FilterDesk() {
    Set = Host.AddSelectionSet(*Document, "Given");
    Form = Host.Make("Form", "Report");
  }
  void Put(const std::string& objectName) {
    const auto entity = Host.Make("Entity", objectName);
    entity->Properties["ObjectName"] = objectName;
    Set->Items.push_back(entity);
  }
  AutomationHandle Filter() {
    Host.Calls.clear();
    return ACAD.FilterSelectionSet(Document, Set, Form);
  }
  RecordingHost::ObjectPtr Set;
  RecordingHost::ObjectPtr Form;
};

const Calls validWords{"Line",   "Polyline", "Spline", "Circle",      "Arc",    "Ellipse",
                       "Region", "Solid",    "Face",   "PolygonMesh", "3dSolid"};

Calls NoValidTail() {
  Calls tail{"Report.lstReportList.AddItem(\"Selected no valid objects !\")",
             "Report.lstReportList.AddItem(\"Valid objects are :\")"};
  for (const std::string& word : validWords) {
    tail.push_back("Report.lstReportList.AddItem(\"                   " + word + "\")");
  }
  tail.push_back("Report.lstReportList.BackColor = 255");
  tail.push_back("Report.lstReportList.Refresh()");
  return tail;
}

TEST(Filtering, KeepsTheValidObjectsAndTellsTheCounts) {
  FilterDesk desk;
  desk.Put("AcDbLine");
  desk.Put("AcDbText");
  desk.Put("AcDbArc");
  const AutomationHandle valid = desk.Filter();
  EXPECT_EQ(
      desk.Host.Calls,
      (Calls{"Document1.SelectionSets", "Document1.SelectionSets.Add(\"NewOnScreenEntitys\")",
             "SelectionSet(Given) enumerated", "AcDbLine.ObjectName",
             "SelectionSet(NewOnScreenEntitys).AddItems([AcDbLine])", "SelectionSet(Given).count",
             "AcDbText.ObjectName", "SelectionSet(Given).count", "AcDbArc.ObjectName",
             "SelectionSet(NewOnScreenEntitys).AddItems([AcDbArc])", "SelectionSet(Given).count",
             "Report.lstReportList", "Report.lstReportList.Clear()",
             "Report.lstReportList.BackColor = -2147483643",
             "Report.lstReportList.AddItem(\"Valid objects in selection set : 2\")",
             "Report.lstReportList.AddItem(\"Invalid objects in selection set : 1\")",
             "SelectionSet(Given).count", "Report.lstReportList.AddItem(\"Totally selected : 3\")",
             "Report.lstReportList.AddItem(\"Programm can use only valid objects \")"}));
  EXPECT_EQ(valid, desk.Host.Objects("SelectionSet").back());
  EXPECT_EQ(desk.Host.Objects("SelectionSet").back()->Items.size(), 2U);
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(Filtering, IsContentWithOneValidObject) {
  FilterDesk desk;
  desk.Put("AcDbLine");
  desk.Filter();
  EXPECT_EQ(desk.Host.Calls.back(),
            "Report.lstReportList.AddItem(\"Programm can use only valid objects \")");
  EXPECT_EQ(
      desk.Host.CountOf("Report.lstReportList.AddItem(\"Valid objects in selection set : 1\")"),
      1U);
}

TEST(Filtering, TakesExactlyThirteenKindsOfObjects) {
  const Calls names{"AcDbSpline",     "AcDbCircle",  "AcDbLine",   "AcDbPolyline",
                    "AcDbArc",        "AcDbEllipse", "AcDbRegion", "AcDb3dPolyline",
                    "AcDb2dPolyline", "AcDbSolid",   "AcDbFace",   "AcDbPolygonMesh",
                    "AcDb3dSolid"};
  FilterDesk desk;
  for (const std::string& name : names) {
    desk.Put(name);
  }
  for (const char* other : {"AcDbText", "acdbline", "AcDbLine ", "AcDb", "", "Line"}) {
    desk.Put(other);
  }
  desk.Filter();
  EXPECT_EQ(desk.Host.Objects("SelectionSet").back()->Items.size(), names.size());
  EXPECT_EQ(
      desk.Host.CountOf("Report.lstReportList.AddItem(\"Invalid objects in selection set : 6\")"),
      1U);
}

TEST(Filtering, OfInvalidObjectsOnlyGivesAnEmptySetAndTurnsTheListRed) {
  FilterDesk desk;
  desk.Put("AcDbText");
  const AutomationHandle valid = desk.Filter();
  ASSERT_NE(valid, nullptr);
  EXPECT_TRUE(desk.Host.Objects("SelectionSet").back()->Items.empty());
  const Calls tail = NoValidTail();
  EXPECT_EQ(Calls(desk.Host.Calls.end() - static_cast<std::ptrdiff_t>(tail.size()),
                  desk.Host.Calls.end()),
            tail);
}

TEST(Filtering, WithoutASetToFillCountsNothing) {
  FilterDesk desk;
  desk.Put("AcDbLine");
  desk.Host.FailingMembers.emplace("SelectionSets.Add", broken);
  EXPECT_EQ(desk.Filter(), nullptr);
  Calls calls{"Document1.SelectionSets",
              "Document1.SelectionSets.Add(\"NewOnScreenEntitys\")",
              "Report.lstReportList",
              "Report.lstReportList.Clear()",
              "Report.lstReportList.BackColor = -2147483643",
              "Report.lstReportList.AddItem(\"Valid objects in selection set : 0\")",
              "Report.lstReportList.AddItem(\"Invalid objects in selection set : 0\")",
              "SelectionSet(Given).count",
              "Report.lstReportList.AddItem(\"Totally selected : 1\")",
              "Report.lstReportList.AddItem(\"Programm can use only valid objects \")"};
  const Calls tail = NoValidTail();
  calls.insert(calls.end(), tail.begin(), tail.end());
  EXPECT_EQ(desk.Host.Calls, calls);
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(Filtering, StopsWhereTheGivenSetRunsEmpty) {
  FilterDesk desk;
  desk.Put("AcDbLine");
  desk.Put("AcDbArc");
  desk.Set->Properties["count"] = Long{0};
  desk.Filter();
  EXPECT_EQ(desk.Host.Objects("SelectionSet").back()->Items.size(), 1U);
  EXPECT_EQ(desk.Host.CountOf("AcDbArc.ObjectName"), 0U);
}

TEST(Filtering, TellsAnyOtherErrorAndGivesTheSet) {
  for (const char* member : {"SelectionSet.Enumerate", "Entity.ObjectName", "SelectionSet.AddItems",
                             "SelectionSet.count", "Form.lstReportList", "List.AddItem"}) {
    FilterDesk desk;
    desk.Put("AcDbLine");
    desk.Host.FailingMembers.emplace(member, broken);
    EXPECT_NE(desk.Filter(), nullptr) << member;
    EXPECT_EQ(desk.Messages.Shown, Boxes{Box("FilterSelectionSet", "Error 77 : Broken")}) << member;
  }
}

}  // namespace

}  // namespace trelonit::test

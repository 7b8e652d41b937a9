#include "tests/drawinghost/HostDesk.h"

namespace trelonit::test {

namespace {

constexpr int setExists = -2145320851;
constexpr int erased = -2145386420;

AutomationList Texts(std::initializer_list<const char*> texts) {
  AutomationList list;
  for (const char* text : texts) {
    list.push_back({std::string(text)});
  }
  return list;
}

AutomationList Codes(std::initializer_list<Long> codes) {
  AutomationList list;
  for (const Long code : codes) {
    list.push_back({code});
  }
  return list;
}

class SelectionSetsTest : public testing::Test {
 protected:
  AutomationHandle AddSet(const std::string& name) { return CallForObject(Sets, "Add", {name}); }
  static Long CountOf(const AutomationHandle& set) { return LongIn(Member(set, "count")); }

  DocumentDesk Desk;
  AutomationHandle Sets = ObjectMember(Desk.Document, "SelectionSets");
};

TEST_F(SelectionSetsTest, AreAddedCountedAndEnumerated) {
  EXPECT_EQ(CountOf(Sets), 0);
  AddSet("OnScreenEntitys");
  AddSet("Other");
  EXPECT_EQ(CountOf(Sets), 2);
  const std::vector<AutomationHandle> all = Required(Sets).Enumerate();
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(TextIn(Member(all[0], "Name")), "OnScreenEntitys");
  EXPECT_EQ(TextIn(Member(all[1], "Name")), "Other");
  EXPECT_EQ(RaisedBy([&] { AddSet("other"); }), setExists);
}

TEST_F(SelectionSetsTest, ADeletedOneIsGone) {
  const AutomationHandle set = AddSet("S");
  CallMember(set, "Delete");
  EXPECT_EQ(CountOf(Sets), 0);
  EXPECT_EQ(RaisedBy([&] { CountOf(set); }), erased);
  EXPECT_EQ(RaisedBy([&] { CallMember(set, "Delete"); }), erased);
  AddSet("S");
  EXPECT_EQ(RaisedBy([&] { CountOf(set); }), erased);
}

TEST_F(SelectionSetsTest, HoldEachEntityOnce) {
  const AutomationHandle set = AddSet("S");
  const AutomationHandle line = Desk.AddLine();
  const AutomationHandle text = Desk.AddText();
  CallMember(set, "AddItems", {AutomationList{{line}, {text}}});
  CallMember(set, "AddItems", {AutomationList{{line}}});
  EXPECT_EQ(CountOf(set), 2);
  const std::vector<AutomationHandle> entities = Required(set).Enumerate();
  EXPECT_EQ(TextIn(Member(entities.at(0), "ObjectName")), "AcDbLine");
  EXPECT_EQ(TextIn(Member(entities.at(1), "ObjectName")), "AcDbText");
}

TEST_F(SelectionSetsTest, TakeAllItemsOrNone) {
  DocumentDesk other;
  const AutomationHandle set = AddSet("S");
  const AutomationHandle line = Desk.AddLine();
  const auto raised = [&](const AutomationValue& items) {
    return RaisedBy([&] { CallMember(set, "AddItems", {items}); });
  };
  EXPECT_EQ(raised(AutomationList{{line}, {other.AddLine()}}), 5);
  EXPECT_EQ(raised(AutomationList{{line}, {Desk.Document}}), 13);
  EXPECT_EQ(raised(AutomationList{{line}, {Long{1}}}), 13);
  EXPECT_EQ(raised(line), 13);
  EXPECT_EQ(CountOf(set), 0);
}

TEST_F(SelectionSetsTest, SelectNothingWithoutAWindow) {
  const AutomationHandle set = AddSet("S");
  Desk.AddLine();
  CallMember(set, "SelectOnScreen");
  EXPECT_EQ(CountOf(set), 0);
}

TEST_F(SelectionSetsTest, SelectWhatTheWindowPointsAt) {
  const AutomationHandle set = AddSet("S");
  Desk.AddLine();
  Desk.AddText();
  Desk.Host.Hooks().SelectOnScreen = [](const auto&) { return std::vector<std::size_t>{1, 1, 99}; };
  CallMember(set, "SelectOnScreen");
  ASSERT_EQ(CountOf(set), 1);
  EXPECT_EQ(TextIn(Member(Required(set).Enumerate().front(), "ObjectName")), "AcDbText");
}

TEST_F(SelectionSetsTest, ServeTheSelectionOfTheDrawingClass) {
  RecordingMessages messages;
  const clsAutoCAD drawingClass(Desk.Automation, messages, NumberLocale{});
  Desk.AddLine();
  EXPECT_EQ(drawingClass.GetAutoCADSelectionSet(Desk.Document), nullptr);
  Desk.Host.Hooks().SelectOnScreen = [](const auto&) { return std::vector<std::size_t>{0}; };
  const AutomationHandle set = drawingClass.GetAutoCADSelectionSet(Desk.Document);
  ASSERT_NE(set, nullptr);
  EXPECT_EQ(TextIn(Member(set, "Name")), "OnScreenEntitys");
  EXPECT_EQ(CountOf(set), 1);
  EXPECT_TRUE(messages.Shown.empty());
}

TEST(Dictionaries, ServeTheDrawingClassWithRecords) {
  DocumentDesk desk;
  RecordingMessages messages;
  const clsAutoCAD drawingClass(desk.Automation, messages, NumberLocale{});
  const AutomationHandle dictionary =
      drawingClass.GetOrCreateACADDictionary("Trelo", desk.Document);
  const AutomationHandle record = drawingClass.GetOrCreateXRecord(dictionary, "Sizes");
  ASSERT_NE(record, nullptr);
  EXPECT_TRUE(drawingClass.SetXRecordData(record, Codes({1, 1}), Texts({"a", "b"})));

  // The same ones again, under their names in any case.
  const AutomationHandle again = drawingClass.GetOrCreateXRecord(
      drawingClass.GetOrCreateACADDictionary("TRELO", desk.Document), "sizes");
  const ExtendedData data = drawingClass.GetXRecordData(again);
  EXPECT_EQ(data.Types, AutomationValue(Codes({1, 1})));
  EXPECT_EQ(data.Values, AutomationValue(Texts({"a", "b"})));
  EXPECT_TRUE(messages.Shown.empty());
}

TEST(Dictionaries, RaiseForNamesThatAreNotThere) {
  DocumentDesk desk;
  const AutomationHandle dictionaries = ObjectMember(desk.Document, "Dictionaries");
  EXPECT_EQ(RaisedBy([&] { CallMember(dictionaries, "Item", {std::string("A")}); }), keyNotFound);
  const AutomationHandle dictionary = CallForObject(dictionaries, "Add", {std::string("A")});
  EXPECT_EQ(RaisedBy([&] { CallMember(dictionary, "GetObject", {std::string("R")}); }),
            keyNotFound);
  EXPECT_EQ(RaisedBy([&] { CallMember(dictionaries, "Item", {Long{0}}); }), 13);
}

TEST(Records, AreEmptyAtFirstAndRefuseUnequalLists) {
  DocumentDesk desk;
  const AutomationHandle dictionary =
      CallForObject(ObjectMember(desk.Document, "Dictionaries"), "Add", {std::string("A")});
  const AutomationHandle record = CallForObject(dictionary, "AddXRecord", {std::string("R")});
  EXPECT_EQ(CallMember(record, "GetXRecordData", {{}, {}}), AutomationValue(AutomationList(2)));
  const auto set = [&](const AutomationValue& types, const AutomationValue& values) {
    return RaisedBy([&] { CallMember(record, "SetXRecordData", {types, values}); });
  };
  EXPECT_EQ(set(Codes({1}), Texts({"a", "b"})), 5);
  EXPECT_EQ(set(Texts({"a"}), Texts({"a"})), 13);
  EXPECT_EQ(set(1.0, Texts({"a"})), 13);
  EXPECT_EQ(CallMember(record, "GetXRecordData", {{}, {}}), AutomationValue(AutomationList(2)));
}

TEST(Records, KeepNoObjects) {
  DocumentDesk desk;
  const AutomationHandle dictionary =
      CallForObject(ObjectMember(desk.Document, "Dictionaries"), "Add", {std::string("A")});
  const AutomationHandle record = CallForObject(dictionary, "AddXRecord", {std::string("R")});
  const auto set = [&](const AutomationList& values) {
    return RaisedBy([&] { CallMember(record, "SetXRecordData", {Codes({1}), values}); });
  };
  EXPECT_EQ(set({{record}}), 13);
  // Not even within a list; what was there stays.
  CallMember(record, "SetXRecordData", {Codes({1}), Texts({"a"})});
  EXPECT_EQ(set({{AutomationList{{dictionary}}}}), 13);
  EXPECT_EQ(CallMember(record, "GetXRecordData", {{}, {}}),
            AutomationValue(AutomationList{{Codes({1})}, {Texts({"a"})}}));
}

TEST(Records, GoWithTheLastThatHoldsThem) {
  std::weak_ptr<AutomationObject> kept;
  {
    DocumentDesk desk;
    const AutomationHandle dictionary =
        CallForObject(ObjectMember(desk.Document, "Dictionaries"), "Add", {std::string("A")});
    const AutomationHandle record = CallForObject(dictionary, "AddXRecord", {std::string("R")});
    RaisedBy([&] { CallMember(record, "SetXRecordData", {Codes({1}), AutomationList{{record}}}); });
    kept = record;
  }
  EXPECT_TRUE(kept.expired());
}

class ExtendedDataTest : public testing::Test {
 protected:
  void Set(const AutomationValue& types, const AutomationValue& values) {
    CallMember(Line, "SetXData", {types, values});
  }
  AutomationValue Data(const std::string& application) {
    return CallMember(Line, "GetXData", {application, {}, {}});
  }
  static AutomationValue Filled(const AutomationList& types, const AutomationList& values) {
    return AutomationList{{types}, {values}};
  }

  DocumentDesk Desk;
  AutomationHandle Line = Desk.AddLine();
};

TEST_F(ExtendedDataTest, IsKeptByApplication) {
  Set(Codes({1001, 1000}), Texts({"B", "of b"}));
  Set(Codes({1001, 1000}), Texts({"A", "of a"}));
  EXPECT_EQ(Data("b"), Filled(Codes({1001, 1000}), Texts({"B", "of b"})));
  EXPECT_EQ(Data("C"), AutomationValue(AutomationList(2)));
  // An empty name asks for everything.
  EXPECT_EQ(Data(""), Filled(Codes({1001, 1000, 1001, 1000}), Texts({"A", "of a", "B", "of b"})));
}

TEST_F(ExtendedDataTest, IsReplacedAndTakenAway) {
  Set(Codes({1001, 1000}), Texts({"A", "old"}));
  Set(Codes({1001, 1000}), Texts({"A", "new"}));
  EXPECT_EQ(Data("A"), Filled(Codes({1001, 1000}), Texts({"A", "new"})));
  Set(Codes({1001}), Texts({"A"}));
  EXPECT_EQ(Data("A"), AutomationValue(AutomationList(2)));
}

TEST_F(ExtendedDataTest, BelongsToOneEntity) {
  Set(Codes({1001, 1000}), Texts({"A", "of a"}));
  EXPECT_EQ(CallMember(Desk.AddText(), "GetXData", {std::string("A"), {}, {}}),
            AutomationValue(AutomationList(2)));
}

TEST_F(ExtendedDataTest, BeginsWithItsApplication) {
  EXPECT_EQ(RaisedBy([&] { Set(Codes({1000}), Texts({"of nobody"})); }), 5);
  EXPECT_EQ(RaisedBy([&] { Set(Codes({1001, 1000}), Texts({"A"})); }), 5);
  EXPECT_EQ(RaisedBy([&] { CallMember(Line, "GetXData", {std::string("A")}); }), 5);
  EXPECT_EQ(Data(""), AutomationValue(AutomationList(2)));
}

}  // namespace

}  // namespace trelonit::test

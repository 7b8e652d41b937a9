#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/console/ConsoleServices.h"
#include "platform/win32/ComAutomation.h"
#include "tests/win32/ErrorOf.h"
#include "tests/win32/HostClass.h"

namespace trelonit::test {

namespace {

constexpr const char* program = "Trelonit.TestHost";

/// What goes to a host and comes back, seen from the host's side.
class Dispatch : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(hostClass.IsMade()); }

  AutomationValue Value(const std::string& name) { return host->Call("Value", {name}); }
  std::string Kinds(const std::vector<AutomationValue>& arguments) {
    return std::get<std::string>(host->Call("Kinds", arguments));
  }
  AutomationValue Echo(const AutomationValue& value) { return host->Call("Echo", {value}); }
  RuntimeError Failure(const std::string& how) {
    return RaisedBy([&] { host->Call("Fail", {how}); }).value();
  }

  HostClass hostClass{program};
  ComAutomation automation;
  AutomationHandle host = automation.Create(program);
};

AutomationValue Text(const char* text) {
  return std::string(text);
}

TEST_F(Dispatch, PassesEachKindOfValueAsTheHostExpectsIt) {
  EXPECT_EQ(Kinds({true, Text("a"), 2.0, std::vector<double>{1, 2, 3}, host, AutomationHandle()}),
            "flag text double double[3] object object");
}

TEST_F(Dispatch, PassesWholeNumbersInSixteenBitsWhereTheyFit) {
  EXPECT_EQ(Kinds({Long{0}, Long{32767}, Long{32768}, Long{-32768}, Long{-32769}}),
            "short short long short long");
}

TEST_F(Dispatch, PassesListsAsArrays) {
  const AutomationList objects{{host}, {host}};
  const AutomationList mixed{{Long{1}}, {Text("a")}};
  EXPECT_EQ(Kinds({objects, mixed, AutomationList()}), "object[2] any[2] any[0]");
}

TEST_F(Dispatch, PassesGroupCodesInSixteenBitsAndTheirValuesAsAnyKind) {
  const AutomationList codes{{Long{1070}}, {Long{1071}}};
  const AutomationList values{{Long{5}}, {Long{6}}};
  EXPECT_EQ(Kinds({Text("name"), codes, values}), "text short[2] any[2]");
  const AutomationList wide{{Long{1}}, {Long{70000}}};
  EXPECT_EQ(Kinds({wide, codes}), "any[2] any[2]");
}

TEST_F(Dispatch, BringsEveryValueBackAsItWas) {
  const std::vector<AutomationValue> values{
      true,
      false,
      Long{-7},
      Long{-70000},
      std::numeric_limits<Long>::max(),
      0.1,
      -1e300,
      Text("Ферма № 1 — “ё”"),
      Text(""),
      std::vector<double>{1.5, -2.5, 0},
      AutomationHandle(),
      AutomationList{{Long{1}}, {Text("a")}, {AutomationList{{true}, {2.5}}}},
      AutomationList{{Long{1}}, {Long{2}}},
  };
  for (const AutomationValue& value : values) {
    EXPECT_EQ(Echo(value), value) << value.index();
  }
}

TEST_F(Dispatch, BringsAnObjectBackAsTheSameOne) {
  const auto back = std::get<AutomationHandle>(Echo(host));
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(back->Get("Number"), AutomationValue(Long{0}));
}

TEST_F(Dispatch, KeepsATextWithAZeroInIt) {
  const std::string text("a\0b", 3);
  EXPECT_EQ(Echo(text), AutomationValue(text));
}

TEST_F(Dispatch, UnderstandsTheKindsThatOnlyHostsUse) {
  EXPECT_EQ(Value("null"), AutomationValue());
  EXPECT_EQ(Value("byte"), AutomationValue(Long{200}));
  EXPECT_EQ(Value("unsigned"), AutomationValue(4e9));
  EXPECT_EQ(Value("large"), AutomationValue(Long{-5}));
  EXPECT_EQ(Value("single"), AutomationValue(0.25));
  EXPECT_EQ(Value("money"), AutomationValue(1.2345));
  EXPECT_EQ(Value("decimal"), AutomationValue(2.5));
  EXPECT_EQ(Value("nothing"), AutomationValue(AutomationHandle()));
  EXPECT_EQ(Value("longs from 5"), AutomationValue(AutomationList{{Long{7}}, {Long{70000}}}));
  EXPECT_EQ(Value("doubles from 1"), AutomationValue(std::vector<double>{1.5, -2.5, 3.5}));
}

TEST_F(Dispatch, RaisesForAValueThatHasNoMeaningHere) {
  EXPECT_EQ(ErrorOf([&] { Value("table"); }), 13);
  EXPECT_EQ(ErrorOf([&] { Value("missing"); }), 13);
  EXPECT_EQ(ErrorOf([&] { Value("not a number"); }), 6);
}

TEST_F(Dispatch, GivesTheArgumentsThatTheHostFilled) {
  const AutomationValue answer = host->Call("Fill", {Text("name"), {}, {}});
  const AutomationList codes{{Long{1001}}, {Long{1070}}};
  const AutomationList values{{Text("Ферма")}, {Long{5}}, {std::vector<double>{1, 2, 3}}};
  EXPECT_EQ(answer, AutomationValue(AutomationList{{codes}, {values}}));
}

TEST_F(Dispatch, LeavesAnArgumentEmptyThatTheHostDoesNotFill) {
  EXPECT_EQ(host->Call("Echo", {AutomationValue()}),
            AutomationValue(AutomationList{AutomationItem{}}));
}

TEST_F(Dispatch, SetsAPropertyOfAnyKindByValue) {
  host->Set("Plain", Long{4});
  host->Set("Plain", Text("a"));
  host->Set("Plain", AutomationValue());
  host->Set("Plain", std::vector<double>{1, 2, 3});
  EXPECT_EQ(hostClass.Log->Sets,
            (std::vector<std::string>{"put short", "put text", "put empty", "put double[3]"}));
}

TEST_F(Dispatch, SetsAPropertyOfObjectsInTheWayThatTheHostKnows) {
  host->Set("ByReference", host);
  host->Set("ByValue", host);
  EXPECT_EQ(hostClass.Log->Sets, (std::vector<std::string>{"putref object", "put object"}));
}

TEST_F(Dispatch, RaisesForAMemberThatIsNotThere) {
  EXPECT_EQ(ErrorOf([&] { host->Get("Nowhere"); }), 438);
  EXPECT_EQ(ErrorOf([&] { host->Set("Nowhere", Long{1}); }), 438);
  EXPECT_EQ(ErrorOf([&] { host->Call("Nowhere", {}); }), 438);
  // Members that cannot be used so.
  EXPECT_EQ(ErrorOf([&] { host->Set("Number", Long{1}); }), 438);
  EXPECT_EQ(ErrorOf([&] { host->Set("Number", host); }), 438);
  EXPECT_EQ(ErrorOf([&] { host->Get("Plain"); }), 438);
  EXPECT_EQ(ErrorOf([&] { host->Enumerate(); }), 438);
}

TEST_F(Dispatch, RaisesTheHostsOwnNumberWithItsDescription) {
  const RuntimeError error = Failure("code");
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "Слой уже есть");
}

TEST_F(Dispatch, TakesTheRunTimeNumberOutOfTheHostsResult) {
  const RuntimeError error = Failure("numbered");
  EXPECT_EQ(error.Number(), 53);
  EXPECT_EQ(error.Description(), "File not found");
}

TEST_F(Dispatch, KeepsTheHostsOwnResultWhole) {
  const RuntimeError error = Failure("own result");
  EXPECT_EQ(error.Number(), static_cast<int>(0x80040222));
  EXPECT_EQ(error.Description(), "Key not found");
}

TEST_F(Dispatch, AsksTheHostForWhatItTellsLater) {
  const RuntimeError error = Failure("later");
  EXPECT_EQ(error.Number(), 1234);
  EXPECT_EQ(error.Description(), "told later");
}

TEST_F(Dispatch, TellsTheFailureThatTheDrawingExpectsOfItsHost) {
  const RuntimeError error = Failure("server fault");
  EXPECT_EQ(error.Number(), -2147417851);
  EXPECT_EQ(error.Description(), "Automation error");
}

TEST_F(Dispatch, RaisesWhereTheHostRefusesAnArgument) {
  EXPECT_EQ(Failure("type").Number(), 13);
}

TEST_F(Dispatch, EnumeratesTheObjectsOfACollectionInOrder) {
  std::vector<AutomationValue> numbers;
  for (const AutomationHandle& part : std::get<AutomationHandle>(host->Get("Parts"))->Enumerate()) {
    numbers.push_back(part->Get("Number"));
  }
  EXPECT_EQ(numbers, (std::vector<AutomationValue>{Long{1}, Long{2}, Long{3}}));
}

TEST_F(Dispatch, EnumeratesNothingButObjects) {
  const auto texts = std::get<AutomationHandle>(host->Get("Texts"));
  EXPECT_EQ(ErrorOf([&] { texts->Enumerate(); }), 13);
}

/// An object that is none of COM.
class ForeignObject : public AutomationObject {
 public:
  AutomationValue Get(const std::string&) override { return {}; }
  void Set(const std::string&, const AutomationValue&) override {}
  AutomationValue Call(const std::string&, const std::vector<AutomationValue>&) override {
    return {};
  }
  std::vector<AutomationHandle> Enumerate() override { return {}; }
};

TEST_F(Dispatch, RefusesToPassAnObjectThatIsNoneOfCom) {
  const AutomationHandle foreign = std::make_shared<ForeignObject>();
  EXPECT_EQ(ErrorOf([&] { Kinds({foreign}); }), 13);
  EXPECT_EQ(ErrorOf([&] { Kinds({AutomationList{{host}, {foreign}}}); }), 13);
  EXPECT_EQ(ErrorOf([&] { host->Set("ByValue", foreign); }), 13);
}

TEST_F(Dispatch, GivesEveryReferenceBack) {
  const AutomationHandle foreign = std::make_shared<ForeignObject>();
  EXPECT_EQ(hostClass.Log->Alive, 2);  // the factory and the host
  Echo(host);
  Kinds({host, AutomationList{{host}, {AutomationList{{host}}}}});
  ErrorOf([&] { Kinds({AutomationList{{host}, {foreign}}}); });
  std::get<AutomationHandle>(host->Get("Parts"))->Enumerate();
  host->Set("ByValue", host);
  EXPECT_EQ(hostClass.Log->Alive, 2);
  host.reset();
  EXPECT_EQ(hostClass.Log->Alive, 1);
}

TEST_F(Dispatch, LetsAnObjectOutliveTheService) {
  auto other = std::make_unique<ComAutomation>();
  const AutomationHandle object = other->Create(program);
  other.reset();
  EXPECT_EQ(object->Get("Number"), AutomationValue(Long{0}));
}

TEST_F(Dispatch, ReachesARunningHostWithoutStartingOne) {
  EXPECT_EQ(ErrorOf([&] { automation.GetRunning(program); }), 429);
  ASSERT_TRUE(hostClass.Run(42));
  const AutomationHandle running = automation.GetRunning(program);
  EXPECT_EQ(running->Get("Number"), AutomationValue(Long{42}));
}

/// The thread's own waiting for busy hosts, which it has no longer then.
ComPointer<IMessageFilter> TakePatience() {
  ComPointer<IMessageFilter> patience;
  CoRegisterMessageFilter(nullptr, patience.Place());
  return patience;
}

TEST(BusyHost, IsAskedAgainForTenSeconds) {
  const ComAutomation automation;
  const ComPointer<IMessageFilter> patience = TakePatience();
  ASSERT_TRUE(static_cast<bool>(patience));
  constexpr auto giveUp = static_cast<DWORD>(-1);
  for (const DWORD waited : {0U, 5000U, 9999U}) {
    EXPECT_LT(patience->RetryRejectedCall(nullptr, waited, SERVERCALL_RETRYLATER), 1000U) << waited;
  }
  EXPECT_EQ(patience->RetryRejectedCall(nullptr, 10000, SERVERCALL_RETRYLATER), giveUp);
}

TEST(BusyHost, IsNotWaitedForWithoutTheService) {
  const ComApartment outer;
  ComPointer<IMessageFilter> before = TakePatience();
  { const ComAutomation automation; }
  EXPECT_FALSE(static_cast<bool>(TakePatience()));
}

}  // namespace

}  // namespace trelonit::test

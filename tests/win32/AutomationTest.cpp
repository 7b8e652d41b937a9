#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "drawing/host/BuiltInHost.h"
#include "platform/console/ConsoleServices.h"
#include "platform/win32/ComAutomation.h"
#include "tests/win32/ErrorOf.h"
#include "tests/win32/HostClass.h"

namespace trelonit::test {

namespace {

AutomationValue Text(const std::string& text) {
  return text;
}

/// Over the programs that come with the system.
class Automation : public testing::Test {
 protected:
  AutomationHandle Object(const AutomationValue& value) {
    return std::get<AutomationHandle>(value);
  }
  std::string SystemFolder() { return ConsoleShell().SystemFolder(); }

  ComAutomation automation;
};

TEST_F(Automation, RaisesForAProgramThatTheMachineDoesNotHave) {
  EXPECT_EQ(ErrorOf([&] { automation.Create("Trelonit.Nowhere"); }), 429);
  EXPECT_EQ(ErrorOf([&] { automation.Create(""); }), 429);
  EXPECT_EQ(ErrorOf([&] { automation.GetRunning("Trelonit.Nowhere"); }), 429);
}

TEST_F(Automation, RaisesForAProgramThatDoesNotRun) {
  EXPECT_EQ(ErrorOf([&] { automation.GetRunning("Scripting.Dictionary"); }), 429);
}

/// Has every program, and one more that runs.
class EveryProgram : public AutomationService {
 public:
  explicit EveryProgram(AutomationHandle object) : object_(std::move(object)) {}
  AutomationHandle Create(const std::string&) override { return object_; }
  AutomationHandle GetRunning(const std::string&) override { return object_; }

 private:
  AutomationHandle object_;
};

TEST_F(Automation, AsksTheNextServiceForWhatTheMachineDoesNotHave) {
  const AutomationHandle object = automation.Create("Scripting.Dictionary");
  EveryProgram next(object);
  ComAutomation chained(&next);
  EXPECT_EQ(chained.Create("Trelonit.Nowhere"), object);
  EXPECT_EQ(chained.GetRunning("Trelonit.Nowhere"), object);
  EXPECT_EQ(chained.GetRunning("Scripting.Dictionary"), object);
  EXPECT_NE(chained.Create("Scripting.Dictionary"), object);
}

TEST_F(Automation, KeepsADictionaryOfTheSystem) {
  const AutomationHandle dictionary = automation.Create("Scripting.Dictionary");
  dictionary->Call("Add", {Text("пояс"), Long{5}});
  dictionary->Call("Add", {Text("раскос"), 2.5});
  EXPECT_EQ(dictionary->Get("Count"), AutomationValue(Long{2}));
  EXPECT_EQ(dictionary->Call("Item", {Text("пояс")}), AutomationValue(Long{5}));
  EXPECT_EQ(dictionary->Call("Exists", {Text("раскос")}), AutomationValue(true));
  EXPECT_EQ(dictionary->Call("Exists", {Text("стойка")}), AutomationValue(false));
  EXPECT_EQ(dictionary->Call("Keys", {}),
            AutomationValue(AutomationList{{Text("пояс")}, {Text("раскос")}}));
  EXPECT_EQ(dictionary->Get("CompareMode"), AutomationValue(Long{0}));
  dictionary->Call("RemoveAll", {});
  dictionary->Set("CompareMode", Long{1});
  EXPECT_EQ(dictionary->Get("CompareMode"), AutomationValue(Long{1}));
}

TEST_F(Automation, RaisesAHostsOwnErrorWithItsNumber) {
  const AutomationHandle dictionary = automation.Create("Scripting.Dictionary");
  dictionary->Call("Add", {Text("a"), Long{1}});
  constexpr int keyIsThere = 457;
  EXPECT_EQ(ErrorOf([&] { dictionary->Call("Add", {Text("a"), Long{2}}); }), keyIsThere);
}

TEST_F(Automation, RaisesTheFileErrorsOfAHost) {
  const AutomationHandle files = automation.Create("Scripting.FileSystemObject");
  EXPECT_EQ(ErrorOf([&] { files->Call("GetFile", {Text("C:\\no such file.txt")}); }), 53);
}

TEST_F(Automation, RaisesForAMemberThatTheHostDoesNotHave) {
  const AutomationHandle dictionary = automation.Create("Scripting.Dictionary");
  EXPECT_EQ(ErrorOf([&] { dictionary->Get("Nowhere"); }), 438);
  EXPECT_EQ(ErrorOf([&] { dictionary->Set("Nowhere", Long{1}); }), 438);
  EXPECT_EQ(ErrorOf([&] { dictionary->Call("Nowhere", {}); }), 438);
}

TEST_F(Automation, EnumeratesTheFilesOfAFolder) {
  const AutomationHandle files = automation.Create("Scripting.FileSystemObject");
  const AutomationHandle folder = Object(files->Call("GetFolder", {Text(SystemFolder())}));
  std::vector<std::string> names;
  for (const AutomationHandle& file : Object(folder->Get("Files"))->Enumerate()) {
    names.push_back(std::get<std::string>(file->Get("Name")));
  }
  EXPECT_NE(std::find(names.begin(), names.end(), "shell32.dll"), names.end()) << names.size();
}

TEST_F(Automation, EnumeratesNoObjectsOfADictionaryOfTexts) {
  const AutomationHandle dictionary = automation.Create("Scripting.Dictionary");
  EXPECT_TRUE(dictionary->Enumerate().empty());
  dictionary->Call("Add", {Text("a"), Long{1}});
  EXPECT_EQ(ErrorOf([&] { dictionary->Enumerate(); }), 13);
}

TEST_F(Automation, LeavesTheDrawingToTheBuiltInHostWhereTheRealOneIsMissing) {
  BuiltInHost host;
  BuiltInHostAutomation drawing(host, &automation);
  if (ErrorOf([&] { automation.Create(drawingHostIdentifier); }) == 0) {
    GTEST_SKIP() << "this machine has the real drawing program";
  }
  EXPECT_EQ(drawing.Create(drawingHostIdentifier), host.Application());
  EXPECT_NE(drawing.Create("Scripting.Dictionary"), nullptr);
  EXPECT_EQ(ErrorOf([&] { drawing.Create("Trelonit.Nowhere"); }), 429);
}

TEST_F(Automation, PrefersTheRealDrawingProgramToTheBuiltInHost) {
  const HostClass real(drawingHostIdentifier);
  ASSERT_TRUE(real.IsMade());
  BuiltInHost host;
  BuiltInHostAutomation drawing(host, &automation);
  const AutomationHandle application = drawing.Create(drawingHostIdentifier);
  EXPECT_NE(application, host.Application());
  EXPECT_EQ(application->Get("Number"), AutomationValue(Long{0}));
}

}  // namespace

}  // namespace trelonit::test

// Word documents by a word processor in a process of its own, reached by COM as the real one is,
// over the clipboard and the disk of the machine.

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "editor/document/FileHandler.h"
#include "editor/document/MemoryRichTextBox.h"
#include "platform/files/FileBytes.h"
#include "platform/files/Paths.h"
#include "platform/win32/ComAutomation.h"
#include "resources/EmbeddedResources.h"
#include "tests/support/TestServices.h"
#include "tests/win32/ErrorOf.h"
#include "tests/win32/ServerProgram.h"
#include "tests/win32/automation/SystemClipboard.h"

namespace trelonit::test {

namespace {

constexpr const char* wordProgram = "Word.Application";
constexpr const char* quitWithoutSaving = "Application.Quit(0)";
constexpr int generalFailure = -2147467259;  // 80004005

class WordServer : public testing::Test {
 protected:
  ~WordServer() override {
    std::error_code ignored;
    std::filesystem::remove(PathOfUtf8(name), ignored);
  }

  std::vector<std::string> StepsOfReading() const {
    return {"Application.Documents",
            "Documents.Open(" + name + ")",
            "Application.ActiveDocument",
            "ActiveDocument.Content",
            "Content.Copy()",
            "Application.Quit()"};
  }
  std::vector<std::string> StepsOfWriting() const {
    return {"Application.Documents",  "Documents.Add()", "Application.ActiveDocument",
            "ActiveDocument.Content", "Content.Paste()", "ActiveDocument.SaveAs(" + name + ")",
            "Application.Quit()"};
  }
  /// Those up to the failing one, from 1, and the end of the program.
  static std::vector<std::string> UpTo(std::vector<std::string> steps, std::size_t failing) {
    steps.resize(failing);
    steps.emplace_back(quitWithoutSaving);
    return steps;
  }
  void Read() { ReadWordDocument(services, name, box); }
  void Write() { WriteWordDocument(services, name, box); }

  EmbeddedResources resources;
  World world{resources};
  ComAutomation automation;
  SystemClipboard clipboard;
  DiskFiles files;
  Services services{world.Messages, world.Dialogs, clipboard,    world.Settings,
                    world.Registry, automation,    world.Shell,  world.Clock,
                    resources,      files,         world.Locale, world.ProgramFolder};
  const std::string name =
      Utf8OfPath(LongName(std::filesystem::temp_directory_path()) / L"Отчёт № 1.doc");
  MemoryRichTextBox box;
};

TEST_F(WordServer, StoresADocumentAndGivesItBack) {
  CharFormat bold;
  bold.Bold = true;
  box.SetText("Ферма и раскосы");
  box.Select(8, 7);
  box.SetSelFormat(bold);
  const std::string stored = box.TextRTF();
  {
    const ServerProgram server(wordProgram);
    Write();
    EXPECT_EQ(server.Calls(), StepsOfWriting());
    EXPECT_TRUE(server.IsGone());
  }
  EXPECT_EQ(ReadBytes(files, name), stored);
  clipboard.SetText("held before");
  box.SetText("another text");
  const ServerProgram server(wordProgram);
  Read();
  EXPECT_EQ(server.Calls(), StepsOfReading());
  EXPECT_TRUE(server.IsGone());
  EXPECT_EQ(box.Text(), "Ферма и раскосы");
  EXPECT_EQ(box.TextRTF(), stored);
  EXPECT_EQ(clipboard.Text(), "Ферма и раскосы");
}

TEST_F(WordServer, EndsWithoutAQuestionWhateverStepOfWritingFails) {
  box.SetText("text");
  const std::vector<std::string> members{
      "Application.Documents",  "Documents.Add", "Application.ActiveDocument",
      "ActiveDocument.Content", "Content.Paste", "ActiveDocument.SaveAs"};
  for (std::size_t failing = 1; failing <= members.size(); ++failing) {
    SCOPED_TRACE(members[failing - 1]);
    const ServerProgram server(
        wordProgram,
        {.Asks = true, .Failures = {{members[failing - 1], RuntimeError(5155, "Файл занят")}}});
    EXPECT_EQ(ErrorOf([&] { Write(); }), 5155);
    EXPECT_EQ(server.Calls(), UpTo(StepsOfWriting(), failing));
    EXPECT_TRUE(server.IsGone());
    EXPECT_FALSE(files.FileExists(name));
  }
}

TEST_F(WordServer, LeavesTheBoxWhateverStepOfReadingFails) {
  files.ReplaceFile(name, "{\\rtf1 from Word}");
  box.SetText("text");
  const std::vector<std::string> members{"Application.Documents", "Documents.Open",
                                         "Application.ActiveDocument", "ActiveDocument.Content",
                                         "Content.Copy"};
  for (std::size_t failing = 1; failing <= members.size(); ++failing) {
    SCOPED_TRACE(members[failing - 1]);
    const ServerProgram server(
        wordProgram,
        {.Failures = {{members[failing - 1], RuntimeError(generalFailure, "Automation error")}}});
    EXPECT_EQ(ErrorOf([&] { Read(); }), generalFailure);
    EXPECT_EQ(server.Calls(), UpTo(StepsOfReading(), failing));
    EXPECT_TRUE(server.IsGone());
    EXPECT_EQ(box.Text(), "text");
  }
}

TEST_F(WordServer, IsAskedAgainWhereItIsBusy) {
  box.SetText("text");
  const ServerProgram server(wordProgram, {.Busy = 1500});
  Write();
  EXPECT_GT(server.TurnedAway(), 0U);
  EXPECT_EQ(server.Calls(), StepsOfWriting());
}

TEST_F(WordServer, ThatDiesIsAFailureOfTheConversion) {
  box.SetText("text");
  constexpr std::size_t atThePasting = 5;
  const ServerProgram server(wordProgram, {.Death = atThePasting});
  EXPECT_NE(ErrorOf([&] { Write(); }), 0);
  EXPECT_EQ(server.Calls().size(), atThePasting - 1);
  EXPECT_TRUE(server.IsGone());
  EXPECT_EQ(server.Starts(), 1U);
}

TEST_F(WordServer, IsMissingWhereTheMachineHasNone) {
  EXPECT_EQ(ErrorOf([&] { Read(); }), 429);
  EXPECT_EQ(ErrorOf([&] { Write(); }), 429);
}

}  // namespace

}  // namespace trelonit::test

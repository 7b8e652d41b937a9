#include <gtest/gtest.h>

#include "tests/office/WordDesk.h"
#include "tests/support/TestServices.h"

// The objects behind "Word.Application", with a script in the place of the converter.

namespace trelonit::test {
namespace {

constexpr int notThere = 438;
constexpr int notSet = 91;
constexpr int noObject = 429;
constexpr int wrongType = 13;

/// A converter that gives a rich text or a document, whichever is asked for.
class WordMembers : public ::testing::Test {
 protected:
  WordMembers() {
    desk_.Put("like.doc", LikeWordDocument());
    desk_.UseScript(
        "mkdir \"$out\"\n"
        "case $document in\n"
        "*.doc) printf '%s' '{\\rtf1 from Word}' > \"$out/document.rtf\" ;;\n"
        "*) cp \"$desk/like.doc\" \"$out/document.doc\"; cp \"$document\" \"$desk/given.rtf\" ;;\n"
        "esac");
  }
  WordDesk desk_;
};

TEST_F(WordMembers, OtherProgramsAreNotThere) {
  OfficeAutomation automation = desk_.Automation();
  EXPECT_EQ(ErrorOf([&] { automation.Create("AutoCAD.Application"); }), noObject);
  EXPECT_EQ(ErrorOf([&] { automation.Create(""); }), noObject);
  EXPECT_EQ(ErrorOf([&] { automation.Create("Word.Application"); }), 0);
}

TEST_F(WordMembers, WithoutTheConverterThereIsNoApplication) {
  for (const std::string& program :
       {desk_.Path("absent"), desk_.Path(""), desk_.Path("like.doc"), std::string("soffice")}) {
    desk_.Settings.Program = program;
    EXPECT_EQ(ErrorOf([&] { desk_.Application(); }), noObject) << program;
  }
}

TEST_F(WordMembers, WhatIsOpenedAndCopiedIsOnTheClipboardInBothForms) {
  desk_.Open(desk_.Path("like.doc"));
  EXPECT_EQ(desk_.Clipboard.RichText(), "{\\rtf1 from Word}");
  EXPECT_EQ(desk_.Clipboard.Text(), "from Word");
  EXPECT_TRUE(desk_.IsClean());
}

TEST_F(WordMembers, WhatIsPastedIsSaved) {
  desk_.Clipboard.SetRichText("{\\rtf1{\\object hidden}\\b bold\\par}", "plain");
  desk_.Save(desk_.Path("new.doc"));
  EXPECT_EQ(desk_.Content("new.doc"), LikeWordDocument());
  const std::string given = desk_.Content("given.rtf");
  EXPECT_NE(given.find("\\b bold"), std::string::npos) << given;
  EXPECT_EQ(given.find("hidden"), std::string::npos) << given;
  EXPECT_TRUE(desk_.IsClean());
}

TEST_F(WordMembers, PlainTextIsPastedWhereThereIsNoOther) {
  desk_.Clipboard.SetText("one\r\ntwo");
  desk_.Save(desk_.Path("new.doc"));
  const std::string given = desk_.Content("given.rtf");
  EXPECT_NE(given.find(" one\\par"), std::string::npos) << given;
  EXPECT_NE(given.find(" two\\par"), std::string::npos) << given;
}

TEST_F(WordMembers, TheDocumentThatOpenAndAddGiveIsTheActiveOne) {
  const AutomationHandle word = desk_.Application();
  const AutomationHandle documents = GetObject(word, "Documents");
  const auto opened = std::get<AutomationHandle>(documents->Call("Open", {desk_.Path("like.doc")}));
  EXPECT_EQ(opened, GetObject(word, "ActiveDocument"));
  const auto added = std::get<AutomationHandle>(documents->Call("Add", {}));
  EXPECT_EQ(added, GetObject(word, "ActiveDocument"));
  GetObject(opened, "Content")->Call("Copy", {});
  EXPECT_EQ(desk_.Clipboard.Text(), "from Word");
  added->Call("SaveAs", {desk_.Path("new.doc")});
  EXPECT_EQ(desk_.Content("new.doc"), LikeWordDocument());
}

TEST_F(WordMembers, WithoutADocumentNoneIsActive) {
  EXPECT_EQ(ErrorOf([&] { desk_.Application()->Get("ActiveDocument"); }), notSet);
}

TEST_F(WordMembers, AfterQuitNothingWorks) {
  const AutomationHandle word = desk_.Application();
  const AutomationHandle documents = GetObject(word, "Documents");
  documents->Call("Add", {});
  const AutomationHandle document = GetObject(word, "ActiveDocument");
  const AutomationHandle content = GetObject(document, "Content");
  word->Call("Quit", {});
  EXPECT_EQ(ErrorOf([&] { word->Get("ActiveDocument"); }), notSet);
  EXPECT_EQ(ErrorOf([&] { word->Get("Documents"); }), notSet);
  EXPECT_EQ(ErrorOf([&] { documents->Call("Add", {}); }), notSet);
  EXPECT_EQ(ErrorOf([&] { documents->Call("Open", {desk_.Path("like.doc")}); }), notSet);
  EXPECT_EQ(ErrorOf([&] { document->Get("Content"); }), notSet);
  EXPECT_EQ(ErrorOf([&] { document->Call("SaveAs", {desk_.Path("new.doc")}); }), notSet);
  EXPECT_EQ(ErrorOf([&] { content->Call("Copy", {}); }), notSet);
  EXPECT_EQ(ErrorOf([&] { content->Call("Paste", {}); }), notSet);
  EXPECT_EQ(ErrorOf([&] { word->Call("Quit", {}); }), 0);
  EXPECT_EQ(ErrorOf([&] { word->Call("Quit", {Long{0}}); }), 0);
  EXPECT_FALSE(desk_.Has("new.doc"));
}

TEST_F(WordMembers, UnknownMembersAreRefused) {
  const AutomationHandle word = desk_.Application();
  const AutomationHandle documents = GetObject(word, "Documents");
  documents->Call("Add", {});
  const AutomationHandle document = GetObject(word, "ActiveDocument");
  for (const AutomationHandle& object :
       {word, documents, document, GetObject(document, "Content")}) {
    EXPECT_EQ(ErrorOf([&] { object->Get("Visible"); }), notThere);
    EXPECT_EQ(ErrorOf([&] { object->Get(""); }), notThere);
    EXPECT_EQ(ErrorOf([&] { object->Set("Visible", true); }), notThere);
    EXPECT_EQ(ErrorOf([&] { object->Call("Close", {}); }), notThere);
    EXPECT_EQ(ErrorOf([&] { object->Enumerate(); }), notThere);
  }
  EXPECT_EQ(ErrorOf([&] { word->Get("Content"); }), notThere);
  EXPECT_EQ(ErrorOf([&] { word->Call("SaveAs", {std::string("x")}); }), notThere);
}

TEST_F(WordMembers, ArgumentsOfAnotherKindAreRefused) {
  const AutomationHandle word = desk_.Application();
  const AutomationHandle documents = GetObject(word, "Documents");
  EXPECT_EQ(ErrorOf([&] { documents->Call("Open", {}); }), wrongType);
  EXPECT_EQ(ErrorOf([&] { documents->Call("Open", {Long{5}}); }), wrongType);
  EXPECT_EQ(ErrorOf([&] { documents->Call("Add", {true}); }), wrongType);
  documents->Call("Add", {});
  const AutomationHandle document = GetObject(word, "ActiveDocument");
  EXPECT_EQ(ErrorOf([&] { document->Call("SaveAs", {word}); }), wrongType);
  EXPECT_EQ(ErrorOf([&] { GetObject(document, "Content")->Call("Copy", {Long{1}}); }), wrongType);
  EXPECT_EQ(ErrorOf([&] { word->Call("Quit", {Long{1}}); }), wrongType);
}

TEST_F(WordMembers, ARichTextNamedDocNeedsNoConverter) {
  desk_.UseScript("exit 1");
  desk_.Put("rich.doc", "{\\rtf1 x\\par y}");
  desk_.Open(desk_.Path("rich.doc"));
  EXPECT_EQ(desk_.Clipboard.RichText(), "{\\rtf1 x\\par y}");
  EXPECT_EQ(desk_.Clipboard.Text(), "x\r\ny");
}

TEST_F(WordMembers, AMissingFileIsToldAsOne) {
  EXPECT_EQ(ErrorOf([&] { desk_.Open(desk_.Path("absent.doc")); }), 53);
  EXPECT_EQ(ErrorOf([&] { desk_.Open(""); }), 52);
}

TEST_F(WordMembers, WhatIsNoWordDocumentNeverReachesTheConverter) {
  desk_.UseScript("touch \"$desk/started\"; exit 1");
  std::string otherOffice = LikeWordDocument();
  otherOffice.erase(otherOffice.find('W'));
  for (const std::string& bytes :
       {std::string(), std::string("\x00\xFFnoise", 7), std::string("plain text"),
        std::string("PK\x03\x04"), otherOffice, LikeWordDocument().substr(1)}) {
    desk_.Clipboard.SetText("before");
    desk_.Put("bad.doc", bytes);
    EXPECT_EQ(ErrorOf([&] { desk_.Open(desk_.Path("bad.doc")); }), 57);
    EXPECT_EQ(desk_.Clipboard.Text(), "before");
  }
  EXPECT_FALSE(desk_.Has("started"));
  EXPECT_TRUE(desk_.IsClean());
}

TEST_F(WordMembers, ATargetThatCannotBeReplacedStaysWhole) {
  MemoryFiles files;
  files.Content["old.doc"] = "old";
  files.Refused["old.doc"] = ErrorNumber::PermissionDenied;
  desk_.Files = &files;
  desk_.Clipboard.SetText("new");
  EXPECT_EQ(ErrorOf([&] { desk_.Save("old.doc"); }), 70);
  EXPECT_EQ(files.Content["old.doc"], "old");
  EXPECT_TRUE(desk_.IsClean());
}

TEST_F(WordMembers, AFolderIsNoTarget) {
  EXPECT_EQ(ErrorOf([&] { desk_.Save(desk_.Path("")); }), 75);
  EXPECT_TRUE(desk_.IsClean());
}

}  // namespace
}  // namespace trelonit::test

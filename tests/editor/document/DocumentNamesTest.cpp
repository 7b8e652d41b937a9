#include <filesystem>
#include <tuple>

#include "editor/dialogs/ModCmnDlg.h"
#include "editor/document/FileHandler.h"
#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

TEST(DocumentNames, TellTheirExtensionInLowerCase) {
  for (const auto& [name, extension] :
       std::vector<std::pair<std::string, std::string>>{{"a.txt", "txt"},
                                                        {"a.TXT", "txt"},
                                                        {"a", ""},
                                                        {"", ""},
                                                        {".", ""},
                                                        {"a.", ""},
                                                        {"a.b.Rtf", "rtf"},
                                                        {".profile", ""},
                                                        {"/home/.profile", ""},
                                                        {"/home/.profile.doc", "doc"},
                                                        {"/home.d/a", ""},
                                                        {"C:\\docs.d\\a", ""},
                                                        {"C:\\docs.d\\a.Doc", "doc"},
                                                        {"Отчет фермы.rtf", "rtf"},
                                                        {"\"a b\".txt", "txt"},
                                                        {"Ферма 1.5 м", "5 м"}}) {
    EXPECT_EQ(ExtensionOf(name), extension) << name;
  }
}

TEST(DocumentNames, StandBehindTheLastFolder) {
  EXPECT_EQ(BareName("/home/a.txt"), "a.txt");
  EXPECT_EQ(BareName("C:\\docs\\Отчет 1.txt"), "Отчет 1.txt");
  EXPECT_EQ(BareName("C:\\docs/a.txt"), "a.txt");
  EXPECT_EQ(BareName("a.txt"), "a.txt");
  EXPECT_EQ(BareName("/home/"), "");
  EXPECT_EQ(BareName(""), "");
}

TEST(DocumentNames, TellWhetherTheyHaveTheirFolder) {
  EXPECT_TRUE(HasPath("C:\\a.txt"));
  EXPECT_TRUE(HasPath("/a.txt"));
  EXPECT_FALSE(HasPath("a.txt"));
  EXPECT_FALSE(HasPath("docs/a.txt"));
  EXPECT_FALSE(HasPath("C:a.txt"));
  EXPECT_FALSE(HasPath(""));
}

TEST(DocumentNames, TellTheFormat) {
  EXPECT_EQ(FormatOf("a.txt"), DocumentFormat::PlainText);
  EXPECT_EQ(FormatOf("a.rtf"), DocumentFormat::RichText);
  EXPECT_EQ(FormatOf("a.DOC"), DocumentFormat::Word);
  EXPECT_EQ(FormatOf("a.docx"), DocumentFormat::PlainText);
  EXPECT_EQ(FormatOf("a"), DocumentFormat::PlainText);
  EXPECT_EQ(FormatOf("a.rtf/b"), DocumentFormat::PlainText);
}

TEST(DocumentNames, GiveWayToTheKindOfTheDialog) {
  EXPECT_EQ(FormatOf(1, "a.rtf"), DocumentFormat::PlainText);
  EXPECT_EQ(FormatOf(2, "a.txt"), DocumentFormat::RichText);
  EXPECT_EQ(FormatOf(3, "a.rtf"), DocumentFormat::Word);
  EXPECT_EQ(FormatOf(4, "a.rtf"), DocumentFormat::RichText);
  EXPECT_EQ(FormatOf(0, "a.doc"), DocumentFormat::Word);
}

TEST(DocumentNames, TakeAnotherExtension) {
  EXPECT_EQ(ReplaceExtension("a.txt", DocumentFormat::RichText), "a.rtf");
  EXPECT_EQ(ReplaceExtension("a.b.txt", DocumentFormat::Word), "a.b.doc");
  EXPECT_EQ(ReplaceExtension("a", DocumentFormat::PlainText), "a.txt");
  EXPECT_EQ(ReplaceExtension("/home.d/a", DocumentFormat::PlainText), "/home.d/a.txt");
  EXPECT_EQ(ReplaceExtension(".profile", DocumentFormat::RichText), ".profile.rtf");
}

TEST(DocumentNames, AreSavedWithTheExtensionOfTheirKind) {
  for (const auto& [name, kind, stored] : std::vector<std::tuple<std::string, Long, std::string>>{
           {"a", 1, "a.txt"},
           {"a", 2, "a.rtf"},
           {"a", 3, "a.doc"},
           {"a", 4, "a.txt"},
           {"a.", 1, "a.txt"},
           {"a.txt", 1, "a.txt"},
           {"a.TXT", 1, "a.TXT"},
           {"a.txt", 2, "a.rtf"},
           {"a.rtf", 3, "a.doc"},
           {"a.doc", 1, "a.txt"},
           {"a.log", 1, "a.txt"},
           {"a.rtf", 4, "a.rtf"},
           {"a.log", 4, "a.log"},
           {"a.b.c", 2, "a.b.rtf"},
           {"a.xhtml", 2, "a.rtf"},
           {"/home.d/a", 2, "/home.d/a.rtf"},
           {"C:\\docs.d\\a", 2, "C:\\docs.d\\a.rtf"},
           {"/home/.profile", 1, "/home/.profile.txt"},
           {"Отчет", 2, "Отчет.rtf"},
           {"Отчет.txt", 2, "Отчет.rtf"},
           {"Отчет о ферме", 3, "Отчет о ферме.doc"},
           {"\"quoted\"", 1, "\"quoted\".txt"}}) {
    EXPECT_EQ(NameToSave(name, kind), stored) << name << ", kind " << kind;
  }
}

TEST(DocumentNames, TellTheirKindWithDigitsToo) {
  for (const char digit : std::string("0123456789")) {
    EXPECT_EQ(NameToSave(std::string("a.mp") + digit, 2), "a.rtf") << digit;
    EXPECT_EQ(NameToSave(std::string("a.") + digit + "z", 1), "a.txt") << digit;
  }
  for (const std::string extension : {"b:", "b-", "b_1", "b;", "b@", "ж2"}) {
    EXPECT_EQ(NameToSave("a." + extension, 2), "a." + extension + ".rtf");
  }
}

TEST(DocumentNames, KeepAPointThatTellsNoKind) {
  for (const auto& [name, kind, stored] : std::vector<std::tuple<std::string, Long, std::string>>{
           {"Ферма 1.5 м", 1, "Ферма 1.5 м.txt"},
           {"Ферма 1.5 м", 2, "Ферма 1.5 м.rtf"},
           {"Ферма 1.5 м", 4, "Ферма 1.5 м.txt"},
           {"Ферма 1.5", 2, "Ферма 1.5.rtf"},
           {"от 21.11.2026", 1, "от 21.11.2026.txt"},
           {"г. Москва", 3, "г. Москва.doc"},
           {"a.version", 2, "a.version.rtf"},
           {"Ферма 1.5 м.txt", 2, "Ферма 1.5 м.rtf"}}) {
    EXPECT_EQ(NameToSave(name, kind), stored) << name << ", kind " << kind;
  }
}

TEST(DocumentNames, AreMadeWholeFromTheCommandLine) {
  EXPECT_EQ(LongPathName(""), "");
  EXPECT_EQ(LongPathName(" \t"), "");
  EXPECT_EQ(LongPathName("\"\""), "");
  EXPECT_EQ(LongPathName("\" \""), "");
#ifndef _WIN32
  EXPECT_EQ(LongPathName("/home/a.txt"), "/home/a.txt");
  EXPECT_EQ(LongPathName("\"/home/Отчет 1.txt\""), "/home/Отчет 1.txt");
  EXPECT_EQ(LongPathName("/home/./x/../a.txt"), "/home/a.txt");
  const std::u8string folder = std::filesystem::current_path().u8string();
  EXPECT_EQ(LongPathName("a.txt"), std::string(folder.begin(), folder.end()) + "/a.txt");
  // A quote that has no partner is a part of the name.
  EXPECT_EQ(LongPathName("/home/a\".txt"), "/home/a\".txt");
#endif
}

}  // namespace
}  // namespace trelonit::test

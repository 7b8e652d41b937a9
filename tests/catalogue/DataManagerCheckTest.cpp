#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

#include "platform/text/CodePage1251.h"
#include "tests/catalogue/DataManagerDesk.h"

namespace trelonit {
namespace {

using test::MemoryDesk;
using test::NumberedFile;
using test::RecordBytes;
using test::Told;

/// A file of this many records with one name, given as the bytes of the code page.
std::string FileOfName(std::string name, Long count) {
  name.resize(15, ' ');
  std::string bytes;
  for (Long number = 1; number <= count; ++number) {
    bytes += name + RecordBytes(NumberedFile(1), 1).substr(15);
  }
  return bytes;
}

/// The name, in bytes of the code page, that the check makes of this one in a record's place.
std::string Checked(const std::string& name, Long number) {
  MemoryDesk desk(FileOfName(name, number));
  desk.Check();
  EXPECT_TRUE(desk.Desk.Messages.Shown.empty());
  return RecordBytes(desk.Data(), number).substr(0, 15);
}

std::string Padded(const std::string& name) {
  std::string bytes = EncodeCodePage1251(name);
  bytes.resize(15, ' ');
  return bytes;
}

TEST(DataManagerCheck, TellsWhenNoFileWasChosen) {
  for (const std::string path : {"", " "}) {
    MemoryDesk desk(NumberedFile(2));
    desk.Desk.Check(path);
    EXPECT_EQ(desk.Desk.Messages.Shown, std::vector{Told("Data file has not got !")});
    EXPECT_EQ(desk.Desk.Ended, 0);
    EXPECT_EQ(desk.Files.Writes, 0);
  }
}

TEST(DataManagerCheck, EndsTheProgramWhereTheFileDoesNotOpen) {
  for (const bool missing : {true, false}) {
    MemoryDesk desk(NumberedFile(2));
    desk.Files.Refused[desk.Path] = ErrorNumber::PathFileAccess;
    desk.Desk.Check(missing ? "/data/other.dat" : desk.Path);
    EXPECT_EQ(desk.Desk.Messages.Shown, std::vector{test::noDescriptor});
    EXPECT_EQ(desk.Desk.Ended, 1);
    EXPECT_EQ(desk.Desk.ToldBeforeTheEnd, 1U);
    EXPECT_EQ(desk.Files.Writes, 0);
    EXPECT_EQ(desk.Files.Content.size(), 1U);
  }
}

TEST(DataManagerCheck, DropsBlanksAndOddCharactersFromNames) {
  EXPECT_EQ(Checked(EncodeCodePage1251("Тр 40 x 2"), 1), Padded("Тр40x2"));
  EXPECT_EQ(Checked(EncodeCodePage1251(" L25[x]16=3"), 1), Padded("L25x163"));
  EXPECT_EQ(Checked(EncodeCodePage1251("Ёлка №5"), 1), Padded("лка5"));
  EXPECT_EQ(Checked("", 1), Padded(""));
}

TEST(DataManagerCheck, KeepsExactlyTheBytesOfFourRanges) {
  for (int code = 0; code < 256; ++code) {
    const char character = static_cast<char>(code);
    const bool kept = (code >= 33 && code <= 59) || (code >= 65 && code <= 90) ||
                      (code >= 97 && code <= 122) || code >= 192;
    const std::string cleaned = kept ? std::string("A") + character + "B" : "AB";
    EXPECT_EQ(Checked(std::string("A") + character + "B", 1),
              cleaned + std::string(15 - cleaned.size(), ' '))
        << code;
  }
}

TEST(DataManagerCheck, PrefixesNamesOnlyBehindTheLastRoundTube) {
  MemoryDesk desk(FileOfName("40x2", 1577));
  desk.Check();
  for (const Long number : {1, 1573, 1574}) {
    EXPECT_EQ(RecordBytes(desk.Data(), number).substr(0, 15), Padded("40x2")) << number;
  }
  for (const Long number : {1575, 1576, 1577}) {
    EXPECT_EQ(RecordBytes(desk.Data(), number).substr(0, 15), Padded("Тр40x2")) << number;
  }
}

TEST(DataManagerCheck, PrefixesNamesOfAtMostThirteenCharacters) {
  EXPECT_EQ(Checked("", 1575), Padded("Тр"));
  EXPECT_EQ(Checked("1234567890123", 1575), Padded("Тр1234567890123"));
  EXPECT_EQ(Checked("12345678901234", 1575), Padded("12345678901234"));
  EXPECT_EQ(Checked("123456789012345", 1575), Padded("123456789012345"));
  // The cleaned name counts, by its characters.
  EXPECT_EQ(Checked("1 2 3 4 5 6 7 8", 1575), Padded("Тр12345678"));
  EXPECT_EQ(Checked(EncodeCodePage1251("ЩЩЩЩЩЩЩЩЩЩЩЩЩ"), 1575), Padded("ТрЩЩЩЩЩЩЩЩЩЩЩЩЩ"));
}

TEST(DataManagerCheck, AddsASecondPrefixWhenItRunsAgain) {
  MemoryDesk desk(FileOfName("40x2", 1575));
  desk.Check();
  desk.Check();
  EXPECT_EQ(RecordBytes(desk.Data(), 1575).substr(0, 15), Padded("ТрТр40x2"));
  EXPECT_EQ(RecordBytes(desk.Data(), 1574).substr(0, 15), Padded("40x2"));
}

TEST(DataManagerCheck, WritesNothingButNamesOfTheShippedFile) {
  EmbeddedResources resources;
  const std::string shipped(resources.CustomBlock(102));
  MemoryDesk desk(shipped);
  desk.Check();
  ASSERT_EQ(desk.Data().size(), shipped.size());
  EXPECT_EQ(desk.Data().substr(2698 * 177), shipped.substr(2698 * 177));
  for (Long number = 1; number <= 2698; ++number) {
    const std::string before = RecordBytes(shipped, number);
    const std::string after = RecordBytes(desk.Data(), number);
    EXPECT_EQ(after.substr(15), before.substr(15)) << number;
    const std::string name = before.substr(0, before.find(' '));
    const bool prefixed = number > 1574 && name.size() <= 13;
    EXPECT_EQ(after.substr(0, 15), (prefixed ? "\xD2\xF0" + before : before).substr(0, 15))
        << number;
  }
}

TEST(DataManagerCheck, KeepsACopyOfTheFileAsItWas) {
  const std::string before = FileOfName("a b", 1576) + "tail";
  MemoryDesk desk(before);
  desk.Check();
  EXPECT_EQ(desk.Files.Content.at(desk.Path + ".bak"), before);
  const std::string once = desk.Data();
  EXPECT_NE(once, before);
  desk.Check();
  EXPECT_EQ(desk.Files.Content.at(desk.Path + ".bak"), once);
  EXPECT_EQ(desk.Files.Content.size(), 2U);
}

TEST(DataManagerCheck, RewritesNothingWithoutACopy) {
  MemoryDesk desk(FileOfName("a b", 3));
  desk.Load();
  desk.Files.Refused[desk.Path + ".bak"] = ErrorNumber::DiskFull;
  desk.Check();
  EXPECT_EQ(desk.Data(), FileOfName("a b", 3));
  EXPECT_EQ(desk.Files.Writes, 0);
  EXPECT_EQ(desk.Desk.Form.Records[1].Name, "a b");
  ASSERT_EQ(desk.Desk.Messages.Shown.size(), 1U);
  EXPECT_EQ(desk.Desk.Messages.Shown[0].Text, " Err # 61 Discription : Disk full");
  EXPECT_EQ(desk.Desk.Messages.Shown[0].Style, MessageStyle::Critical);
  EXPECT_EQ(desk.Desk.Ended, 0);
}

TEST(DataManagerCheck, EndsTheProgramWhereTheFileCannotBeWritten) {
  MemoryDesk desk(FileOfName("a b", 3));
  desk.Files.ReadOnly.insert(desk.Path);
  desk.Check();
  EXPECT_EQ(desk.Desk.Messages.Shown, std::vector{test::noDescriptor});
  EXPECT_EQ(desk.Desk.Ended, 1);
  EXPECT_EQ(desk.Data(), FileOfName("a b", 3));
}

TEST(DataManagerCheck, PutsTheRepairedRecordsIntoTheWindowAndLeavesBoxesAndPosition) {
  MemoryDesk desk(FileOfName("a b", 1600));
  desk.Load();
  desk.Desk.Form.cmdForv100_Click();
  desk.Desk.Type({"typed"});
  const auto boxes = desk.Desk.Boxes();
  desk.Check();
  EXPECT_EQ(desk.Desk.Boxes(), boxes);
  EXPECT_EQ(desk.Desk.Form.CurPos, 101);
  EXPECT_EQ(desk.Desk.Counts(), "101/1600");
  EXPECT_EQ(desk.Desk.Form.Records[1].Name, "ab");
  EXPECT_EQ(desk.Desk.Form.Records[1600].Name, "Трab");
  desk.Desk.Form.cmdPrew_Click();
  EXPECT_EQ(desk.Desk.Form.Text[1].Text(), "ab             ");
}

TEST(DataManagerCheck, WorksWithNothingLoaded) {
  MemoryDesk desk(FileOfName("a b", 2));
  desk.Check();
  EXPECT_EQ(desk.Data(), FileOfName("ab", 2));
  EXPECT_EQ(desk.Desk.Form.Records.UpperBound(), 2);
  EXPECT_EQ(desk.Desk.Form.CurPos, 0);
  EXPECT_EQ(desk.Desk.Boxes(), std::vector<std::string>(16));
  EXPECT_TRUE(desk.Desk.Messages.Shown.empty());
}

TEST(DataManagerCheck, LeavesTheLoadedFileAloneWhenItChecksAnother) {
  MemoryDesk desk(FileOfName("a b", 5));
  desk.Load();
  desk.Desk.Form.cmdLastpoz_Click();
  desk.Files.Content["/data/second.dat"] = FileOfName("c d", 2);
  desk.Desk.Check("/data/second.dat");
  EXPECT_EQ(desk.Data(), FileOfName("a b", 5));
  EXPECT_EQ(desk.Files.Content.at("/data/second.dat"), FileOfName("cd", 2));
  // The window now has two records only: there is no fifth one to write.
  desk.Desk.Form.cmdEditCurrent_Click();
  desk.Desk.Form.cmdPrew_Click();
  EXPECT_EQ(desk.Desk.Form.CurPos, 4);
  EXPECT_EQ(desk.Files.Content.at("/data/second.dat"), FileOfName("cd", 2));
}

/// Bytes in a file and after its check.
struct Length {
  std::size_t Before;
  std::size_t After;
};

TEST(DataManagerCheck, WritesWholeRecordsAndKeepsALooseEnd) {
  for (const Length& length : std::vector<Length>{
           {0, 0}, {1, 1}, {88, 88}, {89, 177}, {176, 177}, {177, 177}, {265, 265}, {266, 354}}) {
    const std::string before = NumberedFile(2).substr(0, length.Before);
    MemoryDesk desk(before);
    desk.Check();
    EXPECT_EQ(desk.Data().size(), length.After) << length.Before;
    // A number that is cut has no value: it becomes 0.
    const std::size_t whole = length.Before == 176 ? 169 : length.Before;
    EXPECT_EQ(desk.Data().substr(0, whole), before.substr(0, whole)) << length.Before;
    EXPECT_EQ(desk.Files.Content.at(desk.Path + ".bak"), before);
    EXPECT_TRUE(desk.Desk.Messages.Shown.empty()) << length.Before;
  }
}

RC_GTEST_PROP(DataManagerCheck, TouchesNoByteOutsideTheNames, ()) {
  const auto count = *rc::gen::inRange(0, 12);
  const auto tail = *rc::gen::inRange(0, 89);
  const auto bytes = *rc::gen::container<std::string>(static_cast<std::size_t>(count * 177 + tail),
                                                      rc::gen::arbitrary<char>());
  MemoryDesk desk(bytes);
  desk.Check();
  RC_ASSERT(desk.Desk.Messages.Shown.empty());
  RC_ASSERT(desk.Data().size() == bytes.size());
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    const bool inName = place < static_cast<std::size_t>(count) * 177 && place % 177 < 15;
    RC_ASSERT(inName || desk.Data()[place] == bytes[place]);
  }
}

}  // namespace
}  // namespace trelonit

#include <algorithm>
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
using Texts = std::vector<std::string>;

/// The file after record 2 of 3 got these texts, the first ones being Name and Type.
std::string Edited(const Texts& texts) {
  MemoryDesk desk(NumberedFile(3));
  desk.Load();
  desk.Desk.Form.cmdForv_Click();
  desk.Desk.Type(texts);
  desk.Desk.Form.cmdEditCurrent_Click();
  EXPECT_TRUE(desk.Desk.Messages.Shown.empty());
  return desk.Data();
}

TEST(DataManagerEdit, TellsThatNothingIsLoaded) {
  MemoryDesk desk(NumberedFile(1));
  desk.Desk.Form.cmdEditCurrent_Click();
  desk.Desk.Form.DataPath = " ";
  desk.Desk.Form.cmdEditCurrent_Click();
  const Message told = Told("Не загружена база данных !");
  EXPECT_EQ(desk.Desk.Messages.Shown, (std::vector{told, told}));
  EXPECT_EQ(desk.Data(), NumberedFile(1));
  EXPECT_EQ(desk.Desk.Ended, 0);
}

TEST(DataManagerEdit, WritesTheBoxesIntoTheFieldsOfTheFile) {
  const std::string file = Edited({"Шв20", "Швеллер", "200", "76", "5.2", "9", "9.5", "5.5", "23.4",
                                   "1520", "113", "152", "20.5", "20.7", "0.5", "0.184"});
  ProfileRec record;
  record.Name = "Шв20";
  record.Type = "Швеллер";
  record.H = 200;
  record.B = 76;
  record.s = 5.2;
  record.t = 9;
  record.r1 = 9.5;
  record.r2 = 5.5;
  record.A = 23.4;
  record.Jy = 1520;
  record.Jz = 113;
  record.Wy = 152;
  record.Wz = 20.5;
  record.y0 = 20.7;
  record.z0 = 0.5;
  record.P = 0.184;
  EXPECT_EQ(RecordBytes(file, 2), test::BytesOf(record));
  EXPECT_EQ(RecordBytes(file, 2).substr(0, 15), EncodeCodePage1251("Шв20           "));
  EXPECT_EQ(RecordBytes(file, 1), RecordBytes(NumberedFile(3), 1));
  EXPECT_EQ(RecordBytes(file, 3), RecordBytes(NumberedFile(3), 3));
  EXPECT_EQ(file.size(), NumberedFile(3).size());
}

TEST(DataManagerEdit, WritesTheCurrentRecordOnlyAndAtOnce) {
  MemoryDesk desk(NumberedFile(3));
  desk.Load();
  desk.Desk.Form.Text[3].SetText("55");
  // What was typed and not written is gone with the next record.
  desk.Desk.Form.cmdForv_Click();
  desk.Desk.Form.cmdPrew_Click();
  EXPECT_EQ(desk.Desk.Boxes(), test::NumberedBoxes(1));
  EXPECT_EQ(desk.Files.Writes, 0);
  desk.Desk.Form.cmdEditCurrent_Click();
  EXPECT_EQ(desk.Files.Writes, 1);
  EXPECT_EQ(desk.Data(), NumberedFile(3));
}

TEST(DataManagerEdit, KeepsRecordsAndFileInStep) {
  MemoryDesk desk(NumberedFile(3));
  desk.Load();
  desk.Desk.Form.cmdLastpoz_Click();
  desk.Desk.Type({"Ωмега", "≥ 5", "1,5"});
  desk.Desk.Form.cmdEditCurrent_Click();
  EXPECT_EQ(test::BytesOf(desk.Desk.Form.Records[3]), RecordBytes(desk.Data(), 3));
  EXPECT_EQ(desk.Desk.Form.Records[3], DecodeProfileRecord(RecordBytes(desk.Data(), 3)));
  EXPECT_EQ(desk.Desk.Form.Records[3].H, 1.5);
  EXPECT_EQ(desk.Desk.Counts(), "3/3");
  desk.Desk.Form.cmdPrew_Click();
  desk.Desk.Form.cmdForv_Click();
  EXPECT_EQ(desk.Desk.Form.Text[1].Text(), "?мега          ");
}

TEST(DataManagerEdit, RefreshesTheCounts) {
  MemoryDesk desk(NumberedFile(3));
  desk.Load();
  desk.Desk.Form.lblCurr.SetCaption("");
  desk.Desk.Form.lblTotal.SetCaption("");
  desk.Desk.Form.cmdEditCurrent_Click();
  EXPECT_EQ(desk.Desk.Counts(), "1/3");
}

TEST(DataManagerEdit, CutsTextsThatAreLongerThanTheirFields) {
  const std::string name = "ЩЩЩЩЩЩЩЩЩЩЩЩЩЩЩЯ";
  const std::string standard = std::string(49, 's') + "ЮЯ";
  const std::string file = Edited({name, standard});
  EXPECT_EQ(RecordBytes(file, 2).substr(0, 15), std::string(15, '\xD9'));
  EXPECT_EQ(RecordBytes(file, 2).substr(15, 50), std::string(49, 's') + "\xDE");
  EXPECT_EQ(RecordBytes(file, 2).substr(65), RecordBytes(NumberedFile(3), 2).substr(65));
}

TEST(DataManagerEdit, PadsShortTextsWithBlanks) {
  const std::string file = Edited({"", "T"});
  EXPECT_EQ(RecordBytes(file, 2).substr(0, 65), std::string(15, ' ') + "T" + std::string(49, ' '));
}

TEST(DataManagerEdit, WritesAQuestionMarkForACharacterOutsideTheCodePage) {
  const std::string file = Edited({"Ω漢😀\xFFx№", "50×5 ≥"});
  EXPECT_EQ(RecordBytes(file, 2).substr(0, 15), "????x\xB9         ");
  EXPECT_EQ(RecordBytes(file, 2).substr(15, 6), "50?5 ?");
}

TEST(DataManagerEdit, TakesNumbersAsTheTolerantParserReadsThem) {
  Texts texts = test::NumberedBoxes(2);
  texts[2] = "abc";
  texts[3] = "1,5";
  texts[4] = "";
  texts[5] = "2.5";
  texts[6] = "1e999";
  texts[7] = "-3";
  texts[8] = "1,2,3";
  const ProfileRec record = DecodeProfileRecord(RecordBytes(Edited(texts), 2));
  EXPECT_EQ(record.H, 0);
  EXPECT_EQ(record.B, 1.5);
  EXPECT_EQ(record.s, 0);
  EXPECT_EQ(record.t, 2.5);
  EXPECT_EQ(record.r1, 0);
  EXPECT_EQ(record.r2, -3);
  EXPECT_EQ(record.A, 1.2);
  EXPECT_EQ(record.Jy, test::NumberedRecord(2).Jy);
}

TEST(DataManagerEdit, ReadsBackWhatItShowedInALocaleWithCommas) {
  MemoryDesk desk(NumberedFile(3), test::CommaLocale());
  desk.Load();
  desk.Desk.Form.cmdEditCurrent_Click();
  EXPECT_EQ(desk.Data(), NumberedFile(3));
}

TEST(DataManagerEdit, TellsWhenTheFileHasVanishedSinceItWasLoaded) {
  MemoryDesk desk(NumberedFile(3));
  desk.Load();
  desk.Files.Content.erase(desk.Path);
  desk.Desk.Form.Text[1].SetText("new");
  desk.Desk.Form.cmdEditCurrent_Click();
  EXPECT_EQ(desk.Desk.Messages.Shown, std::vector{Told("Data file not exists !")});
  EXPECT_EQ(desk.Files.Content.count(desk.Path), 0U);
  EXPECT_EQ(desk.Desk.Form.Records[1], test::NumberedRecord(1));
  EXPECT_EQ(desk.Desk.Ended, 0);
}

TEST(DataManagerEdit, EndsTheProgramWhereTheFileHasBecomeReadOnly) {
  MemoryDesk desk(NumberedFile(3));
  desk.Load();
  desk.Files.ReadOnly.insert(desk.Path);
  desk.Desk.Form.Text[1].SetText("new");
  desk.Desk.Form.cmdEditCurrent_Click();
  EXPECT_EQ(desk.Desk.Messages.Shown, std::vector{test::noDescriptor});
  EXPECT_EQ(desk.Desk.Ended, 1);
  EXPECT_EQ(desk.Desk.ToldBeforeTheEnd, 1U);
  EXPECT_EQ(desk.Data(), NumberedFile(3));
  EXPECT_EQ(desk.Desk.Form.Records[1], test::NumberedRecord(1));
}

TEST(DataManagerEdit, MakesACutLastRecordWhole) {
  MemoryDesk desk(NumberedFile(2).substr(0, 177 + 89));
  desk.Load();
  desk.Desk.Form.cmdLastpoz_Click();
  desk.Desk.Form.cmdEditCurrent_Click();
  EXPECT_EQ(desk.Data(), NumberedFile(2).substr(0, 177 + 89) + std::string(88, '\0'));
}

TEST(DataManagerEdit, KeepsBytesBehindTheLastRecord) {
  MemoryDesk desk(NumberedFile(2) + std::string(88, 'x'));
  desk.Load();
  desk.Desk.Form.cmdLastpoz_Click();
  desk.Desk.Type({"new"});
  desk.Desk.Form.cmdEditCurrent_Click();
  EXPECT_EQ(desk.Data().size(), 2U * 177 + 88);
  EXPECT_EQ(desk.Data().substr(354), std::string(88, 'x'));
}

RC_GTEST_PROP(DataManagerEdit, TouchesNoByteOutsideTheCurrentRecord, ()) {
  const auto count = *rc::gen::inRange(1, 12);
  const auto tail = *rc::gen::inRange(0, 89);
  const auto bytes = *rc::gen::container<std::string>(static_cast<std::size_t>(count * 177 + tail),
                                                      rc::gen::arbitrary<char>());
  const auto position = *rc::gen::inRange(1, count + 1);
  const auto texts = *rc::gen::container<Texts>(16, rc::gen::arbitrary<std::string>());
  MemoryDesk desk(bytes);
  desk.Load();
  desk.Desk.GoTo(position);
  desk.Desk.Type(texts);
  desk.Desk.Form.cmdEditCurrent_Click();
  const std::size_t begin = static_cast<std::size_t>(position - 1) * 177;
  RC_ASSERT(desk.Desk.Messages.Shown.empty());
  RC_ASSERT(desk.Data().size() == bytes.size());
  RC_ASSERT(desk.Data().substr(0, begin) == bytes.substr(0, begin));
  RC_ASSERT(desk.Data().substr(begin + 177) == bytes.substr(begin + 177));
  ProfileRec typed;
  typed.Name = std::string_view(texts[0]);
  typed.Type = std::string_view(texts[1]);
  RC_ASSERT(desk.Data().substr(begin, 65) == test::BytesOf(typed).substr(0, 65));
}

RC_GTEST_PROP(DataManagerEdit, WritesNumbersOfFifteenDigitsBackAsTheyWere, ()) {
  ProfileRec record;
  for (const ProfileField& listed : profileFields) {
    record.*listed.Number = *rc::gen::inRange(-1000000000, 1000000000) / 10000.0;
  }
  MemoryDesk desk(test::BytesOf(record));
  desk.Load();
  desk.Desk.Form.cmdEditCurrent_Click();
  RC_ASSERT(desk.Data() == test::BytesOf(record));
}

}  // namespace
}  // namespace trelonit

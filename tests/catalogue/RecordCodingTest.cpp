#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>
#include <string>
#include <string_view>

#include "catalogue/RecordCoding.h"
#include "platform/text/CodePage1251.h"
#include "resources/generator/CatalogueBlocks.h"

namespace trelonit {
namespace {

using namespace std::string_view_literals;

template <class Bytes>
std::string Text(const Bytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

rc::Gen<std::string> AnyBytes(std::size_t count) {
  return rc::gen::container<std::string>(count, rc::gen::arbitrary<char>());
}

ProfileRec SampleRecord() {
  ProfileRec record{.Name = "Тр10x1", .Type = "Тpубы", .B = 1, .H = -2.5, .z0 = 0.1};
  return record;
}

TEST(RecordCoding, PlacesTheFieldsOfADataRecordByteByByte) {
  const std::string bytes = Text(EncodeProfileRecord(SampleRecord()));
  ASSERT_EQ(bytes.size(), 177U);
  EXPECT_EQ(bytes.substr(0, 15),
            "\xD2\xF0"
            "10x1         ");
  // The second letter of the name is a Latin one.
  EXPECT_EQ(bytes.substr(15, 50), "\xD2p\xF3\xE1\xFB" + std::string(45, ' '));
  EXPECT_EQ(bytes.substr(65, 8), "\x00\x00\x00\x00\x00\x00\xF0\x3F"sv);
  EXPECT_EQ(bytes.substr(73, 8), "\x00\x00\x00\x00\x00\x00\x04\xC0"sv);
  EXPECT_EQ(bytes.substr(81, 88), std::string(88, '\0'));
  EXPECT_EQ(bytes.substr(169, 8), "\x9A\x99\x99\x99\x99\x99\xB9\x3F"sv);
}

TEST(RecordCoding, PlacesTheFieldsOfAnIndexRecordByteByByte) {
  const std::string bytes =
      Text(EncodeIndexRecord({.Name = "Ab", .FirstNum = 0x01020304, .LastNum = -2}));
  EXPECT_EQ(bytes, "Ab" + std::string(48, ' ') + "\x04\x03\x02\x01" + "\xFE\xFF\xFF\xFF");
}

TEST(ProfileFields, StandInTheOrderOfTheTables) {
  std::string head = "Name";
  for (const ProfileField& field : profileFields) {
    head += "," + std::string(field.Name);
  }
  EXPECT_EQ(head, packer::sizesHead);
}

TEST(RecordCoding, KeepsTheOrderOfTheNumbers) {
  ProfileRec record;
  double value = 0;
  for (const ProfileField& listed : profileFields) {
    record.*listed.Number = ++value;
  }
  const ProfileRec expected{.B = 1,
                            .H = 2,
                            .t = 3,
                            .s = 4,
                            .r1 = 5,
                            .r2 = 6,
                            .A = 7,
                            .Jy = 8,
                            .Jz = 9,
                            .P = 10,
                            .Wy = 11,
                            .Wz = 12,
                            .y0 = 13,
                            .z0 = 14};
  EXPECT_EQ(record, expected);
  const std::string bytes = Text(EncodeProfileRecord(record));
  for (std::size_t place = 0; place < profileFields.size(); ++place) {
    std::uint64_t bits = 0;
    for (std::size_t byte = 8; byte-- > 0;) {
      bits = bits << 8 | static_cast<unsigned char>(bytes[65 + 8 * place + byte]);
    }
    EXPECT_EQ(std::bit_cast<double>(bits), static_cast<double>(place + 1));
  }
}

TEST(RecordCoding, ReadsTextsWithTheirTrailingBlanks) {
  const ProfileRec record = DecodeProfileRecord(Text(EncodeProfileRecord(SampleRecord())));
  EXPECT_EQ(record.Name.Padded(), "Тр10x1         ");
  EXPECT_EQ(record.Type.Padded(), "Тpубы" + std::string(45, ' '));
  EXPECT_EQ(record, SampleRecord());
}

TEST(RecordCoding, WritesAQuestionMarkForACharacterThatTheCodePageLacks) {
  const auto bytes = EncodeProfileRecord({.Name = "Ω5"});
  EXPECT_EQ(Text(bytes).substr(0, 3), "?5 ");
}

TEST(RecordCoding, TakesNumbersThatAreNoneAsTheyStand) {
  ProfileRec record;
  record.A = std::numeric_limits<double>::infinity();
  record.Jy = std::numeric_limits<double>::quiet_NaN();
  const ProfileRec read = DecodeProfileRecord(Text(EncodeProfileRecord(record)));
  EXPECT_EQ(read.A, std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isnan(read.Jy));
}

TEST(RecordCoding, LeavesTheFieldsThatACutRecordLacksEmpty) {
  ProfileRec record = SampleRecord();
  record.H = 7;
  const std::string bytes = Text(EncodeProfileRecord(record));

  ProfileRec expected;
  EXPECT_EQ(DecodeProfileRecord(""), expected);
  expected.Name = "Тр";
  EXPECT_EQ(DecodeProfileRecord(bytes.substr(0, 2)), expected);
  expected.Name = record.Name;
  expected.Type = record.Type;
  expected.B = record.B;
  // One byte of H is missing.
  EXPECT_EQ(DecodeProfileRecord(bytes.substr(0, 80)), expected);
  expected.H = record.H;
  EXPECT_EQ(DecodeProfileRecord(bytes.substr(0, 81)), expected);

  const std::string row = Text(EncodeIndexRecord({.Name = "N", .FirstNum = 1, .LastNum = 2}));
  EXPECT_EQ(DecodeIndexRecord(row.substr(0, 57)), (IndexRec{.Name = "N", .FirstNum = 1}));
  EXPECT_EQ(DecodeIndexRecord(""), IndexRec());
}

TEST(RecordCoding, IgnoresBytesBehindTheRecord) {
  const std::string bytes = Text(EncodeProfileRecord(SampleRecord()));
  EXPECT_EQ(DecodeProfileRecord(bytes + "more"), SampleRecord());
}

TEST(RecordCoding, GivesBackAnyBytesOfADataRecord) {
  EXPECT_TRUE(rc::check([] {
    const std::string bytes = *AnyBytes(profileRecordSize);
    RC_ASSERT(Text(EncodeProfileRecord(DecodeProfileRecord(bytes))) == bytes);
  }));
}

TEST(RecordCoding, GivesBackAnyBytesOfAnIndexRecord) {
  EXPECT_TRUE(rc::check([] {
    const std::string bytes = *AnyBytes(indexRecordSize);
    RC_ASSERT(Text(EncodeIndexRecord(DecodeIndexRecord(bytes))) == bytes);
  }));
}

TEST(RecordCoding, GivesBackAnyTextOfTheCodePage) {
  EXPECT_TRUE(rc::check([] {
    const std::string name = *AnyBytes(15);
    const std::string type = *AnyBytes(50);
    const ProfileRec record{.Name = FixedText<15>(DecodeCodePage1251(name)),
                            .Type = FixedText<50>(DecodeCodePage1251(type))};
    const std::string bytes = Text(EncodeProfileRecord(record));
    RC_ASSERT(bytes.substr(0, 15) == name);
    RC_ASSERT(bytes.substr(15, 50) == type);
    RC_ASSERT(DecodeProfileRecord(bytes) == record);
  }));
}

}  // namespace
}  // namespace trelonit

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/CodePage1251.h"

namespace trelonit::test {

namespace {

// The published table of the code page, bytes 80 to FF.
constexpr std::u16string_view upperHalf =
    u"\u0402\u0403\u201A\u0453\u201E\u2026\u2020\u2021\u20AC\u2030\u0409\u2039\u040A\u040C\u040B"
    u"\u040F\u0452\u2018\u2019\u201C\u201D\u2022\u2013\u2014\x98\u2122\u0459\u203A\u045A\u045C"
    u"\u045B\u045F\u00A0\u040E\u045E\u0408\u00A4\u0490\u00A6\u00A7\u0401\u00A9\u0404\u00AB\u00AC"
    u"\u00AD\u00AE\u0407\u00B0\u00B1\u0406\u0456\u0491\u00B5\u00B6\u00B7\u0451\u2116\u0454\u00BB"
    u"\u0458\u0405\u0455\u0457"
    u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдежзийклмнопрстуфхцчшщъыьэюя";
static_assert(upperHalf.size() == 128);

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    bytes.push_back(static_cast<char>(byte));
  }
  return bytes;
}

TEST(CodePage1251, KeepsTheLowerHalf) {
  for (int byte = 0; byte < 0x80; ++byte) {
    EXPECT_EQ(static_cast<int>(FromCodePage1251(static_cast<unsigned char>(byte))), byte);
    EXPECT_EQ(static_cast<int>(ToCodePage1251(static_cast<char32_t>(byte))), byte);
  }
}

TEST(CodePage1251, FollowsThePublishedTable) {
  for (std::size_t place = 0; place < upperHalf.size(); ++place) {
    const auto byte = static_cast<unsigned char>(0x80 + place);
    EXPECT_EQ(static_cast<int>(FromCodePage1251(byte)), static_cast<int>(upperHalf[place]));
    EXPECT_EQ(ToCodePage1251(upperHalf[place]), byte) << place;
  }
}

TEST(CodePage1251, ReadsEveryByteBackAsItself) {
  const std::string bytes = AllBytes();
  EXPECT_EQ(EncodeCodePage1251(DecodeCodePage1251(bytes)), bytes);
}

TEST(CodePage1251, DecodesToUtf8) {
  EXPECT_EQ(DecodeCodePage1251("\xC3\xCE\xD1\xD2 8509-93 \xB9 5"), "ГОСТ 8509-93 № 5");
  EXPECT_EQ(DecodeCodePage1251(""), "");
  EXPECT_EQ(DecodeCodePage1251(std::string_view("a\0b", 3)), std::string("a\0b", 3));
}

TEST(CodePage1251, EncodesOneByteACharacter) {
  EXPECT_EQ(EncodeCodePage1251("Ферма"), "\xD4\xE5\xF0\xEC\xE0");
  EXPECT_EQ(EncodeCodePage1251("ёЁ"), "\xB8\xA8");
  EXPECT_EQ(EncodeCodePage1251(""), "");
}

TEST(CodePage1251, WritesAQuestionMarkForACharacterOutside) {
  EXPECT_EQ(EncodeCodePage1251("a\u00E9b"), "a?b");
  EXPECT_EQ(EncodeCodePage1251("\u4E2D"), "?");
  EXPECT_EQ(EncodeCodePage1251("\U0001F600!"), "?!");
  EXPECT_EQ(EncodeCodePage1251("\u2212\u00D7\u03C3"), "???");
  EXPECT_EQ(ToCodePage1251(0x0080), '?');
  EXPECT_EQ(ToCodePage1251(0x040D), '?');
  EXPECT_EQ(ToCodePage1251(0x0450), '?');
  EXPECT_EQ(ToCodePage1251(0x00BF), '?');
  EXPECT_EQ(ToCodePage1251(0x10FFFF), '?');
  // Above 16 bits, but with the low bits of a letter.
  EXPECT_EQ(ToCodePage1251(0x10410), '?');
  EXPECT_EQ(ToCodePage1251(0x10402), '?');
}

TEST(CodePage1251, WritesAQuestionMarkForMalformedUtf8) {
  EXPECT_EQ(EncodeCodePage1251("a\xFF"
                               "b"),
            "a?b");
  EXPECT_EQ(EncodeCodePage1251("a\xD0"), "a?");
  EXPECT_EQ(EncodeCodePage1251("\x80x"), "?x");
  EXPECT_EQ(EncodeCodePage1251("\xD0z"), "?z");
}

RC_GTEST_PROP(CodePage1251, ReadsAnyBytesBackAsThemselves, (const std::string& bytes)) {
  RC_ASSERT(EncodeCodePage1251(DecodeCodePage1251(bytes)) == bytes);
}

RC_GTEST_PROP(CodePage1251, EncodesAnyBytesToTextThatReadsBackTheSame, ()) {
  const auto values = *rc::gen::container<std::vector<unsigned char>>(
      rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<unsigned char>()));
  const std::string text(values.begin(), values.end());
  const std::string bytes = EncodeCodePage1251(text);
  RC_ASSERT(bytes.size() <= text.size());
  RC_ASSERT(EncodeCodePage1251(DecodeCodePage1251(bytes)) == bytes);
}

RC_GTEST_PROP(CodePage1251, KeepsACharacterOrWritesAQuestionMark, ()) {
  const auto character = *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, 0x110000));
  const unsigned char byte = ToCodePage1251(static_cast<char32_t>(character));
  RC_ASSERT(FromCodePage1251(byte) == static_cast<char32_t>(character) || byte == '?');
}

}  // namespace

}  // namespace trelonit::test

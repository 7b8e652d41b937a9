#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

#include "platform/text/Text.h"

namespace trelonit::test {

namespace {

TEST(IsUtf8, TellsWellFormedBytes) {
  EXPECT_TRUE(IsUtf8(""));
  EXPECT_TRUE(IsUtf8("ferma"));
  EXPECT_TRUE(IsUtf8("ферма \U0001F600"));
  EXPECT_FALSE(IsUtf8("\xF4\xE5\xF0\xEC\xE0"));
  EXPECT_FALSE(IsUtf8("\xD1"));
  EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));
}

TEST(Characters, CountsCharactersAndNotBytes) {
  EXPECT_EQ(Characters("Пояс").size(), 4U);
  EXPECT_EQ(Characters("aй\u20AC\U0001F600"), U"aй\u20AC\U0001F600");
  EXPECT_EQ(Characters(""), U"");
  EXPECT_EQ(Characters(std::string("a\0b", 3)), std::u32string(U"a\0b", 3));
}

TEST(Characters, GivesTheReplacementCharacterForMalformedBytes) {
  EXPECT_EQ(Characters("a\xFFz"), U"a\uFFFDz");
  EXPECT_EQ(Characters("\x80z"), U"\uFFFDz");
  EXPECT_EQ(Characters("\xD0z"), U"\uFFFDz");
  EXPECT_EQ(Characters("a\xD0"), U"a\uFFFD");
}

TEST(Characters, TakesNeitherOverlongFormsNorSurrogates) {
  for (const std::string bytes : {"\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
    const std::u32string characters = Characters(bytes);
    EXPECT_FALSE(characters.empty());
    EXPECT_EQ(characters.find_first_not_of(U'\uFFFD'), std::u32string::npos);
  }
}

TEST(Utf8, WritesEveryLength) {
  EXPECT_EQ(Utf8(U"a"), "a");
  EXPECT_EQ(Utf8(U"\u0080"), "\xC2\x80");
  EXPECT_EQ(Utf8(U"й"), "\xD0\xB9");
  EXPECT_EQ(Utf8(U"\u20AC"), "\xE2\x82\xAC");
  EXPECT_EQ(Utf8(U"\U0001F600"), "\xF0\x9F\x98\x80");
  EXPECT_EQ(Utf8(U""), "");
}

TEST(AppendUtf8, AddsBehindTheText) {
  std::string text = "№";
  AppendUtf8(text, U'я');
  AppendUtf8(text, U'1');
  EXPECT_EQ(text, "№я1");
}

RC_GTEST_PROP(Characters, ReadsBackWhatUtf8Wrote, ()) {
  const auto codes = *rc::gen::container<std::vector<int>>(rc::gen::resize(
      rc::kNominalSize, rc::gen::oneOf(rc::gen::inRange(0, 0x80), rc::gen::inRange(0, 0xD800),
                                       rc::gen::inRange(0xE000, 0x110000))));
  const std::u32string characters(codes.begin(), codes.end());
  RC_ASSERT(Characters(Utf8(characters)) == characters);
}

RC_GTEST_PROP(Characters, NeverFailsAndGivesCharactersOnly, ()) {
  const auto values = *rc::gen::container<std::vector<unsigned char>>(
      rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<unsigned char>()));
  const std::u32string characters = Characters(std::string(values.begin(), values.end()));
  for (const char32_t character : characters) {
    RC_ASSERT(character < 0xD800 || (character > 0xDFFF && character < 0x110000));
  }
  RC_ASSERT(characters.empty() == values.empty());
}

TEST(Utf8OfUtf16, JoinsSurrogatePairs) {
  // The first and the last character beyond the basic plane, and one of Unicode's own examples.
  EXPECT_EQ(Utf8(std::u16string{0xD800, 0xDC00}), "\xF0\x90\x80\x80");
  EXPECT_EQ(Utf8(std::u16string{0xDBFF, 0xDFFF}), "\xF4\x8F\xBF\xBF");
  EXPECT_EQ(Utf8(std::u16string{u'a', 0xD800, 0xDF02, u'ж'}), "a\xF0\x90\x8C\x82\xD0\xB6");
}

TEST(Utf8OfUtf16, ReplacesHalvesOfPairs) {
  EXPECT_EQ(Utf8(std::u16string{0xD83D}), "\uFFFD");
  EXPECT_EQ(Utf8(std::u16string{0xDE00, 0xD83D}), "\uFFFD\uFFFD");
  EXPECT_EQ(Utf8(std::u16string{0xD83D, u'a', 0xDE00}), "\uFFFDa\uFFFD");
}

TEST(LatinCase, ChangesLatinLettersAlone) {
  EXPECT_EQ(LowerLatin("AZaz@[`{09"), "azaz@[`{09");
  EXPECT_EQ(LowerLatin("ЖÀ.TSAV"), "ЖÀ.tsav");
  EXPECT_EQ(UpperLatin('a'), 'A');
  EXPECT_EQ(UpperLatin('z'), 'Z');
  for (const char other : std::string("AZ@[`{09")) {
    EXPECT_EQ(UpperLatin(other), other);
  }
}

TEST(IsLatinLetter, IsTrueForBothCasesAndNothingElse) {
  for (const char letter : std::string("AMZamz")) {
    EXPECT_TRUE(IsLatinLetter(letter)) << letter;
  }
  for (const char other : std::string("@[`{09 _ж")) {
    EXPECT_FALSE(IsLatinLetter(other)) << other;
  }
}

TEST(TrimRight, DropsBlanksAtTheRightEnd) {
  EXPECT_EQ(TrimRight("  ab c  "), "  ab c");
  EXPECT_EQ(TrimRight("ab"), "ab");
  EXPECT_EQ(TrimRight("   "), "");
  EXPECT_EQ(TrimRight(""), "");
}

TEST(TrimRight, DropsNothingButBlanks) {
  EXPECT_EQ(TrimRight("a\t"), "a\t");
  EXPECT_EQ(TrimRight("a\n"), "a\n");
  EXPECT_EQ(TrimRight("a\u00A0"), "a\u00A0");
}

TEST(Trim, DropsBlanksAndTabsAtBothEnds) {
  EXPECT_EQ(Trim(" \t a\t b \t "), "a\t b");
  EXPECT_EQ(Trim("ab"), "ab");
  EXPECT_EQ(Trim(" \t "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(Trim, DropsNothingButBlanksAndTabs) {
  EXPECT_EQ(Trim("\na\n"), "\na\n");
  EXPECT_EQ(Trim("\u00A0a\u00A0"), "\u00A0a\u00A0");
}

}  // namespace

}  // namespace trelonit::test

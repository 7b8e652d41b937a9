#include <gtest/gtest.h>

#include "editor/rtf/RtfCodePages.h"
#include "tests/editor/rtf/RtfTexts.h"

namespace trelonit::test {
namespace {

TEST(RtfCharacters, PlainTextIsTakenAsItStands) {
  EXPECT_EQ(BodyText("Steel, 1; 2  3"), u"Steel, 1; 2  3");
}

TEST(RtfCharacters, LineEndsOfTheFileAreNoText) {
  EXPECT_EQ(BodyText("a\r\nb\nc\rd"), u"abcd");
}

TEST(RtfCharacters, EscapedBracesAndBackslashesAreText) {
  EXPECT_EQ(BodyText("\\{a\\\\b\\}"), u"{a\\b}");
}

TEST(RtfCharacters, OneBlankAfterAWordBelongsToIt) {
  EXPECT_EQ(BodyText("\\b  a\\b0 b\\i-c"), u" ab-c");
}

TEST(RtfCharacters, NamedCharacters) {
  EXPECT_EQ(BodyText("\\emdash\\endash\\bullet\\lquote\\rquote\\ldblquote\\rdblquote\\tab x"),
            u"\u2014\u2013\u2022\u2018\u2019\u201C\u201D\tx");
  EXPECT_EQ(BodyText("\\emspace\\enspace\\qmspace\\zwj\\zwnj\\ltrmark\\rtlmark x"),
            u"\u2003\u2002\u2005\u200D\u200C\u200E\u200Fx");
}

TEST(RtfCharacters, SpecialBlanksAndHyphens) {
  EXPECT_EQ(BodyText("a\\~b\\_c\\-d"), u"a\u00A0b\u2011c\u00ADd");
}

TEST(RtfCharacters, SymbolsWithoutMeaningHereAreNoText) {
  EXPECT_EQ(BodyText("a\\|b\\:c\\\"d"), u"abcd");
  EXPECT_EQ(BodyText("a{\\:\\unknown b}c"), u"abc");
}

TEST(RtfCharacters, ATabByteIsATab) {
  EXPECT_EQ(BodyText("a\tb\\\tc"), u"a\tb\tc");
}

TEST(RtfCharacters, OtherControlBytesAreNoText) {
  EXPECT_EQ(BodyText(std::string("a\0b\x01"
                                 "c",
                                 5)),
            u"abc");
}

TEST(RtfCharacters, BytesWithoutAFontFollowTheDocumentsCodePage) {
  EXPECT_EQ(BodyText("\\ansi\\ansicpg1251 \\'d4\\'E5"), u"Фе");
  EXPECT_EQ(BodyText("\\ansi\\ansicpg1250 \\'b3"), u"ł");
  EXPECT_EQ(BodyText("\\ansi \\'e4"), u"ä");
  EXPECT_EQ(BodyText("\\'e4"), u"ä");
  EXPECT_EQ(BodyText("\\pc \\'84"), u"ä");
  EXPECT_EQ(BodyText("\\pca \\'d1"), u"Ð");
}

TEST(RtfCharacters, TheFontsScriptComesBeforeTheDocumentsCodePage) {
  EXPECT_EQ(BodyText("\\ansicpg1252{\\fonttbl{\\f0\\fcharset204 A;}{\\f1\\fcharset161 B;}"
                     "{\\f2\\fcharset1 C;}{\\f3\\cpg866 D;}{\\f4\\fcharset0 E;}}"
                     "\\f0\\'d4\\f1\\'d4\\f2\\'d4\\f3\\'94\\f4\\'d4"),
            u"ФΤÔФÔ");
}

TEST(RtfCharacters, TheDefaultFontsScriptCountsToo) {
  EXPECT_EQ(BodyText("\\ansicpg1252\\deff3{\\fonttbl{\\f3\\fcharset204 A;}}\\'d4"), u"Ф");
}

TEST(RtfCharacters, RawBytesAreDecodedLikeEscapedOnes) {
  EXPECT_EQ(BodyText("\\ansicpg1251 \xD4\xE5\xF0\xEC\xE0 \xB8"), u"Ферма ё");
}

TEST(RtfCharacters, AnUnknownCodePageReadsAsTheWesternOne) {
  EXPECT_EQ(BodyText("\\ansicpg99999 \\'e4"), u"ä");
}

TEST(RtfCharacters, AnEscapeWithoutTwoDigitsIsNoCharacter) {
  EXPECT_EQ(BodyText("a\\'4gb\\'"), u"a4gb");
}

TEST(RtfCharacters, AnEscapeMayBeTheLastThingThereIs) {
  EXPECT_EQ(TextOf(ReadRtf("{\\rtf1 a\\'62")), u"ab");
}

TEST(RtfCharacters, UnicodeEscapesReplaceTheirFallback) {
  EXPECT_EQ(BodyText("\\u1060?\\u8805\\'3db"), u"Ф≥b");
}

TEST(RtfCharacters, NegativeNumbersAreTheUpperHalfOfThePlane) {
  EXPECT_EQ(BodyText("\\u-4096?"), u"\uF000");
  EXPECT_EQ(BodyText("\\u61440?"), u"\uF000");
}

TEST(RtfCharacters, TwoEscapesMakeACharacterBeyondThePlane) {
  EXPECT_EQ(BodyText("\\u-10179?\\u-8704?"), u"\U0001F600");
  EXPECT_EQ(BodyText("\\u128512?"), u"\U0001F600");
}

TEST(RtfCharacters, TheLastCharacterOfAllIsOne) {
  EXPECT_EQ(BodyText("\\u1114111?"), u"\U0010FFFF");
}

TEST(RtfCharacters, ANumberThatIsNoCharacterIsReplaced) {
  EXPECT_EQ(BodyText("\\u1114112?\\u-70000?"), u"\uFFFD\uFFFD");
}

TEST(RtfCharacters, TheFallbacksLengthIsTheGroups) {
  EXPECT_EQ(BodyText("\\uc2\\u1060\\'84\\'55{\\uc0\\u1077 b}\\u1088xyc"), u"Феbрc");
}

TEST(RtfCharacters, AFallbacksLengthWithoutANumberIsOne) {
  EXPECT_EQ(BodyText("\\uc3\\uc\\u1060?b"), u"Фb");
}

TEST(RtfCharacters, AFallbackEndsWithItsGroup) {
  EXPECT_EQ(BodyText("{\\uc5\\u1060 a}bc"), u"Фbc");
  EXPECT_EQ(BodyText("\\uc5\\u1060 a{bc}d"), u"Фbcd");
}

TEST(RtfCharacters, AWordOrSymbolCountsAsOneCharacterOfTheFallback) {
  EXPECT_EQ(BodyText("\\uc2\\u1060\\bullet\\~x"), u"Фx");
}

TEST(RtfCharacters, TheDataOfABinaryFallbackIsPassedOver) {
  EXPECT_EQ(BodyText("\\u1060\\bin3 }}}x"), u"Фx");
}

TEST(RtfCharacters, AnEscapeRightAfterAnEscapeIsNoFallback) {
  EXPECT_EQ(BodyText("\\u1060\\u1077\\u1088"), u"Фер");
}

TEST(RtfCharacters, EveryPageKeepsTheAsciiHalf) {
  for (const std::int32_t page : {437, 850, 866, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257}) {
    for (int byte = 0; byte < 128; ++byte) {
      EXPECT_EQ(FromCodePage(page, static_cast<unsigned char>(byte)), byte) << page;
    }
  }
}

TEST(RtfCharacters, EachPageHasItsOwnLetters) {
  EXPECT_EQ(FromCodePage(437, 0xE1), u'ß');
  EXPECT_EQ(FromCodePage(850, 0xE1), u'ß');
  EXPECT_EQ(FromCodePage(866, 0xE1), u'с');
  EXPECT_EQ(FromCodePage(1250, 0xE1), u'á');
  EXPECT_EQ(FromCodePage(1251, 0xE1), u'б');
  EXPECT_EQ(FromCodePage(1253, 0xE1), u'α');
  EXPECT_EQ(FromCodePage(1254, 0xFE), u'ş');
  EXPECT_EQ(FromCodePage(1255, 0xE1), u'\u05D1');
  EXPECT_EQ(FromCodePage(1256, 0xE1), u'\u0644');
  EXPECT_EQ(FromCodePage(1257, 0xE1), u'į');
}

TEST(RtfCharacters, EachCharsetHasItsPage) {
  EXPECT_EQ(CodePageOfCharset(0), 1252);
  EXPECT_EQ(CodePageOfCharset(1), std::nullopt);
  EXPECT_EQ(CodePageOfCharset(161), 1253);
  EXPECT_EQ(CodePageOfCharset(162), 1254);
  EXPECT_EQ(CodePageOfCharset(177), 1255);
  EXPECT_EQ(CodePageOfCharset(178), 1256);
  EXPECT_EQ(CodePageOfCharset(186), 1257);
  EXPECT_EQ(CodePageOfCharset(204), 1251);
  EXPECT_EQ(CodePageOfCharset(238), 1250);
  EXPECT_EQ(CodePageOfCharset(254), 437);
  EXPECT_EQ(CodePageOfCharset(255), 850);
}

}  // namespace
}  // namespace trelonit::test

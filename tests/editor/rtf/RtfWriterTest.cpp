#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

#include "editor/rtf/RtfWriter.h"
#include "tests/editor/rtf/RtfTexts.h"

namespace trelonit::test {
namespace {

RichDocument OneRun(std::u16string text, CharFormat format = {}) {
  RichDocument document;
  document.Paragraphs.at(0).Runs.push_back({std::move(text), std::move(format)});
  return document;
}

TEST(RtfWriter, WritesAWholeDocument) {
  CharFormat red;
  red.FontName = "Arial";
  red.FontSize = 10.5;
  red.Bold = red.Italic = red.Underline = red.StrikeThru = true;
  red.TextColor = colorRed;
  RichDocument document = OneRun(u"Ферма");
  document.Paragraphs.at(0).Runs.push_back({u"\t{1}", red});
  document.Paragraphs.push_back({{}, ParagraphAlignment::Centre, {720, 1440}});
  EXPECT_EQ(WriteRtf(document),
            "{\\rtf1\\ansi\\ansicpg1251\\uc1\\deff0\\deflang1049"
            "{\\fonttbl{\\f0\\fnil\\fcharset204 Lucida Console;}{\\f1\\fnil\\fcharset204 Arial;}}"
            "\r\n{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
            "{\\stylesheet{\\lang1049 Normal;}}\r\n{\\*\\generator "
            "Trelonit;}\\paperw11906\\paperh16838\r\n"
            "\\pard\\plain\\f0\\fs18 \\'d4\\'e5\\'f0\\'ec\\'e0"
            "\\plain\\f1\\fs21\\b\\i\\ul\\strike\\cf1 \\tab \\{1\\}\\par\r\n"
            "\\pard\\qc\\tx720\\tx1440\\par\r\n}\r\n");
}

TEST(RtfWriter, CharactersOutsideTheCodePageAreUnicodeEscapes) {
  const std::string rtf = WriteRtf(OneRun(u"≥\uF000\U0001F600\u0080"));
  EXPECT_NE(rtf.find("\\u8805?\\u-4096?\\u-10179?\\u-8704?\\u128?"), std::string::npos) << rtf;
}

TEST(RtfWriter, ControlCharactersAreUnicodeEscapes) {
  EXPECT_NE(WriteRtf(OneRun(u"\u0001\u007F")).find("\\u1?\\u127?"), std::string::npos);
}

TEST(RtfWriter, TheFirstLetterOfTheCodePagesUpperHalfIsAByte) {
  EXPECT_NE(WriteRtf(OneRun(u"Ђ")).find(" \\'80\\par"), std::string::npos);
}

TEST(RtfWriter, AQuestionMarkIsNoEscape) {
  EXPECT_NE(WriteRtf(OneRun(u"1?2")).find(" 1?2\\par"), std::string::npos);
}

TEST(RtfWriter, WritesNoByteAboveSevenBits) {
  std::u16string everything;
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    everything += static_cast<char16_t>(unit);
  }
  CharFormat format;
  format.FontName = "Шрифт 😀";
  const std::string rtf = WriteRtf(OneRun(everything, format));
  EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](char byte) {
    return (byte >= 0x20 && byte < 0x7F) || byte == '\r' || byte == '\n';
  }));
}

TEST(RtfWriter, EveryUnitReadsBack) {
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    if (unit == u'\r' || unit == u'\n') {
      continue;
    }
    const RichDocument document = OneRun({u'a', static_cast<char16_t>(unit), u'b'});
    ASSERT_EQ(ReadRtf(WriteRtf(document)), document) << unit;
  }
}

TEST(RtfWriter, ALineEndWithinARunReadsBackAsTwoParagraphs) {
  EXPECT_EQ(TextOf(ReadRtf(WriteRtf(OneRun(u"a\r\nb\nc")))), u"a\nb\nc");
}

TEST(RtfWriter, EmptyRunsAreNotWritten) {
  EXPECT_EQ(ReadRtf(WriteRtf(OneRun(u""))), RichDocument());
}

TEST(RtfWriter, ADocumentWithoutParagraphsReadsBackWithOne) {
  EXPECT_EQ(ReadRtf(WriteRtf({{}})), RichDocument());
}

TEST(RtfWriter, FontNamesMayHoldWhatTheFormatUses) {
  for (const std::string name : {"a;b", "{a}", "a\\b", "", " a ", "Ш≥😀", "a\tb"}) {
    CharFormat format;
    format.FontName = name;
    const RichDocument document = OneRun(u"x", format);
    EXPECT_EQ(ReadRtf(WriteRtf(document)), document) << name;
  }
}

TEST(RtfWriter, SizesAreRoundedToHalfPointsAndHeldInRange) {
  const auto readBack = [](double size) {
    CharFormat format;
    format.FontSize = size;
    return ReadRtf(WriteRtf(OneRun(u"x", format))).Paragraphs.at(0).Runs.at(0).Format.FontSize;
  };
  EXPECT_EQ(readBack(8.25), 8.5);
  EXPECT_EQ(readBack(8.2), 8);
  EXPECT_EQ(readBack(0), 0.5);
  EXPECT_EQ(readBack(-3), 0.5);
  EXPECT_EQ(readBack(1e300), 1638);
  EXPECT_EQ(readBack(std::numeric_limits<double>::infinity()), 1638);
  EXPECT_EQ(readBack(std::numeric_limits<double>::quiet_NaN()), 12);
}

TEST(RtfWriter, ColoursOfTheDesktopAreTheTextsOwn) {
  CharFormat format;
  format.TextColor = colorWindowText;
  const RichDocument document = ReadRtf(WriteRtf(OneRun(u"x", format)));
  EXPECT_EQ(document.Paragraphs.at(0).Runs.at(0).Format.TextColor, colorBlack);
}

TEST(RtfWriter, OtherScriptsAreToldTheirLookToo) {
  CharFormat format;
  format.Bold = format.Italic = true;
  // The first characters of Hebrew and of the radicals of Chinese, and the last in front of the
  // additional Latin ones, stand at the edges of what is told.
  for (const std::u16string text :
       {u"\u4E2D", u"x\u05D0", u"\U0001F600", u"\u0590", u"\u1DFF", u"\u2E80"}) {
    EXPECT_NE(
        WriteRtf(OneRun(text, format))
            .find("\\plain\\rtlch\\af0\\afs18\\ab\\ai\\ltrch\\dbch\\af0\\loch\\f0\\fs18\\b\\i "),
        std::string::npos);
  }
  for (const std::u16string text : {u"Ферма Ω", u"≥ │ — №", u"\u058F\u1E00\u2E7F"}) {
    EXPECT_EQ(WriteRtf(OneRun(text, format)).find("\\dbch"), std::string::npos);
  }
}

TEST(RtfWriter, AFontAndAColourStandOnceInTheirTables) {
  CharFormat red;
  red.TextColor = colorRed;
  CharFormat blue;
  blue.TextColor = 0xFF0000;
  RichDocument document = OneRun(u"a", red);
  document.Paragraphs.at(0).Runs.push_back({u"b", blue});
  document.Paragraphs.at(0).Runs.push_back({u"c", red});
  const std::string rtf = WriteRtf(document);
  EXPECT_NE(rtf.find("{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}"),
            std::string::npos);
  EXPECT_EQ(rtf.find("\\f1"), std::string::npos);
}

}  // namespace
}  // namespace trelonit::test

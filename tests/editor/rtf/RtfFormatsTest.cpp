#include <gtest/gtest.h>

#include "tests/editor/rtf/RtfTexts.h"

namespace trelonit::test {
namespace {

using Stops = std::vector<std::int32_t>;

TEST(RtfFormats, ATextWithoutWordsHasTheFormatsOwnSize) {
  EXPECT_EQ(BodyFormat("x"), PlainFormat());
}

TEST(RtfFormats, EachStyleIsSetByItsWordAndTakenBackByItsZero) {
  const RichDocument document =
      ReadBody("\\b b\\b0\\i i\\i0\\ul u\\ulnone\\strike s\\strike0\\ul1 v\\ul0  ");
  const auto& runs = document.Paragraphs.at(0).Runs;
  ASSERT_EQ(runs.size(), 6U);
  const auto flags = [&runs](std::size_t place) {
    const CharFormat& format = runs[place].Format;
    return std::vector<bool>{format.Bold, format.Italic, format.Underline, format.StrikeThru};
  };
  EXPECT_EQ(flags(0), (std::vector{true, false, false, false}));
  EXPECT_EQ(flags(1), (std::vector{false, true, false, false}));
  EXPECT_EQ(flags(2), (std::vector{false, false, true, false}));
  EXPECT_EQ(flags(3), (std::vector{false, false, false, true}));
  EXPECT_EQ(flags(4), (std::vector{false, false, true, false}));
  EXPECT_EQ(flags(5), (std::vector{false, false, false, false}));
}

TEST(RtfFormats, EveryKindOfUnderlineIsOne) {
  for (const std::string word : {"uld", "uldb", "ulw", "ulth", "uldash", "ulwave"}) {
    EXPECT_TRUE(BodyFormat("\\" + word + " x").Underline) << word;
  }
  EXPECT_TRUE(BodyFormat("\\striked1 x").StrikeThru);
}

TEST(RtfFormats, SizesAreHalfPoints) {
  EXPECT_EQ(BodyFormat("\\fs17 x").FontSize, 8.5);
  EXPECT_EQ(BodyFormat("\\fs40 x").FontSize, 20);
}

TEST(RtfFormats, SizesAreHeldInRange) {
  EXPECT_EQ(BodyFormat("\\fs1 x").FontSize, 0.5);
  EXPECT_EQ(BodyFormat("\\fs99999999999999999999 x").FontSize, 1638);
  EXPECT_EQ(BodyFormat("\\fs0 x").FontSize, 12);
  EXPECT_EQ(BodyFormat("\\fs-9 x").FontSize, 12);
  EXPECT_EQ(BodyFormat("\\fs x").FontSize, 12);
}

TEST(RtfFormats, ColoursComeFromTheTable) {
  const std::string table = "{\\colortbl ;\\red255\\green0\\blue0;\\red1\\green2\\blue3;}";
  EXPECT_EQ(BodyFormat(table + "\\cf1 x").TextColor, 0x0000FFU);
  EXPECT_EQ(BodyFormat(table + "\\cf2 x").TextColor, 0x030201U);
  EXPECT_EQ(BodyFormat(table + "\\cf0 x").TextColor, colorBlack);
  EXPECT_EQ(BodyFormat(table + "\\cf2\\cf0 x").TextColor, colorBlack);
}

TEST(RtfFormats, ATableMayGiveTheFirstColourToo) {
  EXPECT_EQ(BodyFormat("{\\colortbl\\red0\\green0\\blue255;}\\cf0 x").TextColor, 0xFF0000U);
}

TEST(RtfFormats, ANumberOutsideTheTableOfColoursIsTheTextsOwnColour) {
  EXPECT_EQ(BodyFormat("{\\colortbl;\\red9;}\\cf2 x").TextColor, colorBlack);
  EXPECT_EQ(BodyFormat("{\\colortbl;\\red9;}\\cf-1 x").TextColor, colorBlack);
}

TEST(RtfFormats, ColourPartsAreHeldInRange) {
  EXPECT_EQ(BodyFormat("{\\colortbl;\\red999\\green-5\\blue256;}\\cf1 x").TextColor, 0xFF00FFU);
}

TEST(RtfFormats, OfTwoValuesOfOneColourPartTheLaterCounts) {
  EXPECT_EQ(
      BodyFormat("{\\colortbl;\\red255\\red1\\green254\\green2\\blue252\\blue4;}\\cf1 x").TextColor,
      0x040201U);
  EXPECT_EQ(
      BodyFormat("{\\colortbl;\\red1\\green2\\blue4\\red255\\green254\\blue252;}\\cf1 x").TextColor,
      0xFCFEFFU);
}

TEST(RtfFormats, AWordWithoutItsNumberStandsFor0) {
  const std::string tables =
      "{\\fonttbl{\\f0 Zero;}{\\f1 One;}}{\\colortbl;\\red9\\green9\\blue9\\green;}";
  EXPECT_EQ(BodyFormat(tables + "\\f1\\f x").FontName, "Zero");
  EXPECT_EQ(BodyFormat(tables + "\\deff1\\deff x").FontName, "Zero");
  EXPECT_EQ(BodyFormat(tables + "\\f1\\rtlch\\af x").FontName, "Zero");
  EXPECT_EQ(BodyFormat(tables + "\\cf1 x").TextColor, 0x090009U);
  EXPECT_EQ(BodyFormat(tables + "\\cf1\\cf x").TextColor, colorBlack);
  EXPECT_EQ(BodyFormat("{\\fonttbl{\\f0 Zero;}{\\f One;}}x").FontName, "One");
}

TEST(RtfFormats, EachLookHoldsFromItsWordOn) {
  const std::string tables = "{\\fonttbl{\\f0 A;}{\\f1 B;}{\\f2 C;}}{\\colortbl;\\red9;}";
  const RichDocument document = ReadBody(
      tables +
      "a\\deff1 b\\f2 c\\cf1 d\\strike e\\fs40 f\\ul g\\ulnone h\\plain i\\rtlch j\\ai k\\ab "
      "l\\afs30 m\\af0 n\\loch o");
  const CharFormat plain{.FontName = "B", .FontSize = 12};
  const CharFormat large{
      .FontName = "C", .FontSize = 20, .StrikeThru = true, .TextColor = 0x000009};
  CharFormat underlined = large;
  underlined.Underline = true;
  EXPECT_EQ(
      document.Paragraphs.at(0).Runs,
      (TextRuns{
          {u"a", {.FontName = "A", .FontSize = 12}},
          {u"b", plain},
          {u"c", {.FontName = "C", .FontSize = 12}},
          {u"d", {.FontName = "C", .FontSize = 12, .TextColor = 0x000009}},
          {u"e", {.FontName = "C", .FontSize = 12, .StrikeThru = true, .TextColor = 0x000009}},
          {u"f", large},
          {u"g", underlined},
          {u"h", large},
          {u"ij", plain},
          {u"k", {.FontName = "B", .FontSize = 12, .Italic = true}},
          {u"l", {.FontName = "B", .FontSize = 12, .Bold = true, .Italic = true}},
          {u"m", {.FontName = "B", .FontSize = 15, .Bold = true, .Italic = true}},
          {u"n", {.FontName = "A", .FontSize = 15, .Bold = true, .Italic = true}},
          {u"o", plain}}));
}

TEST(RtfFormats, FontsComeFromTheTable) {
  const std::string table = "{\\fonttbl{\\f0\\fswiss Arial;}{\\f7\\froman Times New Roman;}}";
  EXPECT_EQ(BodyFormat("\\deff0" + table + "x").FontName, "Arial");
  EXPECT_EQ(BodyFormat("\\deff7" + table + "x").FontName, "Times New Roman");
  EXPECT_EQ(BodyFormat(table + "\\f7 x").FontName, "Times New Roman");
}

TEST(RtfFormats, AFontThatIsNotInTheTableIsTheDefaultOne) {
  EXPECT_EQ(BodyFormat("\\deff7{\\fonttbl{\\f7 Arial;}}\\f8 x").FontName, "Arial");
  EXPECT_EQ(BodyFormat("\\f8 x").FontName, CharFormat().FontName);
}

TEST(RtfFormats, ATableOfFontsNeedsNoGroups) {
  const std::string table = "{\\fonttbl\\f0\\fnil One;\\f1\\fnil Two;}";
  EXPECT_EQ(BodyFormat(table + "\\f0 x").FontName, "One");
  EXPECT_EQ(BodyFormat(table + "\\f1 x").FontName, "Two");
}

TEST(RtfFormats, AFontNameNeedsNoSemicolonAtTheEndOfItsGroup) {
  EXPECT_EQ(BodyFormat("{\\fonttbl{\\f0 One}{\\f1 Two}}\\f0 x").FontName, "One");
  EXPECT_EQ(BodyFormat("{\\fonttbl{\\f0 One}{\\f1 Two}}\\f1 x").FontName, "Two");
}

TEST(RtfFormats, WhatStandsBesideAFontsNameIsNotPartOfIt) {
  EXPECT_EQ(
      BodyFormat("{\\fonttbl{\\f0\\fprq2{\\*\\panose 0202}Arial{\\*\\falt Helv};}}\\f0 x").FontName,
      "Arial");
}

TEST(RtfFormats, AFontsNameWithoutItsScriptStandsForIt) {
  EXPECT_EQ(
      BodyFormat("{\\fonttbl{\\f0\\fcharset204{\\*\\fname Arial;}Arial CYR;}}\\f0 x").FontName,
      "Arial");
}

TEST(RtfFormats, AFontEndsWithItsOwnSemicolon) {
  EXPECT_EQ(BodyFormat("{\\fonttbl{\\f0{\\*\\fname A;}\\fcharset204 \\'d4;}}\\f0 x").FontName, "A");
  EXPECT_EQ(BodyText("{\\fonttbl{\\f0{\\*\\fname A;}\\fcharset204 A;}}\\f0\\'d4"), u"Ф");
  EXPECT_EQ(BodyText("{\\fonttbl\\f0 A;\\fcharset204}\\f0\\'d4"), u"Ô");
}

TEST(RtfFormats, FontNamesAreDecodedByTheFontsScript) {
  EXPECT_EQ(BodyFormat("\\ansicpg1252{\\fonttbl{\\f0\\fcharset204 \\'d8\\'f0;}}\\f0 x").FontName,
            "Шр");
  EXPECT_EQ(BodyFormat("{\\fonttbl{\\f0 \\u1064?\\u-10179?\\u-8704?;}}\\f0 x").FontName, "Ш😀");
}

TEST(RtfFormats, AnOverlongFontNameIsCut) {
  const std::string name(100, 'n');
  EXPECT_EQ(BodyFormat("{\\fonttbl{\\f0 " + name + ";}}\\f0 x").FontName, name.substr(0, 63));
}

TEST(RtfFormats, PlainTakesBackTheLooksButNotTheParagraphs) {
  const RichDocument document = ReadBody("\\qc\\b\\i\\ul\\strike\\fs40\\plain x\\par");
  EXPECT_EQ(document.Paragraphs.at(0).Runs.at(0).Format, PlainFormat());
  EXPECT_EQ(document.Paragraphs.at(0).Alignment, ParagraphAlignment::Centre);
}

TEST(RtfFormats, AGroupsEndBringsBackTheLooksBeforeIt) {
  const RichDocument document = ReadBody("a{\\b b{\\i c}d}e");
  const auto& runs = document.Paragraphs.at(0).Runs;
  ASSERT_EQ(runs.size(), 5U);
  EXPECT_TRUE(runs[1].Format.Bold && runs[2].Format.Bold && runs[2].Format.Italic);
  EXPECT_EQ(runs[3].Format, runs[1].Format);
  EXPECT_EQ(runs[4].Format, runs[0].Format);
}

TEST(RtfFormats, NeighboursThatLookAlikeAreOneRun) {
  EXPECT_EQ(ReadBody("a\\b\\b0 b{c}\\f9 d").Paragraphs.at(0).Runs.size(), 1U);
  EXPECT_EQ(ReadBody("{\\fonttbl{\\f0 A;}{\\f1 A;}}\\f0 a\\f1 b").Paragraphs.at(0).Runs.size(), 1U);
}

TEST(RtfFormats, HiddenTextIsLeftOut) {
  EXPECT_EQ(BodyText("a{\\v b}c\\deleted d\\deleted0 e"), u"ace");
}

TEST(RtfFormats, AScriptsOwnLookHoldsAmongItsCharactersAlone) {
  const RichDocument document = ReadBody(
      "{\\fonttbl{\\f0 Main;}{\\f1 Own;}}\\f0\\fs20\\dbch\\af1\\afs30\\ab\\ai x\\loch y\\rtlch "
      "z\\dbch w");
  const auto& runs = document.Paragraphs.at(0).Runs;
  ASSERT_EQ(runs.size(), 3U);
  const CharFormat own{.FontName = "Own", .FontSize = 15, .Bold = true, .Italic = true};
  EXPECT_EQ(runs[0], (TextRun{u"x", own}));
  EXPECT_EQ(runs[1], (TextRun{u"yz", {.FontName = "Main", .FontSize = 10}}));
  EXPECT_EQ(runs[2], (TextRun{u"w", own}));
}

TEST(RtfFormats, AScriptsOwnLookMayTakeBackThatOfAll) {
  EXPECT_FALSE(BodyFormat("\\b\\rtlch\\ab0 x").Bold);
  EXPECT_FALSE(BodyFormat("\\i\\rtlch\\ai0 x").Italic);
}

TEST(RtfFormats, TheLookOfAllReplacesAScriptsOwnBeforeIt) {
  const std::string own = "{\\fonttbl{\\f0 Main;}{\\f1 Own;}}\\dbch\\af1\\afs30\\ab\\ai";
  EXPECT_EQ(BodyFormat(own + "\\f0\\fs20\\b0\\i0 x"),
            (CharFormat{.FontName = "Main", .FontSize = 10}));
  EXPECT_EQ(BodyFormat(own + "\\plain\\dbch x"), (CharFormat{.FontName = "Main", .FontSize = 12}));
}

TEST(RtfFormats, AmongTheMainScriptOwnLooksSayNothing) {
  EXPECT_EQ(BodyFormat("\\ltrch\\ab\\ai\\afs40\\af3 x\\hich\\ab\\loch\\ab y"), PlainFormat());
}

TEST(RtfParagraphs, EachMarkEndsOne) {
  EXPECT_EQ(BodyText("a\\par b\\par\\par c"), u"a\nb\n\nc");
}

TEST(RtfParagraphs, TheMarkOfTheLastParagraphBeginsNoOther) {
  EXPECT_EQ(ReadBody("a").Paragraphs.size(), 1U);
  EXPECT_EQ(ReadBody("a\\par").Paragraphs.size(), 1U);
  EXPECT_EQ(ReadBody("a\\par\\par").Paragraphs.size(), 2U);
}

TEST(RtfParagraphs, AnEmptyTextHasOneEmptyParagraph) {
  EXPECT_EQ(ReadBody(""), RichDocument());
  EXPECT_EQ(ReadBody("\\par"), RichDocument());
}

TEST(RtfParagraphs, BreaksOfLinesPagesAndSectionsKeepWordsApart) {
  EXPECT_EQ(BodyText("a\\line b\\page c\\sect d\\column e"), u"a\nb\nc\nd\ne");
  EXPECT_EQ(BodyText("a\\par\\page b"), u"a\nb");
}

TEST(RtfParagraphs, ABackslashBeforeALineEndIsAMark) {
  EXPECT_EQ(BodyText("a\\\nb\\\r\nc"), u"a\nb\nc");
}

TEST(RtfParagraphs, LineEndCharactersNeverStandInText) {
  EXPECT_EQ(BodyText("a\\'0d\\'0ab\\u10?c\\u13?d"), u"a\nb\nc\nd");
  EXPECT_EQ(BodyText("\\'0aa"), u"\na");
  EXPECT_EQ(BodyText("a\\'0d\\'0a\\'0ab"), u"a\n\nb");
}

TEST(RtfParagraphs, ALineFeedBehindAMarkIsALineEndOfItsOwn) {
  EXPECT_EQ(BodyText("a\\par\\'0ab"), u"a\n\nb");
  EXPECT_EQ(BodyText("a\\'0d\\par\\'0ab"), u"a\n\n\nb");
}

TEST(RtfParagraphs, CellsAreTabsAndRowsAreLines) {
  EXPECT_EQ(BodyText("\\trowd\\cellx900\\intbl A\\cell B\\cell\\row\\pard C"), u"A\tB\t\nC");
}

TEST(RtfParagraphs, AlignmentHoldsUntilItIsTakenBack) {
  const RichDocument document =
      ReadBody("\\qc a\\par b\\par\\qr c\\par\\qj d\\par\\ql e\\par\\qc\\pard f");
  std::vector<ParagraphAlignment> alignments;
  for (const RichParagraph& paragraph : document.Paragraphs) {
    alignments.push_back(paragraph.Alignment);
  }
  using enum ParagraphAlignment;
  EXPECT_EQ(alignments, (std::vector{Centre, Centre, Right, Justified, Left, Left}));
}

TEST(RtfParagraphs, TheParagraphIsWhatHoldsAtItsMark) {
  const RichDocument document = ReadBody("{\\qc a\\par}{\\qr b}\\par");
  EXPECT_EQ(document.Paragraphs.at(0).Alignment, ParagraphAlignment::Centre);
  EXPECT_EQ(document.Paragraphs.at(1).Alignment, ParagraphAlignment::Left);
}

TEST(RtfParagraphs, ATextWithoutAMarkTakesWhatHoldsAtTheEnd) {
  const RichDocument document = ReadBody("\\qr\\tx100 a");
  EXPECT_EQ(document.Paragraphs.at(0).Alignment, ParagraphAlignment::Right);
  EXPECT_EQ(document.Paragraphs.at(0).TabStops, (Stops{100}));
}

TEST(RtfParagraphs, TabStopsAreSortedAndEachOnce) {
  const RichDocument document = ReadBody("\\tx900\\tx-5\\tx300\\tx900\\tx a\\par\\pard b");
  EXPECT_EQ(document.Paragraphs.at(0).TabStops, (Stops{-5, 300, 900}));
  EXPECT_EQ(document.Paragraphs.at(1).TabStops, Stops());
}

TEST(RtfParagraphs, OnlyTheFirstThirtyTwoTabStopsAreKept) {
  std::string words;
  for (int stop = 1; stop <= 40; ++stop) {
    words += "\\tx" + std::to_string(stop * 100);
  }
  const RichDocument document = ReadBody(words + " a");
  ASSERT_EQ(document.Paragraphs.at(0).TabStops.size(), 32U);
  EXPECT_EQ(document.Paragraphs.at(0).TabStops.back(), 3200);
}

TEST(RtfParagraphs, NumbersBeyondTheirTypeAreHeldAtItsEnds) {
  const RichDocument document = ReadBody("\\tx99999999999999\\tx-99999999999999 a");
  EXPECT_EQ(document.Paragraphs.at(0).TabStops, (Stops{INT32_MIN, INT32_MAX}));
}

}  // namespace
}  // namespace trelonit::test

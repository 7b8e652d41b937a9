#include <gtest/gtest.h>

#include "platform/errors/RuntimeError.h"
#include "tests/editor/rtf/RtfTexts.h"

namespace trelonit::test {
namespace {

TEST(RtfGroups, BytesThatDoNotBeginAsRichTextAreRefused) {
  for (const std::string bytes : {"", "{", "{\\rt", "plain", " {\\rtf1 a}", "{\\RTF1 a}"}) {
    try {
      ReadRtf(bytes);
      ADD_FAILURE() << bytes;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 13) << bytes;
    }
  }
}

TEST(RtfGroups, TheSignatureAloneIsAnEmptyDocument) {
  EXPECT_EQ(ReadRtf("{\\rtf"), RichDocument());
  EXPECT_EQ(ReadRtf("{\\rtf1}"), RichDocument());
}

TEST(RtfGroups, WhatFollowsTheLastBraceIsNoText) {
  EXPECT_EQ(TextOf(ReadRtf("{\\rtf1 a}b{c}\\par d")), u"a");
}

TEST(RtfGroups, AMissingBraceLosesNothing) {
  const RichDocument document = ReadRtf("{\\rtf1 a{\\b\\qc b");
  EXPECT_EQ(TextOf(document), u"ab");
  EXPECT_EQ(document.Paragraphs.at(0).Alignment, ParagraphAlignment::Centre);
}

TEST(RtfGroups, UnknownWordsAreNoTextAndTheirGroupIsRead) {
  EXPECT_EQ(BodyText("a{\\unknownword5 b}\\Another-7c"), u"abc");
}

TEST(RtfGroups, AStarredGroupWithAnUnknownWordIsPassedOver) {
  EXPECT_EQ(BodyText("a{\\*\\unknown b{c}\\bin2 }}d}e"), u"ae");
}

TEST(RtfGroups, AStarCountsForTheNextWordOnly) {
  EXPECT_EQ(BodyText("a{\\*b\\unknown c}{\\*{\\unknown d}e}\\*\\unknown f"), u"abcdef");
}

TEST(RtfGroups, AWordBehindAGroupIsOneOfTheGroupAroundIt) {
  EXPECT_EQ(BodyText("a{{b}\\unknown c}d"), u"abcd");
}

TEST(RtfGroups, GroupsWithoutTextOfTheDocumentArePassedOver) {
  for (const std::string word : {"stylesheet", "info", "pict", "object", "header", "headerl",
                                 "footer", "footerr", "footnote", "annotation", "*\\generator",
                                 "fldinst", "listtable", "*\\themedata", "*\\bkmkstart"}) {
    EXPECT_EQ(BodyText("a{\\" + word + " b{c\\par}\\'64}e"), u"ae") << word;
  }
}

TEST(RtfGroups, ADestinationLaterInItsGroupHidesTheRestOfIt) {
  EXPECT_EQ(BodyText("a{b\\pict 0102{03}}c"), u"abc");
}

TEST(RtfGroups, TheOutermostGroupIsNeverHidden) {
  EXPECT_EQ(BodyText("a\\pict b\\fonttbl c\\colortbl d"), u"abcd");
}

TEST(RtfGroups, TheResultOfAFieldIsText) {
  EXPECT_EQ(BodyText("a{\\field{\\*\\fldinst PAGE}{\\fldrslt 7}}b"), u"a7b");
}

TEST(RtfGroups, TheVisibleNumberOfAListIsText) {
  EXPECT_EQ(BodyText("{\\listtext\\pard\\plain 1.\\tab}{\\*\\pn\\pnlvlbody{\\pntxta .}}a"),
            u"1.\ta");
}

TEST(RtfGroups, OfTwoFormsOfATextTheSimpleOneIsRead) {
  EXPECT_EQ(BodyText("{\\upr{a}{\\*\\ud{\\u1072?}}}"), u"a");
}

TEST(RtfGroups, BinaryDataIsNeitherTextNorGroups) {
  EXPECT_EQ(BodyText("a\\bin3 }}}b{\\pict\\bin4 {{{{}c"), u"abc");
}

TEST(RtfGroups, BinaryDataThatClaimsMoreThanThereIsEndsTheText) {
  EXPECT_EQ(BodyText("a\\bin2147483647 b"), u"a");
  EXPECT_EQ(BodyText("a\\bin99999999999999999999 b"), u"a");
  EXPECT_EQ(BodyText("a\\bin-5 b\\bin c"), u"abc");
}

TEST(RtfGroups, AThousandLevelsAreKeptAndDeeperOnesCounted) {
  const auto nested = [](std::size_t depth) {
    return std::string(depth, '{') + "b" + std::string(depth, '}') + "c";
  };
  EXPECT_EQ(BodyText(nested(999)), u"bc");
  EXPECT_EQ(BodyText(nested(1000)), u"c");
  EXPECT_EQ(BodyText(nested(5000)), u"c");
}

}  // namespace
}  // namespace trelonit::test

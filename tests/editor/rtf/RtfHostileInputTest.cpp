#include <gtest/gtest.h>
#include <ostream>

#include "editor/rtf/RtfWriter.h"
#include "tests/editor/rtf/RtfTexts.h"
#include "tests/support/Instrumented.h"
#include "tests/support/ProcessorTime.h"

namespace trelonit::test {
namespace {

std::string Repeated(std::string_view piece, std::size_t bytes) {
  std::string text;
  text.reserve(bytes + piece.size());
  while (text.size() < bytes) {
    text += piece;
  }
  return text;
}

double SecondsToRead(std::string_view body) {
  return SecondsOf([body] { ReadBody(body); });
}

constexpr std::size_t fiveMegabytes = 5 * 1024 * 1024;

#ifdef NDEBUG
constexpr bool optimised = true;
#else
constexpr bool optimised = false;
#endif
constexpr double slowness = sanitized || !optimised ? 20 : 1;
constexpr double bound = 1 * slowness;  // seconds

TEST(RtfHostileInput, AHundredThousandLevelsAreRead) {
  constexpr std::size_t depth = 100'000;
  EXPECT_EQ(BodyText("a" + std::string(depth, '{') + "b" + std::string(depth, '}') + "c"), u"ac");
  EXPECT_EQ(BodyText("a" + std::string(depth, '{')), u"a");
  EXPECT_EQ(TextOf(ReadRtf("{\\rtf1 a" + std::string(depth, '}'))), u"a");
}

struct Load {
  const char* Name;
  std::string Start;  ///< once
  std::string Piece;  ///< repeated
  double Seconds = bound;
};

std::ostream& operator<<(std::ostream& stream, const Load& load) {
  return stream << load.Name;
}

class RtfLoads : public testing::TestWithParam<Load> {};

TEST_P(RtfLoads, FiveMegabytesAreReadInTime) {
  EXPECT_LT(SecondsToRead(GetParam().Start + Repeated(GetParam().Piece, fiveMegabytes)),
            GetParam().Seconds);
}

// Over a million small records: most of the time goes into the system's memory.
constexpr double boundOfRecords = 4 * bound;

std::string ManyTabStops() {
  std::string words;
  for (int stop = 0; stop < 100'000; ++stop) {
    words += "\\tx" + std::to_string(stop);
  }
  return words;
}

std::string LongFontName() {
  return "{\\fonttbl{\\f0 " + std::string(1'000'000, 'n') + ";}}\\f0 ";
}

INSTANTIATE_TEST_SUITE_P(
    Every, RtfLoads,
    testing::Values(
        Load{"text", "", "Lorem ipsum dolor\\par\r\n"}, Load{"one paragraph", "", "x"},   //
        Load{"hexadecimal", "\\ansicpg1251 ", "\\'d4"}, Load{"Unicode", "", "\\u1060?"},  //
        Load{"groups", "", "{}"}, Load{"open groups", "", "{"},                           //
        Load{"closed groups within a deep one", std::string(900, '{') + "\\tx5", "{}"},
        Load{"runs of one character", "", "\\b x\\b0 x", boundOfRecords},
        Load{"runs in a font with an endless name", LongFontName(), "\\b x\\b0 x", boundOfRecords},
        Load{"paragraphs with very many tab stops", ManyTabStops(), "\\par ", boundOfRecords},
        Load{"tab stops", "", "\\tx9\\tx1"},  //
        Load{"fonts with one number", "{\\fonttbl", "{\\f0 a;}"},
        Load{"colours", "{\\colortbl", "\\red1;"}, Load{"a word without end", "\\", "a"},  //
        Load{"a number without end", "\\tx", "9"}, Load{"stars", "", "{\\*\\a}"},          //
        Load{"a picture", "{\\pict ", "0f"},
        Load{"a fallback without end", "\\uc2147483647\\u1060 ", "x"},
        Load{"backslashes", "", "\\\\"},  //
        Load{"zero bytes", "", std::string(16, '\0')}));

TEST(RtfHostileInput, AHundredThousandDifferentFontsAreReadInASecond) {
  std::string body = "{\\fonttbl";
  for (int font = 0; font < 100'000; ++font) {
    body += "{\\f" + std::to_string(font * 7919 % 1'000'003) + " n;}";
  }
  EXPECT_LT(SecondsToRead(body + "}" + Repeated("\\f7919 x\\f15838 y", 1'000'000)), bound);
}

TEST(RtfHostileInput, WritingTheBiggestReportTakesNoLonger) {
  const RichDocument document = ReadBody(Repeated("\\b \\'d4\\b0 x\\par\r\n", fiveMegabytes));
  std::string rtf;
  EXPECT_LT(SecondsOf([&] { rtf = WriteRtf(document); }), bound);
  EXPECT_GT(rtf.size(), fiveMegabytes);
}

}  // namespace
}  // namespace trelonit::test

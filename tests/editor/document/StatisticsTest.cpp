#include "editor/document/FileHandler.h"
#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

// Sizes --------------------------------------------------------------------------------------

TEST(SizeTexts, CountBytesBelowOneKilobyte) {
  EXPECT_EQ(SizeText(0, {}), "0 bytes");
  EXPECT_EQ(SizeText(1, {}), "1 bytes");
  EXPECT_EQ(SizeText(1023, PointLocale()), "1023 bytes");
}

TEST(SizeTexts, HaveTwoDecimalsFromOneKilobyteOn) {
  EXPECT_EQ(SizeText(1024, {}), "1.00 KB");
  EXPECT_EQ(SizeText(1536, {}), "1.50 KB");
  EXPECT_EQ(SizeText(100000, {}), "97.66 KB");
  EXPECT_EQ(SizeText(1048575, PointLocale()), "1024.00 KB");
  EXPECT_EQ(SizeText(1048576, {}), "1.00 MB");
  EXPECT_EQ(SizeText(1536, CommaLocale()), "1,50 KB");
}

TEST(SizeTexts, ReachTheGigabytesAbove1024Megabytes) {
  constexpr std::uint64_t gigabyte = 1073741824;
  EXPECT_EQ(SizeText(gigabyte - 1, {}), "1024.00 MB");
  EXPECT_EQ(SizeText(gigabyte, {}), "1024.00 MB");
  EXPECT_EQ(SizeText(gigabyte + 1, {}), "1.00 GB");
  EXPECT_EQ(SizeText(gigabyte * 5 / 2, CommaLocale()), "2,50 GB");
}

// Statistics ---------------------------------------------------------------------------------

/// Words, characters and lines of a text without a file.
std::string StatisticsOf(const std::string& text, const NumberLocale& locale = {}) {
  MemoryRichTextBox box;
  box.SetText(text);
  return StatisticsText(box, "", locale);
}

std::string Counted(const std::string& words, const std::string& characters,
                    const std::string& lines) {
  return "File not yet saved.\nWords : " + words + "\nCharacters : " + characters +
         "\nLines : " + lines;
}

TEST(Statistics, CountWhatStandsBetweenBlanks) {
  EXPECT_EQ(StatisticsOf("раз два три"), Counted("3", "11", "1"));
  EXPECT_EQ(StatisticsOf("  раз   два  "), Counted("2", "13", "1"));
  EXPECT_EQ(StatisticsOf(""), Counted("0", "0", "1"));
  EXPECT_EQ(StatisticsOf("   "), Counted("0", "3", "1"));
}

TEST(Statistics, TakeALineEndAloneForNoWordButDivideNoneAtIt) {
  EXPECT_EQ(StatisticsOf("раз \r\n два"), Counted("2", "10", "2"));
  EXPECT_EQ(StatisticsOf("раз\r\nдва"), Counted("1", "8", "2"));
  EXPECT_EQ(StatisticsOf("\r\n"), Counted("0", "2", "2"));
  // Two together are no line end any more.
  EXPECT_EQ(StatisticsOf("\r\n\r\n"), Counted("1", "4", "3"));
}

TEST(Statistics, TakeACarriageReturnAloneForNoWord) {
  /// A box that divides its lines by carriage returns.
  class ShortLineEnds : public MemoryRichTextBox {
   public:
    std::string Text() const override { return "a \r b\rc"; }
  };
  EXPECT_EQ(StatisticsText(ShortLineEnds(), "/a.txt", {}).substr(0, 17), "/a.txt\nWords : 2\n");
}

TEST(Statistics, CountCharactersAsTheBoxDoes) {
  EXPECT_EQ(StatisticsOf("\U0001F600"), Counted("1", "2", "1"));
}

TEST(Statistics, DivideLargeNumbersIntoGroups) {
  std::string text;
  for (int line = 0; line < 1234; ++line) {
    text += "a \r\n ";
  }
  EXPECT_EQ(StatisticsOf(text, PointLocale()), Counted("1,234", "6,170", "1,235"));
  EXPECT_EQ(StatisticsOf(text, CommaLocale()), Counted("1\u00A0234", "6\u00A0170", "1\u00A0235"));
}

using DocumentStatistics = OtchetTest;

TEST_F(DocumentStatistics, StandInTheSameBoxAsTheProperties) {
  Enter("раз два");
  const DocumentState before = State();
  form.mnuFormatStats_Click();
  const Message expected{.Title = "Trelo_calculation",
                         .Text = Counted("2", "7", "1"),
                         .Style = MessageStyle::Information};
  EXPECT_EQ(Said(), Messages{expected});
  form.mnuFileProperties_Click();
  EXPECT_EQ(Said(), Messages{expected});
  EXPECT_EQ(State(), before);
}

TEST_F(DocumentStatistics, StandUnderTheNameOfTheFile) {
  SaveAs("/home/Отчет 1", plainTextKind);
  form.mnuFileProperties_Click();
  EXPECT_EQ(Said(), (Messages{{.Title = "Trelo_calculation",
                               .Text = "/home/Отчет 1.txt\nWords : 0\nCharacters : 0\nLines : 1",
                               .Style = MessageStyle::Information}}));
}

}  // namespace
}  // namespace trelonit::test

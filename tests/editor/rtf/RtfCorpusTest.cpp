#include <chrono>
#include <gtest/gtest.h>
#include <random>

#include "fuzz/rtf/RtfInvariants.h"
#include "tests/editor/rtf/RtfTexts.h"
#include "tests/support/Corpus.h"

namespace trelonit::test {
namespace {

std::string BytesOf(const std::string& name) {
  for (const Sample& sample : CorpusOf("rtf")) {
    if (sample.Name == name) {
      return sample.Bytes;
    }
  }
  ADD_FAILURE() << "no sample " << name;
  return {};
}

TEST(RtfCorpus, EverySampleIsReadWell) {
  ReplayCorpus("rtf", fuzz::ComplaintAboutReading);
}

TEST(RtfCorpus, EverySampleIsReadWellWhereverItEnds) {
  for (const Sample& sample : CorpusOf("rtf")) {
    for (std::size_t length = 0; length < sample.Bytes.size(); ++length) {
      ASSERT_EQ(fuzz::ComplaintAboutReading(sample.Bytes.substr(0, length)), "")
          << sample.Name << " " << length;
    }
  }
}

std::string Mutated(std::string bytes, const std::string& other, std::mt19937& random) {
  const auto below = [&random](std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
  };
  const std::size_t changes = 1 + below(8);
  for (std::size_t change = 0; change < changes; ++change) {
    // The signature stays, for without it all would be refused.
    const std::size_t place = 5 + below(bytes.size() - 5);
    switch (below(5)) {
      case 0:
        bytes[place] = static_cast<char>(below(256));
        break;
      case 1:
        bytes.erase(place, below(20));
        break;
      case 2:
        bytes.insert(place, 1, "\\{};'*u-9 "[below(10)]);
        break;
      case 3: {
        const std::size_t from = below(other.size());
        bytes.insert(place, other, from, below(60));
        break;
      }
      default:
        bytes[place] =
            static_cast<char>(static_cast<unsigned char>(bytes[place]) ^ (1U << below(8)));
    }
    if (bytes.size() <= 6) {
      break;
    }
  }
  return bytes;
}

TEST(RtfCorpus, MutationsOfTheSamplesAreReadWell) {
  const std::vector<Sample> corpus = CorpusOf("rtf");
  std::mt19937 random(20240229);
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(3);
  int tried = 0;
  while (std::chrono::steady_clock::now() < end) {
    for (const Sample& sample : corpus) {
      const std::string bytes =
          Mutated(sample.Bytes, corpus[random() % corpus.size()].Bytes, random);
      ASSERT_EQ(fuzz::ComplaintAboutReading(bytes), "") << bytes;
      ++tried;
    }
  }
  EXPECT_GT(tried, 100);
}

TEST(RtfSamples, ADocumentOfAWordProcessor) {
  const RichDocument document = ReadRtf(BytesOf("wordprocessor"));
  ASSERT_EQ(TextOf(document), u"Расчёт фермы\n≥ 2\t3\n4linkł");
  const RichParagraph& title = document.Paragraphs[0];
  EXPECT_EQ(title.Alignment, ParagraphAlignment::Centre);
  EXPECT_EQ(title.TabStops, (std::vector{720, 1440}));
  ASSERT_EQ(title.Runs.size(), 2U);
  const CharFormat roman{.FontName = "Times New Roman", .FontSize = 12};
  CharFormat strong = roman;
  strong.Bold = true;
  strong.TextColor = colorRed;
  EXPECT_EQ(title.Runs[0], (TextRun{u"Расчёт", strong}));
  EXPECT_EQ(title.Runs[1], (TextRun{u" фермы", roman}));
  const RichParagraph& body = document.Paragraphs[1];
  EXPECT_EQ(body.Alignment, ParagraphAlignment::Left);
  EXPECT_EQ(body.Runs.at(0), (TextRun{u"≥ 2\t3", {.FontName = "Arial", .FontSize = 10}}));
  CharFormat link = roman;
  link.Underline = true;
  link.TextColor = 0xFF8000;
  EXPECT_EQ(document.Paragraphs[2].Runs.at(1), (TextRun{u"link", link}));
  EXPECT_EQ(document.Paragraphs[2].Runs.at(2).Format.FontName, "Arial CE");
}

TEST(RtfSamples, ADocumentOfAnOfficeSuite) {
  const RichDocument document = ReadRtf(BytesOf("officesuite"));
  ASSERT_EQ(TextOf(document), u"Ферма\na\u2014b\u00A0c\u2011d\u00ADe");
  EXPECT_EQ(document.Paragraphs[0].Alignment, ParagraphAlignment::Right);
  const CharFormat heading{
      .FontName = "Liberation Serif", .FontSize = 12, .Bold = true, .Underline = true};
  EXPECT_EQ(document.Paragraphs[0].Runs.at(0).Format, heading);
  EXPECT_EQ(document.Paragraphs[1].TabStops, (std::vector{1134, 2268}));
  const CharFormat struck{
      .FontName = "Noto Sans", .FontSize = 12, .StrikeThru = true, .TextColor = 0x1E21C9};
  EXPECT_EQ(document.Paragraphs[1].Runs.at(0).Format, struck);
}

TEST(RtfSamples, ADocumentOfASimpleEditor) {
  const RichDocument document = ReadRtf(BytesOf("richedit"));
  ASSERT_EQ(TextOf(document), u"Трело 12\n\u00B7\tx");
  const auto& runs = document.Paragraphs[0].Runs;
  ASSERT_EQ(runs.size(), 2U);
  EXPECT_EQ(runs[0].Format,
            (CharFormat{.FontName = "Courier New", .FontSize = 9, .TextColor = colorRed}));
  EXPECT_EQ(runs[1].Text, u" 12");
  EXPECT_TRUE(runs[1].Format.Bold);
  EXPECT_EQ(document.Paragraphs[1].Runs.at(0).Format.FontName, "Symbol");
  EXPECT_TRUE(document.Paragraphs[1].Runs.at(1).Format.Italic);
}

}  // namespace
}  // namespace trelonit::test

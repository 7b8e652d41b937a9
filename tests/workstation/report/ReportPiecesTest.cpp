#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <utility>

#include "tests/workstation/report/ReportModel.h"

namespace trelonit::test {
namespace {

/// The texts of the headings without their line ends.
ReportText HeadingsOf(const ReportPieces& pieces) {
  ReportText headings;
  for (const ReportPiece& piece : pieces) {
    if (piece.Heading) {
      headings.push_back(std::regex_replace(piece.Text(), std::regex("[\r\n]"), ""));
    }
  }
  return headings;
}

TEST(ReportPiecesOf, MarkTheHeadings) {
  EXPECT_EQ(
      HeadingsOf(NumberedDesign().Pieces()),
      (ReportText{"Расчет фермы", "Входные данные :", "Раскрепление поясов фермы : ",
                  "Материал фермы : ", "\x43\u0435чение стержней фермы : ",
                  "Загружения на ферму : ", "Загружения на узлы верхнего пояса с лева на право : ",
                  "Загружения на панели верхнего пояса с лева на право : ",
                  "Загружения на узлы нижнего пояса с лева на право : ",
                  "Загружения на панели нижнего пояса с лева на право : ",
                  "Результаты расчета фермы : ", "Усилия в стержнях : ",
                  "Коэффициенты использования : ", "Реакции опор, масса фермы : "}));
}

TEST(ReportPiecesOf, GiveAHeadingALineEndOnEitherSideAndAnyOtherLineOneBehindIt) {
  for (const ReportPiece& piece : NumberedDesign().Pieces()) {
    EXPECT_EQ(piece.Text().starts_with("\r\n"), piece.Heading) << piece.Text();
    EXPECT_TRUE(piece.Text().ends_with("\r\n")) << piece.Text();
    if (piece.Heading) {
      EXPECT_EQ(LinesOf(piece.Text()).size(), 2U) << piece.Text();
    } else if (piece.Text().find("приложенное") == std::string::npos) {
      EXPECT_EQ(LinesOf(piece.Text()).size(), 1U) << piece.Text();
    }
  }
}

TEST(ReportPiecesOf, SetTheAdditionalInformationApart) {
  ReportPieces pieces;
  WriteReportAdditional(NumberedDesign().Of, PointLocale(), NumberedDesign::Into(pieces));
  ASSERT_GT(pieces.size(), 4U);
  EXPECT_EQ(
      ReportPieces(pieces.begin(), pieces.begin() + 4),
      (ReportPieces{PlainPiece("  \r\n"), HeadingPiece("\r\nДополнительная информация : \r\n\r\n"),
                    PlainPiece("  \r\n"),
                    PlainPiece("Угол наклона опорного раскоса : 0.91001 рад \r\n")}));
  EXPECT_EQ(HeadingsOf(pieces), ReportText{"Дополнительная информация : "});
}

// Some Cyrillic words hold Latin letters that look the same.
TEST(ReportLetters, AreLatinWhereTheyAlwaysWere) {
  const ReportText lines = NumberedDesign().Lines();
  for (const char* line : {"\x43\u0435чение стержней фермы : ", "*** \x43\u0442ойки : ",
                           "Площадь сечения : 101 \x63\u043C^2",
                           "Момент инерции относительно горизонтальной оси : 102 \x63\u043C^4",
                           "Момент инерции относительно вертикальной оси : 103.5 \x63\u043C^4",
                           " \x43\u0442ержень № 1 , усилие : 5 тонн "}) {
    EXPECT_TRUE(HasLine(lines, line)) << line;
  }
  // The titles of the section and of the forces have the Cyrillic letter.
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "\u0421\u0442\u043E\u0439\u043A\u0438 : "), 2);
  for (const char* cyrillic :
       {"\u0421ечение стержней", "\u0421тержень", "*** \u0421тойки", "\u0441м^2", "\u0441м^4"}) {
    EXPECT_EQ(CountWith(lines, cyrillic), 0) << cyrillic;
  }
}

/// No word mixes both alphabets but for those that are known.
TEST(ReportLetters, AreOfOneAlphabetInEveryOtherWord) {
  NumberedDesign design;
  design.Inputs.ProgibOn = true;
  const std::regex latinLetter("[A-Za-z]");
  std::set<std::string> mixed;
  for (const ReportText& lines : {design.Lines(), design.Additional()}) {
    for (const std::string& line : lines) {
      std::istringstream words(line);
      for (std::string word; words >> word;) {
        const bool latin = std::regex_search(word, latinLetter);
        const bool cyrillic =
            word.find('\xD0') != std::string::npos || word.find('\xD1') != std::string::npos;
        if (latin && cyrillic) {
          mixed.insert(word);
        }
      }
    }
  }
  EXPECT_EQ(mixed, (std::set<std::string>{"\x43\u0435чение", "\x43\u0442ержень", "\x43\u0442ойки",
                                          "\x63\u043C^2", "\x63\u043C^4"}));
}

TEST(ReportNumbers, AreInTheUsersLocale) {
  NumberedDesign design;
  design.Inputs.ProgibOn = true;
  const ReportText point = design.Lines();
  const ReportText comma = design.Lines(CommaLocale());
  // Groups only where decimals are told: a plain number has none.
  for (const auto& [with, without] : std::vector<std::pair<std::string, std::string>>{
           {"Длинна фермы - 24.5", "Длинна фермы - 24,5"},
           {"Коэффициент условий работы Yc = 0.95", "Коэффициент условий работы Yc = 0,95"},
           {"Расстояние между спаренными профелями : 12.5 мм",
            "Расстояние между спаренными профелями : 12,5 мм"},
           {" узел № 1 , приложенное усилие : 1234567.5 тонн ",
            " узел № 1 , приложенное усилие : 1234567,5 тонн "},
           {" \x43тержень № 1 , усилие : -8.5 тонн ", " \x43тержень № 1 , усилие : -8,5 тонн "},
           {"Прочность : 500.1", "Прочность : 500,1"},
           {"Реакция правой опоры фермы с учетом масы фермы : 34.75",
            "Реакция правой опоры фермы с учетом масы фермы : 34,75"}}) {
    EXPECT_TRUE(HasLine(point, with)) << with;
    EXPECT_TRUE(HasLine(comma, without)) << without;
  }
  EXPECT_TRUE(HasLine(design.Additional(), "Длинна раскосов : 1,234.50000 м "));
  EXPECT_TRUE(HasLine(design.Additional(CommaLocale()), "Длинна раскосов : 1\u00A0234,50000 м "));
}

TEST(ReportNumbers, HaveFifteenDigitsAndNoSignOfZero) {
  NumberedDesign design;
  design.Of.TreloResult.UpPoyasForce[1] = -std::sqrt(2.0);
  design.Of.TreloResult.UpPoyasForce[2] = -0.0;
  design.Of.TreloResult.ReactLeft = 1e20;
  const ReportText lines = design.Lines();
  EXPECT_TRUE(HasLine(lines, " \x43тержень № 1 , усилие : -1.4142135623731 тонн "));
  EXPECT_TRUE(HasLine(lines, " \x43тержень № 2 , усилие : 0 тонн "));
  EXPECT_TRUE(HasLine(lines, "Реакция левой опоры фермы : 1E+20"));
}

TEST(ReportNumbers, OfAMassBeyondEveryReactionRaise) {
  NumberedDesign design;
  design.Of.CheckData.Mass = 1e308;
  design.Of.TreloResult.ReactLeft = 1.7e308;
  ReportPieces pieces;
  try {
    WriteReport(design.Of, design.Inputs, PointLocale(), NumberedDesign::Into(pieces));
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 6);
  }
  EXPECT_EQ(pieces.back().Text(), "Реакция правой опоры фермы : 30.5\r\n");
}

TEST(ReportOfAnEmptyResult, StopsAtTheForcesAndKeepsWhatStandsBefore) {
  const ReportPieces whole = NumberedDesign().Pieces();
  NumberedDesign design;
  design.Of.TreloResult = {};
  ReportPieces pieces;
  try {
    WriteReport(design.Of, design.Inputs, PointLocale(), NumberedDesign::Into(pieces));
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 9);
  }
  ASSERT_LT(pieces.size(), whole.size());
  EXPECT_TRUE(std::equal(pieces.begin(), pieces.end(), whole.begin()));
  ASSERT_GT(pieces.size(), 2U);
  EXPECT_EQ((pieces.end() - 2)->Text(),
            "Усилия записаны для каждой группы стержней слева на право \r\n");
  EXPECT_EQ(pieces.back().Text(), "Верхний пояс : \r\n");
}

TEST(ReportOfAnEmptyResult, HasItsEndAllTheSame) {
  NumberedDesign design;
  design.Of.TreloResult = {};
  EXPECT_TRUE(HasLine(design.Additional(), "Угол наклона раскосов : 0.00000 рад "));
}

}  // namespace
}  // namespace trelonit::test

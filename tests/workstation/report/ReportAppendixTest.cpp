#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/workstation/report/ReportText.h"
#include "workstation/report/ReportAppendix.h"

namespace trelonit::test {
namespace {

/// The appendix of a truss with 4 t at its second upper joint. Its calculation takes a panel of 2 m
/// for the upper chord out of the plane; the caption means half of 8 m.
class ReportAppendix : public ::testing::Test {
 protected:
  explicit ReportAppendix(const NumberLocale& locale = PointLocale()) : desk(1, locale) {
    desk.Load(true, 1, "4");
    desk.Calculate();
  }

  ReportPieces Pieces() {
    ReportPieces pieces;
    WriteReportAppendix(desk.Main.Model.Last.CheckData, desk.Results.back().Opinion,
                        desk.Outside.Locale,
                        [&pieces](const ReportPiece& piece) { pieces.push_back(Flat(piece)); });
    return pieces;
  }
  ReportText Lines() { return LinesOf(Pieces()); }

  SmallTruss desk;
};

TEST_F(ReportAppendix, HasItsSectionsInOrder) {
  ReportPieces headings;
  for (const ReportPiece& piece : Pieces()) {
    if (piece.Heading) {
      headings.push_back(piece);
    }
  }
  ReportPieces expected;
  for (const char* heading :
       {"Приложение. Второе мнение : ", "Замечания : ", "Коэффициенты расчета и по СНиП : ",
        "Проверки расчета с подстановкой : ", "Проверки по СНиП с подстановкой : "}) {
    // A heading has an empty line before it.
    expected.push_back(HeadingPiece("\r\n" + std::string(heading) + "\r\n"));
  }
  EXPECT_EQ(headings, expected);
}

TEST_F(ReportAppendix, SaysWhatTheOpinionDoesNotLookAt) {
  EXPECT_TRUE(HasLine(Lines(), "Нормы : СНиП II-23-81*"));
  EXPECT_TRUE(HasLine(Lines(), opinionLimits));
}

TEST_F(ReportAppendix, ListsTheFindingsOfTheResults) {
  const std::vector<Finding>& findings = desk.Results.back().Opinion.Findings;
  ASSERT_FALSE(findings.empty());
  const ReportText lines = Between(Lines(), "Замечания : ", "Коэффициенты расчета и по СНиП : ");
  std::size_t line = 1;
  for (const Finding& finding : findings) {
    EXPECT_EQ(lines.at(line++), std::string(SeverityWord(finding.Grade)) + ". " + finding.Text);
  }
}

TEST_F(ReportAppendix, WarnsOfDangersAndOfWhatTheNormRefuses) {
  for (const ReportPiece& piece : Pieces()) {
    const bool danger = piece.Text().starts_with("Опасно. ");
    const bool refused = piece.Text().find(" > 1: не выполнено") != std::string::npos;
    if (danger || refused) {
      EXPECT_TRUE(piece.Warning) << piece.Text();
    }
    if (piece.Warning && piece.Text().find(" : расчет ") == std::string::npos) {
      EXPECT_TRUE(danger || refused) << piece.Text();
    }
  }
}

TEST_F(ReportAppendix, PutsBothFiguresOfEveryCheckSideBySide) {
  const ReportText lines =
      Between(Lines(), "Коэффициенты расчета и по СНиП : ", "Проверки расчета с подстановкой : ");
  EXPECT_EQ(CountWith(lines, " : расчет "), 25);
  // 3 t on a tube of 3.9 cm2 at 240 * 0.9 MPa, see ResultRows.
  EXPECT_TRUE(HasLine(lines, "Верхний пояс, прочность : расчет 0.349, СНиП 0.349"));
}

TEST_F(ReportAppendix, ExplainsACheckWithItsNumbers) {
  const ReportText lines = Lines();
  const auto head = std::find(lines.begin(), lines.end(),
                              "Верхний пояс, прочность, стержень 1 (СНиП II-23-81*, п. 5.1, "
                              "формула (5))");
  ASSERT_NE(head, lines.end());
  EXPECT_EQ(ReportText(head + 1, head + 7),
            (ReportText{"  N = 3 т — сжатие", "  A = 3.9 см²", "  Ry = 240 МПа", "  γc = 0.9",
                        "  γn = 1", "  N·γn·98.1/(A·Ry·γc) = 3·1·98.1/(3.9·240·0.9) = 0.349 ≤ 1"}));
}

TEST_F(ReportAppendix, TellsTheProgramsOwnRules) {
  EXPECT_TRUE(HasLine(Lines(),
                      "  Правило программы. Предельную гибкость задает пользователь; нормы такой "
                      "проверки не знают."));
}

TEST_F(ReportAppendix, SaysWhyThereIsNoOpinion) {
  desk.Main.tabMain.SetTab(0);
  desk.Main.txtLenOporn.SetText("5");
  desk.Main.tabMain.SetTab(2);
  desk.Calculate();
  const ReportPieces pieces = Pieces();
  const std::string& refusal = desk.Results.back().Opinion.Figures.Refusal;
  ASSERT_FALSE(refusal.empty());
  EXPECT_NE(std::find(pieces.begin(), pieces.end(), WarningPiece(refusal + "\r\n")), pieces.end());
  EXPECT_EQ(CountWith(Lines(), "Замечания : "), 0);
  EXPECT_EQ(CountWith(Lines(), " : расчет "), 0);
}

TEST_F(ReportAppendix, FollowsTheReportOnlyWhereItIsAskedFor) {
  const ReportText without = Reported(desk);
  EXPECT_EQ(CountWith(without, "Второе мнение"), 0);
  desk.Main.ReportAppendix = true;
  desk.Main.tabMain.SetTab(2);
  const ReportText with = Reported(desk);
  ASSERT_GT(with.size(), without.size());
  EXPECT_EQ(ReportText(with.begin(), with.begin() + static_cast<std::ptrdiff_t>(without.size())),
            without);
  EXPECT_EQ(CountWith(with, "Приложение. Второе мнение"), 1);
}

class CommaReportAppendix : public ReportAppendix {
 protected:
  CommaReportAppendix() : ReportAppendix(CommaLocale()) {}
};

TEST_F(CommaReportAppendix, HasCommas) {
  EXPECT_TRUE(HasLine(Lines(), "  N·γn·98,1/(A·Ry·γc) = 3·1·98,1/(3,9·240·0,9) = 0,349 ≤ 1"));
  EXPECT_TRUE(HasLine(Lines(), "Верхний пояс, прочность : расчет 0,349, СНиП 0,349"));
}

}  // namespace
}  // namespace trelonit::test

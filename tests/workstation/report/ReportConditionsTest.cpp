#include <gtest/gtest.h>
#include <map>

#include "tests/workstation/report/ReportModel.h"

namespace trelonit::test {
namespace {

// --- bracing

ReportText BracingLines(Integer upper, Integer lower) {
  NumberedDesign design;
  design.Of.TreloData.UpPoyasBrace = upper;
  design.Of.TreloData.DownPoyasBrace = lower;
  return Between(design.Lines(), "Раскрепление поясов фермы : ", "Материал фермы : ");
}

TEST(ReportOfBracing, NamesEachWayForEachChord) {
  const ReportText upper{"Верхний пояс только по краям ", "Верхний пояс по средине и по краям ",
                         "Верхний пояс через один узел ", "Верхний пояс во всех узлах "};
  const ReportText lower{"Нижний пояс только по краям ", "Нижний пояс по средине и по краям ",
                         "Нижний пояс через один узел ", "Нижний пояс во всех узлах "};
  for (std::size_t up = 0; up < upper.size(); ++up) {
    for (std::size_t down = 0; down < lower.size(); ++down) {
      EXPECT_EQ(BracingLines(static_cast<Integer>(up + 1), static_cast<Integer>(down + 1)),
                (ReportText{"Раскрепление поясов фермы : ", upper[up], lower[down], ""}));
    }
  }
}

TEST(ReportOfBracing, SaysNothingOfAWayThatIsNone) {
  for (const int none : {0, 5, -1}) {
    const auto brace = static_cast<Integer>(none);
    EXPECT_EQ(BracingLines(brace, 1),
              (ReportText{"Раскрепление поясов фермы : ", "Нижний пояс только по краям ", ""}));
    EXPECT_EQ(BracingLines(1, brace),
              (ReportText{"Раскрепление поясов фермы : ", "Верхний пояс только по краям ", ""}));
    EXPECT_EQ(BracingLines(brace, brace), (ReportText{"Раскрепление поясов фермы : ", ""}));
  }
}

// --- sections

/// What stands between the size and the area in the block of the upper chord.
ReportText LayoutLines(Long layout) {
  NumberedDesign design;
  design.Of.ElementSection[sectionUpPoyas].Layout = layout;
  ReportText lines = Between(design.Lines(), "Типоразмер металлопроката " + Wide("Пер1", 15),
                             "Площадь сечения : 101 \x63м^2");
  lines.erase(lines.begin());
  return lines;
}

TEST(ReportOfSections, NamesEachLayoutAndTheGapOfPairs) {
  const std::string gap = "Расстояние между спаренными профелями : 11 мм";
  const std::map<Long, ReportText> expected{
      {1, {"Компоновка сечения - уголок одиночный "}},
      {2, {"Компоновка сечения - уголок спаренный в тавровое сечение ", gap}},
      {3, {"Компоновка сечения - уголок спаренный в тавровое сечение ", gap}},
      {4, {"Компоновка сечения - уголок спаренный в крестообразное сечение ", gap}},
      {5, {"Компоновка сечения - швеллер прокатный "}},
      {6, {"Компоновка сечения - двутавр прокатный "}},
      {7, {"Компоновка сечения - тавр прокатный "}},
      {8, {"Компоновка сечения - Швеллер спаренный в двутавр ", gap}},
      {9, {"Компоновка сечения - труба прямоугольная "}},
      {10, {"Компоновка сечения - труба прямоугольная "}},
      {11, {"Компоновка сечения - труба круглая "}},
  };
  for (const auto& [layout, lines] : expected) {
    EXPECT_EQ(LayoutLines(layout), lines) << layout;
  }
}

TEST(ReportOfSections, SaysNothingOfALayoutThatIsNone) {
  for (const Long layout : {0, 12, -1}) {
    EXPECT_EQ(LayoutLines(layout), ReportText()) << layout;
  }
}

TEST(ReportOfSections, GoesByTheLayoutAndNotByTheMarkOfPairs) {
  NumberedDesign design;
  for (SectionRec& section : design.Of.ElementSection) {
    section.Paired = section.Layout == 1;
  }
  EXPECT_EQ(design.Lines(), NumberedDesign().Lines());
}

TEST(ReportOfSections, FillsTheFieldsOfNamesWithBlanks) {
  NumberedDesign design;
  ProfileRec& profile = design.Of.ElementSection[sectionUpPoyas].Profile;
  profile.Type = std::string_view(std::string(60, 'T'));
  profile.Name = std::string_view(std::string(20, 'N'));
  ReportText lines = design.Lines();
  EXPECT_TRUE(HasLine(lines, "Тип металлопроката " + std::string(50, 'T')));
  EXPECT_TRUE(HasLine(lines, "Типоразмер металлопроката " + std::string(15, 'N')));
  profile.Type = "";
  profile.Name = "";
  lines = design.Lines();
  EXPECT_TRUE(HasLine(lines, "Тип металлопроката " + std::string(50, ' ')));
  EXPECT_TRUE(HasLine(lines, "Типоразмер металлопроката " + std::string(15, ' ')));
}

// --- loads

TEST(ReportOfLoads, TellsWhetherTheyAreDynamic) {
  NumberedDesign design;
  const std::string on = "Учет динамических нагрузок включен ";
  const std::string off = "Учет динамических нагрузок отключен ";
  EXPECT_TRUE(HasLine(design.Lines(), off));
  EXPECT_FALSE(HasLine(design.Lines(), on));
  design.Of.Numbers.Dynamic = true;
  EXPECT_TRUE(HasLine(design.Lines(), on));
  EXPECT_FALSE(HasLine(design.Lines(), off));
}

TEST(ReportOfLoads, PutsAllRowsOfAnArrayInOnePiece) {
  const ReportPieces pieces = NumberedDesign().Pieces();
  const auto after = [&pieces](const std::string& heading) {
    const auto found =
        std::find(pieces.begin(), pieces.end(), HeadingPiece("\r\n" + heading + "\r\n"));
    EXPECT_LT(found, pieces.end() - 1) << heading;
    return *(found + 1);
  };
  EXPECT_EQ(after("Загружения на узлы верхнего пояса с лева на право : "),
            PlainPiece(" узел № 0 , приложенное усилие : 0 тонн \r\n"
                       " узел № 1 , приложенное усилие : 1.5 тонн \r\n"
                       " узел № 2 , приложенное усилие : -2.25 тонн \r\n"));
  EXPECT_EQ(after("Загружения на панели верхнего пояса с лева на право : "),
            PlainPiece(" панель № 0 , приложенное усилие : 0.125 тонн \r\n"
                       " панель № 1 , приложенное усилие : 0 тонн \r\n"));
  EXPECT_EQ(after("Загружения на узлы нижнего пояса с лева на право : "),
            PlainPiece(" узел № 0 , приложенное усилие : 1E-05 тонн \r\n"
                       " узел № 1 , приложенное усилие : 1234567.5 тонн \r\n"));
  EXPECT_EQ(after("Загружения на панели нижнего пояса с лева на право : "),
            PlainPiece(" панель № 0 , приложенное усилие : 0.375 тонн \r\n"));
}

// --- deflection among the inputs

TEST(ReportOfInputs, TellsTheDeflectionAskedFor) {
  NumberedDesign design;
  const ReportText without = design.Lines();
  EXPECT_EQ(CountWith(without, "прогиб"), 0);
  design.Inputs.ProgibOn = true;
  design.Inputs.LenLim = "1 / 250";
  ReportText expected = without;
  const auto flim =
      std::find(expected.begin(), expected.end(),
                "Предельная гибкость сжатого элемента, заданая пользователем Flim = 150");
  ASSERT_NE(flim, expected.end());
  const auto added = expected.insert(
      flim + 1, {"Предельно допустимый прогиб = L * 1 / 250", "Расчет прогиба по верхнему поясу "});
  EXPECT_EQ(design.Lines(), expected);
  design.Inputs.ProgibUpper = false;
  *(added + 1) = "Расчет прогиба по нижнему поясу ";
  EXPECT_EQ(design.Lines(), expected);
}

// --- verticals

TEST(ReportOfSchemes, HasNoVerticalsInTheThirdOne) {
  ReportText expected = NumberedDesign(1).Lines();
  const auto drop = [&expected](const std::string& first, const std::string& next) {
    const auto begin = std::find(expected.rbegin(), expected.rend(), first).base() - 1;
    ASSERT_EQ(*begin, first);
    const auto end = std::find(begin, expected.end(), next);
    ASSERT_NE(end, expected.end()) << next;
    expected.erase(begin, end);
  };
  drop("*** \x43тойки : ", "");
  drop("Стойки : ", "");  // the forces
  drop("Стойки : ", "");  // the section
  *std::find(expected.begin(), expected.end(), "Тип расчетной схемы № 1") =
      "Тип расчетной схемы № 3";
  EXPECT_EQ(NumberedDesign(3).Lines(), expected);
}

TEST(ReportOfSchemes, HasNoLengthsAndSlendernessOfVerticalsInTheThirdOne) {
  ReportText expected = NumberedDesign(1).Additional();
  const auto verticals = std::remove_if(expected.begin(), expected.end(), [](const auto& line) {
    return line.find("стойки") != std::string::npos;
  });
  EXPECT_EQ(expected.end() - verticals, 8);
  expected.erase(verticals, expected.end());
  EXPECT_EQ(NumberedDesign(3).Additional(), expected);
}

TEST(ReportOfSchemes, DiffersInTheOthersByTheirNumber) {
  for (const Long scheme : {2, 4, 7}) {
    ReportText expected = NumberedDesign(1).Lines();
    *std::find(expected.begin(), expected.end(), "Тип расчетной схемы № 1") =
        "Тип расчетной схемы № " + std::to_string(scheme);
    EXPECT_EQ(NumberedDesign(scheme).Lines(), expected);
    EXPECT_EQ(NumberedDesign(scheme).Additional(), NumberedDesign(1).Additional());
  }
}

// --- coefficients

struct Coefficient {
  double GroupCheck::*Field;
  const char* Line;
};

const std::vector<Coefficient>& Coefficients() {
  static const std::vector<Coefficient> all{
      {&GroupCheck::KStrength, "Прочность : "},
      {&GroupCheck::KStabX, "Устойчивость в плоскости фермы : "},
      {&GroupCheck::KStabY, "Устойчивость из плоскости фермы : "},
      {&GroupCheck::KFlexX, "Гибкость в плоскости фермы : "},
      {&GroupCheck::KFlexY, "Гибкость из плоскости фермы : "},
      {&GroupCheck::KUserX,
       "Гибкость по предельной гибкости, заданной пользователем в плоскости фермы : "},
      {&GroupCheck::KUserY,
       "Гибкость по предельной гибкости, заданной пользователем из плоскости фермы : "}};
  return all;
}

TEST(ReportOfCoefficients, LeavesOutEachThatIsNotAboveZero) {
  for (const Coefficient& coefficient : Coefficients()) {
    for (const double value : {0.0, -0.0, -0.5}) {
      NumberedDesign design;
      ReportText expected = design.Lines();
      const double shown = design.Of.CheckData.Raskos.*coefficient.Field;
      const auto line = std::find(expected.begin(), expected.end(),
                                  coefficient.Line + NumberToText(shown, PointLocale()));
      ASSERT_NE(line, expected.end()) << coefficient.Line;
      expected.erase(line);
      design.Of.CheckData.Raskos.*coefficient.Field = value;
      EXPECT_EQ(design.Lines(), expected) << coefficient.Line << value;
    }
  }
}

TEST(ReportOfCoefficients, ShowsTheLeastThatIsAboveZero) {
  for (const Coefficient& coefficient : Coefficients()) {
    NumberedDesign design;
    design.Of.CheckData.Stoyka.*coefficient.Field = 1e-300;
    EXPECT_TRUE(HasLine(design.Lines(), coefficient.Line + std::string("1E-300")));
  }
}

TEST(ReportOfCoefficients, KeepsTheTitleOfAGroupWithoutAny) {
  NumberedDesign design;
  for (const Coefficient& coefficient : Coefficients()) {
    design.Of.CheckData.DwnPoyas.*coefficient.Field = 0;
  }
  EXPECT_EQ(Between(design.Lines(), "*** Нижний пояс : ", "*** Опорные раскосы : "),
            ReportText{"*** Нижний пояс : "});
}

// --- deflection

ReportPieces ProgibPieces(const ProgibResult& progib, const NumberLocale& locale) {
  ReportPieces pieces;
  WriteReportProgib(progib, locale, NumberedDesign::Into(pieces));
  return pieces;
}

TEST(ReportOfDeflection, TellsALimitThatHolds) {
  EXPECT_EQ(ProgibPieces({.Value = 0.01, .Limit = 0.0166666, .Satisfied = true}, PointLocale()),
            (ReportPieces{HeadingPiece("\r\nРезультаты расчета прогиба : \r\n\r\n"),
                          PlainPiece("Максимальный прогиб : 0.01000 м \r\n"),
                          PlainPiece("Допустимый прогиб фермы : 0.01667 м \r\n")}));
}

TEST(ReportOfDeflection, TellsALimitThatIsPassed) {
  EXPECT_EQ(ProgibPieces({.Value = 1234.5, .Limit = 0.0166666, .Satisfied = false}, CommaLocale()),
            (ReportPieces{HeadingPiece("\r\nРезультаты расчета прогиба : \r\n\r\n"),
                          WarningPiece("Не выполнено условие жесткости !!! \r\n"),
                          PlainPiece("Максимальный прогиб фермы : 1\u00A0234,50000 м \r\n"),
                          PlainPiece("Допустимый прогиб фермы : 0,01667 м \r\n")}));
}

TEST(ReportOfDeflection, TellsALimitThatIsJustReachedAsHolding) {
  EXPECT_EQ(ProgibPieces({.Value = 0.0625, .Limit = 0.0625, .Satisfied = true}, PointLocale()),
            (ReportPieces{HeadingPiece("\r\nРезультаты расчета прогиба : \r\n\r\n"),
                          PlainPiece("Максимальный прогиб : 0.06250 м \r\n"),
                          PlainPiece("Допустимый прогиб фермы : 0.06250 м \r\n")}));
}

}  // namespace
}  // namespace trelonit::test

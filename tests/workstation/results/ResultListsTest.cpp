#include <algorithm>
#include <gtest/gtest.h>

#include "tests/workstation/design/Calculations.h"
#include "tests/workstation/main/Desk.h"
#include "workstation/dialogs/frmKoeffOfUse.h"

namespace trelonit::test {
namespace {

using Lines = std::vector<std::string>;
using Rows = std::vector<Grid::Row>;

BoundedArray<double> Forces(const std::vector<double>& values) {
  BoundedArray<double> forces(1, 0);
  for (const double value : values) {
    forces.Append(value);
  }
  return forces;
}

/// Different numbers in every place, so that a swap of any two is seen.
TreloResult NumberedResult() {
  TreloResult result;
  result.UpPoyasForce = Forces({1, 2, 3});
  result.DwnPoyasForce = Forces({4});
  result.RaskosForce = Forces({5, 6, 7, 8, 9});
  result.StoykaForce = Forces({10, 11});
  result.ReactLeft = 20;
  result.ReactRight = 30;
  return result;
}

GroupCheck Numbered(double first) {
  GroupCheck check;
  check.KStrength = first;
  check.KStabX = first + 1;
  check.KStabY = first + 2;
  check.KFlexX = first + 3;
  check.KFlexY = first + 4;
  check.KUserX = first + 5;
  check.KUserY = first + 6;
  return check;
}

TEST(ForceList, NumbersTheBarsOfEachGroupFromOne) {
  const Lines expected{" Усилия в стержнях фермы даны с лева на право",
                       " ",
                       " Верхний пояс :",
                       " Усилие в 1-ом стержне  1.0000 тонн",
                       " Усилие в 2-ом стержне  2.0000 тонн",
                       " Усилие в 3-ом стержне  3.0000 тонн",
                       " ",
                       " Нижний пояс :",
                       " Усилие в 1-ом стержне  4.0000 тонн",
                       " ",
                       " Раскосы :",
                       " Усилие в 1-ом стержне  6.0000 тонн",
                       " Усилие в 2-ом стержне  7.0000 тонн",
                       " Усилие в 3-ом стержне  8.0000 тонн",
                       " ",
                       " Опорные раскосы :",
                       " Усилие в 1-ом стержне  5.0000 тонн",
                       " Усилие в 2-ом стержне  9.0000 тонн",
                       " ",
                       " Стойки :",
                       " Усилие в 1-ом стержне  10.0000 тонн",
                       " Усилие в 2-ом стержне  11.0000 тонн",
                       " ",
                       " Реакции опор без учета собственной массы фермы:",
                       "20.0000 тонн",
                       "30.0000 тонн",
                       " ",
                       " Теоретическая масса фермы:",
                       "8.0000 тонн",
                       " ",
                       " Реакции опор c учетом собственной массы фермы:",
                       "24.0000 тонн",
                       "34.0000 тонн",
                       " "};
  for (const Long scheme : {1, 2, 4}) {
    EXPECT_EQ(BuildForceList(CalculationOf(scheme, NumberedResult(), 8), PointLocale()), expected)
        << scheme;
  }
}

TEST(ForceList, HasVerticalsOnlyWhereTheSchemeHas) {
  for (const Long scheme : {3, 5, 10}) {
    const Lines lines = BuildForceList(CalculationOf(scheme, NumberedResult(), 8), PointLocale());
    EXPECT_EQ(lines.size(), 30U) << scheme;
    EXPECT_EQ(std::count(lines.begin(), lines.end(), " Стойки :"), 0) << scheme;
  }
}

TEST(ForceList, WritesFourDecimalsInTheUsersLocale) {
  TreloResult result = NumberedResult();
  result.UpPoyasForce = Forces({-1234.56785, -0.00001, 0.00005, 0.00004999});
  const Lines point = BuildForceList(CalculationOf(1, result, 8), PointLocale());
  EXPECT_EQ(point.at(3), " Усилие в 1-ом стержне  -1,234.5679 тонн");
  EXPECT_EQ(point.at(4), " Усилие в 2-ом стержне  0.0000 тонн");
  EXPECT_EQ(point.at(5), " Усилие в 3-ом стержне  0.0001 тонн");
  EXPECT_EQ(point.at(6), " Усилие в 4-ом стержне  0.0000 тонн");
  const Lines comma = BuildForceList(CalculationOf(1, result, 8), CommaLocale());
  EXPECT_EQ(comma.at(3), " Усилие в 1-ом стержне  -1\u00A0234,5679 тонн");
}

TEST(ForceList, WritesALatinLetterOverTheReactionsWithMass) {
  const Lines lines = BuildForceList(CalculationOf(1, NumberedResult(), 8), PointLocale());
  EXPECT_EQ(
      std::count(lines.begin(), lines.end(), " Реакции опор \x63 учетом собственной массы фермы:"),
      1);
}

TEST(ForceList, OfAnEmptyResultRaises) {
  try {
    BuildForceList(CalculationOf(1, TreloResult()), PointLocale());
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 9);
  }
}

TEST(UtilisationGrid, TakesEachGroupFromItsOwnBlock) {
  const CheckResult check{.UpPoyas = Numbered(10),
                          .DwnPoyas = Numbered(20),
                          .Stoyka = Numbered(30),
                          .Raskos = Numbered(40),
                          .OpornRaskos = Numbered(50)};
  const Rows expected{
      {"*** Верхний пояс", "***"},
      {"Прочность верхнего пояса", "10.00000"},
      {"Устойчивость верхнего пояса в плоскости фермы", "11.00000"},
      {"Устойчивость верхнего пояса из плоскости фермы", "12.00000"},
      {"Гибкость верхнего пояса ", "14.00000"},
      {"Гибкость верхнего пояса по предельной гибкости, заданной пользователем", "16.00000"},
      {"*** Нижний пояс", "***"},
      {"Прочность нижнего пояса", "20.00000"},
      {"Устойчивость нижнего пояса в плоскости фермы", "21.00000"},
      {"Устойчивость нижнего пояса из плоскости фермы", "22.00000"},
      {"Гибкость нижнего пояса ", "24.00000"},
      {"Гибкость нижнего пояса по предельной гибкости, заданной пользователем", "26.00000"},
      {"*** Раскосы", "***"},
      {"Прочность раскосов", "40.00000"},
      {"Устойчивость раскосов в плоскости фермы", "41.00000"},
      {"Устойчивость раскосов из плоскости фермы", "42.00000"},
      {"Гибкость раскосов ", "44.00000"},
      {"Гибкость раскосов по предельной гибкости, заданной пользователем", "46.00000"},
      {"*** Опорные \x70\u0430скосы", "***"},
      {"Прочность опорных раскосов", "50.00000"},
      {"Устойчивость опорных раскосов в плоскости фермы", "51.00000"},
      {"Устойчивость опорных раскосов из плоскости фермы", "52.00000"},
      {"Гибкость опорных раскосов ", "54.00000"},
      {"Гибкость опорных раскосов по предельной гибкости, заданной пользователем", "56.00000"},
      {"*** \x43\u0442ойки", "***"},
      {"Прочность стоек", "30.00000"},
      {"Устойчивость стоек в плоскости фермы", "31.00000"},
      {"Устойчивость стоек из плоскости фермы", "32.00000"},
      {"Гибкость стоек ", "34.00000"},
      {"Гибкость стоек по предельной гибкости, заданной пользователем", "36.00000"},
  };
  for (const Long scheme : {1, 2, 4}) {
    EXPECT_EQ(BuildUtilisationGrid(CalculationOf(scheme, check), PointLocale()), expected)
        << scheme;
  }
  const Rows withoutVerticals(expected.begin(), expected.end() - 6);
  for (const Long scheme : {3, 5}) {
    EXPECT_EQ(BuildUtilisationGrid(CalculationOf(scheme, check), PointLocale()), withoutVerticals)
        << scheme;
  }
}

TEST(UtilisationGrid, TakesTheGreaterSlendernessOfBothPlanes) {
  CheckResult check;
  check.UpPoyas.KFlexX = 2;
  check.UpPoyas.KFlexY = 1;
  check.UpPoyas.KUserX = 4;
  check.UpPoyas.KUserY = 3;
  const Rows rows = BuildUtilisationGrid(CalculationOf(1, check), PointLocale());
  EXPECT_EQ(rows.at(1).at(1), "2.00000");
  EXPECT_EQ(rows.at(2).at(1), "4.00000");
}

TEST(UtilisationGrid, LeavesOutStrengthAndStabilityThatAreNotAboveZero) {
  CheckResult check;
  check.UpPoyas.KStrength = -1;
  check.UpPoyas.KStabX = 0;
  check.UpPoyas.KStabY = 1e-9;
  const Rows rows = BuildUtilisationGrid(CalculationOf(3, check), PointLocale());
  EXPECT_EQ(
      Rows(rows.begin(), rows.begin() + 4),
      (Rows{
          {"*** Верхний пояс", "***"},
          {"Устойчивость верхнего пояса из плоскости фермы", "0.00000"},
          {"Гибкость верхнего пояса ", "0.00000"},
          {"Гибкость верхнего пояса по предельной гибкости, заданной пользователем", "0.00000"},
      }));
}

TEST(UtilisationGrid, WritesFiveDecimalsInTheUsersLocale) {
  CheckResult check;
  check.UpPoyas.KStrength = 1234.567885;
  EXPECT_EQ(BuildUtilisationGrid(CalculationOf(1, check), CommaLocale()).at(1).at(1),
            "1\u00A0234,56789");
}

TEST(DeflectionLines, TellWhetherTheLimitHolds) {
  EXPECT_EQ(
      ProgibLines({.Value = 0.01, .Limit = 0.0166666, .Satisfied = true}, PointLocale()),
      (Lines{" ", "Максимальный прогиб : 0.01000 м ", "Допустимый прогиб фермы : 0.01667 м "}));
  EXPECT_EQ(
      ProgibLines({.Value = 0.02, .Limit = 0.0166666, .Satisfied = false}, CommaLocale()),
      (Lines{" ", "Не выполнено условие жесткости !!! ", "Максимальный прогиб фермы : 0,02000 м ",
             "Допустимый прогиб фермы : 0,01667 м "}));
}

TEST(ResultsWindow, HasItsCaptions) {
  const frmKoeffOfUse form;
  EXPECT_EQ(form.Form.Caption(), "Коэффициенты использования и усилия в стержнях");
  EXPECT_EQ(form.framKoef.Caption(), "Коэффициенты использования :");
  EXPECT_EQ(form.framForces.Caption(), "Усилия в стержнях фермы и реакции опор :");
  EXPECT_EQ(form.cmdClose.Caption(), "Close");
}

TEST(ResultsWindow, ShowsTheListAndTheGridUnderItsHead) {
  frmKoeffOfUse form;
  form.Fill(
      {.lstForces = {"first", " "}, .MSFlexGKoefUse = {{"*** Верхний пояс", "***"}, {"a", "1"}}});
  EXPECT_EQ(form.lstForces.List(), (Lines{"first", " "}));
  EXPECT_EQ(form.MSFlexGKoefUse.Rows(),
            (Rows{{"Проверка", "Коэффициент"}, {"*** Верхний пояс", "***"}, {"a", "1"}}));
}

TEST(ResultsWindow, ForgetsWhatItShowedBefore) {
  frmKoeffOfUse form;
  form.Fill({.lstForces = {"first", "second"}, .MSFlexGKoefUse = {{"a", "1"}, {"b", "2"}}});
  form.Fill({.lstForces = {"third"}, .MSFlexGKoefUse = {{"c", "3"}}});
  EXPECT_EQ(form.lstForces.List(), Lines{"third"});
  EXPECT_EQ(form.MSFlexGKoefUse.Rows(), (Rows{{"Проверка", "Коэффициент"}, {"c", "3"}}));
}

TEST(ResultsWindow, IsUnloadedByItsButton) {
  frmKoeffOfUse form;
  EXPECT_NO_THROW(form.cmdClose_Click());
  int unloaded = 0;
  form.Unload = [&unloaded] { ++unloaded; };
  form.cmdClose_Click();
  EXPECT_EQ(unloaded, 1);
}

TEST(ResultsWindow, StoresItsTablesByTheWritersThatItHas) {
  frmKoeffOfUse form;
  const ResultTable table{.Title = "Стержни", .Columns = {}, .Rows = {}};
  EXPECT_FALSE(form.mnuSaveCsv.Enabled());
  EXPECT_FALSE(form.mnuSaveXlsx.Enabled());
  form.mnuSaveCsv_Click(table);
  form.mnuSaveXlsx_Click(table);
  Lines stored;
  form.SetTableFiles([&](const ResultTable& told) { stored.push_back("csv " + told.Title); },
                     [&](const ResultTable& told) { stored.push_back("xlsx " + told.Title); });
  EXPECT_TRUE(form.mnuSaveCsv.Enabled());
  EXPECT_TRUE(form.mnuSaveXlsx.Enabled());
  form.mnuSaveXlsx_Click(table);
  form.mnuSaveCsv_Click(table);
  EXPECT_EQ(stored, (Lines{"xlsx Стержни", "csv Стержни"}));
}

TEST(ResultsWindow, TurnsTheAppendixOnAndOff) {
  frmKoeffOfUse form;
  form.mnuAppendix_Click();
  EXPECT_TRUE(form.mnuAppendix.Checked());
  std::vector<bool> told;
  form.AppendixChanged = [&told](bool on) { told.push_back(on); };
  form.mnuAppendix_Click();
  form.mnuAppendix_Click();
  EXPECT_EQ(told, (std::vector<bool>{false, true}));
}

}  // namespace
}  // namespace trelonit::test

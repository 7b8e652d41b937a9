#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>

#include "tests/workstation/design/ProjectLines.h"

namespace trelonit::test {
namespace {

std::string FileOfStartUp(const NumberLocale& locale) {
  StartedDesk desk(locale);
  return SavedBytes(desk, desk.Main);
}

TEST(ProjectFormat, OfTheStartUpProjectIsKnownToTheByte) {
  // Written out once whole, so that no routine of the tests can hide a mistake. Cyrillic letters
  // stand as the bytes of code page 1251.
  std::string expected =
      "\"Trelo calculation save file\"\r\n"
      "\"1\"\r\n\"2\"\r\n\"2\"\r\n"
      "\"20\"\r\n\"1.5\"\r\n\"2\"\r\n\"10\"\r\n"
      "\"\xD1\xF2\xE0\xEB\xFC \xD1"
      "245 - \xEB\xE8\xF1\xF2 \xEE\xF2 2 \xE4\xEE 20 \xEC\xEC\"\r\n"
      "\"240\"\r\n\"7.85\"\r\n\"210000\"\r\n\"150\"\r\n\"1\"\r\n\"0.9\"\r\n"
      "\"0\"\r\n\"1 / 120\"\r\n\"1\"\r\n\"1\"\r\n";
  for (int section = 0; section < 5; ++section) {
    expected += "\"1\"\r\n\"1\"\r\n\"0\"\r\n\"False\"\r\n\"1\"\r\n";
  }
  expected +=
      "\"0\"\r\n\"0\"\r\n\"0\"\r\n\"1\"\r\n"
      "\"0;0;0;0;0;0;0;0;0;0;0\"\r\n\"0;0;0;0;0;0;0;0;0;0\"\r\n"
      "\"0;0;0;0;0;0;0;0;0;0;0\"\r\n\"0;0;0;0;0;0;0;0;0;0\"\r\n"
      "\"False\"\r\n";
  EXPECT_EQ(FileOfStartUp(PointLocale()), expected);
}

TEST(ProjectFormat, HasFiftyThreeLinesEachEndedByReturnAndFeed) {
  const std::string bytes = FileOfStartUp(PointLocale());
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 53);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), 53);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '"'), 106);
  EXPECT_TRUE(bytes.ends_with("\"False\"\r\n"));
  EXPECT_EQ(projectLineCount, 53);
}

TEST(ProjectFormat, WritesNumbersAsTheSystemOfTheUserDoes) {
  EXPECT_EQ(ValuesOf(FileOfStartUp(PointLocale())), StartUpValues("."));
  EXPECT_EQ(ValuesOf(FileOfStartUp(CommaLocale())), StartUpValues(","));
}

/// A record in which no two fields are the same.
DesignInputs DistinctRecord() {
  DesignInputs record;
  record.TreloType = 4;
  record.UpPoyasBrace = 3;
  record.DownPoyasBrace = 1;
  record.LengthF = 18.25;
  record.Hight = 2.125;
  record.LenOporn = 1.75;
  record.PanelNum = 12;
  record.SteelName = "Сталь №5";
  record.Ry = 245.5;
  record.Density = 7.8;
  record.ModulYung = 206000;
  record.LimitFlex = 140;
  record.Nadegnost = 0.95;
  record.UsloviyaRabot = 1.1;
  record.ProgibOn = 1;
  record.LenLim = "1 / 250";
  record.ProgibUpper = 0;
  record.ActiveGroup = 5;
  for (Long place = 1; place <= sectionCount; ++place) {
    SectionRec& section = record.ElementSection[place];
    section.SizeIdx = 10 + place;
    section.TypeIdx = 20 + place;
    section.Gdist = 0.5 + place;
    section.Paired = place % 2 == 0;
    section.Layout = 5 + place;
  }
  record.DinloadOn = 1;
  record.OwnWeightOn = 0;
  record.AllPanelsOn = 1;
  record.PForceTool = 0;
  const auto array = [](std::initializer_list<double> values) {
    BoundedArray<double> made(0, -1);
    for (const double value : values) {
      made.Append(value);
    }
    return made;
  };
  record.Loads.UpPForce = array({1, -2.5});
  record.Loads.UpDistForce = array({0.125});
  record.Loads.DwnPForce = array({0, 0, 1e-7});
  record.Loads.DwnDistForce = array({1e20, -0.1});
  return record;
}

ProjectValues DistinctValues(const std::string& point) {
  const auto number = [&point](std::string text) {
    if (const std::size_t place = text.find('.'); place != std::string::npos) {
      text.replace(place, 1, point);
    }
    return text;
  };
  return {"Trelo calculation save file", "4", "3", "1", number("18.25"), number("2.125"),
          number("1.75"), "12", "Сталь №5", number("245.5"), number("7.8"), "206000", "140",
          number("0.95"), number("1.1"), "1", "1 / 250", "0", "5",
          // Upper chord.
          "11", "21", number("1.5"), "False", "6",
          // Lower chord.
          "12", "22", number("2.5"), "True", "7",
          // Support diagonals, the fourth in storage.
          "14", "24", number("4.5"), "True", "9",
          // Diagonals, the third in storage.
          "13", "23", number("3.5"), "False", "8",
          // Verticals.
          "15", "25", number("5.5"), "False", "10", "1", "0", "1", "0", "1;" + number("-2.5"),
          number("0.125"), "0;0;1E-07", "1E+20;" + number("-0.1"), "False"};
}

TEST(ProjectFormat, HasItsFieldsInAFixedOrder) {
  EXPECT_EQ(ValuesOf(ProjectText(DistinctRecord(), PointLocale())), DistinctValues("."));
}

TEST(ProjectFormat, HasItsFieldsInTheSameOrderUnderAComma) {
  EXPECT_EQ(ValuesOf(ProjectText(DistinctRecord(), CommaLocale())), DistinctValues(","));
}

TEST(ProjectFormat, PutsSupportDiagonalsBeforeDiagonals) {
  StartedDesk desk;
  frmMain& form = desk.Main;
  form.optElementSection.Select(optionOpornRaskos);
  form.imgProfileSecSelect_Click(6);
  form.optElementSection.Select(optionRaskos);
  form.imgProfileSecSelect_Click(11);
  form.optElementSection.Select(optionStoyka);
  form.imgProfileSecSelect_Click(5);
  const ProjectValues values = ValuesOf(SavedBytes(desk, form));
  const auto layout = [&values](std::size_t first) { return values.at(first - 1 + 4); };
  EXPECT_EQ(layout(lineOpornRaskos), "6");
  EXPECT_EQ(layout(lineRaskos), "11");
  EXPECT_EQ(layout(lineStoyka), "5");
}

TEST(ProjectFormat, PutsTheSizeBeforeTheStandard) {
  StartedDesk desk;
  frmMain& form = desk.Main;
  Choose(form.cmbTypeProfile, StandardName(form, 2));
  Choose(form.cmbSectType, SizeName(form, 2, 7));
  const ProjectValues values = ValuesOf(SavedBytes(desk, form));
  EXPECT_EQ(values.at(lineUpPoyas - 1), "7");
  EXPECT_EQ(values.at(lineUpPoyas), "2");
}

TEST(ProjectFormat, WritesPairedAsTrue) {
  StartedDesk desk;
  Choose(desk.Main.cmbGdist, "12");
  desk.Main.imgProfileSecSelect_Click(2);
  const ProjectValues values = ValuesOf(SavedBytes(desk, desk.Main));
  const ProjectValues section(values.begin() + lineUpPoyas - 1, values.begin() + lineUpPoyas + 4);
  EXPECT_EQ(section, (ProjectValues{"1", "1", "12", "True", "2"}));
}

TEST(ProjectFormat, NeverSetsTheLastFlag) {
  DesignInputs record = DistinctRecord();
  record.ReservedFlag = true;
  EXPECT_EQ(ValuesOf(ProjectText(record, PointLocale())).back(), "False");
}

TEST(ProjectFormat, EscapesNothing) {
  DesignInputs record = DistinctRecord();
  record.SteelName = "a\"b;c\\d'e";
  const std::string bytes = ProjectText(record, PointLocale());
  EXPECT_NE(bytes.find("\r\n\"a\"b;c\\d'e\"\r\n"), std::string::npos);
}

TEST(ProjectFormat, ReplacesWhatTheCodePageLacksByAQuestionMark) {
  DesignInputs record = DistinctRecord();
  record.SteelName = "σ≥240 Ёё«№»\u00A0—漢";
  EXPECT_EQ(ValuesOf(ProjectText(record, PointLocale())).at(lineSteelName - 1),
            "??240 Ёё«№»\u00A0—?");
}

TEST(ProjectFormat, OfZeroIsWithoutASign) {
  DesignInputs record = DistinctRecord();
  record.Hight = -0.0;
  record.Loads.UpDistForce[0] = -0.0;
  const ProjectValues values = ValuesOf(ProjectText(record, PointLocale()));
  EXPECT_EQ(values.at(lineHight - 1), "0");
  EXPECT_EQ(values.at(lineUpDistForce - 1), "0");
}

TEST(ProjectFormat, HasALineForLoadsThatWereNeverMade) {
  const ProjectValues values = ValuesOf(ProjectText(DesignInputs(), PointLocale()));
  ASSERT_EQ(values.size(), 53U);
  for (const ProjectLine line : {lineUpPForce, lineUpDistForce, lineDwnPForce, lineDwnDistForce}) {
    EXPECT_EQ(values.at(line - 1), "");
  }
}

}  // namespace
}  // namespace trelonit::test

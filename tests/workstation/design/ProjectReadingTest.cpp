#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "tests/workstation/design/ProjectLines.h"
#include "workstation/design/modUtility.h"

namespace trelonit::test {
namespace {

class ProjectFields : public ProjectReading {
 protected:
  /// The project of the start with another text in one line.
  DesignInputs ReadWith(std::size_t line, const std::string& text) {
    return Read(With(StartUpValues(), line, text));
  }
};

TEST_F(ProjectFields, AreThoseOfTheLines) {
  ProjectValues values = StartUpValues();
  const std::vector<std::pair<std::size_t, std::string>> changes{
      {lineTreloType, "4"},      {lineUpPoyasBrace, "3"},    {lineDownPoyasBrace, "1"},
      {lineLengthF, "18.25"},    {lineHight, "2.5"},         {lineLenOporn, "1.75"},
      {linePanelNum, "12"},      {lineSteelName, "Сталь ё"}, {lineRy, "245"},
      {lineDensity, "7.8"},      {lineModulYung, "206000"},  {lineLimitFlex, "140"},
      {lineNadegnost, "0.95"},   {lineUsloviyaRabot, "1.1"}, {lineProgibOn, "1"},
      {lineLenLim, "1 / 250"},   {lineProgibUpper, "0"},     {lineActiveGroup, "5"},
      {lineDinloadOn, "1"},      {lineOwnWeightOn, "1"},     {lineAllPanelsOn, "1"},
      {linePForceTool, "0"},     {lineUpPForce, "1;2"},      {lineUpDistForce, "3"},
      {lineDwnPForce, "4;5;-6"}, {lineDwnDistForce, "0.5"},  {lineReservedFlag, "True"}};
  for (const auto& [line, text] : changes) {
    values = With(values, line, text);
  }
  DesignInputs expected;
  expected.TreloType = 4;
  expected.UpPoyasBrace = 3;
  expected.DownPoyasBrace = 1;
  expected.LengthF = 18.25;
  expected.Hight = 2.5;
  expected.LenOporn = 1.75;
  expected.PanelNum = 12;
  expected.SteelName = "Сталь ё";
  expected.Ry = 245;
  expected.Density = 7.8;
  expected.ModulYung = 206000;
  expected.LimitFlex = 140;
  expected.Nadegnost = 0.95;
  expected.UsloviyaRabot = 1.1;
  expected.ProgibOn = 1;
  expected.LenLim = "1 / 250";
  expected.ProgibUpper = 0;
  expected.ActiveGroup = 5;
  expected.ElementSection = form.Model.Inputs.ElementSection;
  expected.DinloadOn = 1;
  expected.OwnWeightOn = 1;
  expected.AllPanelsOn = 1;
  expected.PForceTool = 0;
  expected.Loads.UpPForce = SplitDoubles("1;2", ";", PointLocale());
  expected.Loads.UpDistForce = SplitDoubles("3", ";", PointLocale());
  expected.Loads.DwnPForce = SplitDoubles("4;5;-6", ";", PointLocale());
  expected.Loads.DwnDistForce = SplitDoubles("0.5", ";", PointLocale());
  // The last line is not looked at.
  expected.ReservedFlag = false;
  EXPECT_EQ(Described(Read(values)), Described(expected));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(ProjectFields, OfTheSectionsStandInTheOrderOfTheFile) {
  ProjectValues values = StartUpValues();
  const std::vector<std::pair<std::size_t, SectionPlace>> places{
      {lineUpPoyas, sectionUpPoyas},
      {lineDwnPoyas, sectionDwnPoyas},
      {lineOpornRaskos, sectionOpornRaskos},
      {lineRaskos, sectionRaskos},
      {lineStoyka, sectionStoyka}};
  int number = 1;
  for (const auto& [line, place] : places) {
    values = With(values, line, std::to_string(number + 1));
    values = With(values, line + 1, std::to_string(number));
    values = With(values, line + 2, std::to_string(number) + ".5");
    values = With(values, line + 3, number % 2 == 0 ? "True" : "False");
    values = With(values, line + 4, std::to_string(number + 3));
    ++number;
  }
  const DesignInputs record = Read(values);
  number = 1;
  for (const auto& [line, place] : places) {
    const SectionRec expected{.TypeIdx = number,
                              .SizeIdx = number + 1,
                              .Gdist = number + 0.5,
                              .Paired = number % 2 == 0,
                              .Profile = form.Model.ProfileTypes[number].Rec[number + 1],
                              .Layout = number + 3};
    EXPECT_EQ(record.ElementSection[place], expected) << Described(record.ElementSection[place]);
    ++number;
  }
}

using NumberField = std::pair<ProjectLine, double DesignInputs::*>;
const std::vector<NumberField>& NumberFields() {
  static const std::vector<NumberField> fields{{lineLengthF, &DesignInputs::LengthF},
                                               {lineHight, &DesignInputs::Hight},
                                               {lineLenOporn, &DesignInputs::LenOporn},
                                               {lineRy, &DesignInputs::Ry},
                                               {lineDensity, &DesignInputs::Density},
                                               {lineModulYung, &DesignInputs::ModulYung},
                                               {lineLimitFlex, &DesignInputs::LimitFlex},
                                               {lineNadegnost, &DesignInputs::Nadegnost},
                                               {lineUsloviyaRabot, &DesignInputs::UsloviyaRabot}};
  return fields;
}

TEST_F(ProjectFields, AreDecimalsWithCommaAndWithPoint) {
  for (const NumberLocale& locale : {PointLocale(), CommaLocale()}) {
    desk.Outside.Locale = locale;
    for (const auto& [line, field] : NumberFields()) {
      EXPECT_EQ(ReadWith(line, "1.75").*field, 1.75) << line;
      EXPECT_EQ(ReadWith(line, "1,75").*field, 1.75) << line;
      EXPECT_EQ(ReadWith(line, "-1,5E-2").*field, -0.015) << line;
    }
  }
}

TEST_F(ProjectFields, ThatAreNoNumbersAreZero) {
  for (const char* text : {"abc", "", " ", "True", "1 / 120", "--1", "1E400", "1;2", "x1"}) {
    for (const auto& [line, field] : NumberFields()) {
      EXPECT_EQ(ReadWith(line, text).*field, 0) << line << ' ' << text;
    }
  }
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

using WholeField = std::pair<ProjectLine, Integer DesignInputs::*>;
const std::vector<WholeField>& WholeFields() {
  static const std::vector<WholeField> fields{{lineTreloType, &DesignInputs::TreloType},
                                              {lineUpPoyasBrace, &DesignInputs::UpPoyasBrace},
                                              {lineDownPoyasBrace, &DesignInputs::DownPoyasBrace},
                                              {lineProgibOn, &DesignInputs::ProgibOn},
                                              {lineProgibUpper, &DesignInputs::ProgibUpper},
                                              {lineActiveGroup, &DesignInputs::ActiveGroup},
                                              {lineDinloadOn, &DesignInputs::DinloadOn},
                                              {lineOwnWeightOn, &DesignInputs::OwnWeightOn},
                                              {lineAllPanelsOn, &DesignInputs::AllPanelsOn},
                                              {linePForceTool, &DesignInputs::PForceTool}};
  return fields;
}

TEST_F(ProjectFields, AreWholeNumbersOfSixteenBits) {
  const std::vector<std::pair<std::string, int>> readings{{"3", 3},
                                                          {"-3", -3},
                                                          {" 3 ", 3},
                                                          {"2.5", 2},
                                                          {"3.5", 4},
                                                          {"1E2", 100},
                                                          {"32767", 32767},
                                                          {"-32768", -32768},
                                                          {"32768", 0},
                                                          {"-32769", 0},
                                                          {"70000", 0},
                                                          {"abc", 0},
                                                          {"", 0},
                                                          {"1E400", 0},
                                                          {"1 / 120", 0},
                                                          {"True", 0},
                                                          {"9999999999999999999", 0}};
  for (const auto& [text, expected] : readings) {
    for (const auto& [line, field] : WholeFields()) {
      EXPECT_EQ(ReadWith(line, text).*field, expected) << line << ' ' << text;
    }
    EXPECT_EQ(ReadWith(linePanelNum, text).PanelNum, expected) << text;
    const SectionRec section = ReadWith(lineUpPoyas + 4, text).ElementSection[sectionUpPoyas];
    EXPECT_EQ(section.Layout, expected) << text;
  }
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(ProjectFields, AreBooleansInWordsAndNumbers) {
  const std::vector<std::pair<std::string, bool>> readings{
      {"True", true}, {"False", false}, {"TRUE", true}, {"false", false}, {"1", true},
      {"-1", true},   {"0", false},     {"abc", false}, {"", false}};
  for (const auto& [text, expected] : readings) {
    EXPECT_EQ(ReadWith(lineDwnPoyas + 3, text).ElementSection[sectionDwnPoyas].Paired, expected)
        << text;
  }
}

TEST_F(ProjectFields, OfALoadThatIsNoNumberAreZero) {
  desk.Outside.Locale = CommaLocale();
  const std::vector<std::pair<std::string, std::vector<double>>> readings{
      {"", {0}},
      {"abc", {0}},
      {";", {0, 0}},
      {"1;x;3", {1, 0, 3}},
      {"1,5;1.5;-2", {1.5, 1.5, -2}},
      {"7;", {7, 0}},
      {" 1 ; 2 ", {1, 2}}};
  for (const auto& [text, expected] : readings) {
    for (const ProjectLine line :
         {lineUpPForce, lineUpDistForce, lineDwnPForce, lineDwnDistForce}) {
      const DesignInputs record = ReadWith(line, text);
      const BoundedArray<double>& array = line == lineUpPForce      ? record.Loads.UpPForce
                                          : line == lineUpDistForce ? record.Loads.UpDistForce
                                          : line == lineDwnPForce   ? record.Loads.DwnPForce
                                                                    : record.Loads.DwnDistForce;
      EXPECT_EQ(Values(array), expected) << line << ' ' << text;
      EXPECT_EQ(array.LowerBound(), 0);
    }
  }
}

TEST_F(ProjectFields, LeaveTheProfileEmptyOutsideTheCatalogue) {
  const ProfileTypeArray& catalogue = form.Model.ProfileTypes;
  const std::string aboveStandards = std::to_string(catalogue.UpperBound() + 1);
  const std::string aboveSizes = std::to_string(catalogue[1].Rec.UpperBound() + 1);
  // Size and standard.
  const std::vector<std::pair<std::string, std::string>> outside{
      {"1", "0"},  {"1", "-1"}, {"1", aboveStandards}, {"1", "32767"},       {"0", "1"},
      {"-1", "1"}, {"x", "1"},  {aboveSizes, "1"},     {"-32768", "-32768"}, {"1", "70000"}};
  for (const auto& [size, standard] : outside) {
    const DesignInputs record =
        Read(With(With(StartUpValues(), lineRaskos, size), lineRaskos + 1, standard));
    EXPECT_EQ(record.ElementSection[sectionRaskos].Profile, ProfileRec())
        << size << ' ' << standard;
    EXPECT_EQ(record.ElementSection[sectionRaskos].Layout, 1);
    EXPECT_EQ(record.ElementSection[sectionStoyka],
              form.Model.Inputs.ElementSection[sectionStoyka]);
  }
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(ProjectFields, HaveTheLastProfileOfEveryStandard) {
  const ProfileTypeArray& catalogue = form.Model.ProfileTypes;
  for (Long standard = 1; standard <= catalogue.UpperBound(); ++standard) {
    const Long size = catalogue[standard].Rec.UpperBound();
    const DesignInputs record = Read(With(With(StartUpValues(), lineStoyka, std::to_string(size)),
                                          lineStoyka + 1, std::to_string(standard)));
    EXPECT_EQ(record.ElementSection[sectionStoyka].Profile, catalogue[standard].Rec[size])
        << standard;
  }
}

TEST_F(ProjectFields, CanDoWithoutQuotes) {
  const std::vector<std::string> expected = Described(Read(StartUpValues()));
  const std::string bytes = ProjectBytes(StartUpValues());
  std::string bare = bytes;
  std::erase(bare, '"');
  EXPECT_EQ(Described(Read(bare)), expected);
  std::string open;
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    if (bytes[place] != '"' || bytes.compare(place, 2, "\"\r") != 0) {
      open += bytes[place];
    }
  }
  EXPECT_EQ(Described(Read(open)), expected);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(ProjectFields, CanDoWithoutCarriageReturnsAndTheLastLineEnd) {
  const std::vector<std::string> expected = Described(Read(StartUpValues()));
  std::string bytes = ProjectBytes(StartUpValues());
  EXPECT_EQ(Described(Read(bytes.substr(0, bytes.size() - 2))), expected);
  std::erase(bytes, '\r');
  EXPECT_EQ(Described(Read(bytes)), expected);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(ProjectFields, EndAtTheQuoteInsideAName) {
  const DesignInputs record = ReadWith(lineSteelName, "Сталь \"Вст3\"");
  EXPECT_EQ(record.SteelName, "Сталь ");
}

}  // namespace
}  // namespace trelonit::test

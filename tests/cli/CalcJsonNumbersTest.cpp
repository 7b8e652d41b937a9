#ifndef _WIN32

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "tests/cli/JsonOutput.h"

namespace trelonit::test {

namespace {

constexpr std::array<const char*, 5> blocks{"UpPoyas", "DwnPoyas", "Raskos", "OpornRaskos",
                                            "Stoyka"};

double Sum(const Json& list) {
  const std::vector<double> numbers = Numbers(list);
  return std::accumulate(numbers.begin(), numbers.end(), 0.0);
}

/// Half of the last decimal, and a little for the digits of the number itself.
double HalfDigit(int decimals) {
  return 0.5001 * std::pow(10, -decimals);
}

/// The lines of the force list by heading, blank lines left out.
std::map<std::string, std::vector<std::string>> ByHeading(const std::vector<std::string>& list) {
  std::map<std::string, std::vector<std::string>> lines;
  std::string heading;
  for (const std::string& line : list) {
    if (line.ends_with(":")) {
      heading = line;
    } else if (line == " ") {
      heading.clear();
    } else if (!heading.empty()) {
      lines[heading].push_back(line);
    }
  }
  return lines;
}

/// Lines whose last word but one is the number, with so many decimals.
void ExpectShown(const std::vector<std::string>& lines, const std::vector<double>& numbers) {
  ASSERT_EQ(lines.size(), numbers.size());
  for (std::size_t place = 0; place < lines.size(); ++place) {
    const std::vector<std::string> words = Words(lines[place]);
    ASSERT_GE(words.size(), 2U) << lines[place];
    const std::string& shown = words[words.size() - 2];
    EXPECT_EQ(shown.size() - shown.find('.'), 5U) << lines[place];
    EXPECT_NEAR(std::stod(shown), numbers[place], HalfDigit(4)) << lines[place];
  }
}

/// What the table must show of a group: caption and coefficient, without the group's words.
std::vector<std::pair<std::string, double>> ShownCoefficients(const Json& group) {
  std::vector<std::pair<std::string, double>> rows;
  const auto number = [&group](const char* key) { return group.at(key).get<double>(); };
  for (const auto& [caption, key] :
       {std::pair("Прочность", "KStrength"), std::pair("Устойчивость", "KStabX"),
        std::pair("Устойчивость", "KStabY")}) {
    if (number(key) > 0) {
      rows.emplace_back(caption, number(key));
    }
  }
  rows.emplace_back("Гибкость", std::max(number("KFlexX"), number("KFlexY")));
  rows.emplace_back("Гибкость", std::max(number("KUserX"), number("KUserY")));
  return rows;
}

using CalcJsonNumbers = CalcJsonTest;

TEST_F(CalcJsonNumbers, BalanceTheJointLoadsAgainstTheReactions) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json result = Calculated(ExampleBytes(scheme)).at("TreloResult");
    const double loads = Sum(result.at("UpKnotLoad")) + Sum(result.at("DwnKnotLoad"));
    const double reactions =
        result.at("ReactLeft").get<double>() + result.at("ReactRight").get<double>();
    EXPECT_GT(loads, 0) << scheme;
    EXPECT_NEAR(loads, reactions, 1e-9) << scheme;
  }
}

TEST_F(CalcJsonNumbers, BringTheWholeRoofLoadToTheUpperJoints) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json object = Calculated(ExampleBytes(scheme));
    // The same load on every panel.
    const double perMetre = object.at("TreloData").at("UpDistForce").at(0);
    const double span = object.at("TreloData").at("LengthF");
    EXPECT_NEAR(Sum(object.at("TreloResult").at("UpKnotLoad")), perMetre * span, 1e-9) << scheme;
  }
}

TEST_F(CalcJsonNumbers, CloseAtTheRightSupportUnderALoadOnTheUpperChord) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const std::string project = ExampleBytes(scheme);
    const Json without = Calculated(WithLine(project, 46, "0"));
    EXPECT_EQ(without.at("TreloResult").at("Balanced"), true) << scheme;
    // Intended: own weight on the lower chord leaves the second scheme unbalanced.
    EXPECT_EQ(Calculated(project).at("TreloResult").at("Balanced"), scheme != 2) << scheme;
  }
}

TEST_F(CalcJsonNumbers, KeepEveryCoefficientOfTheExamplesAtOneOrBelow) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json object = Calculated(ExampleBytes(scheme));
    for (const char* block : blocks) {
      for (const char* key :
           {"KStrength", "KStabX", "KStabY", "KFlexX", "KFlexY", "KUserX", "KUserY"}) {
        const double coefficient = object.at("CheckResult").at(block).at(key);
        EXPECT_LE(coefficient, 1) << scheme << block << key;
        EXPECT_GE(coefficient, 0) << scheme << block << key;
      }
    }
    EXPECT_EQ(object.at("Progib").at("Satisfied"), true) << scheme;
    EXPECT_LE(object.at("Progib").at("Value"), object.at("Progib").at("Limit")) << scheme;
  }
}

TEST_F(CalcJsonNumbers, AgreeWithTheLinesOfTheForceList) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json object = Calculated(ExampleBytes(scheme));
    const Json& result = object.at("TreloResult");
    auto shown = ByHeading(object.at("lstForces").get<std::vector<std::string>>());
    ExpectShown(shown[" Верхний пояс :"], Numbers(result.at("UpPoyasForce")));
    ExpectShown(shown[" Нижний пояс :"], Numbers(result.at("DwnPoyasForce")));
    const std::vector<double> diagonals = Numbers(result.at("RaskosForce"));
    ExpectShown(shown[" Раскосы :"], {diagonals.begin() + 1, diagonals.end() - 1});
    ExpectShown(shown[" Опорные раскосы :"], {diagonals.front(), diagonals.back()});
    if (scheme != 3) {
      ExpectShown(shown[" Стойки :"], Numbers(result.at("StoykaForce")));
    }
    const double left = result.at("ReactLeft");
    const double right = result.at("ReactRight");
    const double mass = object.at("CheckResult").at("Mass");
    ExpectShown(shown[" Реакции опор без учета собственной массы фермы:"], {left, right});
    ExpectShown(shown[" Теоретическая масса фермы:"], {mass});
    ExpectShown(shown[" Реакции опор c учетом собственной массы фермы:"],
                {left + mass / 2, right + mass / 2});
  }
}

TEST_F(CalcJsonNumbers, AgreeWithTheRowsOfTheTable) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json object = Calculated(ExampleBytes(scheme));
    std::vector<std::pair<std::string, double>> expected;
    for (const char* block : blocks) {
      if (scheme == 3 && std::string(block) == "Stoyka") {
        continue;
      }
      expected.emplace_back("***", 0);
      for (const auto& row : ShownCoefficients(object.at("CheckResult").at(block))) {
        expected.push_back(row);
      }
    }
    const Json& table = object.at("MSFlexGKoefUse");
    ASSERT_EQ(table.size(), expected.size()) << scheme;
    for (std::size_t row = 0; row < table.size(); ++row) {
      ASSERT_EQ(table[row].size(), 2U);
      const std::string caption = table[row][0];
      const std::string shown = table[row][1];
      EXPECT_TRUE(caption.starts_with(expected[row].first)) << caption;
      if (expected[row].first == "***") {
        EXPECT_EQ(shown, "***");
        continue;
      }
      EXPECT_EQ(shown.size() - shown.find('.'), 6U) << shown;
      EXPECT_NEAR(std::stod(shown), expected[row].second, HalfDigit(5)) << caption;
    }
  }
}

TEST_F(CalcJsonNumbers, AgreeWithThePrintedText) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json object = Calculated(ExampleBytes(scheme));
    const std::vector<std::string> printed = Lines(Run({"calc", "project.tsav"}).Out);
    const auto forces = object.at("lstForces").get<std::vector<std::string>>();
    const Json& table = object.at("MSFlexGKoefUse");
    // An empty line and the head of the table stand between the two.
    ASSERT_EQ(printed.size(), forces.size() + 2 + table.size());
    EXPECT_TRUE(std::equal(forces.begin(), forces.end(), printed.begin()));
    for (std::size_t row = 0; row < table.size(); ++row) {
      const std::string& line = printed[forces.size() + 2 + row];
      EXPECT_TRUE(line.starts_with(table[row][0].get<std::string>())) << line;
      EXPECT_TRUE(line.ends_with("  " + table[row][1].get<std::string>())) << line;
    }
  }
}

TEST_F(CalcJsonNumbers, HaveFullPrecision) {
  const Json result = Calculated(ExampleBytes(1)).at("TreloResult");
  EXPECT_DOUBLE_EQ(result.at("LenRaskos").get<double>(), std::hypot(3, 2.8));
  EXPECT_DOUBLE_EQ(result.at("AngleRaskos").get<double>(), std::atan2(2.8, 3));
  EXPECT_DOUBLE_EQ(result.at("SumLenRaskos").get<double>(), 6 * std::hypot(3, 2.8));
}

TEST_F(CalcJsonNumbers, PutEveryBarForceTwiceIntoTheTable) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json result = Calculated(ExampleBytes(scheme), {"--bar-force"}).at("TreloResult");
    const auto table = result.at("BarForce").get<std::vector<std::vector<double>>>();
    // A bar without force cannot be told from a pair of joints without a bar.
    const auto carries = [](double force) { return std::abs(force) > 1e-6; };
    std::vector<double> inTable;
    for (std::size_t row = 0; row < table.size(); ++row) {
      EXPECT_EQ(table[row][row], 0);
      for (std::size_t column = 0; column < row; ++column) {
        EXPECT_EQ(table[row][column], table[column][row]);
        if (carries(table[row][column])) {
          inTable.push_back(table[row][column]);
        }
      }
    }
    std::vector<double> inLists;
    for (const char* key : {"UpPoyasForce", "DwnPoyasForce", "RaskosForce", "StoykaForce"}) {
      const std::vector<double> forces = Numbers(result.at(key));
      std::copy_if(forces.begin(), forces.end(), std::back_inserter(inLists), carries);
    }
    std::sort(inTable.begin(), inTable.end());
    std::sort(inLists.begin(), inLists.end());
    EXPECT_EQ(inTable, inLists) << scheme;
  }
}

TEST_F(CalcJsonNumbers, HoldTheOwnWeightThatIsInsideTheLoads) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const std::string project = ExampleBytes(scheme);
    const Json with = Calculated(project);
    const Json without = Calculated(WithLine(project, 46, "0"));
    EXPECT_EQ(without.at("OwnWeightAdded"), false);
    EXPECT_EQ(without.at("OwnWeightPerMetre"), 0);
    EXPECT_EQ(with.at("OwnWeightAdded"), true);
    const double perMetre = with.at("OwnWeightPerMetre");
    const double chords = with.at("TreloResult").at("SumLenUpPoyas").get<double>() +
                          with.at("TreloResult").at("SumLenDwnPoyas").get<double>();
    EXPECT_GT(perMetre, 0);
    EXPECT_NEAR(perMetre, with.at("CheckResult").at("Mass").get<double>() / chords, HalfDigit(4));
    EXPECT_NEAR(perMetre * 1e4, std::round(perMetre * 1e4), 1e-9);
    for (const char* key : {"UpDistForce", "DwnDistForce"}) {
      const std::vector<double> loaded = Numbers(with.at("TreloData").at(key));
      const std::vector<double> entered = Numbers(without.at("TreloData").at(key));
      ASSERT_EQ(loaded.size(), entered.size());
      for (std::size_t panel = 0; panel < loaded.size(); ++panel) {
        EXPECT_NEAR(loaded[panel], entered[panel] + perMetre, 1e-12) << scheme << key;
      }
    }
  }
}

TEST_F(CalcJsonNumbers, FollowTheInputsOfTheFile) {
  const std::string project = ExampleBytes(1);
  const Json before = Calculated(project);
  EXPECT_EQ(before.at("TreloData").at("LengthF"), 24);
  EXPECT_EQ(before.at("TreloData").at("Hight"), 2.8);
  EXPECT_EQ(before.at("Progib").at("Limit"), 24.0 / 250);
  EXPECT_EQ(before.at("CheckResult").at("UpPoyas").at("LimitX").at("Tension"), 400);
  // Dynamic loads; another limit of the deflection; four times the resistance.
  Put("dynamic.tsav", WithLine(project, 45, "1"));
  EXPECT_EQ(ParsedOutput(Run({"calc", "dynamic.tsav", "--json"}))
                .at("CheckResult")
                .at("UpPoyas")
                .at("LimitX")
                .at("Tension"),
            250);
  EXPECT_EQ(Calculated(WithLine(project, 17, "1 / 300")).at("Progib").at("Limit"), 24.0 / 300);
  const Json strong = Calculated(WithLine(project, 10, "960"));
  EXPECT_NEAR(strong.at("CheckResult").at("DwnPoyas").at("KStrength").get<double>() * 4,
              before.at("CheckResult").at("DwnPoyas").at("KStrength").get<double>(), 1e-12);
}

TEST_F(CalcJsonNumbers, DoubleWithTheLoads) {
  const std::string project = WithLine(ExampleBytes(1), 46, "0");
  const Json once = Calculated(project);
  const Json twice = Calculated(WithLine(project, 50, "3.36;3.36;3.36;3.36;3.36;3.36;3.36;3.36"));
  for (const char* key : {"UpPoyasForce", "DwnPoyasForce", "RaskosForce", "StoykaForce"}) {
    const std::vector<double> single = Numbers(once.at("TreloResult").at(key));
    const std::vector<double> doubled = Numbers(twice.at("TreloResult").at(key));
    ASSERT_EQ(single.size(), doubled.size());
    for (std::size_t bar = 0; bar < single.size(); ++bar) {
      EXPECT_NEAR(doubled[bar], 2 * single[bar], 1e-9) << key << bar;
    }
  }
  EXPECT_NEAR(twice.at("Progib").at("Value").get<double>(),
              2 * once.at("Progib").at("Value").get<double>(), 1e-12);
}

TEST_F(CalcJsonNumbers, AreTheSameEveryTime) {
  Put("a.tsav", ExampleBytes(2));
  const std::vector<std::string> command{"calc", "a.tsav", "--json", "--bar-force"};
  EXPECT_EQ(Run(command).Out, Run(command).Out);
}

}  // namespace

}  // namespace trelonit::test

#endif

#ifndef _WIN32

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <string>
#include <string_view>
#include <vector>

#include "tests/cli/AuditCommand.h"

namespace trelonit::test {

namespace {

using Texts = std::vector<std::string>;

const Texts memberChecks{"Strength", "StabX", "StabY", "FlexX", "FlexY"};

/// Arithmetic as any reader of the object would do it: numbers with a point, + - * /, brackets,
/// sqrt. NaN for anything else.
class Calculator {
 public:
  static double Result(const std::string& text) {
    Calculator calculator(text);
    const double value = calculator.Sum();
    return calculator.rest_.empty() ? value : NAN;
  }

 private:
  explicit Calculator(std::string_view text) : rest_(text) {}

  bool Take(std::string_view piece) {
    const bool taken = rest_.starts_with(piece);
    rest_.remove_prefix(taken ? piece.size() : 0);
    return taken;
  }

  double Sum() {
    double value = Take("-") ? -Product() : Product();
    for (;;) {
      if (Take("+")) {
        value += Product();
      } else if (Take("-")) {
        value -= Product();
      } else {
        return value;
      }
    }
  }

  double Product() {
    double value = Factor();
    for (;;) {
      if (Take("*")) {
        value *= Factor();
      } else if (Take("/")) {
        value /= Factor();
      } else {
        return value;
      }
    }
  }

  double Factor() {
    const bool root = Take("sqrt");
    if (Take("(")) {
      const double inside = Sum();
      const double value = Take(")") ? inside : NAN;
      return root ? std::sqrt(value) : value;
    }
    const std::size_t length = std::min(rest_.find_first_not_of("0123456789."), rest_.size());
    if (root || length == 0) {
      return NAN;
    }
    const double value = std::stod(std::string(rest_.substr(0, length)));
    rest_.remove_prefix(length);
    return value;
  }

  std::string_view rest_;
};

/// Groups in their order, by scheme.
Texts GroupsOf(int scheme) {
  return scheme == 3 ? Texts{"UpPoyas", "DwnPoyas", "Raskos", "OpornRaskos"}
                     : Texts{"UpPoyas", "DwnPoyas", "Stoyka", "Raskos", "OpornRaskos"};
}

class AuditJson : public AuditTest {
 protected:
  /// The examples, a dangerous design and one with dynamic loads.
  static Texts Projects() {
    Texts projects;
    for (int scheme = 1; scheme <= 4; ++scheme) {
      projects.push_back(ExampleBytes(scheme));
      projects.push_back(WithLine(ExampleBytes(scheme), 45, "1"));
    }
    projects.push_back(DangerousProject());
    return projects;
  }
};

TEST_F(AuditJson, HasItsKeysInTheirOrder) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json object = Object(ExampleBytes(scheme));
    EXPECT_EQ(Keys(object), (Texts{"Norm", "Groups", "Balance", "Findings", "Explanation"}));
    EXPECT_EQ(object.at("Norm"), "СНиП II-23-81*");
    Texts groups;
    for (const Json& group : object.at("Groups")) {
      EXPECT_EQ(Keys(group), (Texts{"Group", "Told", "Opinion", "Forces", "Governing"}));
      EXPECT_EQ(Keys(group.at("Told")), memberChecks);
      EXPECT_EQ(Keys(group.at("Opinion")), memberChecks);
      groups.push_back(group.at("Group"));
    }
    EXPECT_EQ(groups, GroupsOf(scheme));
    EXPECT_EQ(Keys(object.at("Balance")), (Texts{"Residual", "Joints"}));
    ASSERT_FALSE(object.at("Findings").empty());
    for (const Json& finding : object.at("Findings")) {
      EXPECT_EQ(Keys(finding), (Texts{"Code", "Severity", "Group", "Check", "Text"}));
    }
    ASSERT_FALSE(object.at("Explanation").empty());
    for (const Json& explanation : object.at("Explanation")) {
      EXPECT_EQ(Keys(explanation), (Texts{"Group", "Check", "Source", "Clause", "Formula",
                                          "Substitution", "Value", "Limit", "Passed"}));
    }
  }
}

TEST_F(AuditJson, ToldFiguresAreThoseOfTheCalculation) {
  const std::map<std::string, std::string> coefficients{{"Strength", "KStrength"},
                                                        {"StabX", "KStabX"},
                                                        {"StabY", "KStabY"},
                                                        {"FlexX", "KFlexX"},
                                                        {"FlexY", "KFlexY"}};
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Json check = Calculated(ExampleBytes(scheme)).at("CheckResult");
    const Json object = Object(ExampleBytes(scheme));
    for (const Json& group : object.at("Groups")) {
      for (const auto& [name, coefficient] : coefficients) {
        EXPECT_EQ(group.at("Told").at(name),
                  check.at(group.at("Group").get<std::string>()).at(coefficient))
            << scheme << name;
      }
    }
  }
}

TEST_F(AuditJson, ForcesAreThoseOfTheBeam) {
  // The first example: (1.68 + 0.058) t/m above and 0.058 below on 24 m, panels of 3 m, 2.8 m high.
  const double perMetre = 1.68 + 2 * 0.058;
  const auto moment = [&](int column) { return perMetre * 3 * column * (24 - 3 * column) / 2; };
  const Json object = Object(ExampleBytes(1));
  const Json& groups = object.at("Groups");
  const std::vector<double> upper = Numbers(groups.at(0).at("Forces"));
  const std::vector<double> lower = Numbers(groups.at(1).at("Forces"));
  const std::vector<double> inner = Numbers(groups.at(3).at("Forces"));
  const std::vector<double> support = Numbers(groups.at(4).at("Forces"));
  ASSERT_EQ(upper.size(), 8U);
  ASSERT_EQ(lower.size(), 8U);
  ASSERT_EQ(inner.size(), 6U);
  ASSERT_EQ(support.size(), 2U);
  for (int bar = 0; bar < 4; ++bar) {
    const auto mirrored = static_cast<std::size_t>(7 - bar);
    EXPECT_NEAR(upper[static_cast<std::size_t>(bar)], -moment(bar + 1) / 2.8, 1e-9);
    EXPECT_NEAR(upper[mirrored], -moment(bar + 1) / 2.8, 1e-9);
    EXPECT_NEAR(lower[static_cast<std::size_t>(bar)], moment(bar) / 2.8, 1e-9);
    EXPECT_NEAR(lower[mirrored], moment(bar) / 2.8, 1e-9);
  }
  const double rise = std::hypot(3, 2.8) / 2.8;
  EXPECT_NEAR(support[0], 3.5 * 3 * perMetre * rise, 1e-9);
  EXPECT_NEAR(inner[0], 2.5 * 3 * perMetre * rise, 1e-9);
  EXPECT_NEAR(inner[2], 0.5 * 3 * perMetre * rise, 1e-9);
  EXPECT_EQ(object.at("Balance").at("Residual"), 0);
  EXPECT_TRUE(object.at("Balance").at("Joints").empty());
}

TEST_F(AuditJson, GoverningBarsHaveTheFiguresOfTheirGroup) {
  // Ry and E of the examples, whose gamma c is 0.9.
  constexpr double Ry = 240;
  constexpr double E = 210000;
  using std::numbers::pi;
  for (const std::string& project : Projects()) {
    const Json object = Object(project);
    const Json check = ParsedOutput(Run({"calc", "project.tsav", "--json"})).at("CheckResult");
    for (const Json& group : object.at("Groups")) {
      const double area = check.at(group.at("Group").get<std::string>()).at("Area");
      const std::vector<double> forces = Numbers(group.at("Forces"));
      const bool compressed = *std::min_element(forces.begin(), forces.end()) < -1e-9;
      EXPECT_EQ(Keys(group.at("Governing")),
                compressed ? memberChecks : (Texts{"Strength", "FlexX", "FlexY"}));
      for (const auto& [name, governing] : group.at("Governing").items()) {
        EXPECT_EQ(Keys(governing), (Texts{"Bar", "Force", "Length", "Slenderness", "Phi"}));
        const double force = governing.at("Force");
        EXPECT_EQ(force, forces.at(governing.at("Bar").get<std::size_t>() - 1)) << name;
        const double strength = std::abs(force) * 98.1 / (area * Ry * 0.9);
        const double figure = group.at("Opinion").at(name);
        if (name == "Strength") {
          EXPECT_NEAR(figure, strength, 1e-12);
          EXPECT_TRUE(governing.at("Slenderness").is_null());
          for (const double other : forces) {
            EXPECT_GE(std::abs(force), std::abs(other) - 1e-9);
          }
        } else if (name.starts_with("Stab")) {
          EXPECT_NEAR(figure, strength / governing.at("Phi").get<double>(), 1e-12);
          // Euler's curve lies above every buckling coefficient of the norm.
          const double lambda = governing.at("Slenderness");
          EXPECT_LT(governing.at("Phi").get<double>() * Ry, pi * pi * E / (lambda * lambda));
          EXPECT_LT(governing.at("Phi").get<double>(), 1);
        } else {
          EXPECT_EQ(governing.at("Phi").is_null(), force >= 0);
        }
      }
    }
  }
}

TEST_F(AuditJson, ShowsTheLoadThatTheSecondSchemeLeavesOut) {
  // The second lower joint has its own weight on two halves of 3 m, and no other bar takes it.
  const Json object = Object(ExampleBytes(2));
  EXPECT_NEAR(object.at("Balance").at("Residual").get<double>(), 0.0554 * 3, 1e-9);
  const auto joints = object.at("Balance").at("Joints").get<Texts>();
  EXPECT_NE(std::find(joints.begin(), joints.end(), "Н1"), joints.end());
  EXPECT_EQ(CountFindings(object, "not-balanced", "warning"), 1U);
  EXPECT_EQ(CountFindings(object, "load-differs", "warning"), 1U);
}

TEST_F(AuditJson, FindingsNameGroupAndCheckByTheKeysOfTheCode) {
  const Json object = Object(DangerousProject());
  ASSERT_EQ(CountFindings(object, "check-differs", "danger"), 2U);
  const Json& first = object.at("Findings").at(0);
  EXPECT_EQ(first.at("Group"), "UpPoyas");
  EXPECT_EQ(first.at("Check"), "StabY");
  EXPECT_EQ(object.at("Findings").at(1).at("Check"), "FlexY");
  for (const Json& finding : object.at("Findings")) {
    if (finding.at("Code") == "chord-bending") {
      EXPECT_TRUE(finding.at("Check").is_null());
    }
  }
  EXPECT_TRUE(Object(ExampleBytes(2)).at("Findings").at(1).at("Group").is_null());
}

TEST_F(AuditJson, SubstitutionsGiveTheirValues) {
  for (const std::string& project : Projects()) {
    const Json told = Object(project);
    for (const Json& explanation : told.at("Explanation")) {
      const auto substitution = explanation.at("Substitution").get<std::string>();
      const double value = explanation.at("Value");
      EXPECT_NEAR(Calculator::Result(substitution), value, 1e-4) << substitution;
      EXPECT_EQ(explanation.at("Limit"), 1);
      EXPECT_EQ(explanation.at("Passed"), value <= 1) << substitution;
      EXPECT_FALSE(explanation.at("Clause").get<std::string>().empty());
      EXPECT_FALSE(explanation.at("Formula").get<std::string>().empty());
    }
  }
}

TEST_F(AuditJson, ExplainsEveryFigureOfBothSides) {
  for (const std::string& project : Projects()) {
    const Json object = Object(project);
    std::map<std::string, double> explained;
    for (const Json& explanation : object.at("Explanation")) {
      const std::string group =
          explanation.at("Group").is_null() ? "" : explanation.at("Group").get<std::string>();
      const std::string key = explanation.at("Source").get<std::string>() + ' ' + group + ' ' +
                              explanation.at("Check").get<std::string>();
      EXPECT_TRUE(explained.emplace(key, explanation.at("Value")).second) << key;
    }
    EXPECT_EQ(explained.count("told  Progib"), 1U);
    std::size_t figures = 1;
    for (const Json& group : object.at("Groups")) {
      const auto name = group.at("Group").get<std::string>();
      // The user's own limit has no counterpart in the norm.
      figures += explained.count("told " + name + " UserX");
      figures += explained.count("told " + name + " UserY");
      for (const auto& [source, key] :
           {std::pair("told", "Told"), std::pair("opinion", "Opinion")}) {
        for (const auto& [check, figure] : group.at(key).items()) {
          if (figure.get<double>() == 0) {
            continue;
          }
          const auto found = explained.find(std::string(source) + ' ' + name + ' ' + check);
          ASSERT_NE(found, explained.end()) << source << name << check;
          EXPECT_EQ(found->second, figure.get<double>()) << source << name << check;
          ++figures;
        }
      }
    }
    EXPECT_EQ(figures, explained.size());
  }
}

TEST_F(AuditJson, HasNoDeflectionWhereItIsNotAskedFor) {
  const Json told = Object(WithLine(ExampleBytes(1), 16, "0"));
  for (const Json& explanation : told.at("Explanation")) {
    EXPECT_NE(explanation.at("Check"), "Progib");
  }
}

}  // namespace

}  // namespace trelonit::test

#endif

#pragma once

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <regex>
#include <string>
#include <vector>

#include "platform/text/NumberText.h"

namespace trelonit::test {

/// Lines of a report without their line ends.
using ReportText = std::vector<std::string>;

/// Whether the digits are those that a number has without a width told.
inline bool IsPlainNumber(const std::string& digits) {
  const std::string point = std::regex_replace(digits, std::regex(","), ".");
  return NumberToText(ParseNumber(point, NumberLocale()), NumberLocale()) == point;
}

/// Equal letter by letter but for the last digits of a number without a width told, in which two
/// ways of computing it may differ.
inline void ExpectSameLine(const std::string& actual, const std::string& expected,
                           const std::string& where) {
  static const std::regex number("-?[0-9]+([.,][0-9]+)?(E[-+][0-9]+)?");
  EXPECT_EQ(std::regex_replace(actual, number, "#"), std::regex_replace(expected, number, "#"))
      << where;
  const std::sregex_iterator end;
  std::sregex_iterator a(actual.begin(), actual.end(), number);
  std::sregex_iterator b(expected.begin(), expected.end(), number);
  for (; a != end && b != end; ++a, ++b) {
    if (a->str() == b->str()) {
      continue;
    }
    EXPECT_TRUE(IsPlainNumber(a->str()) && IsPlainNumber(b->str()))
        << where << ": " << actual << " instead of " << expected;
    const double value = ParseNumber(a->str(), NumberLocale());
    const double wanted = ParseNumber(b->str(), NumberLocale());
    constexpr double relative = 1e-13;
    constexpr double noise = 1e-14;
    EXPECT_LE(std::abs(value - wanted), std::max(noise, relative * std::abs(wanted)))
        << where << ": " << actual << " instead of " << expected;
  }
}

inline void ExpectSameReport(const ReportText& actual, const ReportText& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t line = 0; line < actual.size(); ++line) {
    ExpectSameLine(actual[line], expected[line], "line " + std::to_string(line + 1));
  }
}

}  // namespace trelonit::test

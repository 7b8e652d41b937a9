#pragma once

#include <string_view>
#include <vector>

#include "platform/text/FixedText.h"

namespace trelonit {

/// Design resistances of a steel in a range of thicknesses (SNiP II-23-81*, table 51*), MPa as
/// text;
/// "-" where the norm gives no value.
struct ThickRange {
  FixedText<15> Caption;
  FixedText<3> RySheet;
  FixedText<3> RyFason;

  friend bool operator==(const ThickRange&, const ThickRange&) = default;
};

struct SteelRec {
  FixedText<5> Name;
  std::vector<ThickRange> Ranges;

  friend bool operator==(const SteelRec&, const SteelRec&) = default;
};

/// The grades of a steel table: code page 1251, a line a grade, "grade#range$range...", a range
/// "caption*sheet*shaped". What a line lacks keeps the value of the line before, so that each of
/// the empty lines at the end of the table repeats the last grade; the list of grades counts on
/// that.
std::vector<SteelRec> ParseSteelTable(std::string_view bytes);

}  // namespace trelonit

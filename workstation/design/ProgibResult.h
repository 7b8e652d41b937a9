#pragma once

#include <string_view>

#include "platform/text/NumberText.h"

namespace trelonit {

/// The deflection and its limit, metres.
struct ProgibResult {
  double Value = 0;
  double Limit = 0;
  /// A deflection equal to the limit satisfies it.
  bool Satisfied = false;
};

/// A deflection against the limit span / N, with N the whole number in the limit's text ("1 / 120")
/// from its fifth character on. Raises 13, 6 or 11 for a text without such a number.
ProgibResult JudgeProgib(double progib, double span, std::string_view limitText,
                         const NumberLocale& locale);

}  // namespace trelonit

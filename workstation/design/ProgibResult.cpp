#include "workstation/design/ProgibResult.h"

#include "platform/values/Arithmetic.h"

namespace trelonit {

ProgibResult JudgeProgib(double progib, double span, std::string_view limitText,
                         const NumberLocale& locale) {
  constexpr std::size_t denominatorPlace = 4;
  const std::string_view denominator =
      limitText.size() > denominatorPlace ? limitText.substr(denominatorPlace) : "";
  ProgibResult result{.Value = progib, .Limit = Real(span) / TextToLong(denominator, locale)};
  result.Satisfied = !(result.Value > result.Limit);
  return result;
}

}  // namespace trelonit

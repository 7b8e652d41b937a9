#include "opinion/FormulaText.h"

namespace trelonit {

std::string FormulaInLine(std::string_view formula, const NumberLocale& locale) {
  constexpr std::string_view root = "sqrt(";
  std::string text;
  for (std::size_t place = 0; place < formula.size(); ++place) {
    if (formula.substr(place).starts_with(root)) {
      text += "√(";
      place += root.size() - 1;
    } else if (formula[place] == '*') {
      text += "·";
    } else if (formula[place] == '-') {
      text += "−";
    } else if (formula[place] == '.') {
      text += locale.DecimalSeparator;
    } else {
      text += formula[place];
    }
  }
  return text;
}

}  // namespace trelonit

#pragma once

#include <string>
#include <string_view>

#include "platform/text/NumberText.h"

namespace trelonit {

/// A formula or its numbers (see Expression) as people write it in a line: a dot for the product, a
/// root sign, the locale's decimal separator.
std::string FormulaInLine(std::string_view formula, const NumberLocale& locale);

}  // namespace trelonit

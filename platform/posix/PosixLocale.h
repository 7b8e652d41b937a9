#pragma once

#include <locale>

#include "platform/text/NumberText.h"

namespace trelonit {

/// The separators of a locale of the standard library.
NumberLocale NumberLocaleOf(const std::locale& locale);

}  // namespace trelonit

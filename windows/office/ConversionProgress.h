#pragma once

#include <memory>

#include "windows/office/OfficeConversion.h"

namespace trelonit {

/// A small modal window, as long as the watch lives, in which the user can stop the conversion; it
/// keeps the program's other windows painted. None in a program without widgets.
std::unique_ptr<ConversionWatch> ShowConversionProgress();

}  // namespace trelonit

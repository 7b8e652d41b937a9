#pragma once

#include <cstdint>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

/// What the number of a failed call of the system means here: 53 for what is not there, 70 for what
/// the user may not, 7 without memory, 57 for anything else.
RuntimeError FromSystemError(std::uint32_t code);

}  // namespace trelonit

#pragma once

#include <string>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

/// Raises 5 with this text for the user.
[[noreturn]] inline void Refuse(const std::string& text) {
  throw RuntimeError(static_cast<int>(ErrorNumber::InvalidProcedureCall), text);
}

}  // namespace trelonit

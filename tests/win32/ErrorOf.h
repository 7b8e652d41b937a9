#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/errors/RuntimeError.h"

namespace trelonit::test {

/// The run-time error that the body raises.
inline std::optional<RuntimeError> RaisedBy(const std::function<void()>& body) {
  try {
    body();
  } catch (const RuntimeError& error) {
    return error;
  }
  return std::nullopt;
}

/// Its number, 0 when the body raises none.
inline int ErrorOf(const std::function<void()>& body) {
  const std::optional<RuntimeError> error = RaisedBy(body);
  return error ? error->Number() : 0;
}

}  // namespace trelonit::test

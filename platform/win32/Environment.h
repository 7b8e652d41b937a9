#pragma once

#include <optional>
#include <string>

namespace trelonit {

/// A variable of the environment; nothing where it is not set.
std::optional<std::wstring> EnvironmentVariable(const wchar_t* name);

}  // namespace trelonit

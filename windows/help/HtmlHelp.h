#pragma once

#include <string>

namespace trelonit {

/// Windows only: opens the help file in the system's viewer, with the program's window as its
/// owner. Raises 53 where the viewer cannot be loaded or does not open.
void ShowHtmlHelp(const std::string& path);

}  // namespace trelonit

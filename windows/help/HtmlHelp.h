#pragma once

#include <string>

namespace trelonit {

/// Opens the help file in the system's viewer, with the program's window as its owner. Raises 53
/// where the viewer cannot be loaded or does not open; false on a system that has no such viewer.
bool ShowHtmlHelp(const std::string& path);

}  // namespace trelonit

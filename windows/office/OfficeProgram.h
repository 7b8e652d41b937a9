#pragma once

#include <string>

namespace trelonit {

/// The absolute path of LibreOffice's program, from the absolute folders of PATH and the places
/// where it is usually installed; empty where the machine has none.
std::string FindOfficeProgram();

}  // namespace trelonit

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trelonit {

/// What stands behind the program's own name in a command line, without blanks at its ends.
std::wstring_view BehindProgramName(std::wstring_view line);

/// The same of this process's command line, as it was written.
std::string OwnCommandLine();

/// This process's arguments as the system parts them, the program's name first.
std::vector<std::string> OwnArguments();

}  // namespace trelonit

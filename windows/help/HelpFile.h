#pragma once

#include <filesystem>
#include <string>

namespace trelonit {

/// The installed help file's name, in the program's folder and in the shared one.
inline constexpr const char* helpFileName = "Trelo calculation.chm";

/// Where an installation has put the help file: beside the program or in its shared folder
/// ("../share/trelonit"). Empty where there is none.
std::filesystem::path InstalledHelpFile(const std::filesystem::path& executableFolder);

/// Puts the installed help file into the program's folder where that is another one, and renews it
/// after an update: the help command looks for it there. A failure is no news: the command itself
/// tells that its file is missing. The folder is in UTF-8.
void PlaceHelpFile(const std::filesystem::path& installed, const std::string& programFolder);

}  // namespace trelonit

#pragma once

#include <filesystem>
#include <string>

namespace trelonit {

/// The file of the running program; empty where the system does not tell.
std::filesystem::path ExecutablePath();

/// The program's folder in the user's data folder, whether or not it is there.
std::filesystem::path UserDataFolder();

/// The program's folder among what programs of the user keep between their runs - recovery copies,
/// claims -, whether or not it is there.
std::filesystem::path UserStateFolder();

/// The folder that this program was started from; empty where the system does not tell.
std::filesystem::path ExecutableFolder();

/// The folder for the catalogue files: the executable's own where it already holds them or is
/// writable, otherwise the program's folder in the user's data folder (made if missing), so that an
/// installed program works without rights. An installed program takes its own folder only where it
/// holds the files: a superuser could write there, and nobody would take them away again.
std::string FindProgramFolder();

}  // namespace trelonit

#pragma once

#include <functional>
#include <optional>
#include <string>

namespace trelonit {

/// Runs a console program's work with its arguments in UTF-8, as main gets them, on a console that
/// shows UTF-8. A limit on file sizes is a failed write there, told like a full disk, not the end
/// of the program.
int RunConsoleProgram(int argc, char** argv, const std::function<int(int, char**)>& work);

/// Whether somebody reads it on a terminal.
bool IsOutputTerminal();
bool IsErrorTerminal();

/// The name of a program's file, with the ending that this system gives it.
std::string ProgramFileName(std::string name);

struct HandedOver {
  /// The other program's exit status; nothing where it could not be started.
  std::optional<int> Status;
  /// Why not; empty where the system does not tell.
  std::string Reason;
};

/// Lets the program with this file name, in the same folder, do the work of this one's command
/// line. Comes back at all only where the system cannot put it in this one's place, or it could not
/// be started.
HandedOver HandOverTo(const std::string& fileName, char** argv);

}  // namespace trelonit

#include "apps/cli/ConsoleSession.h"

#include <algorithm>

#include "platform/files/Paths.h"
#include "platform/system/Process.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/TerminalText.h"

namespace trelonit::cli {

namespace {

/// What a file dialog would give: the full path. The rules for its names do not see the short ones
/// of a command line.
std::string FullPath(const std::string& name) {
  const std::optional<std::filesystem::path> full = AbsolutePath(name);
  return full ? Utf8OfPath(*full) : name;
}

}  // namespace

ConsoleSession::ConsoleSession(MessageAnswer toQuestions, Program::Windows windows)
    : messages_(std::cerr, toQuestions, IsErrorTerminal()),
      program_({messages_, dialogs_, clipboard_, settings_, registry_, automation_, shell_, clock_,
                resources_, files_, SystemNumberLocale(), FindProgramFolder()},
               std::move(windows)) {}

bool ConsoleSession::Start() {
  Main().Form_Load();
  return Messages().empty();
}

bool ConsoleSession::MetRuntimeError() const {
  return TellFailure(Messages());
}

bool ConsoleSession::OpenProject(const std::string& name) {
  return Main().OpenProject(FullPath(name));
}

bool ConsoleSession::SaveProject(const std::string& name) {
  return Main().SaveProject(FullPath(name));
}

Status Print(const std::string& text) {
  std::cout << (IsOutputTerminal() ? TerminalText(text) : text) << std::flush;
  if (!std::cout) {
    std::cerr << "trelonit-cli: не удалось записать результат в стандартный вывод\n";
    return Status::Failed;
  }
  return Status::Done;
}

void Tell(const std::string& line) {
  std::cerr << (IsErrorTerminal() ? TerminalText(line) : line) << '\n';
}

}  // namespace trelonit::cli

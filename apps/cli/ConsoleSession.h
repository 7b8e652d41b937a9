#pragma once

#include <iostream>
#include <string>

#include "apps/Program.h"
#include "platform/console/ConsoleServices.h"
#include "resources/EmbeddedResources.h"

namespace trelonit::cli {

/// Exit status of the program.
enum class Status : int { Done = 0, Failed = 1, WrongUsage = 2, Danger = 3 };

/// The program with console services: messages on standard error, no dialogs.
class ConsoleSession {
 public:
  explicit ConsoleSession(MessageAnswer toQuestions = MessageAnswer::No,
                          Program::Windows windows = {});
  ConsoleSession(const ConsoleSession&) = delete;
  ConsoleSession& operator=(const ConsoleSession&) = delete;
  ~ConsoleSession() = default;

  /// Starts the program: catalogue and defaults. Returns whether all of it is there.
  bool Start();

  frmMain& Main() { return program_.Main(); }
  const Program& TheProgram() const { return program_; }
  const std::vector<Message>& Messages() const { return messages_.Shown(); }

  /// Whether some routine has ended in its failure tail.
  bool MetRuntimeError() const;

  /// A name of the command line in full, for the messages tell it.
  bool OpenProject(const std::string& name);
  bool SaveProject(const std::string& name);

 private:
  ConsoleMessages messages_;
  NoDialogs dialogs_;
  MemoryClipboard clipboard_;
  MemorySettings settings_;
  NoRegistry registry_;
  NoAutomation automation_;
  ConsoleShell shell_;
  SystemClock clock_;
  EmbeddedResources resources_;
  DiskFiles files_;
  Program program_;
};

/// Writes to standard output and makes sure that it arrived. What comes from files gives a terminal
/// no orders; files and pipes get the bytes as they are.
Status Print(const std::string& text);

/// Writes a line to standard error, to a terminal in the same way.
void Tell(const std::string& line);

}  // namespace trelonit::cli

#pragma once

#include <QStringList>
#include <memory>
#include <optional>
#include <string>

#include "editor/associations/FileAssociations.h"
#include "platform/system/Services.h"

namespace trelonit {

// What the machine has of its own round the program: MachineOfWindows.cpp or MachineOfDesktop.cpp.

class Machine {
 public:
  virtual ~Machine() = default;
  virtual RegistryService& Registry() = 0;
  /// The programs that can be automated.
  virtual AutomationService& Programs() = 0;
};

/// What the toolkit has to know before the application object is made.
void PrepareToolkit();

/// The machine with this office, which outlives it.
std::unique_ptr<Machine> MakeMachine(AutomationService& office);

/// How the machine keeps which program opens a file. The services outlive it.
std::unique_ptr<FileAssociations> MakeAssociations(const Services& services);

/// The file to open, empty for none; nothing where the arguments that the toolkit has left are no
/// such command line.
std::optional<std::string> HandedFile(const QStringList& arguments);

}  // namespace trelonit

#pragma once

#include <string>

#include "platform/system/Services.h"

namespace trelonit {

/// The names and places of this machine: the base of every shell. A machine that is no Windows has
/// the names only.
class SystemShell : public ShellService {
 public:
  std::string ComputerName() override;
  std::string UserName() override;
  std::string ProgramPath() override;
  std::string SystemFolder() override;
  std::string SendToFolder() override;
  void RemoveShortcut(const std::string& path) override;
};

}  // namespace trelonit

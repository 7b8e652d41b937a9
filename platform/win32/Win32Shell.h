#pragma once

#include <filesystem>
#include <string>

#include "platform/system/Services.h"

namespace trelonit {

/// The names and places of a Windows machine: the base of every shell there.
class Win32Shell : public ShellService {
 public:
  std::string ComputerName() override;
  std::string UserName() override;
  std::string ProgramPath() override;
  std::string SystemFolder() override;
  std::string SendToFolder() override;
  void RemoveShortcut(const std::string& path) override;
};

/// The file of the running program; empty where the system does not tell.
std::filesystem::path ExecutablePath();

}  // namespace trelonit

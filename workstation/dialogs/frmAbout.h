#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/forms/Controls.h"
#include "platform/system/Services.h"

namespace trelonit {

/// The window on the program, with a button for the system's information tool.
class frmAbout {
 public:
  explicit frmAbout(Services services) : services_(std::move(services)) {}

  void Form_Load();
  void cmdOK_Click();
  void cmdSysInfo_Click();

  Label Form;
  Label lblVersion;
  Label lblTitle;
  Label lblDescription;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  std::optional<std::string> FindSystemInformationTool();

  Services services_;
};

/// A registry value as text: a string without its trailing character 0, a double word as "&h" and
/// its hexadecimal digits. Nothing where the key or the value is missing or longer than 1024
/// characters.
std::optional<std::string> ReadRegistryText(RegistryService& registry, RegistryRoot root,
                                            const std::string& key, const std::string& name);

}  // namespace trelonit

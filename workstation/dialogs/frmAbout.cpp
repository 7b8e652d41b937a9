#include "workstation/dialogs/frmAbout.h"

#include <array>
#include <charconv>
#include <variant>

#include "platform/errors/Guard.h"
#include "platform/system/ProgramNames.h"
#include "platform/text/Text.h"
#include "workstation/design/modUtility.h"

namespace trelonit {

namespace {

constexpr std::size_t registryBuffer = 1024;
constexpr Integer aboutResource = 101;

std::string Hexadecimal(std::uint32_t value) {
  std::array<char, 8> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value, 16);
  std::string text(digits.data(), written.ptr);
  for (char& digit : text) {
    if (digit >= 'a') {
      digit = static_cast<char>(digit - 'a' + 'A');
    }
  }
  return text;
}

}  // namespace

std::optional<std::string> ReadRegistryText(RegistryService& registry, RegistryRoot root,
                                            const std::string& key, const std::string& name) {
  const std::unique_ptr<RegistryKey> open = registry.Open(root, key);
  if (!open) {
    return std::nullopt;
  }
  const std::optional<RegistryValue> value = open->Query(name);
  if (!value) {
    return std::nullopt;
  }
  if (const auto* number = std::get_if<std::uint32_t>(&*value)) {
    return "&h" + Hexadecimal(*number);
  }
  std::string text = std::get<std::string>(*value);
  if (Characters(text).size() > registryBuffer) {
    return std::nullopt;
  }
  if (!text.empty() && text.back() == '\0') {
    text.pop_back();
  }
  return text;
}

void frmAbout::Form_Load() {
  Form.SetCaption(std::string("About ") + applicationTitle);
  lblTitle.SetCaption(applicationTitle);
  lblVersion.SetCaption(std::string("Версия ") + applicationVersion);
  PassOver([&] { lblDescription.SetCaption(services_.Resources.String(aboutResource)); });
}

void frmAbout::cmdOK_Click() {
  if (Unload) {
    Unload();
  }
}

std::optional<std::string> frmAbout::FindSystemInformationTool() {
  if (auto path = ReadRegistryText(services_.Registry, RegistryRoot::LocalMachine,
                                   "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH")) {
    return path;
  }
  if (auto folder = ReadRegistryText(services_.Registry, RegistryRoot::LocalMachine,
                                     "SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO")) {
    const std::string path = *folder + "\\MSINFO32.EXE";
    if (IsThisFileExists(path, services_)) {
      return path;
    }
  }
  return std::nullopt;
}

void frmAbout::cmdSysInfo_Click() {
  const auto path = FindSystemInformationTool();
  if (!path || !PassOver([&] { services_.Shell.StartProgram(*path); })) {
    services_.Messages.Show({.Text = "System Information Is Unavailable At This Time"});
  }
}

}  // namespace trelonit

#include <QApplication>

#include "apps/trelonit/Machine.h"
#include "editor/associations/ModAss.h"
#include "platform/win32/ComAutomation.h"
#include "platform/win32/CommandLine.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

namespace {

class WindowsMachine : public Machine {
 public:
  explicit WindowsMachine(AutomationService& office) : programs_(&office) {}
  RegistryService& Registry() override { return registry_; }
  AutomationService& Programs() override { return programs_; }

 private:
  Win32Registry registry_;
  // The machine's own programs come first.
  ComAutomation programs_;
};

/// The choice of Windows 10 and 11, which a theme of high contrast goes before.
bool UserWantsDarkPrograms() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  if (SystemParametersInfoW(SPI_GETHIGHCONTRAST, 0, &contrast, 0) &&
      (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0) {
    return false;
  }
  const std::unique_ptr<RegistryKey> key =
      Win32Registry().Open(RegistryRoot::CurrentUser,
                           "Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize");
  const std::optional<RegistryValue> light = key ? key->Query("AppsUseLightTheme") : std::nullopt;
  return light == RegistryValue(std::uint32_t{0});
}

}  // namespace

void PrepareToolkit() {
  // The system's own style has no dark colours in this toolkit: where the user has chosen them, the
  // toolkit's style takes them. Else the frames of the windows stay as light as what is in them.
  const bool dark = UserWantsDarkPrograms();
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", dark ? "windows:darkmode=2" : "windows:darkmode=0");
  }
  if (dark && !qEnvironmentVariableIsSet("QT_STYLE_OVERRIDE")) {
    QApplication::setStyle(QStringLiteral("Fusion"));
  }
}

std::unique_ptr<Machine> MakeMachine(AutomationService& office) {
  return std::make_unique<WindowsMachine>(office);
}

std::unique_ptr<FileAssociations> MakeAssociations(const Services& services) {
  return std::make_unique<RegistryAssociations>(services);
}

std::optional<std::string> HandedFile(const QStringList& arguments) {
  // The registry's command hands a name over without quotes, so that its blanks, which may be more
  // than one in a row, seem to part arguments: the line itself is the name. Where the toolkit has
  // taken options out of it, what it left is all that is known.
  const bool whole = arguments.size() == static_cast<qsizetype>(OwnArguments().size());
  return whole ? OwnCommandLine() : arguments.mid(1).join(QLatin1Char(' ')).toStdString();
}

}  // namespace trelonit

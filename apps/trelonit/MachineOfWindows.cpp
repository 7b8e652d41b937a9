#include "apps/trelonit/Machine.h"
#include "editor/associations/ModAss.h"
#include "platform/win32/ComAutomation.h"
#include "platform/win32/Win32Registry.h"

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

}  // namespace

std::unique_ptr<Machine> MakeMachine(AutomationService& office) {
  return std::make_unique<WindowsMachine>(office);
}

std::unique_ptr<FileAssociations> MakeAssociations(const Services& services) {
  return std::make_unique<RegistryAssociations>(services);
}

std::optional<std::string> HandedFile(const QStringList& arguments) {
  // The registry's command hands a name over without quotes: blanks in it have made several
  // arguments of one name.
  return arguments.mid(1).join(QLatin1Char(' ')).toStdString();
}

}  // namespace trelonit

#include "apps/trelonit/Machine.h"
#include "editor/associations/MimeAssociations.h"
#include "platform/console/ConsoleServices.h"
#include "platform/posix/UnfinishedFile.h"
#include "windows/services/MimeDefaults.h"

namespace trelonit {

namespace {

class DesktopMachine : public Machine {
 public:
  explicit DesktopMachine(AutomationService& office) : office_(office) {
    TakeUnfinishedFileAlongWhenInterrupted();
  }
  RegistryService& Registry() override { return registry_; }
  AutomationService& Programs() override { return office_; }

 private:
  NoRegistry registry_;
  AutomationService& office_;
};

/// The associations with the store that they are kept in, which has to be there before them.
class DesktopAssociations : private MimeDefaults, public MimeAssociations {
 public:
  explicit DesktopAssociations(const Services& services)
      : MimeDefaults(services.Files, services.Settings),
        MimeAssociations(static_cast<MimeDefaultService&>(*this)) {}
};

}  // namespace

void PrepareToolkit() {}

std::unique_ptr<Machine> MakeMachine(AutomationService& office) {
  return std::make_unique<DesktopMachine>(office);
}

std::unique_ptr<FileAssociations> MakeAssociations(const Services& services) {
  return std::make_unique<DesktopAssociations>(services);
}

std::optional<std::string> HandedFile(const QStringList& arguments) {
  if (arguments.size() > 2 || arguments.value(1).startsWith(QLatin1Char('-'))) {
    return std::nullopt;
  }
  return arguments.value(1).toStdString();
}

}  // namespace trelonit

#include "workstation/design/FileNames.h"

#include "platform/files/OverwriteQuestion.h"
#include "platform/text/Text.h"
#include "workstation/design/modUtility.h"

namespace trelonit {

namespace {

constexpr std::size_t shortestName = 4;

FileDialogRequest Request(const std::string& title, const std::string& extension,
                          const std::string& description) {
  const std::string pattern = "*." + extension;
  return {.Title = title,
          .Extension = extension,
          .Filter = description + " (" + pattern + ")|" + pattern};
}

}  // namespace

bool MayReplace(const std::string& name, const Services& services) {
  return !IsThisFileExists(name, services) || MayOverwrite(services.Messages);
}

std::string ShowSaveDialog(const std::string& title, const std::string& extension,
                           const std::string& description, const Services& services) {
  const FileDialogRequest request = Request(title, extension, description);
  std::string name = services.Dialogs.AskSaveName(request);
  if (Characters(name).size() < shortestName) {
    return {};
  }
  // The length counts for the first name only. A cancelled dialog leaves no name, which ends this.
  while (!MayReplace(name, services)) {
    name = services.Dialogs.AskSaveName(request);
  }
  return name;
}

std::string ShowOpenDialog(const std::string& title, const std::string& extension,
                           const std::string& description, const Services& services) {
  std::string name = services.Dialogs.AskOpenName(Request(title, extension, description));
  if (Characters(name).size() < shortestName || !IsThisFileExists(name, services)) {
    return {};
  }
  return name;
}

}  // namespace trelonit

#include "windows/help/HelpFile.h"

#include <system_error>

#include "platform/errors/Guard.h"
#include "platform/files/FileBytes.h"
#include "platform/files/Paths.h"

namespace trelonit {

namespace fs = std::filesystem;

fs::path InstalledHelpFile(const fs::path& executableFolder) {
  if (executableFolder.empty()) {
    return {};
  }
  std::error_code code;
  for (const fs::path& folder :
       {executableFolder, executableFolder.parent_path() / "share" / "trelonit"}) {
    const fs::path file = folder / helpFileName;
    if (fs::is_regular_file(file, code)) {
      return file;
    }
  }
  return {};
}

void PlaceHelpFile(const fs::path& installed, const std::string& programFolder) {
  const fs::path target = PathOfUtf8(programFolder) / helpFileName;
  std::error_code code;
  if (installed.empty() || fs::equivalent(installed, target, code)) {
    return;
  }
  const auto size = fs::file_size(installed, code);
  if (code) {
    return;
  }
  std::error_code missing;
  if (fs::file_size(target, missing) == size && !missing &&
      fs::last_write_time(target, missing) >= fs::last_write_time(installed, code)) {
    return;
  }
  PassOver([&] {
    DiskFiles files;
    CopyBytes(files, Utf8OfPath(installed), Utf8OfPath(target));
  });
}

}  // namespace trelonit

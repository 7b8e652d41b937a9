#include "platform/system/ProgramFolder.h"

#include "platform/files/DiskAccess.h"
#include "platform/files/Paths.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

/// By the licence that an installation puts beside the programs; see packaging/CMakeLists.txt.
bool IsInstalled(const fs::path& programs) {
  std::error_code code;
  return fs::exists(programs.parent_path() / "share" / "doc" / "trelonit" / "copyright", code);
}

}  // namespace

fs::path ExecutableFolder() {
  return ExecutablePath().parent_path();
}

std::string FindProgramFolder() {
  const fs::path own = ExecutableFolder();
  std::error_code code;
  const bool holdsCatalogue =
      fs::exists(own / "GOST profile.dat", code) && fs::exists(own / "Index.ind", code);
  if (!own.empty() && (holdsCatalogue || (!IsInstalled(own) && IsWritableFolder(own)))) {
    return Utf8OfPath(own);
  }
  const fs::path user = UserDataFolder();
  // Where this fails, unpacking the catalogue tells the user.
  fs::create_directories(user, code);
  return Utf8OfPath(user);
}

}  // namespace trelonit

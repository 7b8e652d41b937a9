#include "platform/system/ProgramFolder.h"

#include "platform/files/DiskAccess.h"
#include "platform/files/Paths.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

/// By the licence that an installation puts beside the programs; see packaging/CMakeLists.txt.
bool IsInstalled(const fs::path& programs) {
  std::error_code code;
  const fs::file_status licence =
      fs::status(programs.parent_path() / "share" / "doc" / "trelonit" / "copyright", code);
  // Documents that may not be read are not missing: nobody keeps them like that beside a build.
  return licence.type() != fs::file_type::not_found;
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

#include "platform/files/Paths.h"

namespace trelonit {

std::filesystem::path LongName(const std::filesystem::path& path) {
  return path;
}

}  // namespace trelonit

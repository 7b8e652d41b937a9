#include "platform/files/Paths.h"

#include <system_error>

namespace trelonit {

namespace fs = std::filesystem;

fs::path PathOfUtf8(std::string_view name) {
  return {std::u8string(name.begin(), name.end())};
}

std::string Utf8OfPath(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::optional<fs::path> AbsolutePath(std::string_view name) {
  std::error_code code;
  fs::path whole = fs::absolute(PathOfUtf8(name), code);
  return code ? std::nullopt : std::optional(std::move(whole));
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (path.empty() || (path.back() != '/' && path.back() != '\\')) {
    path.push_back('/');
  }
  path.append(name);
  return path;
}

std::string FolderOf(std::string_view path) {
  return Utf8OfPath(PathOfUtf8(path).parent_path());
}

}  // namespace trelonit

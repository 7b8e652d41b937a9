#include "platform/posix/FileAttributes.h"

#include <optional>
#include <string>
#include <string_view>

#ifdef __linux__
#include <linux/limits.h>
#include <sys/xattr.h>
#endif

namespace trelonit {

#ifdef __linux__

namespace {

constexpr const char* accessList = "system.posix_acl_access";
constexpr std::string_view usersOwn = "user.";

/// The names, each with its end; empty for a file system without any.
std::string NamesOf(const std::filesystem::path& path) {
  std::string names(XATTR_LIST_MAX, '\0');
  const ssize_t read = ::listxattr(path.c_str(), names.data(), names.size());
  names.resize(read > 0 ? static_cast<std::size_t>(read) : 0);
  return names;
}

std::optional<std::string> ValueOf(const std::filesystem::path& path, const char* name) {
  std::string value(XATTR_SIZE_MAX, '\0');
  const ssize_t read = ::getxattr(path.c_str(), name, value.data(), value.size());
  if (read < 0) {
    return std::nullopt;
  }
  value.resize(static_cast<std::size_t>(read));
  return value;
}

bool Give(const Descriptor& file, const char* name, const std::string& value) {
  return ::fsetxattr(file.Number(), name, value.data(), value.size(), 0) == 0;
}

}  // namespace

bool GiveAttributesOf(const std::filesystem::path& before, const Descriptor& file) {
  const std::string names = NamesOf(before);
  for (std::size_t place = 0; place < names.size(); place = names.find('\0', place) + 1) {
    const char* name = names.c_str() + place;
    if (std::string_view(name).substr(0, usersOwn.size()) == usersOwn) {
      if (const std::optional<std::string> value = ValueOf(before, name)) {
        // A remark of the user's: the content matters more.
        static_cast<void>(Give(file, name, *value));
      }
    }
  }
  if (const std::optional<std::string> rights = ValueOf(before, accessList)) {
    return Give(file, accessList, *rights);
  }
  // The folder may give its new files a list of its own.
  static_cast<void>(::fremovexattr(file.Number(), accessList));
  return true;
}

#else

bool GiveAttributesOf(const std::filesystem::path& /*before*/, const Descriptor& /*file*/) {
  return true;
}

#endif

}  // namespace trelonit

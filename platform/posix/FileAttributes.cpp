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

/// What a call reads into this room; nothing where it fails.
template <class Call>
std::optional<std::string> ReadInto(std::size_t room, Call call) {
  std::string bytes(room, '\0');
  const ssize_t read = call(bytes.data(), bytes.size());
  if (read < 0) {
    return std::nullopt;
  }
  bytes.resize(static_cast<std::size_t>(read));
  return bytes;
}

/// The names, each with its end; empty for a file system without any.
std::string NamesOf(const std::filesystem::path& path) {
  const auto list = [&path](char* bytes, std::size_t room) {
    return ::listxattr(path.c_str(), bytes, room);
  };
  return ReadInto(XATTR_LIST_MAX, list).value_or(std::string());
}

std::optional<std::string> ValueOf(const std::filesystem::path& path, const char* name) {
  return ReadInto(XATTR_SIZE_MAX, [&path, name](char* bytes, std::size_t room) {
    return ::getxattr(path.c_str(), name, bytes, room);
  });
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

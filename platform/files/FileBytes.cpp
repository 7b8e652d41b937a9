#include "platform/files/FileBytes.h"

#include <istream>
#include <memory>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

std::string ReadBytes(FileService& files, const std::string& path) {
  const std::uint64_t length = files.FileLength(path);
  const std::unique_ptr<std::istream> file = files.OpenForReading(path);
  std::string bytes(static_cast<std::size_t>(length), '\0');
  file->read(bytes.data(), static_cast<std::streamsize>(length));
  if (file->bad()) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  // The file may have become shorter in between.
  bytes.resize(static_cast<std::size_t>(file->gcount()));
  return bytes;
}

std::string ReadBytesIfThere(FileService& files, const std::string& path) {
  return files.FileExists(path) ? ReadBytes(files, path) : std::string();
}

void CopyBytes(FileService& files, const std::string& from, const std::string& to) {
  files.ReplaceFile(to, ReadBytes(files, from));
}

}  // namespace trelonit

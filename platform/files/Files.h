#pragma once

#include <cstdint>
#include <istream>
#include <memory>
#include <string>
#include <string_view>

// Where the header of Windows stands before this one, a macro would rename a member.
#undef ReplaceFile

namespace trelonit {

/// A file that is open for writing in place. Both members raise as the service does.
class FileUpdate {
 public:
  virtual ~FileUpdate() = default;
  /// Writes these bytes from this place on, counted from 0, and touches no other byte. A copy of
  /// the old content is kept until it is done; on a failure the old bytes are put back, and where
  /// that fails too, the error tells where the copy is.
  virtual void WriteAt(std::uint64_t place, std::string_view bytes) = 0;
};

/// A file that grows beside its target until it is whole and takes its place. One that is not
/// finished goes with this object, and the target stays as it was. Members raise as the service
/// does.
class GrowingFile {
 public:
  virtual ~GrowingFile() = default;
  virtual void Append(std::string_view bytes) = 0;
  virtual void Finish() = 0;
};

/// The file system as the logic sees it. Paths are UTF-8. All members raise RuntimeError: 52 for an
/// empty name, 53 or 76 where there is no such file or folder, 70 or 75 where access is refused, 61
/// on a full disk, 57 for what else the device says.
class FileService {
 public:
  virtual ~FileService() = default;

  /// True also where the device does not answer: such a file must not be taken for a new one.
  virtual bool FileExists(const std::string& path) = 0;

  /// A stream at the beginning of the file, for reading bytes. It never waits for a pipe that
  /// nobody writes into: that raises 75, as a device does.
  virtual std::unique_ptr<std::istream> OpenForReading(const std::string& path) = 0;

  /// Bytes in the file.
  virtual std::uint64_t FileLength(const std::string& path) = 0;

  /// Puts these bytes in the place of the file: written beside it, flushed, renamed over it. A file
  /// that cannot be replaced, or has other names, is written where it stands, with a copy of its
  /// old content kept meanwhile. On a failure the file that was there before stays whole; where its
  /// old content cannot be put back, the error tells where the copy is.
  virtual void ReplaceFile(const std::string& path, std::string_view bytes) = 0;

  /// A file that is there, for writing in place.
  virtual std::unique_ptr<FileUpdate> OpenForUpdate(const std::string& path) = 0;
};

/// The real file system.
class DiskFiles : public FileService {
 public:
  bool FileExists(const std::string& path) override;
  std::unique_ptr<std::istream> OpenForReading(const std::string& path) override;
  std::uint64_t FileLength(const std::string& path) override;
  void ReplaceFile(const std::string& path, std::string_view bytes) override;
  std::unique_ptr<FileUpdate> OpenForUpdate(const std::string& path) override;

  /// For what is too long to be held: where no file can be made beside the target, it raises 70.
  std::unique_ptr<GrowingFile> BeginFile(const std::string& path);
};

}  // namespace trelonit

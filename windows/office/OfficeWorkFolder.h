#pragma once

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>
#include <memory>
#include <string>

namespace trelonit {

/// A folder of one conversion, for this user alone; gone with this object. A lock in it tells that
/// its process lives. An empty place stands for the system's one for such folders.
class OfficeWorkFolder {
 public:
  /// Raises 75 where no folder can be made.
  explicit OfficeWorkFolder(const std::string& place);
  OfficeWorkFolder(const OfficeWorkFolder&) = delete;
  OfficeWorkFolder& operator=(const OfficeWorkFolder&) = delete;
  ~OfficeWorkFolder();

  QString Path(const QString& name) const { return folder_.filePath(name); }

 private:
  QTemporaryDir folder_;
  std::unique_ptr<QLockFile> lock_;
};

/// Removes the folders that killed conversions of this user have left in the place.
void RemoveLeftWorkFolders(const std::string& place = {});

}  // namespace trelonit

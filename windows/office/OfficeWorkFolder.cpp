#include "windows/office/OfficeWorkFolder.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QThread>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

namespace {

constexpr QLatin1String prefix("trelonit-office-");
constexpr QLatin1String lockName("lock");
constexpr unsigned long removalInterval = 50;  // milliseconds
constexpr int removalAttempts = 20;
/// A folder without a lock in it may be one that is just being made.
constexpr qint64 timeToLock = 600;  // seconds

QDir FolderOf(const std::string& place) {
  return QDir(place.empty() ? QDir::tempPath() : QString::fromStdString(place));
}

std::unique_ptr<QLockFile> LockIn(const QString& folder) {
  auto lock = std::make_unique<QLockFile>(folder + QLatin1Char('/') + lockName);
  // A conversion may take as long as it likes: only the end of its process frees the folder.
  lock->setStaleLockTime(0);
  return lock;
}

bool IsAbandoned(const QFileInfo& folder) {
  const QString path = folder.absoluteFilePath();
  if (!QFileInfo::exists(path + QLatin1Char('/') + lockName)) {
    return folder.lastModified().secsTo(QDateTime::currentDateTime()) > timeToLock;
  }
  const std::unique_ptr<QLockFile> lock = LockIn(path);
  return lock->tryLock(0);
}

}  // namespace

OfficeWorkFolder::OfficeWorkFolder(const std::string& place)
    : folder_(FolderOf(place).absoluteFilePath(prefix + QStringLiteral("XXXXXX"))) {
  if (!folder_.isValid()) {
    throw RuntimeError(ErrorNumber::PathFileAccess);
  }
  folder_.setAutoRemove(false);
  lock_ = LockIn(folder_.path());
  lock_->tryLock(0);
}

OfficeWorkFolder::~OfficeWorkFolder() {
  lock_->unlock();
  // Who was just killed may still make a last file.
  for (int attempt = 0; attempt < removalAttempts && !folder_.remove(); ++attempt) {
    QThread::msleep(removalInterval);
  }
}

void RemoveLeftWorkFolders(const std::string& place) {
  const uint user = QFileInfo(QDir::homePath()).ownerId();
  QDirIterator folders(FolderOf(place).absolutePath(), {prefix + QLatin1Char('*')},
                       QDir::Dirs | QDir::NoSymLinks);
  while (folders.hasNext()) {
    folders.next();
    const QFileInfo folder = folders.fileInfo();
    if (folder.ownerId() == user && IsAbandoned(folder)) {
      QDir(folder.absoluteFilePath()).removeRecursively();
    }
  }
}

}  // namespace trelonit

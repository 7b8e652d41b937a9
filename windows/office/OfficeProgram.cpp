#include "windows/office/OfficeProgram.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

#include "windows/office/OfficeHost.h"

namespace trelonit {

namespace {

/// A folder that PATH names relatively is passed over: what stands in the working folder is not
/// started.
QStringList FoldersOfPath() {
  QStringList folders;
  for (const QString& folder :
       qEnvironmentVariable("PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts)) {
    if (QDir::isAbsolutePath(folder)) {
      folders += folder;
    }
  }
  return folders;
}

}  // namespace

std::string FindOfficeProgram() {
  // An empty list would be searched as PATH itself, with its relative folders.
  const QStringList folders = FoldersOfPath() + UsualOfficeFolders();
  return QStandardPaths::findExecutable(QStringLiteral("soffice"), folders).toStdString();
}

}  // namespace trelonit

#include "windows/office/OfficeProgram.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

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

QStringList UsualFolders() {
#ifdef Q_OS_WIN
  return {qEnvironmentVariable("ProgramFiles") + QStringLiteral("/LibreOffice/program"),
          qEnvironmentVariable("ProgramFiles(x86)") + QStringLiteral("/LibreOffice/program")};
#else
  QStringList folders{QStringLiteral("/usr/local/bin"), QStringLiteral("/usr/bin"),
                      QStringLiteral("/usr/lib/libreoffice/program"),
                      QStringLiteral("/usr/lib64/libreoffice/program"),
                      QStringLiteral("/Applications/LibreOffice.app/Contents/MacOS")};
  // The makers' own packages: one folder a version, the newest of them first.
  const QDir versions(QStringLiteral("/opt"));
  for (const QString& name : versions.entryList({QStringLiteral("libreoffice*")}, QDir::Dirs,
                                                QDir::Name | QDir::Reversed)) {
    folders += versions.filePath(name) + QStringLiteral("/program");
  }
  return folders;
#endif
}

}  // namespace

std::string FindOfficeProgram() {
  // An empty list would be searched as PATH itself, with its relative folders.
  const QStringList folders = FoldersOfPath() + UsualFolders();
  return QStandardPaths::findExecutable(QStringLiteral("soffice"), folders).toStdString();
}

}  // namespace trelonit

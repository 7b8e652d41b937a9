#include <QDir>
#include <QProcess>
#include <csignal>
#include <unistd.h>

#include "windows/office/OfficeHost.h"

namespace trelonit {

QStringList UsualOfficeFolders() {
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
}

QProcessEnvironment CleanEnvironment(const QString& folder) {
  QProcessEnvironment environment;
  environment.insert(QStringLiteral("PATH"),
                     qEnvironmentVariable("PATH", QStringLiteral("/usr/local/bin:/usr/bin:/bin")));
  environment.insert(QStringLiteral("HOME"), folder);
  environment.insert(QStringLiteral("TMPDIR"), folder);
  environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  // It shall not even look for a display.
  environment.insert(QStringLiteral("SAL_USE_VCLPLUGIN"), QStringLiteral("svp"));
  return environment;
}

void LeadItsTree(QProcess& process) {
  // The whole group is killed by the leader's number.
  process.setChildProcessModifier([] { ::setsid(); });
}

void KillTree(qint64 leader) {
  ::kill(static_cast<pid_t>(-leader), SIGKILL);
}

}  // namespace trelonit

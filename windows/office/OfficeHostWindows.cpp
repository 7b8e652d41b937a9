#include <QProcess>

#include "windows/office/OfficeHost.h"

namespace trelonit {

QStringList UsualOfficeFolders() {
  return {qEnvironmentVariable("ProgramFiles") + QStringLiteral("/LibreOffice/program"),
          qEnvironmentVariable("ProgramFiles(x86)") + QStringLiteral("/LibreOffice/program")};
}

QProcessEnvironment CleanEnvironment(const QString& folder) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("TEMP"), folder);
  environment.insert(QStringLiteral("TMP"), folder);
  return environment;
}

void LeadItsTree(QProcess& /*process*/) {}

void KillTree(qint64 leader) {
  QProcess::execute(QStringLiteral("taskkill"), {QStringLiteral("/T"), QStringLiteral("/F"),
                                                 QStringLiteral("/PID"), QString::number(leader)});
}

}  // namespace trelonit

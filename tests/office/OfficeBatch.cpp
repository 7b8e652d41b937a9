#include "tests/office/OfficeBatch.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "windows/office/OfficeProgram.h"

namespace trelonit::test {

namespace {

constexpr int longestRun = 100000;  // milliseconds

QString NameOf(std::size_t number, const std::string& extension) {
  return QString::number(number) + QLatin1Char('.') + QString::fromStdString(extension);
}

std::string Content(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

}  // namespace

std::vector<std::string> ConvertAll(const std::vector<std::string>& sources,
                                    const std::string& fromExtension,
                                    const std::string& toExtension, const std::string& filter) {
  const std::string program = FindOfficeProgram();
  if (program.empty()) {
    ADD_FAILURE() << "LibreOffice is missing";
    return {};
  }
  const QTemporaryDir folder;
  QStringList arguments{
      QStringLiteral("-env:UserInstallation=file://") + folder.filePath(QStringLiteral("profile")),
      QStringLiteral("--headless"),
      QStringLiteral("--norestore"),
      QStringLiteral("--nologo"),
      QStringLiteral("--convert-to"),
      QString::fromStdString(toExtension + ":" + filter),
      QStringLiteral("--outdir"),
      folder.filePath(QStringLiteral("out"))};
  for (std::size_t number = 0; number < sources.size(); ++number) {
    QFile file(folder.filePath(NameOf(number, fromExtension)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(sources[number]));
    arguments += file.fileName();
  }
  QProcess office;
  // Lengths come in the units of the user's country.
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  office.setProcessEnvironment(environment);
  office.setStandardOutputFile(QProcess::nullDevice());
  office.setStandardErrorFile(QProcess::nullDevice());
  office.start(QString::fromStdString(program), arguments);
  EXPECT_TRUE(office.waitForFinished(longestRun)) << "LibreOffice does not end";
  EXPECT_EQ(office.exitCode(), 0);
  std::vector<std::string> results;
  for (std::size_t number = 0; number < sources.size(); ++number) {
    results.push_back(
        Content(folder.filePath(QStringLiteral("out/") + NameOf(number, toExtension))));
    EXPECT_FALSE(results.back().empty()) << "no result for document " << number;
  }
  return results;
}

}  // namespace trelonit::test

#include "windows/office/OfficeConversion.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QUrl>

#include "platform/files/FileBytes.h"
#include "windows/office/OfficeHost.h"
#include "windows/office/OfficeProfile.h"
#include "windows/office/OfficeWorkFolder.h"

namespace trelonit {

namespace {

constexpr int watchInterval = 50;  // milliseconds
constexpr int timeToDie = 5000;    // milliseconds

constexpr QLatin1String profileName("profile");

/// A name of ours: the user's might be taken for an option.
QString DocumentName(OfficeFormat format) {
  return format == OfficeFormat::Word ? QStringLiteral("document.doc")
                                      : QStringLiteral("document.rtf");
}

/// The extension and the name by which the program knows the writer of the format.
QString TargetOf(OfficeFormat format) {
  return format == OfficeFormat::Word ? QStringLiteral("doc:MS Word 97")
                                      : QStringLiteral("rtf:Rich Text Format");
}

/// The names by which the program knows the readers of the format, in the order to try them. Left
/// to find a reader itself it would take a damaged document for a plain text.
QStringList ReadersOf(OfficeFormat format) {
  if (format == OfficeFormat::RichText) {
    return {QStringLiteral("Rich Text Format")};
  }
  return {QStringLiteral("MS Word 97"), QStringLiteral("MS Word 95"),
          QStringLiteral("MS WinWord 6.0")};
}

/// A converter and all that it starts; none of them outlives this object.
class ProcessTree {
 public:
  ProcessTree(const QString& program, const QStringList& arguments, const QString& folder);
  ProcessTree(const ProcessTree&) = delete;
  ProcessTree& operator=(const ProcessTree&) = delete;
  ~ProcessTree();

  /// Waits for the converter's end. Raises 57 for a bad end or none within the time.
  void Finish(std::chrono::milliseconds timeLimit, ConversionWatch* watch);

 private:
  QProcess process_;
  qint64 leader_ = 0;
};

ProcessTree::ProcessTree(const QString& program, const QStringList& arguments,
                         const QString& folder) {
  process_.setProgram(program);
  process_.setArguments(arguments);
  process_.setWorkingDirectory(folder);
  process_.setProcessEnvironment(CleanEnvironment(folder));
  process_.setStandardInputFile(QProcess::nullDevice());
  process_.setStandardOutputFile(QProcess::nullDevice());
  process_.setStandardErrorFile(QProcess::nullDevice());
  LeadItsTree(process_);
  process_.start();
  if (!process_.waitForStarted(-1)) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  leader_ = process_.processId();
}

ProcessTree::~ProcessTree() {
  // Also behind a converter that has ended: it may have left others at work in the folder.
  KillTree(leader_);
  process_.waitForFinished(timeToDie);
}

void ProcessTree::Finish(std::chrono::milliseconds timeLimit, ConversionWatch* watch) {
  QElapsedTimer time;
  time.start();
  while (process_.state() != QProcess::NotRunning && !process_.waitForFinished(watchInterval)) {
    if (watch != nullptr && watch->Cancelled()) {
      throw ConversionCancelled();
    }
    if (time.hasExpired(timeLimit.count())) {
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
  }
  if (process_.exitStatus() != QProcess::NormalExit || process_.exitCode() != 0) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
}

/// One run of the converter; empty where it gives no result.
std::string Convert(const ConversionSettings& settings, const OfficeWorkFolder& folder,
                    const QString& reader, OfficeFormat from, OfficeFormat to,
                    ConversionWatch* watch) {
  const QString target = folder.Path(QStringLiteral("converted"));
  ProcessTree converter(
      QString::fromStdString(settings.Program),
      {QStringLiteral("-env:UserInstallation=") +
           QUrl::fromLocalFile(folder.Path(profileName)).toString(QUrl::FullyEncoded),
       QStringLiteral("--headless"), QStringLiteral("--norestore"), QStringLiteral("--nologo"),
       QStringLiteral("--nodefault"), QStringLiteral("--nolockcheck"),
       QStringLiteral("--infilter=") + reader, QStringLiteral("--convert-to"), TargetOf(to),
       QStringLiteral("--outdir"), target, folder.Path(DocumentName(from))},
      folder.Path(QString()));
  converter.Finish(settings.TimeLimit, watch);
  DiskFiles files;
  return ReadBytesIfThere(files, (target + QLatin1Char('/') + DocumentName(to)).toStdString());
}

}  // namespace

std::string ConvertDocument(const ConversionSettings& settings, std::string_view bytes,
                            OfficeFormat from, OfficeFormat to) {
  const std::unique_ptr<ConversionWatch> watch =
      settings.Watch ? settings.Watch() : std::unique_ptr<ConversionWatch>();
  const OfficeWorkFolder folder(settings.TemporaryFolder);
  WriteOfficeProfile(folder.Path(profileName));
  DiskFiles().ReplaceFile(folder.Path(DocumentName(from)).toStdString(), bytes);
  // The program ends well even when it could not load the document: only its result tells.
  for (const QString& reader : ReadersOf(from)) {
    std::string result = Convert(settings, folder, reader, from, to, watch.get());
    if (!result.empty()) {
      return result;
    }
  }
  throw RuntimeError(ErrorNumber::DeviceIoError);
}

}  // namespace trelonit

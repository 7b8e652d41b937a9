#include "windows/services/DesktopServices.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <algorithm>

#include "editor/document/HtmlWriter.h"
#include "editor/rtf/RtfReader.h"
#include "editor/rtf/RtfWriter.h"
#include "platform/errors/RuntimeError.h"
#include "platform/system/ProgramNames.h"
#include "windows/binding/Binding.h"
#include "windows/binding/FileDialog.h"
#include "windows/editor/RichDocumentHtml.h"
#include "windows/help/HelpKey.h"
#include "windows/help/HelpWindow.h"
#include "windows/help/HtmlHelp.h"
#include "windows/services/RichTextForms.h"

namespace trelonit {

namespace {

QMessageBox::Icon IconOf(MessageStyle style) {
  switch (style) {
    case MessageStyle::Critical:
      return QMessageBox::Critical;
    case MessageStyle::QuestionYesNo:
    case MessageStyle::QuestionYesNoCancel:
      return QMessageBox::Question;
    case MessageStyle::Exclamation:
      return QMessageBox::Warning;
    case MessageStyle::Information:
      return QMessageBox::Information;
    case MessageStyle::Plain:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MessageStyle style) {
  if (style == MessageStyle::QuestionYesNo) {
    return QMessageBox::Yes | QMessageBox::No;
  }
  if (style == MessageStyle::QuestionYesNoCancel) {
    return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButton SafeButton(MessageStyle style) {
  if (style == MessageStyle::QuestionYesNo) {
    return QMessageBox::No;
  }
  return style == MessageStyle::QuestionYesNoCancel ? QMessageBox::Cancel : QMessageBox::Ok;
}

std::string RunDialog(const FileDialogRequest& request, FileDialog::AcceptMode mode) {
  // "description (*.ext)|*.ext": Qt takes the description with its pattern in brackets.
  const QString filter = ToQt(request.Filter).section(QLatin1Char('|'), 0, 0);
  FileDialog dialog(QApplication::activeWindow(), mode, ToQt(request.Title), ToQt(request.Folder),
                    filter);
  dialog.setDefaultSuffix(ToQt(request.Extension));
  dialog.setOption(FileDialog::DontConfirmOverwrite);
  return FileFromQt(dialog.Ask());
}

QString SettingName(const std::string& section, const std::string& key) {
  return ToQt(section) + QLatin1Char('/') + ToQt(key);
}

}  // namespace

MessageAnswer DesktopMessages::Show(const Message& message) {
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(message.Title.empty() ? QString::fromUtf8(applicationTitle)
                                           : ToQt(message.Title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(message.Text));
  box.setIcon(IconOf(message.Style));
  box.setStandardButtons(ButtonsOf(message.Style));
  // The lines of the texts are broken where they are meant to be.
  if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
    constexpr int widest = 900;
    const QRect lines =
        label->fontMetrics().boundingRect(QRect(0, 0, widest, widest), 0, box.text());
    label->setMinimumWidth(std::min(lines.width() + 2, widest));
  }
  SetHelpPlace(box, MessagePlace({box.windowTitle(), box.text()}));
  // Closing a question without an answer is the safe one.
  box.setEscapeButton(SafeButton(message.Style));
  switch (box.exec()) {
    case QMessageBox::Yes:
      return MessageAnswer::Yes;
    case QMessageBox::No:
      return MessageAnswer::No;
    case QMessageBox::Cancel:
      return MessageAnswer::Cancel;
    default:
      return MessageAnswer::Ok;
  }
}

std::string DesktopDialogs::AskSaveName(const FileDialogRequest& request) {
  return RunDialog(request, FileDialog::AcceptSave);
}

std::string DesktopDialogs::AskOpenName(const FileDialogRequest& request) {
  return RunDialog(request, FileDialog::AcceptOpen);
}

DesktopClipboard::DesktopClipboard() {
  QObject::connect(QApplication::clipboard(), &QClipboard::dataChanged, &changes_,
                   [this] { hasText_.reset(); });
}

bool DesktopClipboard::HasText() {
  if (!hasText_) {
    const QMimeData* content = QApplication::clipboard()->mimeData();
    hasText_ = content != nullptr && content->hasText();
  }
  return *hasText_;
}

std::string DesktopClipboard::Text() {
  return FromQt(QApplication::clipboard()->text());
}

void DesktopClipboard::SetText(const std::string& text) {
  QApplication::clipboard()->setText(ToQt(text));
}

std::string DesktopClipboard::RichText() {
  const QMimeData* content = QApplication::clipboard()->mimeData();
  if (content == nullptr) {
    return {};
  }
  for (const QString& form : RichTextForms()) {
    if (content->hasFormat(form)) {
      return content->data(form).toStdString();
    }
  }
  // Web pages are copied as HTML alone.
  return content->hasHtml() ? WriteRtf(FromHtml(FromQt(content->html()))) : std::string();
}

void DesktopClipboard::SetRichText(const std::string& rtf, const std::string& plain) {
  auto content = std::make_unique<QMimeData>();
  content->setText(ToQt(plain));
  content->setHtml(ToQt(WriteHtml(ReadRtf(rtf), applicationTitle)));
  for (const QString& form : RichTextForms()) {
    content->setData(form, QByteArray::fromStdString(rtf));
  }
  QApplication::clipboard()->setMimeData(content.release());
}

DesktopSettings::DesktopSettings() {
  store_.setSingleShot(true);
  QObject::connect(&store_, &QTimer::timeout, &settings_, &QSettings::sync);
}

std::string DesktopSettings::Get(const std::string& section, const std::string& key,
                                 const std::string& fallback) {
  if (!store_.isActive()) {
    settings_.sync();
  }
  return FromQt(settings_.value(SettingName(section, key), ToQt(fallback)).toString());
}

void DesktopSettings::Set(const std::string& section, const std::string& key,
                          const std::string& value) {
  settings_.setValue(SettingName(section, key), ToQt(value));
  store_.start(0);
}

void DesktopShell::StartProgram(const std::string& path) {
  if (!QProcess::startDetached(ToQt(path), {})) {
    throw RuntimeError(ErrorNumber::FileNotFound);
  }
}

void DesktopShell::OpenHelp(const std::string& path) {
  if (!ShowHtmlHelp(path)) {
    help_.Open();
  }
}

NumberLocale DesktopNumberLocale() {
  const QLocale locale;
  return {.DecimalSeparator = FromQt(locale.decimalPoint()),
          .GroupSeparator = FromQt(locale.groupSeparator()),
          .GroupSize = 3};
}

}  // namespace trelonit

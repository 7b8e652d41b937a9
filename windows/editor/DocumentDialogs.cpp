#include "windows/editor/DocumentDialogs.h"

#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileInfo>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QToolBar>

#include "platform/errors/Guard.h"
#include "platform/files/Files.h"
#include "windows/binding/Binding.h"
#include "windows/binding/FileDialog.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/PictureIcon.h"
#include "windows/editor/FontWindow.h"
#include "windows/editor/ReportPdf.h"
#include "windows/editor/RichDocumentPdf.h"
#include "windows/editor/RichDocumentQt.h"
#include "windows/services/DesktopServices.h"

namespace trelonit {

namespace {

/// "description (*.a)|*.a|..." as Qt takes it: the descriptions with their patterns in brackets.
QStringList NameFilters() {
  const QStringList parts = QString::fromUtf8(documentFilter).split(QLatin1Char('|'));
  QStringList filters;
  for (int part = 0; part + 1 < parts.size(); part += 2) {
    // Names without a point are files too where the system is not Windows.
    filters.append(QString(parts[part]).replace(QLatin1String("*.*"), QLatin1String("*")));
  }
  return filters;
}

FileChoice RunDialog(const FileChoice& offered, const QString& title, FileDialog::AcceptMode mode) {
  const QStringList filters = NameFilters();
  FileDialog dialog(QApplication::activeWindow(), mode, title, {}, {});
  dialog.setNameFilters(filters);
  dialog.selectNameFilter(filters.value(static_cast<int>(offered.FilterIndex) - 1));
  dialog.setOption(FileDialog::DontConfirmOverwrite);
  if (!offered.Name.empty()) {
    const QFileInfo present(ToQt(offered.Name));
    dialog.setDirectory(present.absolutePath());
    dialog.selectFile(present.fileName());
  }
  const QString name = dialog.Ask();
  if (name.isEmpty()) {
    return {{}, offered.FilterIndex};
  }
  return {FileFromQt(name), static_cast<Long>(filters.indexOf(dialog.selectedNameFilter())) + 1};
}

}  // namespace

DocumentDialogs::DocumentDialogs() = default;
DocumentDialogs::~DocumentDialogs() = default;

FileChoice DocumentDialogs::ShowOpen(const FileChoice& offered) {
  return RunDialog(offered, QStringLiteral("Открыть документ"), FileDialog::AcceptOpen);
}

FileChoice DocumentDialogs::ShowSave(const FileChoice& offered) {
  return RunDialog(offered, QStringLiteral("Сохранить документ как"), FileDialog::AcceptSave);
}

std::optional<Color> DocumentDialogs::ShowColor(Color present) {
  const QColor chosen = QColorDialog::getColor(ToQt(present), QApplication::activeWindow(),
                                               QStringLiteral("Цвет фона"));
  return chosen.isValid() ? std::optional(ColorOf(chosen)) : std::nullopt;
}

std::optional<CharFormat> DocumentDialogs::ShowFont(const CharFormat& present) {
  FontWindow window(present, QApplication::activeWindow());
  return window.exec() == QDialog::Accepted ? std::optional(window.Chosen()) : std::nullopt;
}

QPrinter& DocumentDialogs::Printer() {
  if (printer_ == nullptr) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setPageLayout(PaperLayout());
  }
  return *printer_;
}

void DocumentDialogs::PrintDocument(const RichTextBox& document, const std::string& title) {
  QPrinter& printer = Printer();
  printer.setDocName(ToQt(title));
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setWindowTitle(QStringLiteral("Печать"));
  if (dialog.exec() == QDialog::Accepted) {
    PaintDocument(document.Document(), printer);
  }
}

void DocumentDialogs::PreviewDocument(const RichTextBox& document, const std::string& title) {
  QPrinter& printer = Printer();
  printer.setDocName(ToQt(title));
  const RichDocument pages = document.Document();
  QPrintPreviewDialog dialog(&printer, QApplication::activeWindow());
  dialog.setWindowTitle(QStringLiteral("Предварительный просмотр - ") + ToQt(title));
  ResizeWithinScreen(dialog, {900, 760});
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                   [&pages](QPrinter* target) { PaintDocument(pages, *target); });
  if (auto* bar = dialog.findChild<QToolBar*>()) {
    QAction* store = bar->addAction(PictureIcon(QStringLiteral(":/pictures/tool-save.svg")),
                                    QStringLiteral("Сохранить в PDF"));
    store->setObjectName(QStringLiteral("StorePdf"));
    QObject::connect(store, &QAction::triggered, &dialog,
                     [&] { StorePdf(document, title, &dialog); });
  }
  dialog.exec();
}

std::string DocumentDialogs::ShowSavePdf(const std::string& offered) {
  FileDialog dialog(QApplication::activeWindow(), FileDialog::AcceptSave,
                    QStringLiteral("Экспорт в PDF"), {}, QStringLiteral("Документ PDF (*.pdf)"));
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.setOption(FileDialog::DontConfirmOverwrite);
  const QFileInfo present(ToQt(offered));
  dialog.setDirectory(present.absolutePath());
  dialog.selectFile(present.fileName());
  return FileFromQt(dialog.Ask());
}

std::string DocumentDialogs::PdfWithDrawings(const RichTextBox& document, const std::string& title,
                                             const std::vector<std::shared_ptr<Drawing>>& drawings,
                                             const std::optional<TitleBlock>& block) {
  return WriteReportPdf(document.Document(), title, Printer().pageLayout(), drawings, block);
}

void DocumentDialogs::StorePdf(const RichTextBox& document, const std::string& title,
                               QWidget* parent) {
  FileDialog dialog(parent, FileDialog::AcceptSave, QStringLiteral("Сохранить в PDF"), {},
                    QStringLiteral("Документ PDF (*.pdf)"));
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.selectFile(QFileInfo(ToQt(title)).completeBaseName());
  if (const QString name = dialog.Ask(); !name.isEmpty()) {
    // Told here: a failure must not leave through the preview's own event loop.
    DesktopMessages messages;
    Guard(messages, "StorePdf",
          [&] { DiskFiles().ReplaceFile(FileFromQt(name), *PdfOf(document, title)); });
  }
}

std::optional<std::string> DocumentDialogs::PdfOf(const RichTextBox& document,
                                                  const std::string& title) {
  return WritePdf(document.Document(), title, Printer().pageLayout());
}

void DocumentDialogs::PageSetup() {
  QPageSetupDialog dialog(&Printer(), QApplication::activeWindow());
  dialog.setWindowTitle(QStringLiteral("Параметры страницы"));
  dialog.exec();
}

}  // namespace trelonit

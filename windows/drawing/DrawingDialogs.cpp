#include "windows/drawing/DrawingDialogs.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>

#include "drawing/host/dxf/DxfWriter.h"
#include "drawing/sheet/SvgWriter.h"
#include "platform/errors/RuntimeError.h"
#include "platform/files/Files.h"
#include "windows/binding/Binding.h"
#include "windows/binding/FileDialog.h"
#include "windows/binding/Units.h"
#include "windows/help/HelpKey.h"

namespace trelonit {

namespace {

std::string DxfBytes(const Drawing& drawing, const SheetChoice&) {
  return WriteDxf(drawing);
}

QString Reason(const RuntimeError& error) {
  switch (static_cast<ErrorNumber>(error.Number())) {
    case ErrorNumber::DiskFull:
      return QStringLiteral("на диске нет места");
    case ErrorNumber::PermissionDenied:
      return QStringLiteral("нет прав на запись");
    case ErrorNumber::PathNotFound:
      return QStringLiteral("нет такой папки");
    case ErrorNumber::PathFileAccess:
      return QStringLiteral("так называется папка, или путь недоступен");
    case ErrorNumber::DeviceIoError:
      return QStringLiteral("ошибка устройства или не хватает памяти");
    case ErrorNumber::InvalidProcedureCall:
      return QStringLiteral("в чертеже нет слоя или стиля одного из его объектов");
    case ErrorNumber::Overflow:
      return QStringLiteral("координаты чертежа слишком велики");
    default:
      return ToQt(error.Description());
  }
}

void Tell(QWidget* parent, const QString& text) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Чертеж"), text, QMessageBox::Ok, parent);
  // A name of a file may look like markup.
  box.setTextFormat(Qt::PlainText);
  SetHelpPlace(box, MessagePlace({box.windowTitle(), text}));
  box.exec();
}

/// Empty for a cancel.
QString AskName(const DrawingFileKind& kind, const QString& offered, QWidget* parent) {
  FileDialog dialog(parent, FileDialog::AcceptSave, QString::fromUtf8(kind.Caption), {},
                    QString::fromUtf8(kind.Filter));
  dialog.setDefaultSuffix(QLatin1String(kind.Extension));
  const QFileInfo present(offered);
  dialog.setDirectory(present.absolutePath());
  dialog.selectFile(present.completeBaseName() + QLatin1Char('.') + QLatin1String(kind.Extension));
  return dialog.Ask();
}

}  // namespace

const std::vector<DrawingFileKind>& DrawingFileKinds() {
  static const std::vector<DrawingFileKind> kinds{
      {"SaveDxf", "Сохранить как DXF", "Чертеж DXF (*.dxf)", "dxf", DxfBytes},
      {"SaveSvg", "Экспорт в SVG", "Рисунок SVG (*.svg)", "svg", WriteDrawingSvg},
      {"SavePdf", "Экспорт в PDF", "Документ PDF (*.pdf)", "pdf", WriteDrawingPdf},
      {"SavePng", "Экспорт в PNG", "Рисунок PNG (*.png)", "png", WriteDrawingPng}};
  return kinds;
}

bool SaveDrawing(const Drawing& drawing, const DrawingFileKind& kind, const SheetChoice& choice,
                 QString& name, QWidget* parent) {
  const QString chosen = AskName(kind, name, parent);
  if (chosen.isEmpty()) {
    return false;
  }
  try {
    DiskFiles().ReplaceFile(FromQt(chosen), kind.Write(drawing, choice));
  } catch (const RuntimeError& error) {
    Tell(parent, QStringLiteral("Файл «%1» не записан: %2.")
                     .arg(QFileInfo(chosen).fileName(), Reason(error)));
    return false;
  }
  name = chosen;
  return true;
}

void PrintDrawing(const Drawing& drawing, const SheetChoice& choice, QPrinter& printer,
                  QWidget* parent) {
  try {
    const DrawingPainter painted(drawing);
    const QSizeF offered = AsQt(ChosenSheet(painted.Placed(), choice).Paper);
    printer.setDocName(ToQt(drawing.Name));
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(offered.transposed(), QPageSize::Millimeter));
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(QStringLiteral("Печать"));
    if (dialog.exec() != QDialog::Accepted) {
      return;
    }
    // The dialogue may have changed the paper.
    printer.setFullPage(true);
    const QSizeF size = printer.pageLayout().fullRect(QPageLayout::Millimeter).size();
    QPainter painter;
    if (!painter.begin(&printer)) {
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
    PaintSheet(painter, painted,
               SheetOn(painted.Placed(), {size.width(), size.height()}, choice.Title),
               printer.resolution() / millimetresPerInch, true);
    if (!painter.end()) {
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
  } catch (const RuntimeError& error) {
    Tell(parent, QStringLiteral("Чертеж не напечатан: %1.").arg(Reason(error)));
  }
}

}  // namespace trelonit

#include "windows/editor/ReportPdf.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include "platform/errors/RuntimeError.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Units.h"
#include "windows/drawing/DrawingPages.h"
#include "windows/editor/RichDocumentPdf.h"

namespace trelonit {

std::string WriteReportPdf(const RichDocument& document, const std::string& title,
                           const QPageLayout& layout,
                           const std::vector<std::shared_ptr<Drawing>>& drawings,
                           const std::optional<TitleBlock>& block) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QPdfWriter writer(&bytes);
  writer.setPageLayout(layout);
  writer.setTitle(ToQt(title));
  writer.setCreator(QStringLiteral("Trelonit"));
  QPainter painter;
  if (!painter.begin(&writer)) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  PaintDocument(document, writer, painter);
  for (const std::shared_ptr<Drawing>& drawing : drawings) {
    const DrawingPainter painted(*drawing);
    const DrawingSheet sheet = SheetFor(painted.Placed(), block);
    writer.setPageLayout(LayoutOf(sheet));
    if (!writer.newPage()) {
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
    PaintSheet(painter, painted, sheet, writer.resolution() / millimetresPerInch, true);
  }
  if (!painter.end()) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  return bytes.data().toStdString();
}

}  // namespace trelonit

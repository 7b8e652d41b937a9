#include "windows/drawing/DrawingPages.h"

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPdfWriter>

#include "platform/errors/RuntimeError.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Units.h"

namespace trelonit {

namespace {

/// A device that the toolkit cannot paint on.
void Begin(QPainter& painter, QPaintDevice& device) {
  if (!painter.begin(&device)) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
}

}  // namespace

QPageLayout LayoutOf(const DrawingSheet& sheet) {
  QPageLayout layout(QPageSize(AsQt(sheet.Paper), QPageSize::Millimeter, {}, QPageSize::ExactMatch),
                     QPageLayout::Portrait, QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

QSizeF AsQt(PaperSides paper) {
  return {paper.Width, paper.Height};
}

void PaintSheet(QPainter& painter, const DrawingPainter& drawing, const DrawingSheet& sheet,
                double unitsPerMillimetre, bool realLetters) {
  const QTransform toPainter = QTransform::fromScale(unitsPerMillimetre, unitsPerMillimetre);
  DrawingLook look;
  look.OnPaper = true;
  look.RealLetters = realLetters;
  look.UnitsPerMillimetre = unitsPerMillimetre;

  const SheetDress dress = DressOf(sheet);
  look.FromDrawing = AsQt(DressOnPaper(sheet)) * toPainter;
  DrawingPainter(dress.Frame).Paint(painter, look);
  if (dress.Title) {
    DrawingPainter(*dress.Title).Paint(painter, look);
  }

  look.FromDrawing = AsQt(DrawingOnPaper(drawing.Placed(), sheet)) * toPainter;
  look.SmallestLetters = smallestLettersOnPaper * unitsPerMillimetre;
  drawing.Paint(painter, look);
}

std::string WriteDrawingPdf(const Drawing& drawing, const SheetChoice& choice) {
  constexpr int resolution = 1200;
  const DrawingPainter painted(drawing);
  const DrawingSheet sheet = ChosenSheet(painted.Placed(), choice);
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setResolution(resolution);
    writer.setPageLayout(LayoutOf(sheet));
    writer.setTitle(ToQt(drawing.Name));
    writer.setCreator(QStringLiteral("Trelonit"));
    QPainter painter;
    Begin(painter, writer);
    PaintSheet(painter, painted, sheet, resolution / millimetresPerInch, true);
  }
  return bytes.data().toStdString();
}

std::string WriteDrawingPng(const Drawing& drawing, const SheetChoice& choice) {
  constexpr double pointsPerMillimetre = 200 / millimetresPerInch;
  constexpr int pointsPerMetre = static_cast<int>(pointsPerMillimetre * 1000);
  const DrawingPainter painted(drawing);
  const DrawingSheet sheet = ChosenSheet(painted.Placed(), choice);
  QImage image((AsQt(sheet.Paper) * pointsPerMillimetre).toSize(), QImage::Format_Grayscale8);
  image.fill(Qt::white);
  image.setDotsPerMeterX(pointsPerMetre);
  image.setDotsPerMeterY(pointsPerMetre);
  image.setText(QStringLiteral("Title"), ToQt(drawing.Name));
  {
    QPainter painter;
    Begin(painter, image);
    PaintSheet(painter, painted, sheet, pointsPerMillimetre, false);
  }
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  if (!image.save(&bytes, "PNG")) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  return bytes.data().toStdString();
}

}  // namespace trelonit

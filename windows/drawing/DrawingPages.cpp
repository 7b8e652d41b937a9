#include "windows/drawing/DrawingPages.h"

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <array>
#include <cmath>

#include "platform/errors/RuntimeError.h"
#include "platform/values/Arithmetic.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Units.h"

namespace trelonit {

namespace {

// The frame, in millimetres.
constexpr double filedMargin = 20;
constexpr double otherMargin = 5;
constexpr Long frameLineweight = 70;
/// Room between frame and drawing, and for the scale under it.
constexpr double padding = 5;
constexpr double noteHeight = 5;
constexpr double noteRoom = noteHeight + padding;

/// The smallest text by GOST 2.304.
constexpr double smallestLetters = 2.5;

QRectF FrameOn(QSizeF paper) {
  return QRectF(QPointF(0, 0), paper)
      .adjusted(filedMargin, otherMargin, -otherMargin, -otherMargin);
}

bool HasRoomForTitle(QSizeF paper) {
  const QRectF frame = FrameOn(paper);
  return frame.width() >= titleBlockWidth && frame.height() >= 2 * titleBlockHeight;
}

QRectF FieldOn(QSizeF paper, bool titled) {
  const double foot = titled ? titleBlockHeight : noteRoom;
  const QRectF field = FrameOn(paper).adjusted(padding, padding, -padding, -padding - foot);
  // Paper that is all margin: the drawing becomes a dot, but a finite one.
  return {field.topLeft(), field.size().expandedTo(QSizeF(1, 1))};
}

/// The smallest standard scale that is not less than the needed one.
double StandardScale(double needed) {
  constexpr std::array standard{1.0,   2.0,  2.5,  4.0,  5.0,   10.0,  15.0,  20.0,
                                25.0,  40.0, 50.0, 75.0, 100.0, 200.0, 400.0, 500.0,
                                800.0, 1e3,  2e3,  5e3,  1e4,   2e4,   2.5e4, 5e4};
  // What fits but for rounding noise fits.
  const double least = needed * (1 - 1e-9);
  for (const double scale : standard) {
    if (scale >= least) {
      return scale;
    }
  }
  double decade = 1e5;
  while (Finite(10 * decade) < least) {
    decade *= 10;
  }
  for (const double step : {1.0, 2.0, 5.0}) {
    if (step * decade >= least) {
      return step * decade;
    }
  }
  return 10 * decade;
}

/// Frame and scale, in millimetres of paper.
Drawing SheetDress(const DrawingSheet& sheet) {
  const QRectF frame = FrameOn(sheet.Paper);
  const auto at = [&](double x, double y) { return PlacePoint{x, sheet.Paper.height() - y, 0}; };
  const std::array corners{at(frame.left(), frame.top()), at(frame.right(), frame.top()),
                           at(frame.right(), frame.bottom()), at(frame.left(), frame.bottom())};
  Drawing dress;
  dress.Layers.front().Lineweight = frameLineweight;
  dress.TextStyles.front() = {.Name = "STANDARD", .ObliqueAngle = 0.262, .Width = 0.7};
  for (std::size_t corner = 0; corner < corners.size(); ++corner) {
    dress.ModelSpace.emplace_back(
        DrawingLine{.Start = corners[corner], .End = corners[(corner + 1) % corners.size()]});
  }
  if (sheet.Title) {
    return dress;
  }
  dress.ModelSpace.emplace_back(
      DrawingText{.Text = sheet.ScaleNote(),
                  .Height = noteHeight,
                  .Alignment = TextAlignment::Right,
                  .TextAlignmentPoint = at(frame.right() - padding, frame.bottom() - padding)});
  return dress;
}

/// A device that the toolkit cannot paint on.
void Begin(QPainter& painter, QPaintDevice& device) {
  if (!painter.begin(&device)) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
}

}  // namespace

QSizeF PaperSize(PaperFormat format) {
  switch (format) {
    case PaperFormat::A4:
      return {297, 210};
    case PaperFormat::A3:
      return {420, 297};
    case PaperFormat::A2:
      return {594, 420};
    case PaperFormat::A1:
      return {841, 594};
    case PaperFormat::A0:
      return {1189, 841};
  }
  return {};
}

std::string DrawingSheet::ScaleNote() const {
  // 2.5 is the only one with a fraction.
  QString number = QString::number(Scale, 'f', Scale == std::floor(Scale) ? 0 : 1);
  return "М 1:" + FromQt(number.replace(QLatin1Char('.'), QLatin1Char(',')));
}

DrawingSheet SheetOn(const DrawingPainter& drawing, QSizeF paper,
                     const std::optional<TitleBlock>& title) {
  const bool titled = title && HasRoomForTitle(paper);
  const QRectF box = drawing.Bounds(true);
  const QRectF field = FieldOn(paper, titled);
  const double needed =
      std::max(Finite(box.width() / field.width()), Finite(box.height() / field.height()));
  return {paper, StandardScale(needed), titled ? title : std::nullopt};
}

std::size_t TextsLeftOut(const DrawingPainter& drawing, const DrawingSheet& sheet) {
  const std::size_t leftOut = drawing.FitOnPaper(smallestLetters * sheet.Scale).LeftOut;
  return leftOut - std::min(leftOut, drawing.FitOnPaper(0).LeftOut);
}

std::optional<DrawingSheet> SheetWithAllTexts(const DrawingPainter& drawing,
                                              const std::optional<TitleBlock>& title) {
  for (const PaperFormat format :
       {PaperFormat::A4, PaperFormat::A3, PaperFormat::A2, PaperFormat::A1, PaperFormat::A0}) {
    const DrawingSheet sheet = SheetOn(drawing, PaperSize(format), title);
    const double smallest = drawing.FitOnPaper(smallestLetters * sheet.Scale).Smallest;
    // What is as high as it may be but for rounding noise can be read.
    const bool readable = smallest == 0 || smallest / sheet.Scale >= smallestLetters * (1 - 1e-9);
    if (readable && TextsLeftOut(drawing, sheet) == 0) {
      return sheet;
    }
  }
  return std::nullopt;
}

DrawingSheet SheetFor(const DrawingPainter& drawing, const std::optional<TitleBlock>& title) {
  const std::optional<DrawingSheet> sheet = SheetWithAllTexts(drawing, title);
  return sheet ? *sheet : SheetOn(drawing, PaperSize(PaperFormat::A3), title);
}

DrawingSheet ChosenSheet(const DrawingPainter& drawing, const SheetChoice& choice) {
  return choice.Paper ? SheetOn(drawing, PaperSize(*choice.Paper), choice.Title)
                      : SheetFor(drawing, choice.Title);
}

QPageLayout LayoutOf(const DrawingSheet& sheet) {
  QPageLayout layout(QPageSize(sheet.Paper, QPageSize::Millimeter, {}, QPageSize::ExactMatch),
                     QPageLayout::Portrait, QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

void PaintSheet(QPainter& painter, const DrawingPainter& drawing, const DrawingSheet& sheet,
                double unitsPerMillimetre, bool realLetters) {
  DrawingLook look;
  look.OnPaper = true;
  look.RealLetters = realLetters;
  look.UnitsPerMillimetre = unitsPerMillimetre;

  const Drawing dress = SheetDress(sheet);
  look.FromDrawing.translate(0, sheet.Paper.height() * unitsPerMillimetre);
  look.FromDrawing.scale(unitsPerMillimetre, -unitsPerMillimetre);
  DrawingPainter(dress).Paint(painter, look);
  if (sheet.Title) {
    const QRectF frame = FrameOn(sheet.Paper);
    const Drawing title = PictureOfTitleBlock(
        *sheet.Title, sheet.ScaleNote(), {frame.right(), sheet.Paper.height() - frame.bottom()});
    DrawingPainter(title).Paint(painter, look);
  }

  const QRectF box = drawing.Bounds(true);
  const QPointF middle =
      FieldOn(sheet.Paper, sheet.Title.has_value()).center() * unitsPerMillimetre;
  const double scale = unitsPerMillimetre / sheet.Scale;
  look.SmallestLetters = smallestLetters * unitsPerMillimetre;
  look.FromDrawing = QTransform();
  look.FromDrawing.translate(middle.x(), middle.y());
  look.FromDrawing.scale(scale, -scale);
  look.FromDrawing.translate(-box.center().x(), -box.center().y());
  drawing.Paint(painter, look);
}

std::string WriteDrawingPdf(const Drawing& drawing, const SheetChoice& choice) {
  constexpr int resolution = 1200;
  const DrawingPainter painted(drawing);
  const DrawingSheet sheet = ChosenSheet(painted, choice);
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

std::string WriteDrawingSvg(const Drawing& drawing, const SheetChoice& choice) {
  constexpr int unitsPerMillimetre = 100;
  const DrawingPainter painted(drawing);
  const DrawingSheet sheet = ChosenSheet(painted, choice);
  const QSize size = (sheet.Paper * unitsPerMillimetre).toSize();
  QBuffer bytes;
  {
    QSvgGenerator generator;
    generator.setOutputDevice(&bytes);
    generator.setResolution(static_cast<int>(unitsPerMillimetre * millimetresPerInch));
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    generator.setTitle(ToQt(drawing.Name));
    generator.setDescription(ToQt(sheet.ScaleNote()));
    QPainter painter;
    Begin(painter, generator);
    PaintSheet(painter, painted, sheet, unitsPerMillimetre, false);
  }
  return bytes.data().toStdString();
}

std::string WriteDrawingPng(const Drawing& drawing, const SheetChoice& choice) {
  constexpr double pointsPerMillimetre = 200 / millimetresPerInch;
  constexpr int pointsPerMetre = static_cast<int>(pointsPerMillimetre * 1000);
  const DrawingPainter painted(drawing);
  const DrawingSheet sheet = ChosenSheet(painted, choice);
  QImage image((sheet.Paper * pointsPerMillimetre).toSize(), QImage::Format_Grayscale8);
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

#include "drawing/sheet/DrawingSheet.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/text/NumberText.h"
#include "platform/values/Arithmetic.h"

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

// Boxes of a sheet have Y upwards from its lower edge.

PlaneBox FrameOn(PaperSides paper) {
  return {{filedMargin, otherMargin}, {paper.Width - otherMargin, paper.Height - otherMargin}};
}

bool HasRoomForTitle(PaperSides paper) {
  const PlaneBox frame = FrameOn(paper);
  return frame.Width() >= titleBlockWidth && frame.Height() >= 2 * titleBlockHeight;
}

PlaneBox FieldOn(PaperSides paper, bool titled) {
  const double foot = titled ? titleBlockHeight : noteRoom;
  const PlaneBox frame = FrameOn(paper);
  const PlanePoint corner = frame.Least + PlanePoint{padding, padding + foot};
  // Paper that is all margin: the drawing becomes a dot, but a finite one.
  return {corner,
          {std::max(frame.Greatest.X - padding, corner.X + 1),
           std::max(frame.Greatest.Y - padding, corner.Y + 1)}};
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

}  // namespace

PaperSides PaperSize(PaperFormat format) {
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
      break;
  }
  return {1189, 841};
}

std::string DrawingSheet::ScaleNote() const {
  // 2.5 is the only one with a fraction.
  return "М 1:" + FormatPlain(Scale, Scale == std::floor(Scale) ? 0 : 1, {.DecimalSeparator = ","});
}

DrawingSheet SheetOn(const PlacedDrawing& drawing, PaperSides paper,
                     const std::optional<TitleBlock>& title) {
  const bool titled = title && HasRoomForTitle(paper);
  const PlaneBox box = drawing.Bounds(true);
  const PlaneBox field = FieldOn(paper, titled);
  const double needed =
      std::max(Finite(box.Width() / field.Width()), Finite(box.Height() / field.Height()));
  return {paper, StandardScale(needed), titled ? title : std::nullopt};
}

std::size_t TextsLeftOut(const PlacedDrawing& drawing, const DrawingSheet& sheet) {
  const std::size_t leftOut = drawing.Fit(smallestLettersOnPaper * sheet.Scale, true).LeftOut;
  return leftOut - std::min(leftOut, drawing.Fit(0, true).LeftOut);
}

std::optional<DrawingSheet> SheetWithAllTexts(const PlacedDrawing& drawing,
                                              const std::optional<TitleBlock>& title) {
  for (const PaperFormat format :
       {PaperFormat::A4, PaperFormat::A3, PaperFormat::A2, PaperFormat::A1, PaperFormat::A0}) {
    const DrawingSheet sheet = SheetOn(drawing, PaperSize(format), title);
    const double smallest = drawing.Fit(smallestLettersOnPaper * sheet.Scale, true).Smallest;
    // What is as high as it may be but for rounding noise can be read.
    const bool readable =
        smallest == 0 || smallest / sheet.Scale >= smallestLettersOnPaper * (1 - 1e-9);
    if (readable && TextsLeftOut(drawing, sheet) == 0) {
      return sheet;
    }
  }
  return std::nullopt;
}

DrawingSheet SheetFor(const PlacedDrawing& drawing, const std::optional<TitleBlock>& title) {
  const std::optional<DrawingSheet> sheet = SheetWithAllTexts(drawing, title);
  return sheet ? *sheet : SheetOn(drawing, PaperSize(PaperFormat::A3), title);
}

DrawingSheet ChosenSheet(const PlacedDrawing& drawing, const SheetChoice& choice) {
  return choice.Paper ? SheetOn(drawing, PaperSize(*choice.Paper), choice.Title)
                      : SheetFor(drawing, choice.Title);
}

SheetDress DressOf(const DrawingSheet& sheet) {
  const PlaneBox frame = FrameOn(sheet.Paper);
  const std::array corners{PlacePoint{frame.Least.X, frame.Greatest.Y, 0},
                           PlacePoint{frame.Greatest.X, frame.Greatest.Y, 0},
                           PlacePoint{frame.Greatest.X, frame.Least.Y, 0},
                           PlacePoint{frame.Least.X, frame.Least.Y, 0}};
  SheetDress dress;
  dress.Frame.Layers.front().Lineweight = frameLineweight;
  dress.Frame.TextStyles.front() = {.Name = "STANDARD", .ObliqueAngle = 0.262, .Width = 0.7};
  for (std::size_t corner = 0; corner < corners.size(); ++corner) {
    dress.Frame.ModelSpace.emplace_back(
        DrawingLine{.Start = corners[corner], .End = corners[(corner + 1) % corners.size()]});
  }
  if (sheet.Title) {
    dress.Title =
        PictureOfTitleBlock(*sheet.Title, sheet.ScaleNote(), {frame.Greatest.X, frame.Least.Y, 0});
  } else {
    dress.Frame.ModelSpace.emplace_back(DrawingText{
        .Text = sheet.ScaleNote(),
        .Height = noteHeight,
        .Alignment = TextAlignment::Right,
        .TextAlignmentPoint = {frame.Greatest.X - padding, frame.Least.Y + padding, 0}});
  }
  return dress;
}

PlaneTransform DressOnPaper(const DrawingSheet& sheet) {
  return {1, 0, 0, -1, {0, sheet.Paper.Height}};
}

PlaneTransform DrawingOnPaper(const PlacedDrawing& drawing, const DrawingSheet& sheet) {
  const PlanePoint middle =
      DressOnPaper(sheet)(FieldOn(sheet.Paper, sheet.Title.has_value()).Middle());
  const double scale = 1 / sheet.Scale;
  const PlaneTransform scaled{scale, 0, 0, -scale};
  return scaled.Then({1, 0, 0, 1, middle - scaled(drawing.Bounds(true).Middle())});
}

}  // namespace trelonit

#include "drawing/sheet/SvgWriter.h"

#include <array>
#include <charconv>

#include "platform/text/MarkupText.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

/// A length on paper: a thousandth of a millimetre is finer than any printer.
std::string Number(double millimetres) {
  std::array<char, 400> digits{};
  char* end =
      std::to_chars(digits.begin(), digits.end(), Finite(millimetres), std::chars_format::fixed, 3)
          .ptr;
  while (end[-1] == '0') {
    --end;
  }
  if (end[-1] == '.') {
    --end;
  }
  const std::string text(digits.begin(), end);
  return text == "-0" ? "0" : text;
}

class SvgPage {
 public:
  explicit SvgPage(const DrawingSheet& sheet, const std::string& title) {
    const std::string width = Number(sheet.Paper.Width);
    const std::string height = Number(sheet.Paper.Height);
    svg_ =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
        width + "mm\" height=\"" + height + "mm\" viewBox=\"0 0 " + width + " " + height +
        "\">\n<title>";
    AppendMarkup(svg_, title);
    svg_ += "</title>\n<desc>";
    AppendMarkup(svg_, sheet.ScaleNote());
    svg_ += "</desc>\n";
  }

  /// Paints what is plotted; no letters are smaller than so many millimetres.
  void Add(const PlacedDrawing& drawing, const PlaneTransform& toPaper, double smallest,
           double scale) {
    const double* factors =
        smallest > 0 ? drawing.Fit(smallest * scale, true).Factors.data() : nullptr;
    for (const PlacedLayer& layer : drawing.Layers()) {
      if (!drawing.IsPainted(layer, true)) {
        continue;
      }
      AddStrokes(layer, toPaper, StrokeWidth(drawing.Source(), layer.Name));
      for (const PlacedText& text : layer.Texts) {
        AddText(text, toPaper, factors == nullptr ? 1 : *factors++);
      }
      AddArrows(layer, toPaper);
    }
  }

  std::string Svg() const { return svg_ + "</svg>\n"; }

 private:
  void AddPoint(char verb, PlanePoint point) {
    svg_ += verb + Number(point.X) + " " + Number(point.Y);
  }

  void AddStrokes(const PlacedLayer& layer, const PlaneTransform& toPaper, double width) {
    if (layer.Strokes.empty()) {
      return;
    }
    svg_ += "<path fill=\"none\" stroke=\"#000000\" stroke-linecap=\"round\" stroke-width=\"" +
            Number(width) + "\" d=\"";
    for (const PlaneLine& line : layer.Strokes) {
      AddPoint('M', toPaper(line.Start));
      AddPoint('L', toPaper(line.End));
    }
    svg_ += "\"/>\n";
  }

  void AddText(const PlacedText& text, const PlaneTransform& toPaper, double factor) {
    if (factor <= 0 || text.Outline.Verbs.empty()) {
      return;
    }
    const PlaneTransform place = text.Place.Then(ScaledAt(text.Room.Anchor, factor)).Then(toPaper);
    svg_ += "<path d=\"";
    ForEachStep(text.Outline, [&](char verb, const PlanePoint* points) {
      if (verb == 'Z') {
        svg_ += verb;
        return;
      }
      AddPoint(verb, place(points[0]));
      if (verb == 'Q') {
        AddPoint(' ', place(points[1]));
      }
    });
    svg_ += "\"><title>";
    AppendMarkup(svg_, text.Letters);
    svg_ += "</title></path>\n";
  }

  void AddArrows(const PlacedLayer& layer, const PlaneTransform& toPaper) {
    if (layer.Arrows.empty()) {
      return;
    }
    svg_ += "<path d=\"";
    for (const std::array<PlanePoint, 3>& arrow : layer.Arrows) {
      AddPoint('M', toPaper(arrow[0]));
      AddPoint('L', toPaper(arrow[1]));
      AddPoint('L', toPaper(arrow[2]));
      svg_ += 'Z';
    }
    svg_ += "\"/>\n";
  }

  std::string svg_;
};

}  // namespace

std::string WriteDrawingSvg(const Drawing& drawing, const SheetChoice& choice) {
  const PlacedDrawing placed(drawing);
  const DrawingSheet sheet = ChosenSheet(placed, choice);
  const SheetDress dress = DressOf(sheet);
  SvgPage page(sheet, drawing.Name);
  page.Add(PlacedDrawing(dress.Frame), DressOnPaper(sheet), 0, 1);
  if (dress.Title) {
    page.Add(PlacedDrawing(*dress.Title), DressOnPaper(sheet), 0, 1);
  }
  page.Add(placed, DrawingOnPaper(placed, sheet), smallestLettersOnPaper, sheet.Scale);
  return page.Svg();
}

}  // namespace trelonit

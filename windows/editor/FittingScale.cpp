#include "windows/editor/FittingScale.h"

#include <algorithm>
#include <cmath>

namespace trelonit {

namespace {

// All in pixels, 96 an inch.

constexpr double pixelsPerPoint = 96.0 / 72;
/// No window shows a text in a narrower column.
constexpr double narrowest = 100;
/// Of a letter and of a line, as parts of the letters' size.
constexpr double letterWidth = 0.7;
constexpr double lineHeight = 1.3;
/// What a text may come to, and one with letters that have a line for themselves. The toolkit was
/// seen to lay out 27 and 4.7 million, and to fail at 33 and 9.
constexpr double tallestText = 24e6;
constexpr double tallestTextOfLargeLetters = 4e6;
constexpr double largeLetters = 190;
/// From try to try, down to where letters of any size are gone.
constexpr double nextTry = 0.8;
constexpr double least = 1e-9;

struct TextHeight {
  double Height = 0;
  double Letters = 0;  ///< the largest
};

TextHeight HeightOf(const RichDocument& document, double zoom) {
  TextHeight text;
  double letters = 0;
  for (const RichParagraph& paragraph : document.Paragraphs) {
    double width = 0;
    double count = 0;
    // An empty paragraph is as high as the letters in front of it.
    double tallest = paragraph.Runs.empty() ? letters : 0;
    for (const TextRun& run : paragraph.Runs) {
      letters = zoom * pixelsPerPoint * run.Format.FontSize;
      tallest = std::max(tallest, letters);
      const auto length = static_cast<double>(run.Text.size());
      width += letterWidth * letters * length;
      count += length;
    }
    // A line has one letter at least.
    const double lines = std::max(1.0, std::min(count, std::ceil(width / narrowest)));
    text.Height += lines * lineHeight * tallest;
    text.Letters = std::max(text.Letters, tallest);
  }
  return text;
}

bool Fits(const TextHeight& text) {
  return text.Height <= (text.Letters > largeLetters ? tallestTextOfLargeLetters : tallestText);
}

}  // namespace

double FittingScale(const RichDocument& document, double zoom) {
  double scale = 1;
  while (scale > least && !Fits(HeightOf(document, scale * zoom))) {
    scale *= nextTry;
  }
  return scale;
}

}  // namespace trelonit

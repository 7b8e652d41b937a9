#include "drawing/sheet/Letters.h"

#include <algorithm>

#include "platform/text/Text.h"
#include "resources/CompiledLetters.h"

namespace trelonit {

namespace {

const CompiledLetter& LetterOf(char32_t code) {
  static const Carried<CompiledLetter> letters = CompiledLetters();
  const CompiledLetter* found = std::lower_bound(
      letters.begin(), letters.end(), code,
      [](const CompiledLetter& letter, char32_t sought) { return letter.Code < sought; });
  return found != letters.end() && found->Code == code ? *found : letters[letters.size() - 1];
}

/// Where one coordinate of a curve turns back, if it does so on the way.
std::optional<double> TurnOf(double start, double control, double end) {
  const double bend = start - 2 * control + end;
  const double part = bend == 0 ? 0 : (start - control) / bend;
  return part > 0 && part < 1 ? std::optional(part) : std::nullopt;
}

PlanePoint OnCurve(PlanePoint start, PlanePoint control, PlanePoint end, double part) {
  const double rest = 1 - part;
  return start * (rest * rest) + control * (2 * part * rest) + end * (part * part);
}

}  // namespace

double LettersCapitalHeight() {
  static const double height = BoxOf(LettersOutline("H"))->Greatest.Y;
  return height;
}

double LettersWidth(std::string_view text) {
  double width = 0;
  for (const char32_t code : Characters(text)) {
    width += LetterOf(code).Advance;
  }
  return width;
}

LetterOutline LettersOutline(std::string_view text) {
  LetterOutline outline;
  double start = 0;
  for (const char32_t code : Characters(text)) {
    const CompiledLetter& letter = LetterOf(code);
    outline.Verbs += letter.Verbs;
    for (std::size_t place = 0; place < letter.Numbers.size(); place += 2) {
      outline.Points.push_back(
          {start + letter.Numbers[place], static_cast<double>(letter.Numbers[place + 1])});
    }
    start += letter.Advance;
  }
  return outline;
}

std::optional<PlaneBox> BoxOf(const LetterOutline& outline, const PlaneTransform& transform) {
  std::optional<PlaneBox> box;
  PlanePoint at;
  ForEachStep(outline, [&](char verb, const PlanePoint* points) {
    if (verb == 'Q') {
      const PlanePoint control = transform(points[0]);
      const PlanePoint end = transform(points[1]);
      for (const std::optional<double> turn :
           {TurnOf(at.X, control.X, end.X), TurnOf(at.Y, control.Y, end.Y)}) {
        if (turn) {
          Take(box, OnCurve(at, control, end, *turn));
        }
      }
      at = end;
    } else if (verb != 'Z') {
      at = transform(points[0]);
    }
    if (verb != 'Z') {
      Take(box, at);
    }
  });
  return box;
}

}  // namespace trelonit

#include "drawing/host/Drawing.h"

#include "platform/text/Text.h"

namespace trelonit {

namespace {

unsigned char ByteAt(std::string_view text, std::size_t place) {
  return static_cast<unsigned char>(text[place]);
}

}  // namespace

std::string FoldedName(std::string_view name) {
  constexpr unsigned char lead0 = 0xD0;
  constexpr unsigned char lead1 = 0xD1;
  std::string folded(name);
  for (std::size_t place = 0; place < folded.size(); ++place) {
    const unsigned char byte = ByteAt(folded, place);
    if (IsLatinLetter(folded[place])) {
      folded[place] = UpperLatin(folded[place]);
      continue;
    }
    if ((byte != lead0 && byte != lead1) || place + 1 == folded.size()) {
      continue;
    }
    // Russian letters take two bytes, small and capital alike.
    const unsigned char next = ByteAt(folded, place + 1);
    if (byte == lead0 && next >= 0xB0) {  // first half of the small letters
      folded[place + 1] = static_cast<char>(next - 0x20);
    } else if (byte == lead1 && next <= 0x8F) {  // second half
      folded[place] = static_cast<char>(lead0);
      folded[place + 1] = static_cast<char>(next + 0x20);
    } else if (byte == lead1 && next == 0x91) {  // small io
      folded[place] = static_cast<char>(lead0);
      folded[place + 1] = static_cast<char>(0x81);
    }
    ++place;
  }
  return folded;
}

bool SameName(std::string_view name1, std::string_view name2) {
  // Folding keeps the length.
  return name1 == name2 || (name1.size() == name2.size() && FoldedName(name1) == FoldedName(name2));
}

const DrawingLayer* FindLayer(const Drawing& drawing, std::string_view name) {
  return FindNamed(drawing.Layers, name);
}

const DrawingTextStyle* FindTextStyle(const Drawing& drawing, std::string_view name) {
  return FindNamed(drawing.TextStyles, name);
}

const DrawingDimStyle* FindDimStyle(const Drawing& drawing, std::string_view name) {
  return FindNamed(drawing.DimStyles, name);
}

bool IsShown(const Drawing& drawing, std::string_view layer) {
  const DrawingLayer* found = FindLayer(drawing, layer);
  return found == nullptr || (found->LayerOn && !found->Freeze);
}

bool IsPlotted(const Drawing& drawing, std::string_view layer) {
  const DrawingLayer* found = FindLayer(drawing, layer);
  return found == nullptr || (found->LayerOn && !found->Freeze && found->Plottable);
}

double StrokeWidth(const Drawing& drawing, std::string_view layer) {
  constexpr double drawingsOwn = 0.25;
  const DrawingLayer* found = FindLayer(drawing, layer);
  return found == nullptr || found->Lineweight < 0 ? drawingsOwn : found->Lineweight / 100.0;
}

const std::string& LayerOf(const DrawingEntity& entity) {
  return std::visit([](const auto& kind) -> const std::string& { return kind.Layer; }, entity);
}

}  // namespace trelonit

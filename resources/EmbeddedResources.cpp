#include "resources/EmbeddedResources.h"

#include <algorithm>
#include <array>
#include <span>

#include "platform/errors/RuntimeError.h"
#include "resources/EmbeddedBlocks.h"

namespace trelonit {

namespace {

constexpr std::array<Integer, 11> bitmaps{101, 102, 103, 104, 105, 205, 206, 207, 208, 309, 310};
constexpr std::array<Integer, 2> icons{102, 103};

Picture Find(std::span<const Integer> present, Picture picture) {
  if (std::find(present.begin(), present.end(), picture.Number) == present.end()) {
    throw ResourceNotFoundError(picture.Number);
  }
  return picture;
}

}  // namespace

std::string_view EmbeddedResources::CustomBlock(Integer identifier) {
  switch (identifier) {
    case 101:
      return EmbeddedSteelTable();
    case 102:
      return EmbeddedCatalogueData();
    case 103:
      return EmbeddedCatalogueIndex();
    default:
      throw ResourceNotFoundError(identifier);
  }
}

Picture EmbeddedResources::Bitmap(Integer identifier) {
  return Find(bitmaps, {Picture::Source::Bitmap, identifier});
}

Picture EmbeddedResources::Icon(Integer identifier) {
  return Find(icons, {Picture::Source::Icon, identifier});
}

std::string EmbeddedResources::String(Integer identifier) {
  if (identifier != 101) {
    throw ResourceNotFoundError(identifier);
  }
  return "Программа рассчитывает плоские стальные стропильные фермы: определяет усилия в стержнях, "
         "подбирает и проверяет сечения из прокатных и гнутых профилей, находит прогиб и массу, "
         "составляет отчёт и вычерчивает схемы.";
}

}  // namespace trelonit

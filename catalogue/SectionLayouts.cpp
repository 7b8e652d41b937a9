#include "catalogue/SectionLayouts.h"

#include <array>

namespace trelonit {

namespace {

constexpr std::array<Long, 2> angles{1, 2};
constexpr std::array<Long, 4> channels{3, 4, 10, 11};
constexpr std::array<Long, 3> beams{5, 6, 7};
constexpr std::array<Long, 2> tees{8, 9};
// Intended: 14, the round tubes, stands between these numbers and has a layout of its own.
constexpr std::array<Long, 10> boxTubes{12, 13, 15, 16, 17, 18, 19, 20, 21, 22};
constexpr std::array<Long, 1> roundTubes{14};

consteval Picture OwnImage(Integer layout) {
  return {Picture::Source::SectionLayout, layout};
}

consteval Picture PairBitmap(Integer identifier) {
  return {Picture::Source::Bitmap, identifier};
}

constexpr std::array<SectionLayout, sectionLayoutCount> layouts{{
    {1, "Одиночный уголок", false, angles, 1, OwnImage(1)},
    {2, "Уголок спареный в тавр длинная полка в плоскости фермы", true, angles, 1, PairBitmap(205)},
    {3, "Уголок спареный в тавр длинная полка из плоскости фермы", true, angles, 1,
     PairBitmap(206)},
    // Two angles in a cross; the hint is the user's reminder.
    {4, "Для неравнополочных уголков длинная полка располагается в плоскости фермы !!", true,
     angles, 1, PairBitmap(207)},
    {5, "Швеллер", false, channels, 3, OwnImage(5)},
    {6, "Двутавр", false, beams, 5, OwnImage(6)},
    {7, "Тавр", false, tees, 8, OwnImage(7)},
    {8, "Швеллер спаренный в двутавр", true, channels, 3, PairBitmap(208)},
    {9, "Квадратная или прямоугольная труба (высота профиля в плоскости фермы)", false, boxTubes,
     12, OwnImage(9)},
    {10, "Квадратная или прямоугольная труба (высота профиля из плоскости фермы)", false, boxTubes,
     12, OwnImage(10)},
    {11, "Труба круглая", false, roundTubes, 14, OwnImage(11)},
}};

}  // namespace

const SectionLayout* FindSectionLayout(Long number) {
  if (number < 1 || number > sectionLayoutCount) {
    return nullptr;
  }
  return &layouts[static_cast<std::size_t>(number - 1)];
}

}  // namespace trelonit

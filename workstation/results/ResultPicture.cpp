#include "workstation/results/ResultPicture.h"

#include "analysis/Scheme.h"
#include "platform/errors/Guard.h"
#include "workstation/design/modHelper.h"

namespace trelonit {

namespace {

std::vector<PictureBar> DrawBars(const Calculation& calculation) {
  const Truss truss = TrussOf(calculation.TreloData);
  std::vector<PictureBar> bars;
  for (const TrussBar& bar : truss.Bars) {
    const TrussJoint& a = truss.Joints[bar.A];
    const TrussJoint& b = truss.Joints[bar.B];
    bars.push_back({OptionOf(bar.Group), bar.Number, a.X, a.Y, b.X, b.Y,
                    (calculation.TreloResult.*bar.Forces)[bar.Subscript]});
  }
  return bars;
}

}  // namespace

std::vector<PictureBar> BuildBars(const Calculation& calculation) {
  std::vector<PictureBar> bars;
  PassOver([&] { bars = DrawBars(calculation); });
  return bars;
}

std::vector<GroupUse> BuildUse(const Calculation& calculation) {
  const CheckResult& check = calculation.CheckData;
  std::vector<GroupUse> use{{optionUpPoyas, LargestUse(check.UpPoyas)},
                            {optionDwnPoyas, LargestUse(check.DwnPoyas)},
                            {optionRaskos, LargestUse(check.Raskos)},
                            {optionOpornRaskos, LargestUse(check.OpornRaskos)}};
  if (HasVerticals(calculation.TreloData.TreloType)) {
    use.push_back({optionStoyka, LargestUse(check.Stoyka)});
  }
  return use;
}

std::string GroupName(GroupOption group) {
  switch (group) {
    case optionUpPoyas:
      return "Верхний пояс";
    case optionDwnPoyas:
      return "Нижний пояс";
    case optionRaskos:
      return "Раскосы";
    case optionStoyka:
      return "Стойки";
    case optionOpornRaskos:
      break;
  }
  return "Опорные раскосы";
}

}  // namespace trelonit

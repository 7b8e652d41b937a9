#include "workstation/ResultPicture.h"

#include "analysis/Scheme.h"
#include "platform/Guard.h"
#include "workstation/modHelper.h"

namespace trelonit {

namespace {

std::vector<PictureBar> DrawBars(const TreloData& data, const TreloResult& result) {
  const Truss truss = TrussOf(data);
  std::vector<PictureBar> bars;
  for (const TrussBar& bar : truss.Bars) {
    const TrussJoint& a = truss.Joints[bar.A];
    const TrussJoint& b = truss.Joints[bar.B];
    bars.push_back(
        {OptionOf(bar.Group), bar.Number, a.X, a.Y, b.X, b.Y, (result.*bar.Forces)[bar.Subscript]});
  }
  return bars;
}

}  // namespace

std::vector<PictureBar> BuildBars(const TreloData& data, const TreloResult& result) {
  std::vector<PictureBar> bars;
  // Every scheme has an upper chord bar a panel; with another count the forces are those of another
  // truss.
  if (result.UpPoyasForce.IsAllocated() && result.UpPoyasForce.UpperBound() == data.PanelNum) {
    // Forces of another scheme with as many panels do not fit the joints.
    PassOver([&] { bars = DrawBars(data, result); });
  }
  return bars;
}

std::vector<GroupUse> BuildUse(Long treloType, const CheckResult& check) {
  std::vector<GroupUse> use{{optionUpPoyas, LargestUse(check.UpPoyas)},
                            {optionDwnPoyas, LargestUse(check.DwnPoyas)},
                            {optionRaskos, LargestUse(check.Raskos)},
                            {optionOpornRaskos, LargestUse(check.OpornRaskos)}};
  if (HasVerticals(treloType)) {
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
      return "Опорные раскосы";
  }
  return {};
}

}  // namespace trelonit

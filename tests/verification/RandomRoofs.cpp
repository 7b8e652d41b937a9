#include "tests/verification/RandomRoofs.h"

#include "tests/workstation/design/AnyDesign.h"

namespace trelonit::verification {

namespace {

TreloData AnyGeometry(Chance& chance) {
  const Long scheme = chance.Whole(1, 4);
  const double span = 3.0 * chance.Whole(4, 12);
  std::vector<Long> counts;
  for (const Long n : test::PanelCounts(scheme)) {
    const double panel = span / static_cast<double>(n);
    if (panel >= 1.5 && panel <= 3.5) {
      counts.push_back(n);
    }
  }
  const Long n = chance.Of(counts);
  // Half of them with panels of one length, the others with end panels up to a third shorter or
  // longer.
  const double panel = span / static_cast<double>(n);
  const double endPanel = chance.OneIn(2) ? panel : panel * chance.Between(0.67, 1.33);
  TreloData data = test::Design(scheme, n, span, span / chance.Between(7, 12), endPanel);
  data.UpPoyasBrace = static_cast<Integer>(chance.Whole(1, 4));
  data.DownPoyasBrace = static_cast<Integer>(chance.Whole(1, 4));
  return data;
}

/// One load for all elements, or another one on the right half.
void Load(BoundedArray<double>& loads, double left, double right) {
  const Long last = loads.UpperBound();
  for (Long place = 0; place <= last; ++place) {
    loads[place] = 2 * place <= last ? left : right;
  }
}

LoadArrays AnyLoads(Chance& chance, const TreloData& data) {
  LoadArrays loads = ZeroLoads(BoundsOfLoads(data.TreloType, data.PanelNum).value());
  const double left = chance.Between(0.5, 2.5);
  const double right = chance.OneIn(4) ? left * chance.Between(0.3, 1) : left;
  const double panel = data.LengthF / static_cast<double>(data.PanelNum);
  if (chance.OneIn(2)) {
    Load(loads.UpDistForce, left, right);
  } else {
    Load(loads.UpPForce, left * panel, right * panel);
  }
  if (chance.OneIn(4)) {
    const double hung = chance.Between(0.05, 0.3);
    Load(loads.DwnDistForce, hung, hung);
  }
  return loads;
}

}  // namespace

RandomRoof AnyRoof(Chance& chance) {
  RandomRoof roof;
  Design& design = roof.Inputs;
  design.TreloData = AnyGeometry(chance);
  static_cast<LoadArrays&>(design.TreloData) = AnyLoads(chance, design.TreloData);
  const test::Pick pick = [&](Long low, Long high) { return chance.Whole(low, high); };
  for (SectionRec& section : design.ElementSection) {
    section = test::AnySection(pick, chance.Whole(1, sectionLayoutCount));
  }
  roof.Numbers = {.Ry = chance.Of(std::vector<double>{230, 240, 250, 270, 315, 335}),
                  .E = 206000,
                  .Yc = chance.Of(std::vector<double>{0.9, 0.95, 1}),
                  .Gn = chance.Of(std::vector<double>{0.95, 1}),
                  .Density = 7.85,
                  .Dynamic = chance.OneIn(10),
                  .LimitUser = chance.Of(std::vector<double>{150, 200, 400})};
  return roof;
}

}  // namespace trelonit::verification

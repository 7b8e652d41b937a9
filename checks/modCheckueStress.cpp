#include "checks/modCheckueStress.h"

#include <cmath>

#include "analysis/Scheme.h"
#include "catalogue/SectionComposition.h"
#include "checks/CheckFormulas.h"
#include "checks/EffectiveLengths.h"
#include "checks/ElementGroups.h"
#include "platform/system/ProgramNames.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

class Check {
 public:
  Check(const TreloData& data, const TreloResult& res, const CheckNumbers& numbers,
        const SectionArray& sections, CheckResult& check, Messages& told)
      : data_(data),
        res_(res),
        numbers_(numbers),
        sections_(sections),
        check_(check),
        told_(told) {}

  // Step by step over all groups: messages and errors appear in this order.
  void Run() {
    ForAll(&Check::Compose);
    PutMass();
    PutForces();
    ForAll(&Check::PutStrength);
    PutEffectiveLengths(check_, data_, res_);
    ForAll(&Check::PutSlenderness);
    ForAll(&Check::PutAlpha);
    ForAll(&Check::PutLimits);
    ForAll(&Check::PutUtilisation);
  }

  /// Forces and lengths are there already: they do not hang on the sections.
  void Run(const ElementGroupRow& group) {
    Compose(group);
    PutMass();
    PutStrength(group);
    PutSlenderness(group);
    PutAlpha(group);
    PutLimits(group);
    PutUtilisation(group);
  }

 private:
  void ForAll(void (Check::*step)(const ElementGroupRow&)) {
    for (const ElementGroupRow& group : elementGroups) {
      (this->*step)(group);
    }
  }
  bool HasVerticals() const { return trelonit::HasVerticals(data_.TreloType); }
  bool IsAbsent(const ElementGroupRow& group) const {
    return group.Group == ElementGroup::Stoyka && !HasVerticals();
  }

  void Compose(const ElementGroupRow& group) {
    const SectionProps props = ComposeSection(sections_[group.Place]);
    GroupCheck& block = check_.*group.Block;
    block.Area = props.Area;
    block.Jin = props.Jin;
    block.Jout = props.Jout;
  }

  void PutMass() {
    check_.Mass = CalcMass(res_, numbers_.Density, check_);
    if (!(check_.Mass > 0)) {
      told_.push_back({.Title = warningTitle,
                       .Text = "Не правильно расчитана масса фермы !",
                       .Style = MessageStyle::Critical});
    }
  }

  static void PutExtremes(GroupCheck& block, const BoundedArray<double>& forces) {
    block.NMax = MaxAbsForce(forces);
    const ForceExtreme least = MinForce(forces);
    block.NComp = least.Value < 0 ? least : ForceExtreme{};
  }

  void PutForces() {
    PutExtremes(check_.UpPoyas, res_.UpPoyasForce);
    PutExtremes(check_.DwnPoyas, res_.DwnPoyasForce);
    if (HasVerticals()) {
      PutExtremes(check_.Stoyka, res_.StoykaForce);
    }
    PutExtremes(check_.Raskos, StripEnds(res_.RaskosForce));
    // Intended, and the program's own rule: the support diagonals are judged by the greatest force
    // of all diagonals.
    PutExtremes(check_.OpornRaskos, res_.RaskosForce);
  }

  void PutStrength(const ElementGroupRow& group) {
    GroupCheck& block = check_.*group.Block;
    if (!IsAbsent(group)) {
      block.KStrength =
          CalcStrength(block.NMax.Value, block.Area, numbers_.Ry, numbers_.Yc, numbers_.Gn);
    }
  }

  void PutSlenderness(const ElementGroupRow& group) {
    // The program's own rule: the lengths are effective ones already, whatever table 11 has.
    constexpr double Mu = 1;
    GroupCheck& block = check_.*group.Block;
    if (!IsAbsent(group)) {
      block.FlexX = CalcFlex(block.LenX, block.Area, block.Jin, Mu);
      block.FlexY = CalcFlex(block.LenY, block.Area, block.Jout, Mu);
    }
    block.FlexBarX = CalcFlexBar(block.FlexX, numbers_.Ry, numbers_.E);
    block.FlexBarY = CalcFlexBar(block.FlexY, numbers_.Ry, numbers_.E);
    block.PhiX = CalcPhi(block.FlexBarX, numbers_.Ry, numbers_.E);
    block.PhiY = CalcPhi(block.FlexBarY, numbers_.Ry, numbers_.E);
  }

  /// Without a phi there is no alpha of table 19*; 0 is the program's own rule then.
  double Alpha(const GroupCheck& block, double phi) const {
    if (!(phi > 0)) {
      return 0;
    }
    return CalcAlpha(std::abs(block.NComp.Value), numbers_.Ry, block.Area, phi, numbers_.Yc);
  }

  void PutAlpha(const ElementGroupRow& group) {
    GroupCheck& block = check_.*group.Block;
    block.AlphaX = Alpha(block, block.PhiX);
    block.AlphaY = Alpha(block, block.PhiY);
  }

  void PutLimits(const ElementGroupRow& group) {
    // Without verticals their length 0 brings the message of the limit up twice in each run, once
    // a plane; that is intended.
    GroupCheck& block = check_.*group.Block;
    const SectionRec& section = sections_[group.Place];
    const auto limit = [&](double alpha, double length) {
      return TakeValue(CalcLimitFlex(section, alpha, length, numbers_.Dynamic), told_);
    };
    block.LimitX = limit(block.AlphaX, block.LenX);
    block.LimitY = limit(block.AlphaY, block.LenY);
  }

  double Stability(const GroupCheck& block, double phi) const {
    return CalcStability(std::abs(block.NComp.Value), phi, block.Area, numbers_.Ry, numbers_.Yc,
                         numbers_.Gn);
  }

  void PutUtilisation(const ElementGroupRow& group) {
    GroupCheck& block = check_.*group.Block;
    const bool compressed = block.NComp.Value < 0;
    if (compressed) {
      block.KStabX = Stability(block, block.PhiX);
      block.KStabY = Stability(block, block.PhiY);
    }
    block.KFlexX = Real(block.FlexX) / (compressed ? block.LimitX.Compress : block.LimitX.Tension);
    block.KFlexY = Real(block.FlexY) / (compressed ? block.LimitY.Compress : block.LimitY.Tension);
    // The user's limit is the program's own check.
    block.KUserX = Real(block.FlexX) / numbers_.LimitUser;
    block.KUserY = Real(block.FlexY) / numbers_.LimitUser;
  }

  const TreloData& data_;
  const TreloResult& res_;
  const CheckNumbers& numbers_;
  const SectionArray& sections_;
  CheckResult& check_;
  Messages& told_;
};

}  // namespace

Outcome<CheckResult> CheckueStress(const TreloData& data, const TreloResult& res,
                                   const CheckNumbers& numbers, const SectionArray& sections) {
  return Attempt<CheckResult>(warningTitle, [&](Outcome<CheckResult>& outcome) {
    CheckResult check;
    Check(data, res, numbers, sections, check, outcome.Told).Run();
    outcome.Value = check;
  });
}

bool RecheckGroup(CheckResult& check, ElementGroup group, const TreloData& data,
                  const TreloResult& res, const CheckNumbers& numbers,
                  const SectionArray& sections) {
  const ElementGroupRow& row = RowOf(group);
  // A check that failed is empty: no force has been found.
  if ((check.*row.Block).NMax.Index == 0) {
    return false;
  }
  Messages told;
  return PassOver([&] { Check(data, res, numbers, sections, check, told).Run(row); }) &&
         told.empty();
}

}  // namespace trelonit

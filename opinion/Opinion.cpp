#include "opinion/Opinion.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogue/SectionComposition.h"
#include "checks/ElementGroups.h"
#include "opinion/BarLengths.h"
#include "opinion/Buckling.h"
#include "platform/errors/RuntimeError.h"
#include "platform/values/Arithmetic.h"
#include "platform/values/Units.h"

namespace trelonit {

namespace {

/// Below this share of the greatest force, a force is rounding noise.
constexpr double noise = 1e-9;

double Greatest(const std::vector<double>& values) {
  double greatest = 0;
  for (const double value : values) {
    greatest = std::max(greatest, std::abs(value));
  }
  return greatest;
}

bool IsStability(MemberCheck check) {
  return check == MemberCheck::StabX || check == MemberCheck::StabY;
}

/// With a negative area and negative coefficients a bar would pass everything.
Real Positive(double value) {
  if (!(value > 0)) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  return value;
}

/// Judges one bar after the other with the section of their group.
class GroupJudge {
 public:
  GroupJudge(const JudgedTruss& truss, const SectionProps& section, const CheckNumbers& numbers)
      : truss_(truss),
        numbers_(numbers),
        importance_(Positive(numbers.Gn)),
        capacity_(Positive(section.Area) * Positive(numbers.Ry) * Positive(numbers.Yc)),
        radiusX_(SquareRoot(Positive(section.Jin) / section.Area)),
        radiusY_(SquareRoot(Positive(section.Jout) / section.Area)),
        toConditional_(SquareRoot(Real(numbers.Ry) / Positive(numbers.E))),
        leastCompression_(noise * Greatest(truss.Forces.Forces)) {}

  BarJudgement Judge(std::size_t place) const {
    const TrussBar& bar = truss_.Model.Bars[place];
    BarJudgement judged{.Force = truss_.Forces.Forces[place]};
    judged.Compressed = judged.Force < 0 && -judged.Force >= leastCompression_;
    // SNiP II-23-81*, clause 5.1, formula (5).
    judged.Strength = Magnitude(judged.Force) * importance_ * megapascals / capacity_;
    const BarLengths lengths =
        EffectiveLengthsOf(truss_.Model, bar, truss_.UpperHeld, truss_.LowerHeld);
    PutPlane(judged.X, bar, judged, lengths.X, radiusX_);
    PutPlane(judged.Y, bar, judged, lengths.Y, radiusY_);
    return judged;
  }

 private:
  void PutPlane(PlaneJudgement& plane, const TrussBar& bar, const BarJudgement& judged,
                double length, Real radius) const {
    plane.Length = length;
    plane.Slenderness = Real(length) * 100 / radius;
    plane.FlexBar = plane.Slenderness * toConditional_;
    if (judged.Compressed) {
      const Buckling buckling = BucklingCoefficient(plane.FlexBar, numbers_.Ry, numbers_.E);
      plane.Phi = Positive(buckling.Phi);
      plane.PhiFormula = buckling.Formula;
      // Clause 5.3, formula (7).
      plane.Stability = Real(judged.Strength) / buckling.Phi;
      plane.Alpha = std::clamp(plane.Stability, 0.5, 1.0);
    }
    plane.Limit = LimitSlenderness(bar, judged.Compressed, plane.Alpha);
    plane.Flex = Real(plane.Slenderness) / plane.Limit;
  }

  bool IsChord(const TrussBar& bar) const {
    return bar.Group == ElementGroup::UpPoyas || bar.Group == ElementGroup::DwnPoyas;
  }

  double LimitSlenderness(const TrussBar& bar, bool compressed, double alpha) const {
    if (compressed) {
      // Clause 6.15*, table 19*.
      return (IsChord(bar) || IsSupportBar(truss_.Model, bar) ? 180 : 210) - 60 * alpha;
    }
    if (!numbers_.Dynamic) {
      return 400;
    }
    // Clause 6.16*, table 20*.
    return IsChord(bar) || bar.Group == ElementGroup::OpornRaskos ? 250 : 350;
  }

  const JudgedTruss& truss_;
  const CheckNumbers& numbers_;
  Real importance_;
  Real capacity_;
  Real radiusX_;
  Real radiusY_;
  Real toConditional_;
  double leastCompression_;
};

/// What keeps a design from being judged, in the order in which a user would mend it.
class Objections {
 public:
  explicit Objections(const JudgedDesign& design)
      : design_(design), scheme_(FindScheme(design.Data.TreloType)) {}

  std::string First() const {
    if (scheme_ == nullptr || scheme_->Reserved) {
      return "Эта схема фермы не рассчитывается: усилий нет, сравнивать нечего.";
    }
    if (!design_.Result.UpPoyasForce.IsAllocated()) {
      return "Усилий нет: расчет не выполнен или закончился ошибкой.";
    }
    if (!scheme_->HasPanelNum(design_.Data.PanelNum)) {
      return "Такого количества панелей у этой схемы нет.";
    }
    if (!HasGeometry()) {
      return "По заданным размерам ферма не строится: пролет, высота и панели должны быть больше "
             "нуля, а две опорные панели вместе короче пролета.";
    }
    if (!HasChecks()) {
      return "Проверки не выполнены: программа не рассчитала коэффициенты.";
    }
    if (!HasNumbers()) {
      return "Ry, модуль упругости и оба коэффициента надежности и условий работы должны быть "
             "больше нуля.";
    }
    if (!HasBracing(design_.Data.UpPoyasBrace) || !HasBracing(design_.Data.DownPoyasBrace)) {
      return "Закрепление поясов из плоскости фермы не выбрано.";
    }
    return EmptySection();
  }

 private:
  bool HasGeometry() const {
    const TreloData& data = design_.Data;
    const bool positive = data.LengthF > 0 && data.Hight > 0;
    if (!positive || !scheme_->OwnEndPanels) {
      return positive;
    }
    return data.LenOporn > 0 && 2 * data.LenOporn < data.LengthF;
  }

  bool HasChecks() const {
    return std::any_of(elementGroups.begin(), elementGroups.end(),
                       [&](const auto& group) { return (design_.Check.*group.Block).Area != 0; });
  }

  bool HasNumbers() const {
    const CheckNumbers& numbers = design_.Numbers;
    return numbers.Ry > 0 && numbers.E > 0 && numbers.Yc > 0 && numbers.Gn > 0;
  }

  static bool HasBracing(Long bracing) { return bracing >= 1 && bracing <= 4; }

  std::string EmptySection() const {
    for (const ElementGroupRow& group : elementGroups) {
      if (group.Group == ElementGroup::Stoyka && !scheme_->HasVerticals) {
        continue;
      }
      const SectionProps section = ComposeSection(design_.Sections[group.Place]);
      if (!(section.Area > 0) || !(section.Jin > 0) || !(section.Jout > 0)) {
        return std::string("Площадь и моменты инерции сечения должны быть больше нуля: ") +
               group.Name + ".";
      }
    }
    return {};
  }

  const JudgedDesign& design_;
  const Scheme* scheme_;
};

bool HasBounds(const BoundedArray<double>& array, Long lower, std::size_t upper) {
  return array.IsAllocated() && array.LowerBound() == lower &&
         array.UpperBound() == static_cast<Long>(upper);
}

/// Whether the result has just the bars and joints of this truss.
bool IsOfThisTruss(const Truss& truss, const TreloResult& result) {
  // The bars of an array end with its last one, wherever they stand in the list.
  for (const auto forces : {&TreloResult::UpPoyasForce, &TreloResult::DwnPoyasForce,
                            &TreloResult::RaskosForce, &TreloResult::StoykaForce}) {
    const auto count = std::count_if(truss.Bars.begin(), truss.Bars.end(),
                                     [&](const TrussBar& bar) { return bar.Forces == forces; });
    // Scheme 3 has an array of zeros for the verticals that it does not have.
    if (count != 0 && !HasBounds(result.*forces, 1, static_cast<std::size_t>(count))) {
      return false;
    }
  }
  return HasBounds(result.UpKnotLoad, 0, truss.Upper.size() - 1) &&
         HasBounds(result.DwnKnotLoad, 0, truss.Lower.size() - 1);
}

/// Whether these are loads of all joints and panels of this truss.
bool ReachAllJoints(const LoadArrays& loads, const Truss& truss) {
  const auto reach = [](const BoundedArray<double>& array, std::size_t count) {
    return array.IsAllocated() && array.LowerBound() <= 0 &&
           array.UpperBound() >= static_cast<Long>(count) - 1;
  };
  return reach(loads.UpPForce, truss.Upper.size()) &&
         reach(loads.UpDistForce, truss.Upper.size() - 1) &&
         reach(loads.DwnPForce, truss.Lower.size()) &&
         reach(loads.DwnDistForce, truss.Lower.size() - 1);
}

JudgedTruss Solved(Truss model, const TreloData& data) {
  JudgedTruss truss{.Model = std::move(model)};
  truss.Forces = SolveStatics(truss.Model, JointLoads(truss.Model, data));
  truss.UpperHeld = LengthBetweenHeldPoints(truss.Model, Chord::Upper, data.UpPoyasBrace);
  truss.LowerHeld = LengthBetweenHeldPoints(truss.Model, Chord::Lower, data.DownPoyasBrace);
  return truss;
}

Statics ToldStatics(const Truss& truss, const std::vector<double>& loads,
                    const TreloResult& result) {
  Statics told{.Loads = loads,
               .ReactLeft = Finite(result.ReactLeft),
               .ReactRight = Finite(result.ReactRight)};
  told.Forces.reserve(truss.Bars.size());
  for (const TrussBar& bar : truss.Bars) {
    told.Forces.push_back(Finite((result.*bar.Forces)[bar.Subscript]));
  }
  return told;
}

Opinion Refused(std::string why) {
  Opinion opinion;
  opinion.Refusal = std::move(why);
  return opinion;
}

Opinion Form(const JudgedDesign& design) {
  if (std::string objection = Objections(design).First(); !objection.empty()) {
    return Refused(std::move(objection));
  }
  Truss model = TrussOf(design.Data);
  if (!IsOfThisTruss(model, design.Result) || !ReachAllJoints(design.Data, model)) {
    return Refused("Результаты относятся к другой ферме: выполните расчет заново.");
  }
  JudgedTruss truss = Solved(std::move(model), design.Data);
  Opinion opinion;
  opinion.Bars.resize(truss.Model.Bars.size());
  for (const ElementGroupRow& group : elementGroups) {
    if (group.Group != ElementGroup::Stoyka || FindScheme(design.Data.TreloType)->HasVerticals) {
      opinion.Groups.push_back(JudgeGroup(truss, group.Group,
                                          ComposeSection(design.Sections[group.Place]),
                                          design.Numbers, opinion.Bars));
    }
  }
  opinion.Told = ToldStatics(truss.Model, truss.Forces.Loads, design.Result);
  opinion.ToldResiduals = Residuals(truss.Model, opinion.Told);
  opinion.GreatestForce = std::max(
      {Greatest(truss.Forces.Forces), Greatest(truss.Forces.Loads), Greatest(opinion.Told.Forces)});
  opinion.UpperHeld = truss.UpperHeld;
  opinion.LowerHeld = truss.LowerHeld;
  opinion.Model = std::move(truss.Model);
  opinion.Forces = std::move(truss.Forces);
  return opinion;
}

}  // namespace

double BarJudgement::Figure(MemberCheck check) const {
  const PlaneJudgement* plane = PlaneOf(check);
  if (plane == nullptr) {
    return Strength;
  }
  return IsStability(check) ? plane->Stability : plane->Flex;
}

const PlaneJudgement* BarJudgement::PlaneOf(MemberCheck check) const {
  switch (check) {
    case MemberCheck::Strength:
      return nullptr;
    case MemberCheck::StabX:
    case MemberCheck::FlexX:
      return &X;
    case MemberCheck::StabY:
    case MemberCheck::FlexY:
      break;
  }
  return &Y;
}

const GroupJudgement* Opinion::FindGroup(ElementGroup group) const {
  const auto found = std::find_if(Groups.begin(), Groups.end(), [&](const GroupJudgement& judged) {
    return judged.Group == group;
  });
  return found == Groups.end() ? nullptr : &*found;
}

double Opinion::SmallestForce() const {
  return noise * GreatestForce;
}

std::vector<std::size_t> Opinion::UnbalancedJoints() const {
  std::vector<std::size_t> joints;
  for (std::size_t joint = 0; joint < ToldResiduals.size(); ++joint) {
    if (ToldResiduals[joint].Size() > SmallestForce()) {
      joints.push_back(joint);
    }
  }
  return joints;
}

double Opinion::GreatestResidual() const {
  double greatest = 0;
  for (const std::size_t joint : UnbalancedJoints()) {
    greatest = std::max(greatest, ToldResiduals[joint].Size());
  }
  return greatest;
}

JudgedTruss SolveTruss(const TreloData& data) {
  return Solved(TrussOf(data), data);
}

GroupJudgement JudgeGroup(const JudgedTruss& truss, ElementGroup group, const SectionProps& section,
                          const CheckNumbers& numbers, std::vector<BarJudgement>& bars) {
  const GroupJudge judge(truss, section, numbers);
  GroupJudgement judged{.Group = group, .Section = section};
  for (std::size_t place = 0; place < truss.Model.Bars.size(); ++place) {
    if (truss.Model.Bars[place].Group != group) {
      continue;
    }
    bars[place] = judge.Judge(place);
    for (const MemberCheckRow& row : memberChecks) {
      if (IsStability(row.Check) && !bars[place].Compressed) {
        continue;
      }
      const auto check = static_cast<std::size_t>(row.Check);
      const double figure = bars[place].Figure(row.Check);
      if (!judged.Governing[check] || figure > judged.Figures[check]) {
        judged.Figures[check] = figure;
        judged.Governing[check] = place;
      }
    }
  }
  return judged;
}

double LargestFigure(const GroupJudgement& group) {
  return *std::max_element(group.Figures.begin(), group.Figures.end());
}

Opinion FormOpinion(const JudgedDesign& design) {
  try {
    return Form(design);
  } catch (const RuntimeError&) {
    return Refused("Исходные данные выходят за пределы, в которых нормы дают ответ.");
  }
}

}  // namespace trelonit

#include "variants/Variant.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "analysis/Scheme.h"
#include "analysis/modMaxProgib.h"
#include "checks/ElementGroups.h"
#include "opinion/Opinion.h"
#include "platform/errors/Guard.h"
#include "variants/LoadsElsewhere.h"
#include "variants/Refusal.h"
#include "workstation/design/EnteredDesign.h"
#include "workstation/design/OpinionSelection.h"
#include "workstation/design/ProgibResult.h"
#include "workstation/design/RepeatedSelection.h"
#include "workstation/design/SecondOpinion.h"
#include "workstation/design/modHelper.h"
#include "workstation/results/ResultPicture.h"

namespace trelonit {

namespace {

/// What makes a truss of four sizes.
void RequireGeometry(const DesignInputs& inputs) {
  const Scheme* scheme = FindScheme(inputs.TreloType);
  if (scheme == nullptr || scheme->Reserved) {
    Refuse("схема " + std::to_string(inputs.TreloType) + " не рассчитывается");
  }
  if (!scheme->HasPanelNum(inputs.PanelNum) || inputs.PanelNum > mostPanels) {
    Refuse("в схеме " + std::to_string(inputs.TreloType) +
           " не бывает панелей: " + std::to_string(inputs.PanelNum));
  }
  if (!(inputs.LengthF > 0) || !(inputs.Hight > 0)) {
    Refuse("пролет и высота должны быть больше нуля");
  }
  if (!(inputs.LengthF > inputs.Hight)) {
    Refuse("высота не меньше пролета");
  }
  if (scheme->OwnEndPanels && !(2 * inputs.LenOporn < inputs.LengthF)) {
    Refuse("крайние панели длиннее фермы");
  }
}

bool SameTruss(const TreloData& a, const TreloData& b) {
  return a.TreloType == b.TreloType && a.LengthF == b.LengthF && a.LenOporn == b.LenOporn &&
         a.PanelNum == b.PanelNum;
}

/// The maker of one variant.
class Making {
 public:
  Making(Variant& variant, const VariantRules& rules, const ProfileTypeArray& catalogue)
      : variant_(variant), inputs_(variant.Inputs), rules_(rules), catalogue_(catalogue) {}

  void Run(const DesignInputs& base) {
    RequireGeometry(inputs_);
    BringLoads(base);
    RequireCalculation();
    const bool ownWeight = inputs_.OwnWeightOn != 0;
    const SelectionProposal settled = (rules_.ByOpinion ? SelectByOpinion : SelectUntilSettled)(
        DesignNow(), catalogue_, CheckNumbersOf(inputs_), ownWeight);
    variant_.Rounds = settled.Rounds;
    inputs_.ElementSection = settled.Sections;
    calculation_ = *settled.Settled;
    variant_.Mass = calculation_.CheckData.Mass;
    PutUse();
    PutProgib();
    Judge(settled);
  }

 private:
  void BringLoads(const DesignInputs& base) {
    const TreloData from = DesignOf(base, {}).TreloData;
    const TreloData to = DesignNow().TreloData;
    if (!SameTruss(from, to)) {
      inputs_.Loads = LoadsElsewhere(from, to);
    }
  }

  /// With the user's loads alone: own weight comes with each calculation.
  Design DesignNow() const { return DesignOf(inputs_, {}); }

  /// The selections tell nothing of what keeps a design from being calculated.
  void RequireCalculation() const {
    const Messages told = Calculate(DesignNow(), CheckNumbersOf(inputs_)).Told;
    if (!told.empty()) {
      Refuse(told.front().Text);
    }
  }

  void PutUse() {
    std::optional<Opinion> opinion;
    if (rules_.ByOpinion) {
      opinion = FormOpinion(Judged(calculation_));
      if (opinion->HasRefused()) {
        Refuse(opinion->Refusal);
      }
    }
    for (const ElementGroupRow& row : elementGroups) {
      if (row.Group == ElementGroup::Stoyka && !HasVerticals(inputs_.TreloType)) {
        continue;
      }
      double& use = variant_.Use[static_cast<std::size_t>(row.Place) - 1];
      use = LargestUse(calculation_.CheckData.*row.Block);
      if (const GroupJudgement* group = opinion ? opinion->FindGroup(row.Group) : nullptr) {
        use = std::max(use, LargestFigure(*group));
      }
    }
  }

  void PutProgib() {
    const Outcome<double> progib =
        CalcProgib(calculation_.TreloData, calculation_.TreloResult, calculation_.CheckData,
                   inputs_.ProgibUpper != 0, calculation_.Numbers.E);
    variant_.Progib = progib.Value;
  }

  void Judge(const SelectionProposal& proposal) {
    if (!proposal.Impossible.empty()) {
      std::string groups;
      for (const GroupOption group : proposal.Impossible) {
        groups += (groups.empty() ? "" : ", ") + GroupName(group);
      }
      Refuse("Подбор невозможен: " + groups);
    }
    variant_.Verdict = VariantVerdict::Fails;
    if (!calculation_.TreloResult.Balanced) {
      variant_.Reason = "усилия не уравновешены";
    } else if (*std::max_element(variant_.Use.begin(), variant_.Use.end()) > 1) {
      variant_.Reason = "коэффициент использования больше 1";
    } else if (inputs_.ProgibOn != 0 &&
               !JudgeProgib(variant_.Progib, inputs_.LengthF, inputs_.LenLim, NumberLocale{})
                    .Satisfied) {
      variant_.Reason = "прогиб больше предельного";
    } else {
      variant_.Verdict = VariantVerdict::Passes;
    }
    if (proposal.Circles) {
      variant_.Reason += (variant_.Reason.empty() ? "" : "; ") +
                         std::string("размеры чередуются, взят лучший из кругов подбора");
    }
  }

  Variant& variant_;
  DesignInputs& inputs_;
  const VariantRules& rules_;
  const ProfileTypeArray& catalogue_;
  Calculation calculation_;
};

}  // namespace

Variant MakeVariant(const VariantSpace& space, std::uint64_t number, const VariantRules& rules,
                    const ProfileTypeArray& catalogue) {
  Variant variant{.Number = number, .Inputs = space.At(number)};
  try {
    Making(variant, rules, catalogue).Run(space.Base());
  } catch (...) {
    variant = {.Number = number,
               .Inputs = std::move(variant.Inputs),
               .Reason = ErrorInHand().Description(),
               .Rounds = variant.Rounds};
  }
  return variant;
}

}  // namespace trelonit

#include "workstation/design/SecondOpinion.h"

#include <algorithm>

#include "checks/ElementGroups.h"
#include "workstation/design/modHelper.h"

namespace trelonit {

bool SecondOpinion::HasDanger() const {
  return std::any_of(Findings.begin(), Findings.end(),
                     [](const Finding& finding) { return finding.Grade == Severity::Danger; });
}

std::optional<Explanation> SecondOpinion::FindExplanation(ExplanationSource source,
                                                          std::optional<ElementGroup> group,
                                                          const std::string& check) const {
  const auto found =
      std::find_if(Explanations.begin(), Explanations.end(), [&](const Explanation& explanation) {
        return explanation.Source == source && explanation.Group == group &&
               explanation.Check == check;
      });
  return found == Explanations.end() ? std::nullopt : std::optional(*found);
}

JudgedDesign Judged(const Calculation& calculation) {
  return {.Data = calculation.TreloData,
          .Result = calculation.TreloResult,
          .Check = calculation.CheckData,
          .Sections = calculation.ElementSection,
          .Numbers = calculation.Numbers};
}

SecondOpinion FormSecondOpinion(const Calculation& calculation, const Circumstances& circumstances,
                                const NumberLocale& locale) {
  const JudgedDesign judged = Judged(calculation);
  const std::optional<ProgibResult>& progib = calculation.Progib;
  const auto deflection = progib ? std::optional(ToldDeflection{progib->Value, progib->Limit})
                                 : std::optional<ToldDeflection>();
  SecondOpinion opinion{.Figures = FormOpinion(judged)};
  opinion.Findings = FindAll(judged, opinion.Figures, circumstances, locale);
  opinion.Explanations = Explain(judged, opinion.Figures, deflection);
  return opinion;
}

std::vector<Circumstances::FailingGroup> GroupsThatFail(const Design& design,
                                                        const CheckNumbers& numbers,
                                                        bool ownWeight) {
  const Calculation calculation =
      ownWeight ? CalculateWithOwnWeight(design, numbers) : Calculate(design, numbers).Value;
  std::vector<Circumstances::FailingGroup> failing;
  for (const ElementGroupRow& row : elementGroups) {
    const double use = LargestUse(calculation.CheckData.*row.Block);
    if (use > 1) {
      failing.push_back({row.Group, use});
    }
  }
  return failing;
}

}  // namespace trelonit

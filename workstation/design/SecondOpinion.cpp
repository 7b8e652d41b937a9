#include "workstation/design/SecondOpinion.h"

#include <algorithm>

#include "checks/ElementGroups.h"
#include "workstation/design/modHelper.h"

namespace trelonit {

namespace {

std::optional<ToldDeflection> DeflectionOf(const Calculation& calculation) {
  const std::optional<ProgibResult>& progib = calculation.Progib;
  return progib ? std::optional(ToldDeflection{progib->Value, progib->Limit}) : std::nullopt;
}

}  // namespace

bool SecondOpinion::HasDanger() const {
  return std::any_of(Findings.begin(), Findings.end(),
                     [](const Finding& finding) { return finding.Grade == Severity::Danger; });
}

std::vector<Explanation> SecondOpinion::Explanations() const {
  return Of ? Explain(Judged(*Of), Figures, DeflectionOf(*Of)) : std::vector<Explanation>();
}

std::optional<Explanation> SecondOpinion::FindExplanation(ExplanationSource source,
                                                          std::optional<ElementGroup> group,
                                                          const std::string& check) const {
  if (!Of) {
    return std::nullopt;
  }
  std::vector<Explanation> candidates;
  if (group) {
    candidates = source == ExplanationSource::Told
                     ? ExplainToldGroup(Judged(*Of), *group)
                     : ExplainOpinionGroup(Judged(*Of), Figures, *group);
  } else if (source == ExplanationSource::Told) {
    candidates = ExplainToldTruss(Judged(*Of), DeflectionOf(*Of));
  }
  const auto found =
      std::find_if(candidates.begin(), candidates.end(),
                   [&](const Explanation& explanation) { return explanation.Check == check; });
  return found == candidates.end() ? std::nullopt : std::optional(std::move(*found));
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
  SecondOpinion opinion{.Figures = FormOpinion(judged)};
  opinion.Findings = FindAll(judged, opinion.Figures, circumstances, locale);
  opinion.Of = std::make_shared<const Calculation>(calculation);
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

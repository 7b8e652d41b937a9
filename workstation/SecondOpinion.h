#pragma once

#include <optional>
#include <string>
#include <vector>

#include "opinion/Explanation.h"
#include "opinion/Findings.h"
#include "platform/NumberText.h"
#include "workstation/DesignModel.h"
#include "workstation/ProgibResult.h"

namespace trelonit {

/// What statics and the norm say of a calculated design, with the words for it.
struct SecondOpinion {
  Opinion Figures;
  std::vector<Finding> Findings;          ///< the gravest first
  std::vector<Explanation> Explanations;  ///< of the told checks, then of the opinion's

  bool HasDanger() const;
  /// How a check came to its figure; nothing where it has none. Without a group: a check of the
  /// whole truss.
  std::optional<Explanation> FindExplanation(ExplanationSource source,
                                             std::optional<ElementGroup> group,
                                             const std::string& check) const;
};

/// The opinion on the last calculation of a design.
SecondOpinion FormSecondOpinion(const Design& design, const CheckNumbers& numbers,
                                const std::optional<ProgibResult>& progib,
                                const Circumstances& circumstances, const NumberLocale& locale);

/// The groups that do not pass once the design is calculated with the sections that it has, own
/// weight included where it is asked for. The design itself stays; nothing is shown.
std::vector<Circumstances::FailingGroup> GroupsThatFail(Design design, const CheckNumbers& numbers,
                                                        bool ownWeight);

}  // namespace trelonit

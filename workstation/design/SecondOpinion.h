#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "opinion/Explanation.h"
#include "opinion/Findings.h"
#include "platform/text/NumberText.h"
#include "workstation/design/Calculation.h"

namespace trelonit {

/// What statics and the norm say of a calculated design, with the words for it.
struct SecondOpinion {
  Opinion Figures;
  std::vector<Finding> Findings;  ///< the gravest first
  /// What it is an opinion of; null where there is none.
  std::shared_ptr<const Calculation> Of;

  bool HasDanger() const;
  /// Of the told checks, then of the opinion's. Put into words when somebody asks: forming an
  /// opinion takes a tenth of that, and most of the words nobody reads.
  std::vector<Explanation> Explanations() const;
  /// How a check came to its figure; nothing where it has none. Without a group: a check of the
  /// whole truss.
  std::optional<Explanation> FindExplanation(ExplanationSource source,
                                             std::optional<ElementGroup> group,
                                             const std::string& check) const;
};

SecondOpinion FormSecondOpinion(const Calculation& calculation, const Circumstances& circumstances,
                                const NumberLocale& locale);

/// A calculation as the opinion reads it; it keeps nothing of its own.
JudgedDesign Judged(const Calculation& calculation);

/// The groups that do not pass once the design is calculated with the sections that it has, own
/// weight included where it is asked for. Tells nothing.
std::vector<Circumstances::FailingGroup> GroupsThatFail(const Design& design,
                                                        const CheckNumbers& numbers,
                                                        bool ownWeight);

}  // namespace trelonit

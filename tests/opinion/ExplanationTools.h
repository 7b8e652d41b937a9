#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "opinion/Explanation.h"

namespace trelonit::test {

inline const Explanation& Find(const std::vector<Explanation>& explanations, ElementGroup group,
                               const std::string& check) {
  const auto found =
      std::find_if(explanations.begin(), explanations.end(), [&](const Explanation& explanation) {
        return explanation.Group == group && explanation.Check == check;
      });
  if (found == explanations.end()) {
    throw std::logic_error("not explained: " + check);
  }
  return *found;
}

/// Its step with this symbol.
inline const ExplanationStep& StepOf(const Explanation& explanation, const std::string& symbol) {
  const auto found =
      std::find_if(explanation.Steps.begin(), explanation.Steps.end(),
                   [&](const ExplanationStep& step) { return step.Symbol == symbol; });
  if (found == explanation.Steps.end()) {
    throw std::logic_error("no step: " + symbol);
  }
  return *found;
}

}  // namespace trelonit::test

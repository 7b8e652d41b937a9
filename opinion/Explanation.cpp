#include "opinion/Explanation.h"

#include "opinion/ExplanationBuilder.h"

namespace trelonit {

std::vector<Explanation> Explain(const JudgedDesign& design, const Opinion& opinion,
                                 const std::optional<ToldDeflection>& deflection) {
  std::vector<Explanation> explanations = ExplainTold(design, deflection);
  AppendTo(explanations, ExplainOpinion(design, opinion));
  return explanations;
}

}  // namespace trelonit

#include "opinion/Explanation.h"

#include <iterator>

namespace trelonit {

std::vector<Explanation> Explain(const JudgedDesign& design, const Opinion& opinion,
                                 const std::optional<ToldDeflection>& deflection) {
  std::vector<Explanation> explanations = ExplainTold(design, deflection);
  std::vector<Explanation> byNorm = ExplainOpinion(design, opinion);
  explanations.insert(explanations.end(), std::make_move_iterator(byNorm.begin()),
                      std::make_move_iterator(byNorm.end()));
  return explanations;
}

}  // namespace trelonit

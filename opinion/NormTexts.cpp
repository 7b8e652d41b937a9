#include "opinion/NormTexts.h"

#include <array>

namespace trelonit {

PhiText TextOfPhi(int formula) {
  switch (formula) {
    case 8:
      return {"1-(0.073-5.53*Ry/E)*λ̄*sqrt(λ̄)", "п. 5.3, формула (8)"};
    case 9:
      return {"1.47-13*Ry/E-(0.371-27.3*Ry/E)*λ̄+(0.0275-5.53*Ry/E)*λ̄*λ̄", "п. 5.3, формула (9)"};
    case 10:
      return {"332/(λ̄*λ̄*(51-λ̄))", "п. 5.3, формула (10)"};
    default:
      return {"0.017", "правило программы"};
  }
}

std::string BracingCaption(Long bracing) {
  static constexpr std::array<const char*, 4> captions{
      "Только крайние", "Крайние и посредине пролета", "Через один", "Все узлы"};
  const bool known = bracing >= 1 && bracing <= static_cast<Long>(captions.size());
  return known ? captions[static_cast<std::size_t>(bracing - 1)] : "";
}

}  // namespace trelonit

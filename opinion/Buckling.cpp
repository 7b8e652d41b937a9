#include "opinion/Buckling.h"

#include "platform/values/Arithmetic.h"

namespace trelonit {

Buckling BucklingCoefficient(double conditionalSlenderness, double Ry, double E) {
  const Real x = conditionalSlenderness;
  const Real q = Real(Ry) / E;
  if (x <= 2.5) {
    return {1 - (0.073 - 5.53 * q) * x * SquareRoot(x), 8};
  }
  if (x <= 4.5) {
    return {1.47 - 13 * q - (0.371 - 27.3 * q) * x + (0.0275 - 5.53 * q) * x * x, 9};
  }
  if (x <= 35) {
    return {332 / (x * x * (51 - x)), 10};
  }
  return {0.017, 0};
}

}  // namespace trelonit

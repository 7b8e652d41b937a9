#include "workstation/design/Calculation.h"

#include <utility>

#include "analysis/modTrelo.h"
#include "checks/modCheckueStress.h"
#include "workstation/design/OwnWeight.h"

namespace trelonit {

Outcome<Calculation> Calculate(Design design, const CheckNumbers& numbers) {
  Outcome<Calculation> outcome;
  Calculation& calculation = outcome.Value;
  static_cast<Design&>(calculation) = std::move(design);
  calculation.Numbers = numbers;
  calculation.TreloResult = TakeValue(CalcTrelo(calculation.TreloData), outcome.Told);
  calculation.CheckData = TakeValue(CheckueStress(calculation.TreloData, calculation.TreloResult,
                                                  numbers, calculation.ElementSection),
                                    outcome.Told);
  return outcome;
}

Calculation CalculateWithOwnWeight(Design design, const CheckNumbers& numbers) {
  Calculation calculation = Calculate(std::move(design), numbers).Value;
  if (PutOwnWeight(calculation.TreloData, calculation.OwnWeight,
                   OwnWeightPerMetreOf(calculation))) {
    calculation = Calculate(std::move(calculation), numbers).Value;
  }
  return calculation;
}

}  // namespace trelonit

#include "workstation/design/Calculation.h"

#include "analysis/modTrelo.h"
#include "checks/modCheckueStress.h"
#include "workstation/design/OwnWeight.h"

namespace trelonit {

Outcome<Calculation> Calculate(const Design& design, const CheckNumbers& numbers) {
  Outcome<Calculation> outcome;
  Calculation& calculation = outcome.Value;
  calculation.TreloData = design.TreloData;
  static_cast<LoadArrays&>(calculation.TreloData) = design.Loads;
  calculation.ElementSection = design.ElementSection;
  calculation.Numbers = numbers;
  calculation.OwnWeightAdded = design.OwnWeightAdded;
  calculation.OwnWeightPerMetre = design.OwnWeightPerMetre;
  calculation.TreloResult = TakeValue(CalcTrelo(calculation.TreloData), outcome.Told);
  calculation.CheckData = TakeValue(CheckueStress(calculation.TreloData, calculation.TreloResult,
                                                  numbers, calculation.ElementSection),
                                    outcome.Told);
  return outcome;
}

Calculation CalculateWithOwnWeight(Design& design, const CheckNumbers& numbers) {
  Calculation calculation = Calculate(design, numbers).Value;
  if (PutOwnWeight(design, OwnWeightPerMetreOf(calculation))) {
    calculation = Calculate(design, numbers).Value;
  }
  return calculation;
}

}  // namespace trelonit

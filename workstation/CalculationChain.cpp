#include "workstation/CalculationChain.h"

#include "analysis/modMaxProgib.h"
#include "analysis/modTrelo.h"
#include "platform/Arithmetic.h"
#include "workstation/Loads.h"

namespace trelonit {

void AnalyseAndCheck(Design& design, const CheckNumbers& numbers, MessageService& messages) {
  static_cast<LoadArrays&>(design.TreloData) = design.Loads;
  design.TreloResult = CalcTrelo(design.TreloData, messages);
  design.CheckData =
      CheckueStress(design.TreloData, design.TreloResult, numbers, design.ElementSection, messages);
}

bool ApplyOwnWeight(Design& design, const CheckNumbers& numbers, MessageService& messages) {
  const TreloResult& result = design.TreloResult;
  const double perMetre = RoundToDecimals(
      Real(design.CheckData.Mass) / (Real(result.SumLenDwnPoyas) + result.SumLenUpPoyas), 4);
  if (design.OwnWeightAdded) {
    if (design.OwnWeightPerMetre == perMetre) {
      return false;
    }
    AddToDistributedLoads(design.Loads, -design.OwnWeightPerMetre);
  }
  AddToDistributedLoads(design.Loads, perMetre);
  design.OwnWeightAdded = true;
  design.OwnWeightPerMetre = perMetre;
  AnalyseAndCheck(design, numbers, messages);
  return true;
}

ProgibResult CheckProgib(const Design& design, bool upChord, double E, std::string_view limitText,
                         const NumberLocale& locale, MessageService& messages) {
  ProgibResult progib;
  progib.Value =
      CalcProgib(design.TreloData, design.TreloResult, design.CheckData, upChord, E, messages);
  constexpr std::size_t denominatorPlace = 4;
  const std::string_view denominator =
      limitText.size() > denominatorPlace ? limitText.substr(denominatorPlace) : "";
  progib.Limit = Real(design.TreloData.LengthF) / TextToLong(denominator, locale);
  progib.Satisfied = !(progib.Value > progib.Limit);
  return progib;
}

}  // namespace trelonit

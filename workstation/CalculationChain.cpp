#include "workstation/CalculationChain.h"

#include "analysis/modMaxProgib.h"
#include "analysis/modTrelo.h"
#include "platform/Arithmetic.h"
#include "workstation/Loads.h"

namespace trelonit {

void AnalyseAndCheck(DesignModel& model, const CheckNumbers& numbers, MessageService& messages) {
  static_cast<LoadArrays&>(model.TreloData) = model.Loads;
  model.TreloResult = CalcTrelo(model.TreloData, messages);
  model.CheckData =
      CheckueStress(model.TreloData, model.TreloResult, numbers, model.ElementSection, messages);
}

bool ApplyOwnWeight(DesignModel& model, const CheckNumbers& numbers, MessageService& messages) {
  const TreloResult& result = model.TreloResult;
  const double perMetre = RoundToDecimals(
      Real(model.CheckData.Mass) / (Real(result.SumLenDwnPoyas) + result.SumLenUpPoyas), 4);
  if (model.OwnWeightAdded) {
    if (model.OwnWeightPerMetre == perMetre) {
      return false;
    }
    AddToDistributedLoads(model.Loads, -model.OwnWeightPerMetre);
  }
  AddToDistributedLoads(model.Loads, perMetre);
  model.OwnWeightAdded = true;
  model.OwnWeightPerMetre = perMetre;
  AnalyseAndCheck(model, numbers, messages);
  return true;
}

ProgibResult CheckProgib(const DesignModel& model, bool upChord, double E,
                         std::string_view limitText, const NumberLocale& locale,
                         MessageService& messages) {
  ProgibResult progib;
  progib.Value =
      CalcProgib(model.TreloData, model.TreloResult, model.CheckData, upChord, E, messages);
  constexpr std::size_t denominatorPlace = 4;
  const std::string_view denominator =
      limitText.size() > denominatorPlace ? limitText.substr(denominatorPlace) : "";
  progib.Limit = Real(model.TreloData.LengthF) / TextToLong(denominator, locale);
  progib.Satisfied = !(progib.Value > progib.Limit);
  return progib;
}

}  // namespace trelonit

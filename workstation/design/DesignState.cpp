#include "workstation/design/DesignState.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trelonit {

namespace {

bool SameValues(const BoundedArray<double>& a, double insideA, const BoundedArray<double>& b,
                double insideB) {
  // What adding and subtracting own weight leaves in the last digits is no change.
  constexpr double rounding = 1e-9;
  return a.IsAllocated() == b.IsAllocated() &&
         std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](double one, double other) {
           return one == other || std::abs((one - insideA) - (other - insideB)) <= rounding;
         });
}

/// Without what is compared by itself or is no design.
DesignInputs Compared(DesignInputs inputs) {
  inputs.ActiveGroup = 0;
  inputs.PForceTool = 0;
  inputs.AllPanelsOn = 0;
  inputs.Loads = {};
  return inputs;
}

}  // namespace

bool SameLoads(const DesignState& a, const DesignState& b) {
  const LoadArrays& one = a.Inputs.Loads;
  const LoadArrays& other = b.Inputs.Loads;
  const double insideA = InsideOf(a.OwnWeight);
  const double insideB = InsideOf(b.OwnWeight);
  return SameValues(one.UpPForce, 0, other.UpPForce, 0) &&
         SameValues(one.DwnPForce, 0, other.DwnPForce, 0) &&
         SameValues(one.UpDistForce, insideA, other.UpDistForce, insideB) &&
         SameValues(one.DwnDistForce, insideA, other.DwnDistForce, insideB);
}

bool SameDesign(const DesignState& a, const DesignState& b) {
  return a.Texts == b.Texts && a.OwnWeightInside == b.OwnWeightInside && SameLoads(a, b) &&
         Compared(a.Inputs) == Compared(b.Inputs);
}

std::size_t BytesOf(const DesignState& state) {
  const auto values = [](const BoundedArray<double>& array) {
    return static_cast<std::size_t>(array.end() - array.begin()) * sizeof(double);
  };
  const LoadArrays& loads = state.Inputs.Loads;
  const DesignTexts& texts = state.Texts;
  std::size_t bytes = sizeof(DesignState) + sectionCount * sizeof(SectionRec) +
                      values(loads.UpPForce) + values(loads.UpDistForce) + values(loads.DwnPForce) +
                      values(loads.DwnDistForce);
  for (const std::string* text :
       {&state.Inputs.SteelName, &state.Inputs.LenLim, &texts.LengthF, &texts.Hight,
        &texts.LenOporn, &texts.PanelNum, &texts.Ry, &texts.UsloviyaRabot, &texts.Nadegnost,
        &texts.Steel.ModulYung, &texts.Steel.DensitSteel, &texts.Steel.LimitFlex}) {
    bytes += text->capacity();
  }
  return bytes;
}

}  // namespace trelonit

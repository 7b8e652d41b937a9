#include "workstation/design/OwnWeight.h"

#include <algorithm>
#include <cmath>

#include "analysis/Scheme.h"
#include "catalogue/SectionComposition.h"
#include "checks/ElementGroups.h"
#include "platform/errors/Guard.h"
#include "platform/text/NumberText.h"
#include "platform/values/Arithmetic.h"
#include "workstation/design/Loads.h"

namespace trelonit {

namespace {

/// The smallest load of any panel, if the lower chord has no other.
std::optional<double> CommonLoad(const LoadArrays& loads) {
  if (loads.DwnDistForce.begin() == loads.DwnDistForce.end() ||
      loads.UpDistForce.begin() == loads.UpDistForce.end()) {
    return std::nullopt;
  }
  // The sums of the file's numbers differ in their last digits.
  constexpr double rounding = 1e-9;
  const double common = *loads.DwnDistForce.begin();
  const auto same = [&](double load) { return std::abs(load - common) <= rounding * common; };
  const auto holds = [&](double load) { return load >= common * (1 - rounding); };
  const bool found = common > 0 &&
                     std::all_of(loads.DwnDistForce.begin(), loads.DwnDistForce.end(), same) &&
                     std::all_of(loads.UpDistForce.begin(), loads.UpDistForce.end(), holds);
  return found ? std::optional(common) : std::nullopt;
}

/// The mass of the truss over the length of both its chords, tonnes per metre, from the geometry of
/// the scheme. Raises 5 for a truss that is none.
double WeightPerMetre(const TreloData& data, const SectionArray& sections, double density) {
  Real mass;
  Real chords;
  for (const TrussBar& bar : TrussOf(data).Bars) {
    const ElementGroupRow& row = RowOf(bar.Group);
    // cm2 and metres.
    mass += Real(ComposeSection(sections[row.Place]).Area) * bar.Length * density / 10000;
    if (bar.Group == ElementGroup::UpPoyas || bar.Group == ElementGroup::DwnPoyas) {
      chords += bar.Length;
    }
  }
  return mass / chords;
}

}  // namespace

double OwnWeightPerMetreOf(const Calculation& calculation) {
  constexpr int decimals = 4;
  const TreloResult& result = calculation.TreloResult;
  return RoundToDecimals(
      Real(calculation.CheckData.Mass) / (Real(result.SumLenDwnPoyas) + result.SumLenUpPoyas),
      decimals);
}

bool PutOwnWeight(LoadArrays& loads, OwnWeightState& state, double perMetre) {
  if (state.Added) {
    if (state.PerMetre == perMetre) {
      return false;
    }
    AddToDistributedLoads(loads, -state.PerMetre);
  }
  AddToDistributedLoads(loads, perMetre);
  state = {.Added = true, .PerMetre = perMetre};
  return true;
}

bool WithdrawOwnWeight(LoadArrays& loads, OwnWeightState& state) {
  const bool inside = state.PerMetre > 0;
  if (inside) {
    AddToDistributedLoads(loads, -state.PerMetre);
  } else {
    state.PerMetre = 0;
  }
  state.Added = false;
  return inside;
}

std::optional<double> OwnWeightInside(const TreloData& data, const SectionArray& sections,
                                      double density) {
  constexpr double mostOfOwnWeight = 3;
  std::optional<double> inside = CommonLoad(data);
  if (inside) {
    double perMetre = 0;
    PassOver([&] { perMetre = WeightPerMetre(data, sections, density); });
    if (*inside > mostOfOwnWeight * perMetre) {
      inside.reset();
    }
  }
  return inside;
}

}  // namespace trelonit

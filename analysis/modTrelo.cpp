#include "analysis/modTrelo.h"

#include <array>

#include "analysis/Scheme.h"

namespace trelonit {

namespace {

using Solver = Outcome<TreloResult> (*)(const TreloData&);

constexpr std::array<Solver, schemeCount> solvers{CalcTrelo1, CalcTrelo2, CalcTrelo3, CalcTrelo4,
                                                  CalcTrelo5, CalcTrelo6, CalcTrelo7, CalcTrelo8,
                                                  CalcTrelo9, CalcTrelo10};

constexpr const char* title = "Trelo's error";

}  // namespace

Outcome<TreloResult> CalcTrelo(const TreloData& data) {
  return Attempt<TreloResult>(title, [&](Outcome<TreloResult>& outcome) {
    if (FindScheme(data.TreloType) == nullptr) {
      outcome.Told.push_back({.Title = title,
                              .Text = "Неизвестный тип фермы, расчет не возможен ",
                              .Style = MessageStyle::Critical});
      return;
    }
    outcome = solvers[static_cast<std::size_t>(data.TreloType - 1)](data);
  });
}

}  // namespace trelonit

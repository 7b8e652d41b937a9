#include "workstation/design/SectionSummary.h"

#include "analysis/Scheme.h"
#include "catalogue/SectionComposition.h"
#include "checks/ElementGroups.h"
#include "platform/errors/Guard.h"
#include "platform/text/NumberText.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

constexpr double kilogramsInTonne = 1000;

GroupTotals TotalsOf(const TreloData& data, ElementGroup group, Real tonnesPerMetre) {
  GroupTotals totals;
  if (!(data.LengthF > 0 && data.Hight > 0 && PanelLength(data) > 0)) {
    return totals;
  }
  Real length = 0;
  for (const TrussBar& bar : TrussOf(data).Bars) {
    if (bar.Group == group) {
      ++totals.Bars;
      length += bar.Length;
    }
  }
  totals.Length = length;
  totals.Mass = length * tonnesPerMetre;
  return totals;
}

/// "1 стержень", "2 стержня", "5 стержней".
std::string CountOfBars(Long count) {
  const Long last = count % 10;
  const bool teens = count % 100 / 10 == 1;
  return std::to_string(count) + (teens || last == 0 || last > 4 ? " стержней"
                                  : last == 1                    ? " стержень"
                                                                 : " стержня");
}

}  // namespace

std::optional<SectionSummary> SummariseSection(const Design& design, ElementGroup group,
                                               double density) {
  std::optional<SectionSummary> summary;
  PassOver([&] {
    const SectionProps props = ComposeSection(design.ElementSection[RowOf(group).Place]);
    if (!(props.Area > 0) || !(density > 0)) {
      return;
    }
    // cm2 and tonnes per cubic metre.
    constexpr double cm2InM2 = 10000;
    const Real tonnesPerMetre = Real(props.Area) * density / cm2InM2;
    SectionSummary found{.Props = props,
                         .RadiusIn = SquareRoot(Real(props.Jin) / props.Area),
                         .RadiusOut = SquareRoot(Real(props.Jout) / props.Area),
                         .MassPerMetre = tonnesPerMetre * kilogramsInTonne};
    PassOver([&] {
      const GroupTotals totals = TotalsOf(design.TreloData, group, tonnesPerMetre);
      if (totals.Length > 0) {
        found.Totals = totals;
      }
    });
    summary = found;
  });
  return summary;
}

std::vector<SectionFact> SectionFacts(const SectionSummary& summary, const NumberLocale& locale) {
  const auto shown = [&](double value, int decimals, const char* unit) {
    return FormatShown(value, decimals, locale) + " " + unit;
  };
  std::vector<SectionFact> facts{{"A", shown(summary.Props.Area, 2, "см²")},
                                 {"J в плоскости фермы", shown(summary.Props.Jin, 2, "см⁴")},
                                 {"J из плоскости фермы", shown(summary.Props.Jout, 2, "см⁴")},
                                 {"i в плоскости фермы", shown(summary.RadiusIn, 2, "см")},
                                 {"i из плоскости фермы", shown(summary.RadiusOut, 2, "см")},
                                 {"Масса метра", shown(summary.MassPerMetre, 2, "кг/м")}};
  if (const std::optional<GroupTotals>& totals = summary.Totals) {
    facts.push_back({"Вся группа", CountOfBars(totals->Bars) + ", " +
                                       shown(totals->Length, 2, "м") + ", " +
                                       shown(totals->Mass * kilogramsInTonne, 0, "кг")});
  }
  return facts;
}

}  // namespace trelonit

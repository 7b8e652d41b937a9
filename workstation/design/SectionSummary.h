#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/ElementGroup.h"
#include "catalogue/SectionDrawing.h"
#include "platform/text/NumberText.h"
#include "workstation/design/Design.h"

namespace trelonit {

/// The bars of a group in the truss as it stands. The mass is that of their own section; the
/// calculation weighs the end diagonals of scheme 3 with the section of the others.
struct GroupTotals {
  Long Bars = 0;
  double Length = 0;  ///< metres
  double Mass = 0;    ///< tonnes
};

/// The section of a group in figures.
struct SectionSummary {
  SectionProps Props;
  /// Radii of gyration in the plane of the truss and out of it, cm.
  double RadiusIn = 0;
  double RadiusOut = 0;
  double MassPerMetre = 0;  ///< kg/m
  /// Nothing for sizes that make no truss and for a group that the scheme does not have.
  std::optional<GroupTotals> Totals;
};

/// Nothing for a section without an area or a density that is not positive.
std::optional<SectionSummary> SummariseSection(const Design& design, ElementGroup group,
                                               double density);

/// A figure with its name, for the user.
struct SectionFact {
  std::string Name;
  std::string Value;
};
std::vector<SectionFact> SectionFacts(const SectionSummary& summary, const NumberLocale& locale);

}  // namespace trelonit

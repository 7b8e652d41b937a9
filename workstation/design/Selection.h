#pragma once

#include <functional>
#include <optional>
#include <set>

#include "analysis/CheckRecord.h"
#include "catalogue/ProfileRecord.h"
#include "catalogue/SectionRecord.h"
#include "platform/errors/Message.h"
#include "platform/text/NumberText.h"
#include "workstation/design/Calculation.h"
#include "workstation/design/ElementGroups.h"

namespace trelonit {

/// What automatic selection proposes: working copies of the design's sections and of their check.
struct SelectionProposal {
  SectionArray Sections;
  CheckResult Check;
  /// Groups of which no size of the standard passes; they have the last one tried.
  std::set<GroupOption> Impossible;
  /// Of a selection that repeats itself: how often it searched. 0 for the usual one.
  int Rounds = 0;
  /// Of a selection that repeats itself: the design with these sections, calculated.
  std::optional<Calculation> Settled;
  /// Whether the repeating came round in a circle of sizes instead of to an end.
  bool Circles = false;
};

/// What the user chooses from.
struct SelectionOffer {
  SelectionProposal Proposal;
  /// Selects by the program's own checks and the second opinion; nothing where there is no opinion,
  /// which has been shown then.
  std::function<std::optional<SelectionProposal>()> ByOpinion;
  /// Selects, calculates and selects again until nothing changes.
  std::function<SelectionProposal()> Repeated;
  /// The design as it is; nothing where there is none to compare with.
  std::optional<Calculation> Before;
  /// How the figures are written.
  NumberLocale Locale;
};

/// Walks each group through the sizes of its standard, in the order of the catalogue, up to the
/// first that passes (no coefficient above 1) or down to the last that passes. Standard and layout
/// stay. The forces are those of the calculation throughout; the mass of the proposal does not flow
/// back into the loads. What the check tells again at every try is told once. Raises 9 for a
/// standard that is not in the catalogue.
SelectionProposal SelectSections(const Calculation& calculation, const ProfileTypeArray& catalogue,
                                 Messages& told);

/// The gap of a paired section with a profile of this web thickness, millimetres: it stays while it
/// is within a fifth of the thickness, otherwise it becomes the thickness.
double GapForThickness(double gap, double thickness);

}  // namespace trelonit

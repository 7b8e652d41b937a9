#pragma once

#include <set>

#include "analysis/CheckRecord.h"
#include "catalogue/SectionRecord.h"
#include "checks/modCheckueStress.h"
#include "platform/Message.h"
#include "workstation/DesignModel.h"
#include "workstation/ElementGroups.h"

namespace trelonit {

/// What automatic selection proposes: working copies of the design's sections and of their check.
struct SelectionProposal {
  SectionArray Sections;
  CheckResult Check;
  /// Groups of which no size of the standard passes; they have the last one tried.
  std::set<GroupOption> Impossible;
};

/// Walks each group through the sizes of its standard, in the order of the catalogue, up to the
/// first that passes (no coefficient above 1) or down to the last that passes. Standard and layout
/// stay. The forces are those of the model's last analysis throughout; the mass of the proposal
/// does not flow back into the loads. A box that the check shows again at every try is shown once.
SelectionProposal SelectSections(const DesignModel& model, const CheckNumbers& numbers,
                                 MessageService& messages);

/// The gap of a paired section with a profile of this web thickness, millimetres: it stays while it
/// is within a fifth of the thickness, otherwise it becomes the thickness.
double GapForThickness(double gap, double thickness);

}  // namespace trelonit

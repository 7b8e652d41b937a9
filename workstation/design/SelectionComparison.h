#pragma once

#include <string>
#include <vector>

#include "workstation/design/Selection.h"

namespace trelonit {

/// A group before a selection and with what is proposed.
struct ComparedGroup {
  GroupOption Group = optionUpPoyas;
  std::string SizeBefore;
  std::string SizeAfter;
  /// The greatest coefficient; nothing where a check broke off.
  std::optional<double> UseBefore;
  std::optional<double> UseAfter;
};

struct SelectionComparison {
  /// In the order of the options; no verticals where the scheme has none.
  std::vector<ComparedGroup> Groups;
  /// Of the truss, tonnes.
  double MassBefore = 0;
  double MassAfter = 0;
};

/// The coefficients of a proposal are those of its sizes: checked anew under the forces that it was
/// selected for, since the search leaves some of another try. Nothing is told.
SelectionComparison CompareSelection(const Calculation& before, const SelectionProposal& proposal);

}  // namespace trelonit

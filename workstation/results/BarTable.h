#pragma once

#include <vector>

#include "opinion/Opinion.h"
#include "workstation/results/ResultPicture.h"
#include "workstation/results/ResultTable.h"

namespace trelonit {

/// Every bar with its length, force and section and all coefficients: those of its group by the
/// calculation, which judges groups, and its own by the second opinion, which judges bars.
struct BarTable {
  ResultTable Table;
  /// By row, in the order of the force list.
  std::vector<MarkedBar> Bars;
};

/// No rows for a reserved scheme or a failed calculation; without the opinion its cells are empty.
/// A check that a bar does not need (stability in tension) has an empty cell.
BarTable BuildBarTable(const Calculation& calculation, const Opinion& opinion);

/// A section in few words: two profiles are told as two.
std::string SectionName(const SectionRec& section);

}  // namespace trelonit

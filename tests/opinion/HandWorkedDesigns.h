#pragma once

#include <array>
#include <string>
#include <vector>

#include "checks/CheckNumbers.h"
#include "opinion/MemberCheck.h"
#include "tests/opinion/OpinionCase.h"

namespace trelonit::test {

/// What the paper gives for one group.
struct HandWorkedGroup {
  ElementGroup Group = ElementGroup::UpPoyas;
  std::vector<double> Forces;  ///< tonnes, by the bars' numbers
  /// By MemberCheck, to five decimals.
  std::array<double, memberCheckCount> Figures{};
};

/// A design worked by hand: forces by joints and sections, checks by the norm's formulas.
struct HandWorkedDesign {
  std::string Name;
  OpinionCase Design;
  std::vector<HandWorkedGroup> Groups;
};

std::vector<HandWorkedDesign> HandWorkedDesigns();

}  // namespace trelonit::test

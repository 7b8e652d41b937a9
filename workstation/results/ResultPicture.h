#pragma once

#include <string>
#include <vector>

#include "workstation/design/Calculation.h"
#include "workstation/design/ElementGroups.h"

namespace trelonit {

/// A bar of the truss with what it carries. Coordinates in metres from the left end of the lower
/// edge of the truss, Y upward; the force in tonnes, positive in tension.
struct PictureBar {
  GroupOption Group = optionUpPoyas;
  Long Number = 0;  ///< as in the force list: from the left, from 1 in each group
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
  double Force = 0;
};

/// A bar by the numbers of the picture.
struct MarkedBar {
  GroupOption Group = optionUpPoyas;
  Long Number = 0;

  friend bool operator==(const MarkedBar&, const MarkedBar&) = default;
};

/// The largest coefficient of a group.
struct GroupUse {
  GroupOption Group = optionUpPoyas;
  double Value = 0;
};

/// What the results window draws beside its lists.
struct ResultPicture {
  std::vector<PictureBar> Bars;
  std::vector<GroupUse> Use;
  /// By row of the utilisation grid, its head not counted: whether the coefficient is above 1.
  std::vector<bool> OverLimit;
};

/// The bars of a calculated truss; nothing for a reserved scheme or a failed calculation.
std::vector<PictureBar> BuildBars(const Calculation& calculation);

/// The groups in the order of the results; no verticals where the scheme has none.
std::vector<GroupUse> BuildUse(const Calculation& calculation);

/// The name of a group for the user.
std::string GroupName(GroupOption group);

}  // namespace trelonit

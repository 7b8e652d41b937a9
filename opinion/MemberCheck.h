#pragma once

#include <array>

#include "analysis/CheckRecord.h"

namespace trelonit {

/// A check of an element group. X is the plane of the truss, Y the direction out of it.
enum class MemberCheck { Strength, StabX, StabY, FlexX, FlexY };

constexpr int memberCheckCount = 5;

/// One check with its names and its place in the record of the program's own calculation.
struct MemberCheckRow {
  MemberCheck Check = MemberCheck::Strength;
  double GroupCheck::*Told = nullptr;
  const char* Key = "";   ///< for other programs
  const char* Name = "";  ///< for the user
};

constexpr std::array<MemberCheckRow, memberCheckCount> memberChecks{{
    {MemberCheck::Strength, &GroupCheck::KStrength, "Strength", "прочность"},
    {MemberCheck::StabX, &GroupCheck::KStabX, "StabX", "устойчивость в плоскости фермы"},
    {MemberCheck::StabY, &GroupCheck::KStabY, "StabY", "устойчивость из плоскости фермы"},
    {MemberCheck::FlexX, &GroupCheck::KFlexX, "FlexX", "гибкость в плоскости фермы"},
    {MemberCheck::FlexY, &GroupCheck::KFlexY, "FlexY", "гибкость из плоскости фермы"},
}};

constexpr const MemberCheckRow& RowOf(MemberCheck check) {
  return memberChecks[static_cast<std::size_t>(check)];
}

}  // namespace trelonit

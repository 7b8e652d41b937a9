#pragma once

#include "platform/values/Integers.h"

namespace trelonit {

// The record of the member checks stands with the analysis records because the deflection reads
// the areas from it. X is the plane of the truss, Y the direction out of it.

struct ForceExtreme {
  double Value = 0;  ///< tonnes
  Long Index = 0;    ///< subscript of the bar in its force array; 0 when there is none
};

struct LimitFlex {
  double Compress = 0;  ///< limit slenderness in compression
  double Tension = 0;   ///< limit slenderness in tension, the one that the checks use
  double Tension2 = 0;  ///< the second tension limit, for the report only
};

/// The check of one element group.
struct GroupCheck {
  double AlphaX = 0, AlphaY = 0;      ///< compression use factor for the limit slenderness
  double FlexX = 0, FlexY = 0;        ///< slenderness
  double FlexBarX = 0, FlexBarY = 0;  ///< conditional slenderness
  double PhiX = 0, PhiY = 0;          ///< buckling coefficient
  double Area = 0;                    ///< cm2
  double Jin = 0, Jout = 0;           ///< cm4
  double KStrength = 0;               ///< strength utilisation
  double KStabX = 0, KStabY = 0;      ///< stability utilisation; 0 without compression
  double KFlexX = 0, KFlexY = 0;      ///< slenderness over the norm's limit
  LimitFlex LimitX, LimitY;
  ForceExtreme NMax;              ///< force of greatest magnitude, as its magnitude
  ForceExtreme NComp;             ///< most negative force, or 0 with index 0
  double LenX = 0, LenY = 0;      ///< effective lengths, m
  double KUserX = 0, KUserY = 0;  ///< slenderness over the user's limit
};

/// The checks of the five groups and the mass of the truss. Intended to have an order of its own:
/// verticals before the diagonals, unlike the sections in storage and the options on the form.
struct CheckResult {
  GroupCheck UpPoyas;
  GroupCheck DwnPoyas;
  GroupCheck Stoyka;
  GroupCheck Raskos;
  GroupCheck OpornRaskos;
  double Mass = 0;  ///< tonnes
};

}  // namespace trelonit

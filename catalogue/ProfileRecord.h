#pragma once

#include "platform/text/FixedText.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

/// One rolled section of the catalogue, in the order of its fields in the data file. Dimensions in
/// mm; A in cm2, Jy and Jz in cm4, Wy and Wz in cm3.
struct ProfileRec {
  FixedText<15> Name;  ///< designation, for example "L25x16x3"
  FixedText<50> Type;  ///< name of the standard
  double B = 0;        ///< flange width; short leg of an angle; outer diameter of a round tube
  double H = 0;        ///< height; long leg of an angle; 0 for a round tube
  double t = 0;        ///< flange thickness; 0 for a round tube
  double s = 0;        ///< web thickness; wall of a tube
  double r1 = 0;       ///< inner fillet radius
  double r2 = 0;       ///< flange edge radius
  double A = 0;
  double Jy = 0;  ///< about the axis parallel to the flange
  double Jz = 0;  ///< about the other axis
  double P = 0;   ///< mass per length; no calculation reads it
  double Wy = 0;
  double Wz = 0;
  double y0 = 0;  ///< centroid from the back of the long leg or of the web
  double z0 = 0;  ///< centroid from the back of the short leg or from the flange's outer face

  friend bool operator==(const ProfileRec&, const ProfileRec&) = default;
};

/// One standard with its records, numbered from 1.
struct ProfileType {
  FixedText<50> Name;
  BoundedArray<ProfileRec> Rec;

  friend bool operator==(const ProfileType&, const ProfileType&) = default;
};

/// The catalogue in memory: the standards, numbered from 1.
using ProfileTypeArray = BoundedArray<ProfileType>;

}  // namespace trelonit

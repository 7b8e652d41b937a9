#pragma once

#include "catalogue/SectionRecord.h"

namespace trelonit {

/// The program's own rules upon elementary mechanics, since no norm tells how to compose a section:
/// area (cm2) and moments of inertia in the plane of the truss and out of it (cm4) of a section:
/// parallel axis theorem for the pairs, which are symmetric about the plane that halves their gap.
/// With A, Jy, Jz of the record, and the distances in cm from a profile's centroid to the axis of
/// symmetry a = y0 / 10 + Gdist / 20 and c = z0 / 10 + Gdist / 20 (y0, z0, Gdist in mm):
///
/// | Layout             | Area | Jin             | Jout            |
/// |--------------------|------|-----------------|-----------------|
/// | 1, 5, 6, 7, 9, 11  | A    | Jy              | Jz              |
/// | 2, 8               | 2 A  | 2 Jy            | 2 (Jz + A a^2)  |
/// | 3                  | 2 A  | 2 Jz            | 2 (Jy + A c^2)  |
/// | 4                  | 2 A  | 2 (Jy + A c^2)  | 2 (Jz + A a^2)  |
/// | 10                 | A    | Jz              | Jy              |
///
/// Any other layout gives zeros. Raises 6 where a result is beyond the range of Double or a field
/// that is used holds no number.
SectionProps ComposeSection(const SectionRec& section);

}  // namespace trelonit

#pragma once

#include "catalogue/ProfileRecord.h"
#include "catalogue/SectionGeometry.h"

namespace trelonit {

// The rolled and bent shapes from the nominal dimensions of a record (B, H, t, s, r1, r2 in mm),
// with all their fillets. The flange's outer face lies on z = 0, the back of a web or of a long leg
// on y = 0; I sections and tees stand symmetrically about y = 0, tubes about both axes. All raise 5
// for dimensions that make no such section: one that is not above 0, a wall that leaves no room for
// the other, a fillet that does not fit; 6 beyond the range of Double.

/// Angle: horizontal leg B by t, vertical leg H by s, fillet r1, edges of the legs r2.
SectionFigures AngleSection(const ProfileRec& dimensions);

/// Rolled channel. The inner faces of the flanges slope by slope (0.1 is 10 %, 0 is parallel); t is
/// measured at the middle of the overhang, (B - s) / 2 from the flange's edge.
SectionFigures ChannelSection(const ProfileRec& dimensions, double slope);

/// I section. As the channel, t at (B - s) / 4 from the flange's edge.
SectionFigures ISection(const ProfileRec& dimensions, double slope);

/// Tee with parallel flange faces, cut from an I section: fillets r1, the rest sharp. H is the
/// whole height.
SectionFigures TeeSection(const ProfileRec& dimensions);

/// Cold-bent channel: r1 is the inner radius of the bend, r1 + s the outer one; edges sharp.
SectionFigures BentChannelSection(const ProfileRec& dimensions);

/// Square or rectangular tube, walls t (top and bottom) and s (sides), with the radii of the outer
/// and the inner corners in mm.
SectionFigures RectangularTube(const ProfileRec& dimensions, Real outerRadius, Real innerRadius);

/// Round tube with the outer diameter B and the wall s.
SectionFigures RoundTube(const ProfileRec& dimensions);

/// Moment of inertia of a quarter of a ring about its own centroid's axis parallel to one of its
/// straight edges, cm4. Radii in mm.
Real QuarterRingInertia(Real outerRadius, Real innerRadius);

}  // namespace trelonit

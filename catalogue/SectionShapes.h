#pragma once

#include "catalogue/ProfileRecord.h"
#include "catalogue/SectionGeometry.h"

namespace trelonit {

// The rolled and bent shapes from the nominal dimensions of a record (B, H, t, s, r1, r2 in mm),
// with all their fillets. The flange's outer face lies on z = 0, the back of a web or of a long leg
// on y = 0; I sections and tees stand symmetrically about y = 0, tubes about both axes. All raise 5
// for dimensions that make no such section: one that is not above 0, a wall that leaves no room for
// the other; 6 beyond the range of Double. That a fillet does not fit shows when the outline is
// integrated.

/// A section: what is inside the outer outline less what is inside the hole, if it has one.
struct SectionShape {
  Outline Outer;
  Outline Hole;
};

/// Angle: horizontal leg B by t, vertical leg H by s, fillet r1, edges of the legs r2.
Outline AngleOutline(const ProfileRec& dimensions);

/// Rolled channel. The inner faces of the flanges slope by slope (0.1 is 10 %, 0 is parallel); t is
/// measured at the middle of the overhang, (B - s) / 2 from the flange's edge.
Outline ChannelOutline(const ProfileRec& dimensions, double slope);

/// I section. As the channel, t at (B - s) / 4 from the flange's edge.
Outline IOutline(const ProfileRec& dimensions, double slope);

/// Tee with parallel flange faces, cut from an I section: fillets r1, the rest sharp. H is the
/// whole height.
Outline TeeOutline(const ProfileRec& dimensions);

/// Cold-bent channel: r1 is the inner radius of the bend, r1 + s the outer one; edges sharp.
Outline BentChannelOutline(const ProfileRec& dimensions);

/// Square or rectangular tube, walls t (top and bottom) and s (sides), with the radii of the outer
/// and the inner corners in mm.
SectionShape RectangularTubeShape(const ProfileRec& dimensions, Real outerRadius, Real innerRadius);

/// Round tube with the outer diameter B and the wall s.
SectionShape RoundTubeShape(const ProfileRec& dimensions);

// Their figures. Raise 5 also for a fillet that does not fit.

SectionFigures FiguresOf(const SectionShape& shape);
SectionFigures AngleSection(const ProfileRec& dimensions);
SectionFigures ChannelSection(const ProfileRec& dimensions, double slope);
SectionFigures ISection(const ProfileRec& dimensions, double slope);
SectionFigures TeeSection(const ProfileRec& dimensions);
SectionFigures BentChannelSection(const ProfileRec& dimensions);
SectionFigures RectangularTube(const ProfileRec& dimensions, Real outerRadius, Real innerRadius);
SectionFigures RoundTube(const ProfileRec& dimensions);

/// Moment of inertia of a quarter of a ring about its own centroid's axis parallel to one of its
/// straight edges, cm4. Radii in mm.
Real QuarterRingInertia(Real outerRadius, Real innerRadius);

}  // namespace trelonit

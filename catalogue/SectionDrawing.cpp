#include "catalogue/SectionDrawing.h"

#include <algorithm>
#include <utility>

#include "catalogue/SectionLayouts.h"
#include "catalogue/StandardShapes.h"

namespace trelonit {

namespace {

enum class Family { Angle, Channel, Beam, Tee, Box, Round };

Family FamilyOf(Long standard) {
  switch (standard) {
    case 1:
    case 2:
      return Family::Angle;
    case 3:
    case 4:
    case 10:
    case 11:
      return Family::Channel;
    case 5:
    case 6:
    case 7:
      return Family::Beam;
    case 8:
    case 9:
      return Family::Tee;
    case 14:
      return Family::Round;
    default:
      return Family::Box;
  }
}

class Composer {
 public:
  explicit Composer(const SectionRec& section)
      : section_(section),
        profile_(Turned(section)),
        family_(FamilyOf(section.TypeIdx)),
        shape_(ShapeOfStandard(section.TypeIdx, profile_)) {
    const SectionLayout* layout = FindSectionLayout(section.Layout);
    paired_ = layout != nullptr && layout->Paired;
    halfGap_ = paired_ ? Real(Finite(section.Gdist)) / 2 : Real(0);
  }

  SectionDrawing Draw() {
    const SectionFigures figures = FiguresOf(shape_);
    Put(+1, +1);
    if (paired_) {
      // Two angles in a cross are one another turned by half a turn, all other pairs a mirror's.
      Put(-1, IsCross() ? -1 : +1);
    }
    drawing_.CentroidX = paired_ ? 0.0 : figures.y0;
    drawing_.CentroidY = IsCross() ? 0.0 : static_cast<double>(Y(figures.z0));
    Measure();
    return std::move(drawing_);
  }

 private:
  /// In these layouts what is the record's height lies out of the plane. An angle with its legs
  /// exchanged is its own mirror image.
  static ProfileRec Turned(const SectionRec& section) {
    ProfileRec profile = section.Profile;
    if (section.Layout == 3 || section.Layout == 10) {
      std::swap(profile.B, profile.H);
      std::swap(profile.t, profile.s);
    }
    return profile;
  }

  bool IsCross() const { return section_.Layout == 4; }
  /// Flanges of paired angles and of tees lie on top.
  bool HangsDown() const {
    return section_.Layout == 2 || section_.Layout == 3 || section_.Layout == 7;
  }
  /// The place of the right profile's coordinates.
  Real X(Real y) const { return halfGap_ + y; }
  Real Y(Real z) const { return HangsDown() ? -z : IsCross() ? halfGap_ + z : z; }

  void Put(int right, int up) {
    const auto placed = [&](const Outline& outline) {
      Outline result;
      for (const OutlineVertex& vertex : outline) {
        result.push_back({right * X(vertex.y), up * Y(vertex.z), vertex.Radius});
      }
      return result;
    };
    drawing_.Profiles.push_back(placed(shape_.Outer));
    if (!shape_.Hole.empty()) {
      drawing_.Holes.push_back(placed(shape_.Hole));
    }
    // Every section has the origin in it or at its edge.
    for (const OutlineVertex& vertex : drawing_.Profiles.back()) {
      const double x = vertex.y;
      const double y = vertex.z;
      drawing_.Left = std::min(drawing_.Left, x);
      drawing_.Right = std::max(drawing_.Right, x);
      drawing_.Bottom = std::min(drawing_.Bottom, y);
      drawing_.Top = std::max(drawing_.Top, y);
    }
  }

  void Add(SectionDimension::Side side, Real from, Real to, Real edgeFrom, Real edgeTo,
           double value) {
    drawing_.Dimensions.push_back({.At = side,
                                   .From = std::min<double>(from, to),
                                   .To = std::max<double>(from, to),
                                   .EdgeFrom = edgeFrom,
                                   .EdgeTo = edgeTo,
                                   .Value = value});
  }

  /// The whole section, from corner to corner.
  void AddWhole(SectionDimension::Side side) {
    const bool level = side == SectionDimension::Side::Below;
    const double from = level ? drawing_.Left : drawing_.Bottom;
    const double to = level ? drawing_.Right : drawing_.Top;
    Add(side, from, to, NearestCorner(level, from), NearestCorner(level, to), to - from);
  }

  /// Of the corners with this X the lowest, or of those with this Y the leftmost.
  double NearestCorner(bool level, double at) const {
    double nearest = level ? drawing_.Top : drawing_.Right;
    for (const Outline& outline : drawing_.Profiles) {
      for (const OutlineVertex& vertex : outline) {
        if ((level ? vertex.y : vertex.z) == at) {
          nearest = std::min<double>(nearest, level ? vertex.z : vertex.y);
        }
      }
    }
    return nearest;
  }

  void Measure() {
    using Side = SectionDimension::Side;
    if (halfGap_ > 0) {
      const Side side = IsCross() ? Side::Above : Side::Below;
      const double edge = IsCross() ? drawing_.Top : drawing_.Bottom;
      Add(side, -halfGap_, halfGap_, edge, edge, section_.Gdist);
    }
    MeasureWalls();
    AddWhole(Side::Below);
    if (family_ == Family::Round) {
      drawing_.Dimensions.back().Diameter = true;
      return;
    }
    AddWhole(Side::Left);
  }

  /// Where the free end of a leg is measured, away from the fillets.
  static constexpr double alongLeg = 0.6;

  void MeasureWalls() {
    const ProfileRec& d = profile_;
    switch (family_) {
      case Family::Angle:
        MeasureWeb(0, d.s, alongLeg * Real(d.H));
        MeasureFlange(d.B);
        break;
      case Family::Channel:
        MeasureWeb(0, d.s, Real(d.H) / 2);
        MeasureFlange(d.B);
        break;
      case Family::Beam:
        MeasureWeb(-Real(d.s) / 2, Real(d.s) / 2, Real(d.H) / 2);
        MeasureFlange(Real(d.B) / 2);
        break;
      case Family::Tee:
        MeasureWeb(-Real(d.s) / 2, Real(d.s) / 2, alongLeg * Real(d.H));
        MeasureFlange(Real(d.B) / 2);
        break;
      case Family::Box:
      case Family::Round:
        MeasureWeb(Real(d.B) / 2 - d.s, Real(d.B) / 2, 0);
        break;
    }
  }

  void MeasureWeb(Real from, Real to, Real z) {
    Add(SectionDimension::Side::Across, X(from), X(to), Y(z), Y(z), profile_.s);
  }

  void MeasureFlange(Real end) {
    Add(SectionDimension::Side::Right, Y(0), Y(profile_.t), X(end), X(end), profile_.t);
  }

  const SectionRec& section_;
  ProfileRec profile_;
  Family family_;
  SectionShape shape_;
  bool paired_;
  Real halfGap_;
  SectionDrawing drawing_;
};

}  // namespace

SectionDrawing DrawSection(const SectionRec& section) {
  return Composer(section).Draw();
}

}  // namespace trelonit

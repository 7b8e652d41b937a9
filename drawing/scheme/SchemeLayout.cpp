#include "drawing/scheme/SchemeLayout.h"

#include "platform/values/BoundedArray.h"
#include "platform/values/Integers.h"

namespace trelonit {

namespace {

constexpr double millimetresPerMetre = 1000;

SchemeSheet SheetAt(const TreloData& data, const TreloResult& result) {
  // The analysis solves no truss of more joints than that, and none without panels. A damaged
  // project may ask for any count and would be drawn for hours.
  if (data.PanelNum < 1 || data.PanelNum > mostJoints) {
    RaiseSubscriptOutOfRange();
  }
  SchemeSheet sheet;
  sheet.Of = FindScheme(data.TreloType);
  sheet.n = data.PanelNum;
  sheet.L = Real(data.LengthF) * millimetresPerMetre;
  sheet.H = Real(data.Hight) * millimetresPerMetre;
  sheet.d = Real(data.LenOporn) * millimetresPerMetre;
  sheet.p = Real(result.LenPanel) * millimetresPerMetre;
  sheet.t = 0.1 * sheet.H;
  sheet.AngleOporn = result.AngleOporn;
  sheet.AngleRaskos = result.AngleRaskos;
  sheet.LenOpornRaskos = result.LenOpornRaskos;
  sheet.LenRaskos = result.LenRaskos;
  return sheet;
}

/// What the diagonals of one kind have in common.
struct DiagonalKind {
  SectionPlace Group;
  Real Angle;
  Real Length;
};

/// Puts bars and dimensions down, one after the other.
class LayoutBuilder {
 public:
  explicit LayoutBuilder(const SchemeSheet& sheet) : sheet_(sheet) {}

  SchemeLayout Layout() const { return layout_; }

  DiagonalKind Support() const {
    return {sectionOpornRaskos, sheet_.AngleOporn, sheet_.LenOpornRaskos};
  }
  DiagonalKind Regular() const { return {sectionRaskos, sheet_.AngleRaskos, sheet_.LenRaskos}; }

  void UpperBar(Long number, Real left, Real right, Real length) {
    ChordBar(sectionUpPoyas, number, left, right, sheet_.Upper, length);
  }
  void LowerBar(Long number, Real left, Real right, Real length) {
    ChordBar(sectionDwnPoyas, number, left, right, sheet_.Lower, length);
  }
  void FallingDiagonal(const DiagonalKind& kind, Long number, Real top, Real bottom) {
    Diagonal(kind, number, top, bottom, 2 * drawingPi - kind.Angle);
  }
  void RisingDiagonal(const DiagonalKind& kind, Long number, Real top, Real bottom) {
    Diagonal(kind, number, top, bottom, kind.Angle);
  }
  void Vertical(Long number, Real x) {
    layout_.Bars.push_back({{x, sheet_.Upper},
                            {x, sheet_.Lower},
                            sectionStoyka,
                            number,
                            sheet_.H / millimetresPerMetre,
                            drawingPi / 2});
  }

  void UpperChainLink(Real left, Real right) {
    ChainLink({left, sheet_.Upper}, {right, sheet_.Upper}, sheet_.Upper + 2.5 * sheet_.t);
  }
  void LowerChainLink(SheetPoint left, SheetPoint right) {
    ChainLink(left, right, sheet_.Lower - 2.5 * sheet_.t);
  }
  /// Between the ends of the chord on that level.
  void Overall(Real level, Real location) { ChainLink({0, level}, {sheet_.L, level}, location); }
  /// From the right end of the upper chord to that of the lower one.
  void Height(Real lowerEnd) {
    // The location has a plain half of the height, wherever the scheme stands: intended, only its X
    // decides where a vertical dimension line runs.
    layout_.Dimensions.push_back({{sheet_.L, sheet_.Upper},
                                  {lowerEnd, sheet_.Lower},
                                  {sheet_.L + 2.5 * sheet_.t, sheet_.H / 2},
                                  drawingPi / 2});
  }

  void UpperChord() {
    for (Long k = 1; k <= sheet_.n; ++k) {
      const bool end = sheet_.Of->OwnEndPanels && (k == 1 || k == sheet_.n);
      const Real length = end ? sheet_.d : sheet_.p;
      UpperBar(k, sheet_.NodeX(k - 1), sheet_.NodeX(k), length / millimetresPerMetre);
    }
  }
  void LowerChord() {
    // Its end bars show the length of a regular panel, too, where they are as long as an end panel:
    // intended, unlike on the upper chord.
    const Real length = sheet_.Of->PanelsOfLowerBar * sheet_.p / millimetresPerMetre;
    for (Long k = 1; k <= sheet_.LastLower(); ++k) {
      LowerBar(k, sheet_.LowerX(k - 1), sheet_.LowerX(k), length);
    }
  }
  void Verticals() {
    for (Long k = 0; k <= sheet_.LastLower(); ++k) {
      Vertical(k + 1, sheet_.LowerX(k));
    }
  }
  void UpperChain() {
    for (Long k = 1; k <= sheet_.n; ++k) {
      UpperChainLink(sheet_.NodeX(k - 1), sheet_.NodeX(k));
    }
  }

  // What the schemes with end panels of their own share.

  void LeftSupportDiagonal() { FallingDiagonal(Support(), 1, 0, sheet_.d); }
  void RightSupportDiagonal() {
    RisingDiagonal(Support(), sheet_.n, sheet_.NodeX(sheet_.n), sheet_.NodeX(sheet_.n - 1));
  }
  /// Falling to the middle of the span, rising behind it.
  void DiagonalsToTheMiddle() {
    const Long n = sheet_.n;
    LeftSupportDiagonal();
    for (Long k = 2; k <= RoundToInteger(n / 2.0); ++k) {
      FallingDiagonal(Regular(), k, sheet_.NodeX(k - 1), sheet_.NodeX(k));
    }
    for (Long k = RoundToInteger(n / 2.0 + 1); k <= n - 1; ++k) {
      RisingDiagonal(Regular(), k, sheet_.NodeX(k), sheet_.NodeX(k - 1));
    }
    RightSupportDiagonal();
  }

 private:
  void ChordBar(SectionPlace group, Long number, Real left, Real right, Real level, Real length) {
    layout_.Bars.push_back({{left, level}, {right, level}, group, number, length, 0});
  }
  void Diagonal(const DiagonalKind& kind, Long number, Real top, Real bottom, Real rotation) {
    layout_.Bars.push_back(
        {{top, sheet_.Upper}, {bottom, sheet_.Lower}, kind.Group, number, kind.Length, rotation});
  }
  void ChainLink(SheetPoint left, SheetPoint right, Real level) {
    layout_.Dimensions.push_back({left, right, {(left.X + right.X) / 2, level}, 0});
  }

  const SchemeSheet& sheet_;
  SchemeLayout layout_;
};

}  // namespace

Real SchemeSheet::NodeX(Long k) const {
  if (!Of->OwnEndPanels) {
    return k * p;
  }
  if (k == 0) {
    return 0;
  }
  return k == n ? NodeX(n - 1) + d : d + (k - 1) * p;
}

Real SchemeSheet::LowerX(Long joint) const {
  const Long halfColumn = Of->LowerHalfColumn(joint);
  return halfColumn % 2 == 0 ? NodeX(halfColumn / 2) : halfColumn / 2.0 * p;
}

Long SchemeSheet::LastLower() const {
  return Of->LastLowerJoint(n);
}

SchemeSheet ForceSheet(const TreloData& data, const TreloResult& result) {
  SchemeSheet sheet = SheetAt(data, result);
  sheet.Upper = sheet.H;
  sheet.Lower = 0;
  return sheet;
}

SchemeSheet GeometrySheet(const TreloData& data, const TreloResult& result) {
  SchemeSheet sheet = SheetAt(data, result);
  sheet.Upper = 4 * sheet.H + 8 * sheet.t;
  sheet.Lower = sheet.Upper - sheet.H;
  return sheet;
}

SchemeLayout LayoutOfScheme1(const SchemeSheet& sheet) {
  const Long n = sheet.n;
  LayoutBuilder layout(sheet);
  layout.UpperChord();
  layout.DiagonalsToTheMiddle();
  layout.Verticals();
  layout.LowerChord();

  for (Long k = 1; k <= n; ++k) {
    layout.LowerChainLink({sheet.NodeX(k - 1), sheet.Lower}, {sheet.NodeX(k), sheet.Lower});
  }
  layout.Overall(sheet.Lower, sheet.Lower - 5 * sheet.t);
  layout.Height(sheet.L);
  return layout.Layout();
}

SchemeLayout LayoutOfScheme2(const SchemeSheet& sheet) {
  const Long n = sheet.n;
  LayoutBuilder layout(sheet);
  layout.UpperChord();
  layout.DiagonalsToTheMiddle();
  layout.Verticals();
  layout.LowerChord();

  // No lower node stands at the ends.
  const auto node = [&](Long k) {
    return SheetPoint{sheet.NodeX(k), k == 0 || k == n ? sheet.Upper : sheet.Lower};
  };
  for (Long k = 1; k <= n; ++k) {
    layout.LowerChainLink(node(k - 1), node(k));
  }
  layout.Overall(sheet.Upper, sheet.Lower - 5 * sheet.t);
  layout.Height(sheet.L - sheet.d);
  return layout.Layout();
}

SchemeLayout LayoutOfScheme3(const SchemeSheet& sheet) {
  const Long n = sheet.n;
  const auto upper = [&](Long k) { return sheet.NodeX(k); };
  // Between the upper nodes k and k + 1.
  const auto lower = [&](Long k) { return sheet.LowerX(k); };
  LayoutBuilder layout(sheet);
  // One slope serves the whole lattice.
  DiagonalKind regular = layout.Regular();
  regular.Angle = sheet.AngleOporn;

  layout.UpperChord();
  for (Long k = 0; k <= n - 1; ++k) {
    layout.FallingDiagonal(k == 0 ? layout.Support() : regular, 2 * k + 1, upper(k), lower(k));
  }
  for (Long k = 1; k <= n; ++k) {
    layout.RisingDiagonal(k == n ? layout.Support() : regular, 2 * k, upper(k), lower(k - 1));
  }
  layout.LowerChord();

  layout.UpperChain();
  layout.LowerChainLink({0, sheet.Upper}, {lower(0), sheet.Lower});
  for (Long k = 1; k <= n - 1; ++k) {
    layout.LowerChainLink({lower(k - 1), sheet.Lower}, {lower(k), sheet.Lower});
  }
  layout.LowerChainLink({lower(n - 1), sheet.Lower}, {upper(n), sheet.Upper});
  layout.Overall(sheet.Upper, sheet.Lower - 5 * sheet.t);
  layout.Height(sheet.L - sheet.p / 2);
  return layout.Layout();
}

SchemeLayout LayoutOfScheme4(const SchemeSheet& sheet) {
  const Long n = sheet.n;
  LayoutBuilder layout(sheet);
  layout.UpperChord();
  layout.LeftSupportDiagonal();
  for (Long k = 3; k <= n - 1; k += 2) {
    layout.FallingDiagonal(layout.Regular(), k, sheet.NodeX(k - 1), sheet.NodeX(k));
  }
  for (Long k = 2; k <= n - 2; k += 2) {
    layout.RisingDiagonal(layout.Regular(), k, sheet.NodeX(k), sheet.NodeX(k - 1));
  }
  layout.RightSupportDiagonal();
  layout.Verticals();
  layout.LowerChord();

  layout.UpperChain();
  layout.Overall(sheet.Upper, sheet.Upper + 5 * sheet.t);
  layout.Height(sheet.L - sheet.d);
  return layout.Layout();
}

}  // namespace trelonit

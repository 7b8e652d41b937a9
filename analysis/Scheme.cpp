#include "analysis/Scheme.h"

#include <algorithm>
#include <array>

#include "platform/errors/RuntimeError.h"
#include "platform/values/Arithmetic.h"
#include "platform/values/Elementary.h"

namespace trelonit {

namespace {

bool FallsToTheMiddle(Long panel, Long n) {
  return panel < n / 2;
}

constexpr std::array<Scheme, schemeCount> schemes{{
    // Parallel chords, held below, a vertical at every column.
    {.Number = 1,
     .Reserved = false,
     .LowerEndPanels = true,
     .LastLowerJoint = [](Long n) { return n; },
     .LowerHalfColumn = [](Long joint) { return 2 * joint; },
     .FallsToTheRight = FallsToTheMiddle,
     .UpperNumber = JointsOfScheme1::Upper,
     .LowerNumber = JointsOfScheme1::Lower},
    // Held above, no lower joints under the supports.
    {.Number = 2,
     .Reserved = false,
     .HeldBelow = false,
     .LastLowerJoint = [](Long n) { return n - 2; },
     .LowerHalfColumn = [](Long joint) { return 2 * (joint + 1); },
     .FallsToTheRight = FallsToTheMiddle,
     .UpperNumber = JointsOfScheme2::Upper,
     .LowerNumber = JointsOfScheme2::Lower,
     .PanelsOfLowerStretch = [](Long /*n*/) { return Long{2}; }},
    // Triangles without verticals: the lower joints stand between the columns.
    {.Number = 3,
     .Reserved = false,
     .HasVerticals = false,
     .HeldBelow = false,
     .OwnEndPanels = false,
     .FewestPanels = 2,
     .PanelStep = 1,
     .LastLowerJoint = [](Long n) { return n - 1; },
     .LowerHalfColumn = [](Long joint) { return 2 * joint + 1; },
     .UpperNumber = JointsOfScheme3::Upper,
     .LowerNumber = JointsOfScheme3::Lower,
     .PanelsOfLowerStretch = [](Long n) { return Long{n > 2 ? 2 : 1}; }},
    // Triangles with a vertical in each: a lower joint under every odd column.
    {.Number = 4,
     .Reserved = false,
     .HeldBelow = false,
     .PanelsOfLowerBar = 2,
     .LastLowerJoint = [](Long n) { return n / 2 - 1; },
     .LowerHalfColumn = [](Long joint) { return 2 * (2 * joint + 1); },
     .FallsToTheRight = [](Long panel, Long /*n*/) { return panel % 2 == 0; },
     .UpperNumber = JointsOfScheme4::Upper,
     .LowerNumber = JointsOfScheme4::Lower,
     .PanelsOfLowerStretch = [](Long n) { return Long{n > 4 ? 4 : 2}; }},
    // Its last lower joint is settled, for its loads; nothing else is.
    {.Number = 5, .LastLowerJoint = [](Long n) { return n / 2; }},
    {.Number = 6},
    {.Number = 7},
    {.Number = 8},
    {.Number = 9},
    {.Number = 10},
}};

/// Puts the joints and bars of one design together.
class TrussBuilder {
 public:
  TrussBuilder(const TreloData& data, const Scheme& scheme)
      : data_(data),
        scheme_(scheme),
        n_(data.PanelNum),
        panel_(PanelLength(data)),
        lastLower_(scheme.LastLowerJoint(n_)),
        upperAtColumn_(static_cast<std::size_t>(n_) + 1),
        lowerAtHalfColumn_(2 * static_cast<std::size_t>(n_) + 1, noJoint) {}

  Truss Build() {
    PutJoints();
    PutChord(ElementGroup::UpPoyas, &TreloResult::UpPoyasForce, truss_.Upper);
    PutChord(ElementGroup::DwnPoyas, &TreloResult::DwnPoyasForce, truss_.Lower);
    PutDiagonals();
    PutVerticals();
    const std::vector<std::size_t>& held = scheme_.HeldBelow ? truss_.Lower : truss_.Upper;
    truss_.LeftSupport = held.front();
    truss_.RightSupport = held.back();
    return std::move(truss_);
  }

 private:
  static constexpr std::size_t noJoint = static_cast<std::size_t>(-1);

  double ColumnX(Long column) const {
    if (column == 0) {
      return 0;
    }
    if (column == n_) {
      return data_.LengthF;
    }
    return scheme_.OwnEndPanels ? data_.LenOporn + static_cast<double>(column - 1) * panel_
                                : panel_ * static_cast<double>(column);
  }

  double HalfColumnX(Long halfColumn) const {
    const Long column = halfColumn / 2;
    return halfColumn % 2 == 0 ? ColumnX(column) : (ColumnX(column) + ColumnX(column + 1)) / 2;
  }

  void PutJoint(Chord chord, Long index, Long halfColumn, Long number) {
    const auto place = static_cast<std::size_t>(number - 1);
    truss_.Joints[place] = {.Of = chord,
                            .Index = index,
                            .Number = number,
                            .X = HalfColumnX(halfColumn),
                            .Y = chord == Chord::Upper ? data_.Hight : 0};
    if (chord == Chord::Upper) {
      truss_.Upper.push_back(place);
      upperAtColumn_[static_cast<std::size_t>(halfColumn / 2)] = place;
    } else {
      truss_.Lower.push_back(place);
      lowerAtHalfColumn_[static_cast<std::size_t>(halfColumn)] = place;
    }
  }

  void PutJoints() {
    const Long joints = n_ + 1 + lastLower_ + 1;
    truss_.Joints.resize(static_cast<std::size_t>(joints));
    for (Long column = 0; column <= n_; ++column) {
      PutJoint(Chord::Upper, column, 2 * column, scheme_.UpperNumber(column, n_));
    }
    for (Long joint = 0; joint <= lastLower_; ++joint) {
      PutJoint(Chord::Lower, joint, scheme_.LowerHalfColumn(joint), scheme_.LowerNumber(joint, n_));
    }
  }

  std::size_t Upper(Long column) const { return upperAtColumn_[static_cast<std::size_t>(column)]; }
  std::size_t Lower(Long halfColumn) const {
    return lowerAtHalfColumn_[static_cast<std::size_t>(halfColumn)];
  }

  void Add(ElementGroup group, Long number, BoundedArray<double> TreloResult::*forces,
           Long subscript, std::size_t a, std::size_t b) {
    const TrussJoint& from = truss_.Joints[a];
    const TrussJoint& to = truss_.Joints[b];
    truss_.Bars.push_back({.Group = group,
                           .Number = number,
                           .Forces = forces,
                           .Subscript = subscript,
                           .A = a,
                           .B = b,
                           .Length = portable::Hypotenuse(to.X - from.X, to.Y - from.Y)});
  }

  void PutChord(ElementGroup group, BoundedArray<double> TreloResult::*forces,
                const std::vector<std::size_t>& joints) {
    for (std::size_t bar = 1; bar < joints.size(); ++bar) {
      const auto number = static_cast<Long>(bar);
      Add(group, number, forces, number, joints[bar - 1], joints[bar]);
    }
  }

  void PutVerticals() {
    Long number = 0;
    for (Long column = 0; column <= n_; ++column) {
      if (const std::size_t lower = Lower(2 * column); lower != noJoint) {
        ++number;
        Add(ElementGroup::Stoyka, number, &TreloResult::StoykaForce, number, lower, Upper(column));
      }
    }
  }

  /// The diagonals from the left as pairs of joints; the first and the last are the support
  /// diagonals.
  std::vector<std::pair<std::size_t, std::size_t>> DiagonalEnds() const {
    std::vector<std::pair<std::size_t, std::size_t>> ends;
    for (Long panel = 0; panel < n_; ++panel) {
      if (const std::size_t between = Lower(2 * panel + 1); between != noJoint) {
        ends.emplace_back(Upper(panel), between);
        ends.emplace_back(between, Upper(panel + 1));
      } else if (scheme_.FallsToTheRight(panel, n_)) {
        ends.emplace_back(Upper(panel), Lower(2 * (panel + 1)));
      } else {
        ends.emplace_back(Lower(2 * panel), Upper(panel + 1));
      }
    }
    return ends;
  }

  void PutDiagonals() {
    const auto ends = DiagonalEnds();
    const auto last = static_cast<Long>(ends.size());
    const auto put = [&](ElementGroup group, Long number, Long subscript) {
      const auto& [a, b] = ends[static_cast<std::size_t>(subscript - 1)];
      Add(group, number, &TreloResult::RaskosForce, subscript, a, b);
    };
    put(ElementGroup::OpornRaskos, 1, 1);
    for (Long subscript = 2; subscript < last; ++subscript) {
      put(ElementGroup::Raskos, subscript - 1, subscript);
    }
    put(ElementGroup::OpornRaskos, 2, last);
  }

  const TreloData& data_;
  const Scheme& scheme_;
  Long n_;
  double panel_;
  Long lastLower_;
  std::vector<std::size_t> upperAtColumn_;
  std::vector<std::size_t> lowerAtHalfColumn_;
  Truss truss_;
};

}  // namespace

bool Scheme::HasPanelNum(Long n) const {
  return n >= FewestPanels && (n - FewestPanels) % PanelStep == 0;
}

const Scheme* FindScheme(Long number) {
  const bool known = number >= 1 && number <= static_cast<Long>(schemes.size());
  return known ? &schemes[static_cast<std::size_t>(number - 1)] : nullptr;
}

double PanelLength(const TreloData& data) {
  const Scheme* scheme = FindScheme(data.TreloType);
  const bool ends = scheme == nullptr || scheme->OwnEndPanels;
  return ends ? (Real(data.LengthF) - 2 * Real(data.LenOporn)) / (Subtractable(data.PanelNum) - 2)
              : Real(data.LengthF) / data.PanelNum;
}

std::optional<LoadBounds> BoundsOfLoads(Long treloType, Long panelNum) {
  const Scheme* scheme = FindScheme(treloType);
  if (scheme == nullptr || scheme->LastLowerJoint == nullptr) {
    return std::nullopt;
  }
  const Long panels = Subtractable(panelNum);
  const Long lastLower = scheme->LastLowerJoint(panels);
  return LoadBounds{.UpPForce = panels,
                    .UpDistForce = panels - 1,
                    .DwnPForce = lastLower,
                    .DwnDistForce = lastLower - 1};
}

bool HasVerticals(Long scheme) {
  const Scheme* row = FindScheme(scheme);
  return row == nullptr || row->HasVerticals;
}

Truss TrussOf(const TreloData& data) {
  const Scheme* scheme = FindScheme(data.TreloType);
  if (scheme == nullptr || scheme->Reserved || !scheme->HasPanelNum(data.PanelNum)) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  if (data.PanelNum > mostJoints) {
    RaiseSubscriptOutOfRange();
  }
  return TrussBuilder(data, *scheme).Build();
}

}  // namespace trelonit

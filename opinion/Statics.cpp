#include "opinion/Statics.h"

#include <algorithm>
#include <utility>

#include "opinion/BandSystem.h"
#include "platform/values/Arithmetic.h"
#include "platform/values/Elementary.h"
#include "platform/values/Units.h"

namespace trelonit {

namespace {

struct Direction {
  double Right;
  double Up;
};

/// From joint A to joint B.
Direction DirectionOf(const Truss& truss, const TrussBar& bar) {
  const TrussJoint& a = truss.Joints[bar.A];
  const TrussJoint& b = truss.Joints[bar.B];
  return {Real(b.X - a.X) / bar.Length, Real(b.Y - a.Y) / bar.Length};
}

/// The equations of equilibrium as coefficients: row 2 j is joint j to the right, row 2 j + 1 joint
/// j upward. The unknowns stand in the order in which the joints first meet them, so that all
/// coefficients are near the diagonal.
class Equilibrium {
 public:
  explicit Equilibrium(const Truss& truss) : truss_(truss), unknownOfBar_(truss.Bars.size()) {
    OrderUnknowns();
    PutCoefficients();
  }

  std::size_t Size() const { return 2 * truss_.Joints.size(); }
  std::size_t UnknownOfBar(std::size_t bar) const { return unknownOfBar_[bar]; }
  std::size_t UnknownReactLeft() const { return 1; }
  std::size_t UnknownReactRight() const { return Size() - 1; }

  BandSystem Forces() const { return Banded(&Coefficient::Row, &Coefficient::Unknown); }
  /// By virtual work the displacements obey the transposed equations.
  BandSystem Movements() const { return Banded(&Coefficient::Unknown, &Coefficient::Row); }

 private:
  struct Coefficient {
    std::size_t Row;
    std::size_t Unknown;
    double Value;
  };

  void OrderUnknowns() {
    std::vector<std::pair<std::pair<std::size_t, std::size_t>, std::size_t>> order;
    order.reserve(truss_.Bars.size());
    for (std::size_t bar = 0; bar < truss_.Bars.size(); ++bar) {
      order.emplace_back(std::minmax(truss_.Bars[bar].A, truss_.Bars[bar].B), bar);
    }
    std::sort(order.begin(), order.end());
    // Behind the two reactions of the left support, before the one of the right.
    std::size_t unknown = 2;
    for (const auto& [joints, bar] : order) {
      unknownOfBar_[bar] = unknown++;
    }
  }

  void PutCoefficients() {
    coefficients_.reserve(4 * truss_.Bars.size() + 3);
    for (std::size_t bar = 0; bar < truss_.Bars.size(); ++bar) {
      const Direction direction = DirectionOf(truss_, truss_.Bars[bar]);
      const std::size_t unknown = unknownOfBar_[bar];
      const std::size_t a = 2 * truss_.Bars[bar].A;
      const std::size_t b = 2 * truss_.Bars[bar].B;
      coefficients_.push_back({a, unknown, direction.Right});
      coefficients_.push_back({a + 1, unknown, direction.Up});
      coefficients_.push_back({b, unknown, -direction.Right});
      coefficients_.push_back({b + 1, unknown, -direction.Up});
    }
    coefficients_.push_back({2 * truss_.LeftSupport, 0, 1});
    coefficients_.push_back({2 * truss_.LeftSupport + 1, UnknownReactLeft(), 1});
    coefficients_.push_back({2 * truss_.RightSupport + 1, UnknownReactRight(), 1});
  }

  BandSystem Banded(std::size_t Coefficient::*row, std::size_t Coefficient::*column) const {
    std::size_t below = 0;
    std::size_t above = 0;
    for (const Coefficient& coefficient : coefficients_) {
      const std::size_t r = coefficient.*row;
      const std::size_t c = coefficient.*column;
      if (r > c) {
        below = std::max(below, r - c);
      } else {
        above = std::max(above, c - r);
      }
    }
    BandSystem system(Size(), below, above);
    for (const Coefficient& coefficient : coefficients_) {
      system.At(coefficient.*row, coefficient.*column) += coefficient.Value;
    }
    return system;
  }

  const Truss& truss_;
  std::vector<std::size_t> unknownOfBar_;
  std::vector<Coefficient> coefficients_;
};

void AddChordLoads(std::vector<double>& loads, const Truss& truss, Chord chord,
                   const BoundedArray<double>& points, const BoundedArray<double>& panels) {
  const std::vector<std::size_t>& joints = truss.JointsOf(chord);
  for (std::size_t i = 0; i < joints.size(); ++i) {
    loads[joints[i]] += points[static_cast<Long>(i)];
  }
  for (std::size_t i = 1; i < joints.size(); ++i) {
    const double length = truss.Joints[joints[i]].X - truss.Joints[joints[i - 1]].X;
    const double half = panels[static_cast<Long>(i) - 1] * length / 2;
    loads[joints[i - 1]] += half;
    loads[joints[i]] += half;
  }
}

}  // namespace

std::vector<double> JointLoads(const Truss& truss, const LoadArrays& loads) {
  std::vector<double> joints(truss.Joints.size());
  AddChordLoads(joints, truss, Chord::Upper, loads.UpPForce, loads.UpDistForce);
  AddChordLoads(joints, truss, Chord::Lower, loads.DwnPForce, loads.DwnDistForce);
  return joints;
}

Statics SolveStatics(const Truss& truss, std::vector<double> loads) {
  const Equilibrium equilibrium(truss);
  std::vector<double> right(equilibrium.Size());
  for (std::size_t joint = 0; joint < loads.size(); ++joint) {
    right[2 * joint + 1] = loads[joint];
  }
  const std::vector<double> found = equilibrium.Forces().Solve(std::move(right));
  Statics statics{.Loads = std::move(loads),
                  .Forces = std::vector<double>(truss.Bars.size()),
                  .ReactLeft = found[equilibrium.UnknownReactLeft()],
                  .ReactRight = found[equilibrium.UnknownReactRight()]};
  for (std::size_t bar = 0; bar < truss.Bars.size(); ++bar) {
    statics.Forces[bar] = found[equilibrium.UnknownOfBar(bar)];
  }
  return statics;
}

double Residual::Size() const {
  return portable::Hypotenuse(Right, Up);
}

std::vector<Residual> Residuals(const Truss& truss, const Statics& statics) {
  std::vector<Residual> residuals(truss.Joints.size());
  for (std::size_t joint = 0; joint < residuals.size(); ++joint) {
    residuals[joint].Up -= statics.Loads[joint];
  }
  residuals[truss.LeftSupport].Up += statics.ReactLeft;
  residuals[truss.RightSupport].Up += statics.ReactRight;
  for (std::size_t bar = 0; bar < truss.Bars.size(); ++bar) {
    const Direction direction = DirectionOf(truss, truss.Bars[bar]);
    const double right = statics.Forces[bar] * direction.Right;
    const double up = statics.Forces[bar] * direction.Up;
    Residual& a = residuals[truss.Bars[bar].A];
    Residual& b = residuals[truss.Bars[bar].B];
    a.Right += right;
    a.Up += up;
    b.Right -= right;
    b.Up -= up;
  }
  for (const Residual& residual : residuals) {
    Finite(residual.Size());
  }
  return residuals;
}

std::vector<Displacement> Displacements(const Truss& truss, const std::vector<double>& forces,
                                        const std::vector<double>& areas, double E) {
  const Equilibrium equilibrium(truss);
  std::vector<double> shortenings(equilibrium.Size());
  for (std::size_t bar = 0; bar < truss.Bars.size(); ++bar) {
    shortenings[equilibrium.UnknownOfBar(bar)] =
        -(megapascals * Real(forces[bar]) * truss.Bars[bar].Length / (Real(areas[bar]) * E));
  }
  const std::vector<double> found = equilibrium.Movements().Solve(std::move(shortenings));
  std::vector<Displacement> moved(truss.Joints.size());
  for (std::size_t joint = 0; joint < moved.size(); ++joint) {
    moved[joint] = {.Right = found[2 * joint], .Down = -found[2 * joint + 1]};
  }
  return moved;
}

}  // namespace trelonit

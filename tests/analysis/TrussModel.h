#pragma once

#include <cstddef>
#include <vector>

#include "analysis/modDatatypes.h"

namespace trelonit::test {

// A truss as joints and bars, drawn from the description of its scheme alone, and its forces by the
// stiffness method. Nothing here walks from joint to joint, so that agreement proves something.

/// Coordinates in metres, Y upward; Number is the joint's number in the table of bar forces.
struct ModelJoint {
  double X = 0;
  double Y = 0;
  Long Number = 0;
};

enum class BarKind { UpPoyas, DwnPoyas, Raskos, Stoyka };

/// A pin-ended bar between two joints; Subscript is its place in the force array of its kind.
struct ModelBar {
  BarKind Kind = BarKind::UpPoyas;
  Long Subscript = 0;
  std::size_t A = 0;
  std::size_t B = 0;
};

struct TrussModel {
  std::vector<ModelJoint> Joints;
  std::vector<ModelBar> Bars;
  /// Joints of the chords, left to right.
  std::vector<std::size_t> Upper;
  std::vector<std::size_t> Lower;
  /// The left support holds both ways, the right one rolls.
  std::size_t LeftSupport = 0;
  std::size_t RightSupport = 0;

  double Length(const ModelBar& bar) const;
};

/// The model of schemes 1 to 4.
TrussModel ModelOf(const TreloData& data);

/// The assembled loads by joint of the model, downward.
std::vector<double> JointLoads(const TrussModel& model, const TreloResult& result);

/// What the result holds for the bar in the array of its kind.
double ForceOf(const TreloResult& result, const ModelBar& bar);

/// What the table of bar forces holds for the bar.
double TableForce(const TrussModel& model, const TreloResult& result, const ModelBar& bar);

/// What is left over at a joint: right and upward, tonnes.
struct Residual {
  double Right = 0;
  double Up = 0;
};

/// Sum of the forces of the table, the loads and the reactions at every joint; zero throughout is
/// equilibrium.
std::vector<Residual> JointResiduals(const TrussModel& model, const TreloResult& result,
                                     const std::vector<double>& loads);

/// Displacements in metres, downward; forces and reactions in the units of the loads.
struct ElasticSolution {
  std::vector<double> Drop;
  std::vector<double> BarForces;
  double ReactLeft = 0;
  double ReactRight = 0;
};

/// Direct stiffness method, dense, in extended precision. axialStiffness is E A by bar.
ElasticSolution SolveElastic(const TrussModel& model, const std::vector<double>& loads,
                             const std::vector<double>& axialStiffness);

}  // namespace trelonit::test

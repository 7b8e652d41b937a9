#pragma once

#include <algorithm>
#include <optional>

namespace trelonit {

// Points, boxes and transforms of a plane, as drawings and their letters need them.

struct PlanePoint {
  double X = 0;
  double Y = 0;

  friend PlanePoint operator+(PlanePoint a, PlanePoint b) { return {a.X + b.X, a.Y + b.Y}; }
  friend PlanePoint operator-(PlanePoint a, PlanePoint b) { return {a.X - b.X, a.Y - b.Y}; }
  friend PlanePoint operator*(PlanePoint a, double factor) { return {a.X * factor, a.Y * factor}; }
  friend bool operator==(const PlanePoint&, const PlanePoint&) = default;
};

inline double DotProduct(PlanePoint a, PlanePoint b) {
  return a.X * b.X + a.Y * b.Y;
}

struct PlaneLine {
  PlanePoint Start;
  PlanePoint End;
};

/// A box along the axes; flat ones and points are boxes too.
struct PlaneBox {
  PlanePoint Least;
  PlanePoint Greatest;

  double Width() const { return Greatest.X - Least.X; }
  double Height() const { return Greatest.Y - Least.Y; }
  PlanePoint Middle() const { return (Least + Greatest) * 0.5; }
  friend bool operator==(const PlaneBox&, const PlaneBox&) = default;
};

/// Whether they have more than an edge in common.
inline bool Overlap(const PlaneBox& a, const PlaneBox& b) {
  return a.Least.X < b.Greatest.X && b.Least.X < a.Greatest.X && a.Least.Y < b.Greatest.Y &&
         b.Least.Y < a.Greatest.Y;
}

/// Grows the box to hold the point; without a box it becomes the point.
inline void Take(std::optional<PlaneBox>& box, PlanePoint point) {
  if (!box) {
    box = {point, point};
    return;
  }
  box->Least = {std::min(box->Least.X, point.X), std::min(box->Least.Y, point.Y)};
  box->Greatest = {std::max(box->Greatest.X, point.X), std::max(box->Greatest.Y, point.Y)};
}
inline void Take(std::optional<PlaneBox>& box, const PlaneBox& other) {
  Take(box, other.Least);
  Take(box, other.Greatest);
}

/// X' = XX * X + XY * Y + Shift.X, Y' = YX * X + YY * Y + Shift.Y.
struct PlaneTransform {
  double XX = 1;
  double XY = 0;
  double YX = 0;
  double YY = 1;
  PlanePoint Shift = {};

  PlanePoint operator()(PlanePoint point) const {
    return {XX * point.X + XY * point.Y + Shift.X, YX * point.X + YY * point.Y + Shift.Y};
  }
  /// This one first, then the other.
  PlaneTransform Then(const PlaneTransform& next) const {
    return {next.XX * XX + next.XY * YX, next.XX * XY + next.XY * YY, next.YX * XX + next.YY * YX,
            next.YX * XY + next.YY * YY, next(Shift)};
  }
};

/// Makes things smaller or larger, the point stays.
inline PlaneTransform ScaledAt(PlanePoint point, double factor) {
  return {factor, 0, 0, factor, point * (1 - factor)};
}

}  // namespace trelonit

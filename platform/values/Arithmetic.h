#pragma once

#include <cmath>
#include <limits>
#include <type_traits>

#include "platform/values/Elementary.h"

namespace trelonit {

/// Out of line, so that the checks themselves stay a compare and a jump.
[[noreturn]] void RaiseOverflow();
[[noreturn]] void RaiseDivisionByZero();
[[noreturn]] void RaiseInvalidProcedureCall();

/// Returns the value; raises Overflow (6) for an infinity or a NaN.
inline double Finite(double value) {
  if (!(std::abs(value) <= std::numeric_limits<double>::max())) {
    RaiseOverflow();
  }
  return value;
}

/// A Double whose every operation is checked: x/0 raises 11, 0/0 and a result beyond the range of
/// Double raise 6. Formulas written with it read as on paper and never yield a NaN or an infinity.
class Real {
 public:
  constexpr Real() = default;
  // Implicit both ways on purpose: records hold plain Doubles, formulas work on Reals.
  constexpr Real(double value) : value_(value) {}
  constexpr operator double() const { return value_; }

  Real operator-() const { return {-value_}; }
  Real& operator+=(Real other) { return *this = *this + other; }
  Real& operator-=(Real other) { return *this = *this - other; }

  friend Real operator+(Real a, Real b) { return {Finite(a.value_ + b.value_)}; }
  friend Real operator-(Real a, Real b) { return {Finite(a.value_ - b.value_)}; }
  friend Real operator*(Real a, Real b) { return {Finite(a.value_ * b.value_)}; }
  friend Real operator/(Real a, Real b) {
    if (b.value_ == 0) {
      if (a.value_ == 0) {
        RaiseOverflow();
      }
      RaiseDivisionByZero();
    }
    return {Finite(a.value_ / b.value_)};
  }

 private:
  double value_ = 0;
};

// Exact matches for the mixed forms: without them "Real * 2" would be ambiguous with the
// built-in operators.
template <class T>
requires std::is_arithmetic_v<T> Real operator+(Real a, T b) {
  return a + Real(static_cast<double>(b));
}
template <class T>
requires std::is_arithmetic_v<T> Real operator+(T a, Real b) {
  return Real(static_cast<double>(a)) + b;
}
template <class T>
requires std::is_arithmetic_v<T> Real operator-(Real a, T b) {
  return a - Real(static_cast<double>(b));
}
template <class T>
requires std::is_arithmetic_v<T> Real operator-(T a, Real b) {
  return Real(static_cast<double>(a)) - b;
}
template <class T>
requires std::is_arithmetic_v<T> Real operator*(Real a, T b) {
  return a * Real(static_cast<double>(b));
}
template <class T>
requires std::is_arithmetic_v<T> Real operator*(T a, Real b) {
  return Real(static_cast<double>(a)) * b;
}
template <class T>
requires std::is_arithmetic_v<T> Real operator/(Real a, T b) {
  return a / Real(static_cast<double>(b));
}
template <class T>
requires std::is_arithmetic_v<T> Real operator/(T a, Real b) {
  return Real(static_cast<double>(a)) / b;
}

/// Raises 5 for a negative argument.
inline Real SquareRoot(Real value) {
  if (value < 0.0) {
    RaiseInvalidProcedureCall();
  }
  return {std::sqrt(static_cast<double>(value))};
}

inline Real Sine(Real angle) {
  return {portable::Sine(angle)};
}
inline Real Cosine(Real angle) {
  return {portable::Cosine(angle)};
}
inline Real ArcTangent(Real slope) {
  return {portable::ArcTangent(slope)};
}
inline Real Magnitude(Real value) {
  return {std::abs(static_cast<double>(value))};
}

}  // namespace trelonit

#pragma once

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "platform/values/ArcTangentTable.h"
#include "platform/values/FusedMultiplyAdd.h"
#include "platform/values/SineTable.h"

namespace trelonit {

/// The routines of Elementary.h, for one way to multiply and add with one rounding. The last bit of
/// the results depends on the limits, on the coefficients, on the order of the operations and on
/// which of them are fused. All four are as in IBM's Accurate Mathematical Library where that is
/// compiled for such processors, so that nothing here may be rearranged, nor may a compiler
/// contract what stands apart.
template <class Fused>
class ElementaryKernel {
 public:
  TRELONIT_INLINE static double Sine(double angle) {
    const double size = std::abs(angle);
    if (size < sineIsAngle) {
      return angle;
    }
    if (size < nearZero) {
      return SineNearZero({angle, 0});
    }
    if (size < nearQuarter) {
      return std::copysign(CosineNearZero({halfPi.Nearest - size, halfPi.Rest}), angle);
    }
    if (size < reducible) {
      return SineOfQuarters(Reduce(angle), 0);
    }
    return std::sin(angle);
  }

  TRELONIT_INLINE static double Cosine(double angle) {
    const double size = std::abs(angle);
    if (size < cosineIsOne) {
      return 1;
    }
    if (size < nearZero) {
      return CosineNearZero({size, 0});
    }
    if (size < nearQuarter) {
      const double difference = halfPi.Nearest - size;
      const double nearest = difference + halfPi.Rest;
      return SineNearZero({nearest, (difference - nearest) + halfPi.Rest});
    }
    if (size < reducible) {
      return SineOfQuarters(Reduce(angle), 1);
    }
    return std::cos(angle);
  }

  TRELONIT_INLINE static double ArcTangent(double slope) {
    const double size = std::abs(slope);
    if (size < angleIsSlope) {
      return slope;
    }
    if (size < leastNode) {
      const double square = slope * slope;
      return Add(slope * square, ArcTangentSeries(square), slope);
    }
    if (size < 1) {
      const ArcTangentNode& node = NodeNear(size);
      const double from = size - node.Slope;
      return std::copysign(Add(from, AlongNode(node, from), node.Angle), slope);
    }
    if (size < vertical) {
      return std::copysign(ArcTangentOfSteep(size), slope);
    }
    // A NaN fails every comparison and stays what it is.
    return size >= vertical ? std::copysign(halfPi.Nearest, slope) : slope + slope;
  }

  TRELONIT_INLINE static double Direction(double rise, double run) {
    if (std::isnan(rise) || std::isnan(run)) {
      return rise + run;
    }
    return std::copysign(DirectionUpwards(std::abs(rise), run), rise);
  }

 private:
  static constexpr ExactPair halfPi{0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};
  static constexpr ExactPair pi{0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53};

  static constexpr double sineIsAngle = 0x1p-26;
  static constexpr double cosineIsOne = 0x1p-27;
  static constexpr double leastOfTable = 0.126;
  static constexpr double nearZero = 0x1.b6p-1;        ///< half a step beyond the table's last row
  static constexpr double nearQuarter = 0x1.368fdp+1;  ///< pi/2 and as much again
  /// 2^26 quarters of the circle: as far as the parts of pi/2 in Reduce() go.
  static constexpr double reducible = 0x1.921fbp+26;

  static constexpr double angleIsSlope = 0x1.bb67ap-27;
  static constexpr double leastNode = 0x1p-4;
  static constexpr double greatestInverse = 0x1p+4;
  static constexpr double vertical = 0x1.49ff2p+52;

  TRELONIT_INLINE static double Add(double a, double b, double c) {
    return Fused::MultiplyAdd(a, b, c);
  }

  /// Added to a number it leaves a multiple of 1/128 in the last digits.
  static constexpr double roundToSteps = 0x1.8p+45;
  /// The same for whole numbers.
  static constexpr double roundToWhole = 0x1.8p+52;

  /// The step of the table that is next to a number from 0, and how far it is from there.
  struct Step {
    const SineStep& Row;
    double From;
  };
  TRELONIT_INLINE static Step StepNear(double size) {
    const double shifted = size + roundToSteps;
    return {sineSteps[std::bit_cast<std::uint64_t>(shifted) % 128],
            size - (shifted - roundToSteps)};
  }

  /// sin(d)/d - 1 and 1 - cos(d), each by d^2, for half a step of the table.
  TRELONIT_INLINE static double SinePart(double square) {
    return Add(0x1.11110e829872fp-7, square, -0x1.5555555555515p-3);
  }
  TRELONIT_INLINE static double CosinePart(double square) {
    return Add(Add(0x1.6c16bedd9e239p-10, square, -0x1.5555555555535p-5), square, 0.5);
  }

  /// The sine of a sum of an angle of at most nearZero and a tiny rest.
  TRELONIT_INLINE static double SineNearZero(ExactPair angle) {
    const double size = std::abs(angle.Nearest);
    if (size < leastOfTable) {
      return SineBySeries(angle);
    }
    const auto [row, from] = StepNear(size);
    const double rest = angle.Nearest < 0 ? -angle.Rest : angle.Rest;
    const double square = from * from;
    const double sine = from + Add(from * square, SinePart(square), rest);
    const double oneLessCosine = Add(from, rest, square * CosinePart(square));
    // sin(a + d) = sin a + (cos a sin d - sin a (1 - cos d)), the small terms first.
    const double small = Add(-oneLessCosine, row.Sine, Add(sine, row.CosineRest, row.SineRest));
    return std::copysign(row.Sine + Add(sine, row.Cosine, small), angle.Nearest);
  }

  TRELONIT_INLINE static double SineBySeries(ExactPair angle) {
    const double x = angle.Nearest;
    const double square = x * x;
    double sum = Add(-0x1.addffc2fcdf59p-26, square, 0x1.71de27b9a7ed9p-19);
    sum = Add(sum, square, -0x1.a01a019db08b8p-13);
    sum = Add(sum, square, 0x1.1111111110ecep-7);
    sum = Add(sum, square, -0x1.5555555555555p-3);
    return x + Add(square, Add(sum, x, -0.5 * angle.Rest), angle.Rest);
  }

  TRELONIT_INLINE static double CosineNearZero(ExactPair angle) {
    const auto [row, fromNearest] = StepNear(std::abs(angle.Nearest));
    const double from = fromNearest + (angle.Nearest < 0 ? -angle.Rest : angle.Rest);
    const double square = from * from;
    const double sine = Add(from * square, SinePart(square), from);
    const double oneLessCosine = square * CosinePart(square);
    // cos(a + d) = cos a - (sin a sin d + cos a (1 - cos d)), the small terms first.
    const double small = Add(-oneLessCosine, row.Cosine, Add(-sine, row.SineRest, row.CosineRest));
    return row.Cosine + Add(-sine, row.Sine, small);
  }

  /// An angle as so many quarters of the circle, of which the last two bits count, and what is
  /// left.
  struct Quarters {
    std::uint64_t Count;
    ExactPair Angle;
  };

  /// Cody and Waite's reduction: pi/2 in parts whose multiples are exact or fused.
  TRELONIT_INLINE static Quarters Reduce(double angle) {
    constexpr double part1 = 0x1.921fb58p+0;
    constexpr double part2 = -0x1.dde973cp-27;
    constexpr double part3 = -0x1.cb3b398p-55;
    constexpr double part4 = -0x1.d747f23e32ed7p-83;
    const double shifted = Add(angle, 0x1.45f306dc9c883p-1, roundToWhole);
    const double count = shifted - roundToWhole;
    const double left2 = Add(-count, part2, Add(-count, part1, angle));
    const double left3 = Add(-count, part3, left2);
    const double rest3 = Add(-count, part3, left2 - left3);
    const double left4 = Add(-count, part4, left3);
    const double rest4 = Add(-count, part4, left3 - left4);
    return {std::bit_cast<std::uint64_t>(shifted), {left4, rest3 + rest4}};
  }

  TRELONIT_INLINE static double SineOfQuarters(Quarters quarters, unsigned more) {
    const std::uint64_t count = quarters.Count + more;
    const double value =
        count % 2 == 0 ? SineNearZero(quarters.Angle) : CosineNearZero(quarters.Angle);
    return count / 2 % 2 == 0 ? value : -value;
  }

  /// atan(x)/x^3 - 1/x^2 by x^2.
  TRELONIT_INLINE static double ArcTangentSeries(double square) {
    double sum = Add(0x1.375f08b31cbcep-4, square, -0x1.7458022b13c25p-4);
    sum = Add(sum, square, 0x1.c71c6e5129a3bp-4);
    sum = Add(sum, square, -0x1.24924923f7603p-3);
    sum = Add(sum, square, 0x1.99999999997fdp-3);
    return Add(sum, square, -0x1.5555555555555p-2);
  }

  /// From 1/16 to 1.
  TRELONIT_INLINE static const ArcTangentNode& NodeNear(double slope) {
    constexpr double toWhole = 0x1p+52;
    const double nearest = Add(slope, 256, toWhole) - toWhole;
    return arcTangentNodes[static_cast<std::size_t>(static_cast<int>(nearest) - 16)];
  }

  /// What the angle grows by on the way from the node, by that way.
  TRELONIT_INLINE static double AlongNode(const ArcTangentNode& node, double from) {
    double sum = Add(node.Fifth, from, node.Fourth);
    sum = Add(sum, from, node.Third);
    sum = Add(sum, from, node.Second);
    return Add(sum, from, node.First);
  }

  /// From 1 on, as the complement of the inverse.
  TRELONIT_INLINE static double ArcTangentOfSteep(double slope) {
    const double inverse = 1 / slope;
    const double product = slope * inverse;
    const double missing = (1 - product) - Add(slope, inverse, -product);
    if (slope < greatestInverse) {
      const ArcTangentNode& node = NodeNear(inverse);
      return TurnedFromNode(halfPi, -1, node, Add(missing, inverse, inverse - node.Slope));
    }
    return TurnedBySeries(halfPi, -1, {inverse, missing * inverse});
  }

  /// The angle base + sense atan(slope), for slopes below leastNode.
  TRELONIT_INLINE static double TurnedBySeries(ExactPair base, double sense, ExactPair slope) {
    const double square = slope.Nearest * slope.Nearest;
    const double curved = slope.Nearest * square * ArcTangentSeries(square);
    const double turn = sense * slope.Nearest;
    const double sum = base.Nearest + turn;
    return ((((base.Nearest - sum) + turn) + base.Rest) + sense * slope.Rest + sense * curved) +
           sum;
  }

  /// The same from the node next to the slope on.
  TRELONIT_INLINE static double TurnedFromNode(ExactPair base, double sense,
                                               const ArcTangentNode& node, double from) {
    return (base.Nearest + sense * node.Angle) +
           Add(sense * from, AlongNode(node, from), base.Rest);
  }

  TRELONIT_INLINE static int ExponentOf(double value) {
    return static_cast<int>(std::bit_cast<std::uint64_t>(value) >> 52 & 0x7ff);
  }

  /// From 0 to pi.
  TRELONIT_INLINE static double DirectionUpwards(double rise, double run) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const bool backwards = std::signbit(run);
    const double size = std::abs(run);
    if (rise == 0 || (size == infinity && rise != infinity)) {
      return backwards ? pi.Nearest : 0;
    }
    if (size == infinity) {
      return backwards ? 3 * (pi.Nearest / 4) : pi.Nearest / 4;
    }
    if (size == 0 || rise == infinity) {
      return halfPi.Nearest;
    }
    // So flat or so steep that the other leg shows in no digit.
    constexpr int digits = 57;
    const int exponents = ExponentOf(rise) - ExponentOf(run);
    if (exponents >= digits) {
      return halfPi.Nearest;
    }
    if (exponents <= -digits) {
      return backwards ? pi.Nearest : rise / run;
    }
    return DirectionOfLegs(rise, size, backwards);
  }

  /// Of two legs not too different.
  TRELONIT_INLINE static double DirectionOfLegs(double rise, double run, bool backwards) {
    constexpr double tiny = 0x1p-500;
    constexpr double huge = 0x1p+500;
    if (rise < tiny || run < tiny) {
      rise *= huge;
      run *= huge;
    }
    if (rise > huge || run > huge) {
      rise *= tiny;
      run *= tiny;
    }
    const bool flat = rise < run;
    const ExactPair slope = flat ? Quotient(rise, run) : Quotient(run, rise);
    if (flat && !backwards) {
      return DirectionOfFlat(slope);
    }
    const ExactPair base = flat ? pi : halfPi;
    const double sense = !flat && backwards ? 1 : -1;
    if (slope.Nearest < leastNode) {
      return TurnedBySeries(base, sense, slope);
    }
    const ArcTangentNode& node = NodeNear(slope.Nearest);
    return TurnedFromNode(base, sense, node, (slope.Nearest - node.Slope) + slope.Rest);
  }

  TRELONIT_INLINE static ExactPair Quotient(double a, double b) {
    const double nearest = a / b;
    const double product = b * nearest;
    return {nearest, ((a - product) - Add(b, nearest, -product)) / b};
  }

  TRELONIT_INLINE static double DirectionOfFlat(ExactPair slope) {
    if (slope.Nearest < leastNode) {
      const double square = slope.Nearest * slope.Nearest;
      return slope.Nearest + Add(slope.Nearest * square, ArcTangentSeries(square), slope.Rest);
    }
    const ArcTangentNode& node = NodeNear(slope.Nearest);
    const ExactPair from = ExactSum(slope.Nearest - node.Slope, slope.Rest);
    double sum = Add(node.Fifth, from.Nearest, node.Fourth);
    sum = Add(sum, from.Nearest, node.Third);
    sum = Add(sum, from.Nearest, node.Second);
    const double curved = from.Nearest * from.Nearest * sum;
    return Add(from.Nearest, node.First, Add(from.Rest, node.First, curved)) + node.Angle;
  }
};

}  // namespace trelonit

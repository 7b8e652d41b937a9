#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

// Small enough to be part of every routine that is built from them: a call for each would cost more
// than the routine.
#if defined(__GNUC__)
#define TRELONIT_INLINE [[gnu::always_inline]] inline
#else
#define TRELONIT_INLINE inline
#endif

namespace trelonit {

/// A value as the nearest double and what it leaves.
struct ExactPair {
  double Nearest, Rest;
};

/// The exact sum, in whatever order of size the summands come (Knuth).
TRELONIT_INLINE ExactPair ExactSum(double a, double b) {
  const double sum = a + b;
  const double ofB = sum - a;
  return {sum, (a - (sum - ofB)) + (b - ofB)};
}

/// a b + c, rounded once, by the processor. To be used where it has the instruction: elsewhere the
/// library's routine is called, and not every library's is exact.
struct FusedByInstruction {
  TRELONIT_INLINE static double MultiplyAdd(double a, double b, double c) {
#if defined(__GNUC__)
    return __builtin_fma(a, b, c);
#else
    return std::fma(a, b, c);
#endif
  }
};

/// The same in plain operations, after S. Boldo and G. Melquiond, "Emulation of a FMA and correctly
/// rounded sums: proved algorithms using rounding to odd" (IEEE Transactions on Computers, 2008).
/// Products have to be between 2^-900 and 2^990, so that the parts keep all their bits.
struct FusedByParts {
  TRELONIT_INLINE static double MultiplyAdd(double a, double b, double c) {
    const ExactPair product = ExactProduct(a, b);
    const ExactPair low = ExactSum(c, product.Rest);
    const ExactPair high = ExactSum(product.Nearest, low.Nearest);
    return high.Nearest + SumRoundedToOdd(low.Rest, high.Rest);
  }

 private:
  /// The upper half of the digits (Veltkamp).
  TRELONIT_INLINE static double UpperHalf(double value) {
    constexpr double shift = 0x1p27 + 1;
    const double shifted = shift * value;
    return shifted - (shifted - value);
  }

  /// By products of half as many digits, which are exact (Dekker).
  TRELONIT_INLINE static ExactPair ExactProduct(double a, double b) {
    const double product = a * b;
    const double upperA = UpperHalf(a);
    const double upperB = UpperHalf(b);
    const double lowerA = a - upperA;
    const double lowerB = b - upperB;
    return {product,
            ((upperA * upperB - product) + upperA * lowerB + lowerA * upperB) + lowerA * lowerB};
  }

  /// An inexact sum gets an odd last bit, so that rounding it once more knows that it was no tie.
  TRELONIT_INLINE static double SumRoundedToOdd(double a, double b) {
    const ExactPair sum = ExactSum(a, b);
    auto bits = std::bit_cast<std::uint64_t>(sum.Nearest);
    if (sum.Rest != 0 && bits % 2 == 0) {
      // Away from zero if what is left has the sign of the sum.
      std::signbit(sum.Rest) == std::signbit(sum.Nearest) ? ++bits : --bits;
    }
    return std::bit_cast<double>(bits);
  }
};

}  // namespace trelonit

#include "platform/values/Elementary.h"

#include <cmath>
#include <limits>
#include <utility>

#include "platform/values/ElementaryKernel.h"

// Most processors of the kind can multiply and add in one instruction, but not the least of them,
// for which programs are compiled: the routines stand here twice.
#if defined(__GNUC__) && defined(__x86_64__) && !defined(__FMA__)
#define TRELONIT_CHOOSES_INSTRUCTION
#endif

namespace trelonit::portable {

namespace {

#if defined(TRELONIT_CHOOSES_INSTRUCTION)

bool HasInstruction() {
  return __builtin_cpu_supports("fma") != 0;
}

[[gnu::target("fma")]] double FusedSine(double angle) {
  return ElementaryKernel<FusedByInstruction>::Sine(angle);
}
[[gnu::target("fma")]] double FusedCosine(double angle) {
  return ElementaryKernel<FusedByInstruction>::Cosine(angle);
}
[[gnu::target("fma")]] double FusedArcTangent(double slope) {
  return ElementaryKernel<FusedByInstruction>::ArcTangent(slope);
}
[[gnu::target("fma")]] double FusedDirection(double rise, double run) {
  return ElementaryKernel<FusedByInstruction>::Direction(rise, run);
}

using PlainKernel = ElementaryKernel<FusedByParts>;

#else

// The macro says that the compiler makes an instruction of std::fma.
#if defined(FP_FAST_FMA)
using PlainKernel = ElementaryKernel<FusedByInstruction>;
#else
using PlainKernel = ElementaryKernel<FusedByParts>;
#endif

constexpr bool HasInstruction() {
  return false;
}
constexpr auto FusedSine = PlainKernel::Sine;
constexpr auto FusedCosine = PlainKernel::Cosine;
constexpr auto FusedArcTangent = PlainKernel::ArcTangent;
constexpr auto FusedDirection = PlainKernel::Direction;

#endif

/// Of legs whose squares neither overflow nor underflow, the longer one first: the root, less what
/// its square is too large by, over its double.
double CorrectedRoot(double longer, double shorter) {
  const double root = std::sqrt(longer * longer + shorter * shorter);
  double excess = 0;
  if (root <= 2 * shorter) {
    const double beyond = root - shorter;
    excess = longer * (2 * beyond - longer) + (beyond - 2 * (longer - shorter)) * beyond;
  } else {
    const double beyond = root - longer;
    excess =
        2 * beyond * (longer - 2 * shorter) + ((4 * beyond - shorter) * shorter + beyond * beyond);
  }
  return root - excess / (2 * root);
}

}  // namespace

double Sine(double angle) {
  return HasInstruction() ? FusedSine(angle) : PlainKernel::Sine(angle);
}

double Cosine(double angle) {
  return HasInstruction() ? FusedCosine(angle) : PlainKernel::Cosine(angle);
}

double ArcTangent(double slope) {
  return HasInstruction() ? FusedArcTangent(slope) : PlainKernel::ArcTangent(slope);
}

double Direction(double rise, double run) {
  return HasInstruction() ? FusedDirection(rise, run) : PlainKernel::Direction(rise, run);
}

double Hypotenuse(double a, double b) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  double longer = std::abs(a);
  double shorter = std::abs(b);
  if (longer == infinity || shorter == infinity) {
    return infinity;
  }
  if (longer < shorter) {
    std::swap(longer, shorter);
  }
  // The shorter leg shows in no digit.
  if (shorter * 0x1p+54 <= longer) {
    return longer + shorter;
  }
  constexpr double smaller = 0x1p-600;
  constexpr double larger = 0x1p+600;
  if (longer > 0x1p+511) {
    return CorrectedRoot(longer * smaller, shorter * smaller) * larger;
  }
  if (shorter < 0x1p-459) {
    return CorrectedRoot(longer * larger, shorter * larger) * smaller;
  }
  return CorrectedRoot(longer, shorter);
}

double PowerOfTen(double exponent) {
  // The last power of ten whose digits a double holds all.
  constexpr double exact = 22;
  const double size = std::abs(exponent);
  if (!(size <= exact)) {
    return std::pow(10, exponent);
  }
  double power = 1;
  for (int times = static_cast<int>(size); times > 0; --times) {
    power *= 10;
  }
  return exponent < 0 ? 1 / power : power;
}

}  // namespace trelonit::portable

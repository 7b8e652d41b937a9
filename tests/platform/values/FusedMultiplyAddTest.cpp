// Needs nothing but GoogleTest: the tests for Windows take it in.

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>

#include "platform/values/FusedMultiplyAdd.h"

namespace trelonit::test {

namespace {

struct Fused {
  double A, B, C, Result;
};

// Worked in fractions of whole numbers and rounded once.

TEST(FusedByParts, KeepsWhatTheProductWouldLose) {
  for (const auto [a, b, c, result] :
       {Fused{1 + 0x1p-52, 1 + 0x1p-52, -1 - 0x1p-51, 0x1p-104},
        {0.1, 10, -1, 0x1p-54},
        {0.2, 5, -1, 0x1p-54},
        {1.0 / 3, 3, -1, -0x1p-54},
        {0x1.ec1d7db0f6162p+0, 0x1.076ce2fae421cp+0, -0x1.fa639ce627c6bp-20, 0x1.fa637d3fedf84p+0},
        {0x1.c6a5387e2ffa6p+0, 0x1.3fc1ea34c4664p+0, -0x1.1bf021f2c8751p+1, -0x1.cc53084497e5p-53},
        {0x1.92edcf47fa846p+0, 0x1.035b739765db6p+0, -0x1.9836892d9fbddp+0, -0x1.0c15f536c781ep-51},
        {0x1.df561d8553d74p+0, 0x1.4a0fe74a096e9p+0, -0x1.35016495770a3p+1,
         -0x1.b06f92fe9196cp-52}}) {
    EXPECT_EQ(FusedByParts::MultiplyAdd(a, b, c), result) << a << ' ' << b << ' ' << c;
    EXPECT_EQ(FusedByParts::MultiplyAdd(-b, a, -c), -result) << a << ' ' << b << ' ' << c;
  }
}

// The product is half a last bit of one, less or more by 2^-54 of itself.
TEST(FusedByParts, DoesNotTakeANearTieForATie) {
  constexpr double a = 1 + 0x1p-27;
  constexpr double less = 0x1.ffffffcp-54;
  constexpr double more = 0x1.ffffffc000001p-54;
  constexpr double afterOne = 1 + 0x1p-52;
  EXPECT_EQ(FusedByParts::MultiplyAdd(a, more, 1), afterOne);
  EXPECT_EQ(FusedByParts::MultiplyAdd(a, less, 1), 1.0);
  EXPECT_EQ(FusedByParts::MultiplyAdd(a, less, afterOne), afterOne);
  EXPECT_EQ(FusedByParts::MultiplyAdd(-a, less, afterOne), afterOne);
  EXPECT_EQ(FusedByParts::MultiplyAdd(-a, more, afterOne), 1.0);
}

TEST(FusedByParts, RoundsTiesToEven) {
  EXPECT_EQ(FusedByParts::MultiplyAdd(0.5, 0x1p-52, 1), 1.0);
  EXPECT_EQ(FusedByParts::MultiplyAdd(0.5, 0x1p-52, 1 + 0x1p-52), 1 + 0x1p-51);
}

TEST(FusedByParts, KnowsZero) {
  EXPECT_EQ(FusedByParts::MultiplyAdd(0, 3, 0.25), 0.25);
  EXPECT_EQ(FusedByParts::MultiplyAdd(3, 0.1, 0), 3 * 0.1);
  EXPECT_EQ(FusedByParts::MultiplyAdd(2, 3, -6), 0.0);
}

#if defined(__GLIBC__)

// Whose routine is exact with and without the instruction.
TEST(FusedByParts, GivesWhatTheLibraryGives) {
  std::uint64_t state = 1;
  const auto number = [&] {
    state = state * 6364136223846793005U + 1442695040888963407U;
    const double size = static_cast<double>(state >> 11) * 0x1p-52 - 1;
    return std::ldexp(size, static_cast<int>(state % 61) - 30);
  };
  for (int i = 0; i < 300000; ++i) {
    const double a = number();
    const double b = number();
    // Far from the product, and so near to it that most digits cancel.
    for (const double c : {number(), -a * b, std::nextafter(-a * b, 0), a * b * 0x1p-53}) {
      ASSERT_EQ(FusedByParts::MultiplyAdd(a, b, c), std::fma(a, b, c)) << a << ' ' << b << ' ' << c;
    }
  }
}

#endif

}  // namespace

}  // namespace trelonit::test

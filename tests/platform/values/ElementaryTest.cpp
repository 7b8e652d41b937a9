// Needs nothing but GoogleTest: the tests for Windows take it in.

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string_view>

#include "platform/values/Elementary.h"
#include "platform/values/ElementaryKernel.h"
#include "tests/support/ExtremeNumbers.h"

#if defined(__GLIBC__)
#include <gnu/libc-version.h>
#endif

namespace trelonit::test {

namespace {

constexpr double greatestDouble = std::numeric_limits<double>::max();
constexpr double leastDouble = std::numeric_limits<double>::denorm_min();
constexpr double pi = 0x1.921fb54442d18p+1;

struct Pair {
  double Argument, Result;
};
struct Triple {
  double First, Second, Result;
};

// The results in these tables are those of mpmath with 200 bits, rounded once.

TEST(PortableSine, IsTheNearestDouble) {
  for (const auto [angle, sine] :
       {Pair{0.001, 0x1.0624da5218a62p-10}, {0.05, 0x1.996dea2ff643cp-5},
        {0.12, 0x1.ea5758f3ce5cdp-4},       {0.126, 0x1.015da194e500ep-3},
        {0.3, 0x1.2e9cd95baba33p-2},        {0.5, 0x1.eaee8744b05fp-2},
        {0.85, 0x1.80a7d34468083p-1},       {0.86, 0x1.8403f0be4dd7ep-1},
        {1, 0x1.aed548f090ceep-1},          {1.5, 0x1.feb7a9b2c6d8bp-1},
        {2, 0x1.d18f6ead1b446p-1},          {2.4, 0x1.59d64f5c3d19bp-1},
        {2.5, 0x1.326af0dcfcab1p-1},        {3, 0x1.210386db6d55bp-3},
        {3.25, -0x1.bb2ad2464a48cp-4},      {4, -0x1.837b9dddc1eaep-1},
        {5, -0x1.eaf81f5e09933p-1},         {6.25, -0x1.0fcddc3f512bcp-5},
        {-0.75, -0x1.5cffc16bf8f0dp-1},     {-2.75, -0x1.86d2239c183fbp-2},
        {100, -0x1.03425b78c4db8p-1},       {12345.678, -0x1.687d5890974a5p-1},
        {0x1.b6p-1, 0x1.827f6d2325578p-1}}) {
    EXPECT_EQ(portable::Sine(angle), sine) << angle;
  }
}

TEST(PortableCosine, IsTheNearestDouble) {
  for (const auto [angle, cosine] :
       {Pair{0.001, 0x1.ffffef390876cp-1}, {0.05, 0x1.ff5c31b289258p-1},
        {0.3, 0x1.e921dd42f09bap-1},       {0.5, 0x1.c1528065b7d5p-1},
        {0.85, 0x1.51e94f96f971bp-1},      {0.86, 0x1.4e0c48a8e637cp-1},
        {1, 0x1.14a280fb5068cp-1},         {1.5, 0x1.21bd54fc5f9a7p-4},
        {1.57, 0x1.a181296fadbfbp-11},     {2, -0x1.aa22657537205p-2},
        {2.4, -0x1.798bab490d185p-1},      {2.5, -0x1.9a2f7ef858b7dp-1},
        {3, -0x1.fae04be85e5d2p-1},        {3.25, -0x1.fcfe909d7f7f8p-1},
        {4, -0x1.4eaa606db24c1p-1},        {5, 0x1.22785706b4ad9p-2},
        {6.25, 0x1.ffb7d58a8f975p-1},      {-0.75, 0x1.769fec655211fp-1},
        {-2.75, -0x1.d93e294faed14p-1},    {100, 0x1.b981dbf665fdfp-1},
        {12345.678, 0x1.6b94c3bbe24b8p-1}, {0x1.b6p-1, 0x1.4fcd8091b8f24p-1}}) {
    EXPECT_EQ(portable::Cosine(angle), cosine) << angle;
  }
}

TEST(PortableArcTangent, IsTheNearestDouble) {
  for (const auto [slope, angle] :
       {Pair{0.001, 0x1.0624d77516e16p-10}, {0.05, 0x1.9942597929f27p-5},
        {0.0625, 0x1.ff55bb72cfdeap-5},     {1.25 / 6, 0x1.a4a6567a8dcf4p-3},
        {0.3, 0x1.2a73a661eaf06p-2},        {0.5, 0x1.dac670561bb4fp-2},
        {0.75, 0x1.4978fa3269ee1p-1},       {0.99, 0x1.8f8d0f7321467p-1},
        {1, 0x1.921fb54442d18p-1},          {1.25, 0x1.cac7c57846f9ep-1},
        {2, 0x1.1b6e192ebbe44p+0},          {2.5, 0x1.30b6d796a4da8p+0},
        {4, 0x1.5368c951e9cfdp+0},          {15.9, 0x1.820b5e69c2ec7p+0},
        {16, 0x1.82250768ac529p+0},         {20, 0x1.8555a2787981fp+0},
        {1000, 0x1.91de2c0e658bdp+0},       {-0.4, -0x1.85a376b677dcp-2},
        {-3, -0x1.3fc176b7a856p+0},         {1e6, 0x1.921fa47d4b30dp+0}}) {
    EXPECT_EQ(portable::ArcTangent(slope), angle) << slope;
  }
}

TEST(PortableDirection, IsTheNearestDouble) {
  for (const auto [rise, run, angle] : {Triple{0.02, 1, 0x1.47a2e5dafff07p-6},
                                        {1.25, 6, 0x1.a4a6567a8dcf3p-3},
                                        {0.7, 0.7, 0x1.921fb54442d18p-1},
                                        {3, 2, 0x1.f730bd281f69bp-1},
                                        {40, 1, 0x1.8bb9a63718f45p+0},
                                        {0.05, -1, 0x1.8bbaabde5e29cp+1},
                                        {2, -3, 0x1.46dc09ec29433p+1},
                                        {3, -2, 0x1.145385fa3af71p+1},
                                        {50, -1, 0x1.973e40dbaed14p+0},
                                        {-1, -1, -0x1.2d97c7f3321d2p+1},
                                        {-0.3, 0.8, -0x1.6f61941e4defp-2},
                                        {-9, -0.1, -0x1.94f7db1b636ecp+0}}) {
    EXPECT_EQ(portable::Direction(rise, run), angle) << rise << ' ' << run;
  }
}

TEST(PortableHypotenuse, IsTheNearestDouble) {
  for (const auto [a, b, length] :
       {Triple{3, 4, 5},
        {1.25, 6, 0x1.883eac9f5314p+2},
        {2.7, 3.1, 0x1.0719fbfdabb5cp+2},
        {0.1, 0.2, 0x1.c9f25c5bfeddap-3},
        {2.4, 2.25, 0x1.a516c07625d5ap+1},
        {1.5, -3, 0x1.ad5336963eefcp+1},
        {-0.35, 12, 0x1.8029cdf0137dep+3},
        {0x1.cf3d92de43496p+0, 0x1.0b73b8e8b8fd4p+0, 0x1.0b73b8e8b8fd4p+1},
        {1e200, 1e200, 0x1.d8f9811335b57p+664},
        {1e-200, 2e-200, 0x1.b62b60ac37e38p-664},
        {1, 1e-9, 1},
        {leastDouble, leastDouble, leastDouble},
        {3, 1e17, 1e17}}) {
    EXPECT_EQ(portable::Hypotenuse(a, b), length) << a << ' ' << b;
    EXPECT_EQ(portable::Hypotenuse(b, a), length) << a << ' ' << b;
  }
}

// About one result in a thousand (of the hypotenuse: in two hundred) is the neighbour of the
// nearest double, where the exact value lies next to the middle of both. The neighbours are kept:
// they are what glibc gives, and what designs were calculated with before these routines. mpmath
// gives the doubles of the right column.

TEST(PortableFunctions, KeepTheNeighbourThatTheyAlwaysGave) {
  EXPECT_EQ(portable::Sine(2.924), std::nextafter(0x1.ba1f1ecc68613p-3, 0));
  EXPECT_EQ(portable::Sine(3.226), std::nextafter(-0x1.59527554a9661p-4, -1));
  EXPECT_EQ(portable::Cosine(0.473), std::nextafter(0x1.c7c907eb6a1bdp-1, 1));
  EXPECT_EQ(portable::Cosine(1.995), std::nextafter(-0x1.a579340dc9a0bp-2, 0));
  EXPECT_EQ(portable::ArcTangent(79.0 / 207), std::nextafter(0x1.7554d96eb0f4dp-2, 1));
  EXPECT_EQ(portable::ArcTangent(31.0 / 299), std::nextafter(0x1.a728313feeeb8p-4, 0));
  EXPECT_EQ(portable::Hypotenuse(1.98, 12.05), std::nextafter(0x1.86c555c998d7fp+3, 99));
  EXPECT_EQ(portable::Hypotenuse(4.49, -2.68), std::nextafter(0x1.4ea8074754689p+2, 0));
  EXPECT_EQ(portable::Direction(2.71, 25.39), std::nextafter(0x1.b389904828747p-4, 1));
  EXPECT_EQ(portable::Direction(2.12, 20.85), std::nextafter(0x1.9f0ca33638307p-4, 0));
}

TEST(PortableFunctions, AreOddOrEven) {
  for (const double size :
       {leastDouble, 1e-300, 1e-9, 0.01, 0.1, 0.2, 0.8, 1.0, 2.0, 3.0, 7.0, 1e5}) {
    EXPECT_EQ(portable::Sine(-size), -portable::Sine(size)) << size;
    EXPECT_EQ(portable::Cosine(-size), portable::Cosine(size)) << size;
    EXPECT_EQ(portable::ArcTangent(-size), -portable::ArcTangent(size)) << size;
    EXPECT_EQ(portable::Direction(-size, 0.5), -portable::Direction(size, 0.5)) << size;
    EXPECT_EQ(portable::Direction(-size, -0.5), -portable::Direction(size, -0.5)) << size;
    EXPECT_EQ(portable::Hypotenuse(-size, 0.5), portable::Hypotenuse(0.5, size)) << size;
  }
}

TEST(PortableFunctions, KeepTheSignOfZero) {
  for (const double zero : {0.0, -0.0}) {
    EXPECT_EQ(portable::Sine(zero), 0.0);
    EXPECT_EQ(std::signbit(portable::Sine(zero)), std::signbit(zero));
    EXPECT_EQ(std::signbit(portable::ArcTangent(zero)), std::signbit(zero));
    EXPECT_EQ(portable::Cosine(zero), 1.0);
    EXPECT_EQ(std::signbit(portable::Direction(zero, 1)), std::signbit(zero));
    EXPECT_FALSE(std::signbit(portable::Hypotenuse(zero, zero)));
  }
}

TEST(PortableFunctions, GiveATinyArgumentBack) {
  for (const double tiny : {leastDouble, -leastDouble, 1e-310, -0x1p-1022, 1e-30, 1e-9}) {
    EXPECT_EQ(portable::Sine(tiny), tiny);
    EXPECT_EQ(portable::ArcTangent(tiny), tiny);
    EXPECT_EQ(portable::Direction(tiny, 1), tiny);
    EXPECT_EQ(portable::Hypotenuse(tiny, 0), std::abs(tiny));
    EXPECT_EQ(portable::Cosine(tiny), 1.0);
  }
}

TEST(PortableFunctions, HaveTheirLimits) {
  EXPECT_EQ(portable::ArcTangent(infinity), pi / 2);
  EXPECT_EQ(portable::ArcTangent(-infinity), -pi / 2);
  EXPECT_EQ(portable::ArcTangent(greatestDouble), pi / 2);
  EXPECT_EQ(portable::ArcTangent(0x1.49ff2p+52), pi / 2);
  EXPECT_EQ(portable::ArcTangent(-1e17), -pi / 2);
  EXPECT_EQ(portable::Hypotenuse(greatestDouble, greatestDouble), infinity);
  EXPECT_EQ(portable::Hypotenuse(greatestDouble, 1), greatestDouble);
  EXPECT_EQ(portable::Hypotenuse(-infinity, 1), infinity);
  EXPECT_EQ(portable::Hypotenuse(1, infinity), infinity);
}

TEST(PortableDirection, KnowsAllQuarters) {
  EXPECT_EQ(portable::Direction(0, -1), pi);
  EXPECT_EQ(portable::Direction(-0.0, -1), -pi);
  EXPECT_EQ(portable::Direction(0.0, -0.0), pi);
  EXPECT_EQ(portable::Direction(1, 0), pi / 2);
  EXPECT_EQ(portable::Direction(-1, -0.0), -pi / 2);
  EXPECT_EQ(portable::Direction(infinity, 1), pi / 2);
  EXPECT_EQ(portable::Direction(-infinity, -1), -pi / 2);
  EXPECT_EQ(portable::Direction(infinity, greatestDouble), pi / 2);
  EXPECT_EQ(portable::Direction(1, infinity), 0.0);
  EXPECT_EQ(portable::Direction(1, -infinity), pi);
  EXPECT_EQ(portable::Direction(infinity, infinity), pi / 4);
  EXPECT_EQ(portable::Direction(-infinity, -infinity), -0x1.2d97c7f3321d2p+1);
  EXPECT_EQ(portable::Direction(1e-300, 1e300), 0.0);
  EXPECT_EQ(portable::Direction(1e-300, -1e300), pi);
  EXPECT_EQ(portable::Direction(1e300, 1e-300), pi / 2);
  EXPECT_EQ(portable::Direction(leastDouble, leastDouble), pi / 4);
  EXPECT_EQ(portable::Direction(greatestDouble, -greatestDouble), 0x1.2d97c7f3321d2p+1);
}

TEST(PortableDirection, DependsOnNoUnit) {
  for (const auto direction : {portable::Direction, ElementaryKernel<FusedByParts>::Direction}) {
    for (const double unit : {leastDouble, 0x1p-1000, 0x1p-502, 0x1p-498, 0x1p498, 0x1p1018}) {
      for (int rise = 1; rise < 30; ++rise) {
        for (int run = -30; run < 30; ++run) {
          EXPECT_EQ(direction(rise * unit, run * unit), direction(rise, run))
              << rise << ' ' << run << ' ' << unit;
        }
      }
    }
  }
}

TEST(PortableFunctions, LeaveWhatIsNoNumber) {
  EXPECT_TRUE(std::isnan(portable::Sine(notANumber)));
  EXPECT_TRUE(std::isnan(portable::Cosine(notANumber)));
  EXPECT_TRUE(std::isnan(portable::ArcTangent(notANumber)));
  EXPECT_TRUE(std::isnan(portable::Direction(notANumber, 1)));
  EXPECT_TRUE(std::isnan(portable::Direction(1, notANumber)));
  EXPECT_TRUE(std::isnan(portable::Hypotenuse(notANumber, 1)));
  EXPECT_TRUE(std::isnan(portable::Hypotenuse(1, notANumber)));
  EXPECT_TRUE(std::isnan(portable::Sine(infinity)));
  EXPECT_TRUE(std::isnan(portable::Cosine(-infinity)));
  // As by IEEE 754: whatever the other leg is, it is not longer.
  EXPECT_EQ(portable::Hypotenuse(infinity, notANumber), infinity);
}

TEST(PortablePowerOfTen, IsTheNearestDouble) {
  constexpr std::array powers{1e-22, 1e-21, 1e-20, 1e-19, 1e-18, 1e-17, 1e-16, 1e-15, 1e-14,
                              1e-13, 1e-12, 1e-11, 1e-10, 1e-9,  1e-8,  1e-7,  1e-6,  1e-5,
                              1e-4,  1e-3,  1e-2,  1e-1,  1e0,   1e1,   1e2,   1e3,   1e4,
                              1e5,   1e6,   1e7,   1e8,   1e9,   1e10,  1e11,  1e12,  1e13,
                              1e14,  1e15,  1e16,  1e17,  1e18,  1e19,  1e20,  1e21,  1e22};
  double exponent = -22;
  for (const double power : powers) {
    EXPECT_EQ(portable::PowerOfTen(exponent), power) << exponent;
    ++exponent;
  }
}

TEST(PortablePowerOfTen, GoesOnToTheLimits) {
  EXPECT_NEAR(portable::PowerOfTen(300), 1e300, 1e288);
  EXPECT_NEAR(portable::PowerOfTen(-300), 1e-300, 1e-312);
  EXPECT_EQ(portable::PowerOfTen(-infinity), 0.0);
  EXPECT_EQ(portable::PowerOfTen(infinity), infinity);
  EXPECT_TRUE(std::isnan(portable::PowerOfTen(notANumber)));
}

/// The same numbers on every system (Knuth's constants).
class Arguments {
 public:
  /// Below one.
  double Share() { return static_cast<double>(Next() >> 11) * 0x1p-53; }
  double Angle() { return (Share() - 0.5) * 14; }
  /// Of a height by a panel, as designs have them.
  double Slope() { return Decimals(600) / Decimals(1200); }
  double Length() { return Decimals(3000); }
  double OfAnySize() {
    const std::uint64_t bits = Next();
    return std::ldexp(Share() + 1, static_cast<int>(bits % 80) - 40) * (bits % 2 == 0 ? 1 : -1);
  }

 private:
  double Decimals(std::uint64_t hundredths) {
    return static_cast<double>((Next() >> 33) % hundredths + 1) / 100;
  }
  std::uint64_t Next() { return state_ = state_ * 6364136223846793005U + 1442695040888963407U; }

  std::uint64_t state_ = 1;
};

/// What a function gives for many arguments, in one number (FNV-1a by words).
template <class Function>
std::uint64_t DigestOf(Function function) {
  Arguments arguments;
  std::uint64_t digest = 14695981039346656037U;
  for (int i = 0; i < 100000; ++i) {
    digest = (digest ^ std::bit_cast<std::uint64_t>(double{function(arguments)})) * 1099511628211U;
  }
  return digest;
}

// The digests are those of glibc 2.36 on a processor with the fused instruction: the results that
// every build has to give.

TEST(PortableFunctions, GiveTheSameBitsOnEverySystem) {
  EXPECT_EQ(DigestOf([](Arguments& some) { return portable::Sine(some.Angle()); }),
            0xfe58e5c5cc1697bbU);
  EXPECT_EQ(DigestOf([](Arguments& some) { return portable::Cosine(some.Angle()); }),
            0xc57c7e27ee6d7c1cU);
  EXPECT_EQ(DigestOf([](Arguments& some) { return portable::ArcTangent(some.Slope()); }),
            0x0f52662a5029c3b8U);
  EXPECT_EQ(DigestOf([](Arguments& some) { return portable::ArcTangent(some.OfAnySize()); }),
            0xdcbfaf9bd347321fU);
  EXPECT_EQ(DigestOf([](Arguments& some) {
              const double a = some.Length();
              return portable::Hypotenuse(a, some.Length());
            }),
            0xd4a284bd15dd868fU);
  EXPECT_EQ(DigestOf([](Arguments& some) {
              const double rise = some.OfAnySize();
              return portable::Direction(rise, some.OfAnySize());
            }),
            0x65fbd52f41a93fb6U);
}

TEST(PortableFunctions, AreThoseOfTheSystemForGreatAngles) {
  Arguments some;
  for (int i = 0; i < 1000; ++i) {
    const double angle = some.OfAnySize() * 0x1p+80;
    EXPECT_EQ(portable::Sine(angle), std::sin(angle)) << angle;
    EXPECT_EQ(portable::Cosine(angle), std::cos(angle)) << angle;
  }
}

#if defined(__GLIBC__) && defined(__x86_64__)

TEST(PortableFunctions, GiveWhatTheLibraryOfTheSystemGave) {
  if (std::string_view(gnu_get_libc_version()) != "2.36" || !__builtin_cpu_supports("fma")) {
    GTEST_SKIP() << "known of glibc 2.36 with the fused instruction";
  }
  Arguments some;
  for (int i = 0; i < 200000; ++i) {
    const double angle = some.Angle();
    EXPECT_EQ(portable::Sine(angle), std::sin(angle)) << angle;
    EXPECT_EQ(portable::Cosine(angle), std::cos(angle)) << angle;
    const double a = some.OfAnySize();
    const double b = some.OfAnySize();
    EXPECT_EQ(portable::Sine(a), std::sin(a)) << a;
    EXPECT_EQ(portable::Cosine(a), std::cos(a)) << a;
    EXPECT_EQ(portable::ArcTangent(a), std::atan(a)) << a;
    EXPECT_EQ(portable::Direction(a, b), std::atan2(a, b)) << a << ' ' << b;
    EXPECT_EQ(portable::Hypotenuse(a, b), std::hypot(a, b)) << a << ' ' << b;
    const double slope = some.Slope();
    EXPECT_EQ(portable::ArcTangent(slope), std::atan(slope)) << slope;
    const double length = some.Length();
    EXPECT_EQ(portable::Hypotenuse(length, slope), std::hypot(length, slope)) << length;
    EXPECT_EQ(portable::Direction(slope, length), std::atan2(slope, length)) << slope;
  }
}

#endif

TEST(ElementaryKernel, GivesTheSameWithoutTheInstruction) {
  using Parts = ElementaryKernel<FusedByParts>;
  Arguments some;
  for (int i = 0; i < 20000; ++i) {
    const double angle = some.Angle();
    EXPECT_EQ(Parts::Sine(angle), portable::Sine(angle)) << angle;
    EXPECT_EQ(Parts::Cosine(angle), portable::Cosine(angle)) << angle;
    const double a = some.OfAnySize();
    const double b = some.OfAnySize();
    EXPECT_EQ(Parts::ArcTangent(a), portable::ArcTangent(a)) << a;
    EXPECT_EQ(Parts::Direction(a, b), portable::Direction(a, b)) << a << ' ' << b;
  }
}

}  // namespace

}  // namespace trelonit::test

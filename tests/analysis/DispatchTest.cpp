#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "tests/analysis/Designs.h"

#if __has_include(<sys/resource.h>)
#include <sys/resource.h>
#endif

namespace trelonit::test {
namespace {

void ExpectEmpty(const TreloResult& result) {
  for (const double number : {result.AngleOporn, result.AngleRaskos, result.LenPanel,
                              result.LenOpornRaskos, result.LenRaskos, result.ReactLeft,
                              result.ReactRight, result.SumLenUpPoyas, result.SumLenDwnPoyas,
                              result.SumLenOpornRaskos, result.SumLenRaskos, result.SumLenStoyka}) {
    EXPECT_EQ(number, 0);
  }
  EXPECT_EQ(result.KnotNum, 0);
  EXPECT_FALSE(result.Balanced);
  EXPECT_FALSE(result.BarForce.IsAllocated());
  EXPECT_FALSE(result.UpKnotLoad.IsAllocated());
  EXPECT_FALSE(result.DwnKnotLoad.IsAllocated());
  EXPECT_FALSE(result.UpPoyasForce.IsAllocated());
  EXPECT_FALSE(result.DwnPoyasForce.IsAllocated());
  EXPECT_FALSE(result.RaskosForce.IsAllocated());
  EXPECT_FALSE(result.StoykaForce.IsAllocated());
}

Message SolverError(Long scheme, const std::string& numberAndDescription) {
  return {.Title = "CalcTrelo" + std::to_string(scheme),
          .Text = " Err # " + numberAndDescription,
          .Style = MessageStyle::Critical};
}

const std::string overflow = "6 Discription : Overflow";
const std::string subscript = "9 Discription : Subscript out of range";
const std::string divisionByZero = "11 Discription : Division by zero";

void ExpectFailure(const TreloData& data, const std::string& numberAndDescription) {
  const auto [result, told] = CalcTrelo(data);
  EXPECT_EQ(told, std::vector{SolverError(data.TreloType, numberAndDescription)});
  ExpectEmpty(result);
}

TreloData Loaded(Long scheme, Long n = 10) {
  TreloData data = Design(scheme, n, 20, 1.5, 2);
  FillIrregular(data);
  return data;
}

TEST(Dispatch, RefusesASchemeThatDoesNotExist) {
  for (const Long scheme :
       {0, 11, -1, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()}) {
    SCOPED_TRACE(scheme);
    TreloData data = Loaded(1);
    data.TreloType = scheme;
    const auto [result, told] = CalcTrelo(data);
    ExpectEmpty(result);
    EXPECT_EQ(told, std::vector({Message{.Title = "Trelo's error",
                                         .Text = "Неизвестный тип фермы, расчет не возможен ",
                                         .Style = MessageStyle::Critical}}));
  }
}

TEST(Dispatch, ReservedSchemesGiveAnEmptyResultInSilence) {
  for (Long scheme = 5; scheme <= 10; ++scheme) {
    SCOPED_TRACE(scheme);
    TreloData data = Loaded(1);
    data.TreloType = scheme;
    const auto [result, told] = CalcTrelo(data);
    ExpectEmpty(result);
    EXPECT_TRUE(told.empty());
  }
}

TEST(Dispatch, ReservedSolversGiveAnEmptyResultInSilence) {
  const TreloData data = Loaded(1);
  for (const auto solver :
       {CalcTrelo5, CalcTrelo6, CalcTrelo7, CalcTrelo8, CalcTrelo9, CalcTrelo10}) {
    const auto [result, told] = solver(data);
    ExpectEmpty(result);
    EXPECT_TRUE(told.empty());
  }
}

TEST(Dispatch, CallsTheSolverOfTheScheme) {
  const std::array solvers{CalcTrelo1, CalcTrelo2, CalcTrelo3, CalcTrelo4};
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    SCOPED_TRACE(scheme);
    const TreloData data = Loaded(scheme);
    const TreloResult direct = solvers[static_cast<std::size_t>(scheme - 1)](data).Value;
    const auto [dispatched, told] = CalcTrelo(data);
    EXPECT_TRUE(told.empty());
    EXPECT_NE(dispatched.KnotNum, 0);
    EXPECT_EQ(dispatched.KnotNum, direct.KnotNum);
    EXPECT_EQ(dispatched.BarForce, direct.BarForce);
    EXPECT_EQ(AllForces(dispatched), AllForces(direct));
  }
}

class SchemeFailure : public testing::TestWithParam<Long> {};
INSTANTIATE_TEST_SUITE_P(Dispatch, SchemeFailure, testing::Values(1, 2, 3, 4));

TEST_P(SchemeFailure, OfATrussWithoutHeightIsADivisionByZero) {
  TreloData data = Loaded(GetParam());
  data.Hight = 0;
  ExpectFailure(data, divisionByZero);
}

TEST_P(SchemeFailure, OfATrussWithoutHeightAndLoadIsAnOverflow) {
  // Nothing over nothing.
  TreloData data = Design(GetParam(), 10, 20, 0, 2);
  ExpectFailure(data, overflow);
}

TEST_P(SchemeFailure, ComesFromATooShortLoadArray) {
  for (const auto array : {&LoadArrays::UpPForce, &LoadArrays::UpDistForce, &LoadArrays::DwnPForce,
                           &LoadArrays::DwnDistForce}) {
    TreloData data = Loaded(GetParam());
    BoundedArray<double>& loads = data.*array;
    loads.ResizeUpper(loads.UpperBound() - 1);
    ExpectFailure(data, subscript);
  }
}

TEST_P(SchemeFailure, ComesFromALoadArrayThatBeginsAtOne) {
  for (const auto array : {&LoadArrays::UpPForce, &LoadArrays::UpDistForce, &LoadArrays::DwnPForce,
                           &LoadArrays::DwnDistForce}) {
    TreloData data = Loaded(GetParam());
    data.*array = BoundedArray<double>(1, (data.*array).UpperBound());
    ExpectFailure(data, subscript);
  }
}

TEST_P(SchemeFailure, ComesFromUnallocatedLoads) {
  for (const auto array : {&LoadArrays::UpPForce, &LoadArrays::UpDistForce, &LoadArrays::DwnPForce,
                           &LoadArrays::DwnDistForce}) {
    TreloData data = Loaded(GetParam());
    data.*array = BoundedArray<double>();
    ExpectFailure(data, subscript);
  }
  TreloData data = Loaded(GetParam());
  static_cast<LoadArrays&>(data) = LoadArrays();
  ExpectFailure(data, subscript);
}

TEST_P(SchemeFailure, ComesFromLoadsBeyondTheRangeOfNumbers) {
  TreloData data = Loaded(GetParam());
  for (double& load : data.UpPForce) {
    load = 1e308;
  }
  ExpectFailure(data, overflow);
}

TEST_P(SchemeFailure, ComesFromANegativePanelCount) {
  constexpr Long smallest = std::numeric_limits<Long>::min();
  for (const Long n : {-30, smallest, smallest + 1, smallest + 2, smallest + 3}) {
    TreloData data = Loaded(GetParam());
    data.PanelNum = n;
    ExpectFailure(data, subscript);
  }
}

TEST_P(SchemeFailure, ComesFromASpanOfZero) {
  TreloData data = Loaded(GetParam());
  data.LengthF = 0;
  ExpectFailure(data, divisionByZero);
}

#if __has_include(<sys/resource.h>)
/// The most memory that the process has held so far, MB.
long PeakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss / 1024;
}
#else
long PeakMegabytes() {
  return 0;
}
#endif

TEST_P(SchemeFailure, OfAHugePanelCountTakesNoMemoryForTheBarTable) {
  const Long n = 30000;
  TreloData data = Design(GetParam(), n, 20, 1.5, 2);
  FillIrregular(data);
  const long before = PeakMegabytes();
  ExpectFailure(data, subscript);
  EXPECT_LT(PeakMegabytes() - before, 200);
}

TEST_P(SchemeFailure, OfAPanelCountNearTheEndOfItsRangeTakesNoMemory) {
  // The number of joints that belongs to it is beyond a Long.
  for (const Long n : {1 << 30, 1500000000}) {
    SCOPED_TRACE(n);
    TreloData data = Loaded(GetParam());
    data.PanelNum = n;
    const long before = PeakMegabytes();
    ExpectFailure(data, subscript);
    ASSERT_LT(PeakMegabytes() - before, 200);
  }
}

class EndPanelFailure : public testing::TestWithParam<Long> {};
INSTANTIATE_TEST_SUITE_P(Dispatch, EndPanelFailure, testing::Values(1, 2, 4));

TEST_P(EndPanelFailure, OfEndPanelsThatMeetIsADivisionByZero) {
  TreloData data = Loaded(GetParam());
  data.LenOporn = 10;
  ExpectFailure(data, divisionByZero);
}

TEST_P(EndPanelFailure, OfEndPanelsWithoutLengthIsADivisionByZero) {
  TreloData data = Loaded(GetParam());
  data.LenOporn = 0;
  ExpectFailure(data, divisionByZero);
}

TEST_P(EndPanelFailure, OfATrussOfTwoPanelsIsADivisionByZero) {
  TreloData data = Loaded(GetParam());
  data.PanelNum = 2;
  ExpectFailure(data, divisionByZero);
}

TEST(Dispatch, LatticeDoesNotLookAtTheEndPanelLength) {
  TreloData data = Loaded(3);
  const TreloResult plain = Solved(data);
  for (const double length : {0.0, 10.0, -4.0}) {
    data.LenOporn = length;
    EXPECT_EQ(AllForces(Solved(data)), AllForces(plain)) << length;
  }
}

TEST(Dispatch, LatticeOfOnePanelOrNoneFails) {
  TreloData data = Loaded(3);
  data.PanelNum = 1;
  ExpectFailure(data, subscript);
  data.PanelNum = 0;
  ExpectFailure(data, divisionByZero);
}

TEST(Dispatch, WorksOnAfterAFailure) {
  TreloData data = Loaded(1);
  data.Hight = 0;
  EXPECT_EQ(CalcTrelo(data).Told.size(), 1u);
  data.Hight = 1.5;
  EXPECT_EQ(CalcTrelo(data).Value.KnotNum, 22);
}

}  // namespace
}  // namespace trelonit::test

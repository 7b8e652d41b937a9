#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "checks/ElementGroups.h"
#include "tests/opinion/OpinionCase.h"

namespace trelonit::test {

namespace {

constexpr const char* noScheme =
    "Эта схема фермы не рассчитывается: усилий нет, сравнивать нечего.";
constexpr const char* noForces = "Усилий нет: расчет не выполнен или закончился ошибкой.";
constexpr const char* noPanelCount = "Такого количества панелей у этой схемы нет.";
constexpr const char* noGeometry =
    "По заданным размерам ферма не строится: пролет, высота и панели должны быть больше нуля, а "
    "две опорные панели вместе короче пролета.";
constexpr const char* noChecks = "Проверки не выполнены: программа не рассчитала коэффициенты.";
constexpr const char* noNumbers =
    "Ry, модуль упругости и оба коэффициента надежности и условий работы должны быть больше нуля.";
constexpr const char* noBracing = "Закрепление поясов из плоскости фермы не выбрано.";
constexpr const char* otherTruss = "Результаты относятся к другой ферме: выполните расчет заново.";
constexpr const char* beyondNorms =
    "Исходные данные выходят за пределы, в которых нормы дают ответ.";

using Change = std::function<void(OpinionCase&)>;

const std::vector<double> noReactions{0, 0};

/// What the opinion says of a good design after the change; nothing else may stand in it.
std::string RefusalAfter(Long scheme, const Change& change) {
  OpinionCase design(SnowyTruss(scheme));
  change(design);
  const Opinion opinion = design.Form();
  const bool empty = opinion.Bars.empty() && opinion.Groups.empty() && opinion.Model.Bars.empty() &&
                     opinion.Forces.Forces.empty() && opinion.Told.Forces.empty() &&
                     opinion.ToldResiduals.empty();
  EXPECT_EQ(empty, opinion.HasRefused());
  if (opinion.HasRefused()) {
    EXPECT_TRUE(design.Find().empty());
    EXPECT_TRUE(ExplainOpinion(design.Judged(), opinion).empty());
    // The figures of the program's own check are there all the same.
    EXPECT_NO_THROW(ExplainTold(design.Judged(), std::nullopt));
    EXPECT_TRUE(opinion.UnbalancedJoints().empty());
    EXPECT_EQ(opinion.FindGroup(ElementGroup::UpPoyas), nullptr);
    EXPECT_EQ(opinion.UpperHeld, 0);
    EXPECT_EQ(opinion.LowerHeld, 0);
    EXPECT_EQ(opinion.GreatestForce, 0);
    EXPECT_EQ(AllForces(opinion.Forces), noReactions);
    EXPECT_EQ(AllForces(opinion.Told), noReactions);
  }
  return opinion.Refusal;
}

void ForEveryScheme(const std::function<void(Long)>& body) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    SCOPED_TRACE(scheme);
    body(scheme);
  }
}

TEST(Refusal, IsNoneOfAGoodDesign) {
  ForEveryScheme([](Long scheme) { EXPECT_EQ(RefusalAfter(scheme, [](OpinionCase&) {}), ""); });
}

TEST(Refusal, OfSchemesWithoutABody) {
  for (const Long type : {-1, 0, 5, 6, 7, 8, 9, 10, 11, std::numeric_limits<Long>::max()}) {
    EXPECT_EQ(RefusalAfter(1, [=](OpinionCase& design) { design.Data.TreloType = type; }), noScheme)
        << type;
    // And as the program itself leaves it: with the empty result of such a scheme.
    EXPECT_EQ(RefusalAfter(1,
                           [=](OpinionCase& design) {
                             design.Data.TreloType = type;
                             design.Calculate();
                           }),
              noScheme)
        << type;
  }
}

TEST(Refusal, WithoutForces) {
  ForEveryScheme([](Long scheme) {
    EXPECT_EQ(RefusalAfter(scheme, [](OpinionCase& design) { design.Result = {}; }), noForces);
  });
}

TEST(Refusal, OfAPanelCountThatTheSchemeDoesNotHave) {
  ForEveryScheme([](Long scheme) {
    for (const Long n : {-4, 0, 1, scheme == 3 ? 1 : 2, scheme == 3 ? 1 : 7}) {
      EXPECT_EQ(RefusalAfter(scheme, [=](OpinionCase& design) { design.Data.PanelNum = n; }),
                noPanelCount)
          << n;
    }
  });
}

TEST(Refusal, OfSizesThatMakeNoTruss) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  ForEveryScheme([=](Long scheme) {
    for (const double size : {0.0, -1.0, nan}) {
      EXPECT_EQ(RefusalAfter(scheme, [=](OpinionCase& design) { design.Data.LengthF = size; }),
                noGeometry);
      EXPECT_EQ(RefusalAfter(scheme, [=](OpinionCase& design) { design.Data.Hight = size; }),
                noGeometry);
    }
    // Scheme 3 has no end panels of its own.
    for (const double size : {0.0, -1.0, nan, 12.0, 30.0}) {
      EXPECT_EQ(RefusalAfter(scheme, [=](OpinionCase& design) { design.Data.LenOporn = size; }),
                scheme == 3 ? "" : noGeometry);
    }
  });
}

TEST(Refusal, WithoutChecks) {
  EXPECT_EQ(RefusalAfter(2, [](OpinionCase& design) { design.Check = {}; }), noChecks);
  // As the program leaves it where a check breaks off: here over a limit of 0.
  EXPECT_EQ(RefusalAfter(2,
                         [](OpinionCase& design) {
                           design.Numbers.LimitUser = 0;
                           design.Calculate();
                         }),
            noChecks);
}

TEST(Refusal, OfNumbersThatAreNotPositive) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (double CheckNumbers::*number :
       {&CheckNumbers::Ry, &CheckNumbers::E, &CheckNumbers::Yc, &CheckNumbers::Gn}) {
    for (const double value : {0.0, -0.0, -1.0, nan}) {
      EXPECT_EQ(RefusalAfter(1, [=](OpinionCase& design) { design.Numbers.*number = value; }),
                noNumbers);
    }
  }
}

// However soft: what is beyond the formulas of phi has the program's own figure.
TEST(Refusal, IsNoneOfAnyPositiveModulus) {
  for (const double E : {0.5, 1.0}) {
    EXPECT_EQ(RefusalAfter(1, [=](OpinionCase& design) { design.Numbers.E = E; }), "") << E;
  }
}

TEST(Refusal, WithoutBracing) {
  for (const Integer bracing : std::initializer_list<Integer>{-1, 0, 5}) {
    EXPECT_EQ(RefusalAfter(1, [=](OpinionCase& design) { design.Data.UpPoyasBrace = bracing; }),
              noBracing);
    EXPECT_EQ(RefusalAfter(1, [=](OpinionCase& design) { design.Data.DownPoyasBrace = bracing; }),
              noBracing);
  }
}

TEST(Refusal, OfASectionWithoutAreaOrInertiaNamesItsGroup) {
  for (const ElementGroupRow& row : elementGroups) {
    for (double ProfileRec::*field : {&ProfileRec::A, &ProfileRec::Jy, &ProfileRec::Jz}) {
      for (const double value : {0.0, -1.0}) {
        const Change change = [&](OpinionCase& design) {
          design.Sections[row.Place].Profile.*field = value;
        };
        const std::string refusal =
            std::string("Площадь и моменты инерции сечения должны быть больше нуля: ") + row.Name +
            ".";
        EXPECT_EQ(RefusalAfter(1, change), refusal);
        // Scheme 3 has no verticals, whose section is not looked at.
        EXPECT_EQ(RefusalAfter(3, change), row.Group == ElementGroup::Stoyka ? "" : refusal);
      }
    }
    const Change unknown = [&](OpinionCase& design) { design.Sections[row.Place].Layout = 12; };
    EXPECT_NE(RefusalAfter(1, unknown), "");
  }
}

TEST(Refusal, OfResultsOfAnotherTruss) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (Long other = 1; other <= 4; ++other) {
      for (const Long n : {6, 8, 10}) {
        if (other != scheme || n != 8) {
          SCOPED_TRACE(testing::Message() << scheme << " after " << other << ", " << n);
          EXPECT_EQ(RefusalAfter(other,
                                 [=](OpinionCase& design) {
                                   design = OpinionCase(SnowyTruss(other, n));
                                   // Scheme and size are what the form shows now.
                                   design.Data.TreloType = scheme;
                                   design.Data.PanelNum = 8;
                                 }),
                    otherTruss);
        }
      }
    }
  }
}

TEST(Refusal, OfResultsWithArraysOfAnotherSize) {
  using Member = BoundedArray<double> TreloResult::*;
  for (const Member member :
       {&TreloResult::UpPoyasForce, &TreloResult::DwnPoyasForce, &TreloResult::RaskosForce,
        &TreloResult::StoykaForce, &TreloResult::UpKnotLoad, &TreloResult::DwnKnotLoad}) {
    const Long first = (OpinionCase(SnowyTruss(1)).Result.*member).LowerBound();
    const Long last = (OpinionCase(SnowyTruss(1)).Result.*member).UpperBound();
    for (const auto& bounds :
         {std::pair{first, last - 1}, {first, last + 1}, {first - 1, last}, {first + 1, last}}) {
      SCOPED_TRACE(testing::Message() << bounds.first << " to " << bounds.second);
      EXPECT_EQ(RefusalAfter(1,
                             [&](OpinionCase& design) {
                               design.Result.*member =
                                   BoundedArray<double>(bounds.first, bounds.second);
                             }),
                otherTruss);
    }
    if (member != &TreloResult::UpPoyasForce) {
      EXPECT_EQ(RefusalAfter(1, [&](OpinionCase& design) { design.Result.*member = {}; }),
                otherTruss);
    }
  }
}

TEST(Refusal, OfLoadsThatDoNotReachAllJoints) {
  using Member = BoundedArray<double> LoadArrays::*;
  for (const Member member : {&LoadArrays::UpPForce, &LoadArrays::UpDistForce,
                              &LoadArrays::DwnPForce, &LoadArrays::DwnDistForce}) {
    EXPECT_EQ(RefusalAfter(1, [=](OpinionCase& design) { design.Data.*member = {}; }), otherTruss);
    EXPECT_EQ(RefusalAfter(1,
                           [=](OpinionCase& design) {
                             auto& loads = design.Data.*member;
                             loads.ResizeUpper(loads.UpperBound() - 1);
                           }),
              otherTruss);
    EXPECT_EQ(RefusalAfter(1,
                           [=](OpinionCase& design) {
                             auto& loads = design.Data.*member;
                             loads = BoundedArray<double>(1, loads.UpperBound());
                           }),
              otherTruss);
  }
}

TEST(Refusal, OfNumbersBeyondTheRangeOfTheFormulas) {
  const double greatest = std::numeric_limits<double>::max();
  const double infinity = std::numeric_limits<double>::infinity();
  const std::vector<Change> changes{
      [=](OpinionCase& design) { design.Data.LengthF = greatest; },
      [=](OpinionCase& design) { design.Data.Hight = infinity; },
      [=](OpinionCase& design) { design.Data.UpPForce[3] = greatest; },
      [=](OpinionCase& design) { design.Data.UpDistForce[3] = infinity; },
      [=](OpinionCase& design) { design.Data.DwnPForce[3] = infinity; },
      [=](OpinionCase& design) {
        design.Data.DwnDistForce[3] = std::numeric_limits<double>::quiet_NaN();
      },
      [=](OpinionCase& design) { design.Numbers.Ry = infinity; },
      [=](OpinionCase& design) { design.Numbers.Gn = greatest; },
      [=](OpinionCase& design) { design.Sections[1].Profile.A = infinity; },
      [=](OpinionCase& design) { design.Sections.ResizeUpper(3); },
      [=](OpinionCase& design) { design.Result.UpPoyasForce[2] = infinity; },
      [=](OpinionCase& design) { design.Result.ReactLeft = infinity; },
      // Sums of them overflow at a joint.
      [=](OpinionCase& design) { Fill(design.Result.RaskosForce, greatest); }};
  for (std::size_t place = 0; place < changes.size(); ++place) {
    EXPECT_EQ(RefusalAfter(1, changes[place]), beyondNorms) << place;
  }
}

}  // namespace

}  // namespace trelonit::test

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <string>

#include "analysis/Scheme.h"
#include "analysis/modTrelo.h"
#include "platform/errors/RuntimeError.h"
#include "tests/analysis/Designs.h"
#include "tests/analysis/RandomDesigns.h"
#include "variants/LoadsElsewhere.h"

namespace trelonit::test {

namespace {

/// The sum of what a truss carries, tonnes, from its loads and the places of its joints.
double Carried(const TreloData& data) {
  const Truss truss = TrussOf(data);
  double sum = 0;
  const auto add = [&](Chord chord, const BoundedArray<double>& points,
                       const BoundedArray<double>& distributed) {
    for (const double load : points) {
      sum += load;
    }
    const std::vector<std::size_t>& joints = truss.JointsOf(chord);
    for (std::size_t panel = 0; panel + 1 < joints.size(); ++panel) {
      sum += distributed[static_cast<Long>(panel)] *
             (truss.Joints[joints[panel + 1]].X - truss.Joints[joints[panel]].X);
    }
  };
  add(Chord::Upper, data.UpPForce, data.UpDistForce);
  add(Chord::Lower, data.DwnPForce, data.DwnDistForce);
  return sum;
}

void Bring(const TreloData& from, TreloData& to) {
  static_cast<LoadArrays&>(to) = LoadsElsewhere(from, to);
}

std::string RefusalOf(const TreloData& from, const TreloData& to) {
  try {
    LoadsElsewhere(from, to);
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 5);
    return error.Description();
  }
  return "taken";
}

TEST(LoadsElsewhere, StayWhereTheJointsStay) {
  TreloData from = Design(1, 8, 24, 2, 3);
  from.UpPForce[3] = 5;
  from.DwnDistForce[2] = 0.7;
  TreloData to = Design(1, 8, 24, 3.5, 3);
  Bring(from, to);
  EXPECT_EQ(static_cast<const LoadArrays&>(to), static_cast<const LoadArrays&>(from));
}

TEST(LoadsElsewhere, TakeTheMeanByLengthOfThePanelsBefore) {
  // Panels of 3 m become panels of 4 m: the first has all of the first and a third of the second.
  TreloData from = Design(3, 8, 24, 2, 3);
  for (Long panel = 0; panel < 8; ++panel) {
    from.UpDistForce[panel] = static_cast<double>(panel);
  }
  TreloData to = Design(3, 6, 24, 2, 4);
  Bring(from, to);
  EXPECT_NEAR(to.UpDistForce[0], (3 * 0 + 1 * 1) / 4.0, 1e-12);
  EXPECT_NEAR(to.UpDistForce[1], (2 * 1 + 2 * 2) / 4.0, 1e-12);
  EXPECT_NEAR(to.UpDistForce[5], (1 * 6 + 3 * 7) / 4.0, 1e-12);
}

TEST(LoadsElsewhere, ShareEqualPointLoadsAnewAndKeepTheirSum) {
  // 8 panels of 3 m with 4 t a joint and half of it at the ends: 32 t, on 12 panels of 2 m.
  TreloData from = Design(3, 8, 24, 2, 3);
  for (Long joint = 1; joint < 8; ++joint) {
    from.UpPForce[joint] = 4;
  }
  from.UpPForce[0] = 2;
  from.UpPForce[8] = 2;
  TreloData to = Design(3, 12, 24, 2, 2);
  Bring(from, to);
  EXPECT_NEAR(to.UpPForce[1], 4 * 2 / 3.0, 1e-12);
  EXPECT_NEAR(to.UpPForce[11], 4 * 2 / 3.0, 1e-12);
  EXPECT_NEAR(to.UpPForce[0], 4 * 2 / 3.0 / 2, 1e-12);
  EXPECT_NEAR(Carried(to), 32, 1e-9);
}

TEST(LoadsElsewhere, AreRefusedWherePointLoadsDifferAndJointsMove) {
  TreloData from = Design(1, 8, 24, 2, 3);
  from.UpPForce[1] = 4;
  EXPECT_EQ(RefusalOf(from, Design(1, 10, 24, 2, 2)),
            "сосредоточенные нагрузки внутренних узлов верхнего пояса различны: узлы нельзя "
            "сдвинуть");
  from = Design(1, 8, 24, 2, 3);
  from.DwnPForce[0] = 4;
  from.DwnPForce[2] = 4;
  EXPECT_EQ(RefusalOf(from, Design(1, 10, 24, 2, 2)),
            "сосредоточенные нагрузки внутренних узлов нижнего пояса различны: узлы нельзя "
            "сдвинуть");
}

TEST(LoadsElsewhere, AreRefusedWhereTheyStandOnlyAtTheEndsOfAChord) {
  // Two panels of triangles have two lower joints: nothing tells what an inner one would carry.
  TreloData from = Design(3, 2, 24, 2, 0);
  from.DwnPForce[0] = 4;
  EXPECT_EQ(RefusalOf(from, Design(3, 4, 24, 2, 0)),
            "сосредоточенные нагрузки нижнего пояса стоят только в его концах");
}

TEST(LoadsElsewhere, GoToTheEndsOfAChordThatHasNoInnerJoints) {
  TreloData from = Design(3, 4, 24, 2, 0);
  for (Long joint = 0; joint <= 3; ++joint) {
    from.DwnPForce[joint] = 4;
  }
  TreloData to = Design(3, 2, 24, 2, 0);
  Bring(from, to);
  EXPECT_NEAR(to.DwnPForce[0], 8, 1e-12);
  EXPECT_NEAR(to.DwnPForce[1], 8, 1e-12);
}

TEST(LoadsElsewhere, AreRefusedWhereTheNewChordIsTooShortForThem) {
  TreloData from = Design(1, 8, 24, 2, 3);
  from.DwnDistForce[0] = 1;
  EXPECT_EQ(RefusalOf(from, Design(2, 8, 24, 2, 3)),
            "распределенная нагрузка нижнего пояса выходит за его новые концы");
}

RC_GTEST_PROP(LoadsElsewhere, KeepTheSumOfTheReactions, ()) {
  // Scheme 3 has no rule of its own about loads: its reactions are those of statics.
  const Long before = *rc::gen::inRange<Long>(4, 31);
  const Long after = *rc::gen::inRange<Long>(4, 31);
  const double span = *rc::gen::inRange(60, 480) / 10.0;
  TreloData from = Design(3, before, span, 2, 0);
  for (double& load : from.UpDistForce) {
    load = *rc::gen::inRange(-4000, 8000) / 1000.0;
  }
  const double point = *rc::gen::inRange(-4000, 8000) / 1000.0;
  for (Long joint = 1; joint < before; ++joint) {
    from.UpPForce[joint] = point;
  }
  from.UpPForce[0] = *rc::gen::inRange(-4000, 8000) / 1000.0;
  TreloData to = Design(3, after, span, 2, 0);
  Bring(from, to);
  const TreloResult old = CalcTrelo(from).Value;
  const TreloResult now = CalcTrelo(to).Value;
  const double sum = old.ReactLeft + old.ReactRight;
  RC_ASSERT(std::abs(now.ReactLeft + now.ReactRight - sum) < 1e-9 * (1 + std::abs(sum)));
}

RC_GTEST_PROP(LoadsElsewhere, KeepTheSumOfTheLoadsInEveryScheme, ()) {
  const auto any = [](Long scheme) {
    const std::vector<Long> counts = PanelCounts(scheme);
    const Long panels = *rc::gen::elementOf(counts);
    return Design(scheme, panels, 30, 2.5, *rc::gen::inRange(5, 30) / 10.0);
  };
  TreloData from = any(*rc::gen::inRange<Long>(1, 5));
  for (double& load : from.UpDistForce) {
    load = *rc::gen::inRange(-4000, 8000) / 1000.0;
  }
  for (double& load : from.UpPForce) {
    load = 1.5;
  }
  TreloData to = any(*rc::gen::inRange<Long>(1, 5));
  const double sum = Carried(from);
  Bring(from, to);
  RC_ASSERT(std::abs(Carried(to) - sum) < 1e-9 * (1 + std::abs(sum)));
}

TEST(LoadsElsewhere, OfAWiderTrussAreAsMuchAMetre) {
  TreloData from = Design(3, 8, 24, 2, 3);
  for (double& load : from.UpDistForce) {
    load = 0.5;
  }
  for (Long joint = 1; joint < 8; ++joint) {
    from.UpPForce[joint] = 6;
  }
  TreloData to = Design(3, 8, 36, 2, 3);
  Bring(from, to);
  EXPECT_NEAR(to.UpPForce[4], 9, 1e-12);
  EXPECT_NEAR(to.UpDistForce[4], 0.5, 1e-12);
  EXPECT_NEAR(Carried(to), (0.5 * 24 + 7 * 6) * 1.5, 1e-9);
}

}  // namespace

}  // namespace trelonit::test

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "drawing/sheet/TextFitting.h"

namespace trelonit::test {
namespace {

/// Level letters of this height, centred on the point.
TextRoom Level(double x, double y, double width, double height, int kind = 0) {
  return {.Corners = {PlanePoint{x - width / 2, y - height / 2},
                      PlanePoint{x + width / 2, y - height / 2},
                      PlanePoint{x + width / 2, y + height / 2},
                      PlanePoint{x - width / 2, y + height / 2}},
          .Anchor = PlanePoint{x, y},
          .Height = height,
          .Kind = kind};
}

/// The same turned round its middle.
TextRoom Turned(TextRoom room, double angle) {
  for (PlanePoint& corner : room.Corners) {
    const PlanePoint arm = corner - room.Anchor;
    corner = room.Anchor + PlanePoint{arm.X * std::cos(angle) - arm.Y * std::sin(angle),
                                      arm.X * std::sin(angle) + arm.Y * std::cos(angle)};
  }
  return room;
}

/// A row of labels over panels of one unit.
std::vector<TextRoom> Row(int count, double width, double height) {
  std::vector<TextRoom> texts;
  for (int text = 0; text < count; ++text) {
    texts.push_back(Level(text, 0, width, height));
  }
  return texts;
}

TEST(FitTexts, LeavesTextsAloneThatHaveRoom) {
  const TextFit fit = FitTexts(Row(5, 0.8, 0.2), 0.1);
  EXPECT_EQ(fit.Factors, std::vector<double>(5, 1));
  EXPECT_EQ(fit.LeftOut, 0U);
  EXPECT_EQ(fit.Smallest, 0.2);
  EXPECT_EQ(FitTexts({}, 1).Smallest, 0);
}

TEST(FitTexts, MakesCrowdedTextsSmallerUntilTheyStandApart) {
  const std::vector<TextRoom> texts = Row(5, 1.4, 0.2);
  const TextFit fit = FitTexts(texts, 0.05);
  // 1.4 times the factor and a gap of 0.15 of the height go into 1.
  EXPECT_LE(fit.Factors[0], 1 / (1.4 + 0.15 * 0.2));
  EXPECT_GE(fit.Factors[0], 0.9 / (1.4 + 0.15 * 0.2));
  EXPECT_EQ(fit.Factors, std::vector<double>(5, fit.Factors[0]));
  EXPECT_EQ(fit.LeftOut, 0U);
  EXPECT_NEAR(fit.Smallest, 0.2 * fit.Factors[0], 1e-12);
  EXPECT_GT(GapBetween(texts[0], fit.Factors[0], texts[1], fit.Factors[1]), 0);
}

TEST(FitTexts, LeavesOutEverySecondWhereTheyWouldGetTooSmall) {
  const TextFit fit = FitTexts(Row(5, 1.4, 0.2), 0.19);
  EXPECT_EQ(fit.Factors[0], 1);
  EXPECT_EQ(fit.Factors[1], 0);
  EXPECT_EQ(fit.Factors[2], 1);
  EXPECT_EQ(fit.Factors[3], 0);
  EXPECT_EQ(fit.Factors[4], 1);
  EXPECT_EQ(fit.LeftOut, 2U);
}

TEST(FitTexts, KeepsATextThatIsSmallByItself) {
  EXPECT_EQ(FitTexts(Row(1, 1, 0.2), 5).Factors, std::vector<double>{1});
}

TEST(FitTexts, LetsTheLesserKindGiveWay) {
  // One over the other with hardly a gap.
  const std::vector<TextRoom> texts{Level(0, 0, 1, 0.2, 2), Level(0, 0.21, 1, 0.2, 1)};
  const TextFit fit = FitTexts(texts, 0.05);
  EXPECT_LT(fit.Factors[0], 1);
  EXPECT_EQ(fit.Factors[1], 1);
  EXPECT_GE(GapBetween(texts[0], fit.Factors[0], texts[1], fit.Factors[1]),
            0.15 * 0.2 * fit.Factors[0]);
}

TEST(FitTexts, LetsTheHigherTextGiveWay) {
  const TextFit fit = FitTexts({Level(0, 0, 1, 0.4), Level(0, 0.32, 1, 0.2, 2)}, 0.05);
  EXPECT_LT(fit.Factors[0], 1);
  EXPECT_EQ(fit.Factors[1], 1);
}

TEST(FitTexts, ShrinksNoneForTwoThatLieOnOneAnother) {
  // The first is shown; a third one far away keeps its height.
  const TextFit fit = FitTexts({Level(0, 0, 1, 0.2), Level(0, 0, 1, 0.2), Level(9, 0, 1, 0.2)}, 0);
  EXPECT_EQ(fit.Factors, (std::vector<double>{1, 0, 1}));
}

TEST(FitTexts, MeasuresTurnedTextsAlongTheirSides) {
  // The boxes round them meet, the letters do not.
  const double slope = std::numbers::pi / 4;
  const std::vector<TextRoom> texts{Turned(Level(0, 0, 2, 0.2), slope),
                                    Turned(Level(0.5, -0.5, 2, 0.2), slope)};
  EXPECT_NEAR(GapBetween(texts[0], 1, texts[1], 1), std::sqrt(0.5) - 0.2, 1e-12);
  EXPECT_EQ(FitTexts(texts, 0.1).Factors, (std::vector<double>{1, 1}));
}

TEST(FitTexts, KeepsTextsOffBars) {
  // The bar runs 0.4 from the middle of a text that reaches 0.5 far.
  const std::vector<TextRoom> texts{Level(0, 0, 1, 0.2)};
  const std::vector<PlaneLine> bars{PlaneLine{{0.4, -1}, {0.4, 1}}};
  const TextFit fit = FitTexts(texts, 0.05, bars);
  EXPECT_LE(fit.Factors[0], 0.8);
  EXPECT_GE(fit.Factors[0], 0.8 * 0.9);
  // Where it may not be so small, it waits.
  EXPECT_EQ(FitTexts(texts, 0.19, bars).Factors, std::vector<double>{0});
  // What lies upon a bar whatever its size stays.
  EXPECT_EQ(FitTexts(texts, 0.05, {PlaneLine{{0.1, -1}, {0.1, 1}}}).Factors,
            std::vector<double>{1});
}

}  // namespace
}  // namespace trelonit::test

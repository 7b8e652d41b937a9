#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <set>

#include "drawing/sheet/Letters.h"
#include "platform/text/CodePage1251.h"
#include "platform/text/Text.h"
#include "resources/CompiledLetters.h"

namespace trelonit::test {
namespace {

const CompiledLetter& Missing() {
  return CompiledLetters()[CompiledLetters().size() - 1];
}

TEST(Letters, HaveAllOfTheCodePage) {
  std::set<char32_t> there;
  for (const CompiledLetter& letter : CompiledLetters()) {
    there.insert(letter.Code);
  }
  for (int byte = ' '; byte < 256; ++byte) {
    const char16_t code = FromCodePage1251(static_cast<unsigned char>(byte));
    // Neither control characters nor the hyphen that is only seen at the end of a line.
    if (code < 0x7F || (code > 0xA0 && code != 0xAD && code != 0xFFFD)) {
      EXPECT_TRUE(there.contains(code)) << byte;
    }
  }
}

TEST(Letters, TakeTheWidthsOfTheUsualFontOfDrawings) {
  // Its digits are all 1139 of 2048 wide, a blank 569, H 1479.
  for (const char digit : std::string("0123456789")) {
    EXPECT_EQ(LettersWidth(std::string(1, digit)), 1139);
  }
  EXPECT_EQ(LettersWidth(" "), 569);
  EXPECT_EQ(LettersWidth("H"), 1479);
  EXPECT_EQ(LettersWidth(""), 0);
  EXPECT_EQ(LettersWidth("H 10"), 1479 + 569 + 2 * 1139);
  EXPECT_EQ(LettersCapitalHeight(), 1409);
}

TEST(Letters, OfBothAlphabetsThatLookAlikeAreTheSame) {
  for (const auto& [latin, russian] : {std::pair("H", "Н"), {"A", "А"}, {"p", "р"}}) {
    EXPECT_EQ(LettersWidth(latin), LettersWidth(russian)) << latin;
    EXPECT_EQ(BoxOf(LettersOutline(latin)), BoxOf(LettersOutline(russian))) << latin;
  }
  EXPECT_NE(BoxOf(LettersOutline("Ж")), BoxOf(LettersOutline("Д")));
}

TEST(Letters, ThatThereAreNoneOfAreABox) {
  EXPECT_EQ(LettersWidth("漢"), Missing().Advance);
  EXPECT_EQ(LettersOutline("漢").Verbs, Missing().Verbs);
  EXPECT_EQ(LettersOutline("\xFF").Verbs, Missing().Verbs);
  EXPECT_FALSE(Missing().Verbs.empty());
}

TEST(Letters, StandOneAfterTheOther) {
  const std::optional<PlaneBox> first = BoxOf(LettersOutline("Н"));
  const std::optional<PlaneBox> both = BoxOf(LettersOutline("НН"));
  ASSERT_TRUE(first && both);
  EXPECT_EQ(both->Least, first->Least);
  EXPECT_EQ(both->Greatest.X, first->Greatest.X + LettersWidth("Н"));
}

TEST(Letters, OfABlankAreNotSeen) {
  EXPECT_EQ(BoxOf(LettersOutline(" ")), std::nullopt);
  EXPECT_EQ(BoxOf(LettersOutline("")), std::nullopt);
}

/// Many points of the outline, to hold its box against.
std::optional<PlaneBox> BoxByPoints(const LetterOutline& outline, const PlaneTransform& transform) {
  std::optional<PlaneBox> box;
  PlanePoint at;
  ForEachStep(outline, [&](char verb, const PlanePoint* points) {
    if (verb == 'Q') {
      for (int step = 0; step <= 2000; ++step) {
        const double t = step / 2000.0;
        Take(box, transform(at * ((1 - t) * (1 - t)) + points[0] * (2 * t * (1 - t)) +
                            points[1] * (t * t)));
      }
      at = points[1];
    } else if (verb != 'Z') {
      at = points[0];
      Take(box, transform(at));
    }
  });
  return box;
}

TEST(Letters, TellTheBoxRoundTheirCurves) {
  for (const char* text : {"Ферма", "О", "S 8", "@", "(ф)"}) {
    for (const double angle : {0.0, 0.3, 1.0, 2.5}) {
      const PlaneTransform turned{
          std::cos(angle), -std::sin(angle), std::sin(angle), std::cos(angle), {7, -3}};
      const std::optional<PlaneBox> told = BoxOf(LettersOutline(text), turned);
      const std::optional<PlaneBox> seen = BoxByPoints(LettersOutline(text), turned);
      ASSERT_TRUE(told && seen);
      EXPECT_NEAR(told->Least.X, seen->Least.X, 1e-3) << text << ' ' << angle;
      EXPECT_NEAR(told->Least.Y, seen->Least.Y, 1e-3) << text << ' ' << angle;
      EXPECT_NEAR(told->Greatest.X, seen->Greatest.X, 1e-3) << text << ' ' << angle;
      EXPECT_NEAR(told->Greatest.Y, seen->Greatest.Y, 1e-3) << text << ' ' << angle;
    }
  }
}

}  // namespace
}  // namespace trelonit::test

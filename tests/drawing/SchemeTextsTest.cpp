#include <gtest/gtest.h>

#include "tests/drawing/DrawingDesk.h"

namespace trelonit::test {

namespace {

/// The texts that begin so, in the order of drawing.
std::vector<std::string> TextsWith(const RecordingHost& host, const std::string& beginning) {
  std::vector<std::string> found;
  for (const auto& text : host.Objects("Text")) {
    const auto& content = std::get<std::string>(text->Arguments.at(0));
    if (content.starts_with(beginning)) {
      found.push_back(content);
    }
  }
  return found;
}

TEST(SchemeTexts, ACompressedBarCarriesAMinusSign) {
  SchemeDesk desk(1, 4);
  desk.Design.Result.RaskosForce[2] = -0.256;
  desk.Force();
  EXPECT_EQ(TextsWith(desk.Host, "-0"), std::vector<std::string>{"-0.26"});
}

TEST(SchemeTexts, ReactionsShowAllDigits) {
  SchemeDesk desk(1, 4);
  desk.Design.Result.ReactLeft = 2.0 / 3;
  desk.Design.Result.ReactRight = 1234567.125;
  desk.Force();
  EXPECT_EQ(TextsWith(desk.Host, "R"),
            (std::vector<std::string>{"Ra = 0.666666666666667", "Rb = 1234567.125"}));
}

TEST(SchemeTexts, ReactionsHaveTheUsersDecimalSeparator) {
  SchemeDesk desk(2, 4);
  const NumberLocale comma = CommaLocale();
  const DrawingTools tools{desk.ACAD, desk.Messages, comma};
  DrawForceScheme(tools, desk.Design.Data, desk.Design.Result, desk.Space);
  EXPECT_EQ(TextsWith(desk.Host, "R"),
            (std::vector<std::string>{"Ra = 12,345678901", "Rb = -0,5"}));
}

TEST(SchemeTexts, AWideReactionStaysCentredAtItsPlace) {
  SchemeDesk desk(4, 4);
  desk.Design.Result.ReactLeft = 123456789.012345;
  desk.Force();
  const std::string place = "Document1.ModelSpace.AddText(\"Ra = 123456789.012345\", ";
  EXPECT_EQ(desk.Host.CountOf(place + "(-1200, 1000, 0), 300#)"), 1U);
}

TEST(SchemeTexts, APairedSectionIsCountedOnEveryBarOfItsGroup) {
  SchemeDesk desk(1, 4);
  desk.Geometry();
  EXPECT_EQ(TextsWith(desk.Host, "2 * upper_chord_L63").size(), 4U);
  EXPECT_EQ(TextsWith(desk.Host, "2 * support_dia_L75").size(), 2U);
  EXPECT_EQ(TextsWith(desk.Host, "diagonal___Tr40").size(), 2U);
  EXPECT_EQ(TextsWith(desk.Host, "vertical____L45").size(), 5U);
}

TEST(SchemeTexts, AShortSectionNameKeepsTheBlanksOfItsField) {
  SchemeDesk desk(3, 2);
  desk.Design.Sections[sectionDwnPoyas].Profile.Name = "L50x5";
  desk.Geometry();
  EXPECT_EQ(TextsWith(desk.Host, "2 * L50x5"), std::vector<std::string>{"2 * L50x5          "});
}

TEST(SchemeTexts, FollowTheHeightOfTheTrussInSize) {
  SchemeDesk desk(2, 4);
  desk.Design.Data.Hight = 0.5;
  desk.Force();
  EXPECT_EQ(desk.Host.CountOf("Document1.SetVariable(\"DIMSCALE\", 10#)"), 1U);
  EXPECT_EQ(desk.Host.CountOf("Dimension1.ScaleFactor = 10#"), 1U);
  EXPECT_EQ(ValueText(desk.Host.Objects("Text").at(0)->Arguments.at(2)), "50#");
}

// Nothing reads the end panel there, so that the longest number does no harm.
TEST(SchemeTexts, Scheme3DoesNotReadTheEndPanel) {
  SchemeDesk plain(3, 3);
  plain.Force();
  plain.Geometry();
  SchemeDesk other(3, 3);
  other.Design.Data.LenOporn = 1e300;
  other.Force();
  other.Geometry();
  EXPECT_EQ(other.Host.Calls, plain.Host.Calls);
  EXPECT_TRUE(other.Messages.Shown.empty());
}

}  // namespace

}  // namespace trelonit::test

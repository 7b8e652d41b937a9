// The drawings of the program as the build reads them.

#include <cmath>
#include <gtest/gtest.h>
#include <stdexcept>

#include "resources/generator/PicturesSource.h"
#include "resources/generator/SvgPath.h"

namespace trelonit::packer {
namespace {

using Numbers = std::vector<double>;

std::string Drawing(const std::string& shapes) {
  return "<svg viewBox=\"0 1 20 30\">\n<title>A drawing</title>" + shapes + "</svg>\n";
}

TEST(SvgPaths, ComeOutAbsolute) {
  const SvgPath path = ReadPath("M1 2L3 4l1,1 h2V9 H0v-1c1 0 2 0 3 1z m1 1 2 0");
  EXPECT_EQ(path.Verbs, "MLLLLLLCZML");
  EXPECT_EQ(path.Numbers, (Numbers{1, 2, 3, 4, 4, 5, 6, 5, 6, 9, 0, 9, 0, 8,  //
                                   1, 8, 2, 8, 3, 9, 2, 3, 4, 3}));
}

TEST(SvgPaths, TakeNumbersThatStandCloseTogether) {
  EXPECT_EQ(ReadPath("M20 85l-6 14h12z M10-1.5L.5.5").Verbs, "MLLZML");
  EXPECT_EQ(ReadNumbers("7 2.5,2 -2.5"), (Numbers{7, 2.5, 2, -2.5}));
  EXPECT_TRUE(ReadNumbers(" ").empty());
}

TEST(SvgPaths, MakeCurvesOfArcs) {
  // A quarter of a circle round (0, 0) from (2, 0) to (0, 2), and the same way back.
  for (const char* data : {"M2 0A2 2 0 0 1 0 2", "M0 2A2 2 0 0 0 2 0"}) {
    const SvgPath path = ReadPath(data);
    ASSERT_EQ(path.Verbs, "MC") << data;
    // The middle of the curve lies on the circle.
    const auto middle = [&path](std::size_t axis) {
      const auto at = [&](std::size_t point) { return path.Numbers[2 * point + axis]; };
      return (at(0) + 3 * at(1) + 3 * at(2) + at(3)) / 8;
    };
    EXPECT_NEAR(middle(0), std::sqrt(2), 1e-3) << data;
    EXPECT_NEAR(middle(1), std::sqrt(2), 1e-3) << data;
  }
  // The long way round takes three quarters.
  EXPECT_EQ(ReadPath("M2 0A2 2 0 1 0 0 2").Verbs, "MCCC");
}

TEST(SvgPaths, TurnBothWaysAcrossTheLineWhereAnglesStartAnew) {
  // Half circles round (0, 0) over (-2, 0): both pass the angle of 180 degrees.
  for (const char* data : {"M0 2A2 2 0 0 1 0 -2", "M0 -2A2 2 0 0 0 0 2"}) {
    const SvgPath path = ReadPath(data);
    ASSERT_EQ(path.Verbs, "MCC") << data;
    EXPECT_NEAR(path.Numbers[6], -2, 1e-9) << data;
    EXPECT_NEAR(path.Numbers[7], 0, 1e-9) << data;
  }
}

TEST(SvgPaths, TakeArcsRelativeToWhereTheyStand) {
  const SvgPath path = ReadPath("M1 1a2 2 0 0 1 2 2L9 9");
  ASSERT_EQ(path.Verbs, "MCL");
  EXPECT_NEAR(path.Numbers[6], 3, 1e-9);
  EXPECT_NEAR(path.Numbers[7], 3, 1e-9);
}

TEST(SvgPaths, HaveNoCurveForAnArcThatEndsWhereItBegins) {
  EXPECT_EQ(ReadPath("M1 2A3 3 0 0 1 1 2L4 5").Verbs, "ML");
}

TEST(SvgPaths, ThatAreNoneAreRefused) {
  for (const char* data :
       {"1 2", "M", "M1", "Mx", "M1 2Q3 4 5 6", "M1 2A2 3 0 0 1 0 2", "M1 2z3"}) {
    EXPECT_THROW(ReadPath(data), std::runtime_error) << data;
  }
}

TEST(SvgPictures, InheritWhatTheirGroupSays) {
  const SvgPicture picture = ReadSvg(Drawing(
      "<g fill=\"#808080\" stroke=\"#000000\" stroke-width=\"1.5\" stroke-linecap=\"round\">"
      "<path d=\"M0 0\" stroke-width=\"3\"/><g fill=\"none\"><circle cx=\"1\" cy=\"2\" "
      "r=\"3\"/></g>"
      "</g><rect x=\"4\" y=\"5\" width=\"6\" height=\"7\" rx=\"2\"/>"));
  EXPECT_EQ((Numbers{picture.Left, picture.Top, picture.Width, picture.Height}),
            (Numbers{0, 1, 20, 30}));
  ASSERT_EQ(picture.Shapes.size(), 3U);
  EXPECT_EQ(picture.Shapes[0].StrokeWidth, 3);
  EXPECT_EQ(picture.Shapes[0].Fill.Role, PictureRole::Quiet);
  EXPECT_TRUE(picture.Shapes[0].RoundCaps);
  EXPECT_FALSE(picture.Shapes[0].RoundJoins);
  EXPECT_EQ(picture.Shapes[1].StrokeWidth, 1.5);
  EXPECT_EQ(picture.Shapes[1].Fill.Role, PictureRole::None);
  EXPECT_EQ(picture.Shapes[1].Numbers, (Numbers{1, 2, 3}));
  // Outside of groups: black without an outline.
  EXPECT_EQ(picture.Shapes[2].Fill.Role, PictureRole::Ink);
  EXPECT_EQ(picture.Shapes[2].Stroke.Role, PictureRole::None);
  EXPECT_EQ(picture.Shapes[2].Numbers, (Numbers{4, 5, 6, 7, 2}));
}

TEST(SvgPictures, TellHowTheirLinesAndAreasAreDrawn) {
  const SvgPicture picture =
      ReadSvg(Drawing("<path d=\"M0 0\" fill-rule=\"evenodd\" stroke-linejoin=\"round\" "
                      "stroke-dasharray=\"4 2\"/>\n<path d=\"M0 0\" fill-rule=\"nonzero\"/>"));
  ASSERT_EQ(picture.Shapes.size(), 2U);
  EXPECT_TRUE(picture.Shapes[0].EvenOdd);
  EXPECT_TRUE(picture.Shapes[0].RoundJoins);
  EXPECT_EQ(picture.Shapes[0].Dashes, (Numbers{4, 2}));
  EXPECT_FALSE(picture.Shapes[1].EvenOdd);
  EXPECT_FALSE(picture.Shapes[1].RoundJoins);
  EXPECT_TRUE(picture.Shapes[1].Dashes.empty());
}

TEST(SvgPictures, HoldLettersWithTheirPlaceAndHeight) {
  const SvgPicture picture =
      ReadSvg(Drawing("<text x=\"1\" y=\"2\" font-size=\"12\" font-family=\"sans-serif\" "
                      "font-style=\"italic\" text-anchor=\"middle\">Pн</text>"));
  ASSERT_EQ(picture.Shapes.size(), 1U);
  EXPECT_EQ(picture.Shapes[0].Is, PictureShape::Kind::Letters);
  EXPECT_EQ(picture.Shapes[0].Letters, "Pн");
  EXPECT_EQ(picture.Shapes[0].Numbers, (Numbers{1, 2, 12}));
}

TEST(SvgPictures, GiveColoursTheirRoles) {
  const auto role = [](const std::string& color) {
    return ReadSvg(Drawing("<path d=\"M0 0\" fill=\"" + color + "\"/>")).Shapes[0].Fill.Role;
  };
  EXPECT_EQ(role("#000000"), PictureRole::Ink);
  EXPECT_EQ(role("#c04000"), PictureRole::Load);
  EXPECT_EQ(role("#9db4cc"), PictureRole::Section);
  EXPECT_EQ(role("#d00000"), PictureRole::Warning);
  EXPECT_EQ(role("#a85a00"), PictureRole::Caution);
  EXPECT_EQ(role("#1d4f78"), PictureRole::Own);
}

TEST(SvgPictures, WithAnythingElseAreRefused) {
  for (const char* shapes :
       {"<polygon points=\"1 2\"/>", "<path d=\"M0 0\" fill=\"red\"/>",
        "<path d=\"M0 0\" stroke-linecap=\"square\"/>", "<path d=\"M0 0\" fill=\"#12345\"/>",
        "<text x=\"1\" y=\"2\" font-family=\"serif\">P</text>", "<path d=\"M0 0\""}) {
    EXPECT_THROW(ReadSvg(Drawing(shapes)), std::runtime_error) << shapes;
  }
  for (const char* drawing :
       {"", "<svg></svg>", "<svg viewBox=\"0 0 20\"></svg>", "<svg viewBox=\"0 0 0 30\"></svg>",
        "<svg viewBox=\"0 0 20 -30\"></svg>", "<svg viewBox=\"0 0 a 30\"></svg>",
        "<svg viewBox=0></svg>", "<svg viewBox", "<svg viewBox=\"0 0 20 30"}) {
    EXPECT_THROW(ReadSvg(drawing), std::runtime_error) << drawing;
  }
}

TEST(SvgPictures, WithMoreEndsOfGroupsThanGroupsAreRefused) {
  EXPECT_THROW(ReadSvg(Drawing("</g>")), std::runtime_error);
  EXPECT_THROW(ReadSvg(Drawing("<g></g></g>")), std::runtime_error);
}

TEST(PictureSources, HoldEveryPictureByItsName) {
  const std::string source =
      PicturesSource({{"b", ReadSvg(Drawing("<path d=\"M1 2.5\"/>"))},
                      {"a", ReadSvg(Drawing("<circle cx=\"1\" cy=\"2\" r=\"3\"/>"))}});
  const std::size_t first = source.find("{\"\\141\", 0, 1, 20, 30");
  const std::size_t second = source.find("{\"\\142\", 0, 1, 20, 30");
  EXPECT_NE(first, std::string::npos);
  EXPECT_LT(first, second);
  EXPECT_NE(source.find("{1,2.5,}"), std::string::npos);
  EXPECT_NE(source.find("{1,2,3,}"), std::string::npos);
}

}  // namespace
}  // namespace trelonit::packer

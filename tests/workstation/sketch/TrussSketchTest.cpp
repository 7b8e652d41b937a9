#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "platform/text/Text.h"
#include "tests/support/TestServices.h"
#include "tests/workstation/main/Desk.h"
#include "workstation/sketch/TrussSketch.h"

namespace trelonit::test {
namespace {

constexpr double letterWide = 8;
constexpr double lineHigh = 16;

SketchCanvas CanvasOf(double width, double height) {
  return {.Width = width,
          .Height = height,
          .LineHeight = lineHigh,
          .WidthOf = [](const std::string& text) {
            return letterWide * static_cast<double>(Characters(text).size());
          }};
}

DesignInputs SizesOf(Integer scheme, double span, double height, double endPanel, Long panels) {
  DesignInputs inputs;
  inputs.TreloType = scheme;
  inputs.LengthF = span;
  inputs.Hight = height;
  inputs.LenOporn = endPanel;
  inputs.PanelNum = panels;
  return inputs;
}

TrussSketch DrawnOf(const DesignInputs& inputs, double width = 640, double height = 260) {
  return SketchTruss(inputs, CanvasOf(width, height), PointLocale());
}

std::vector<std::string> FiguresOf(const TrussSketch& picture, SketchInk ink) {
  std::vector<std::string> texts;
  for (const SketchText& text : picture.Texts) {
    if (text.Of == ink) {
      texts.push_back(text.Text);
    }
  }
  std::sort(texts.begin(), texts.end());
  return texts;
}

std::vector<SketchStroke> StrokesOf(const TrussSketch& picture, SketchInk ink) {
  std::vector<SketchStroke> strokes;
  for (const SketchStroke& stroke : picture.Strokes) {
    if (stroke.Of == ink) {
      strokes.push_back(stroke);
    }
  }
  return strokes;
}

struct TextBounds {
  double Left = 0, Top = 0, Right = 0, Bottom = 0;
};

TextBounds BoxOf(const SketchText& text) {
  const double across = (text.Upright ? lineHigh : text.Width) / 2;
  const double down = (text.Upright ? text.Width : lineHigh) / 2;
  return {text.Middle.X - across, text.Middle.Y - down, text.Middle.X + across,
          text.Middle.Y + down};
}

bool DoOverlap(const TextBounds& a, const TextBounds& b) {
  return a.Left < b.Right && b.Left < a.Right && a.Top < b.Bottom && b.Top < a.Bottom;
}

using Figures = std::vector<std::string>;

TEST(TrussSketch, HasTheBarsOfTheScheme) {
  // Scheme 1 with 4 panels: 4 + 4 bars of the chords, 4 diagonals, 5 verticals, 10 joints.
  const TrussSketch picture = DrawnOf(SizesOf(1, 8, 2, 2, 4));
  EXPECT_EQ(StrokesOf(picture, SketchInk::Chord).size(), 8U);
  EXPECT_EQ(StrokesOf(picture, SketchInk::Web).size(), 9U);
  EXPECT_EQ(picture.Discs.size(), 10U);
  EXPECT_EQ(picture.Shapes.size(), 2U) << "a support at each end";
}

TEST(TrussSketch, IsToScaleInBothDirections) {
  for (const auto& [width, height] :
       {std::pair(640.0, 260.0), std::pair(1400.0, 300.0), std::pair(400.0, 500.0)}) {
    const TrussSketch picture = DrawnOf(SizesOf(1, 24, 3, 3, 8), width, height);
    ASSERT_GT(picture.Scale, 0);
    double left = width, right = 0, top = height, bottom = 0;
    for (const SketchDisc& joint : picture.Discs) {
      left = std::min(left, joint.Centre.X);
      right = std::max(right, joint.Centre.X);
      top = std::min(top, joint.Centre.Y);
      bottom = std::max(bottom, joint.Centre.Y);
    }
    EXPECT_NEAR(right - left, 24 * picture.Scale, 1e-9);
    EXPECT_NEAR(bottom - top, 3 * picture.Scale, 1e-9);
  }
}

TEST(TrussSketch, TellsItsSizes) {
  // End panels of 2.4 m leave 19.2 m for six of 3.2 m.
  const TrussSketch picture = DrawnOf(SizesOf(1, 24, 2.4, 2.4, 8));
  // atan(2.4 / 2.4) and atan(2.4 / 3.2).
  EXPECT_EQ(FiguresOf(picture, SketchInk::Text),
            (Figures{"2.4", "2.4", "2.4", "24", "36.9°", "45.0°", "6 × 3.2"}));
  EXPECT_EQ(picture.Words,
            "Ферма 24 на 2.4 м, опорные панели 2.4 м, панели 6 × 3.2 м, опорный раскос 45.0°, "
            "раскос 36.9°");
}

TEST(TrussSketch, CountsAllPanelsWhereTheyAreEqual) {
  const TrussSketch picture = DrawnOf(SizesOf(2, 24, 3, 0, 8));
  EXPECT_EQ(FiguresOf(picture, SketchInk::Text), (Figures{"24", "3", "45.0°", "8 × 3"}));
}

TEST(TrussSketch, HasTheSlopeOfHalfPanelsInTheLattice) {
  // Half of a panel of 6 m across, 3 m up.
  const TrussSketch picture = DrawnOf(SizesOf(3, 24, 3, 0, 4));
  EXPECT_EQ(FiguresOf(picture, SketchInk::Text), (Figures{"24", "3", "4 × 6", "45.0°"}));
}

TEST(TrussSketch, WritesLengthsToTheMillimetre) {
  const TrussSketch picture = DrawnOf(SizesOf(3, 10, 1.23456, 0, 3));
  const Figures texts = FiguresOf(picture, SketchInk::Text);
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "1.235"), 1);
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "3 × 3.333"), 1);
}

TEST(TrussSketch, StaysOnTheCanvasAndItsTextsApart) {
  for (const Integer scheme : {Integer{1}, Integer{2}, Integer{3}, Integer{4}}) {
    for (const Long panels : {4, 10, 30}) {
      for (const auto& [span, height, end] :
           {std::tuple(6.0, 0.8, 1.0), std::tuple(24.0, 2.8, 2.125), std::tuple(36.0, 1.2, 1.2),
            std::tuple(100.0, 30.0, 12.5), std::tuple(20.0, 30.0, 2.0)}) {
        for (const auto& [width, tall] : {std::pair(420.0, 150.0), std::pair(820.0, 300.0)}) {
          const TrussSketch picture =
              DrawnOf(SizesOf(scheme, span, height, end, panels), width, tall);
          SCOPED_TRACE(testing::Message() << "scheme " << scheme << ", " << panels << " panels, "
                                          << span << " x " << height << " on " << width);
          for (const SketchStroke& stroke : picture.Strokes) {
            for (const SketchPoint& end2 : {stroke.A, stroke.B}) {
              EXPECT_TRUE(end2.X >= 0 && end2.X <= width && end2.Y >= 0 && end2.Y <= tall)
                  << end2.X << ", " << end2.Y;
            }
          }
          for (std::size_t one = 0; one < picture.Texts.size(); ++one) {
            const TextBounds box = BoxOf(picture.Texts[one]);
            EXPECT_TRUE(box.Left >= 0 && box.Right <= width && box.Top >= 0 && box.Bottom <= tall)
                << picture.Texts[one].Text;
            for (std::size_t other = one + 1; other < picture.Texts.size(); ++other) {
              EXPECT_FALSE(DoOverlap(box, BoxOf(picture.Texts[other])))
                  << picture.Texts[one].Text << " and " << picture.Texts[other].Text;
            }
          }
        }
      }
    }
  }
}

TEST(TrussSketch, ShowsWhatIsWrongInItsPlace) {
  const std::string tooLong = "Опорные панели, 2 × 12 м, не оставляют места остальным";
  const TrussSketch ends = DrawnOf(SizesOf(1, 24, 3, 12, 8));
  EXPECT_EQ(ends.Scale, 0);
  EXPECT_EQ(ends.Words, tooLong);
  EXPECT_EQ(FiguresOf(ends, SketchInk::Fault), (Figures{"12", "12", tooLong}));
  EXPECT_EQ(FiguresOf(ends, SketchInk::Text), (Figures{"24", "3"}));
  EXPECT_TRUE(StrokesOf(ends, SketchInk::Chord).empty());
  EXPECT_EQ(StrokesOf(ends, SketchInk::Edge).size(), 4U);

  const TrussSketch flat = DrawnOf(SizesOf(1, 24, 0, 3, 8));
  EXPECT_EQ(FiguresOf(flat, SketchInk::Fault),
            Figures{"Высота фермы должна быть числом больше нуля"});
  EXPECT_TRUE(flat.Strokes.empty());
}

TEST(TrussSketch, KeepsEndPanelsThatAreLongerThanTheTrussOnTheCanvas) {
  for (const double end : {13.0, 24.0, 1000.0, 1e12}) {
    for (const SketchStroke& stroke : DrawnOf(SizesOf(1, 24, 3, end, 8)).Strokes) {
      EXPECT_TRUE(stroke.A.X >= 0 && stroke.B.X <= 640) << end;
    }
  }
}

TEST(TrussSketch, WarnsOfSteepDiagonalsInTheColourOfCare) {
  const TrussSketch picture = DrawnOf(SizesOf(1, 24, 9, 3, 8));
  EXPECT_GT(picture.Scale, 0);
  // atan(9 / 3).
  EXPECT_EQ(FiguresOf(picture, SketchInk::Caution), (Figures{"71.6°", "9"}));
}

TEST(TrussSketch, SaysThatASchemeIsNotCalculated) {
  const TrussSketch picture = DrawnOf(SizesOf(5, 24, 3, 3, 8));
  EXPECT_EQ(picture.Words, "Схема 5 не рассчитывается");
  EXPECT_TRUE(picture.Strokes.empty());
}

TEST(TrussSketch, IsEmptyWhereThereIsNoRoom) {
  EXPECT_TRUE(DrawnOf(SizesOf(1, 24, 3, 3, 8), 60, 40).Strokes.empty());
  EXPECT_TRUE(DrawnOf(SizesOf(1, 24, 3, 12, 8), 60, 40).Strokes.empty());
}

TEST(TrussSketch, OfTheMainFormIsThatOfWhatIsTyped) {
  StartedDesk desk;
  desk.Main.txtLengthF.SetText("24");
  const TrussSketch drawn = desk.Main.SketchTruss(CanvasOf(640, 260));
  const std::vector<std::string> figures = FiguresOf(drawn, SketchInk::Text);
  EXPECT_NE(std::find(figures.begin(), figures.end(), "24"), figures.end());
}

}  // namespace
}  // namespace trelonit::test

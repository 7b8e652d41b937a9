#include <algorithm>
#include <gtest/gtest.h>

#include "drawing/sheet/SvgWriter.h"
#include "tests/drawinghost/HostDesk.h"
#include "tests/drawinghost/PlainDrawings.h"

namespace trelonit::test {
namespace {

bool Has(const std::string& svg, const std::string& part) {
  return svg.find(part) != std::string::npos;
}

TEST(DrawingSvg, IsAsLargeAsItsSheetInMillimetres) {
  const std::string svg = WriteDrawingSvg(*SmallDrawing(), {PaperFormat::A3});
  EXPECT_TRUE(Has(svg, "width=\"420mm\" height=\"297mm\" viewBox=\"0 0 420 297\""));
  EXPECT_TRUE(Has(svg, "<title>Drawing1.dwg</title>"));
  EXPECT_TRUE(Has(svg, "<desc>М 1:40</desc>"));
}

TEST(DrawingSvg, DrawsToScaleInTheMiddleOfTheSheet) {
  Drawing drawing = EmptySheet();
  drawing.ModelSpace = {LineOn("Main", {0, 0}, {10000, 0})};
  // 1:40 on A4: 250 mm between 20 + 5 and 292 - 5; the middle is (20 + 292) / 2 and, between 5 + 5
  // above and 205 - 5 - 10 below, 100. The layer is half a millimetre wide.
  EXPECT_TRUE(Has(WriteDrawingSvg(drawing, {PaperFormat::A4}),
                  "stroke-width=\"0.5\" d=\"M31 100L281 100\""));
}

TEST(DrawingSvg, HasTheFrameOfTheStandard) {
  EXPECT_TRUE(
      Has(WriteDrawingSvg(Drawing(), {PaperFormat::A4}),
          "stroke-width=\"0.7\" d=\"M20 5L292 5M292 5L292 205M292 205L20 205M20 205L20 5\""));
}

TEST(DrawingSvg, HasOutlinesForLettersAndSaysWhatTheySay) {
  const std::string svg = WriteDrawingSvg(*SmallDrawing(), {PaperFormat::A4});
  EXPECT_FALSE(Has(svg, "<text"));
  EXPECT_FALSE(Has(svg, "font"));
  EXPECT_TRUE(Has(svg, "<title>L = 10.00</title></path>"));
  EXPECT_TRUE(Has(svg, "<title>М 1:40</title></path>"));
}

TEST(DrawingSvg, KeepsMarksOfItsOwnOutOfTexts) {
  Drawing drawing = EmptySheet();
  drawing.Name = "a<b>&c";
  drawing.ModelSpace = {TextAt("1 < 2 & 3", {0, 0}, 100, TextAlignment::Left)};
  const std::string svg = WriteDrawingSvg(drawing);
  EXPECT_TRUE(Has(svg, "<title>a&lt;b&gt;&amp;c</title>"));
  EXPECT_TRUE(Has(svg, "<title>1 &lt; 2 &amp; 3</title>"));
}

TEST(DrawingSvg, LeavesOutWhatIsNotPlotted) {
  Drawing drawing = EmptySheet();
  drawing.ModelSpace = {LineOn("Main", {0, 0}, {10000, 0}),
                        TextAt("Усилие", {0, 0}, 300, TextAlignment::Left)};
  drawing.Layers[1].Plottable = false;
  drawing.Layers[2].Freeze = true;
  const std::string svg = WriteDrawingSvg(drawing);
  EXPECT_FALSE(Has(svg, "stroke-width=\"0.5\""));
  EXPECT_FALSE(Has(svg, "Усилие"));
}

TEST(DrawingSvg, HasTheTitleBlockThatIsWanted) {
  const std::string svg =
      WriteDrawingSvg(*ExportedDrawing(1, 6), {PaperFormat::A2, TitleBlock{.Author = "Иванов"}});
  EXPECT_TRUE(Has(svg, "<title>Иванов</title>"));
}

/// The data of all outlines.
std::vector<std::string> PathData(const std::string& svg) {
  const std::string mark = " d=\"";
  std::vector<std::string> paths;
  for (std::size_t at = svg.find(mark); at != std::string::npos; at = svg.find(mark, at + 1)) {
    const std::size_t begin = at + mark.size();
    paths.push_back(svg.substr(begin, svg.find('"', begin) - begin));
  }
  return paths;
}

TEST(DrawingSvg, HasNothingButWholeNumbersOfMicrometres) {
  const std::string digits = "0123456789";
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    const std::string svg = WriteDrawingSvg(*ExportedDrawing(scheme, 8));
    EXPECT_EQ(svg, WriteDrawingSvg(*ExportedDrawing(scheme, 8)));
    const std::vector<std::string> paths = PathData(svg);
    EXPECT_GT(paths.size(), 20U);
    for (const std::string& path : paths) {
      EXPECT_EQ(path.find_first_not_of("MLQZ -." + digits), std::string::npos) << path;
      for (std::size_t at = path.find('.'); at != std::string::npos; at = path.find('.', at + 1)) {
        const std::size_t end = std::min(path.find_first_not_of(digits, at + 1), path.size());
        EXPECT_GE(end - at, 2U) << path;
        EXPECT_LE(end - at, 4U) << path;
        EXPECT_NE(path[end - 1], '0') << path;
      }
    }
  }
}

TEST(DrawingSvg, RaisesOverflowForADrawingBeyondAllNumbers) {
  Drawing wide = EmptySheet();
  wide.ModelSpace = {LineOn("Main", {-1.7e308, 0}, {1.7e308, 0})};
  EXPECT_EQ(RaisedBy([&] { WriteDrawingSvg(wide); }), 6);
}

}  // namespace
}  // namespace trelonit::test

#include <gtest/gtest.h>

#include "tests/drawing/DrawingDesk.h"

namespace trelonit::test {

namespace {

TEST(Setup, AddsLayersStylesAndVariablesInTheirOrder) {
  WrapperDesk desk;
  desk.ACAD.SetupDrawing(desk.Document);
  EXPECT_EQ(desk.Host.Calls, (std::vector<std::string>{
                                 R"(Document1.Layers)",
                                 R"(Document1.Layers.Add("Main"))",
                                 R"(Layer(Main).Freeze = False)",
                                 R"(Layer(Main).LayerOn = True)",
                                 R"(Layer(Main).Linetype = "CONTINUOUS")",
                                 R"(Layer(Main).Lineweight = 50)",
                                 R"(Layer(Main).Lock = False)",
                                 R"(Layer(Main).Plottable = True)",
                                 R"(Document1.ActiveLayer = Layer(Main))",
                                 R"(Document1.Layers)",
                                 R"(Document1.Layers.Add("Dimension"))",
                                 R"(Layer(Dimension).Freeze = False)",
                                 R"(Layer(Dimension).LayerOn = True)",
                                 R"(Layer(Dimension).Linetype = "CONTINUOUS")",
                                 R"(Layer(Dimension).Lineweight = 13)",
                                 R"(Layer(Dimension).Lock = False)",
                                 R"(Layer(Dimension).Plottable = True)",
                                 R"(Document1.TextStyles)",
                                 R"(Document1.TextStyles.Add("Dimensional"))",
                                 R"(TextStyle(Dimensional).ObliqueAngle = 0.262#)",
                                 R"(TextStyle(Dimensional).Width = 0.55#)",
                                 R"(Document1.ActiveTextStyle = TextStyle(Dimensional))",
                                 R"(Document1.DimStyles)",
                                 R"(Document1.DimStyles.Add("NordDim"))",
                                 R"(Document1.ActiveDimStyle = DimStyle(NordDim))",
                                 R"(Document1.SetVariable("DIMSCALE", 20))",
                                 R"(Document1.SetVariable("DIMDLI", 10))",
                                 R"(Document1.SetVariable("DIMEXE", 1))",
                                 R"(Document1.SetVariable("DIMEXO", 1))",
                                 R"(Document1.SetVariable("DIMDEC", 0))",
                                 R"(Document1.SetVariable("DIMGAP", 1))",
                                 R"(Document1.SetVariable("DIMTIH", 0))",
                                 R"(Document1.SetVariable("DIMTAD", 1))",
                                 R"(Document1.SetVariable("DIMTXT", 5))",
                                 R"(Document1.SetVariable("DIMASZ", 4))",
                                 R"(Document1.SetVariable("DIMTXSTY", "Dimensional"))",
                                 R"(Document1.SetVariable("DIMBLK", ""))",
                                 R"(Document1.ActiveDimStyle = DimStyle(NordDim))",
                             }));
}

TEST(Setup, HandsAnErrorOfTheHostToItsCaller) {
  WrapperDesk desk;
  desk.Host.FailingMembers.emplace("Document.SetVariable", RuntimeError(77, "Broken"));
  EXPECT_THROW(desk.ACAD.SetupDrawing(desk.Document), RuntimeError);
  EXPECT_TRUE(desk.Messages.Shown.empty());
}

TEST(RandomNumbers, OfTheSystemAreSharesOfOne) {
  const double first = clsAutoCAD::SystemRandomNumber();
  bool differ = false;
  for (int turn = 0; turn < 10; ++turn) {
    const double next = clsAutoCAD::SystemRandomNumber();
    EXPECT_GE(next, 0);
    EXPECT_LT(next, 1);
    differ = differ || next != first;
  }
  EXPECT_TRUE(differ);
}

}  // namespace

}  // namespace trelonit::test

#include "workstation/sketch/TrussSketch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>

#include "analysis/Scheme.h"
#include "platform/values/Elementary.h"
#include "workstation/design/EnteredDesign.h"
#include "workstation/live/GeometryFaults.h"
#include "workstation/sketch/DimensionLines.h"

namespace trelonit {

namespace {

constexpr double jointRadius = 2.5;
/// In lines of text: from the truss to its dimensions, from one row of them to the next.
constexpr double toDimensions = 2.2;
constexpr double betweenRows = 1.7;
constexpr double supportHeight = 0.8;
/// Over the truss, for the slopes.
constexpr double slopeRoom = 2.2;
constexpr double sideMargin = 10;
constexpr double arcRadius = 26;

bool IsDiagonal(const TrussBar& bar) {
  return bar.Group == ElementGroup::Raskos || bar.Group == ElementGroup::OpornRaskos;
}

bool IsChord(const TrussBar& bar) {
  return bar.Group == ElementGroup::UpPoyas || bar.Group == ElementGroup::DwnPoyas;
}

class SketchBuilder {
 public:
  SketchBuilder(const DesignInputs& inputs, const SketchCanvas& canvas, const NumberLocale& locale)
      : inputs_(inputs),
        canvas_(canvas),
        locale_(locale),
        faults_(FindGeometryFaults(inputs, locale)) {}

  TrussSketch Draw() {
    const Scheme* scheme = FindScheme(inputs_.TreloType);
    if (scheme == nullptr || scheme->Reserved) {
      Say("Схема " + std::to_string(inputs_.TreloType) + " не рассчитывается",
          SketchInk::Dimension);
    } else if (IsImpossible()) {
      DrawWhatIsWrong();
    } else {
      DrawSound(*scheme);
    }
    return std::move(picture_);
  }

 private:
  bool IsImpossible() const {
    return !faults_.empty() && faults_.front().Grade == Severity::Danger;
  }
  const GeometryFault* FaultAt(GeometryInput input) const {
    const auto found = std::find_if(faults_.begin(), faults_.end(),
                                    [input](const auto& fault) { return fault.At == input; });
    return found == faults_.end() ? nullptr : &*found;
  }

  std::string Length(double metres) const { return LengthText(metres, locale_); }

  void Say(const std::string& text, SketchInk ink) {
    lines_.Text(text, {canvas_.Width / 2, canvas_.Height / 2}, ink);
    picture_.Words = text;
  }

  /// Fits the box of the truss between the margins, with this many rows of dimensions under it.
  void Place(double span, double height, int rows) {
    const double line = canvas_.LineHeight;
    const double figure = canvas_.WidthOf(Length(inputs_.LenOporn)) + 2 * sideMargin;
    const double left = std::max(toDimensions * line + sideMargin, figure);
    const double right = std::max(figure, 2.0 * sideMargin);
    const double top = slopeRoom * line;
    const double bottom = (supportHeight + toDimensions + (rows - 1) * betweenRows) * line;
    const double across = canvas_.Width - left - right;
    const double down = canvas_.Height - top - bottom;
    picture_.Scale = std::max(std::min(across / span, down / height), 0.0);
    left_ = left + (across - span * picture_.Scale) / 2;
    base_ = top + (down + height * picture_.Scale) / 2;
  }

  SketchPoint At(double x, double y) const {
    return {left_ + x * picture_.Scale, base_ - y * picture_.Scale};
  }
  SketchPoint At(const TrussJoint& joint) const { return At(joint.X, joint.Y); }

  void DrawSound(const Scheme& scheme) {
    const TreloData data = DesignOf(inputs_, {}).TreloData;
    truss_ = TrussOf(data);
    Place(data.LengthF, data.Hight, 2);
    if (!(picture_.Scale > 0)) {
      return;
    }
    DrawBars();
    DrawSupport(truss_.Joints[truss_.LeftSupport], true);
    DrawSupport(truss_.Joints[truss_.RightSupport], false);
    DrawDimensions(data, scheme);
    DrawSlopes();
  }

  void DrawBars() {
    for (const TrussBar& bar : truss_.Bars) {
      picture_.Strokes.push_back({IsChord(bar) ? SketchInk::Chord : SketchInk::Web,
                                  At(truss_.Joints[bar.A]), At(truss_.Joints[bar.B])});
    }
    for (const TrussJoint& joint : truss_.Joints) {
      picture_.Discs.push_back({.Centre = At(joint), .Radius = jointRadius});
    }
  }

  void DrawSupport(const TrussJoint& joint, bool pinned) {
    const SketchPoint top = At(joint) + SketchPoint{0, jointRadius};
    const double height = supportHeight * canvas_.LineHeight - jointRadius;
    const double half = height * 0.6;
    const double foot = top.Y + height - (pinned ? 0 : 3);
    picture_.Shapes.push_back(
        {SketchInk::Support, {top, {top.X + half, foot}, {top.X - half, foot}}});
    // A roller leaves a gap over its ground.
    lines_.Line({top.X - 1.5 * half, top.Y + height}, {top.X + 1.5 * half, top.Y + height},
                SketchInk::Support);
  }

  /// Where the extension lines under the truss begin, and its rows of dimensions are.
  double Under() const { return base_ + supportHeight * canvas_.LineHeight; }
  double Row(int row) const {
    return Under() + (toDimensions - 0.6 + row * betweenRows) * canvas_.LineHeight;
  }
  double BesideLeft() const { return left_ - (toDimensions - 0.8) * canvas_.LineHeight; }

  void DrawDimensions(const TreloData& data, const Scheme& scheme) {
    const double d = PanelLength(data);
    constexpr double equal = 1e-6;
    const bool ends = scheme.OwnEndPanels && std::abs(d - data.LenOporn) > equal * data.LengthF;
    const double end = ends ? data.LenOporn : 0;
    const Long regular = ends ? data.PanelNum - 2 : data.PanelNum;
    std::string words = "Ферма " + Length(data.LengthF) + " на " + Length(data.Hight) + " м";
    if (ends) {
      lines_.Across(At(0, 0).X, At(end, 0).X, Row(0), Under(), Length(end), SketchInk::Dimension,
                    DimensionLines::Overflow::ToTheLeft);
      lines_.Across(At(data.LengthF - end, 0).X, At(data.LengthF, 0).X, Row(0), Under(),
                    Length(end), SketchInk::Dimension, DimensionLines::Overflow::ToTheRight);
      words += ", опорные панели " + Length(end) + " м";
    }
    const std::string middle = std::to_string(regular) + " × " + Length(d);
    lines_.Across(At(end, 0).X, At(data.LengthF - end, 0).X, Row(0), Under(), middle,
                  SketchInk::Dimension, DimensionLines::Overflow::IsLeftOut);
    lines_.Across(At(0, 0).X, At(data.LengthF, 0).X, Row(1), Under(), Length(data.LengthF));
    const SketchInk height =
        FaultAt(GeometryInput::Height) != nullptr ? SketchInk::Caution : SketchInk::Dimension;
    lines_.Down(BesideLeft(), At(0, data.Hight).Y, base_, At(0, 0).X, Length(data.Hight), height);
    picture_.Words = words + ", панели " + middle + " м";
  }

  /// The slope of the first support diagonal and of the first regular one that differs.
  void DrawSlopes() {
    std::optional<std::string> first;
    for (const TrussBar& bar : truss_.Bars) {
      if (!IsDiagonal(bar)) {
        continue;
      }
      const std::string slope = SlopeText(bar);
      if (slope != first && HasRoomForSlope(bar, slope)) {
        DrawSlope(bar, slope);
        picture_.Words += (first ? ", раскос " : ", опорный раскос ") + slope;
        if (first) {
          return;
        }
        first = slope;
      }
    }
  }

  double Slope(const TrussBar& bar) const {
    const TrussJoint& a = truss_.Joints[bar.A];
    const TrussJoint& b = truss_.Joints[bar.B];
    return portable::Direction(std::abs(b.Y - a.Y), b.X - a.X);
  }

  std::string SlopeText(const TrussBar& bar) const {
    constexpr double halfTurn = 180;
    return FormatShown(Slope(bar) * halfTurn / std::numbers::pi, 1, locale_) + "°";
  }

  double SlopeMiddle(const TrussBar& bar) const {
    return (At(truss_.Joints[bar.A]).X + At(truss_.Joints[bar.B]).X) / 2;
  }

  /// Slopes that are written stand apart from each other.
  bool HasRoomForSlope(const TrussBar& bar, const std::string& text) const {
    const double left = SlopeMiddle(bar) - canvas_.WidthOf(text) / 2;
    return !slopesEnd_ || left > *slopesEnd_ + canvas_.LineHeight;
  }

  /// An arc between the upper chord and the diagonal, with its figure over the chord.
  void DrawSlope(const TrussBar& bar, const std::string& text) {
    const bool falls = truss_.Joints[bar.A].Y > truss_.Joints[bar.B].Y;
    const SketchPoint up = At(truss_.Joints[falls ? bar.A : bar.B]);
    const double away = falls ? 1 : -1;
    const double across = std::abs(At(truss_.Joints[bar.B]).X - At(truss_.Joints[bar.A]).X);
    const double radius = std::min({arcRadius, across * 0.6, bar.Length * picture_.Scale * 0.6});
    const double slope = Slope(bar);
    const SketchInk ink =
        FaultAt(GeometryInput::Height) != nullptr ? SketchInk::Caution : SketchInk::Dimension;
    picture_.Arcs.push_back({.Of = ink,
                             .Centre = up,
                             .Radius = radius,
                             .From = falls ? 0 : std::numbers::pi - slope,
                             .To = falls ? slope : std::numbers::pi});
    const double middle = SlopeMiddle(bar);
    const double over = up.Y - canvas_.LineHeight * 1.1;
    lines_.Text(text, {middle, over}, ink == SketchInk::Dimension ? SketchInk::Text : ink);
    lines_.Line({middle, over + canvas_.LineHeight / 2},
                up + SketchPoint{away * radius * portable::Cosine(slope / 2),
                                 radius * portable::Sine(slope / 2)},
                ink);
    slopesEnd_ = middle + canvas_.WidthOf(text) / 2;
  }

  /// The outline of the truss, as far as its sizes make one, and in red what is wrong.
  void DrawWhatIsWrong() {
    const GeometryFault& gravest = faults_.front();
    const bool sized = inputs_.LengthF > 0 && inputs_.Hight > 0;
    if (!sized) {
      Say(gravest.Text, SketchInk::Fault);
      return;
    }
    const bool atEnds = FaultAt(GeometryInput::EndPanel) != nullptr;
    Place(inputs_.LengthF, inputs_.Hight, atEnds ? 3 : 1);
    const double scale = picture_.Scale;
    picture_.Scale = 0;
    if (!(scale > 0)) {
      return;
    }
    const double right = left_ + inputs_.LengthF * scale;
    const double top = base_ - inputs_.Hight * scale;
    const std::array<SketchPoint, 4> corners{
        {{left_, base_}, {right, base_}, {right, top}, {left_, top}}};
    for (std::size_t side = 0; side < corners.size(); ++side) {
      lines_.Line(corners[side], corners[(side + 1) % corners.size()], SketchInk::Edge);
    }
    int row = 0;
    if (atEnds) {
      // They may be longer than the truss and the canvas.
      const double end = inputs_.LenOporn * scale;
      const std::string text = Length(inputs_.LenOporn);
      lines_.Across(left_, std::min(left_ + end, canvas_.Width - sideMargin), Row(row++), Under(),
                    text, SketchInk::Fault);
      lines_.Across(std::max(right - end, sideMargin), right, Row(row++), Under(), text,
                    SketchInk::Fault);
    }
    lines_.Across(left_, right, Row(row), Under(), Length(inputs_.LengthF));
    lines_.Down(BesideLeft(), top, base_, left_, Length(inputs_.Hight));
    lines_.Text(gravest.Text, {canvas_.Width / 2, top - canvas_.LineHeight}, SketchInk::Fault);
    picture_.Words = gravest.Text;
  }

  const DesignInputs& inputs_;
  const SketchCanvas& canvas_;
  const NumberLocale& locale_;
  std::vector<GeometryFault> faults_;
  TrussSketch picture_;
  DimensionLines lines_{picture_, canvas_};
  Truss truss_;
  double left_ = 0;  ///< of the truss
  double base_ = 0;  ///< of its lower edge
  std::optional<double> slopesEnd_;
};

}  // namespace

TrussSketch SketchTruss(const DesignInputs& inputs, const SketchCanvas& canvas,
                        const NumberLocale& locale) {
  return SketchBuilder(inputs, canvas, locale).Draw();
}

}  // namespace trelonit

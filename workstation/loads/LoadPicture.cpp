#include "workstation/loads/LoadPicture.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "analysis/Scheme.h"
#include "platform/errors/Guard.h"
#include "platform/values/Elementary.h"

namespace trelonit {

namespace {

constexpr double sideMargin = 34;
constexpr double gap = 4;
constexpr double bandHeight = 9;
constexpr double ownWeightHeight = 5;
constexpr double shortestArrow = 12;
constexpr double headLength = 6;
constexpr double headHalf = 3;
constexpr double supportHalf = 6;
constexpr double supportHeight = 9;
constexpr double lowestTruss = 24;

/// How much of the loads is drawn beside the truss: where there is little room the truss comes
/// first, for the values stand in the table too.
struct Detail {
  double LongestArrow;
  bool JointTexts;
  bool PanelTexts;
};
constexpr std::array details{Detail{40, true, true}, Detail{20, true, true},
                             Detail{24, false, true}, Detail{16, false, false}};

/// One chord of the picture: its joints on the screen, and the loads on it.
struct ChordLoads {
  Chord Of = Chord::Upper;
  std::vector<const TrussJoint*> Joints;
  const BoundedArray<double>* OnJoints = nullptr;
  const BoundedArray<double>* OnPanels = nullptr;
};

double At(const BoundedArray<double>& loads, Long place) {
  return loads.IsAllocated() && place >= 0 && place <= loads.UpperBound() ? loads[place] : 0;
}

class LoadDrawing {
 public:
  LoadDrawing(const Truss& truss, const TreloData& data, const OwnWeightState& ownWeight,
              const std::optional<LoadSpot>& chosen, const LoadPictureSize& size,
              const NumberLocale& locale)
      : truss_(truss),
        data_(data),
        ownWeight_(ownWeight),
        chosen_(chosen),
        size_(size),
        locale_(locale) {
    for (const Chord chord : {Chord::Upper, Chord::Lower}) {
      ChordLoads loads{.Of = chord};
      for (const std::size_t place : truss_.JointsOf(chord)) {
        loads.Joints.push_back(&truss_.Joints[place]);
      }
      const bool upper = chord == Chord::Upper;
      loads.OnJoints = upper ? &data_.UpPForce : &data_.DwnPForce;
      loads.OnPanels = upper ? &data_.UpDistForce : &data_.DwnDistForce;
      (upper ? upper_ : lower_) = std::move(loads);
    }
    FindLargest();
    Scale();
  }

  LoadPicture Take() {
    DrawTruss();
    DrawChord(upper_);
    DrawChord(lower_);
    if (ownWeight_.Added) {
      const std::string text =
          "собственный вес " + NumberToText(ownWeight_.PerMetre, locale_) + " т/м";
      picture_.Texts.push_back({size_.Width - size_.WidthOf(text) / 2 - gap,
                                size_.Height - size_.LineHeight / 2, text, LoadInk::OwnWeight,
                                false});
    }
    return std::move(picture_);
  }

 private:
  /// The user's part of a panel's load.
  double Own() const { return InsideOf(ownWeight_); }
  double PanelLoad(const ChordLoads& chord, Long panel) const {
    return RoundToDecimals(At(*chord.OnPanels, panel) - Own(), 12);
  }

  void FindLargest() {
    for (const ChordLoads* chord : {&upper_, &lower_}) {
      for (const double load : *chord->OnJoints) {
        largest_ = std::max(largest_, std::abs(load));
      }
    }
  }

  /// Room beside a chord for what stands on it.
  double RoomOf(const ChordLoads& chord) const {
    double room = gap + (ownWeight_.Added ? ownWeightHeight + 1 : 0);
    bool bands = false;
    for (Long panel = 0; panel + 1 < static_cast<Long>(chord.Joints.size()); ++panel) {
      bands = bands || PanelLoad(chord, panel) != 0;
    }
    room += bands ? RoomOfBands() : 0;
    const bool arrows = std::any_of(chord.OnJoints->begin(), chord.OnJoints->end(),
                                    [](double load) { return load != 0; });
    if (arrows) {
      room += detail_.LongestArrow + gap;
      if (detail_.JointTexts) {
        room += NeedsUpright(chord) ? WidestText(chord) : size_.LineHeight;
      }
    }
    return room;
  }

  double RoomOfBands() const { return bandHeight + (detail_.PanelTexts ? size_.LineHeight : gap); }

  void Scale() {
    double height = 0;
    double length = 0;
    for (const TrussJoint& joint : truss_.Joints) {
      height = std::max(height, joint.Y);
      length = std::max(length, joint.X);
    }
    // As wide as there is room, with as much of the loads as then fits.
    picture_.Scale = length / std::max(1.0, size_.Width - 2 * sideMargin);
    const double below = supportHeight + (ownWeight_.Added ? size_.LineHeight : 0);
    double above = 0;
    double forTruss = 0;
    for (const Detail& detail : details) {
      detail_ = detail;
      above = RoomOf(upper_);
      forTruss = size_.Height - above - RoomOf(lower_) - below;
      if (forTruss >= height / picture_.Scale) {
        break;
      }
    }
    forTruss = std::max(lowestTruss, forTruss);
    picture_.Scale = std::max(picture_.Scale, height / forTruss);
    left_ = (size_.Width - length / picture_.Scale) / 2;
    const double spare = std::max(0.0, forTruss - height / picture_.Scale);
    bottom_ = above + spare / 2 + height / picture_.Scale;
  }

  double X(const TrussJoint& joint) const { return left_ + joint.X / picture_.Scale; }
  double Y(const TrussJoint& joint) const { return bottom_ - joint.Y / picture_.Scale; }

  bool IsChosen(const LoadSpot& spot) const { return chosen_ && *chosen_ == spot; }

  void Line(double x1, double y1, double x2, double y2, LoadInk ink) {
    picture_.Lines.push_back({x1, y1, x2, y2, ink});
  }

  void DrawTruss() {
    for (const TrussBar& bar : truss_.Bars) {
      const TrussJoint& a = truss_.Joints[bar.A];
      const TrussJoint& b = truss_.Joints[bar.B];
      Line(X(a), Y(a), X(b), Y(b), LoadInk::Bar);
    }
    for (const std::size_t place : {truss_.LeftSupport, truss_.RightSupport}) {
      const double x = X(truss_.Joints[place]);
      const double y = Y(truss_.Joints[place]);
      Line(x, y, x - supportHalf, y + supportHeight, LoadInk::Support);
      Line(x, y, x + supportHalf, y + supportHeight, LoadInk::Support);
      Line(x - supportHalf, y + supportHeight, x + supportHalf, y + supportHeight,
           LoadInk::Support);
    }
  }

  /// Up from the upper chord, down from the lower one.
  static double Outward(const ChordLoads& chord) { return chord.Of == Chord::Upper ? -1 : 1; }

  void DrawChord(const ChordLoads& chord) {
    const double outward = Outward(chord);
    double away = gap;
    if (ownWeight_.Added) {
      DrawOwnWeight(chord, away);
      away += ownWeightHeight + 1;
    }
    if (DrawPanels(chord, away)) {
      away += RoomOfBands();
    }
    const bool upright = NeedsUpright(chord);
    for (const TrussJoint* joint : chord.Joints) {
      const LoadSpot spot{.Of = chord.Of, .Panel = false, .Number = joint->Index};
      picture_.Targets.push_back({spot, X(*joint), Y(*joint)});
      if (IsChosen(spot)) {
        constexpr double half = 4;
        const double x = X(*joint);
        const double y = Y(*joint);
        Line(x - half, y - half, x + half, y - half, LoadInk::Chosen);
        Line(x + half, y - half, x + half, y + half, LoadInk::Chosen);
        Line(x + half, y + half, x - half, y + half, LoadInk::Chosen);
        Line(x - half, y + half, x - half, y - half, LoadInk::Chosen);
      }
      const double load = At(*chord.OnJoints, joint->Index);
      if (load != 0) {
        DrawArrow(X(*joint), Y(*joint) + outward * away, outward, load, upright);
      }
    }
    // After the joints: where one is as near as the other, the joint is meant.
    for (std::size_t panel = 0; panel + 1 < chord.Joints.size(); ++panel) {
      const TrussJoint& a = *chord.Joints[panel];
      const TrussJoint& b = *chord.Joints[panel + 1];
      const LoadSpot spot{.Of = chord.Of, .Panel = true, .Number = a.Index};
      picture_.Targets.push_back({spot, (X(a) + X(b)) / 2, (Y(a) + Y(b)) / 2});
      if (IsChosen(spot)) {
        Line(X(a), Y(a), X(b), Y(b), LoadInk::Chosen);
      }
    }
  }

  void DrawOwnWeight(const ChordLoads& chord, double away) {
    if (chord.Joints.size() < 2) {
      return;
    }
    const TrussJoint& first = *chord.Joints.front();
    const TrussJoint& last = *chord.Joints.back();
    const double edge = Y(first) + Outward(chord) * away;
    const double top = chord.Of == Chord::Upper ? edge - ownWeightHeight : edge;
    picture_.Bands.push_back(
        {X(first), top, X(last) - X(first), ownWeightHeight, LoadInk::OwnWeight});
  }

  /// The bars of the panels' loads; equal neighbours have one text.
  bool DrawPanels(const ChordLoads& chord, double away) {
    bool any = false;
    const auto count = static_cast<Long>(chord.Joints.size()) - 1;
    for (Long first = 0; first < count;) {
      const double load = PanelLoad(chord, first);
      Long end = first + 1;
      while (end < count && PanelLoad(chord, end) == load) {
        ++end;
      }
      if (load != 0) {
        any = true;
        DrawRun(chord, first, end, away, load);
      }
      first = end;
    }
    return any;
  }

  void DrawRun(const ChordLoads& chord, Long first, Long end, double away, double load) {
    const double outward = Outward(chord);
    const TrussJoint& from = *chord.Joints[static_cast<std::size_t>(first)];
    const TrussJoint& to = *chord.Joints[static_cast<std::size_t>(end)];
    const double edge = Y(from) + outward * away;
    const double top = outward < 0 ? edge - bandHeight : edge;
    for (Long panel = first; panel < end; ++panel) {
      const double left = X(*chord.Joints[static_cast<std::size_t>(panel)]);
      const double right = X(*chord.Joints[static_cast<std::size_t>(panel) + 1]);
      picture_.Bands.push_back({left, top, right - left, bandHeight, LoadInk::Load});
    }
    const std::string text = NumberToText(load, locale_);
    // A value that is wider than its panels would lie over its neighbours'; the table has it.
    if (detail_.PanelTexts && size_.WidthOf(text) <= X(to) - X(from)) {
      picture_.Texts.push_back({(X(from) + X(to)) / 2,
                                edge + outward * (bandHeight + size_.LineHeight / 2), text,
                                LoadInk::Load, false});
    }
  }
  void DrawArrow(double x, double y, double outward, double load, bool upright) {
    const double share = largest_ > 0 ? std::abs(load) / largest_ : 1;
    const double length = shortestArrow + (detail_.LongestArrow - shortestArrow) * share;
    const double far = y + outward * length;
    Line(x, y, x, far, LoadInk::Load);
    // A load downward has its head below, wherever it stands.
    const double head = (load > 0) == (outward < 0) ? y : far;
    const double back = load > 0 ? head - headLength : head + headLength;
    Line(x, head, x - headHalf, back, LoadInk::Load);
    Line(x, head, x + headHalf, back, LoadInk::Load);
    if (!detail_.JointTexts) {
      return;
    }
    const std::string text = NumberToText(load, locale_);
    const double half = (upright ? size_.WidthOf(text) : size_.LineHeight) / 2;
    picture_.Texts.push_back({x, far + outward * (half + 1), text, LoadInk::Load, upright});
  }

  bool NeedsUpright(const ChordLoads& chord) const {
    double end = -1e9;
    for (const TrussJoint* joint : chord.Joints) {
      const double load = At(*chord.OnJoints, joint->Index);
      if (load != 0) {
        const double half = size_.WidthOf(NumberToText(load, locale_)) / 2;
        const double x = joint->X / picture_.Scale;
        if (x - half < end) {
          return true;
        }
        end = x + half + 3;
      }
    }
    return false;
  }

  double WidestText(const ChordLoads& chord) const {
    double widest = 0;
    for (const double load : *chord.OnJoints) {
      if (load != 0) {
        widest = std::max(widest, size_.WidthOf(NumberToText(load, locale_)));
      }
    }
    return widest;
  }

  const Truss& truss_;
  const TreloData& data_;
  const OwnWeightState& ownWeight_;
  const std::optional<LoadSpot>& chosen_;
  const LoadPictureSize& size_;
  const NumberLocale& locale_;
  ChordLoads upper_;
  ChordLoads lower_;
  Detail detail_ = details.front();
  double largest_ = 0;
  double left_ = 0;
  double bottom_ = 0;
  LoadPicture picture_;
};

}  // namespace

LoadPicture DrawLoads(const TreloData& truss, const OwnWeightState& ownWeight,
                      const std::optional<LoadSpot>& chosen, const LoadPictureSize& size,
                      const NumberLocale& locale) {
  LoadPicture picture;
  // Sizes that make no truss have no picture.
  PassOver([&] {
    if (truss.LengthF > 0 && truss.Hight > 0 && PanelLength(truss) > 0) {
      const Truss joints = TrussOf(truss);
      picture = LoadDrawing(joints, truss, ownWeight, chosen, size, locale).Take();
    }
  });
  return picture;
}

std::optional<LoadSpot> SpotAt(const LoadPicture& picture, double x, double y) {
  const auto distance = [&](const LoadPicture::Target& target) {
    return portable::Hypotenuse(target.X - x, target.Y - y);
  };
  const auto nearest =
      std::min_element(picture.Targets.begin(), picture.Targets.end(),
                       [&](const auto& a, const auto& b) { return distance(a) < distance(b); });
  return nearest == picture.Targets.end() ? std::nullopt : std::optional(nearest->Spot);
}

}  // namespace trelonit

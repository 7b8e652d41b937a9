#include "drawing/sheet/TextFitting.h"

#include <algorithm>
#include <limits>
#include <map>
#include <set>
#include <utility>

#include "platform/values/Elementary.h"

namespace trelonit {

namespace {

/// The room that texts want between each other, in parts of the smaller one's height.
constexpr double wantedGap = 0.15;
/// No text gets smaller than this part of its height: one may well lie upon another.
constexpr double leastFactor = 0.4;
constexpr double step = 0.9;
/// More texts than any truss on offer has are not sized against each other, only thinned out.
constexpr std::size_t mostSized = 1500;

using Corners = std::array<PlanePoint, 4>;
using Pair = std::pair<std::size_t, std::size_t>;

Corners Shrunk(const TextRoom& text, double factor) {
  Corners corners;
  std::transform(text.Corners.begin(), text.Corners.end(), corners.begin(),
                 [&](PlanePoint corner) { return text.Anchor + (corner - text.Anchor) * factor; });
  return corners;
}

struct Span {
  double Least = std::numeric_limits<double>::infinity();
  double Greatest = -std::numeric_limits<double>::infinity();
};

Span SpanAlong(const Corners& corners, PlanePoint direction) {
  Span span;
  for (const PlanePoint& corner : corners) {
    const double place = DotProduct(corner, direction);
    span.Least = std::min(span.Least, place);
    span.Greatest = std::max(span.Greatest, place);
  }
  return span;
}

/// Convex boxes stand apart along the normal of one of their sides.
double Gap(const Corners& box1, const Corners& box2) {
  double gap = -std::numeric_limits<double>::infinity();
  for (const Corners* box : {&box1, &box2}) {
    for (std::size_t corner = 0; corner < box->size(); ++corner) {
      const PlanePoint side = (*box)[(corner + 1) % box->size()] - (*box)[corner];
      const double length = portable::Hypotenuse(side.X, side.Y);
      if (length == 0) {
        continue;
      }
      const PlanePoint normal{-side.Y / length, side.X / length};
      const Span span1 = SpanAlong(box1, normal);
      const Span span2 = SpanAlong(box2, normal);
      gap = std::max({gap, span2.Least - span1.Greatest, span1.Least - span2.Greatest});
    }
  }
  return gap;
}

PlaneBox BoxOf(const Corners& corners) {
  const Span x = SpanAlong(corners, {1, 0});
  const Span y = SpanAlong(corners, {0, 1});
  return {{x.Least, y.Least}, {x.Greatest, y.Greatest}};
}

/// The texts of a drawing while their sizes are looked for.
class Fitting {
 public:
  Fitting(const std::vector<TextRoom>& texts, double smallest, const std::vector<PlaneLine>& bars)
      : texts_(texts) {
    if (texts_.size() <= mostSized) {
      FindCrossings(bars);
    }
    for (const TextRoom& text : texts_) {
      if (text.Height > 0) {
        Size& size = sizes_[KindOf(text)];
        size.Least = std::clamp(smallest / text.Height, leastFactor, 1.0);
      }
    }
  }

  TextFit Result() {
    if (texts_.size() <= mostSized) {
      SizeKinds();
    }
    TextFit fit;
    fit.Factors.assign(texts_.size(), 0);
    for (const std::size_t shown : Shown()) {
      const double factor = Factor(shown);
      const double height = texts_[shown].Height * factor;
      fit.Factors[shown] = factor;
      fit.Smallest = fit.Smallest == 0 ? height : std::min(fit.Smallest, height);
    }
    fit.LeftOut = static_cast<std::size_t>(std::count(fit.Factors.begin(), fit.Factors.end(), 0.0));
    return fit;
  }

 private:
  /// Height and kind. Heights that differ by rounding alone are one.
  using Kind = std::pair<float, int>;
  struct Size {
    double Factor = 1;
    double Least = 1;
  };

  static Kind KindOf(const TextRoom& text) { return {static_cast<float>(text.Height), text.Kind}; }
  double Factor(std::size_t text) const {
    const auto found = sizes_.find(KindOf(texts_[text]));
    return found == sizes_.end() ? 1 : found->second.Factor;
  }

  /// The texts that a bar comes near and that can be made small enough to keep off it.
  void FindCrossings(const std::vector<PlaneLine>& bars) {
    std::vector<PlaneBox> rooms;
    for (const TextRoom& text : texts_) {
      rooms.push_back(BoxOf(text.Corners));
    }
    for (const PlaneLine& bar : bars) {
      const Corners line{bar.Start, bar.End, bar.End, bar.Start};
      const PlaneBox box = BoxOf(line);
      for (std::size_t text = 0; text < texts_.size(); ++text) {
        const PlaneBox& room = rooms[text];
        if (Overlap(room, box) && Gap(texts_[text].Corners, line) < 0 &&
            Gap(Shrunk(texts_[text], leastFactor), line) >= 0) {
          crossings_.push_back({text, line});
        }
      }
    }
  }
  bool IsCrossed(std::size_t text, const Corners& bar) const {
    return Gap(Shrunk(texts_[text], Factor(text)), bar) < 0;
  }

  /// Those that come near each other, each pair once.
  std::vector<Pair> Neighbours() const {
    std::vector<PlaneBox> boxes;
    std::vector<std::size_t> order;
    for (std::size_t text = 0; text < texts_.size(); ++text) {
      const double room = wantedGap * texts_[text].Height;
      const PlaneBox box = BoxOf(texts_[text].Corners);
      boxes.push_back({box.Least - PlanePoint{room, room}, box.Greatest + PlanePoint{room, room}});
      order.push_back(text);
    }
    std::sort(order.begin(), order.end(), [&](std::size_t text1, std::size_t text2) {
      return boxes[text1].Least.X < boxes[text2].Least.X;
    });
    std::vector<Pair> pairs;
    for (std::size_t place = 0; place < order.size(); ++place) {
      const PlaneBox& box = boxes[order[place]];
      for (std::size_t next = place + 1;
           next < order.size() && boxes[order[next]].Least.X <= box.Greatest.X; ++next) {
        const PlaneBox& other = boxes[order[next]];
        if (other.Least.Y <= box.Greatest.Y && other.Greatest.Y >= box.Least.Y) {
          pairs.emplace_back(order[place], order[next]);
        }
      }
    }
    return pairs;
  }

  bool IsCrowded(const Pair& pair) const {
    const double factor1 = Factor(pair.first);
    const double factor2 = Factor(pair.second);
    const double gap = GapBetween(texts_[pair.first], factor1, texts_[pair.second], factor2);
    return gap < wantedGap * std::min(texts_[pair.first].Height * factor1,
                                      texts_[pair.second].Height * factor2);
  }

  /// Whether making them smaller gets them apart at all.
  bool CanPart(const Pair& pair) const {
    const auto least = [&](std::size_t text) {
      const auto found = sizes_.find(KindOf(texts_[text]));
      return found == sizes_.end() ? 1 : found->second.Least;
    };
    return GapBetween(texts_[pair.first], least(pair.first), texts_[pair.second],
                      least(pair.second)) >= 0;
  }

  void SizeKinds() {
    std::vector<Pair> pairs = Neighbours();
    std::erase_if(pairs, [&](const Pair& pair) { return !CanPart(pair); });
    for (;;) {
      std::erase_if(pairs, [&](const Pair& pair) { return !IsCrowded(pair); });
      std::set<Kind> yielding;
      for (const Pair& pair : pairs) {
        if (const Kind* kind = Yielding(KindOf(texts_[pair.first]), KindOf(texts_[pair.second]))) {
          yielding.insert(*kind);
        }
      }
      for (const Crossing& crossing : crossings_) {
        const Kind kind = KindOf(texts_[crossing.Text]);
        if (const Kind* known = Yielding(kind, kind);
            known != nullptr && IsCrossed(crossing.Text, crossing.Bar)) {
          yielding.insert(*known);
        }
      }
      if (yielding.empty()) {
        return;
      }
      for (const Kind& kind : yielding) {
        Size& size = sizes_[kind];
        size.Factor = std::max(size.Factor * step, size.Least);
      }
    }
  }

  /// The kind of the two that gets smaller; null where both are as small as they may be.
  const Kind* Yielding(const Kind& kind1, const Kind& kind2) const {
    const Kind* yielding = nullptr;
    double best = 0;
    for (const Kind* kind : {&kind1, &kind2}) {
      const auto found = sizes_.find(*kind);
      if (found == sizes_.end() || found->second.Factor <= found->second.Least) {
        continue;
      }
      // A lesser kind may well be somewhat smaller than the other one.
      constexpr double lesser = 0.25;
      const double present =
          kind->first * found->second.Factor * (1 + lesser * static_cast<double>(kind->second));
      if (yielding == nullptr || present > best) {
        // The map's own key: the arguments end with the call.
        yielding = &found->first;
        best = present;
      }
    }
    return yielding;
  }

  /// The texts that are shown: of those that cover each other the first, the high ones before all.
  std::vector<std::size_t> Shown() const {
    std::vector<std::size_t> order(texts_.size());
    for (std::size_t text = 0; text < order.size(); ++text) {
      order[text] = text;
    }
    std::stable_sort(order.begin(), order.end(), [&](std::size_t text1, std::size_t text2) {
      const auto [height1, kind1] = KindOf(texts_[text1]);
      const auto [height2, kind2] = KindOf(texts_[text2]);
      return std::pair(-height1, kind1) < std::pair(-height2, kind2);
    });
    struct Room {
      PlaneBox Box;
      Corners At;
    };
    std::set<std::size_t> crossed;
    for (const Crossing& crossing : crossings_) {
      if (IsCrossed(crossing.Text, crossing.Bar)) {
        crossed.insert(crossing.Text);
      }
    }
    std::vector<Room> taken;
    std::vector<std::size_t> shown;
    for (const std::size_t text : order) {
      if (crossed.contains(text)) {
        continue;
      }
      Room room{{}, Shrunk(texts_[text], Factor(text))};
      room.Box = BoxOf(room.At);
      const bool free = std::none_of(taken.begin(), taken.end(), [&](const Room& other) {
        return Overlap(other.Box, room.Box) && Gap(other.At, room.At) < 0;
      });
      if (free) {
        taken.push_back(room);
        shown.push_back(text);
      }
    }
    return shown;
  }

  struct Crossing {
    std::size_t Text;
    Corners Bar;
  };

  const std::vector<TextRoom>& texts_;
  std::vector<Crossing> crossings_;
  std::map<Kind, Size> sizes_;
};

}  // namespace

double GapBetween(const TextRoom& text1, double factor1, const TextRoom& text2, double factor2) {
  return Gap(Shrunk(text1, factor1), Shrunk(text2, factor2));
}

TextFit FitTexts(const std::vector<TextRoom>& texts, double smallest,
                 const std::vector<PlaneLine>& bars) {
  return Fitting(texts, smallest, bars).Result();
}

}  // namespace trelonit

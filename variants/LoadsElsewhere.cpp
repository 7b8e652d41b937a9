#include "variants/LoadsElsewhere.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "analysis/Scheme.h"
#include "variants/Refusal.h"

namespace trelonit {

namespace {

/// Of the span; joints nearer than this stand at the same place.
constexpr double samePlace = 1e-9;

/// A chord as shares of the span.
struct ChordPlaces {
  std::vector<double> Joints;
  double RegularPanel = 0;
};

ChordPlaces PlacesOf(const Truss& truss, Chord chord, double span) {
  ChordPlaces places;
  for (const std::size_t joint : truss.JointsOf(chord)) {
    places.Joints.push_back(truss.Joints[joint].X / span);
  }
  // The one in the middle: only the end panels have a length of their own.
  const std::size_t middle = places.Joints.size() / 2;
  places.RegularPanel = places.Joints[middle] - places.Joints[middle - 1];
  return places;
}

bool StandAlike(const ChordPlaces& a, const ChordPlaces& b) {
  return std::equal(a.Joints.begin(), a.Joints.end(), b.Joints.begin(), b.Joints.end(),
                    [](double x, double y) { return std::abs(x - y) < samePlace; });
}

std::string NameOf(Chord chord) {
  return chord == Chord::Upper ? "верхнего пояса" : "нижнего пояса";
}

double SumOf(const BoundedArray<double>& loads, const ChordPlaces& places) {
  double sum = 0;
  for (std::size_t panel = 0; panel + 1 < places.Joints.size(); ++panel) {
    sum += loads[static_cast<Long>(panel)] * (places.Joints[panel + 1] - places.Joints[panel]);
  }
  return sum;
}

BoundedArray<double> DistributedElsewhere(const BoundedArray<double>& before,
                                          const ChordPlaces& from, const ChordPlaces& to,
                                          Chord chord) {
  const auto panels = static_cast<Long>(to.Joints.size()) - 1;
  BoundedArray<double> after(0, panels - 1);
  for (Long panel = 0; panel < panels; ++panel) {
    const double left = to.Joints[static_cast<std::size_t>(panel)];
    const double right = to.Joints[static_cast<std::size_t>(panel) + 1];
    double sum = 0;
    for (std::size_t old = 0; old + 1 < from.Joints.size(); ++old) {
      const double shared =
          std::min(right, from.Joints[old + 1]) - std::max(left, from.Joints[old]);
      sum += std::max(shared, 0.0) * before[static_cast<Long>(old)];
    }
    after[panel] = sum / (right - left);
  }
  const double total = SumOf(before, from);
  if (std::abs(SumOf(after, to) - total) > samePlace * std::max(1.0, std::abs(total))) {
    Refuse("распределенная нагрузка " + NameOf(chord) + " выходит за его новые концы");
  }
  return after;
}

BoundedArray<double> PointElsewhere(const BoundedArray<double>& before, const ChordPlaces& from,
                                    const ChordPlaces& to, double wider, Chord chord) {
  const auto last = static_cast<Long>(to.Joints.size()) - 1;
  BoundedArray<double> after(0, last);
  if (std::all_of(before.begin(), before.end(), [](double load) { return load == 0; })) {
    return after;
  }
  const Long lastBefore = before.UpperBound();
  if (lastBefore < 2) {
    Refuse("сосредоточенные нагрузки " + NameOf(chord) + " стоят только в его концах");
  }
  const double load = before[1];
  for (Long joint = 2; joint < lastBefore; ++joint) {
    if (before[joint] != load) {
      Refuse("сосредоточенные нагрузки внутренних узлов " + NameOf(chord) +
             " различны: узлы нельзя сдвинуть");
    }
  }
  const double carried = load * wider * to.RegularPanel / from.RegularPanel;
  for (Long joint = 1; joint < last; ++joint) {
    after[joint] = carried;
  }
  const double rest =
      static_cast<double>(lastBefore - 1) * load * wider - static_cast<double>(last - 1) * carried;
  after[0] = before[0] * wider + rest / 2;
  after[last] = before[lastBefore] * wider + rest / 2;
  return after;
}

}  // namespace

LoadArrays LoadsElsewhere(const TreloData& from, const TreloData& to) {
  const Truss before = TrussOf(from);
  const Truss after = TrussOf(to);
  LoadArrays loads = from;
  const double wider = to.LengthF / from.LengthF;
  const auto bring = [&](Chord chord, BoundedArray<double> LoadArrays::*points,
                         BoundedArray<double> LoadArrays::*distributed) {
    const ChordPlaces old = PlacesOf(before, chord, from.LengthF);
    const ChordPlaces now = PlacesOf(after, chord, to.LengthF);
    if (wider != 1 || !StandAlike(old, now)) {
      loads.*points = PointElsewhere(from.*points, old, now, wider, chord);
      loads.*distributed = DistributedElsewhere(from.*distributed, old, now, chord);
    }
  };
  bring(Chord::Upper, &LoadArrays::UpPForce, &LoadArrays::UpDistForce);
  bring(Chord::Lower, &LoadArrays::DwnPForce, &LoadArrays::DwnDistForce);
  return loads;
}

}  // namespace trelonit

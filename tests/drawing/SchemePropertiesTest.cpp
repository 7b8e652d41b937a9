#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/analysis/RandomDesigns.h"
#include "tests/drawing/DrawnScheme.h"

namespace trelonit::test {

namespace {

/// A loaded design of any scheme with more panels than the program offers, too.
TreloData PickTruss() {
  // A range would begin with its first numbers and hardly come to the last one.
  const Long scheme = *rc::gen::element<Long>(1, 2, 3, 4);
  const Long n = scheme == 3 ? *rc::gen::inRange<Long>(2, 61) : 2 * *rc::gen::inRange<Long>(2, 31);
  const double L = PickBetween(6, 60);
  TreloData data = Design(scheme, n, L, PickBetween(0.5, 6), L * PickBetween(0.02, 0.4));
  // No two neighbours alike, from four random beginnings.
  for (auto* loads : {&data.UpPForce, &data.UpDistForce, &data.DwnPForce, &data.DwnDistForce}) {
    FillIrregular(*loads, PickBetween(-5, 5));
  }
  return data;
}

constexpr double micrometre = 1e-6;

bool Near(const Place& a, const Place& b) {
  return std::abs(a.first - b.first) < micrometre && std::abs(a.second - b.second) < micrometre;
}

/// Place of a node among the upper ones, then the lower ones; the count of all for none.
std::size_t NodeAt(const TrussNodes& nodes, const Place& place) {
  std::size_t number = 0;
  for (const auto* row : {&nodes.Upper, &nodes.Lower}) {
    for (const Place& node : *row) {
      if (Near(node, place)) {
        return number;
      }
      ++number;
    }
  }
  return number;
}

double UpperLevelOfGeometry(const TreloData& data) {
  return 4800 * data.Hight;
}

double Length(const DrawnBar& bar) {
  return std::hypot(bar.To.first - bar.From.first, bar.To.second - bar.From.second);
}

RC_GTEST_PROP(SchemeProperties, ATrussIsDrawnWithAllItsBarsTextsAndDimensions, ()) {
  const DrawnTruss truss(PickTruss());
  const auto n = static_cast<std::size_t>(truss.Data.PanelNum);
  // A statically determinate truss on two supports.
  const auto bars = static_cast<std::size_t>(2 * truss.Result.KnotNum - 3);
  const std::size_t dimensions = truss.Data.TreloType == 3 ? 2 * n + 3 : n + 2;
  RC_ASSERT(truss.Force.Bars.size() == bars);
  RC_ASSERT(truss.Force.Lines == bars + 6);
  RC_ASSERT(truss.Force.Texts == bars + 3);
  RC_ASSERT(truss.Force.Dimensions.size() == dimensions);
  RC_ASSERT(truss.Geometry.Bars.size() == bars);
  RC_ASSERT(truss.Geometry.Lines == bars);
  RC_ASSERT(truss.Geometry.Texts == 2 * bars + 1);
  RC_ASSERT(truss.Geometry.Dimensions.size() == dimensions);
}

RC_GTEST_PROP(SchemeProperties, EveryBarJoinsTwoNodesAndEveryNodeHasTwoBars, ()) {
  const DrawnTruss truss(PickTruss());
  const TrussNodes nodes(truss.Data);
  std::vector<int> bars(nodes.Upper.size() + nodes.Lower.size() + 1);
  RC_ASSERT(bars.size() == static_cast<std::size_t>(truss.Result.KnotNum) + 1);
  for (const DrawnBar& bar : truss.Force.Bars) {
    ++bars.at(NodeAt(nodes, bar.From));
    ++bars.at(NodeAt(nodes, bar.To));
  }
  RC_ASSERT(bars.back() == 0);
  RC_ASSERT(std::all_of(bars.begin(), bars.end() - 1, [](int count) { return count >= 2; }));
}

RC_GTEST_PROP(SchemeProperties, BothDrawingsShowTheSameTrussOneAboveTheOther, ()) {
  const DrawnTruss truss(PickTruss());
  const double rise = 3800 * truss.Data.Hight;
  RC_ASSERT(truss.Force.Bars.size() == truss.Geometry.Bars.size());
  for (std::size_t place = 0; place < truss.Force.Bars.size(); ++place) {
    const DrawnBar& low = truss.Force.Bars[place];
    const DrawnBar& high = truss.Geometry.Bars[place];
    RC_ASSERT(Near({low.From.first, low.From.second + rise}, high.From));
    RC_ASSERT(Near({low.To.first, low.To.second + rise}, high.To));
  }
}

RC_GTEST_PROP(SchemeProperties, LabelsLieAlongTheirBarAtItsMiddle, ()) {
  const DrawnTruss truss(PickTruss());
  for (const DrawnScheme* scheme : {&truss.Force, &truss.Geometry}) {
    for (const DrawnBar& bar : scheme->Bars) {
      const Place middle{(bar.From.first + bar.To.first) / 2,
                         (bar.From.second + bar.To.second) / 2};
      for (const DrawnLabel& label : bar.Labels) {
        RC_ASSERT(Near(label.At, middle));
        const double across = std::sin(label.Rotation) * (bar.To.first - bar.From.first) -
                              std::cos(label.Rotation) * (bar.To.second - bar.From.second);
        RC_ASSERT(std::abs(across) < 1e-6 * Length(bar));
      }
    }
  }
}

RC_GTEST_PROP(SchemeProperties, ForcesStandOnTheBarsFromLeftToRight, ()) {
  const DrawnTruss truss(PickTruss());
  const auto check = [&](BarKind kind, const BoundedArray<double>& forces) {
    const auto bars = BarsOf(truss.Force, kind, 1000 * truss.Data.Hight);
    RC_ASSERT(bars.size() == Values(forces).size());
    auto bar = bars.begin();
    for (const double force : forces) {
      RC_ASSERT(bar->Labels.at(0).Text == FormatShown(force, 2, {}));
      ++bar;
    }
  };
  check(BarKind::UpperChord, truss.Result.UpPoyasForce);
  check(BarKind::LowerChord, truss.Result.DwnPoyasForce);
  check(BarKind::Diagonal, truss.Result.RaskosForce);
  // Scheme 3 keeps zeros for verticals that it has not got.
  check(BarKind::Vertical,
        truss.Data.TreloType == 3 ? BoundedArray<double>(1, 0) : truss.Result.StoykaForce);
}

RC_GTEST_PROP(SchemeProperties, TheDrawnForcesHoldEveryNodeInBalance, ()) {
  TreloData data = PickTruss();
  if (data.TreloType == 2) {
    // This scheme's forces leave loads on the lower chord unbalanced.
    Clear(data.DwnPForce);
    Clear(data.DwnDistForce);
  }
  const DrawnTruss truss(data);
  const TrussNodes nodes(truss.Data);
  std::vector<Place> sums(nodes.Upper.size() + nodes.Lower.size());
  for (const DrawnBar& bar : truss.Force.Bars) {
    const double force = ParseNumber(bar.Labels.at(0).Text, {});
    const double x = force * (bar.To.first - bar.From.first) / Length(bar);
    const double y = force * (bar.To.second - bar.From.second) / Length(bar);
    Place& from = sums.at(NodeAt(nodes, bar.From));
    Place& to = sums.at(NodeAt(nodes, bar.To));
    from = {from.first + x, from.second + y};
    to = {to.first - x, to.second - y};
  }
  std::size_t node = 0;
  for (const auto* loads : {&truss.Result.UpKnotLoad, &truss.Result.DwnKnotLoad}) {
    for (const double load : *loads) {
      sums.at(node++).second -= load;
    }
  }
  // Scheme 1 stands on the ends of its lower chord.
  const std::size_t support = truss.Data.TreloType == 1 ? nodes.Upper.size() : 0;
  sums.at(support).second += truss.Result.ReactLeft;
  sums.at(support + nodes.Upper.size() - 1).second += truss.Result.ReactRight;
  for (const Place& sum : sums) {
    // Every label is rounded by up to 0.005 and at most six bars meet.
    RC_ASSERT(std::abs(sum.first) < 0.031);
    RC_ASSERT(std::abs(sum.second) < 0.031);
  }
}

RC_GTEST_PROP(SchemeProperties, EveryBarTellsItsLengthAndTheSectionOfItsGroup, ()) {
  const DrawnTruss truss(PickTruss());
  const double level = UpperLevelOfGeometry(truss.Data);
  for (const DrawnBar& bar : truss.Geometry.Bars) {
    RC_ASSERT(bar.Labels.size() == 2);
    const std::string& text = bar.Labels[0].Text;
    RC_ASSERT(text.starts_with("L = ") && text.ends_with(" м "));
    const double told =
        ParseNumber(text.substr(4, text.size() - 4 - std::string(" м ").size()), {});
    const BarKind kind = KindOf(bar, level);
    const double real = truss.Data.TreloType == 1 && kind == BarKind::LowerChord
                            ? truss.Result.LenPanel
                            : Length(bar) / 1000;
    RC_ASSERT(std::abs(told - real) < 0.00501);
  }
  const auto names = [&](BarKind kind) {
    std::vector<std::string> found;
    for (const DrawnBar& bar : BarsOf(truss.Geometry, kind, level)) {
      found.push_back(bar.Labels.at(1).Text);
    }
    return found;
  };
  const auto all = [](const std::vector<std::string>& found, const std::string& name) {
    return std::count(found.begin(), found.end(), name) ==
           static_cast<std::ptrdiff_t>(found.size());
  };
  RC_ASSERT(all(names(BarKind::UpperChord), "2 * upper_chord_L63"));
  RC_ASSERT(all(names(BarKind::LowerChord), "2 * lower_chord_L50"));
  RC_ASSERT(all(names(BarKind::Vertical), "vertical____L45"));
  auto diagonals = names(BarKind::Diagonal);
  RC_ASSERT(diagonals.front() == "2 * support_dia_L75");
  RC_ASSERT(diagonals.back() == "2 * support_dia_L75");
  diagonals.erase(diagonals.begin());
  diagonals.pop_back();
  RC_ASSERT(all(diagonals, "diagonal___Tr40"));
}

RC_GTEST_PROP(SchemeProperties, AChainRunsOverTheWholeSpanAndTheOverallDimensionSpansIt, ()) {
  const DrawnTruss truss(PickTruss());
  const double L = 1000 * truss.Data.LengthF;
  for (const DrawnScheme* scheme : {&truss.Force, &truss.Geometry}) {
    const auto& dimensions = scheme->Dimensions;
    double reached = 0;
    // All but the overall dimension and the height; scheme 3 has two chains.
    for (auto link = dimensions.begin(); link != dimensions.end() - 2; ++link) {
      if (std::abs(reached - L) < micrometre) {
        reached = 0;
      }
      RC_ASSERT(std::abs(link->first.first - reached) < micrometre);
      reached = link->second.first;
    }
    RC_ASSERT(std::abs(reached - L) < micrometre);
    const auto& overall = *(dimensions.end() - 2);
    RC_ASSERT(std::abs(overall.second.first - overall.first.first - L) < micrometre);
    const auto& height = dimensions.back();
    RC_ASSERT(std::abs(height.first.second - height.second.second - 1000 * truss.Data.Hight) <
              micrometre);
  }
}

}  // namespace

}  // namespace trelonit::test

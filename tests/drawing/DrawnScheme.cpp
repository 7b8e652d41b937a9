#include "tests/drawing/DrawnScheme.h"

#include <algorithm>
#include <cmath>

namespace trelonit::test {

namespace {

Place PlaceOf(const AutomationValue& point) {
  const auto& coordinates = std::get<std::vector<double>>(point);
  return {coordinates.at(0), coordinates.at(1)};
}

DrawnScheme Drawn(const TreloData& data, const TreloResult& result, bool geometry) {
  SchemeDesk desk(data.TreloType, 4);
  desk.Design.Data = data;
  desk.Design.Result = result;
  desk.Host.KeepsCalls = false;
  if (geometry) {
    desk.Geometry();
  } else {
    desk.Force();
  }
  if (!desk.Messages.Shown.empty()) {
    throw std::logic_error(desk.Messages.Shown.front().Text);
  }
  return ReadScheme(desk.Host);
}

}  // namespace

DrawnScheme ReadScheme(RecordingHost& host) {
  DrawnScheme scheme;
  for (const AutomationHandle& item : host.Objects("ModelSpace").at(0)->Items) {
    const auto& object = static_cast<const RecordingHost::Object&>(*item);
    const bool isBar = scheme.Dimensions.empty();
    if (object.Kind == "Line") {
      ++scheme.Lines;
      if (isBar) {
        scheme.Bars.push_back({PlaceOf(object.Arguments.at(0)), PlaceOf(object.Arguments.at(1))});
      }
    } else if (object.Kind == "Text") {
      ++scheme.Texts;
      if (isBar) {
        scheme.Bars.back().Labels.push_back({std::get<std::string>(object.Arguments.at(0)),
                                             PlaceOf(object.Properties.at("TextAlignmentPoint")),
                                             std::get<double>(object.Properties.at("Rotation"))});
      }
    } else {
      scheme.Dimensions.emplace_back(PlaceOf(object.Arguments.at(0)),
                                     PlaceOf(object.Arguments.at(1)));
    }
  }
  return scheme;
}

DrawnTruss::DrawnTruss(const TreloData& data)
    : Data(data),
      Result(Solved(data)),
      Force(Drawn(Data, Result, false)),
      Geometry(Drawn(Data, Result, true)) {}

TrussNodes::TrussNodes(const TreloData& data) {
  const Long n = data.PanelNum;
  const double L = data.LengthF * 1000;
  const double H = data.Hight * 1000;
  const double end = data.LenOporn * 1000;
  const auto x = [&](double k) {
    if (data.TreloType == 3) {
      return L * k / n;
    }
    return k == 0 ? 0 : k == n ? L : end + (L - 2 * end) * (k - 1) / (n - 2);
  };
  for (Long k = 0; k <= n; ++k) {
    Upper.emplace_back(x(k), H);
    const bool stands = data.TreloType == 1   ? true
                        : data.TreloType == 2 ? k > 0 && k < n
                        : data.TreloType == 3 ? k < n
                                              : k % 2 == 1;
    if (stands) {
      Lower.emplace_back(x(data.TreloType == 3 ? k + 0.5 : k), 0);
    }
  }
}

BarKind KindOf(const DrawnBar& bar, double upperLevel) {
  const auto isUpper = [&](const Place& place) {
    return std::abs(place.second - upperLevel) < 1e-6;
  };
  if (isUpper(bar.From) == isUpper(bar.To)) {
    return isUpper(bar.From) ? BarKind::UpperChord : BarKind::LowerChord;
  }
  return std::abs(bar.From.first - bar.To.first) < 1e-6 ? BarKind::Vertical : BarKind::Diagonal;
}

std::vector<DrawnBar> BarsOf(const DrawnScheme& scheme, BarKind kind, double upperLevel) {
  std::vector<DrawnBar> bars;
  std::copy_if(scheme.Bars.begin(), scheme.Bars.end(), std::back_inserter(bars),
               [&](const DrawnBar& bar) { return KindOf(bar, upperLevel) == kind; });
  std::sort(bars.begin(), bars.end(), [](const DrawnBar& a, const DrawnBar& b) {
    return a.From.first + a.To.first < b.From.first + b.To.first;
  });
  return bars;
}

}  // namespace trelonit::test

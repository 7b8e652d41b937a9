#include "variants/VariantPlot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <set>

namespace trelonit {

namespace {

constexpr double plotWidth = 900;
constexpr double plotHeight = 560;
constexpr double left = 80;
constexpr double right = 150;
constexpr double top = 40;
constexpr double bottom = 60;

/// Colours that people with any sight tell apart (after Okabe and Ito), and none of the page's own.
constexpr std::array colours{"#0072b2", "#d55e00", "#009e73", "#cc79a7",
                             "#e69f00", "#56b4e9", "#7f7f7f"};

std::string Format(const char* format, double value) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), format, value);
  return text.data();
}

std::string Place(double value) {
  return Format("%.2f", value);
}

/// An axis from a round number to a round one, with a mark at each step.
struct PlotAxis {
  double From = 0;
  double Step = 1;
  int Steps = 1;

  PlotAxis(double least, double greatest) {
    constexpr double wished = 6;
    const double range = std::max(greatest - least, std::max(std::abs(greatest), 1.0) * 1e-6);
    const double power = std::pow(10, std::floor(std::log10(range / wished)));
    Step = power;
    for (const double times : {2.0, 5.0, 10.0}) {
      if (range / Step > wished) {
        Step = power * times;
      }
    }
    From = std::floor(least / Step) * Step;
    Steps = std::max(1, static_cast<int>(std::ceil((greatest - From) / Step - 1e-9)));
  }
  double At(int step) const { return From + Step * step; }
  double Share(double value) const { return (value - From) / (Step * Steps); }
  int Decimals() const {
    return std::clamp(static_cast<int>(-std::floor(std::log10(Step) + 1e-9)), 0, 9);
  }
};

std::string Text(double x, double y, const char* anchor, const std::string& text) {
  return "<text x=\"" + Place(x) + "\" y=\"" + Place(y) + "\" text-anchor=\"" + anchor + "\">" +
         text + "</text>\n";
}

std::string Line(double x1, double y1, double x2, double y2, const char* colour) {
  return "<line x1=\"" + Place(x1) + "\" y1=\"" + Place(y1) + "\" x2=\"" + Place(x2) + "\" y2=\"" +
         Place(y2) + "\" stroke=\"" + colour + "\"/>\n";
}

class Plot {
 public:
  Plot(const std::vector<PlotPoint>& points, const std::vector<PlotPoint>& front)
      : points_(points),
        front_(front),
        across_(Least(&PlotPoint::Height), Greatest(&PlotPoint::Height)),
        up_(Least(&PlotPoint::Mass), Greatest(&PlotPoint::Mass)) {
    for (const PlotPoint& point : points) {
      panels_.insert(point.Panels);
    }
  }

  std::string Svg() const {
    std::string svg = Grid();
    for (const PlotPoint& point : points_) {
      svg += "<circle cx=\"" + Place(X(point)) + "\" cy=\"" + Place(Y(point)) +
             "\" r=\"3\" fill=\"" + Colour(point.Panels) + "\"/>\n";
    }
    return svg + Front() + Legend();
  }

 private:
  double Least(double PlotPoint::*value) const {
    double least = points_.front().*value;
    for (const PlotPoint& point : points_) {
      least = std::min(least, point.*value);
    }
    return least;
  }
  double Greatest(double PlotPoint::*value) const {
    double greatest = points_.front().*value;
    for (const PlotPoint& point : points_) {
      greatest = std::max(greatest, point.*value);
    }
    return greatest;
  }
  static double XOf(double share) { return left + share * (plotWidth - left - right); }
  static double YOf(double share) {
    return plotHeight - bottom - share * (plotHeight - top - bottom);
  }
  double X(const PlotPoint& point) const { return XOf(across_.Share(point.Height)); }
  double Y(const PlotPoint& point) const { return YOf(up_.Share(point.Mass)); }

  const char* Colour(Long panels) const {
    const auto place = std::distance(panels_.begin(), panels_.find(panels));
    return colours[static_cast<std::size_t>(place) % colours.size()];
  }

  std::string Grid() const {
    constexpr const char* grey = "#d0d0d0";
    std::string svg;
    const auto number = [](const PlotAxis& axis, int step) {
      return Format(("%." + std::to_string(axis.Decimals()) + "f").c_str(), axis.At(step));
    };
    for (int step = 0; step <= across_.Steps; ++step) {
      const double x = XOf(static_cast<double>(step) / across_.Steps);
      svg += Line(x, YOf(0), x, YOf(1), grey);
      svg += Text(x, plotHeight - bottom + 18, "middle", number(across_, step));
    }
    for (int step = 0; step <= up_.Steps; ++step) {
      const double y = YOf(static_cast<double>(step) / up_.Steps);
      svg += Line(XOf(0), y, XOf(1), y, grey);
      svg += Text(left - 8, y + 4, "end", number(up_, step));
    }
    svg += Text((left + plotWidth - right) / 2, plotHeight - 16, "middle", "Высота, м");
    svg += Text(left - 8, top - 16, "end", "Масса, т");
    return svg;
  }

  std::string Front() const {
    std::string svg;
    for (const PlotPoint& point : front_) {
      svg += "<circle cx=\"" + Place(X(point)) + "\" cy=\"" + Place(Y(point)) +
             "\" r=\"6\" fill=\"none\" stroke=\"#202020\" stroke-width=\"1.5\"/>\n";
    }
    return svg;
  }

  std::string Legend() const {
    constexpr double spacing = 20;
    const double x = plotWidth - right + 20;
    double y = top + 10;
    std::string svg = Text(x - 6, y, "start", "Число панелей");
    for (const Long panels : panels_) {
      y += spacing;
      svg += "<circle cx=\"" + Place(x) + "\" cy=\"" + Place(y - 4) + "\" r=\"4\" fill=\"" +
             Colour(panels) + "\"/>\n" + Text(x + 12, y, "start", std::to_string(panels));
    }
    if (!front_.empty()) {
      y += spacing;
      svg += "<circle cx=\"" + Place(x) + "\" cy=\"" + Place(y - 4) +
             "\" r=\"6\" fill=\"none\" stroke=\"#202020\" stroke-width=\"1.5\"/>\n" +
             Text(x + 12, y, "start", "лучшие");
    }
    return svg;
  }

  const std::vector<PlotPoint>& points_;
  const std::vector<PlotPoint>& front_;
  PlotAxis across_;
  PlotAxis up_;
  std::set<Long> panels_;
};

}  // namespace

std::string PlotAsSvg(const std::vector<PlotPoint>& points, const std::vector<PlotPoint>& front) {
  const std::string size = Format("%.0f", plotWidth) + " " + Format("%.0f", plotHeight);
  std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + size +
                    "\" font-family=\"sans-serif\" font-size=\"13\">\n"
                    "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
  svg += points.empty()
             ? Text(plotWidth / 2, plotHeight / 2, "middle", "Ни один вариант не годится")
             : Plot(points, front).Svg();
  return svg + "</svg>\n";
}

}  // namespace trelonit

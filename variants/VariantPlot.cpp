#include "variants/VariantPlot.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>

#include "variants/PlotAxis.h"

namespace trelonit {

namespace {

constexpr double plotWidth = 900;
constexpr double plotHeight = 560;
constexpr double leftMargin = 80;
constexpr double rightMargin = 150;
constexpr double topMargin = 40;
constexpr double bottomMargin = 60;

std::string Format(const char* format, double value) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), format, value);
  return text.data();
}

std::string Place(double value) {
  return Format("%.2f", value);
}

std::string SvgText(double x, double y, const char* anchor, const std::string& text) {
  return "<text x=\"" + Place(x) + "\" y=\"" + Place(y) + "\" text-anchor=\"" + anchor + "\">" +
         text + "</text>\n";
}

std::string SvgLine(double x1, double y1, double x2, double y2, const char* colour) {
  return "<line x1=\"" + Place(x1) + "\" y1=\"" + Place(y1) + "\" x2=\"" + Place(x2) + "\" y2=\"" +
         Place(y2) + "\" stroke=\"" + colour + "\"/>\n";
}

class Plot {
 public:
  Plot(const std::vector<PlotPoint>& points, const std::vector<PlotPoint>& front,
       const PlotLabels& labels)
      : points_(points),
        front_(front),
        labels_(labels),
        across_(Least(&PlotPoint::Across), Greatest(&PlotPoint::Across)),
        up_(Least(&PlotPoint::Mass), Greatest(&PlotPoint::Mass)) {
    for (const PlotPoint& point : points) {
      kinds_.insert(point.Kind);
    }
  }

  std::string Svg() const {
    std::string svg = Grid();
    for (const PlotPoint& point : points_) {
      svg += "<circle cx=\"" + Place(X(point)) + "\" cy=\"" + Place(Y(point)) +
             "\" r=\"3\" fill=\"" + Colour(point.Kind) + "\"/>\n";
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
  static double XOf(double share) {
    return leftMargin + share * (plotWidth - leftMargin - rightMargin);
  }
  static double YOf(double share) {
    return plotHeight - bottomMargin - share * (plotHeight - topMargin - bottomMargin);
  }
  double X(const PlotPoint& point) const { return XOf(across_.Share(point.Across)); }
  double Y(const PlotPoint& point) const { return YOf(up_.Share(point.Mass)); }

  const char* Colour(Long kind) const {
    const auto place = std::distance(kinds_.begin(), kinds_.find(kind));
    return PlotColour(static_cast<std::size_t>(place));
  }

  std::string Grid() const {
    constexpr const char* grey = "#d0d0d0";
    std::string svg;
    const auto number = [](const PlotAxis& axis, int step) {
      return Format(("%." + std::to_string(axis.Decimals()) + "f").c_str(), axis.At(step));
    };
    for (int step = 0; step <= across_.Steps; ++step) {
      const double x = XOf(static_cast<double>(step) / across_.Steps);
      svg += SvgLine(x, YOf(0), x, YOf(1), grey);
      svg += SvgText(x, plotHeight - bottomMargin + 18, "middle", number(across_, step));
    }
    for (int step = 0; step <= up_.Steps; ++step) {
      const double y = YOf(static_cast<double>(step) / up_.Steps);
      svg += SvgLine(XOf(0), y, XOf(1), y, grey);
      svg += SvgText(leftMargin - 8, y + 4, "end", number(up_, step));
    }
    svg += SvgText((leftMargin + plotWidth - rightMargin) / 2, plotHeight - 16, "middle",
                   labels_.Across);
    svg += SvgText(leftMargin - 8, topMargin - 16, "end", "Масса, т");
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
    const double x = plotWidth - rightMargin + 20;
    double y = topMargin + 10;
    std::string svg = SvgText(x - 6, y, "start", labels_.Kind);
    for (const Long kind : kinds_) {
      y += spacing;
      svg += "<circle cx=\"" + Place(x) + "\" cy=\"" + Place(y - 4) + "\" r=\"4\" fill=\"" +
             Colour(kind) + "\"/>\n" + SvgText(x + 12, y, "start", std::to_string(kind));
    }
    if (!front_.empty()) {
      y += spacing;
      svg += "<circle cx=\"" + Place(x) + "\" cy=\"" + Place(y - 4) +
             "\" r=\"6\" fill=\"none\" stroke=\"#202020\" stroke-width=\"1.5\"/>\n" +
             SvgText(x + 12, y, "start", "лучшие");
    }
    return svg;
  }

  const std::vector<PlotPoint>& points_;
  const std::vector<PlotPoint>& front_;
  const PlotLabels& labels_;
  PlotAxis across_;
  PlotAxis up_;
  std::set<Long> kinds_;
};

}  // namespace

std::string PlotAsSvg(const std::vector<PlotPoint>& points, const std::vector<PlotPoint>& front,
                      const PlotLabels& labels) {
  const std::string size = Format("%.0f", plotWidth) + " " + Format("%.0f", plotHeight);
  std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + size +
                    "\" font-family=\"sans-serif\" font-size=\"13\">\n"
                    "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
  svg += points.empty()
             ? SvgText(plotWidth / 2, plotHeight / 2, "middle", "Ни один вариант не годится")
             : Plot(points, front, labels).Svg();
  return svg + "</svg>\n";
}

}  // namespace trelonit

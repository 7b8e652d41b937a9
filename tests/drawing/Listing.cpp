#include "tests/drawing/Listing.h"

#include <sstream>
#include <stdexcept>

namespace trelonit::test {

namespace {

const std::string space = "Document1.ModelSpace";

class Expansion {
 public:
  void Add(const std::string& line) {
    std::istringstream stream(line.substr(0, line.find('|')));
    std::string kind;
    stream >> kind;
    std::vector<std::string> sizes;
    for (std::string size; stream >> size;) {
      sizes.push_back(size);
    }
    Expand(kind, sizes, LabelsOf(line));
  }
  std::vector<std::string> Calls;

 private:
  using Texts = std::vector<std::string>;

  static Texts LabelsOf(const std::string& line) {
    Texts labels;
    std::size_t begin = line.find('|');
    while (begin != std::string::npos && begin + 1 < line.size()) {
      const std::size_t end = line.find('|', begin + 1);
      labels.push_back(line.substr(begin + 1, end - begin - 1));
      begin = end;
    }
    return labels;
  }
  static std::string Point(const Texts& sizes, std::size_t at) {
    return "(" + sizes.at(at) + ", " + sizes.at(at + 1) + ", 0)";
  }

  void Expand(const std::string& kind, const Texts& sizes, const Texts& labels) {
    if (kind == "scale") {
      Calls.push_back(space + ".Document");
      Calls.push_back("Document1.SetVariable(\"DIMSCALE\", " + sizes.at(0) + "#)");
    } else if (kind == "line") {
      Line(sizes);
    } else if (kind == "bar" && labels.size() == 1) {
      Line(sizes);
      Text(labels.at(0), Point(sizes, 4), "200", "13", sizes.at(6));
    } else if (kind == "bar" && labels.size() == 2) {
      Line(sizes);
      Text(labels.at(0), Point(sizes, 4), "200", "7", sizes.at(6));
      Text(labels.at(1), Point(sizes, 4), "200", "13", sizes.at(6));
    } else if (kind == "text") {
      Text(labels.at(0), Point(sizes, 0), sizes.at(2), "13", "0");
    } else if (kind == "dim") {
      Dimension(sizes);
    } else {
      throw std::logic_error("not understood: " + kind);
    }
  }
  void Line(const Texts& sizes) {
    Calls.push_back(space + ".AddLine(" + Point(sizes, 0) + ", " + Point(sizes, 2) + ")");
    Calls.push_back("Line" + std::to_string(++lines_) + ".Layer = \"Main\"");
  }
  void Text(const std::string& text, const std::string& point, const std::string& height,
            const std::string& alignment, const std::string& rotation) {
    const std::string name = "Text" + std::to_string(++texts_);
    Calls.push_back(space + ".AddText(\"" + text + "\", " + point + ", " + height + "#)");
    Calls.push_back(name + ".Alignment = " + alignment);
    Calls.push_back(name + ".Rotation = " + rotation + "#");
    Calls.push_back(name + ".TextAlignmentPoint = " + point);
    Calls.push_back(name + ".Layer = \"Dimension\"");
  }
  void Dimension(const Texts& sizes) {
    const std::string name = "Dimension" + std::to_string(++dimensions_);
    Calls.push_back(space + ".AddDimRotated(" + Point(sizes, 0) + ", " + Point(sizes, 2) + ", " +
                    Point(sizes, 4) + ", " + sizes.at(6) + "#)");
    Calls.push_back(name + ".Layer = \"Dimension\"");
    Calls.push_back(name + ".TextStyle = \"Dimensional\"");
    Calls.push_back(name + ".ArrowheadSize = 4");
    Calls.push_back(name + ".TextGap = 1");
    Calls.push_back(name + ".TextHeight = 5");
    Calls.push_back(name + ".ScaleFactor = 40#");
    Calls.push_back(name + ".TextInsideAlign = False");
    Calls.push_back(name + ".TextInside = True");
    Calls.push_back(name + ".PrimaryUnitsPrecision = 0");
  }

  int lines_ = 0;
  int texts_ = 0;
  int dimensions_ = 0;
};

}  // namespace

std::vector<std::string> CallsOf(const std::string& listing) {
  Expansion expansion;
  std::istringstream stream(listing);
  for (std::string line; std::getline(stream, line);) {
    if (line.find_first_not_of(' ') != std::string::npos) {
      expansion.Add(line);
    }
  }
  return expansion.Calls;
}

}  // namespace trelonit::test

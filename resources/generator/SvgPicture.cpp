#include "resources/generator/SvgPicture.h"

#include <charconv>
#include <map>
#include <stdexcept>

#include "resources/generator/SvgPath.h"

namespace trelonit::packer {

namespace {

using Attributes = std::map<std::string, std::string, std::less<>>;

/// A start or an end of an element, with the text that follows it.
struct Tag {
  std::string Name;
  bool Ends = false;
  bool Empty = false;
  Attributes Values;
  std::string Text;
};

class TagReader {
 public:
  explicit TagReader(std::string_view text) : rest_(text) {}

  bool Next(Tag& tag) {
    const std::size_t open = rest_.find('<');
    if (open == std::string_view::npos) {
      return false;
    }
    rest_.remove_prefix(open + 1);
    tag = {};
    tag.Ends = Take('/');
    tag.Name = Word("/> \n");
    while (!Take('>')) {
      if (Take('/')) {
        tag.Empty = true;
      } else {
        const std::string name = Word("=");
        Require('=');
        Require('"');
        tag.Values[name] = Word("\"");
        Require('"');
      }
    }
    tag.Text = rest_.substr(0, rest_.find('<'));
    return true;
  }

 private:
  bool Take(char expected) {
    while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\n')) {
      rest_.remove_prefix(1);
    }
    if (rest_.empty()) {
      throw std::runtime_error("an element without an end");
    }
    if (rest_.front() != expected) {
      return false;
    }
    rest_.remove_prefix(1);
    return true;
  }
  void Require(char expected) {
    if (!Take(expected)) {
      throw std::runtime_error(std::string("missing: ") + expected);
    }
  }
  std::string Word(std::string_view ends) {
    std::string word(rest_.substr(0, rest_.find_first_of(ends)));
    rest_.remove_prefix(word.size());
    return word;
  }

  std::string_view rest_;
};

/// The colours of the drawings that follow the theme.
PictureColor ReadColor(const std::string& text) {
  static const std::map<std::string, PictureRole> roles{
      {"#000000", PictureRole::Ink},     {"#c04000", PictureRole::Load},
      {"#9db4cc", PictureRole::Section}, {"#808080", PictureRole::Quiet},
      {"#d00000", PictureRole::Warning}, {"#a85a00", PictureRole::Caution}};
  if (text == "none") {
    return {};
  }
  std::uint32_t rgb = 0;
  constexpr std::size_t length = 7;
  if (text.size() != length || text.front() != '#' ||
      std::from_chars(text.data() + 1, text.data() + length, rgb, 16).ptr != text.data() + length) {
    throw std::runtime_error("no colour: " + text);
  }
  const auto role = roles.find(text);
  return {role == roles.end() ? PictureRole::Own : role->second, rgb};
}

class PictureReader {
 public:
  explicit PictureReader(std::string_view text) : tags_(text) {}

  SvgPicture Read() {
    for (Tag tag; tags_.Next(tag);) {
      if (tag.Ends) {
        if (tag.Name == "g") {
          if (groups_.empty()) {
            throw std::runtime_error("the end of no group");
          }
          groups_.pop_back();
        }
      } else if (tag.Name == "svg") {
        ReadViewBox(tag.Values);
      } else if (tag.Name == "g") {
        groups_.push_back(Inherited(tag.Values));
      } else if (tag.Name != "title") {
        ReadShape(tag);
      }
    }
    if (!(picture_.Width > 0) || !(picture_.Height > 0)) {
      throw std::runtime_error("no view box");
    }
    return std::move(picture_);
  }

 private:
  void ReadViewBox(const Attributes& values) {
    const std::vector<double> box = ReadNumbers(Value(values, "viewBox"));
    if (box.size() != 4) {
      throw std::runtime_error("no view box");
    }
    picture_.Left = box[0];
    picture_.Top = box[1];
    picture_.Width = box[2];
    picture_.Height = box[3];
  }

  Attributes Inherited(Attributes values) const {
    if (!groups_.empty()) {
      values.insert(groups_.back().begin(), groups_.back().end());
    }
    return values;
  }

  static std::string Value(const Attributes& values, std::string_view name,
                           const std::string& fallback = {}) {
    const auto found = values.find(name);
    return found == values.end() ? fallback : found->second;
  }
  static double Number(const Attributes& values, std::string_view name, double fallback) {
    const auto found = values.find(name);
    return found == values.end() ? fallback : ReadNumbers(found->second).at(0);
  }
  static void RequireValue(const Attributes& values, std::string_view name,
                           const std::string& expected) {
    if (Value(values, name) != expected) {
      throw std::runtime_error(std::string(name) + " other than " + expected);
    }
  }
  /// Whether caps or joins are round; sharp ones are the other choice.
  static bool IsRound(const Attributes& values, std::string_view name) {
    const std::string value = Value(values, name);
    if (!value.empty() && value != "round") {
      throw std::runtime_error(std::string(name) + "=" + value);
    }
    return !value.empty();
  }

  void ReadShape(const Tag& tag) {
    const Attributes values = Inherited(tag.Values);
    SvgShape shape;
    shape.Fill = ReadColor(Value(values, "fill", "#000000"));
    shape.Stroke = ReadColor(Value(values, "stroke", "none"));
    shape.StrokeWidth = Number(values, "stroke-width", 1);
    shape.EvenOdd = Value(values, "fill-rule") == "evenodd";
    shape.RoundCaps = IsRound(values, "stroke-linecap");
    shape.RoundJoins = IsRound(values, "stroke-linejoin");
    shape.Dashes = ReadNumbers(Value(values, "stroke-dasharray"));
    const auto numbers = [&](std::initializer_list<const char*> names) {
      for (const char* name : names) {
        shape.Numbers.push_back(Number(values, name, 0));
      }
    };
    if (tag.Name == "path") {
      SvgPath path = ReadPath(Value(values, "d"));
      shape.Verbs = std::move(path.Verbs);
      shape.Numbers = std::move(path.Numbers);
    } else if (tag.Name == "circle") {
      shape.Is = PictureShape::Kind::Circle;
      numbers({"cx", "cy", "r"});
    } else if (tag.Name == "rect") {
      shape.Is = PictureShape::Kind::Box;
      numbers({"x", "y", "width", "height", "rx"});
    } else if (tag.Name == "text") {
      RequireValue(values, "font-family", "sans-serif");
      RequireValue(values, "font-style", "italic");
      RequireValue(values, "text-anchor", "middle");
      shape.Is = PictureShape::Kind::Letters;
      shape.Letters = tag.Text;
      numbers({"x", "y", "font-size"});
    } else {
      throw std::runtime_error("an unknown element: " + tag.Name);
    }
    picture_.Shapes.push_back(std::move(shape));
  }

  TagReader tags_;
  std::vector<Attributes> groups_;
  SvgPicture picture_;
};

}  // namespace

SvgPicture ReadSvg(std::string_view text) {
  return PictureReader(text).Read();
}

}  // namespace trelonit::packer

#include "resources/generator/PicturesSource.h"

#include <charconv>

namespace trelonit::packer {

namespace {

/// The shortest text that reads back as this number.
std::string Literal(double number) {
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, number).ptr;
  return {text, end};
}

std::string Literal(bool value) {
  return value ? "true" : "false";
}

std::string Literal(const PictureColor& color) {
  return "{PictureRole{" + std::to_string(static_cast<int>(color.Role)) + "}, " +
         std::to_string(color.Rgb) + "u}";
}

/// Letters as their bytes, whatever the compiler takes the source for.
std::string Literal(const std::string& text) {
  std::string literal = "\"";
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    literal += {'\\', static_cast<char>('0' + byte / 64), static_cast<char>('0' + byte / 8 % 8),
                static_cast<char>('0' + byte % 8)};
  }
  return literal + "\"";
}

class SourceWriter {
 public:
  std::string Write(const std::map<std::string, SvgPicture>& pictures) {
    std::string table;
    for (const auto& [name, picture] : pictures) {
      table += "    {" + Literal(name) + ", " + Literal(picture.Left) + ", " +
               Literal(picture.Top) + ", " + Literal(picture.Width) + ", " +
               Literal(picture.Height) + ", " + Shapes(picture) + "},\n";
    }
    return "// Made from the drawings in resources/pictures when the program is built.\n"
           "#include \"resources/CompiledPictures.h\"\n\n"
           "namespace trelonit {\n\nnamespace {\n\n" +
           values_ + "constexpr CompiledPicture all[] = {\n" + table +
           "};\n\n}  // namespace\n\n"
           "Carried<CompiledPicture> CompiledPictures() {\n"
           "  return Carried<CompiledPicture>(all);\n}\n\n}  // namespace trelonit\n";
  }

 private:
  /// Notes values as an array of their own and gives what refers to it.
  std::string Values(const std::string& type, const std::string& values) {
    if (values.empty()) {
      return "{}";
    }
    const std::string name = "v" + std::to_string(++count_);
    values_ += "constexpr " + type + " " + name + "[] = {" + values + "};\n";
    return "Carried<" + type + ">(" + name + ")";
  }

  std::string Numbers(const std::vector<double>& numbers) {
    std::string list;
    for (const double number : numbers) {
      list += Literal(number) + ",";
    }
    return Values("double", list);
  }

  std::string Shapes(const SvgPicture& picture) {
    std::string list;
    for (const SvgShape& shape : picture.Shapes) {
      list += "\n  {PictureShape::Kind{" + std::to_string(static_cast<int>(shape.Is)) + "}, " +
              Literal(shape.Fill) + ", " + Literal(shape.Stroke) + ", " +
              Literal(shape.StrokeWidth) + ", " + Literal(shape.EvenOdd) + ", " +
              Literal(shape.RoundCaps) + ", " + Literal(shape.RoundJoins) + ", " +
              Numbers(shape.Dashes) + ", " + Literal(shape.Verbs) + ", " + Numbers(shape.Numbers) +
              ", " + Literal(shape.Letters) + "},";
    }
    return Values("PictureShape", list);
  }

  std::string values_;
  int count_ = 0;
};

}  // namespace

std::string PicturesSource(const std::map<std::string, SvgPicture>& pictures) {
  return SourceWriter().Write(pictures);
}

}  // namespace trelonit::packer

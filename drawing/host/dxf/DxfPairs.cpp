#include "drawing/host/dxf/DxfPairs.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "platform/text/Text.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

constexpr std::size_t longestText = 255;

bool BeginsAt(std::u32string_view text, std::size_t place, std::u32string_view part) {
  return text.substr(place, part.size()) == part;
}

/// One character as it stands in a string of the format.
std::string Escaped(std::u32string_view text, std::size_t place) {
  const char32_t character = text[place];
  std::string escaped;
  if (character < U' ') {
    // Control characters are a caret with the letter 64 places on.
    constexpr char32_t letters = 64;
    escaped += '^';
    AppendUtf8(escaped, character + letters);
  } else if (character == U'^') {
    escaped = "^ ";
  } else if (BeginsAt(text, place, U"\\U+") || BeginsAt(text, place, U"\\M+")) {
    // A reader would take what follows for the number of a character.
    escaped = "\\U+005C";
  } else {
    AppendUtf8(escaped, character);
  }
  return escaped;
}

/// Most texts are Latin letters and digits, which stand for themselves.
bool IsPlain(std::string_view text) {
  return text.size() <= longestText && std::all_of(text.begin(), text.end(), [](char letter) {
           return letter >= ' ' && letter <= '~' && letter != '^' && letter != '%' &&
                  letter != '\\';
         });
}

template <class Escape>
std::string EscapedWhole(std::string_view text, Escape&& escape) {
  if (IsPlain(text)) {
    return std::string(text);
  }
  const std::u32string characters = Characters(text);
  std::string written;
  for (std::size_t place = 0; place < characters.size(); ++place) {
    const std::string piece = escape(characters, place);
    if (written.size() + piece.size() > longestText) {
      break;
    }
    written += piece;
  }
  return written;
}

using NumberBuffer = std::array<char, 32>;

/// The number as it is written, in the buffer.
std::string_view FormatNumber(double value, NumberBuffer& buffer) {
  // Zero has no sign.
  const double number = Finite(value) == 0 ? 0 : value;
  constexpr int digits = 16;
  char* end =
      std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::general, digits).ptr;
  // A reader shall see at once that it is no whole number.
  if (std::none_of(buffer.begin(), end, [](char sign) { return sign == '.' || sign == 'e'; })) {
    *end++ = '.';
    *end++ = '0';
  }
  return {buffer.begin(), end};
}

}  // namespace

std::string HandleText(DxfHandle handle) {
  std::array<char, 16> digits{};
  constexpr int base = 16;
  const auto result = std::to_chars(digits.begin(), digits.end(), handle, base);
  std::string text(digits.begin(), result.ptr);
  std::transform(text.begin(), text.end(), text.begin(), UpperLatin);
  return text;
}

std::string DxfName(std::string_view name) {
  return EscapedWhole(name, Escaped);
}

std::string DxfContent(std::string_view text) {
  return EscapedWhole(text, [](std::u32string_view characters, std::size_t place) {
    const bool begins = BeginsAt(characters, place, U"%%");
    const bool ends = place > 0 && BeginsAt(characters, place - 1, U"%%");
    // Two of them begin a special sign; three stand for one.
    return begins || ends ? std::string("%%%") : Escaped(characters, place);
  });
}

std::string DxfNumber(double value) {
  NumberBuffer buffer;
  return std::string(FormatNumber(value, buffer));
}

void DxfPairs::Text(int code, std::string_view value) {
  // Codes are right-aligned in three places, as the format's own program writes them. A drawing has
  // tens of thousands of pairs, so that no text is made of each code.
  constexpr std::ptrdiff_t width = 3;
  std::array<char, 16> line{' ', ' ', ' '};
  char* const digits = line.begin() + width;
  char* const end = std::to_chars(digits, line.end() - 1, code).ptr;
  *end = '\n';
  text_.append(std::min(digits, end - width), end + 1);
  text_ += value;
  text_ += '\n';
}

void DxfPairs::Whole(int code, std::int64_t value) {
  Text(code, std::to_string(value));
}

void DxfPairs::Number(int code, double value) {
  NumberBuffer buffer;
  Text(code, FormatNumber(value, buffer));
}

void DxfPairs::Handle(int code, DxfHandle handle) {
  Text(code, HandleText(handle));
}

void DxfPairs::PlanePoint(int code, const PlacePoint& point) {
  constexpr int toY = 10;
  Number(code, point.X);
  Number(code + toY, point.Y);
}

void DxfPairs::Point(int code, const PlacePoint& point) {
  constexpr int toZ = 20;
  PlanePoint(code, point);
  Number(code + toZ, point.Z);
}

void DxfPairs::Angle(int code, double radians) {
  constexpr double circle = 360;
  const double degrees = std::fmod(Finite(radians) / std::numbers::pi * (circle / 2), circle);
  // Just below zero rounds up to the whole circle.
  const double turned = degrees < 0 ? degrees + circle : degrees;
  Number(code, turned < circle ? turned : 0);
}

}  // namespace trelonit

#include "variants/Axis.h"

#include <charconv>
#include <cmath>
#include <cstddef>

#include "platform/text/NumberText.h"
#include "platform/text/Text.h"
#include "variants/Refusal.h"

namespace trelonit {

namespace {

double Number(std::string_view text) {
  const std::string_view digits = Trim(text);
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size() || !std::isfinite(value)) {
    Refuse("«" + std::string(text) + "» не число");
  }
  return value;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) {
      return parts;
    }
    text.remove_prefix(end + 1);
  }
}

std::string Grouped(double whole) {
  return FormatShown(whole, 0, {.GroupSeparator = " "});
}

void AddRange(std::vector<double>& values, const std::string& text,
              const std::vector<std::string_view>& parts, double most) {
  const double from = Number(parts[0]);
  const double to = Number(parts[1]);
  const double step = Number(parts[2]);
  if (!(step > 0)) {
    Refuse("в диапазоне «" + text + "» шаг не больше нуля");
  }
  if (from > to) {
    Refuse("диапазон «" + text + "» идет назад");
  }
  // A step of a tenth is none in binary, and the end of a range belongs to it.
  constexpr double rounding = 1e-9;
  const double steps = std::floor((to - from) / step + rounding);
  if (steps >= most) {
    Refuse("в диапазоне «" + text + "» больше " + Grouped(most) + " значений");
  }
  for (double place = 0; place <= steps; ++place) {
    // The nearest number to the one that stands on paper.
    constexpr double digits = 1e9;
    values.push_back(std::round((from + place * step) * digits) / digits);
  }
}

}  // namespace

std::vector<std::string> ParseList(std::string_view text) {
  std::vector<std::string> list;
  for (const std::string_view part : Split(text, ',')) {
    list.emplace_back(Trim(part));
    if (list.back().empty()) {
      Refuse("в списке «" + std::string(text) + "» пропущено значение");
    }
  }
  return list;
}

std::vector<double> ParseNumbers(std::string_view text, double most) {
  std::vector<double> values;
  for (const std::string& part : ParseList(text)) {
    const std::vector<std::string_view> range = Split(part, ':');
    if (range.size() == 1) {
      values.push_back(Number(part));
    } else if (range.size() == 3) {
      AddRange(values, part, range, most);
    } else {
      Refuse("диапазон «" + part + "» записывается как от:до:шаг");
    }
  }
  return values;
}

std::vector<Long> ParseWholeNumbers(std::string_view text, double most) {
  std::vector<Long> whole;
  for (const double value : ParseNumbers(text, most)) {
    constexpr double greatest = 1e9;
    if (value != std::floor(value) || std::abs(value) > greatest) {
      Refuse("в «" + std::string(text) + "» не все числа целые");
    }
    whole.push_back(static_cast<Long>(value));
  }
  return whole;
}

std::pair<std::string, std::string> Halves(const std::string& text, char sign,
                                           const std::string& form) {
  const std::size_t place = text.find(sign);
  if (place == std::string::npos) {
    Refuse("«" + text + "» записывается как " + form);
  }
  return {text.substr(0, place), text.substr(place + 1)};
}

Long ParseOneWhole(const std::string& text) {
  const std::vector<Long> numbers = ParseWholeNumbers(text);
  if (numbers.size() != 1) {
    Refuse("«" + text + "» не одно число");
  }
  return numbers.front();
}

std::vector<SectionKind> ParseKinds(std::string_view text) {
  std::vector<SectionKind> kinds;
  for (const std::string& part : ParseList(text)) {
    const auto [layout, standard] = Halves(part, '/', "расположение/сортамент");
    kinds.push_back({.Layout = ParseOneWhole(layout), .Standard = ParseOneWhole(standard)});
  }
  return kinds;
}

std::vector<SteelKind> ParseSteels(std::string_view text) {
  std::vector<SteelKind> steels;
  for (const std::string& part : ParseList(text)) {
    const auto [name, strength] = Halves(part, ':', "марка:Ry");
    const std::vector<double> numbers = ParseNumbers(strength);
    if (numbers.size() != 1 || !(numbers.front() > 0)) {
      Refuse("расчетное сопротивление стали «" + part + "» не больше нуля");
    }
    steels.push_back({.Name = name, .Ry = numbers.front()});
  }
  return steels;
}

}  // namespace trelonit

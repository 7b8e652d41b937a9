#include "fuzz/numbers/NumbersInvariants.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

#include "fuzz/support/ByteSource.h"
#include "platform/errors/RuntimeError.h"
#include "platform/text/NumberText.h"

namespace trelonit::fuzz {

namespace {

bool IsRefusal(const RuntimeError& error) {
  return error.Number() == static_cast<int>(ErrorNumber::TypeMismatch) ||
         error.Number() == static_cast<int>(ErrorNumber::Overflow);
}

/// What the conversion gives; nothing where it refuses the text as it may.
template <class Conversion>
auto Converted(Conversion&& conversion) -> std::optional<decltype(conversion())> {
  try {
    return conversion();
  } catch (const RuntimeError& error) {
    if (!IsRefusal(error)) {
      throw;
    }
    return std::nullopt;
  }
}

bool IsNumeral(std::string_view text, std::string_view allowed) {
  return !text.empty() && text.find_first_not_of(allowed) == std::string_view::npos;
}

/// Fifteen digits are kept, so that all but the last bits come back.
std::string ComplaintAboutWriting(double value, const NumberLocale& locale) {
  const std::string text = NumberToText(value, locale);
  if (!IsNumeral(text, "0123456789+-.,E")) {
    return "no number is written: " + text;
  }
  const auto back = Converted([&] { return TextToNumber(text, locale); });
  if (!back) {
    // Fifteen digits of the greatest numbers round to one beyond them.
    return std::abs(value) > 1.797693134862315e308 ? "" : "what is written is refused: " + text;
  }
  if (std::abs(*back - value) > std::abs(value) * 1e-14) {
    return "what is written is another number: " + text;
  }
  if (std::abs(value) >= std::numeric_limits<double>::min() &&
      NumberToText(*back, locale) != text) {
    return "what is written is written otherwise the second time: " + text;
  }
  return {};
}

std::string ComplaintAboutFormat(double value, int decimals, const NumberLocale& locale) {
  const std::string plain = FormatPlain(value, decimals, locale);
  if (!IsNumeral(plain, "0123456789-.,")) {
    return "no number is shown: " + plain;
  }
  if (plain.front() == '-' && plain.find_first_of("123456789") == std::string::npos) {
    return "a zero has a sign: " + plain;
  }
  const std::string shown = FormatShown(value, decimals, locale);
  const auto shownBack = Converted([&] { return TextToNumber(shown, locale); });
  if (shownBack != Converted([&] { return TextToNumber(plain, locale); }) ||
      shownBack != Converted([&] { return RoundToDecimals(value, decimals); })) {
    return "groups change the number: " + shown;
  }
  const double unit = std::pow(10.0, -decimals);
  if (shownBack && std::abs(*shownBack - value) > unit * 0.5000001 + std::abs(value) * 1e-14) {
    return "what is shown is another number: " + shown;
  }
  return {};
}

std::string ComplaintAboutValue(double value, int someDecimals, const NumberLocale& locale) {
  if (!std::isfinite(value)) {
    return Converted([&] { return NumberToText(value, locale); }) ||
                   Converted([&] { return FormatShown(value, 2, locale); })
               ? "what is no number is written"
               : "";
  }
  std::string complaint = ComplaintAboutWriting(value, locale);
  for (const int decimals : {0, 2, someDecimals}) {
    if (complaint.empty()) {
      complaint = ComplaintAboutFormat(value, decimals, locale);
    }
  }
  return complaint;
}

template <class Whole>
std::string ComplaintAboutWhole(const std::optional<Whole>& whole,
                                const std::optional<double>& value) {
  if (whole && (!value || std::abs(static_cast<double>(*whole) - *value) > 0.5)) {
    return "a whole number is not the nearest one";
  }
  const bool fits = value && *value > std::numeric_limits<Whole>::min() &&
                    *value < std::numeric_limits<Whole>::max();
  return fits && !whole ? "a whole number that fits is refused" : "";
}

std::string ComplaintAboutReading(std::string_view text, int someDecimals,
                                  const NumberLocale& locale) {
  const auto value = Converted([&] { return TextToNumber(text, locale); });
  const double tolerant = ParseNumber(text, locale);
  if (!std::isfinite(tolerant) || (value && !std::isfinite(*value))) {
    return "what is read is no number";
  }
  if (value && *value != tolerant) {
    return "the tolerant reading is another one";
  }
  const auto flag = Converted([&] { return TextToBoolean(text, locale); });
  if (value && (!flag || *flag != (*value != 0))) {
    return "a number is another flag";
  }
  std::string complaint =
      ComplaintAboutWhole(Converted([&] { return TextToInteger(text, locale); }), value);
  if (complaint.empty()) {
    complaint = ComplaintAboutWhole(Converted([&] { return TextToLong(text, locale); }), value);
  }
  return complaint.empty() ? ComplaintAboutValue(tolerant, someDecimals, locale) : complaint;
}

}  // namespace

std::string ComplaintAboutNumbers(std::string_view bytes) {
  const std::array<NumberLocale, 2> locales{
      {{}, {.DecimalSeparator = ",", .GroupSeparator = "\u00A0"}}};
  constexpr std::size_t decimalCounts = 16;
  const auto someDecimals = static_cast<int>(bytes.size() % decimalCounts);
  try {
    for (const NumberLocale& locale : locales) {
      std::string complaint = ComplaintAboutReading(bytes, someDecimals, locale);
      if (complaint.empty()) {
        complaint = ComplaintAboutValue(ByteSource(bytes).Number(), someDecimals, locale);
      }
      if (!complaint.empty()) {
        return complaint;
      }
    }
  } catch (const RuntimeError& error) {
    return "an error that no conversion raises: " + error.Description();
  }
  return {};
}

}  // namespace trelonit::fuzz

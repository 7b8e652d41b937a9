#include "editor/document/TextUnits.h"

#include <array>
#include <utility>

#include "platform/text/Text.h"

namespace trelonit {

namespace {

/// Capitals from First to Last; the small letter stands Distance behind.
struct CaseRange {
  char16_t First;
  char16_t Last;
  char16_t Distance;
};

constexpr std::array<CaseRange, 7> caseRanges{{
    {u'A', u'Z', 32},
    {0x00C0, 0x00D6, 32},
    {0x00D8, 0x00DE, 32},
    {0x0391, 0x03A9, 32},
    {0x0400, 0x040F, 80},
    {0x0410, 0x042F, 32},
    {0x0490, 0x0490, 1},
}};

bool Within(char16_t unit, int first, int last) {
  return unit >= first && unit <= last;
}

}  // namespace

std::u16string Units(std::string_view text) {
  const std::u32string characters = Characters(text);
  std::u16string units;
  units.reserve(characters.size());
  char32_t previous = 0;
  for (const char32_t character : characters) {
    if (std::exchange(previous, character) == U'\r' && character == U'\n') {
      continue;
    }
    if (character == U'\r' || character == U'\n') {
      units += lineEndUnits;
    } else if (character > 0xFFFF) {
      const char32_t beyond = character - 0x10000;
      units += static_cast<char16_t>(0xD800 + (beyond >> 10));
      units += static_cast<char16_t>(0xDC00 + (beyond & 0x3FF));
    } else {
      units += static_cast<char16_t>(character);
    }
  }
  return units;
}

std::string WithWholeLineEnds(std::string_view text) {
  return Utf8(Units(text));
}

Long UnitCount(std::string_view text) {
  return static_cast<Long>(Units(text).size());
}

bool BelongTogether(char16_t before, char16_t after) {
  return (before == u'\r' && after == u'\n') || (IsHighSurrogate(before) && IsLowSurrogate(after));
}

char16_t LowerCase(char16_t unit) {
  for (const CaseRange& range : caseRanges) {
    if (Within(unit, range.First, range.Last)) {
      return static_cast<char16_t>(unit + range.Distance);
    }
  }
  return unit;
}

char16_t UpperCase(char16_t unit) {
  for (const CaseRange& range : caseRanges) {
    if (Within(unit, range.First + range.Distance, range.Last + range.Distance)) {
      return static_cast<char16_t>(unit - range.Distance);
    }
  }
  return unit;
}

bool IsWordUnit(char16_t unit) {
  return Within(unit, u'0', u'9') || unit == u'_' || LowerCase(unit) != unit ||
         UpperCase(unit) != unit || Within(unit, 0x00DF, 0x024F) || Within(unit, 0x0370, 0x052F) ||
         IsHighSurrogate(unit) || IsLowSurrogate(unit);
}

}  // namespace trelonit

#pragma once

#include <string>
#include <string_view>

#include "platform/values/Integers.h"

namespace trelonit {

// The rich-text box counts text in UTF-16 units, a line end being two of them (carriage return and
// line feed); everybody else holds UTF-8.

constexpr std::string_view lineEnd = "\r\n";
constexpr std::u16string_view lineEndUnits = u"\r\n";

/// UTF-8 to units; a carriage return or a line feed that stands alone becomes a whole line end.
/// Malformed bytes become U+FFFD.
std::u16string Units(std::string_view text);

/// The text as the box takes it in: see Units.
std::string WithWholeLineEnds(std::string_view text);

/// Its length in the box.
Long UnitCount(std::string_view text);

/// Whether the units on the two sides of a gap belong together: a line end or a surrogate pair.
bool BelongTogether(char16_t before, char16_t after);

// Case of the alphabets that the program's texts use: Latin, Greek, Cyrillic. Independent of the
// process's locale, so that a search finds the same everywhere.
char16_t LowerCase(char16_t unit);
char16_t UpperCase(char16_t unit);

/// Letters, digits and the underscore.
bool IsWordUnit(char16_t unit);

}  // namespace trelonit

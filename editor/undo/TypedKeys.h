#pragma once

#include <string>

#include "platform/values/Integers.h"

namespace trelonit {

constexpr Integer keyBack = 8;
constexpr Integer keyTab = 9;
constexpr Integer keyReturn = 13;
constexpr Integer keyInsert = 45;
constexpr Integer keyDelete = 46;

/// Whether the key puts a character into a text. Arrows, function keys, Escape and the like do not.
bool KeyTypesText(Integer keyCode);

/// The text that a typed key is recorded with: a guess from the key code alone, in which a keyboard
/// layout plays no part. Where the box tells what the key put in (clsUndo::RichBox_Typed), that
/// counts.
std::string TypedText(Integer keyCode, Integer shift);

}  // namespace trelonit

#include "windows/editor/KeyCodes.h"

#include <QGuiApplication>
#include <array>
#include <cstddef>
#include <string_view>

#include "editor/document/TextUnits.h"
#include "editor/undo/clsUndo.h"

namespace trelonit {

namespace {

struct CodeOfKey {
  int Key;
  Integer Code;
};

template <std::size_t Size>
Integer Lookup(const std::array<CodeOfKey, Size>& table, int key) {
  for (const CodeOfKey& entry : table) {
    if (entry.Key == key) {
      return entry.Code;
    }
  }
  return 0;
}

constexpr std::array<CodeOfKey, 25> plainKeys{{
    {Qt::Key_Backspace, 8},    {Qt::Key_Tab, 9},     {Qt::Key_Backtab, 9},   {Qt::Key_Clear, 12},
    {Qt::Key_Return, 13},      {Qt::Key_Enter, 13},  {Qt::Key_Shift, 16},    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},         {Qt::Key_Pause, 19},  {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},       {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},
    {Qt::Key_Home, 36},        {Qt::Key_Left, 37},   {Qt::Key_Up, 38},       {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},        {Qt::Key_Insert, 45}, {Qt::Key_Delete, 46},   {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
}};

constexpr std::array<CodeOfKey, 6> keypadSigns{{
    {Qt::Key_Asterisk, 106},
    {Qt::Key_Plus, 107},
    // The decimal key, whatever sign the locale gives it.
    {Qt::Key_Comma, 110},
    {Qt::Key_Minus, 109},
    {Qt::Key_Period, 110},
    {Qt::Key_Slash, 111},
}};

/// Signs on the American keyboard: for a platform that does not tell where a key lies.
constexpr std::array<CodeOfKey, 32> signs{{
    {Qt::Key_Exclam, '1'},      {Qt::Key_At, '2'},           {Qt::Key_NumberSign, '3'},
    {Qt::Key_Dollar, '4'},      {Qt::Key_Percent, '5'},      {Qt::Key_AsciiCircum, '6'},
    {Qt::Key_Ampersand, '7'},   {Qt::Key_Asterisk, '8'},     {Qt::Key_ParenLeft, '9'},
    {Qt::Key_ParenRight, '0'},  {Qt::Key_Semicolon, 186},    {Qt::Key_Colon, 186},
    {Qt::Key_Equal, 187},       {Qt::Key_Plus, 187},         {Qt::Key_Comma, 188},
    {Qt::Key_Less, 188},        {Qt::Key_Minus, 189},        {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},      {Qt::Key_Greater, 190},      {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},    {Qt::Key_QuoteLeft, 192},    {Qt::Key_AsciiTilde, 192},
    {Qt::Key_BracketLeft, 219}, {Qt::Key_BraceLeft, 219},    {Qt::Key_Backslash, 220},
    {Qt::Key_Bar, 220},         {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221},
    {Qt::Key_Apostrophe, 222},  {Qt::Key_QuoteDbl, 222},
}};

/// Neighbouring keys, from the scan code on.
struct KeyRow {
  std::uint32_t First;
  std::u16string_view Codes;
};

constexpr std::array<KeyRow, 5> keyRows{{
    {10, u"1234567890\u00BD\u00BB"},
    {24, u"QWERTYUIOP\u00DB\u00DD"},
    {38, u"ASDFGHJKL\u00BA\u00DE\u00C0"},
    {51, u"\u00DCZXCVBNM\u00BC\u00BE\u00BF"},
    {94, u"\u00E2"},
}};

Integer CodeAt(std::uint32_t scanCode) {
  for (const KeyRow& row : keyRows) {
    if (scanCode >= row.First && scanCode < row.First + row.Codes.size()) {
      return static_cast<Integer>(row.Codes[scanCode - row.First]);
    }
  }
  return 0;
}

/// The Latin keys under the Russian letters.
Integer CodeOfRussianLetter(int key) {
  constexpr std::u16string_view letters = u"йцукенгшщзхъфывапролджэячсмитьбюё";
  constexpr std::u16string_view codes =
      u"QWERTYUIOP\u00DB\u00DDASDFGHJKL\u00BA\u00DEZXCVBNM\u00BC\u00BE\u00C0";
  static_assert(letters.size() == codes.size());
  if (key < 0x400 || key > 0x45F) {
    return 0;
  }
  const std::size_t place = letters.find(LowerCase(static_cast<char16_t>(key)));
  return place == std::u16string_view::npos ? Integer{0} : static_cast<Integer>(codes[place]);
}

}  // namespace

Integer KeyCodeOf(const PressedKey& pressed) {
  const int key = pressed.Key;
  if (const Integer code = Lookup(plainKeys, key); code != 0) {
    return code;
  }
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
    return static_cast<Integer>(112 + key - Qt::Key_F1);
  }
  if (pressed.Keypad) {
    return key >= Qt::Key_0 && key <= Qt::Key_9 ? static_cast<Integer>(96 + key - Qt::Key_0)
                                                : Lookup(keypadSigns, key);
  }
  // Letters go by the layout, so that Ctrl+A is the A that the user sees on the key.
  if (key >= Qt::Key_A && key <= Qt::Key_Z) {
    return static_cast<Integer>(key);
  }
  if (const Integer code = CodeAt(pressed.ScanCode); code != 0) {
    return code;
  }
  if (key >= Qt::Key_0 && key <= Qt::Key_9) {
    return static_cast<Integer>(key);
  }
  const Integer code = Lookup(signs, key);
  return code != 0 ? code : CodeOfRussianLetter(key);
}

Integer KeyCodeOf(const QKeyEvent& event) {
  const QString platform = QGuiApplication::platformName();
  // There the code is the very one that is asked for.
  if (platform == QLatin1String("windows") && event.nativeVirtualKey() != 0) {
    return static_cast<Integer>(event.nativeVirtualKey() & 0xFF);
  }
  const bool located =
      platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
  return KeyCodeOf({.Key = event.key(),
                    .Keypad = event.modifiers().testFlag(Qt::KeypadModifier),
                    .ScanCode = located ? event.nativeScanCode() : 0});
}

Integer ShiftStateOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  const bool shift = modifiers.testFlag(Qt::ShiftModifier);
  bool control = modifiers.testFlag(Qt::ControlModifier);
  bool alt = modifiers.testFlag(Qt::AltModifier);
  if (control && alt && !event.text().isEmpty() && event.text().front().isPrint()) {
    control = false;
    alt = false;
  }
  return static_cast<Integer>((shift ? clsUndo::shiftKey : 0) +
                              (control ? clsUndo::controlKey : 0) + (alt ? clsUndo::altKey : 0));
}

}  // namespace trelonit

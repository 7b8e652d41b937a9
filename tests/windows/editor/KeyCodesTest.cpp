#include <gtest/gtest.h>
#include <string_view>

#include "windows/editor/KeyCodes.h"

namespace trelonit::test {
namespace {

Integer Code(int key, std::uint32_t scanCode = 0, bool keypad = false) {
  return KeyCodeOf(PressedKey{.Key = key, .Keypad = keypad, .ScanCode = scanCode});
}

TEST(KeyCodes, GiveALetterItsLatinCapital) {
  EXPECT_EQ(Code(Qt::Key_A), 'A');
  EXPECT_EQ(Code(Qt::Key_Z), 'Z');
  // The letter of the layout, wherever the key lies.
  EXPECT_EQ(Code(Qt::Key_A, 24), 'A');
}

TEST(KeyCodes, GiveARussianLetterTheLatinOneOfItsKey) {
  constexpr std::u16string_view russian = u"ЙЦУКЕНГШЩЗФЫВАПРОЛДЯЧСМИТЬ";
  constexpr std::string_view latin = "QWERTYUIOPASDFGHJKLZXCVBNM";
  ASSERT_EQ(russian.size(), latin.size());
  for (std::size_t letter = 0; letter < latin.size(); ++letter) {
    EXPECT_EQ(Code(russian[letter]), latin[letter]);
  }
  EXPECT_EQ(Code(u'ж'), 186);
  EXPECT_EQ(Code(u'Б'), 188);
  EXPECT_EQ(Code(u'Ю'), 190);
  EXPECT_EQ(Code(u'Ё'), 192);
  EXPECT_EQ(Code(u'Х'), 219);
  EXPECT_EQ(Code(u'Ъ'), 221);
  EXPECT_EQ(Code(u'Э'), 222);
  EXPECT_EQ(Code(u'ї'), 0);
}

TEST(KeyCodes, GoByThePlaceOfTheKeyWhereItIsKnown) {
  EXPECT_EQ(Code(u'Й', 24), 'Q');
  EXPECT_EQ(Code(u'Ь', 58), 'M');
  // A full stop of the Russian layout lies where the American one has its slash.
  EXPECT_EQ(Code(Qt::Key_Period, 61), 191);
  EXPECT_EQ(Code(Qt::Key_Ampersand, 10), '1');
  EXPECT_EQ(Code(Qt::Key_ParenRight, 19), '0');
  EXPECT_EQ(Code(0x00F6, 47), 186);
  EXPECT_EQ(Code(Qt::Key_Less, 94), 226);
  EXPECT_EQ(Code(0x1234, 200), 0);
}

TEST(KeyCodes, TellDigitsOfTheKeypadFromOthers) {
  EXPECT_EQ(Code(Qt::Key_0), '0');
  EXPECT_EQ(Code(Qt::Key_9), '9');
  EXPECT_EQ(Code(Qt::Key_0, 0, true), 96);
  EXPECT_EQ(Code(Qt::Key_9, 0, true), 105);
  EXPECT_EQ(Code(Qt::Key_Asterisk, 0, true), 106);
  EXPECT_EQ(Code(Qt::Key_Plus, 0, true), 107);
  EXPECT_EQ(Code(Qt::Key_Minus, 0, true), 109);
  EXPECT_EQ(Code(Qt::Key_Period, 0, true), 110);
  EXPECT_EQ(Code(Qt::Key_Comma, 0, true), 110);
  EXPECT_EQ(Code(Qt::Key_Slash, 0, true), 111);
  // With the lamp off the digits are arrows.
  EXPECT_EQ(Code(Qt::Key_Left, 0, true), 37);
  EXPECT_EQ(Code(Qt::Key_Enter, 0, true), 13);
}

TEST(KeyCodes, KnowTheSignsOfTheAmericanLayout) {
  struct Sign {
    int Key;
    int Code;
  };
  for (const auto& [key, code] : {Sign{Qt::Key_Semicolon, 186},
                                  {Qt::Key_Colon, 186},
                                  {Qt::Key_Equal, 187},
                                  {Qt::Key_Plus, 187},
                                  {Qt::Key_Comma, 188},
                                  {Qt::Key_Minus, 189},
                                  {Qt::Key_Period, 190},
                                  {Qt::Key_Slash, 191},
                                  {Qt::Key_Question, 191},
                                  {Qt::Key_QuoteLeft, 192},
                                  {Qt::Key_BracketLeft, 219},
                                  {Qt::Key_Backslash, 220},
                                  {Qt::Key_BracketRight, 221},
                                  {Qt::Key_Apostrophe, 222},
                                  {Qt::Key_Exclam, '1'},
                                  {Qt::Key_ParenRight, '0'}}) {
    EXPECT_EQ(Code(key), code) << key;
  }
}

TEST(KeyCodes, KnowTheKeysThatTypeNothing) {
  struct Named {
    int Key;
    int Code;
  };
  for (const auto& [key, code] : {Named{Qt::Key_Backspace, 8},
                                  {Qt::Key_Tab, 9},
                                  {Qt::Key_Backtab, 9},
                                  {Qt::Key_Return, 13},
                                  {Qt::Key_Enter, 13},
                                  {Qt::Key_Escape, 27},
                                  {Qt::Key_Space, 32},
                                  {Qt::Key_PageUp, 33},
                                  {Qt::Key_PageDown, 34},
                                  {Qt::Key_End, 35},
                                  {Qt::Key_Home, 36},
                                  {Qt::Key_Left, 37},
                                  {Qt::Key_Up, 38},
                                  {Qt::Key_Right, 39},
                                  {Qt::Key_Down, 40},
                                  {Qt::Key_Insert, 45},
                                  {Qt::Key_Delete, 46},
                                  {Qt::Key_F1, 112},
                                  {Qt::Key_F12, 123},
                                  {Qt::Key_F24, 135}}) {
    EXPECT_EQ(Code(key), code) << key;
  }
}

Integer Shift(Qt::KeyboardModifiers modifiers, const QString& text = {}) {
  return ShiftStateOf(QKeyEvent(QEvent::KeyPress, Qt::Key_E, modifiers, text));
}

TEST(KeyCodes, AddTheShiftStates) {
  EXPECT_EQ(Shift(Qt::NoModifier), 0);
  EXPECT_EQ(Shift(Qt::ShiftModifier), 1);
  EXPECT_EQ(Shift(Qt::ControlModifier), 2);
  EXPECT_EQ(Shift(Qt::ControlModifier | Qt::ShiftModifier), 3);
  EXPECT_EQ(Shift(Qt::AltModifier), 4);
  EXPECT_EQ(Shift(Qt::ControlModifier | Qt::AltModifier), 6);
  EXPECT_EQ(Shift(Qt::KeypadModifier), 0);
}

TEST(KeyCodes, TakeTheThirdLevelOfALayoutForNoShiftState) {
  EXPECT_EQ(Shift(Qt::ControlModifier | Qt::AltModifier, QStringLiteral("€")), 0);
  EXPECT_EQ(Shift(Qt::ControlModifier | Qt::AltModifier, QStringLiteral("\x05")), 6);
}

}  // namespace
}  // namespace trelonit::test

#include <gtest/gtest.h>
#include <string>

#include "platform/text/TerminalText.h"

namespace trelonit::test {

namespace {

TEST(TerminalText, KeepsWhatIsNoOrder) {
  const std::string text = "Ферма 1\n\tL50x5 — 20 %\n";
  EXPECT_EQ(TerminalText(text), text);
  EXPECT_EQ(TerminalText(""), "");
}

TEST(TerminalText, ShowsControlCharactersByTheirSymbols) {
  EXPECT_EQ(TerminalText(std::string("a\0b\x1B[2Jc\rd\x7F", 11)),
            "a\u2400b\u241B[2Jc\u240Dd\u2421");
}

TEST(TerminalText, ShowsControlCharactersOfEightBitsByTheirNumber) {
  EXPECT_EQ(TerminalText("\xC2\x80 \xC2\x9B 2J \xC2\x9F \xC2\xA0"),
            "\\x80 \\x9B 2J \\x9F \xC2\xA0");
}

TEST(TerminalText, ReplacesWhatIsNoUtf8) {
  EXPECT_EQ(TerminalText("a\x9B"
                         "2J"),
            "a\xEF\xBF\xBD"
            "2J");
}

}  // namespace

}  // namespace trelonit::test

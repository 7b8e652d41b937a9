#include <gtest/gtest.h>

#include "editor/document/TextUnits.h"
#include "platform/text/Text.h"

namespace trelonit::test {
namespace {

TEST(TextUnits, GoToUtf8AndBack) {
  for (const std::string text : {"", "abc", "Ёж\r\n", "\U0001F600\U00010000\U0010FFFF"}) {
    EXPECT_EQ(Utf8(Units(text)), text);
  }
  EXPECT_EQ(Units("\U0001F600"), u"\U0001F600");
  // The last character of one unit, and the first of two.
  EXPECT_EQ(Units("\uFFFF"), (std::u16string{0xFFFF}));
  EXPECT_EQ(Units("\U00010000"), (std::u16string{0xD800, 0xDC00}));
}

TEST(TextUnits, MakeWholeLineEnds) {
  EXPECT_EQ(Units("\n"), u"\r\n");
  EXPECT_EQ(Units("\r\r\n\n"), u"\r\n\r\n\r\n");
  EXPECT_EQ(Units("\n\r"), u"\r\n\r\n");
  EXPECT_EQ(Units("\r\n\na\r\nb"), u"\r\n\r\na\r\nb");
  EXPECT_EQ(UnitCount("ж\n"), 3);
}

TEST(TextUnits, ReplaceHalvesOfPairsAndBrokenBytes) {
  const std::u16string half{0xD83D, u'a', 0xDE00};
  EXPECT_EQ(Utf8(half), "\uFFFDa\uFFFD");
  EXPECT_EQ(Units("\xFF"), u"\uFFFD");
}

TEST(TextUnits, BelongTogetherInLineEndsAndPairs) {
  EXPECT_TRUE(BelongTogether(u'\r', u'\n'));
  EXPECT_TRUE(BelongTogether(0xD83D, 0xDE00));
  EXPECT_FALSE(BelongTogether(u'\n', u'\r'));
  EXPECT_FALSE(BelongTogether(0xDE00, 0xD83D));
  EXPECT_FALSE(BelongTogether(u'a', u'\n'));
  EXPECT_FALSE(BelongTogether(u'\r', u'a'));
  EXPECT_FALSE(BelongTogether(0xD83D, u'a'));
  EXPECT_FALSE(BelongTogether(u'a', 0xDE00));
}

TEST(TextUnits, HaveTwoCases) {
  const std::u16string capitals = u"AZАЯЁЂЏҐÀÞΑΩ";
  const std::u16string smalls = u"azаяёђџґàþαω";
  for (std::size_t place = 0; place < capitals.size(); ++place) {
    EXPECT_EQ(LowerCase(capitals[place]), smalls[place]);
    EXPECT_EQ(UpperCase(smalls[place]), capitals[place]);
    EXPECT_EQ(LowerCase(smalls[place]), smalls[place]);
    EXPECT_EQ(UpperCase(capitals[place]), capitals[place]);
  }
  for (const char16_t unit : std::u16string(u"019 _@[`{×÷№—")) {
    EXPECT_EQ(LowerCase(unit), unit);
    EXPECT_EQ(UpperCase(unit), unit);
  }
}

TEST(TextUnits, MakeWordsOfLettersDigitsAndUnderscores) {
  for (const char16_t unit : std::u16string(u"azAZ09_жЁλÀß")) {
    EXPECT_TRUE(IsWordUnit(unit)) << static_cast<int>(unit);
  }
  for (const char16_t unit : std::u16string(u" \t\r\n.,-()«»№×")) {
    EXPECT_FALSE(IsWordUnit(unit)) << static_cast<int>(unit);
  }
}

}  // namespace
}  // namespace trelonit::test

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <type_traits>
#include <vector>

#include "platform/text/FixedText.h"

namespace trelonit::test {

namespace {

// Records with such fields are copied as plain memory.
static_assert(std::is_trivially_copyable_v<FixedText<50>>);
static_assert(FixedText<7>::Length() == 7);

TEST(FixedText, StartsFullOfBlanks) {
  EXPECT_EQ(FixedText<4>().Padded(), "    ");
  EXPECT_EQ(FixedText<4>().Trimmed(), "");
}

TEST(FixedText, PadsAShorterText) {
  const FixedText<5> field("ab");
  EXPECT_EQ(field.Padded(), "ab   ");
  EXPECT_EQ(field.Trimmed(), "ab");
}

TEST(FixedText, CutsALongerText) {
  EXPECT_EQ(FixedText<3>("abcdef").Padded(), "abc");
  EXPECT_EQ(FixedText<3>("abc").Padded(), "abc");
}

TEST(FixedText, CountsCharactersAndNotBytes) {
  EXPECT_EQ(FixedText<6>("Уголок").Padded(), "Уголок");
  EXPECT_EQ(FixedText<3>("Уголок").Padded(), "Уго");
  EXPECT_EQ(FixedText<8>("Уголок").Padded(), "Уголок  ");
}

TEST(FixedText, TrimsTheRightEndOnly) {
  EXPECT_EQ(FixedText<8>("  a b  ").Trimmed(), "  a b");
}

TEST(FixedText, IsEqualWhenAllItsCharactersAre) {
  EXPECT_EQ(FixedText<5>("ab"), FixedText<5>("ab  "));
  EXPECT_EQ(FixedText<2>("abc"), FixedText<2>("abd"));
  EXPECT_NE(FixedText<5>("ab"), FixedText<5>(" ab"));
  EXPECT_NE(FixedText<5>("ab"), FixedText<5>("aB"));
}

TEST(FixedText, GivesItsCharactersInPlace) {
  FixedText<3> field("ab");
  EXPECT_EQ(field.Raw()[1], u'b');
  EXPECT_EQ(field.Raw()[2], u' ');
  field.Raw()[2] = u'я';
  EXPECT_EQ(field.Padded(), "abя");
}

TEST(FixedText, HoldsTheReplacementCharacterForOneOutsideTheBasicPlane) {
  EXPECT_EQ(FixedText<3>("a\U0001F600z").Padded(), "a\uFFFDz");
  EXPECT_EQ(FixedText<2>("\uFFFFz").Padded(), "\uFFFFz");
}

TEST(FixedText, HoldsTheReplacementCharacterForMalformedBytes) {
  EXPECT_EQ(FixedText<3>("a\xFFz").Padded(), "a\uFFFDz");
}

RC_GTEST_PROP(FixedText, IsTheBeginningOfItsTextAndBlanks, ()) {
  const auto codes = *rc::gen::container<std::vector<int>>(
      rc::gen::oneOf(rc::gen::inRange(0x20, 0x7F), rc::gen::inRange(0x410, 0x450)));
  const std::u32string text(codes.begin(), codes.end());
  const FixedText<10> field{std::string_view(Utf8(text))};
  std::u32string expected = text.substr(0, 10);
  expected.resize(10, U' ');
  RC_ASSERT(Characters(field.Padded()) == expected);
  RC_ASSERT(FixedText<10>(std::string_view(field.Trimmed())) == field);
}

}  // namespace

}  // namespace trelonit::test

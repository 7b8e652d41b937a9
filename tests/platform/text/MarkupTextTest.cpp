#include <gtest/gtest.h>

#include "platform/text/MarkupText.h"

namespace trelonit::test {
namespace {

std::string Markup(std::string_view text) {
  std::string page = "<p>";
  AppendMarkup(page, text);
  return page;
}

TEST(MarkupText, StandsBehindWhatIsThere) {
  EXPECT_EQ(Markup("Пояс"), "<p>Пояс");
}

TEST(MarkupText, IsNeverTakenForTags) {
  EXPECT_EQ(Markup("5 < 6 & 7 > \"6\""), "<p>5 &lt; 6 &amp; 7 &gt; \"6\"");
}

TEST(MarkupText, HasNoControlCharactersButTabs) {
  EXPECT_EQ(Markup(std::string_view("a\0b\x1B\n\tc", 8)), "<p>ab\tc");
}

}  // namespace
}  // namespace trelonit::test

#include <rapidcheck/gtest.h>

#include "editor/document/MemoryRichTextBox.h"
#include "editor/rtf/RtfHealth.h"
#include "editor/rtf/RtfLimits.h"

namespace trelonit::test {
namespace {

using namespace std::string_literals;

std::string Nested(std::size_t groups) {
  return "{\\rtf1" + std::string(groups - 1, '{') + std::string(groups, '}');
}

TEST(RtfHealth, KnowsTheBeginningOfRichText) {
  EXPECT_TRUE(BeginsAsRtf("{\\rtf1 x}"));
  EXPECT_TRUE(BeginsAsRtf("{\\rtf"));
  for (const char* bytes : {"", "{", "{\\rt", " {\\rtf1}", "{ \\rtf1}", "{\\RTF1}", "\\rtf1"}) {
    EXPECT_FALSE(BeginsAsRtf(bytes)) << bytes;
    EXPECT_FALSE(IsWholeRtf(bytes)) << bytes;
  }
}

TEST(RtfHealth, WantsEveryGroupClosed) {
  EXPECT_TRUE(IsWholeRtf("{\\rtf1}"));
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 {\\b x}{\\i {y}}}"));
  EXPECT_FALSE(IsWholeRtf("{\\rtf1"));
  EXPECT_FALSE(IsWholeRtf("{\\rtf1 {\\b x}"));
  EXPECT_FALSE(IsWholeRtf("{\\rtf1 {\\b x"));
}

TEST(RtfHealth, CountsNoBraceThatIsText) {
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 \\{}"));
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 \\}}"));
  EXPECT_FALSE(IsWholeRtf("{\\rtf1 \\}"));
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 \\'7b}"));
  EXPECT_FALSE(IsWholeRtf("{\\rtf1 \\\\\\}"));
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 \\\\}"));
}

TEST(RtfHealth, CountsNoBraceOfBinaryData) {
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 {\\bin3 {{{}}"));
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 {\\bin2 }}}}"));
  EXPECT_FALSE(IsWholeRtf("{\\rtf1 {\\bin3 }}}"));
  EXPECT_FALSE(IsWholeRtf("{\\rtf1 {\\bin2000000000 }}"));
}

TEST(RtfHealth, LooksAtNothingBehindTheDocument) {
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 x}{{{"));
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 x}}"));
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 x}\r\n\0"s));
}

TEST(RtfHealth, CallsANestingDamagedThatTheReaderDoesNotFollow) {
  EXPECT_EQ(rtfDeepestGroup, 1000u);
  EXPECT_TRUE(IsWholeRtf(Nested(rtfDeepestGroup)));
  EXPECT_FALSE(IsWholeRtf(Nested(rtfDeepestGroup + 1)));
  EXPECT_FALSE(IsWholeRtf(Nested(100000)));
}

TEST(RtfHealth, KeepsByte0WithinTheDocument) {
  EXPECT_TRUE(IsWholeRtf("{\\rtf1 a\0b}"s));
  EXPECT_FALSE(IsWholeRtf("{\\rtf1 a\0b"s));
}

RC_GTEST_PROP(RtfHealth, FindsWhatTheBoxWritesWholeAndAnyPartOfItNot, ()) {
  MemoryRichTextBox box;
  std::string text;
  for (int count = *rc::gen::inRange(0, 10); count > 0; --count) {
    text += *rc::gen::element("a"s, "{"s, "}"s, "\\"s, "\r\n"s, "Ж"s, "\U0001F600"s);
  }
  box.SetText(text);
  const std::string rtf = box.TextRTF();
  RC_ASSERT(IsWholeRtf(rtf));
  const std::size_t end = rtf.rfind('}');
  RC_ASSERT(!IsWholeRtf(rtf.substr(0, *rc::gen::inRange<std::size_t>(0, end + 1))));
}

RC_GTEST_PROP(RtfHealth, EndsWhateverTheBytesAre, (const std::string& bytes)) {
  RC_ASSERT(!IsWholeRtf("{\\rtf1 \\bin9999 " + bytes));
}

}  // namespace
}  // namespace trelonit::test

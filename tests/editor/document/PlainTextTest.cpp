#include <rapidcheck/gtest.h>

#include "editor/document/FileHandler.h"
#include "platform/text/CodePage1251.h"
#include "platform/text/Text.h"
#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

using namespace std::string_literals;

std::string ReadFrom(const std::string& bytes) {
  MemoryFiles files;
  files.Content["a.txt"] = bytes;
  return ReadPlainText(files, "a.txt");
}

std::string Written(const std::string& text) {
  MemoryFiles files;
  WritePlainText(files, "a.txt", text);
  return files.Content.at("a.txt");
}

// Reading ------------------------------------------------------------------------------------

TEST(PlainText, IsReadFromUtf16InBothByteOrders) {
  EXPECT_EQ(ReadFrom("\xFF\xFE"s + "\x24\x04\x31\x00\x0D\x00\x0A\x00"s), "Ф1\r\n");
  EXPECT_EQ(ReadFrom("\xFE\xFF"s + "\x04\x24\x00\x31\x00\x0D\x00\x0A"s), "Ф1\r\n");
}

TEST(PlainText, IsReadFromUtf16WithSurrogates) {
  EXPECT_EQ(ReadFrom("\xFF\xFE\x3D\xD8\x00\xDE"s), "\U0001F600");
  EXPECT_EQ(ReadFrom("\xFE\xFF\xD8\x3D\xDE\x00"s), "\U0001F600");
  EXPECT_EQ(ReadFrom("\xFF\xFE\x3D\xD8\x41\x00"s), "\uFFFD"s + "A");
}

TEST(PlainText, IsEmptyBehindALoneMark) {
  EXPECT_EQ(ReadFrom("\xFF\xFE"s), "");
  EXPECT_EQ(ReadFrom("\xFE\xFF"s), "");
  EXPECT_EQ(ReadFrom("\xEF\xBB\xBF"s), "");
  EXPECT_EQ(ReadFrom(""), "");
}

TEST(PlainText, LosesAnOddByteAtTheEndOfUtf16) {
  EXPECT_EQ(ReadFrom("\xFF\xFE\x41\x00\x42"s), "A");
  EXPECT_EQ(ReadFrom("\xFE\xFF\x00\x41\x00"s), "A");
  EXPECT_EQ(ReadFrom("\xFF\xFE\x41"s), "");
}

TEST(PlainText, IsReadFromCodePage1251) {
  EXPECT_EQ(ReadFrom("\xD4\xE5\xF0\xEC\xE0 \xB9 1"), "Ферма № 1");
  EXPECT_EQ(ReadFrom("\xFF"), "я");
  EXPECT_EQ(ReadFrom("\xFE"), "ю");
  EXPECT_EQ(ReadFrom("\xFF\xFF"), "яя");
  EXPECT_EQ(ReadFrom("x\xFF\xFE"), "xяю");
  EXPECT_EQ(ReadFrom("\xEF\xBB"), "п»");
}

TEST(PlainText, IsReadFromUtf8WithAndWithoutAMark) {
  EXPECT_EQ(ReadFrom("Ферма № 1"), "Ферма № 1");
  EXPECT_EQ(ReadFrom("\xEF\xBB\xBF"s + "Ферма № 1"), "Ферма № 1");
  EXPECT_EQ(ReadFrom("plain"), "plain");
}

TEST(PlainText, KeepsByte0) {
  EXPECT_EQ(ReadFrom("a\0b"s), "a\0b"s);
  EXPECT_EQ(ReadFrom("\0"s), "\0"s);
  EXPECT_EQ(Written("a\0b"s), "a\0b"s);
}

TEST(PlainText, RaisesAsTheFilesDo) {
  MemoryFiles files;
  files.Refused["a.txt"] = ErrorNumber::PermissionDenied;
  EXPECT_THROW(ReadPlainText(files, "a.txt"), RuntimeError);
  EXPECT_THROW(ReadPlainText(files, "b.txt"), RuntimeError);
  EXPECT_THROW(WritePlainText(files, "a.txt", "x"), RuntimeError);
}

// Writing ------------------------------------------------------------------------------------

TEST(PlainText, IsWrittenInCodePage1251WithoutAMark) {
  EXPECT_EQ(Written("Ферма № 1\r\n"), "\xD4\xE5\xF0\xEC\xE0 \xB9 1\r\n");
  EXPECT_EQ(Written("plain"), "plain");
  EXPECT_EQ(Written(""), "");
}

TEST(PlainText, IsWrittenAsUtf8WhereTheCodePageLacksACharacter) {
  EXPECT_EQ(Written("Ферма ≤ 1"), "Ферма ≤ 1");
  EXPECT_EQ(Written("\U0001F600"), "\U0001F600");
}

TEST(PlainText, IsWrittenAsUtf8WhereTheCodePageWouldReadAsSomethingElse) {
  for (const char* text : {"яю", "юя", "яю и еще", "юя и еще", "п»ї", "п»їx", "Р°", "Ввод Р°"}) {
    EXPECT_EQ(ReadFrom(Written(text)), text);
  }
  EXPECT_EQ(Written("яю"), "яю");
  EXPECT_EQ(Written("яюx"), "яюx");
  EXPECT_EQ(Written("яя"), "\xFF\xFF");
}

TEST(PlainText, KeepsAMarkThatIsACharacterOfTheText) {
  EXPECT_EQ(ReadFrom(Written("\uFEFF")), "\uFEFF");
  EXPECT_EQ(ReadFrom(Written("\uFEFFtext")), "\uFEFFtext");
  EXPECT_EQ(ReadFrom(Written("a\uFEFF")), "a\uFEFF");
}

// Both ways ----------------------------------------------------------------------------------

std::string TextAtRandom() {
  std::string text;
  for (int count = *rc::gen::inRange(0, 12); count > 0; --count) {
    text += *rc::gen::oneOf(
        rc::gen::element("a"s, "?"s, "\r\n"s, "\t"s, "\0"s, "я"s, "ю"s, "яю"s, "юя"s, "п»ї"s, "№"s),
        rc::gen::element("≤"s, "\uFEFF"s, "\uFFFE"s, "\uFFFD"s, "\U0001F600"s, "\u0098"s, "\u00A0"s,
                         "é"s, "Р°"s),
        rc::gen::map(rc::gen::inRange(0, 256), [](int byte) {
          const std::string character = DecodeCodePage1251(std::string(1, static_cast<char>(byte)));
          return character == "\r" || character == "\n" ? "\r\n"s : character;
        }));
  }
  return text;
}

RC_GTEST_PROP(PlainText, ReadsBackWhateverWasWritten, ()) {
  const std::string text = TextAtRandom();
  RC_ASSERT(ReadFrom(Written(text)) == text);
}

RC_GTEST_PROP(PlainText, ReadsBackInTheWindowWhateverWasSaved, ()) {
  OtchetDesk desk;
  desk.form.Form_Load();
  const std::string text = TextAtRandom();
  desk.Enter(text);
  desk.SaveAs("/home/a", plainTextKind);
  desk.form.mnuFileNew_Click();
  desk.Open("/home/a.txt");
  RC_ASSERT(desk.box.Text() == text);
  RC_ASSERT(desk.Said().empty());
  // A second time nothing changes in the file.
  const std::string bytes = desk.files.Content["/home/a.txt"];
  desk.form.mnuFileSave_Click();
  RC_ASSERT(desk.files.Content["/home/a.txt"] == bytes);
}

RC_GTEST_PROP(PlainText, ReadsAnyBytesAsAWholeText, (const std::string& bytes)) {
  RC_ASSERT(IsUtf8(ReadFrom(bytes)));
}

TEST(PlainText, GetsWholeLineEndsInTheWindow) {
  OtchetDesk desk;
  desk.form.Form_Load();
  desk.files.Content["/home/a.txt"] = "a\nb\rc\r\nd";
  desk.Open("/home/a.txt");
  EXPECT_EQ(desk.box.Text(), "a\r\nb\r\nc\r\nd");
  desk.form.mnuFileSave_Click();
  EXPECT_EQ(desk.files.Content["/home/a.txt"], "a\r\nb\r\nc\r\nd");
}

}  // namespace
}  // namespace trelonit::test

// What other programs of the machine find on the clipboard, and what is taken from theirs.

#include <QApplication>
#include <cstring>
#include <gtest/gtest.h>

#include "editor/rtf/RtfReader.h"
#include "platform/win32/WindowsHeader.h"
#include "windows/services/DesktopServices.h"

namespace trelonit::test {

namespace {

const std::string rtf = "{\\rtf1\\ansi\\ansicpg1251 \\b beam}";

UINT RichTextFormat() {
  return RegisterClipboardFormatW(L"Rich Text Format");
}

/// The bytes of a format; empty where it is not offered.
std::string Offered(UINT format) {
  std::string bytes;
  if (OpenClipboard(nullptr)) {
    if (const HANDLE memory = GetClipboardData(format); memory != nullptr) {
      bytes.assign(static_cast<const char*>(GlobalLock(memory)), GlobalSize(memory));
      GlobalUnlock(memory);
    }
    CloseClipboard();
  }
  return bytes;
}

void Offer(UINT format, const std::string& bytes) {
  ASSERT_TRUE(OpenClipboard(nullptr));
  EmptyClipboard();
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
  std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
  GlobalUnlock(memory);
  SetClipboardData(format, memory);
  CloseClipboard();
  QApplication::processEvents();
}

TEST(ClipboardOfWindows, OffersWordProcessorsTheirFormat) {
  DesktopClipboard().SetRichText(rtf, "beam");
  EXPECT_EQ(Offered(RichTextFormat()).substr(0, rtf.size()), rtf);
}

TEST(ClipboardOfWindows, OffersTextAndHtmlBeside) {
  DesktopClipboard().SetRichText(rtf, "beam");
  EXPECT_EQ(Offered(CF_UNICODETEXT).substr(0, 8), std::string("b\0e\0a\0m\0", 8));
  EXPECT_NE(Offered(RegisterClipboardFormatW(L"HTML Format")).find("beam"), std::string::npos);
}

TEST(ClipboardOfWindows, TakesTheRichTextOfWordProcessors) {
  // They end it with a character 0.
  Offer(RichTextFormat(), rtf + '\0');
  const RichDocument read = ReadRtf(DesktopClipboard().RichText());
  ASSERT_EQ(read.Paragraphs.size(), 1U);
  ASSERT_EQ(read.Paragraphs[0].Runs.size(), 1U);
  EXPECT_EQ(read.Paragraphs[0].Runs[0].Text, u"beam");
  EXPECT_TRUE(read.Paragraphs[0].Runs[0].Format.Bold);
}

}  // namespace

}  // namespace trelonit::test

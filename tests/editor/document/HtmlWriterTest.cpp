#include <gtest/gtest.h>

#include "editor/document/FontFamilies.h"
#include "editor/document/HtmlWriter.h"

namespace trelonit::test {
namespace {

TEST(HtmlWriter, WritesTheWholePage) {
  RichDocument document;
  document.Paragraphs.resize(3);
  CharFormat bold;
  bold.Bold = true;
  bold.TextColor = 0x0000FF;
  document.Paragraphs[0].Runs = {{u"Пояс", {}}, {u"  5 < 6", bold}, {u" & x", {}}};
  document.Paragraphs[2].Runs = {{u"середина", {}}};
  document.Paragraphs[2].Alignment = ParagraphAlignment::Centre;
  EXPECT_EQ(WriteHtml(document, "Отчет <1>"), R"(<!DOCTYPE html>
<html lang="ru">
<head>
<meta charset="utf-8">
<title>Отчет &lt;1&gt;</title>
<style>
p { margin: 0; white-space: pre-wrap; tab-size: 0.5in; }
p.centre { text-align: center; }
p.right { text-align: right; }
p.justified { text-align: justify; }
.f1 { font: 9pt "Lucida Console", monospace; }
.f2 { font: bold 9pt "Lucida Console", monospace; color: #ff0000; }
</style>
</head>
<body>
<p><span class="f1">Пояс</span><span class="f2">  5 &lt; 6</span><span class="f1"> &amp; x</span></p>
<p><br></p>
<p class="centre"><span class="f1">середина</span></p>
</body>
</html>
)");
}

TEST(HtmlWriter, AlignsParagraphsAndLeavesEmptyRunsOut) {
  RichDocument document;
  document.Paragraphs.resize(2);
  document.Paragraphs[0].Alignment = ParagraphAlignment::Right;
  document.Paragraphs[0].Runs = {{u"", {}}, {u"вправо", {}}};
  document.Paragraphs[1].Alignment = ParagraphAlignment::Justified;
  document.Paragraphs[1].Runs = {{u"", {}}};
  const std::string page = WriteHtml(document, "");
  EXPECT_NE(page.find("<p class=\"right\"><span class=\"f1\">вправо</span></p>\n"
                      "<p class=\"justified\"><br></p>\n"),
            std::string::npos)
      << page;
}

std::string StylesOf(const CharFormat& format) {
  RichDocument document;
  document.Paragraphs[0].Runs = {{u"x", format}};
  const std::string page = WriteHtml(document, "");
  const std::size_t start = page.find(".f1");
  return page.substr(start, page.find('\n', start) - start);
}

TEST(HtmlWriter, WritesEveryLook) {
  CharFormat format{.FontName = "Arial", .FontSize = 10.5, .Italic = true};
  format.Underline = true;
  format.StrikeThru = true;
  EXPECT_EQ(StylesOf(format),
            ".f1 { font: italic 10.5pt \"Arial\", sans-serif; text-decoration: underline "
            "line-through; }");
}

TEST(HtmlWriter, WritesEitherLineAlone) {
  CharFormat format{.FontName = "Arial", .FontSize = 10};
  format.Underline = true;
  EXPECT_EQ(StylesOf(format),
            ".f1 { font: 10pt \"Arial\", sans-serif; text-decoration: underline; }");
  format.Underline = false;
  format.StrikeThru = true;
  EXPECT_EQ(StylesOf(format),
            ".f1 { font: 10pt \"Arial\", sans-serif; text-decoration: line-through; }");
}

TEST(HtmlWriter, LetsNoFontNameEndTheStyleSheet) {
  EXPECT_EQ(StylesOf({.FontName = "a\"};\\</style>\n<b"}),
            ".f1 { font: 9pt \"a};/style>b\", sans-serif; }");
}

TEST(HtmlWriter, LeavesControlCharactersOut) {
  RichDocument document;
  document.Paragraphs[0].Runs = {{u"a\u0001\tb\fc", {}}};
  EXPECT_NE(WriteHtml(document, "").find(">a\tbc</span>"), std::string::npos);
}

TEST(FontFamilies, KnowsTheOnesOfOneWidth) {
  for (const char* family :
       {"Lucida Console", "Courier New", "DejaVu Sans Mono", "Noto Sans Mono CJK", "Consolas"}) {
    EXPECT_TRUE(IsFixedWidthFamily(family)) << family;
  }
  for (const char* family : {"Arial", "Lucida Sans", "Monotype Corsiva", ""}) {
    EXPECT_FALSE(IsFixedWidthFamily(family)) << family;
  }
  for (const std::string_view family : fixedWidthFamilies) {
    EXPECT_TRUE(IsFixedWidthFamily(family)) << family;
  }
}

}  // namespace
}  // namespace trelonit::test

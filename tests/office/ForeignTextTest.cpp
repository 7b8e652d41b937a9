#include <gtest/gtest.h>

#include "editor/rtf/RtfReader.h"
#include "tests/office/Documents.h"
#include "tests/office/OfficeBatch.h"

// Documents that LibreOffice made itself and saved as rich text.

namespace trelonit::test {
namespace {

const std::string head =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
 xmlns:xlink="http://www.w3.org/1999/xlink" xmlns:dc="http://purl.org/dc/elements/1.1/"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
 xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"
 office:version="1.3" office:mimetype="application/vnd.oasis.opendocument.text">
<office:font-face-decls>
<style:font-face style:name="Body" svg:font-family="'Times New Roman'"/>
<style:font-face style:name="Mono" svg:font-family="'Courier New'"/>
<style:font-face style:name="Han" svg:font-family="'Noto Sans CJK SC'"/>
</office:font-face-decls>
<office:styles>
<style:default-style style:family="paragraph"><style:text-properties style:font-name="Body"
 fo:font-size="11pt" style:font-name-asian="Han" style:font-size-asian="11pt"
 style:font-name-complex="Body" style:font-size-complex="11pt"/></style:default-style>
<style:style style:name="Standard" style:family="paragraph"/>
<style:style style:name="Head" style:family="paragraph" style:parent-style-name="Standard">
<style:paragraph-properties fo:text-align="center"/>
<style:text-properties style:font-name="Mono" fo:font-size="16pt" fo:font-weight="bold"/>
</style:style>
</office:styles>
<office:automatic-styles>
)";
const std::string foot = "</office:text></office:body></office:document>\n";

/// The text styles and paragraph styles, and the body.
RichDocument SavedAsRichText(const std::string& styles, const std::string& body) {
  const std::vector<std::string> saved = ConvertAll(
      {head + styles + "</office:automatic-styles><office:body><office:text>" + body + foot},
      "fodt", "rtf", "Rich Text Format");
  return saved.empty() ? RichDocument() : ReadRtf(saved.front());
}

std::string TextStyle(const std::string& name, const std::string& properties) {
  return "<style:style style:name=\"" + name + "\" style:family=\"text\"><style:text-properties " +
         properties + "/></style:style>";
}

std::string ParagraphStyle(const std::string& name, const std::string& alignment,
                           const std::string& more = "") {
  return "<style:style style:name=\"" + name +
         "\" style:family=\"paragraph\" style:parent-style-name=\"Standard\">"
         "<style:paragraph-properties fo:text-align=\"" +
         alignment + "\">" + more + "</style:paragraph-properties></style:style>";
}

const CharFormat body{.FontName = "Times New Roman", .FontSize = 11};

TEST(ForeignRichText, EveryFormatIsRead) {
  const std::string line = "style:text-underline-style=\"solid\" ";
  const RichDocument read = SavedAsRichText(
      TextStyle("B", "fo:font-weight=\"bold\"") + TextStyle("I", "fo:font-style=\"italic\"") +
          TextStyle("U", line) + TextStyle("D", line + "style:text-underline-type=\"double\"") +
          TextStyle("W", "style:text-underline-style=\"wave\"") +
          TextStyle("S", "style:text-line-through-style=\"solid\"") +
          TextStyle("R", "fo:color=\"#ff8000\"") +
          TextStyle("F", "style:font-name=\"Mono\" fo:font-size=\"8.5pt\"") +
          TextStyle("A", line + "style:text-line-through-style=\"solid\" fo:color=\"#0000ff\" "
                                "fo:font-weight=\"bold\" fo:font-style=\"italic\""),
      "<text:p text:style-name=\"Head\">Расчёт <text:span text:style-name=\"I\">фермы"
      "</text:span></text:p><text:p text:style-name=\"Standard\">"
      "а<text:span text:style-name=\"B\">б</text:span><text:span text:style-name=\"I\">в"
      "</text:span><text:span text:style-name=\"U\">г</text:span><text:span "
      "text:style-name=\"D\">д</text:span><text:span text:style-name=\"W\">е</text:span>"
      "<text:span text:style-name=\"S\">ж</text:span><text:span text:style-name=\"R\">з"
      "</text:span><text:span text:style-name=\"F\">и</text:span><text:span "
      "text:style-name=\"A\">к</text:span></text:p>");
  const CharFormat heading{.FontName = "Courier New", .FontSize = 16, .Bold = true};
  CharFormat slanted = heading;
  slanted.Italic = true;
  const auto with = [](auto set) {
    CharFormat format = body;
    set(format);
    return format;
  };
  const CharFormat underlined = with([](CharFormat& format) { format.Underline = true; });
  const RichDocument expected{{
      {{{u"Расчёт ", heading}, {u"фермы", slanted}}, ParagraphAlignment::Centre, {}},
      {{{u"а", body},
        {u"б", with([](CharFormat& format) { format.Bold = true; })},
        {u"в", with([](CharFormat& format) { format.Italic = true; })},
        {u"где", underlined},
        {u"ж", with([](CharFormat& format) { format.StrikeThru = true; })},
        {u"з", with([](CharFormat& format) { format.TextColor = 0x0080FF; })},
        {u"и", {.FontName = "Courier New", .FontSize = 8.5}},
        {u"к", with([](CharFormat& format) {
           format.Bold = format.Italic = format.Underline = format.StrikeThru = true;
           format.TextColor = 0xFF0000;
         })}},
       ParagraphAlignment::Left,
       {}},
  }};
  EXPECT_EQ(Described(read), Described(expected));
}

TEST(ForeignRichText, ParagraphsAreRead) {
  const RichDocument read = SavedAsRichText(
      ParagraphStyle("C", "center") + ParagraphStyle("R", "end") + ParagraphStyle("J", "justify") +
          ParagraphStyle("T", "start",
                         "<style:tab-stops><style:tab-stop style:position=\"0.5in\"/>"
                         "<style:tab-stop style:position=\"5cm\"/></style:tab-stops>"),
      "<text:p text:style-name=\"Standard\"/><text:p text:style-name=\"C\">ц</text:p>"
      "<text:p text:style-name=\"R\">п</text:p><text:p text:style-name=\"J\">ш</text:p>"
      "<text:p text:style-name=\"Standard\"/><text:p text:style-name=\"T\">т<text:tab/>а"
      "<text:tab/></text:p><text:p text:style-name=\"Standard\">одна<text:line-break/>две"
      "</text:p><text:p text:style-name=\"Standard\"/>");
  const auto paragraph = [](std::u16string text,
                            ParagraphAlignment alignment = ParagraphAlignment::Left,
                            std::vector<std::int32_t> stops = {}) {
    return RichParagraph{{{std::move(text), body}}, alignment, std::move(stops)};
  };
  const RichDocument expected{{{},
                               paragraph(u"ц", ParagraphAlignment::Centre),
                               paragraph(u"п", ParagraphAlignment::Right),
                               paragraph(u"ш", ParagraphAlignment::Justified),
                               {},
                               paragraph(u"т\tа\t", ParagraphAlignment::Left, {720, 2835}),
                               paragraph(u"одна"),
                               paragraph(u"две"),
                               {}}};
  EXPECT_EQ(Described(read), Described(expected));
}

TEST(ForeignRichText, CharactersAreRead) {
  const RichDocument read = SavedAsRichText(
      TextStyle(
          "X",
          "fo:font-weight=\"bold\" style:font-name-asian=\"Han\" style:font-size-asian=\"20pt\" "
          "style:font-style-asian=\"italic\""),
      "<text:p text:style-name=\"Standard\">{№} \\ « ≥ α Ω — ‑ \u00A0 \u00AD é ł</text:p>"
      "<text:p text:style-name=\"Standard\">два <text:s text:c=\"3\"/>😀</text:p>"
      "<text:p text:style-name=\"Standard\">балка<text:span "
      "text:style-name=\"X\">鋼X</text:span></text:p>");
  CharFormat bold = body;
  bold.Bold = true;
  const CharFormat han{.FontName = "Noto Sans CJK SC", .FontSize = 20, .Italic = true};
  ASSERT_EQ(read.Paragraphs.size(), 3U);
  EXPECT_EQ(Described({{read.Paragraphs[0]}}),
            Described({{{{{u"{№} \\ « ≥ α Ω — ‑ \u00A0 \u00AD é ł", body}}, {}, {}}}}));
  ASSERT_FALSE(read.Paragraphs[1].Runs.empty());
  EXPECT_EQ(read.Paragraphs[1].Runs[0].Text.substr(0, 7), u"два    ");
  EXPECT_EQ(
      read.Paragraphs[1].Runs.back().Text.substr(read.Paragraphs[1].Runs.back().Text.size() - 2),
      u"😀");
  EXPECT_EQ(Described({{read.Paragraphs[2]}}),
            Described({{{{{u"балка", body}, {u"鋼", han}, {u"X", bold}}, {}, {}}}}));
}

TEST(ForeignRichText, OnlyTheTextOfTheDocumentIsRead) {
  const RichDocument read = SavedAsRichText(
      "",
      "<text:p text:style-name=\"Standard\">до<text:note text:note-class=\"footnote\">"
      "<text:note-citation>1</text:note-citation><text:note-body><text:p>сноска</text:p>"
      "</text:note-body></text:note> <office:annotation><dc:creator>кто</dc:creator>"
      "<text:p>заметка</text:p></office:annotation><text:a xlink:type=\"simple\" "
      "xlink:href=\"http://localhost/\">связь</text:a> <text:bookmark text:name=\"метка\"/>"
      "<text:page-number>1</text:page-number></text:p>"
      "<table:table><table:table-column table:number-columns-repeated=\"2\"/>"
      "<table:table-row><table:table-cell><text:p>N</text:p></table:table-cell>"
      "<table:table-cell><text:p>кН</text:p></table:table-cell></table:table-row></table:table>"
      "<text:p text:style-name=\"Standard\">после</text:p>");
  std::u16string text;
  for (const RichParagraph& paragraph : read.Paragraphs) {
    for (const TextRun& run : paragraph.Runs) {
      text += run.Text;
    }
    text += u'\n';
  }
  EXPECT_EQ(text, u"до связь 1\nN\tкН\t\nпосле\n");
}

}  // namespace
}  // namespace trelonit::test

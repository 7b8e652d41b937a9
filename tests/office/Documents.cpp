#include "tests/office/Documents.h"

#include <initializer_list>
#include <random>
#include <set>
#include <sstream>
#include <utility>

#include "editor/document/TextRuns.h"
#include "editor/document/TextUnits.h"
#include "platform/text/Text.h"

namespace trelonit::test {

namespace {

RichParagraph Paragraph(TextRuns runs, ParagraphAlignment alignment = ParagraphAlignment::Left,
                        std::vector<std::int32_t> tabStops = {}) {
  RichParagraph paragraph{{}, alignment, std::move(tabStops)};
  // One by one, so that neighbours that look alike are one run, as they are read.
  for (const TextRun& run : runs) {
    AppendRuns(paragraph.Runs, {run});
  }
  return paragraph;
}

RichParagraph Plain(std::u16string text) {
  return Paragraph({{std::move(text), {}}});
}

CharFormat Styled(unsigned styles) {
  CharFormat format;
  format.Bold = (styles & 1U) != 0;
  format.Italic = (styles & 2U) != 0;
  format.Underline = (styles & 4U) != 0;
  format.StrikeThru = (styles & 8U) != 0;
  return format;
}

RichDocument Styles() {
  RichDocument document{{}};
  for (unsigned styles = 0; styles < 16; ++styles) {
    CharFormat format = Styled(styles);
    document.Paragraphs.push_back(Paragraph({{u"Пояс ", {}}, {u"верхний", format}, {u" N1", {}}}));
    format.FontName = "Arial";
    format.FontSize = 12.5;
    format.TextColor = colorRed;
    document.Paragraphs.push_back(Paragraph({{u"всё сразу", format}}));
  }
  return document;
}

RichDocument FontsSizesColours() {
  TextRuns runs;
  for (const std::string name : {"Lucida Console", "Arial", "Times New Roman", "Courier New",
                                 "Liberation Serif", "DejaVu Sans Mono", "A & B <c>"}) {
    runs.push_back({u"Шрифт ", {.FontName = name}});
  }
  RichDocument document{{Paragraph(runs)}};
  runs.clear();
  for (const double size : {2.0, 6.0, 8.5, 9.0, 10.5, 11.0, 12.0, 14.0, 36.5, 72.0, 200.0}) {
    runs.push_back({u"Размер ", {.FontSize = size}});
  }
  document.Paragraphs.push_back(Paragraph(runs));
  runs.clear();
  for (const Color colour : {0x000000U, 0x0000FFU, 0x00FF00U, 0xFF0000U, 0xFFFFFFU, 0x000001U,
                             0x123456U, 0x808080U, 0x00FFFFU}) {
    runs.push_back({u"Цвет ", {.TextColor = colour}});
  }
  document.Paragraphs.push_back(Paragraph(runs));
  return document;
}

RichDocument Characters() {
  RichDocument document{{}};
  for (const std::u16string_view text : {
           u"АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ абвгдеёжзийклмнопрстуфхцчшщъыьэюя",
           u"ҐґЄєІіЇїЎў Ђђ №§«»„“”‘’…‰€™©®°±µ¶·",
           u"тире – — ‑ и неразрывный\u00A0пробел, мягкий\u00ADперенос",
           u"αβγδ ΣΩ σ≤240 МПа ≥ ≠ ≈ ∑ √ ∞ ∅ ⌀ → ⇒ × ÷ ² ³ ½",
           u"─│┌┐└┘├┤┬┴┼═║ █▓▒░ ■□▲▼◆○●",
           u"{скобки} \\и\\ обратные \\par \\'e0 \\u1060? {\\b} 'x' *;",
           u"<тег attr=\"1\"> & &amp; ]]>",
           u"\tтаб\t\tдва таба\t",
           u"  два пробела   три    четыре ",
           u"éèñßøåæ łżę şğı ČŠŽ",
           u"?x?\u00A0?№?",
           u"!\"#$%&'()*+,-./0123456789:;<=>?@[]^_`|~",
       }) {
    document.Paragraphs.push_back(Plain(std::u16string(text)));
  }
  return document;
}

RichDocument OtherScripts() {
  RichDocument document{{}};
  for (unsigned styles = 0; styles < 4; ++styles) {
    CharFormat format = Styled(styles);
    format.FontName = "Arial";
    format.FontSize = 15;
    document.Paragraphs.push_back(Paragraph({{u"鋼構造 桁 ферма 設計", format}}));
    document.Paragraphs.push_back(Paragraph({{u"שלום и سلام и дальше", format}}));
    document.Paragraphs.push_back(
        Paragraph({{u"😀 и 🏗 в тексте", format}, {u" 𝔸", {}}}));
    document.Paragraphs.push_back(
        Paragraph({{u"한국어", format}, {u"日本", {}}, {u"нет", format}}));
  }
  return document;
}

RichDocument Alignments() {
  using enum ParagraphAlignment;
  RichDocument document{{}};
  for (const auto alignment : {Left, Centre, Right, Justified, Left, Right, Centre}) {
    document.Paragraphs.push_back(Paragraph({{u"Текст абзаца фермы", {}}}, alignment));
    document.Paragraphs.push_back(Paragraph({}, alignment));
  }
  return document;
}

RichDocument TabStops() {
  RichDocument document{{}};
  for (const std::vector<std::int32_t>& stops : {std::vector<std::int32_t>{720},
                                                 {1, 2, 3},
                                                 {567, 1134, 1701, 2268},
                                                 {},
                                                 {360, 9999},
                                                 {100, 1000, 20000}}) {
    document.Paragraphs.push_back(Paragraph({{u"a\tб\tв", {}}}, ParagraphAlignment::Left, stops));
  }
  std::vector<std::int32_t> many;
  for (std::int32_t stop = 1; stop <= 32; ++stop) {
    many.push_back(stop * 311);
  }
  document.Paragraphs.push_back(Paragraph({{u"\t\t\tx", {}}}, ParagraphAlignment::Right, many));
  document.Paragraphs.push_back(Paragraph({}, ParagraphAlignment::Justified, {1000, 2000}));
  return document;
}

RichDocument Report() {
  const CharFormat heading{.FontName = "Arial", .FontSize = 12, .Bold = true};
  RichDocument document{{Paragraph({{u"Расчет фермы", heading}}, ParagraphAlignment::Centre)}};
  for (int section = 1; section <= 20; ++section) {
    const std::string number = std::to_string(section);
    document.Paragraphs.push_back({});
    document.Paragraphs.push_back(Paragraph({{Units(number + ". Усилия в стержнях"), heading}}));
    for (int row = 1; row <= 30; ++row) {
      document.Paragraphs.push_back(
          Plain(Units("Стержень " + std::to_string(row) + "\tN = " + std::to_string(section * row) +
                      ".125 кН\tσ = " + std::to_string(row * 7) + " МПа ≤ Ry·γc = 240 МПа")));
    }
  }
  return document;
}

class AnyDocument {
 public:
  explicit AnyDocument(unsigned seed) : random_(seed) {}

  RichDocument Make() {
    RichDocument document{{}};
    const int paragraphs = Below(12) + 1;
    for (int number = 0; number < paragraphs; ++number) {
      document.Paragraphs.push_back(AnyParagraph());
    }
    return document;
  }

 private:
  int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

  RichParagraph AnyParagraph() {
    TextRuns runs;
    const int count = Below(6);
    for (int run = 0; run < count; ++run) {
      runs.push_back({AnyText(), AnyFormat()});
    }
    std::set<std::int32_t> stops;
    for (int stop = Below(4) == 0 ? Below(32) : 0; stop > 0; --stop) {
      stops.insert(Below(15000) + 1);
    }
    return Paragraph(runs, static_cast<ParagraphAlignment>(Below(4)), {stops.begin(), stops.end()});
  }

  CharFormat AnyFormat() {
    static const std::vector<std::string> names{"Lucida Console", "Arial", "Times New Roman",
                                                "Noto Sans", "DejaVu Sans"};
    CharFormat format = Styled(static_cast<unsigned>(Below(16)));
    format.FontName = names[static_cast<std::size_t>(Below(5))];
    format.FontSize = (Below(140) + 4) / 2.0;
    format.TextColor = Below(2) == 0 ? colorBlack : static_cast<Color>(Below(0x1000000));
    return format;
  }

  std::u16string AnyText() {
    static const std::vector<std::u16string> special{
        u"\\",     u"{", u"}", u"\t",      u" ",     u"\u00A0", u"—", u"№",
        u"鋼",     u"😀", u"Σ", u"?",       u";",     u"'",      u"*", u"\u2011",
        u"\u00AD", u"≥", u"─", u"{\\b x}", u"\\'41", u"\\u65?", u"ї"};
    std::u16string text;
    const int length = Below(15) + 1;
    for (int place = 0; place < length; ++place) {
      switch (Below(3)) {
        case 0:
          text += special[static_cast<std::size_t>(Below(static_cast<int>(special.size())))];
          break;
        case 1:
          text += static_cast<char16_t>(u'А' + Below(64));
          break;
        default:
          text += static_cast<char16_t>(u'!' + Below(94));
      }
    }
    return text;
  }

  std::mt19937 random_;
};

}  // namespace

std::vector<NamedDocument> SampleDocuments() {
  return {{"styles", Styles()},
          {"fonts, sizes, colours", FontsSizesColours()},
          {"characters", Characters()},
          {"other scripts", OtherScripts()},
          {"alignments", Alignments()},
          {"tab stops", TabStops()},
          {"report", Report()},
          {"nothing", {}},
          {"three empty paragraphs", {{{}, {}, {}}}},
          {"empty at the start", {{{}, {}, Plain(u"x")}}},
          {"empty in the middle", {{Plain(u"x"), {}, {}, Plain(u"y")}}},
          {"empty at the end", {{Plain(u"x"), {}, {}}}}};
}

std::vector<NamedDocument> RandomDocuments(int count) {
  std::vector<NamedDocument> documents;
  for (int number = 0; number < count; ++number) {
    documents.push_back(
        {"random " + std::to_string(number), AnyDocument(static_cast<unsigned>(number)).Make()});
  }
  return documents;
}

std::string Described(const RichDocument& document) {
  std::ostringstream lines;
  for (const RichParagraph& paragraph : document.Paragraphs) {
    lines << "paragraph, alignment " << static_cast<int>(paragraph.Alignment) << ", tab stops";
    for (const std::int32_t stop : paragraph.TabStops) {
      lines << ' ' << stop;
    }
    lines << '\n';
    for (const auto& [text, format] : paragraph.Runs) {
      lines << "  [" << Utf8(text) << "] " << format.FontName << ' ' << format.FontSize
            << (format.Bold ? " bold" : "") << (format.Italic ? " italic" : "")
            << (format.Underline ? " underlined" : "") << (format.StrikeThru ? " struck" : "")
            << " colour " << format.TextColor << '\n';
    }
  }
  return lines.str();
}

}  // namespace trelonit::test

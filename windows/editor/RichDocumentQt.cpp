#include "windows/editor/RichDocumentQt.h"

#include <QBrush>
#include <QTextBlock>
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <tuple>
#include <utility>

#include "editor/document/FontFamilies.h"
#include "editor/document/TextRuns.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Units.h"

namespace trelonit {

namespace {

constexpr double pointsPerPixel = 0.75;
/// Half an inch, as a text box has it.
constexpr double tabDistance = 48;

auto Fields(const CharFormat& format) {
  return std::tie(format.FontName, format.FontSize, format.Bold, format.Italic, format.Underline,
                  format.StrikeThru, format.TextColor);
}

/// Characters that a text document of Qt takes for marks of its own.
bool IsMark(char16_t unit) {
  return unit == u'\n' || unit == u'\r' || unit == 0x2028 || unit == 0x2029 || unit == 0xFDD0 ||
         unit == 0xFDD1 || unit == 0xFFFC;
}

/// The text as it can be shown, unit by unit.
QString Shown(std::u16string_view units) {
  QString text(QStringView(units.data(), static_cast<qsizetype>(units.size())).toString());
  if (std::any_of(units.begin(), units.end(), IsMark)) {
    std::replace_if(
        text.begin(), text.end(), [](QChar unit) { return IsMark(unit.unicode()); },
        QChar(QChar::ReplacementCharacter));
  }
  return text;
}

double SizeOf(const QTextCharFormat& format) {
  if (format.hasProperty(QTextFormat::FontPointSize)) {
    return format.fontPointSize();
  }
  if (format.hasProperty(QTextFormat::FontPixelSize)) {
    return format.intProperty(QTextFormat::FontPixelSize) * pointsPerPixel;
  }
  // HTML's relative sizes, from two steps smaller to four larger.
  constexpr std::array<double, 7> factors{0.7, 0.8, 1, 1.2, 1.5, 2, 2.4};
  const int step = std::clamp(format.intProperty(QTextFormat::FontSizeAdjustment) + 2, 0, 6);
  return std::round(CharFormat().FontSize * factors[static_cast<std::size_t>(step)]);
}

ParagraphAlignment AlignmentOf(const QTextBlockFormat& format) {
  const Qt::Alignment alignment = format.alignment();
  if (alignment.testFlag(Qt::AlignHCenter)) {
    return ParagraphAlignment::Centre;
  }
  if (alignment.testFlag(Qt::AlignRight)) {
    return ParagraphAlignment::Right;
  }
  return alignment.testFlag(Qt::AlignJustify) ? ParagraphAlignment::Justified
                                              : ParagraphAlignment::Left;
}

/// A paragraph of the block's kind, empty.
RichParagraph EmptyParagraph(const QTextBlock& block) {
  RichParagraph paragraph;
  const QTextBlockFormat format = block.blockFormat();
  paragraph.Alignment = AlignmentOf(format);
  for (const QTextOption::Tab& tab : format.tabPositions()) {
    paragraph.TabStops.push_back(
        static_cast<std::int32_t>(std::lround(tab.position * twipsPerPixel)));
  }
  return paragraph;
}

/// The text of one look; its line separators begin paragraphs.
void AppendText(RichDocument& document, const QString& text, const CharFormat& format) {
  std::u16string run;
  const auto finish = [&] {
    if (!run.empty()) {
      AppendRuns(document.Paragraphs.back().Runs, {{std::exchange(run, {}), format}});
    }
  };
  for (const QChar unit : text) {
    if (unit == QChar::LineSeparator || unit == QLatin1Char('\n')) {
      finish();
      RichParagraph next{
          {}, document.Paragraphs.back().Alignment, document.Paragraphs.back().TabStops};
      document.Paragraphs.push_back(std::move(next));
    } else if (unit != QChar::ObjectReplacementCharacter) {
      run += unit.unicode();
    }
  }
  finish();
}

void ReadBlock(RichDocument& document, const QTextBlock& block, int from, int to) {
  document.Paragraphs.push_back(EmptyParagraph(block));
  // A line separator at its end only keeps a paragraph of HTML from being empty.
  const bool separated = block.text().endsWith(QChar::LineSeparator);
  to = std::min(to, block.position() + block.length() - (separated ? 2 : 1));
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    const int start = std::max(from, fragment.position());
    const int end = std::min(to, fragment.position() + fragment.length());
    if (start < end) {
      AppendText(document, fragment.text().mid(start - fragment.position(), end - start),
                 FromQt(fragment.charFormat()));
    }
  }
}

}  // namespace

QStringList FamiliesFor(const std::string& family) {
  QStringList families{ToQt(family)};
  if (IsFixedWidthFamily(family)) {
    for (const std::string_view substitute : fixedWidthFamilies) {
      families.append(
          QString::fromLatin1(substitute.data(), static_cast<qsizetype>(substitute.size())));
    }
  }
  return families;
}

QFont FontFor(const CharFormat& format) {
  return ToQt(format).font();
}

QTextCharFormat ToQt(const CharFormat& format) {
  QTextCharFormat result;
  result.setFontFamilies(FamiliesFor(format.FontName));
  if (IsFixedWidthFamily(format.FontName)) {
    result.setFontStyleHint(QFont::Monospace);
    result.setFontFixedPitch(true);
  }
  if (format.FontSize > 0) {
    result.setFontPointSize(format.FontSize);
  }
  if (format.Bold) {
    result.setFontWeight(QFont::Bold);
  }
  if (format.Italic) {
    result.setFontItalic(true);
  }
  if (format.Underline) {
    result.setFontUnderline(true);
  }
  if (format.StrikeThru) {
    result.setFontStrikeOut(true);
  }
  if (format.TextColor != colorBlack && (format.TextColor & systemColor) == 0) {
    result.setForeground(ToQt(format.TextColor));
  }
  return result;
}

Color ColorOf(const QColor& color) {
  return static_cast<Color>(color.red()) | static_cast<Color>(color.green()) << 8 |
         static_cast<Color>(color.blue()) << 16;
}

QColor ToQt(Color color) {
  return {static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
          static_cast<int>((color >> 16) & 0xFF)};
}

CharFormat FromQt(const QTextCharFormat& format) {
  CharFormat result;
  const QStringList families = format.fontFamilies().toStringList();
  if (!families.isEmpty() && !families.front().isEmpty()) {
    result.FontName = FromQt(families.front());
  }
  result.FontSize = SizeOf(format);
  result.Bold = format.fontWeight() >= QFont::DemiBold;
  result.Italic = format.fontItalic();
  result.Underline = format.fontUnderline();
  result.StrikeThru = format.fontStrikeOut();
  if (format.foreground().style() != Qt::NoBrush) {
    result.TextColor = ColorOf(format.foreground().color());
  }
  return result;
}

QTextBlockFormat BlockFormatOf(const RichParagraph& paragraph, double zoom) {
  QTextBlockFormat format;
  switch (paragraph.Alignment) {
    case ParagraphAlignment::Centre:
      format.setAlignment(Qt::AlignHCenter);
      break;
    case ParagraphAlignment::Right:
      format.setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
      break;
    case ParagraphAlignment::Justified:
      format.setAlignment(Qt::AlignJustify);
      break;
    default:
      break;
  }
  if (!paragraph.TabStops.empty()) {
    QList<QTextOption::Tab> tabs;
    for (const std::int32_t stop : paragraph.TabStops) {
      tabs.append(QTextOption::Tab(zoom * stop / twipsPerPixel, QTextOption::LeftTab));
    }
    format.setTabPositions(tabs);
  }
  return format;
}

bool RichDocumentWriter::Less::operator()(const CharFormat& left, const CharFormat& right) const {
  return Fields(left) < Fields(right);
}

const QTextCharFormat& RichDocumentWriter::FormatOf(const CharFormat& format) {
  const auto known = formats_.find(format);
  if (known != formats_.end()) {
    return known->second;
  }
  CharFormat shown = format;
  shown.FontSize *= zoom_;
  return formats_.emplace(format, ToQt(shown)).first->second;
}

void RichDocumentWriter::SetZoom(double zoom) {
  if (zoom != zoom_) {
    zoom_ = zoom;
    formats_.clear();
  }
}

void RichDocumentWriter::InsertRuns(QTextCursor& cursor, const RichParagraph& paragraph,
                                    std::size_t from, std::size_t to) {
  std::size_t start = 0;
  for (const TextRun& run : paragraph.Runs) {
    const std::size_t end = start + run.Text.size();
    const std::size_t first = std::max(from, start);
    const std::size_t last = std::min(to, end);
    if (first < last) {
      const std::u16string_view units = run.Text;
      cursor.insertText(Shown(units.substr(first - start, last - first)), FormatOf(run.Format));
    }
    start = end;
  }
}

void RichDocumentWriter::Insert(QTextCursor& cursor, const RichDocument& document,
                                const RichPlace& first, const RichPlace& last) {
  for (std::size_t index = first.Paragraph; index <= last.Paragraph; ++index) {
    const RichParagraph& paragraph = document.Paragraphs[index];
    if (index > first.Paragraph) {
      // An empty paragraph is as high as the letters in front of it.
      cursor.insertBlock(BlockFormatOf(paragraph, zoom_), cursor.charFormat());
    }
    InsertRuns(cursor, paragraph, index == first.Paragraph ? first.Offset : 0,
               index == last.Paragraph ? last.Offset : std::u16string::npos);
  }
}

void FillDocument(QTextDocument& target, const RichDocument& document, RichDocumentWriter& writer) {
  target.clear();
  QTextOption option = target.defaultTextOption();
  option.setTabStopDistance(tabDistance * writer.Zoom());
  target.setDefaultTextOption(option);
  QTextCursor cursor(&target);
  cursor.beginEditBlock();
  cursor.setBlockFormat(BlockFormatOf(document.Paragraphs.front(), writer.Zoom()));
  writer.Insert(cursor, document, {}, {document.Paragraphs.size() - 1, std::u16string::npos});
  cursor.endEditBlock();
}

void FillDocument(QTextDocument& target, const RichDocument& document) {
  RichDocumentWriter writer;
  FillDocument(target, document, writer);
}

RichDocument ReadSelection(const QTextCursor& selection) {
  RichDocument document;
  document.Paragraphs.clear();
  const QTextDocument& source = *selection.document();
  const int from = selection.selectionStart();
  const int to = selection.selectionEnd();
  for (QTextBlock block = source.findBlock(from); block.isValid() && block.position() <= to;
       block = block.next()) {
    ReadBlock(document, block, from, to);
  }
  return document;
}

RichDocument ReadDocument(const QTextDocument& source) {
  RichDocument document;
  document.Paragraphs.clear();
  for (QTextBlock block = source.begin(); block.isValid(); block = block.next()) {
    ReadBlock(document, block, 0, source.characterCount());
  }
  return document;
}

}  // namespace trelonit

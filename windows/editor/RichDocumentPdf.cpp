#include "windows/editor/RichDocumentPdf.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFontMetricsF>
#include <QPageRanges>
#include <QPainter>
#include <QPalette>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>
#include <functional>

#include "platform/errors/RuntimeError.h"
#include "windows/binding/Binding.h"
#include "windows/editor/FittingScale.h"
#include "windows/editor/RichDocumentQt.h"

namespace trelonit {

namespace {

constexpr double filedMargin = 20;  ///< mm
constexpr double otherMargin = 15;  ///< mm

/// The foot of a page.
class Foot {
 public:
  explicit Foot(QPagedPaintDevice& device)
      : font_(FontFor({.FontName = "DejaVu Sans", .FontSize = 8}), &device),
        metrics_(font_, &device) {}
  /// With the gap above it.
  double Height() const { return 2 * metrics_.lineSpacing(); }
  void Paint(QPainter& painter, const QRectF& page, int number, int count) const {
    painter.setFont(font_);
    painter.setPen(Qt::black);
    painter.drawText(page, Qt::AlignBottom | Qt::AlignHCenter,
                     QStringLiteral("Стр. %1 из %2").arg(number).arg(count));
  }

 private:
  QFont font_;
  QFontMetricsF metrics_;
};

bool IsBlank(const QTextBlock& block) {
  return block.text().trimmed().isEmpty();
}

/// Letters, and all of them bold.
bool IsHeading(const QTextBlock& block) {
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    if (fragment.charFormat().fontWeight() < QFont::DemiBold &&
        !fragment.text().trimmed().isEmpty()) {
      return false;
    }
  }
  return !IsBlank(block);
}

/// The page of the paragraph's first line.
int PageOf(const QTextBlock& block, double pageHeight) {
  // Asked for its box, the document is laid out as far as this paragraph.
  block.document()->documentLayout()->blockBoundingRect(block);
  const QTextLayout& lines = *block.layout();
  const double line = lines.lineCount() > 0 ? lines.lineAt(0).y() : 0;
  return static_cast<int>((lines.position().y() + line) / pageHeight);
}

/// A heading that would stand at the end of a page goes to the next one with what it heads.
void KeepHeadingsWithTheirText(QTextDocument& text) {
  // All of it has to be laid out first: a change within a text that is half so loses the rest.
  text.pageCount();
  const double pageHeight = text.pageSize().height();
  QTextBlock first;
  QTextBlock last;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    if (IsHeading(block)) {
      last = block;
      first = first.isValid() ? first : block;
      continue;
    }
    if (IsBlank(block) || !first.isValid()) {
      continue;
    }
    const int page = PageOf(block, pageHeight);
    // Headings that fill a page of their own stay; the last one goes along.
    const QTextBlock moved = PageOf(first, pageHeight) + 1 >= page ? first : last;
    if (PageOf(moved, pageHeight) < page) {
      QTextBlockFormat format = moved.blockFormat();
      format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
      QTextCursor(moved).setBlockFormat(format);
    }
    first = {};
  }
}

void PaintPage(QPainter& painter, QTextDocument& text, const QSizeF& size, int page) {
  const QRectF part(QPointF(0, page * size.height()), size);
  painter.save();
  painter.setClipRect(QRectF(QPointF(0, 0), size));
  painter.translate(-part.topLeft());
  QAbstractTextDocumentLayout::PaintContext context;
  // Lines that only touch the page belong to its neighbours.
  context.clip = part.adjusted(0, 1, 0, -1);
  // Ink, whatever the desktop's colours are.
  context.palette.setColor(QPalette::Text, Qt::black);
  text.documentLayout()->draw(&painter, context);
  painter.restore();
}

/// What pages leave for the text over their foot.
QSizeF TextSize(QPagedPaintDevice& device, const Foot& foot) {
  return {static_cast<double>(device.width()), device.height() - foot.Height()};
}

void LayOut(QTextDocument& text, QPagedPaintDevice& device) {
  text.setDocumentMargin(0);
  text.documentLayout()->setPaintDevice(&device);
  text.setPageSize(TextSize(device, Foot(device)));
}

int PaintLaidOut(QTextDocument& text, QPagedPaintDevice& device, QPainter& painter) {
  const Foot foot(device);
  const QRectF page(0, 0, device.width(), device.height());
  const int count = text.pageCount();
  const QPageRanges ranges = device.pageRanges();
  bool painted = false;
  for (int number = 1; number <= count; ++number) {
    if (!ranges.isEmpty() && !ranges.contains(number)) {
      continue;
    }
    if (painted && !device.newPage()) {
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
    painted = true;
    PaintPage(painter, text, TextSize(device, foot), number - 1);
    foot.Paint(painter, page, number, count);
  }
  return count;
}

/// Runs the painting with a painter of its own on the device.
int Painted(QPagedPaintDevice& device, const std::function<int(QPainter&)>& paint) {
  QPainter painter;
  if (!painter.begin(&device)) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  const int count = paint(painter);
  if (!painter.end()) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  return count;
}

}  // namespace

QPageLayout PaperLayout() {
  return {QPageSize(QPageSize::A4), QPageLayout::Portrait,
          QMarginsF(filedMargin, otherMargin, otherMargin, otherMargin), QPageLayout::Millimeter};
}

int PaintDocument(const RichDocument& document, QPagedPaintDevice& device) {
  return Painted(device,
                 [&](QPainter& painter) { return PaintDocument(document, device, painter); });
}

int PaintDocument(const RichDocument& document, QPagedPaintDevice& device, QPainter& painter) {
  QTextDocument text;
  RichDocumentWriter writer;
  writer.SetZoom(FittingScale(document));
  FillDocument(text, document, writer);
  text.setDefaultFont(FontFor({}));
  LayOut(text, device);
  KeepHeadingsWithTheirText(text);
  // From the beginning once more, the breaks being known.
  text.setPageSize(text.pageSize());
  return PaintLaidOut(text, device, painter);
}

int PaintPages(QTextDocument& text, QPagedPaintDevice& device) {
  LayOut(text, device);
  return Painted(device, [&](QPainter& painter) { return PaintLaidOut(text, device, painter); });
}

std::string WritePdf(const RichDocument& document, const std::string& title,
                     const QPageLayout& layout) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setPageLayout(layout);
    writer.setTitle(ToQt(title));
    writer.setCreator(QStringLiteral("Trelonit"));
    PaintDocument(document, writer);
  }
  return bytes.data().toStdString();
}

}  // namespace trelonit

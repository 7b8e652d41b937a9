#include "windows/results/TablePrint.h"

#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include "platform/errors/Guard.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/editor/RichDocumentPdf.h"
#include "windows/services/DesktopServices.h"

namespace trelonit {

namespace {

constexpr double paperMargin = 12;  ///< mm
constexpr double titlePoints = 11;
constexpr double tablePoints = 7.5;

QTextCharFormat Letters(double points, bool bold) {
  QTextCharFormat format;
  format.setFontFamilies({QStringLiteral("DejaVu Sans")});
  format.setFontPointSize(points);
  format.setFontWeight(bold ? QFont::Bold : QFont::Normal);
  return format;
}

QTextTableFormat TableLook() {
  QTextTableFormat look;
  look.setHeaderRowCount(1);
  look.setBorder(0.5);
  look.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  look.setBorderCollapse(true);
  look.setCellPadding(2);
  look.setCellSpacing(0);
  look.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  return look;
}

void WriteTable(QTextDocument& document, const ResultTable& table, const NumberLocale& locale) {
  QTextCursor cursor(&document);
  cursor.insertText(ToQt(table.Title), Letters(titlePoints, true));
  cursor.insertBlock();
  const int columns = static_cast<int>(table.Columns.size());
  QTextTable* cells =
      cursor.insertTable(static_cast<int>(table.Rows.size()) + 1, columns, TableLook());
  const auto write = [&](int row, int column, const QString& text, bool bold,
                         Qt::Alignment alignment) {
    QTextCursor place = cells->cellAt(row, column).firstCursorPosition();
    QTextBlockFormat block;
    block.setAlignment(alignment);
    place.setBlockFormat(block);
    place.insertText(text, Letters(tablePoints, bold));
  };
  for (int column = 0; column < columns; ++column) {
    const TableColumn& told = table.Columns[static_cast<std::size_t>(column)];
    write(0, column, ToQt(told.Head()), true, Qt::AlignHCenter);
    for (int row = 0; row < static_cast<int>(table.Rows.size()); ++row) {
      const TableCell& cell =
          table.Rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
      write(row + 1, column, ToQt(ShownCell(cell, told, locale)), false,
            std::holds_alternative<double>(cell) ? Qt::AlignRight : Qt::AlignLeft);
    }
  }
}

}  // namespace

int PaintTable(const ResultTable& table, const NumberLocale& locale, QPagedPaintDevice& device) {
  QTextDocument document;
  WriteTable(document, table, locale);
  return PaintPages(document, device);
}

void PreviewTable(const ResultTable& table, const NumberLocale& locale, QWidget* parent) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Landscape,
                         QMarginsF(paperMargin, paperMargin, paperMargin, paperMargin),
                         QPageLayout::Millimeter});
  printer.setDocName(ToQt(table.Title));
  QPrintPreviewDialog dialog(&printer, parent);
  dialog.setWindowTitle(QStringLiteral("Печать таблицы - ") + ToQt(table.Title));
  ResizeWithinScreen(dialog, {1000, 760});
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* target) {
    DesktopMessages messages;
    Guard(messages, "mnuPrintTable_Click", [&] { PaintTable(table, locale, *target); });
  });
  dialog.exec();
}

}  // namespace trelonit

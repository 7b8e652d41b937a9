#include "windows/binding/ShownLines.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace trelonit {

namespace {

/// A block without lines of its own is not laid out, and counts as one.
int LinesOf(const QTextBlock& block) {
  return std::max(1, block.layout()->lineCount());
}

/// Asking for the size has everything laid out.
void LayOut(const QTextDocument& document) {
  document.documentLayout()->documentSize();
}

}  // namespace

Long CountLines(const QTextDocument& document) {
  LayOut(document);
  Long lines = 0;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    lines += LinesOf(block);
  }
  return lines;
}

Long FirstLineInView(const QTextEdit& edit) {
  const QTextDocument& document = *edit.document();
  // A little below the edge, where no two lines meet; there is no text in the margin.
  const double edge = edit.verticalScrollBar()->value();
  const double top = std::max(edge, document.documentMargin()) + 0.5;
  const QAbstractTextDocumentLayout& layout = *document.documentLayout();
  const QTextBlock first = document.findBlock(std::max(0, layout.hitTest({0, top}, Qt::FuzzyHit)));
  Long lines = 0;
  for (QTextBlock block = document.begin(); block != first; block = block.next()) {
    lines += LinesOf(block);
  }
  const double within = top - layout.blockBoundingRect(first).top();
  for (int line = 0; line + 1 < first.layout()->lineCount() &&
                     first.layout()->lineAt(line).rect().bottom() <= within;
       ++line) {
    ++lines;
  }
  return lines;
}

void ScrollToLine(QTextEdit& edit, Long line) {
  const QTextDocument& document = *edit.document();
  LayOut(document);
  QTextBlock block = document.begin();
  Long left = std::max<Long>(0, line);
  while (block.next().isValid() && left >= LinesOf(block)) {
    left -= LinesOf(block);
    block = block.next();
  }
  const double top = document.documentLayout()->blockBoundingRect(block).top() +
                     block.layout()->lineAt(std::min(left, LinesOf(block) - 1)).rect().top();
  // The first line brings the margin above it along.
  edit.verticalScrollBar()->setValue(line <= 0 ? 0 : static_cast<int>(std::ceil(top)));
}

}  // namespace trelonit

#include "windows/help/HelpPageView.h"

#include <algorithm>

namespace trelonit {

namespace {

constexpr int smallest = -4;
constexpr int largest = 12;

const QColor markColor(255, 224, 102);

}  // namespace

HelpPageView::HelpPageView() {
  setOpenLinks(false);
  setOpenExternalLinks(false);
  QObject::connect(this, &QTextBrowser::anchorClicked, this,
                   [this](const QUrl& link) { Follow(link); });
}

void HelpPageView::Go(const QString& page) {
  const QUrl url = HelpPages::UrlOf(page);
  if (HelpPages::PageAt(url).isEmpty()) {
    Refused(QStringLiteral("В справке нет такой страницы: %1").arg(page));
  } else if (url != source()) {
    setSource(url);
  } else if (url.hasFragment()) {
    scrollToAnchor(url.fragment());
  } else {
    moveCursor(QTextCursor::Start);
  }
}

void HelpPageView::Follow(const QUrl& link) {
  const QString page = HelpPages::PageAt(link);
  if (page.isEmpty()) {
    Refused(QStringLiteral("Ссылка ведет за пределы справки: %1").arg(link.toDisplayString()));
  } else {
    Go(page);
  }
}

void HelpPageView::Mark(const QStringList& words) {
  marked_ = FindWords(toPlainText(), words);
  QList<QTextEdit::ExtraSelection> marks;
  for (const HelpSpan& span : marked_) {
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(document());
    mark.cursor.setPosition(span.Start);
    mark.cursor.setPosition(span.Start + span.Length, QTextCursor::KeepAnchor);
    // Both colours, so that a dark theme's light letters do not stand on the light mark.
    mark.format.setBackground(markColor);
    mark.format.setForeground(Qt::black);
    marks.push_back(mark);
  }
  setExtraSelections(marks);
}

void HelpPageView::GoToFirstMark() {
  if (!marked_.empty()) {
    GoTo(marked_.front());
  }
}

void HelpPageView::GoTo(const HelpSpan& span) {
  QTextCursor cursor(document());
  cursor.setPosition(span.Start);
  cursor.setPosition(span.Start + span.Length, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  ensureCursorVisible();
}

HelpPageView::Found HelpPageView::FindNext(const QString& text, bool forward) {
  Mark(text.isEmpty() ? QStringList() : QStringList(text));
  if (marked_.empty()) {
    return {};
  }
  const QTextCursor cursor = textCursor();
  std::size_t next = 0;
  if (forward) {
    while (next < marked_.size() && marked_[next].Start < cursor.selectionEnd()) {
      ++next;
    }
    next = next == marked_.size() ? 0 : next;
  } else {
    next = marked_.size();
    while (next > 0 && marked_[next - 1].Start >= cursor.selectionStart()) {
      --next;
    }
    next = (next == 0 ? marked_.size() : next) - 1;
  }
  GoTo(marked_[next]);
  return {next + 1, marked_.size()};
}

void HelpPageView::StayAtPlace() {
  QTextCursor cursor = textCursor();
  cursor.setPosition(cursor.selectionStart());
  setTextCursor(cursor);
}

void HelpPageView::ZoomTo(int step) {
  const int next = std::clamp(step, smallest, largest);
  zoomIn(next - zoom_);
  zoom_ = next;
}

}  // namespace trelonit

#pragma once

#include <QFrame>
#include <QLabel>
#include <QWidget>
#include <optional>

#include "opinion/Findings.h"
#include "platform/forms/Controls.h"

class QHBoxLayout;

namespace trelonit {

class PictureView;

// What an engineer must not overlook: marks with their words, in the window and without a box that
// pops up.

/// The colour of words of this severity.
QColor SeverityColor(Severity severity, const QPalette& palette);

/// The mark of a severity, as high as a line of text.
PictureView* NewSeverityMark(Severity severity);

/// A mark and a text that wraps.
class NoticeLine : public QWidget {
 public:
  explicit NoticeLine(Severity severity, QWidget* parent = nullptr);
  QLabel& Text() { return *text_; }
  /// For what stands behind the text.
  QHBoxLayout& Row() { return *row_; }

 private:
  QHBoxLayout* row_;
  QLabel* text_;
};

/// Shows the text, and the line only while the label is visible.
void Bind(Label& state, NoticeLine* line);

/// A field in the tint of a severity; without one it is plain.
class NoticeFrame : public QFrame {
 public:
  explicit NoticeFrame(std::optional<Severity> severity, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::optional<Severity> severity_;
};

/// A text in one line, cut off at the end where there is no room for it.
class ElidedLabel : public QLabel {
 public:
  explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace trelonit

#pragma once

#include <QTextDocument>
#include <QTextEdit>

#include "platform/values/Integers.h"

namespace trelonit {

// Lines as a text edit shows them: a paragraph that wraps has several. They count from 0.

/// Lays out the whole text.
Long CountLines(const QTextDocument& document);
/// The uppermost line in view, if only a part of it.
Long FirstLineInView(const QTextEdit& edit);
/// Brings the line to the upper edge, as far as the text below it allows.
void ScrollToLine(QTextEdit& edit, Long line);

}  // namespace trelonit

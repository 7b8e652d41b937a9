#pragma once

#include <QTextBlock>
#include <QTextEdit>

#include "editor/document/RichTextBox.h"

namespace trelonit::test {

/// What the widget shows, counted as the box counts.
inline TextSpan ShownSelection(const QTextEdit& widget) {
  const auto position = [&](int place) {
    return place + widget.document()->findBlock(place).blockNumber();
  };
  const QTextCursor cursor = widget.textCursor();
  const Long start = position(cursor.selectionStart());
  return {start, position(cursor.selectionEnd()) - start};
}

}  // namespace trelonit::test

#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "editor/document/RichTextBox.h"
#include "editor/undo/clsUndo.h"

namespace trelonit {

/// What a piece of the report is, as far as its look goes.
enum class ReportRole { Line, Heading, Warning };

/// Appends pieces of the calculation report to the end of a box, through its undo class: each piece
/// is one step. The text stays as it is; headings, titles of groups, values and warnings look
/// different, so that the report reads as a document. The
/// box shows nothing of it before the typist goes.
class ReportTypist {
 public:
  /// The font is that of the plain lines.
  ReportTypist(RichTextBox& rtf, clsUndo& undo, CharFormat font)
      : rtf_(rtf), undo_(undo), font_(std::move(font)) {}

  void Append(const std::string& text, ReportRole role);

 private:
  void MarkLines(Long start, std::string_view text, bool warning);
  void Mark(Long start, Long length, const CharFormat& look);

  RichTextBox& rtf_;
  UpdateLock lock_{rtf_};
  clsUndo& undo_;
  CharFormat font_;
  bool first_ = true;
};

}  // namespace trelonit

#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "editor/document/RichDocument.h"
#include "editor/document/RichTextBox.h"

namespace trelonit {

/// What a piece of the report is, as far as its look goes.
enum class ReportRole { Line, Heading, Warning };

/// A part of a piece; strong are values and titles.
struct LookSpan {
  std::string Text;
  bool Strong = false;
};

struct LookPiece {
  std::vector<LookSpan> Spans;
  ReportRole Role = ReportRole::Line;
};

/// Appends pieces of the calculation report to the end of a box. The text stays as it is; headings,
/// titles of groups, values and warnings look different, so that the report reads as a document.
/// The box shows nothing of it before the typist goes.
class ReportTypist {
 public:
  /// Puts a text in the place of the selection.
  using Insert = std::function<void(const std::string&)>;

  /// The font is that of the plain lines.
  ReportTypist(RichTextBox& rtf, Insert insert, CharFormat font)
      : rtf_(rtf), insert_(std::move(insert)), font_(std::move(font)) {}

  void Append(const LookPiece& piece);

 private:
  void Mark(Long start, Long length, const CharFormat& look);

  RichTextBox& rtf_;
  UpdateLock lock_{rtf_};
  Insert insert_;
  CharFormat font_;
  bool first_ = true;
};

/// The report as a document, without an editor.
RichDocument ReportDocument(const std::vector<LookPiece>& pieces);

}  // namespace trelonit

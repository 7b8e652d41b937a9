#pragma once

#include <functional>
#include <string>

#include "editor/document/RichDocument.h"
#include "platform/forms/Controls.h"
#include "platform/values/Integers.h"

namespace trelonit {

/// Options of a search; they are added together.
constexpr Long findWholeWord = 2;
constexpr Long findMatchCase = 4;

/// A part of the text, in UTF-16 units.
struct TextSpan {
  Long Start = 0;
  Long Length = 0;

  friend bool operator==(const TextSpan&, const TextSpan&) = default;
};

/// A box with formatted text. Texts go in and out as UTF-8 with carriage return and line feed at a
/// line end (going in, either alone makes a line end too); positions and lengths count UTF-16 units
/// from 0, a line end being two. Whatever replaces text or its format raises Change.
class RichTextBox : public ControlState {
 public:
  static constexpr Long notFound = -1;

  virtual ~RichTextBox() = default;

  virtual std::string Text() const = 0;
  /// Replaces everything; the new text has the format that typing in the box starts with.
  virtual void SetText(const std::string& text) = 0;
  virtual Long TextLength() const = 0;
  /// The whole document in rich text format.
  virtual std::string TextRTF() const = 0;
  virtual const RichDocument& Document() const = 0;
  /// What does not begin as rich text is taken as plain text.
  virtual void SetTextRTF(const std::string& rtf) = 0;

  virtual Long SelStart() const = 0;
  virtual Long SelLength() const = 0;
  /// Puts the caret there and selects nothing. Beyond the text is its end, before it its start.
  virtual void SetSelStart(Long start) = 0;
  /// Selects from the caret on, at most to the end of the text. A selection never divides a line
  /// end or a surrogate pair: its start goes in front of the whole, its end behind.
  virtual void SetSelLength(Long length) = 0;
  void Select(Long start, Long length) {
    SetSelStart(start);
    SetSelLength(length);
  }

  virtual std::string SelText() const = 0;
  /// Replaces the selection and leaves the caret behind the new text, which looks like the first
  /// character replaced, else like the character in front of it.
  virtual void SetSelText(const std::string& text) = 0;
  /// The selection in rich text format; empty for an empty selection.
  virtual std::string SelRTF() const = 0;
  /// Replaces the selection. Of several paragraphs the first joins the paragraph of the caret and
  /// takes its alignment, the others bring their own. What does not begin as rich text is taken as
  /// plain text.
  virtual void SetSelRTF(const std::string& rtf) = 0;

  /// The first place at or behind the start where the text stands, or -1. Selects nothing.
  virtual Long Find(const std::string& text, Long start, Long options) const = 0;

  /// The line, from 0, that holds the position. Lines end at line ends alone.
  virtual Long LineOf(Long position) const = 0;
  /// That line without its line end.
  virtual TextSpan LineSpan(Long position) const = 0;
  /// Lines as the box shows them: where it wraps, a long one counts as many.
  virtual Long LineCount() const = 0;
  /// The first line that is to be seen, as the box shows lines.
  virtual Long FirstVisibleLine() const = 0;
  virtual void SetFirstVisibleLine(Long line) = 0;

  /// Format of the first selected character, or of what would be typed.
  virtual CharFormat SelFormat() const = 0;
  virtual void SetSelFormat(const CharFormat& format) = 0;

  /// Between the two the window shows no change. The calls nest: see UpdateLock.
  virtual void LockUpdates() = 0;
  virtual void UnlockUpdates() = 0;

  /// 0 wraps at the box's edge; otherwise where lines wrap, twips.
  Long RightMargin() const { return rightMargin_; }
  void SetRightMargin(Long margin) { Assign(rightMargin_, margin); }
  Color BackColor() const { return backColor_; }
  void SetBackColor(Color color) { Assign(backColor_, color); }
  /// Whether the pointer over the box is the hourglass.
  bool Hourglass() const { return hourglass_; }
  void SetHourglass(bool hourglass) { Assign(hourglass_, hourglass); }

  std::function<void()> Change;

 protected:
  void RaiseChange() { Raise(Change); }

 private:
  Long rightMargin_ = 0;
  Color backColor_ = 0xFFFFFF;
  bool hourglass_ = false;
};

/// Keeps the updates of a box locked as long as it lives.
class UpdateLock {
 public:
  explicit UpdateLock(RichTextBox& box) : box_(box) { box_.LockUpdates(); }
  ~UpdateLock() { box_.UnlockUpdates(); }
  UpdateLock(const UpdateLock&) = delete;
  UpdateLock& operator=(const UpdateLock&) = delete;

 private:
  RichTextBox& box_;
};

}  // namespace trelonit

#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "editor/document/RichTextBox.h"
#include "editor/document/TextRuns.h"

namespace trelonit {

/// A rich-text box without a window. Wraps nothing. An edit costs no more than its paragraph, so
/// that typing stays cheap in a long text.
class MemoryRichTextBox : public RichTextBox {
 public:
  std::string Text() const override;
  void SetText(const std::string& text) override;
  Long TextLength() const override { return length_; }
  std::string TextRTF() const override;
  void SetTextRTF(const std::string& rtf) override;

  Long SelStart() const override { return selStart_; }
  Long SelLength() const override { return selEnd_ - selStart_; }
  void SetSelStart(Long start) override;
  void SetSelLength(Long length) override;

  std::string SelText() const override;
  void SetSelText(const std::string& text) override;
  std::string SelRTF() const override;
  void SetSelRTF(const std::string& rtf) override;

  Long Find(const std::string& text, Long start, Long options) const override;

  Long LineOf(Long position) const override;
  TextSpan LineSpan(Long position) const override;
  Long LineCount() const override { return static_cast<Long>(document_.Paragraphs.size()); }
  Long FirstVisibleLine() const override { return firstVisibleLine_; }
  void SetFirstVisibleLine(Long line) override { firstVisibleLine_ = line; }

  CharFormat SelFormat() const override;
  void SetSelFormat(const CharFormat& format) override;

  void LockUpdates() override {}
  void UnlockUpdates() override {}

  const RichDocument& Document() const override { return document_; }
  void SetDocument(RichDocument document);

 private:
  /// A position: its paragraph, where that begins, and the distance from there. Within a line end
  /// the offset is one more than the paragraph's length.
  struct Place {
    std::size_t Paragraph;
    std::size_t Start;
    std::size_t Offset;
  };
  struct ParagraphStart {
    std::size_t Paragraph = 0;
    std::size_t Start = 0;
  };

  const TextRuns& RunsOf(std::size_t paragraph) const {
    return document_.Paragraphs[paragraph].Runs;
  }
  Place Locate(Long position) const;
  Long Clamped(Long position) const;
  RichDocument Selected() const;
  void ReplaceSelection(const RichDocument& piece);
  void Remove(const Place& first, const Place& last);
  void Insert(const Place& place, const RichDocument& piece);
  /// The paragraph, and as much behind it as a text with so many line ends can reach from there.
  std::u16string TextToSearch(std::size_t paragraph, std::ptrdiff_t lineEnds) const;

  RichDocument document_;
  Long length_ = 0;
  Long selStart_ = 0;
  Long selEnd_ = 0;
  Long firstVisibleLine_ = 0;
  /// What typing begins with where no character tells the format.
  CharFormat baseFormat_;
  /// Chosen with nothing selected; holds until the caret moves.
  std::optional<CharFormat> typingFormat_;
  /// Where the last position was found: the next one is mostly near.
  mutable ParagraphStart near_;
};

}  // namespace trelonit

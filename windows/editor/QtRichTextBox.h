#pragma once

#include <QPointer>
#include <QTextCursor>
#include <functional>
#include <string>

#include "editor/document/MemoryRichTextBox.h"
#include "editor/document/RichTextBox.h"
#include "windows/editor/RichDocumentQt.h"
#include "windows/editor/RichTextView.h"

namespace trelonit {

/// A rich-text box on the screen. The text itself is kept as a box in memory keeps it, since Qt's
/// document cannot hold every character and has another idea of lines and formats; the widget shows
/// it and takes what the user does.
class QtRichTextBox : public RichTextBox {
 public:
  QtRichTextBox();
  /// Takes the widget along if it is still there.
  ~QtRichTextBox() override;
  QtRichTextBox(const QtRichTextBox&) = delete;
  QtRichTextBox& operator=(const QtRichTextBox&) = delete;

  /// For a window to put in its place. The window may delete it: the box goes on without. Null from
  /// then on.
  QTextEdit* Widget() const { return view_; }

  std::string Text() const override { return text_.Text(); }
  void SetText(const std::string& text) override;
  Long TextLength() const override { return text_.TextLength(); }
  std::string TextRTF() const override { return text_.TextRTF(); }
  void SetTextRTF(const std::string& rtf) override;

  Long SelStart() const override { return text_.SelStart(); }
  Long SelLength() const override { return text_.SelLength(); }
  void SetSelStart(Long start) override;
  void SetSelLength(Long length) override;

  std::string SelText() const override { return text_.SelText(); }
  void SetSelText(const std::string& text) override;
  std::string SelRTF() const override { return text_.SelRTF(); }
  void SetSelRTF(const std::string& rtf) override;

  Long Find(const std::string& text, Long start, Long options) const override {
    return text_.Find(text, start, options);
  }

  Long LineOf(Long position) const override { return text_.LineOf(position); }
  TextSpan LineSpan(Long position) const override { return text_.LineSpan(position); }
  /// Lays out the whole text.
  Long LineCount() const override;
  Long FirstVisibleLine() const override;
  void SetFirstVisibleLine(Long line) override;

  CharFormat SelFormat() const override { return text_.SelFormat(); }
  void SetSelFormat(const CharFormat& format) override;

  /// Many edits under one lock are laid out once.
  void LockUpdates() override;
  void UnlockUpdates() override;

  /// Shows the text this many times as large, as far as it can be laid out (FittingScale.h); the
  /// document stays as it is.
  void SetZoom(double zoom);
  double Zoom() const { return zoom_; }
  /// The wheel asks for so many steps of zoom.
  std::function<void(int steps)> ZoomAsked;

  const RichDocument& Document() const override { return text_.Document(); }
  void SetDocument(RichDocument document);

  /// Every key before the box acts on it; a code set to 0 means that the box must not get it. Codes
  /// and states as KeyCodes.h tells.
  std::function<void(Integer& key, Integer shift)> KeyDown;
  /// What the key handed on last puts in, before the box puts it in.
  std::function<void(const std::string& text)> KeyTyped;
  /// The selection is another one, by the user or from code; under a lock, once at its end.
  std::function<void()> SelChange;
  std::function<void(const std::string& path)> FileDropped;
  /// Asked for at this place of the screen.
  std::function<void(const QPoint& place)> ContextMenu;
  /// Text that no key code stands for: by an input method, a drop or the middle button. It is meant
  /// to replace the selection; without a receiver the box puts it in by itself.
  std::function<void(const std::string& text)> TextCommitted;

 private:
  /// Keeps the user's changes of the selection apart from the box's own.
  class Own;

  void ConnectView();
  void ShowState();
  void ShowRightMargin();
  void ShowColors();
  void Erase(bool back);

  void Replace(const std::function<void()>& edit);
  void MirrorReplacement(const RichPlace& first, const RichPlace& last, Long added);
  void MirrorAll(const std::function<void()>& edit);
  void ShowDocument();
  /// Before what was edited is laid out: shows all of it anew and smaller if it has grown too tall.
  void KeepFitting();
  RichPlace PlaceOf(Long position) const;
  /// The position as Qt counts: a line end is one.
  int QtPosition(Long position) const;

  /// The document's layout is out of date until the group is closed.
  void OpenGroup() const;
  void CloseGroup() const;
  /// Shows what a lock has put off, the layout before anything else.
  void Flush() const;
  void ShowSelection(bool scroll) const;
  void TakeSelection();
  void SelectionMayHaveChanged();

  MemoryRichTextBox text_;
  bool changed_ = false;
  QPointer<RichTextView> view_;
  RichDocumentWriter writer_;
  double zoom_ = 1;
  double fitting_ = 1;  ///< the scale by which the text is shown smaller than that
  int locks_ = 0;
  TextSpan toldSelection_;
  // What a question about lines has to bring up to date first.
  mutable QTextCursor group_;
  mutable bool groupOpen_ = false;
  mutable bool selectionPutOff_ = false;
  mutable bool own_ = false;
};

}  // namespace trelonit

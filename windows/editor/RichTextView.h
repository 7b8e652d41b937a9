#pragma once

#include <QTextEdit>
#include <functional>
#include <string>

#include "platform/values/Integers.h"

namespace trelonit {

/// The widget of a rich-text box. It moves the caret and selects by itself, but never changes its
/// text: whatever the user types, drops or pastes is told, and its owner puts it in. So there is
/// no way around the recording of the edits.
class RichTextView : public QTextEdit {
 public:
  explicit RichTextView(QWidget* parent = nullptr);

  /// Every key first, by its code (KeyCodes.h). A code set to 0 means that the key is taken.
  std::function<void(Integer& key, Integer shift)> KeyDown;
  /// What a key types, in place of the selection.
  std::function<void(const std::string& text)> Typed;
  /// A Back (or Delete) that nobody took.
  std::function<void(bool back)> Erased;
  /// Text of an input method, a text that was dropped or brought by the middle button, and what one
  /// key types beyond a single unit: no key code stands for it.
  std::function<void(const std::string& text)> Committed;
  /// Whether a dropped file is welcome.
  std::function<bool()> TakesFiles;
  std::function<void(const std::string& path)> FileDropped;
  /// The wheel was turned so many steps with Ctrl held.
  std::function<void(int steps)> ZoomAsked;
  /// The place is one of the screen.
  std::function<void(const QPoint& place)> ContextMenu;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  bool TakesShortcut(const QKeyEvent& event) const;
  void LeaveByTab(Integer shift);
  bool Welcome(const QMimeData& carried) const;

  int turned_ = 0;
};

}  // namespace trelonit

#pragma once

#include <QDialog>
#include <QFont>

#include "editor/document/RichDocument.h"

class QFontDialog;
class QPushButton;

namespace trelonit {

/// Font, style and colour of a text.
class FontWindow : public QDialog {
 public:
  FontWindow(const CharFormat& present, QWidget* parent);

  CharFormat Chosen() const;

 private:
  void AskColor();
  void ShowColor();

  CharFormat present_;
  /// The present font as the lists show it.
  QFont offered_;
  QFontDialog* fonts_ = nullptr;
  QPushButton* colorButton_ = nullptr;
  Color color_ = colorBlack;
};

}  // namespace trelonit

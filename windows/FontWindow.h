#pragma once

#include <QDialog>

#include "editor/RichDocument.h"

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

  QFontDialog* fonts_ = nullptr;
  QPushButton* colorButton_ = nullptr;
  Color color_ = colorBlack;
};

}  // namespace trelonit

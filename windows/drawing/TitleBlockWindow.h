#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "drawing/host/TitleBlock.h"

class QCheckBox;
class QFormLayout;
class QLineEdit;

namespace trelonit {

/// Asks what stands in the title block of the sheets.
class TitleBlockWindow : public QDialog {
 public:
  explicit TitleBlockWindow(const TitleBlockChoice& present, QWidget* parent = nullptr);

  /// As the window stands.
  TitleBlockChoice Chosen() const;

 private:
  struct Entry {
    std::string TitleBlock::*Field;
    QLineEdit* Edit;
  };
  QLineEdit* AddField(QFormLayout& rows, const char* name, const QString& caption,
                      std::string TitleBlock::*field, const TitleBlock& present);

  QCheckBox* shown_ = nullptr;
  std::vector<Entry> entries_;
};

}  // namespace trelonit

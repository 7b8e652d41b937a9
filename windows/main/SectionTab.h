#pragma once

#include <QWidget>

#include "workstation/main/frmMain.h"

class QBoxLayout;

namespace trelonit {

/// Tab "Сечение элементов": the five groups and the section of the current one.
class SectionTab : public QWidget {
 public:
  explicit SectionTab(frmMain& form, QWidget* parent = nullptr);

 private:
  void AddGroups(QBoxLayout* column);
  void AddLayouts(QBoxLayout* column);
  void AddLists(QBoxLayout* column);

  frmMain& form_;
};

}  // namespace trelonit

#pragma once

#include <QWidget>

#include "workstation/main/frmMain.h"

class QBoxLayout;
class QGridLayout;

namespace trelonit {

/// Tab "Сечение элементов": the five groups and the section of the current one.
class SectionTab : public QWidget {
 public:
  explicit SectionTab(frmMain& form, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddGroups(QBoxLayout* column);
  void AddLayouts(QBoxLayout* column);
  void AddLists(QBoxLayout* column);

  frmMain& form_;
  QGridLayout* groups_ = nullptr;
};

}  // namespace trelonit

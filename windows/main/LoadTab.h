#pragma once

#include <QWidget>

#include "workstation/main/frmMain.h"

class QBoxLayout;

namespace trelonit {

/// Tab "Вычислить": loads with their schematic, material numbers and the commands.
class LoadTab : public QWidget {
 public:
  explicit LoadTab(frmMain& form, QWidget* parent = nullptr);

 private:
  void AddPreview(QBoxLayout* column);
  void AddEntry(QBoxLayout* column);
  void AddLoadTools(QBoxLayout* row);
  void AddChords(QBoxLayout* row);
  void AddWeight(QBoxLayout* column);
  void AddMaterial(QBoxLayout* column);
  void AddCommands(QBoxLayout* column);

  frmMain& form_;
};

}  // namespace trelonit

#pragma once

#include "catalogue/frmDataManager.h"
#include "windows/binding/FormDialog.h"

class QBoxLayout;

namespace trelonit {

/// The browser and editor of catalogue data files.
class DataManagerWindow : public FormDialog {
 public:
  DataManagerWindow(frmDataManager& form, QWidget* parent);

 private:
  void AddMenu(QBoxLayout* column);
  void AddRecord(QBoxLayout* column);
  void AddCommands(QBoxLayout* column);
  /// The table of all records with the search over it.
  void AddTable(QBoxLayout* column);
  void AddSearch(QBoxLayout* column);

  frmDataManager& form_;
};

}  // namespace trelonit

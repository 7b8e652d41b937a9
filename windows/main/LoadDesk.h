#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include "workstation/loads/LoadEditor.h"

class QBoxLayout;

namespace trelonit {

class LoadPictureView;
class LoadTableView;

/// The table and the picture of all loads, beside the load tool of the tab. They follow the form.
class LoadDesk : public QObject {
 public:
  LoadDesk(frmMain& form, QObject* parent);
  LoadDesk(const LoadDesk&) = delete;
  LoadDesk& operator=(const LoadDesk&) = delete;
  ~LoadDesk() override;

  void AddPicture(QBoxLayout* column);
  void AddTable(QBoxLayout* row);

 private:
  void Refresh();

  frmMain& form_;
  LoadEditor editor_;
  QTimer refresh_;
  LoadPictureView* picture_ = nullptr;
  LoadTableView* table_ = nullptr;
  QPointer<QWidget> error_;
};

}  // namespace trelonit

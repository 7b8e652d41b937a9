#pragma once

#include <QFileDialog>

namespace trelonit {

/// A dialog for the name of one file: of any, where something is to be stored, else of one that is
/// there.
class FileDialog : public QFileDialog {
 public:
  FileDialog(QWidget* parent, AcceptMode mode, const QString& title, const QString& folder,
             const QString& filter);

  /// Shows it and waits. Empty where nothing was chosen.
  QString Ask();

 protected:
  void done(int result) override;
};

}  // namespace trelonit

#include "windows/binding/FileDialog.h"

#include <QApplication>

namespace trelonit {

FileDialog::FileDialog(QWidget* parent, AcceptMode mode, const QString& title,
                       const QString& folder, const QString& filter)
    : QFileDialog(parent, title, folder, filter) {
  setAcceptMode(mode);
  setFileMode(mode == AcceptSave ? AnyFile : ExistingFile);
}

QString FileDialog::Ask() {
  return exec() == Accepted ? selectedFiles().value(0) : QString();
}

void FileDialog::done(int result) {
  // The names that it offers below a typed one hold the keyboard. They would go with the dialog
  // object, a while after its window, and what is typed into the next window meanwhile with them.
  if (QWidget* names = QApplication::activePopupWidget()) {
    names->hide();
  }
  QFileDialog::done(result);
}

}  // namespace trelonit

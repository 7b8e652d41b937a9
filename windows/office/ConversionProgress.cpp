#include "windows/office/ConversionProgress.h"

#include <QApplication>
#include <QProgressDialog>

namespace trelonit {

namespace {

class ProgressWatch : public ConversionWatch {
 public:
  ProgressWatch()
      : dialog_(QStringLiteral("Преобразование документа Word…"), QStringLiteral("Отмена"), 0, 0,
                QApplication::activeWindow()) {
    dialog_.setWindowTitle(QStringLiteral("Документ Word"));
    dialog_.setWindowModality(Qt::ApplicationModal);
    // Without the wait that the toolkit makes first: a conversion is never quicker than a second.
    dialog_.show();
  }

  bool Cancelled() override {
    QCoreApplication::processEvents();
    return dialog_.wasCanceled();
  }

 private:
  QProgressDialog dialog_;
};

}  // namespace

std::unique_ptr<ConversionWatch> ShowConversionProgress() {
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
    return nullptr;
  }
  return std::make_unique<ProgressWatch>();
}

}  // namespace trelonit

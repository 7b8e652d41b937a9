#include "windows/binding/FormDialog.h"

#include "windows/binding/Binding.h"
#include "windows/binding/PaintedFirst.h"

namespace trelonit {

FormDialog::FormDialog(Label& title, std::function<void()>& unload, QWidget* parent)
    : QDialog(parent), unload_(unload) {
  Follow(title, this, [this, &title] { setWindowTitle(ToQt(title.Caption())); });
  unload_ = [this] { accept(); };
  new PaintedFirst(this);
}

FormDialog::~FormDialog() {
  unload_ = nullptr;
}

}  // namespace trelonit

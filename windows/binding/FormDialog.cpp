#include "windows/binding/FormDialog.h"

#include "windows/binding/Binding.h"

namespace trelonit {

FormDialog::FormDialog(Label& title, std::function<void()>& unload, QWidget* parent)
    : QDialog(parent), unload_(unload) {
  Follow(title, this, [this, &title] { setWindowTitle(ToQt(title.Caption())); });
  unload_ = [this] { accept(); };
}

FormDialog::~FormDialog() {
  unload_ = nullptr;
}

}  // namespace trelonit

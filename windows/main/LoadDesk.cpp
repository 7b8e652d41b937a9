#include "windows/main/LoadDesk.h"

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/main/LoadPictureView.h"
#include "windows/main/LoadTableView.h"
#include "windows/main/NoticeViews.h"

namespace trelonit {

LoadDesk::LoadDesk(frmMain& form, QObject* parent) : QObject(parent), form_(form), editor_(form) {
  // Once a handler has come to its end: on its way the chosen place may be another one.
  refresh_.setSingleShot(true);
  QObject::connect(&refresh_, &QTimer::timeout, this, [this] { Refresh(); });
  form_.LoadsChanged = [this] { refresh_.start(0); };
}

LoadDesk::~LoadDesk() {
  form_.LoadsChanged = nullptr;
  // It shows a state of the editor.
  delete error_;
}

void LoadDesk::AddPicture(QBoxLayout* column) {
  picture_ = new LoadPictureView(editor_);
  column->addWidget(picture_, 1);
}

void LoadDesk::AddTable(QBoxLayout* row) {
  auto* column = AddGroup<QVBoxLayout>(row, QStringLiteral("Нагрузки таблицей"));
  table_ = new LoadTableView(editor_);
  table_->setObjectName(QStringLiteral("LoadTable"));
  SetHint(table_, QStringLiteral("Величину можно ввести, вставить из таблицы другой программы "
                                 "(Ctrl+V), удалить (Delete), повторить ниже (Ctrl+D)"));
  constexpr int width = 320;
  table_->setFixedWidth(width);
  column->addWidget(table_, 1);
  auto* error = new NoticeLine(Severity::Danger);
  error_ = error;
  // It may quote what was pasted.
  error->Text().setTextFormat(Qt::PlainText);
  error->setObjectName(QStringLiteral("lblLoadError"));
  error->setMaximumWidth(width);
  Bind(editor_.lblLoadError, error);
  column->addWidget(error);
}

void LoadDesk::Refresh() {
  if (table_ != nullptr) {
    table_->Refresh();
  }
  if (picture_ != nullptr) {
    picture_->update();
  }
}

}  // namespace trelonit

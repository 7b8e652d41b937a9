#include "windows/editor/DateWindow.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "windows/binding/Binding.h"

namespace trelonit {

namespace {

/// The first arrow key selects the row that has the focus; the toolkit would go past it.
class FormList : public QListWidget {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (arrow && currentItem() != nullptr && selectedItems().isEmpty()) {
      currentItem()->setSelected(true);
    } else {
      QListWidget::keyPressEvent(event);
    }
  }
};

}  // namespace

DateWindow::DateWindow(frmDate& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent) {
  auto* column = new QVBoxLayout(this);
  auto* list = new FormList;
  list->setObjectName(QStringLiteral("List1"));
  list->setAccessibleName(QStringLiteral("Вид даты и времени"));
  Bind(form.List1, list);
  column->addWidget(list, 1);
  auto* buttons = new QDialogButtonBox;
  auto* insert = buttons->addButton(ToQt(form.cmdOK.Caption()), QDialogButtonBox::AcceptRole);
  insert->setObjectName(QStringLiteral("cmdOK"));
  insert->setDefault(true);
  auto* cancel = buttons->addButton(ToQt(form.cmdCancel.Caption()), QDialogButtonBox::RejectRole);
  cancel->setObjectName(QStringLiteral("cmdCancel"));
  QObject::connect(insert, &QPushButton::clicked, this, [&form] { form.cmdOK_Click(); });
  QObject::connect(cancel, &QPushButton::clicked, this, [&form] { form.cmdCancel_Click(); });
  QObject::connect(list, &QListWidget::itemDoubleClicked, this, [&form] { form.cmdOK_Click(); });
  column->addWidget(buttons);
  resize(340, 290);
  list->setFocus();
}

}  // namespace trelonit

#include "windows/dialogs/ParamertyWindow.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"

namespace trelonit {

ParamertyWindow::ParamertyWindow(frmParamerty& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent) {
  auto* column = new QVBoxLayout(this);
  auto* rows = new QGridLayout;
  column->addLayout(rows);
  const auto box = [&](TextBox& state, const char* name, const QString& caption,
                       const QString& unit, const QString& hint) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    Bind(state, edit);
    SetHint(edit, hint);
    const int row = rows->rowCount();
    rows->addWidget(LabelFor(edit, caption), row, 0);
    rows->addWidget(edit, row, 1);
    rows->addWidget(new QLabel(unit), row, 2);
  };
  box(form.txtYung, "txtYung", QStringLiteral("&Модуль Юнга для стали :"), QStringLiteral("МПа"),
      QStringLiteral("Модуль Юнга для стали"));
  box(form.txtDensity, "txtDensity", QStringLiteral("П&лотность стали :"),
      QStringLiteral("т / м. куб."),
      QStringLiteral("Плотность стали для расчета массы металлопроката фермы"));
  box(form.txtLimFlex, "txtLimFlex", QStringLiteral("Предельная &гибкость сжатого элемента :"), {},
      QStringLiteral("Задавайте значение в виде целого числа"));
  column->addStretch();
  auto* buttons = new QDialogButtonBox;
  auto* apply = buttons->addButton(QStringLiteral("&Применить"), QDialogButtonBox::ActionRole);
  apply->setObjectName(QStringLiteral("cmdApply"));
  apply->setDefault(true);
  QObject::connect(apply, &QPushButton::clicked, this, [&form] { form.cmdApply_Click(); });
  QObject::connect(buttons->addButton(QDialogButtonBox::Cancel), &QPushButton::clicked, this,
                   &QDialog::reject);
  column->addWidget(buttons);
}

}  // namespace trelonit

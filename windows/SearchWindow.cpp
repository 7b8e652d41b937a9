#include "windows/SearchWindow.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>

#include "windows/Binding.h"
#include "windows/Layouts.h"
#include "windows/PictureWidgets.h"
#include "windows/Pictures.h"

namespace trelonit {

namespace {

constexpr QSize pictureSize{56, 56};

/// A name that the form turns red where no size passes.
void BindColoured(Label& state, QLabel* label) {
  Follow(state, label, [&state, label] {
    label->setText(ToQt(state.Caption()));
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, state.ForeColor() == colorRed
                                               ? WarningColor(label->palette())
                                               : label->palette().color(QPalette::Text));
    label->setPalette(palette);
    ShowCommon(state, label);
  });
}

}  // namespace

SearchWindow::SearchWindow(frmSearch& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent) {
  auto* column = new QVBoxLayout(this);
  auto* rows = AddGroup<QGridLayout>(column, QStringLiteral("Подобранные профили"), 1);
  for (Long option = 1; option <= groupCount; ++option) {
    const int row = static_cast<int>(option) - 1;
    auto* name = new QLabel;
    auto* picture = new PictureView(pictureSize);
    picture->setFixedSize(pictureSize);
    auto* size = new QLabel;
    size->setObjectName(QStringLiteral("lblProfilName%1").arg(option));
    auto* worry = new QLabel;
    worry->setObjectName(QStringLiteral("lblWorry%1").arg(option));
    worry->setMinimumWidth(150);
    rows->addWidget(name, row, 0);
    rows->addWidget(picture, row, 1);
    rows->addWidget(size, row, 2);
    rows->addWidget(worry, row, 3);
    Bind(form.lblName[option - 1], name);
    Bind(form.imgProfileSec[option], picture);
    BindColoured(form.lblProfilName[option], size);
    Bind(form.lblWorry[option], worry);
    picture->setAccessibleName(name->text() + QStringLiteral(": сечение"));
  }
  rows->setColumnStretch(2, 1);
  auto* buttons = new QDialogButtonBox;
  auto* apply = buttons->addButton(QStringLiteral("&Применить"), QDialogButtonBox::ActionRole);
  apply->setObjectName(QStringLiteral("cmdApply"));
  apply->setDefault(true);
  QObject::connect(apply, &QPushButton::clicked, this, [&form] { form.cmdApply_Click(); });
  auto* close = buttons->addButton(QDialogButtonBox::Close);
  QObject::connect(close, &QPushButton::clicked, this, &QDialog::reject);
  column->addWidget(buttons);
  apply->setFocus();
}

}  // namespace trelonit

#include "windows/dialogs/SearchWindow.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/PictureWidgets.h"

namespace trelonit {

namespace {

constexpr QSize pictureSize{56, 56};

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
    Follow(form.lblProfilName[option], size,
           [&sizeName = form.lblProfilName[option], size] { ShowColoured(sizeName, size); });
    Bind(form.lblWorry[option], worry);
    picture->setAccessibleName(name->text() + QStringLiteral(": сечение"));
  }
  rows->setColumnStretch(2, 1);
  auto* opinion = new QCheckBox(QStringLiteral("и по &СНиП без отступлений"));
  opinion->setObjectName(QStringLiteral("chkOpinion"));
  SetHint(opinion,
          QStringLiteral("Подбирать профили, которые проходят и проверки расчета, и второе "
                         "мнение: по статике и по букве СНиП II-23-81*"));
  Bind(form.chkOpinion, opinion);
  column->addWidget(opinion);
  auto* rounds = new QLabel;
  rounds->setObjectName(QStringLiteral("lblRounds"));
  Bind(form.lblRounds, rounds);
  column->addWidget(rounds);
  auto* buttons = new QDialogButtonBox;
  auto* apply = buttons->addButton(QStringLiteral("&Применить"), QDialogButtonBox::ActionRole);
  apply->setObjectName(QStringLiteral("cmdApply"));
  QObject::connect(apply, &QPushButton::clicked, this, [&form] { form.cmdApply_Click(); });
  auto* close = buttons->addButton(QDialogButtonBox::Close);
  QObject::connect(close, &QPushButton::clicked, this, &QDialog::reject);
  column->addWidget(buttons);
  // Only in its window is it the one that Enter presses wherever the focus is.
  apply->setDefault(true);
  apply->setFocus();
}

}  // namespace trelonit

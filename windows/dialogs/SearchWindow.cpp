#include "windows/dialogs/SearchWindow.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/PictureWidgets.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

constexpr QSize pictureSize{56, 56};

/// Over the columns of the sizes and their coefficients.
void AddHeads(QGridLayout* rows) {
  int column = 2;
  for (const char* caption : {"Было", "Коэффициент", "Стало", "Коэффициент"}) {
    auto* head = new QLabel(QString::fromUtf8(caption));
    QPalette pale = head->palette();
    pale.setColor(QPalette::WindowText, AsideColor(pale));
    head->setPalette(pale);
    rows->addWidget(head, 0, column++);
  }
}

/// What stands in one of these columns.
QLabel* NewFigure(Label& state, const char* name, Long option) {
  auto* label = new QLabel;
  label->setObjectName(QLatin1String(name) + QString::number(option));
  Follow(state, label, [&state, label] { ShowColoured(state, label); });
  return label;
}

}  // namespace

SearchWindow::SearchWindow(frmSearch& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent) {
  auto* column = new QVBoxLayout(this);
  auto* rows = AddGroup<QGridLayout>(column, QStringLiteral("Подобранные профили"), 1);
  AddHeads(rows);
  for (Long option = 1; option <= groupCount; ++option) {
    const int row = static_cast<int>(option);
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
    rows->addWidget(NewFigure(form.lblSizeBefore[option], "lblSizeBefore", option), row, 2);
    rows->addWidget(NewFigure(form.lblUseBefore[option], "lblUseBefore", option), row, 3);
    rows->addWidget(size, row, 4);
    rows->addWidget(NewFigure(form.lblUse[option], "lblUse", option), row, 5);
    rows->addWidget(worry, row, 6);
    Bind(form.lblName[option - 1], name);
    Bind(form.imgProfileSec[option], picture);
    Follow(form.lblProfilName[option], size,
           [&sizeName = form.lblProfilName[option], size] { ShowColoured(sizeName, size); });
    Bind(form.lblWorry[option], worry);
    picture->setAccessibleName(name->text() + QStringLiteral(": сечение"));
  }
  rows->setColumnStretch(4, 1);
  rows->setHorizontalSpacing(14);
  auto* mass = new QLabel;
  mass->setObjectName(QStringLiteral("lblMass"));
  Bind(form.lblMass, mass);
  column->addWidget(mass);
  auto* repeat = new QCheckBox(QStringLiteral("повторить до &неизменности"));
  repeat->setObjectName(QStringLiteral("chkRepeat"));
  SetHint(repeat, QStringLiteral("Рассчитать с подобранными профилями, подобрать снова и так, пока "
                                 "ни один типоразмер не меняется"));
  Bind(form.chkRepeat, repeat);
  column->addWidget(repeat);
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

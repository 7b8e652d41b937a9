#include "windows/dialogs/AboutWindow.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "windows/binding/Binding.h"
#include "windows/binding/PictureWidgets.h"

namespace trelonit {

AboutWindow::AboutWindow(frmAbout& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent), form_(form) {
  auto* rows = new QHBoxLayout(this);
  auto* icon = new PictureView({96, 96});
  icon->setFixedSize(96, 96);
  icon->SetFile(QStringLiteral(":/pictures/trelonit.svg"));
  rows->addWidget(icon, 0, Qt::AlignTop);
  auto* column = new QVBoxLayout;
  rows->addLayout(column, 1);
  const auto line = [&](Label& state) {
    auto* label = new QLabel;
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Bind(state, label);
    column->addWidget(label);
    return label;
  };
  auto* title = line(form_.lblTitle);
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  large.setBold(true);
  title->setFont(large);
  line(form_.lblVersion);
  line(form_.lblDescription)->setMinimumWidth(380);
  column->addStretch();
  auto* buttons = new QHBoxLayout;
  column->addLayout(buttons);
  buttons->addStretch();
  const auto button = [&](const char* name, const QString& caption, void (frmAbout::*click)()) {
    auto* push = new QPushButton(caption);
    push->setObjectName(QLatin1String(name));
    QObject::connect(push, &QPushButton::clicked, this, [this, click] { (form_.*click)(); });
    buttons->addWidget(push);
    return push;
  };
  button("cmdSysInfo", QStringLiteral("&Сведения о системе..."), &frmAbout::cmdSysInfo_Click);
  auto* ok = button("cmdOK", QStringLiteral("OK"), &frmAbout::cmdOK_Click);
  ok->setDefault(true);
  ok->setFocus();
}

}  // namespace trelonit

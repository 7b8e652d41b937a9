#include "windows/editor/FindWindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"

namespace trelonit {

FindWindow::FindWindow(frmFind& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent), form_(form) {
  auto* grid = new QGridLayout(this);
  find_ = AddBox(form_.cboFind, "cboFind");
  replace_ = AddBox(form_.cboReplace, "cboReplace");
  int row = 0;
  for (const auto& [box, caption] : {std::pair{find_, "&Найти:"}, {replace_, "З&аменить на:"}}) {
    grid->addWidget(LabelFor(box, QString::fromUtf8(caption)), row, 0);
    grid->addWidget(box, row, 1);
    ++row;
  }
  const auto button = [this](Label& state, const QString& name, const QString& hint, auto click) {
    auto* push = new QPushButton(ToQt(state.Caption()));
    push->setObjectName(name);
    push->setAutoDefault(false);
    SetHint(push, hint);
    Follow(state, push, [&state, push] { ShowCommon(state, push); });
    QObject::connect(push, &QPushButton::clicked, this, [this, click] {
      TakeTexts();
      click();
    });
    return push;
  };
  grid->addWidget(
      button(form_.cmdSelection[0], QStringLiteral("cmdSelection0"),
             QStringLiteral("Взять выделенный текст"), [this] { form_.cmdSelection_Click(0); }),
      0, 2);
  grid->addWidget(
      button(form_.cmdSelection[1], QStringLiteral("cmdSelection1"),
             QStringLiteral("Взять выделенный текст"), [this] { form_.cmdSelection_Click(1); }),
      1, 2);
  auto* options = new QHBoxLayout;
  const auto option = [options](CheckBox& state, const char* name, const QString& caption) {
    auto* box = new QCheckBox(caption);
    box->setObjectName(QLatin1String(name));
    Bind(state, box);
    options->addWidget(box);
  };
  option(form_.ChWord, "ChWord", QStringLiteral("Слово &целиком"));
  option(form_.ChCase, "ChCase", QStringLiteral("С учетом &регистра"));
  options->addStretch();
  grid->addLayout(options, row, 1, 1, 2);
  auto* buttons = new QVBoxLayout;
  auto* next = button(form_.cmdFindNext, QStringLiteral("cmdFindNext"),
                      QStringLiteral("Найти следующее место (Enter)"),
                      [this] { form_.cmdFindNext_Click(); });
  next->setDefault(true);
  buttons->addWidget(next);
  buttons->addWidget(button(form_.cmdReplace, QStringLiteral("cmdReplace"),
                            QStringLiteral("Заменить выделенное"),
                            [this] { form_.cmdReplace_Click(); }));
  buttons->addWidget(button(form_.cmdReplaceAll, QStringLiteral("cmdReplaceAll"),
                            QStringLiteral("Заменить всё до конца текста"),
                            [this] { form_.cmdReplaceAll_Click(); }));
  buttons->addWidget(button(form_.cmdCancel, QStringLiteral("cmdCancel"),
                            QStringLiteral("Остановить замену или закрыть окно (Esc)"),
                            [this] { form_.cmdCancel_Click(); }));
  buttons->addStretch();
  grid->addLayout(buttons, 0, 3, 4, 1);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(3, 1);
  form_.DoEvents = [] { QApplication::processEvents(); };
  setMinimumWidth(560);
  find_->setFocus();
  find_->lineEdit()->selectAll();
}

FindWindow::~FindWindow() {
  form_.DoEvents = nullptr;
  form_.Form_Unload();
}

QComboBox* FindWindow::AddBox(ComboBox& state, const char* name) {
  auto* box = new QComboBox;
  box->setObjectName(QLatin1String(name));
  box->setEditable(true);
  // What the list keeps is the form's rule.
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  Bind(state, box);
  return box;
}

void FindWindow::TakeTexts() {
  form_.cboFind.SetText(FromQt(find_->currentText()));
  form_.cboReplace.SetText(FromQt(replace_->currentText()));
}

void FindWindow::reject() {
  TakeTexts();
  form_.cmdCancel_Click();
}

}  // namespace trelonit

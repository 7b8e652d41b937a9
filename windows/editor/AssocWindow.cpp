#include "windows/editor/AssocWindow.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/OneTabStop.h"

namespace trelonit {

namespace {

/// Width of a line of the reasons, in letters: they are read in two lines at most.
constexpr int reasonLetters = 62;
constexpr float reasonOpacity = 0.7F;
/// Between the parts of the window, pixels.
constexpr int gap = 8;

/// Where the caption of the box begins, from the left end of the box.
int CaptionStart(const QCheckBox& box) {
  QStyleOptionButton option;
  option.initFrom(&box);
  return box.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &box).left();
}

QLabel* ReasonLabel(Label& state, const char* name, int indent) {
  auto* label = new QLabel;
  label->setObjectName(QLatin1String(name));
  label->setWordWrap(true);
  // Weaker than a caption, but to be read: more than the grey of what is disabled.
  QPalette grey = label->palette();
  QColor letters = grey.color(QPalette::WindowText);
  letters.setAlphaF(reasonOpacity);
  grey.setColor(QPalette::WindowText, letters);
  label->setPalette(grey);
  label->setContentsMargins(indent, 0, 0, 0);
  label->setMinimumWidth(indent + label->fontMetrics().averageCharWidth() * reasonLetters);
  Bind(state, label);
  return label;
}

/// A box, and below its caption the reason why it is disabled.
void AddChoice(QBoxLayout* column, CheckBox& state, const char* name, const Label& caption,
               Label& reason, const char* reasonName) {
  column->addSpacing(gap);
  auto* box = new QCheckBox(ToQt(caption.Caption()));
  box->setObjectName(QLatin1String(name));
  box->setAccessibleDescription(ToQt(reason.Caption()));
  Bind(state, box);
  column->addWidget(box);
  column->addWidget(ReasonLabel(reason, reasonName, CaptionStart(*box)));
}

}  // namespace

AssocWindow::AssocWindow(frmAssoc& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent), form_(form) {
  auto* column = new QVBoxLayout(this);
  AddOwner(column);
  AddChoice(column, form_.ChSendto, "ChSendto", form_.lblSendto, form_.lblNoSendto, "lblNoSendto");
  AddChoice(column, form_.ChSC, "ChSC", form_.lblSC, form_.lblNoSC, "lblNoSC");
  column->addSpacing(gap);
  column->addStretch();
  AddButtons(column);
}

void AssocWindow::AddOwner(QBoxLayout* column) {
  auto* rows = AddGroup<QVBoxLayout>(column, ToQt(form_.lblOwner.Caption()));
  const auto option = [rows](OptionButton& state, const char* name, const Label& caption) {
    auto* button = new QRadioButton(ToQt(caption.Caption()));
    button->setObjectName(QLatin1String(name));
    Bind(state, button);
    rows->addWidget(button);
    return button;
  };
  auto* pad = option(form_.Option1, "Option1", form_.lblOption1);
  auto* system = option(form_.Option2, "Option2", form_.lblOption2);
  new OneTabStop(this, {pad, system}, OneTabStop::Arrows::Choose);
  (form_.Option2.Value() ? system : pad)->setFocus();
}

void AssocWindow::AddButtons(QBoxLayout* column) {
  auto* buttons = new QDialogButtonBox;
  const auto button = [this, buttons](Label& state, const char* name,
                                      QDialogButtonBox::ButtonRole role,
                                      void (frmAssoc::*click)()) {
    auto* push = buttons->addButton(ToQt(state.Caption()), role);
    push->setObjectName(QLatin1String(name));
    Follow(state, push, [&state, push] { ShowCommon(state, push); });
    QObject::connect(push, &QPushButton::clicked, this, [this, click] { (form_.*click)(); });
    return push;
  };
  button(form_.cmdApply, "cmdApply", QDialogButtonBox::ActionRole, &frmAssoc::cmdApply_Click)
      ->setDefault(true);
  button(form_.cmdCancel, "cmdCancel", QDialogButtonBox::RejectRole, &frmAssoc::cmdCancel_Click);
  column->addWidget(buttons);
}

}  // namespace trelonit

#include "windows/dialogs/SteelWindow.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"

namespace trelonit {

namespace {

/// A box whose background says whether it is the chosen one; the left button or the space bar
/// chooses it. Passing through it by keys must not.
class ChoiceBox : public QLineEdit {
 public:
  explicit ChoiceBox(std::function<void()> choose) : choose_(std::move(choose)) {
    setReadOnly(true);
  }

 protected:
  bool event(QEvent* event) override {
    const bool key =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
    const bool press = event->type() == QEvent::MouseButtonPress &&
                       static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (press || key) {
      choose_();
    }
    return QLineEdit::event(event);
  }

 private:
  std::function<void()> choose_;
};

QLabel* Paragraph(Label& state) {
  auto* label = new QLabel;
  label->setWordWrap(true);
  Bind(state, label);
  return label;
}

}  // namespace

SteelWindow::SteelWindow(frmSteel& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent), form_(form) {
  ResizeWithinScreen(*this, {980, 640});
  auto* column = new QVBoxLayout(this);
  auto* upper = new QHBoxLayout;
  column->addLayout(upper);
  AddSteel(upper);
  AddImportance(upper);
  AddConditions(column);
  auto* buttons = new QDialogButtonBox;
  auto* apply = buttons->addButton(QStringLiteral("&Применить"), QDialogButtonBox::ActionRole);
  apply->setObjectName(QStringLiteral("cmdApply"));
  apply->setDefault(true);
  QObject::connect(apply, &QPushButton::clicked, this, [this] { form_.cmdApply_Click(); });
  QObject::connect(buttons->addButton(QDialogButtonBox::Cancel), &QPushButton::clicked, this,
                   &QDialog::reject);
  column->addWidget(buttons);
}

void SteelWindow::AddSteel(QBoxLayout* column) {
  auto* box = AddGroup<QVBoxLayout>(column, QStringLiteral("Расчетное сопротивление"), 3);
  auto* rows = new QFormLayout;
  box->addLayout(rows);
  const auto list = [&](ComboBox& state, const char* name, const QString& caption) {
    auto* combo = new QComboBox;
    combo->setObjectName(QLatin1String(name));
    Bind(state, combo);
    rows->addRow(LabelFor(combo, caption), combo);
  };
  list(form_.cmbSteelName, "cmbSteelName", QStringLiteral("&Марка стали"));
  list(form_.cmbSheetThick, "cmbSheetThick", QStringLiteral("&Толщина проката, мм"));
  const auto resistance = [&](TextBox& state, const char* name, const QString& caption,
                              void (frmSteel::*choose)()) {
    auto* edit = new ChoiceBox([this, choose] { (form_.*choose)(); });
    edit->setObjectName(QLatin1String(name));
    Bind(state, edit);
    rows->addRow(LabelFor(edit, caption), edit);
  };
  resistance(form_.txtRysheet, "txtRysheet", QStringLiteral("&Листовой прокат Ry, МПа"),
             &frmSteel::txtRysheet_Click);
  resistance(form_.txtRyfason, "txtRyfason", QStringLiteral("&Фасонный прокат Ry, МПа"),
             &frmSteel::txtRyfason_Click);
  box->addWidget(Paragraph(form_.lblChoice));
  box->addWidget(Paragraph(form_.lblThickness));
  box->addWidget(Paragraph(form_.lblSteels));
  box->addStretch();
}

void SteelWindow::AddImportance(QBoxLayout* column) {
  auto* rows = AddGroup<QVBoxLayout>(column, ToQt(form_.framOtvetstven.Caption()), 2);
  for (Long option = 1; option <= frmSteel::importanceCount; ++option) {
    auto* button = new QRadioButton(ToQt(form_.lblOtvetstven[option].Caption()));
    button->setObjectName(QStringLiteral("optOtvetstven%1").arg(option));
    Bind(form_.optOtvetstven, option, button);
    rows->addWidget(button);
  }
  rows->addStretch();
}

void SteelWindow::AddConditions(QBoxLayout* column) {
  auto* box = AddGroup<QVBoxLayout>(column, ToQt(form_.framYc.Caption()), 1);
  auto* table = new QTableWidget;
  table->setObjectName(QStringLiteral("MSFGridYc"));
  table->setAccessibleName(ToQt(form_.framYc.Caption()));
  SetHint(table, QStringLiteral("Выбирайте только один ряд. При выборе нескольких рядов "
                                "используются параметры последнего ряда !!!"));
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setTabKeyNavigation(false);
  table->verticalHeader()->hide();
  table->setAlternatingRowColors(true);
  Bind(form_.MSFGridYc, table);
  table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  table->horizontalHeader()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
  table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  // The head of the grid is row 0 of the form.
  QObject::connect(table, &QTableWidget::currentCellChanged, this,
                   [this](int row, int, int, int) { form_.MSFGridYc_SelChange(row + 1); });
  box->addWidget(table);
}

}  // namespace trelonit

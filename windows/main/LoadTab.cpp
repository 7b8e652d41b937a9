#include "windows/main/LoadTab.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/OneTabStop.h"
#include "windows/binding/PictureWidgets.h"
#include "windows/binding/Pictures.h"
#include "windows/main/LoadDesk.h"
#include "windows/main/LoadPreviewView.h"

namespace trelonit {

namespace {

constexpr QSize loadButtonSize{56, 56};

}  // namespace

LoadTab::LoadTab(frmMain& form, QWidget* parent) : QWidget(parent), form_(form) {
  auto* column = new QVBoxLayout(this);
  AddPreview(column);
  auto* row = new QHBoxLayout;
  column->addLayout(row);
  AddEntry(row);
  auto* middle = new QVBoxLayout;
  row->addLayout(middle, 3);
  AddMaterial(middle);
  auto* right = new QVBoxLayout;
  row->addLayout(right, 2);
  AddWeight(right);
  AddCommands(right);
}

void LoadTab::AddPreview(QBoxLayout* column) {
  auto* row = new QHBoxLayout;
  column->addLayout(row, 1);
  auto* box = AddGroup<QVBoxLayout>(row, QStringLiteral("Схема нагружения поясов фермы"), 1);
  auto* view = new LoadPreviewView(form_);
  view->setObjectName(QStringLiteral("Picture1"));
  view->setAccessibleName(QStringLiteral("Схема нагружения поясов фермы"));
  box->addWidget(view, 1);
  auto* loads = new LoadDesk(form_, this);
  loads->AddPicture(box);
  loads->AddTable(row);
}

void LoadTab::AddEntry(QBoxLayout* column) {
  auto* box = AddGroup<QVBoxLayout>(column, QStringLiteral("Загружение"), 4);
  auto* tools = new QHBoxLayout;
  box->addLayout(tools);
  AddLoadTools(tools);
  auto* tool = new PictureView({126, 56});
  tool->setObjectName(QStringLiteral("imgLoadPreview"));
  tools->addWidget(tool);
  AddChords(tools);

  auto* rows = new QFormLayout;
  box->addLayout(rows);
  auto* place = new QComboBox;
  place->setObjectName(QStringLiteral("cmbKnotNum"));
  Bind(form_.cmbKnotNum, place);
  rows->addRow(LabelFor(place, QStringLiteral("&Номер узла/панели - k")), place);
  auto* force = new QLineEdit;
  force->setObjectName(QStringLiteral("txtForceVal"));
  Bind(form_.txtForceVal, force);
  auto* unit = LabelFor(force, QStringLiteral("Величина &усилия, тонн"));
  rows->addRow(unit, force);
  Follow(form_.imgLoadPreview, tool, [this, tool, unit] {
    tool->SetFile(PictureFile(form_.imgLoadPreview.Shown()));
    // A force on a panel is spread over its length.
    unit->setText(form_.imgPForce.Marked() ? QStringLiteral("Величина &усилия, тонн")
                                           : QStringLiteral("Величина &усилия, тонн/м"));
  });

  auto* all = new QCheckBox(QStringLiteral("На &все панели"));
  all->setObjectName(QStringLiteral("chkAllPanels"));
  Bind(form_.chkAllPanels, all);
  box->addWidget(all);
  auto* buttons = new QHBoxLayout;
  box->addLayout(buttons);
  const auto button = [&](const char* name, const QString& caption, void (frmMain::*click)()) {
    auto* push = new QPushButton(caption);
    push->setObjectName(QLatin1String(name));
    QObject::connect(push, &QPushButton::clicked, this, [this, click] { (form_.*click)(); });
    buttons->addWidget(push);
    return push;
  };
  auto* add =
      button("cmdAddForce", QStringLiteral("Доб&авить загружение"), &frmMain::cmdAddForce_Click);
  button("cmdClearLoads", QStringLiteral("&Очистить все загружения"),
         &frmMain::cmdClearLoads_Click);
  QObject::connect(force, &QLineEdit::returnPressed, add, &QPushButton::click);
  box->addStretch();
}

void LoadTab::AddLoadTools(QBoxLayout* row) {
  std::vector<QAbstractButton*> buttons;
  const auto tool = [&](Image& state, const char* name, const QString& hint,
                        void (frmMain::*click)()) {
    auto* button = new PictureButton(loadButtonSize);
    button->setFixedSize(loadButtonSize);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(hint);
    button->setToolTip(hint);
    Bind(state, button, [this, click] { (form_.*click)(); });
    row->addWidget(button);
    buttons.push_back(button);
  };
  tool(form_.imgPForce, "imgPForce", QStringLiteral("Сосредоточенное узловое усилие"),
       &frmMain::imgPForce_Click);
  tool(form_.imgDistForce, "imgDistForce", QStringLiteral("Распределенное усилие на панели пояса"),
       &frmMain::imgDistForce_Click);
  new OneTabStop(this, buttons, OneTabStop::Arrows::Lead);
}

void LoadTab::AddChords(QBoxLayout* row) {
  auto* column = new QVBoxLayout;
  row->addLayout(column);
  std::vector<QAbstractButton*> chords;
  const auto toggle = [&](OptionButton& state, const char* name, const QString& caption,
                          const QString& hint) {
    auto* button = new QToolButton;
    button->setText(caption);
    button->setObjectName(QLatin1String(name));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    SetHint(button, hint);
    // The pressed one must be told from the other in a dark theme too.
    QObject::connect(button, &QToolButton::toggled, button, [button](bool pressed) {
      QPalette palette;
      if (pressed) {
        palette.setColor(QPalette::Button, palette.color(QPalette::Highlight));
        palette.setColor(QPalette::ButtonText, palette.color(QPalette::HighlightedText));
      }
      button->setPalette(palette);
    });
    Bind(state, button);
    column->addWidget(button);
    chords.push_back(button);
  };
  toggle(form_.tglUpPoyas, "tglUpPoyas", QStringLiteral("Верхний пояс"),
         QStringLiteral("Переключиться к верхнему поясу"));
  toggle(form_.tglDwnPoyas, "tglDwnPoyas", QStringLiteral("Нижний пояс"),
         QStringLiteral("Переключиться к нижнему поясу"));
  new OneTabStop(this, chords, OneTabStop::Arrows::Choose);
}

void LoadTab::AddWeight(QBoxLayout* column) {
  auto* rows = AddGroup<QVBoxLayout>(column, QStringLiteral("Учитывать"));
  const auto box = [&](CheckBox& state, const char* name, const QString& caption,
                       const QString& hint) {
    auto* check = new QCheckBox(caption);
    check->setObjectName(QLatin1String(name));
    SetHint(check, hint);
    Bind(state, check);
    rows->addWidget(check);
  };
  box(form_.chkOwnWeight, "chkOwnWeight", QStringLiteral("&Собственный вес"),
      QStringLiteral("Учитывать собственный вес при расчете усилий в стержнях."));
  box(form_.chkDinloadEnable, "chkDinloadEnable", QStringLiteral("Наличае &динамических нагрузок"),
      QStringLiteral("Оказывает влияние на проверку гибкости растянутых элементов"));
}

void LoadTab::AddMaterial(QBoxLayout* column) {
  auto* box = AddGroup<QVBoxLayout>(column, QStringLiteral("Материал и коэффициенты"));
  auto* steel = new QLabel;
  steel->setObjectName(QStringLiteral("lblStillName"));
  steel->setWordWrap(true);
  steel->setAccessibleName(QStringLiteral("Сталь"));
  Bind(form_.lblStillName, steel);
  box->addWidget(steel);
  auto* choose = new QPushButton(QStringLiteral("Ста&ль ..."));
  choose->setObjectName(QStringLiteral("cmdSteelGet"));
  choose->setEnabled(form_.HasSteelWindow());
  QObject::connect(choose, &QPushButton::clicked, this, [this] { form_.cmdSteelGet_Click(); });
  box->addWidget(choose);
  auto* rows = new QFormLayout;
  box->addLayout(rows);
  const auto number = [&](TextBox& state, const char* name, const QString& caption) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    Bind(state, edit);
    rows->addRow(LabelFor(edit, caption), edit);
  };
  number(form_.txtRy, "txtRy", QStringLiteral("&Расчетное сопротивление Ry, МПа"));
  number(form_.txtUsloviyaRabot, "txtUsloviyaRabot",
         QStringLiteral("Коэффициент условий ра&боты γc"));
  number(form_.txtNadegnost, "txtNadegnost", QStringLiteral("Коэффициент наде&жности γn"));
  box->addStretch();
}

void LoadTab::AddCommands(QBoxLayout* column) {
  auto* rows = AddGroup<QVBoxLayout>(column, QStringLiteral("Расчет"), 1);
  const auto command = [&](const char* name, const QString& caption, const char* menuItem) {
    auto* button = new QPushButton(caption);
    button->setObjectName(QLatin1String(name));
    button->setMinimumHeight(34);
    const frmMain::MenuItem item = form_.FindMenuItem(menuItem);
    button->setEnabled(item.Enabled);
    QObject::connect(button, &QPushButton::clicked, this, item.Click);
    rows->addWidget(button);
    return button;
  };
  command("cmdCalculate", QStringLiteral("В&ычислить"), "mnuCalc");
  command("cmdCalcAndSelect", QStringLiteral("Подобрат&ь ..."), "mnuSearch");
  command("cmdShowResults", QStringLiteral("О&тчет"), "mnuOtchet")
      ->setToolTip(QStringLiteral("Сгенерировать отчет"));
  rows->addStretch();
}

}  // namespace trelonit

#include "windows/main/SectionTab.h"

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>

#include "catalogue/SectionLayouts.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/OneTabStop.h"
#include "windows/binding/PictureWidgets.h"
#include "windows/main/NoticeViews.h"
#include "windows/main/SectionPanel.h"
#include "windows/main/SmallSchemeView.h"
#include "workstation/results/ResultPicture.h"

namespace trelonit {

namespace {

constexpr int layoutsInRow = 6;
constexpr QSize layoutSize{78, 78};
constexpr QSize summarySize{44, 44};

}  // namespace

SectionTab::SectionTab(frmMain& form, QWidget* parent) : QWidget(parent), form_(form) {
  auto* columns = new QHBoxLayout(this);
  auto* groups = new QVBoxLayout;
  columns->addLayout(groups, 2);
  AddGroups(groups);
  auto* section = new QVBoxLayout;
  columns->addLayout(section, 3);
  AddLayouts(section);
  AddLists(section);
}

void SectionTab::AddGroups(QBoxLayout* column) {
  auto* rows = AddGroup<QGridLayout>(column, QStringLiteral("Группы элементов"), 1);
  groups_ = rows;
  std::vector<QAbstractButton*> options;
  for (Long number = 1; number <= groupCount; ++number) {
    const QString name = ToQt(GroupName(static_cast<GroupOption>(number)));
    auto* option = new QRadioButton(name);
    option->setObjectName(QStringLiteral("optElementSection%1").arg(number));
    SetHint(option, QStringLiteral("Выбор текущей группы конструктивных элементов."));
    Bind(form_.optElementSection, number, option);
    auto* picture = new PictureView(summarySize);
    picture->setFixedSize(summarySize);
    picture->setAccessibleName(name + QStringLiteral(": сечение"));
    Bind(form_.imgProfileSec[number], picture);
    auto* size = new QLabel;
    size->setAccessibleName(name + QStringLiteral(": типоразмер"));
    size->setObjectName(QStringLiteral("lblProfilName%1").arg(number));
    Bind(form_.lblProfilName[number], size);
    const int row = static_cast<int>(number) - 1;
    rows->addWidget(option, row, 0);
    rows->addWidget(picture, row, 1);
    rows->addWidget(size, row, 2);
    rows->setRowStretch(row, option->isHidden() ? 0 : 1);
    option->installEventFilter(this);
    options.push_back(option);
  }
  new OneTabStop(this, options, OneTabStop::Arrows::Choose);
  rows->setColumnStretch(2, 1);
  rows->addWidget(NewCopySectionButton(form_), static_cast<int>(groupCount), 0, 1, 3,
                  Qt::AlignRight);
  auto* scheme = AddGroup<QVBoxLayout>(column, QStringLiteral("Текущая группа на схеме"));
  auto* view = new SmallSchemeView(form_);
  view->setObjectName(QStringLiteral("imgPrevSchem"));
  scheme->addWidget(view);
}

bool SectionTab::eventFilter(QObject* watched, QEvent* event) {
  // A group that the scheme does not have leaves no hole among the others.
  if (event->type() == QEvent::HideToParent || event->type() == QEvent::ShowToParent) {
    int row = 0;
    int column = 0;
    int height = 0;
    int width = 0;
    groups_->getItemPosition(groups_->indexOf(static_cast<QWidget*>(watched)), &row, &column,
                             &height, &width);
    groups_->setRowStretch(row, event->type() == QEvent::ShowToParent ? 1 : 0);
  }
  return QWidget::eventFilter(watched, event);
}

void SectionTab::AddLayouts(QBoxLayout* column) {
  auto* grid = AddGroup<QGridLayout>(column, QStringLiteral("Компоновка сечения"));
  std::vector<QAbstractButton*> buttons;
  for (Long layout = 1; layout <= sectionLayoutCount; ++layout) {
    auto* button = new PictureButton(layoutSize);
    button->setObjectName(QStringLiteral("imgProfileSecSelect%1").arg(layout));
    const QString caption = QString::fromUtf8(FindSectionLayout(layout)->Caption);
    button->setAccessibleName(caption);
    button->setToolTip(caption);
    Bind(form_.imgProfileSecSelect[layout], button,
         [this, layout] { form_.imgProfileSecSelect_Click(layout); });
    const int place = static_cast<int>(layout) - 1;
    grid->addWidget(button, place / layoutsInRow, place % layoutsInRow);
    buttons.push_back(button);
  }
  // Another layout loses the size: an arrow alone does not take it.
  new OneTabStop(this, buttons, OneTabStop::Arrows::Lead);
}

void SectionTab::AddLists(QBoxLayout* column) {
  auto* box = AddGroup<QHBoxLayout>(column, QStringLiteral("Прокат"), 1);
  auto* view = new PictureView({240, 240});
  view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  view->setObjectName(QStringLiteral("imgProfView"));
  view->setAccessibleName(QStringLiteral("Выбранная компоновка сечения"));
  Bind(form_.imgProfView, view);
  auto* pictures = new QVBoxLayout;
  box->addLayout(pictures, 2);
  pictures->addWidget(view, 1);
  auto* panel = new SectionPanel(form_);
  pictures->addWidget(panel, 4);

  auto* rows = new QFormLayout;
  rows->setRowWrapPolicy(QFormLayout::WrapAllRows);
  box->addLayout(rows, 3);
  const auto list = [&](ComboBox& state, const char* name, const QString& caption,
                        bool editable = false) {
    auto* combo = new QComboBox;
    combo->setObjectName(QLatin1String(name));
    combo->setEditable(editable);
    combo->setInsertPolicy(QComboBox::NoInsert);
    // Names of standards are long: the box must not set the width of the window.
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(12);
    Bind(state, combo);
    rows->addRow(LabelFor(combo, caption), combo);
    return combo;
  };
  list(form_.cmbKatalog, "cmbKatalog", QStringLiteral("&Каталог металлопроката"));
  list(form_.cmbTypeProfile, "cmbTypeProfile", QStringLiteral("&Тип и стандарт металлопроката"));
  list(form_.cmbSectType, "cmbSectType", QStringLiteral("Типо&размер металлопроката"));
  rows->addRow(NewSizeSearch(form_));
  auto* source = new NoticeLine(Severity::Warning);
  source->setObjectName(QStringLiteral("lblSectionSource"));
  Bind(form_.lblSectionSource, source);
  rows->addRow(source);
  SetHint(list(form_.cmbGdist, "cmbGdist", QStringLiteral("&Зазор между профилями, мм"), true),
          QStringLiteral("Растояние между спаренными профилями - Не ограничивается програмой !!! "
                         "Контролируйте правильность выбора!"));
  rows->addRow(panel->Facts());
}

}  // namespace trelonit

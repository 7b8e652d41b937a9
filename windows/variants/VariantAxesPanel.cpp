#include "windows/variants/VariantAxesPanel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include "catalogue/SectionLayouts.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/PictureIcon.h"
#include "windows/binding/Pictures.h"
#include "windows/main/NoticeViews.h"

namespace trelonit {

namespace {

QLabel* NewFault() {
  auto* label = new QLabel;
  // It quotes what was typed.
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, WarningColor(palette));
  label->setPalette(palette);
  return label;
}

/// Who hears the screen hears what is wrong where it stands.
void DescribeFault(QLineEdit* edit, QLabel* fault, const QString& hint, Label& state) {
  edit->setToolTip(hint);
  Follow(state, fault, [edit, fault, hint, &state] {
    fault->setText(ToQt(state.Caption()));
    ShowCommon(state, fault);
    edit->setAccessibleDescription(
        fault->text().isEmpty() ? hint : fault->text() + QLatin1Char('\n') + hint);
  });
}

}  // namespace

VariantAxesPanel::VariantAxesPanel(frmVariants& form, QWidget* parent)
    : QWidget(parent), form_(form) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 4, 0);
  column->setSpacing(4);
  auto* sizes = AddGroup<QGridLayout>(column, QStringLiteral("Размеры"));
  for (const AxisName name :
       {AxisName::Height, AxisName::Panels, AxisName::Span, AxisName::EndPanel}) {
    AddAxis(sizes, name);
  }
  AddSchemes(column);
  auto* sections = AddGroup<QGridLayout>(column, QStringLiteral("Сечения и сталь"));
  for (const AxisName name :
       {AxisName::Upper, AxisName::Lower, AxisName::Diagonals, AxisName::SupportDiagonals,
        AxisName::Posts, AxisName::Gap, AxisName::Steel}) {
    AddAxis(sections, name);
  }
  AddChoice(column);
  auto* offer = new QPushButton(QStringLiteral("Пре&дложить заново"));
  offer->setObjectName(QStringLiteral("cmdOffer"));
  offer->setAutoDefault(false);
  SetHint(offer, QStringLiteral("Вернуть оси, которые подходят к нынешнему проекту"));
  QObject::connect(offer, &QPushButton::clicked, this, [this] { form_.Axes.cmdOffer_Click(); });
  column->addWidget(offer, 0, Qt::AlignLeft);
  column->addStretch();
}

void VariantAxesPanel::AddAxis(QGridLayout* rows, AxisName name) {
  AxisInput& axis = form_.Axes[name];
  const int row = rows->rowCount();
  const QString caption = QString::fromUtf8(axis.Caption);
  auto* on = new QCheckBox(caption);
  on->setObjectName(QStringLiteral("chk") + QLatin1String(axis.Key));
  SetHint(on, QStringLiteral("Пробовать эти значения; без отметки остается как в проекте"));
  Bind(axis.On, on);
  auto* edit = new QLineEdit;
  edit->setObjectName(QStringLiteral("txt") + QLatin1String(axis.Key));
  edit->setAccessibleName(caption + QStringLiteral(": значения"));
  Bind(axis.Values, edit);
  // A long text that nobody is typing shows its beginning.
  const auto toBegin = [edit] {
    if (!edit->isModified()) {
      edit->setCursorPosition(0);
    }
  };
  QObject::connect(edit, &QLineEdit::textChanged, edit, toBegin);
  toBegin();
  auto* fault = NewFault();
  fault->setObjectName(QStringLiteral("lblFault") + QLatin1String(axis.Key));
  DescribeFault(edit, fault, QString::fromUtf8(axis.Hint), axis.Fault);
  rows->addWidget(on, row, 0);
  if (name >= AxisName::Upper && name <= AxisName::Posts) {
    rows->addWidget(edit, row, 1);
    rows->addWidget(NewKindButton(name), row, 2);
  } else {
    rows->addWidget(edit, row, 1, 1, 2);
  }
  rows->addWidget(fault, row + 1, 0, 1, 3);
  rows->setColumnStretch(1, 1);
  rows->setVerticalSpacing(2);
  rows->setContentsMargins(8, 4, 8, 4);
}

QWidget* VariantAxesPanel::NewKindButton(AxisName name) {
  auto* button = new QToolButton;
  const AxisInput& axis = form_.Axes[name];
  button->setObjectName(QStringLiteral("cmdKinds") + QLatin1String(axis.Key));
  button->setText(QStringLiteral("..."));
  button->setFocusPolicy(Qt::StrongFocus);
  button->setAccessibleName(QString::fromUtf8(axis.Caption) + QStringLiteral(": виды сечений"));
  SetHint(button, QStringLiteral("Выбрать расположения профилей и сортаменты"));
  auto* menu = new QMenu(button);
  button->setMenu(menu);
  button->setPopupMode(QToolButton::InstantPopup);
  button->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
  // With the ticks of the moment.
  QObject::connect(menu, &QMenu::aboutToShow, this, [this, menu, name] {
    menu->clear();
    for (Long number = 1; number <= sectionLayoutCount; ++number) {
      const SectionLayout& layout = *FindSectionLayout(number);
      const QByteArray layoutCaption(layout.Caption.data(),
                                     static_cast<qsizetype>(layout.Caption.size()));
      QMenu* kinds =
          menu->addMenu(QStringLiteral("%1  %2").arg(number).arg(QString::fromUtf8(layoutCaption)));
      kinds->setIcon(PictureIcon(PictureFile(
          {.From = Picture::Source::SectionLayout, .Number = static_cast<Integer>(number)})));
      for (const Long standard : layout.Standards) {
        const SectionKind kind{.Layout = number, .Standard = standard};
        QAction* entry =
            kinds->addAction(QStringLiteral("%1/%2  %3")
                                 .arg(number)
                                 .arg(standard)
                                 .arg(ToQt(form_.Catalogue()[standard].Name.Trimmed())));
        entry->setCheckable(true);
        entry->setChecked(form_.Axes.HasKind(name, kind));
        QObject::connect(entry, &QAction::triggered, this,
                         [this, name, kind] { form_.Axes.ToggleKind(name, kind); });
      }
    }
  });
  return button;
}

void VariantAxesPanel::AddSchemes(QBoxLayout* column) {
  auto* row = AddGroup<QHBoxLayout>(column, QStringLiteral("Схемы"));
  row->setContentsMargins(8, 4, 8, 4);
  for (Long scheme = 1; scheme <= VariantsAxes::schemes; ++scheme) {
    auto* box = new QCheckBox(QString::number(scheme));
    box->setObjectName(QStringLiteral("chkScheme%1").arg(scheme));
    box->setAccessibleName(QStringLiteral("Схема %1").arg(scheme));
    box->setToolTip(QStringLiteral("Без отметок остается схема проекта"));
    box->setIcon(PictureIcon(SchemePictureFile(scheme)));
    box->setIconSize({40, 24});
    Bind(form_.Axes.chkScheme[static_cast<std::size_t>(scheme) - 1], box);
    row->addWidget(box);
  }
}

void VariantAxesPanel::AddChoice(QBoxLayout* column) {
  auto* rows = AddGroup<QGridLayout>(column, QStringLiteral("Подбор"));
  rows->setVerticalSpacing(2);
  rows->setContentsMargins(8, 4, 8, 4);
  auto* opinion = new QCheckBox(QStringLiteral("по обоим: и по &СНиП без отступлений"));
  opinion->setObjectName(QStringLiteral("chkOpinion"));
  SetHint(opinion, QStringLiteral("Подбирать профили, которые проходят и проверки расчета, и "
                                  "второе мнение; считается дольше"));
  Bind(form_.chkOpinion, opinion);
  rows->addWidget(opinion, 0, 0, 1, 2);
  auto* best = new QLineEdit;
  best->setObjectName(QStringLiteral("txtBest"));
  best->setMaximumWidth(80);
  rows->addWidget(LabelFor(best, QStringLiteral("Л&учших, не больше")), 1, 0);
  rows->addWidget(best, 1, 1);
  Bind(form_.txtBest, best);
  auto* fault = NewFault();
  fault->setObjectName(QStringLiteral("lblFaultBest"));
  DescribeFault(best, fault, QStringLiteral("Столько самых легких вариантов помнить"),
                form_.lblBestFault);
  rows->addWidget(fault, 2, 0, 1, 2);
}

}  // namespace trelonit

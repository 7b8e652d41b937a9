#include "windows/main/SectionPanel.h"

#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStringListModel>
#include <QVBoxLayout>

#include "windows/binding/Binding.h"
#include "windows/binding/ClearButton.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/Pictures.h"
#include "windows/main/SectionFigure.h"
#include "workstation/results/ResultPicture.h"

namespace trelonit {

namespace {

QString FactsText(const std::vector<SectionFact>& facts) {
  QString rows;
  for (const SectionFact& fact : facts) {
    rows += QStringLiteral("<tr><td style='padding-right:14px'>%1</td><td>%2</td></tr>")
                .arg(ToQt(fact.Name).toHtmlEscaped(), ToQt(fact.Value).toHtmlEscaped());
  }
  return QStringLiteral("<table cellspacing='1'>%1</table>").arg(rows);
}

}  // namespace

SectionPanel::SectionPanel(frmMain& form, QWidget* parent)
    : QWidget(parent), form_(form), figure_(new SectionFigure), facts_(new QLabel) {
  figure_->setObjectName(QStringLiteral("SectionFigure"));
  facts_->setObjectName(QStringLiteral("SectionFacts"));
  facts_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  facts_->setTextFormat(Qt::RichText);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(figure_, 1);
  soon_.setSingleShot(true);
  soon_.setInterval(0);
  QObject::connect(&soon_, &QTimer::timeout, this, [this] { Refresh(); });
  form_.SectionChanged = [this] { soon_.start(); };
  Refresh();
}

SectionPanel::~SectionPanel() {
  form_.SectionChanged = nullptr;
}

void SectionPanel::showEvent(QShowEvent* event) {
  // The sizes of the truss stand on another tab.
  Refresh();
  QWidget::showEvent(event);
}

void SectionPanel::Refresh() {
  frmMain::ShownSection shown = form_.DescribeSection();
  const QString group = ToQt(GroupName(shown.Group));
  facts_->setText(FactsText(shown.Facts));
  facts_->setAccessibleName(group + QStringLiteral(": величины сечения"));
  figure_->setAccessibleName(group + QStringLiteral(": сечение в масштабе"));
  figure_->Show(std::move(shown.Drawing), std::move(shown.Locale));
}

QPushButton* NewCopySectionButton(frmMain& form) {
  auto* button = new QPushButton(QStringLiteral("Скопировать сечение &в"));
  button->setObjectName(QStringLiteral("cmdCopySection"));
  SetHint(button, QStringLiteral("Назначить сечение текущей группы другим группам"));
  auto* menu = new QMenu(button);
  button->setMenu(menu);
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, &form] {
    menu->clear();
    const std::vector<GroupOption> targets = form.CopyTargets();
    const auto add = [&](const QString& caption, const std::vector<GroupOption>& to) {
      QObject::connect(menu->addAction(caption), &QAction::triggered, menu,
                       [&form, to] { form.cmdCopySection_Click(to); });
    };
    for (const GroupOption target : targets) {
      add(ToQt(GroupName(target)), {target});
    }
    menu->addSeparator();
    add(QStringLiteral("Все остальные группы"), targets);
  });
  return button;
}

QLineEdit* NewSizeSearch(frmMain& form) {
  auto* edit = new QLineEdit;
  edit->setObjectName(QStringLiteral("txtFindSize"));
  edit->setPlaceholderText(QStringLiteral("найти: 100x10"));
  QPalette pale = edit->palette();
  pale.setColor(QPalette::PlaceholderText, AsideColor(pale));
  edit->setPalette(pale);
  AddClearButton(*edit);
  edit->setAccessibleName(QStringLiteral("Поиск типоразмера"));
  SetHint(edit,
          QStringLiteral("Наберите часть обозначения и выберите типоразмер; Enter берет первый "
                         "найденный"));
  auto* found = new QStringListModel(edit);
  auto* completer = new QCompleter(found, edit);
  completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  completer->setMaxVisibleItems(12);
  edit->setCompleter(completer);
  QObject::connect(edit, &QLineEdit::textEdited, edit, [&form, found](const QString& text) {
    QStringList names;
    for (const Long place : form.FindSizes(FromQt(text))) {
      names << ToQt(form.cmbSectType.List()[static_cast<std::size_t>(place)]);
    }
    found->setStringList(names);
  });
  const auto take = [&form, edit](const QString& text) {
    const std::vector<Long> places = form.FindSizes(FromQt(text));
    if (!places.empty()) {
      form.cmbSectType.Select(places.front());
      edit->clear();
    }
  };
  QObject::connect(completer, qOverload<const QString&>(&QCompleter::activated), edit, take,
                   // The completer puts its text into the box after this.
                   Qt::QueuedConnection);
  QObject::connect(edit, &QLineEdit::returnPressed, edit, [edit, take] { take(edit->text()); });
  return edit;
}

}  // namespace trelonit

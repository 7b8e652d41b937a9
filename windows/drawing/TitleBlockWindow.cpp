#include "windows/drawing/TitleBlockWindow.h"

#include <QCheckBox>
#include <QDate>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"

namespace trelonit {

namespace {

/// Letters that a field shows at once.
constexpr int wideField = 64;

}  // namespace

TitleBlockWindow::TitleBlockWindow(const TitleBlockChoice& present, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(QStringLiteral("Основная надпись"));
  auto* column = new QVBoxLayout(this);
  shown_ = new QCheckBox(QStringLiteral("&Основная надпись на листах (форма 3 ГОСТ Р 21.101)"));
  shown_->setObjectName(QStringLiteral("Shown"));
  shown_->setChecked(present.Shown);
  column->addWidget(shown_);

  auto* rows = AddGroup<QFormLayout>(column, QStringLiteral("Что в ней стоит"));
  const TitleBlock& block = present.Block;
  const auto field = [&](const char* name, const QString& caption,
                         std::string TitleBlock::*member) {
    return AddField(*rows, name, caption, member, block);
  };
  QLineEdit* code = field("Code", QStringLiteral("О&бозначение"), &TitleBlock::Code);
  code->setMinimumWidth(code->fontMetrics().averageCharWidth() * wideField);
  field("Project", QStringLiteral("&Проект"), &TitleBlock::Project);
  field("Building", QStringLiteral("&Здание, сооружение"), &TitleBlock::Building);
  field("Images", QStringLiteral("&Что изображено"), &TitleBlock::Images);
  field("Organisation", QStringLiteral("Ор&ганизация"), &TitleBlock::Organisation);
  field("Author", QStringLiteral("&Разработал"), &TitleBlock::Author);
  field("Checker", QStringLiteral("Про&верил"), &TitleBlock::Checker);
  QLineEdit* date = field("Date", QStringLiteral("&Дата"), &TitleBlock::Date);
  auto* today = new QPushButton(QStringLiteral("Сегод&ня"));
  today->setObjectName(QStringLiteral("Today"));
  today->setAutoDefault(false);
  QObject::connect(today, &QPushButton::clicked, date, [date] {
    date->setText(QDate::currentDate().toString(QStringLiteral("dd.MM.yy")));
  });
  rows->addRow(QString(), today);
  field("Stage", QStringLiteral("С&тадия"), &TitleBlock::Stage);
  field("Sheet", QStringLiteral("&Лист"), &TitleBlock::Sheet);
  field("Sheets", QStringLiteral("Л&истов"), &TitleBlock::Sheets);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
}

QLineEdit* TitleBlockWindow::AddField(QFormLayout& rows, const char* name, const QString& caption,
                                      std::string TitleBlock::*field, const TitleBlock& present) {
  auto* edit = new QLineEdit(ToQt(present.*field));
  edit->setObjectName(QLatin1String(name));
  rows.addRow(LabelFor(edit, caption), edit);
  // Who fills it wants to see it.
  QObject::connect(edit, &QLineEdit::textEdited, shown_, [this] { shown_->setChecked(true); });
  entries_.push_back({field, edit});
  return edit;
}

TitleBlockChoice TitleBlockWindow::Chosen() const {
  TitleBlockChoice choice;
  choice.Shown = shown_->isChecked();
  for (const Entry& entry : entries_) {
    choice.Block.*entry.Field = FromQt(entry.Edit->text().trimmed());
  }
  return choice;
}

}  // namespace trelonit

#include "windows/main/SchemeTab.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "analysis/Scheme.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/OneTabStop.h"
#include "windows/binding/PictureWidgets.h"
#include "windows/binding/Pictures.h"
#include "windows/main/GeometryMarks.h"
#include "windows/main/TrussSketchView.h"

namespace trelonit {

namespace {

constexpr int schemesInRow = 5;
constexpr QSize schemeSize{132, 66};
/// The size of figures beside their option.
constexpr double smallLetters = 0.9;

const QString takenHead = QStringLiteral("расчет, м");
const QString heldHead = QStringLiteral("по подписи, м");

/// A figure beside an option, in one line. The toolkit measures every label three times, in case it
/// wraps, and there are two dozen of these.
class FigureLabel : public QLabel {
 public:
  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override {
    if (measured_ != text() || font_ != font()) {
      measured_ = text();
      font_ = font();
      size_ = fontMetrics().size(0, text());
    }
    return size_;
  }

 private:
  mutable std::optional<QString> measured_;
  mutable QFont font_;
  mutable QSize size_;
};

/// A place for a figure beside an option.
QLabel* AddFigure(QGridLayout* rows, int row, int column) {
  auto* label = new FigureLabel;
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  QFont small = label->font();
  small.setPointSizeF(small.pointSizeF() * smallLetters);
  label->setFont(small);
  rows->addWidget(label, row, column);
  return label;
}

/// A box in a column that is wider than its entries: none of them is measured. The toolkit can be
/// told so, but then makes the list that is to open, which nobody has asked for.
class ColumnBox : public QComboBox {
 public:
  explicit ColumnBox(int leastLetters) : leastLetters_(leastLetters) {}

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override {
    constexpr int gap = 5;
    constexpr int leastHeight = 14;
    const QFontMetrics metrics = fontMetrics();
    const QSize contents(leastLetters_ * metrics.horizontalAdvance(QLatin1Char('X')) + gap,
                         std::max(qCeil(QFontMetricsF(metrics).height()), leastHeight) + 2);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
  }

 private:
  int leastLetters_;
};

/// Takes groups closer together, so that all of them have room on a small screen.
void Tighten(const QBoxLayout& column) {
  for (int place = 0; place < column.count(); ++place) {
    if (const QWidget* group = column.itemAt(place)->widget()) {
      QMargins margins = group->layout()->contentsMargins();
      margins.setTop(margins.top() / 2);
      margins.setBottom(margins.bottom() / 2);
      group->layout()->setContentsMargins(margins);
    }
  }
}

/// Schemes 6 to 10 have no hint of their own; what is not calculated yet says so.
QString SchemeHint(Long scheme) {
  static constexpr std::array<const char*, 5> hints{
      "Первый тип фермы опирание по нижнему поясу", "Второй тип фермы опирание по верхнему поясу",
      "Третий тип фермы опирание по верхнему поясу",
      "Четвертый тип фермы опирание по верхнему поясу",
      "Пятый тип фермы опирание по нижнему поясу"};
  const auto place = static_cast<std::size_t>(scheme - 1);
  QStringList lines;
  if (place < hints.size()) {
    lines += QString::fromUtf8(hints[place]);
  }
  if (FindScheme(scheme)->Reserved) {
    lines += QStringLiteral("Схема %1 пока не рассчитывается").arg(scheme);
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace

SchemeTab::SchemeTab(frmMain& form, QWidget* parent) : QWidget(parent), form_(form) {
  auto* columns = new QHBoxLayout(this);
  auto* pictures = new QVBoxLayout;
  columns->addLayout(pictures, 1);
  AddSchemes(pictures);

  auto* inputs = new QVBoxLayout;
  columns->addLayout(inputs);
  AddGeometry(inputs);
  // What each choice does to the slenderness out of the plane stands in the hint: the captions
  // tell where the chord is held, the calculation takes these lengths.
  AddBracing(inputs,
             {.Options = form_.optUpPoyas,
              .Lengths = form_.lblUpPoyasLength,
              .Name = QStringLiteral("lblUpPoyasLength"),
              .Caption = QStringLiteral("Верхний пояс закреплен"),
              .Hint = QStringLiteral("Влияет на устойчивость верхнего пояса из плоскости фермы"),
              .Taken = {QStringLiteral("наибольшая панель"), QStringLiteral("наибольшая панель"),
                        QStringLiteral("половина пролета"), QStringLiteral("весь пролет")}});
  AddBracing(
      inputs,
      {.Options = form_.optDownPoyas,
       .Lengths = form_.lblDownPoyasLength,
       .Name = QStringLiteral("lblDownPoyasLength"),
       .Caption = QStringLiteral("Нижний пояс закреплен"),
       .Hint = QStringLiteral("Влияет на устойчивость нижнего пояса из плоскости фермы"),
       .Taken = {QStringLiteral("одна панель пояса"), QStringLiteral("до двух панелей пояса"),
                 QStringLiteral("половина пролета"), QStringLiteral("весь пролет")}});
  AddDeflection(inputs);
  Tighten(*inputs);
  inputs->addStretch();
  form_.GeometryChanged = [this] { RefreshGeometry(); };
  RefreshGeometry();
}

SchemeTab::~SchemeTab() {
  form_.GeometryChanged = nullptr;
}

void SchemeTab::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!std::exchange(begun_, true)) {
    // Behind the layouts, before the first paint, in which much else comes first.
    QMetaObject::invokeMethod(
        this, [this] { PaintAside(); }, Qt::QueuedConnection);
  }
}

void SchemeTab::PaintAside() {
  for (PictureButton* scheme : schemes_) {
    scheme->PaintAside(aside_);
  }
  chosen_->PaintAside(aside_);
  truss_->PaintAside(aside_);
}

void SchemeTab::RefreshGeometry() {
  truss_->Refresh();
  marks_->Refresh();
}

void SchemeTab::AddSchemes(QBoxLayout* column) {
  auto* grid = AddGroup<QGridLayout>(column, QStringLiteral("Схема фермы"));
  std::vector<QAbstractButton*> buttons;
  for (Long scheme = 1; scheme <= schemeCount; ++scheme) {
    auto* button = new PictureButton(schemeSize);
    button->SetFile(SchemePictureFile(scheme));
    button->setAccessibleName(QStringLiteral("Схема фермы %1").arg(scheme));
    button->setObjectName(QStringLiteral("imgTreloType%1").arg(scheme));
    SetHint(button, SchemeHint(scheme));
    button->SetPale(FindScheme(scheme)->Reserved);
    buttons.push_back(button);
    schemes_.push_back(button);
    Bind(form_.imgTreloType[scheme], button, [this, scheme] { form_.imgTreloType_Click(scheme); });
    const int place = static_cast<int>(scheme) - 1;
    grid->addWidget(button, place / schemesInRow, place % schemesInRow);
  }
  // Another scheme may lose loads: an arrow alone does not take it.
  new OneTabStop(this, buttons, OneTabStop::Arrows::Lead);
  auto* large = AddGroup<QVBoxLayout>(column, QStringLiteral("Выбранная схема"), 2);
  chosen_ = new PictureView({640, 130});
  chosen_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  chosen_->setObjectName(QStringLiteral("imgMain"));
  chosen_->setAccessibleName(QStringLiteral("Выбранная схема фермы"));
  Bind(form_.imgMain, chosen_);
  large->addWidget(chosen_);
  auto* scaled = AddGroup<QVBoxLayout>(column, QStringLiteral("Ферма в масштабе"), 5);
  truss_ = new TrussSketchView(form_);
  truss_->setObjectName(QStringLiteral("TrussToScale"));
  truss_->setAccessibleName(QStringLiteral("Ферма в масштабе"));
  scaled->addWidget(truss_);
}

void SchemeTab::AddGeometry(QBoxLayout* column) {
  marks_ = new GeometryMarks(form_, this);
  auto* rows = AddGroup<QFormLayout>(column, QStringLiteral("Геометрия"));
  const auto box = [&](TextBox& state, const char* name, const QString& caption) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    Bind(state, edit);
    rows->addRow(LabelFor(edit, caption), edit);
    return edit;
  };
  auto* span = box(form_.txtLengthF, "txtLengthF", QStringLiteral("&Длинна фермы, м"));
  QObject::connect(span, &QLineEdit::editingFinished, this,
                   [this] { form_.txtLengthF_LostFocus(); });
  auto* height = box(form_.txtHight, "txtHight", QStringLiteral("&Высота фермы, м"));
  auto* endPanel = box(form_.txtLenOporn, "txtLenOporn", QStringLiteral("Опорная панел&ь, м"));
  SetHint(endPanel,
          QStringLiteral("Длинна крайних опорных панелей. Если не задано, то полагаются все панели "
                         "равной длинны !"));
  auto* panels = new ColumnBox(2);
  panels->setObjectName(QStringLiteral("cmbPanelNum"));
  Bind(form_.cmbPanelNum, panels);
  rows->addRow(LabelFor(panels, QStringLiteral("&Кол-во панелей фермы")), panels);
  marks_->Add(GeometryInput::Span, span);
  marks_->Add(GeometryInput::Height, height);
  marks_->Add(GeometryInput::EndPanel, endPanel);
  marks_->Add(GeometryInput::PanelNum, panels);
  rows->addRow(marks_->Words());
}

void SchemeTab::AddBracing(QBoxLayout* column, const Bracing& bracing) {
  static constexpr std::array<const char*, 4> captions{
      "Только крайние", "Крайние и посредине пролета", "Через один", "Все узлы"};
  auto* rows = AddGroup<QGridLayout>(column, bracing.Caption);
  rows->setColumnStretch(0, 1);
  rows->setHorizontalSpacing(16);
  rows->setVerticalSpacing(2);
  QLabel* taken = AddFigure(rows, 0, 1);
  taken->setText(takenHead);
  SetHint(taken, QStringLiteral("Длина из плоскости фермы, которую берет расчет"));
  QLabel* held = AddFigure(rows, 0, 2);
  held->setText(heldHead);
  SetHint(held, QStringLiteral("Расстояние между закрепленными узлами по смыслу подписи"));
  std::vector<QAbstractButton*> options;
  for (Long number = 1; number <= static_cast<Long>(captions.size()); ++number) {
    const QString caption = QString::fromUtf8(captions[static_cast<std::size_t>(number - 1)]);
    auto* option = new QRadioButton(caption);
    option->setAccessibleName(bracing.Caption + QStringLiteral(": ") + caption);
    SetHint(option,
            bracing.Hint + QStringLiteral("\nРасчетная длина: ") + bracing.Taken[number - 1]);
    Bind(bracing.Options, number, option);
    rows->addWidget(option, static_cast<int>(number), 0);
    AddLengths(rows, bracing, number, option);
    options.push_back(option);
  }
  new OneTabStop(this, options, OneTabStop::Arrows::Choose);
}

void SchemeTab::AddLengths(QGridLayout* rows, const Bracing& bracing, Long number,
                           QWidget* option) {
  frmMain::BracingLength& length = bracing.Lengths[number];
  QLabel* taken = AddFigure(rows, static_cast<int>(number), 1);
  taken->setObjectName(QStringLiteral("%1%2Taken").arg(bracing.Name).arg(number));
  QLabel* held = AddFigure(rows, static_cast<int>(number), 2);
  held->setObjectName(QStringLiteral("%1%2ByCaption").arg(bracing.Name).arg(number));
  // Who hears the screen hears the lengths with the option.
  const auto describe = [=, hint = option->toolTip()] {
    option->setAccessibleDescription(
        QStringLiteral("%1\n%2: %3\n%4: %5")
            .arg(hint, takenHead, taken->text(), heldHead, held->text()));
  };
  Follow(length.Taken, taken, [&state = length.Taken, taken, describe] {
    ShowColoured(state, taken);
    describe();
  });
  Follow(length.ByCaption, held, [&state = length.ByCaption, held, describe] {
    ShowColoured(state, held);
    describe();
  });
}

void SchemeTab::AddDeflection(QBoxLayout* column) {
  auto* rows = AddGroup<QGridLayout>(column, QStringLiteral("Прогиб"));
  auto* wanted = new QCheckBox(QStringLiteral("По про&гибу   max"));
  wanted->setObjectName(QStringLiteral("chkProgib"));
  Bind(form_.chkProgib, wanted);
  rows->addWidget(wanted, 0, 0);

  auto* limit = new ColumnBox(7);
  limit->setObjectName(QStringLiteral("cmbLenlim"));
  limit->setAccessibleName(QStringLiteral("Предельный прогиб в долях пролета"));
  Bind(form_.cmbLenlim, limit);
  rows->addWidget(limit, 0, 1, 1, 2);

  const auto option = [&](OptionButton& state, const char* name, const QString& caption,
                          const QString& hint) {
    auto* button = new QRadioButton(caption);
    button->setObjectName(QLatin1String(name));
    SetHint(button, hint);
    Bind(state, button);
    return button;
  };
  auto* upper = option(form_.optBP, "optBP", QStringLiteral("Верхний пояс"),
                       QStringLiteral("Прогиб считать по Верхнему поясу"));
  auto* lower = option(form_.optNP, "optNP", QStringLiteral("Нижний пояс"),
                       QStringLiteral("Прогиб считать по Нижнему поясу"));
  rows->addWidget(upper, 1, 0);
  rows->addWidget(lower, 1, 1, 1, 2);
  new OneTabStop(this, {upper, lower}, OneTabStop::Arrows::Choose);

  auto* result = new QLineEdit;
  result->setObjectName(QStringLiteral("txtProgib"));
  result->setReadOnly(true);
  Bind(form_.txtProgib, result);
  SetHint(result,
          QStringLiteral("Наибольший прогиб фермы. Отображается после выполнения расчета!"));
  auto* label = LabelFor(result, QStringLiteral("Прогиб, м"));
  // Its caption is the window's; the form only shows and hides it.
  Follow(form_.lblProgib, label, [this, label] { ShowCommon(form_.lblProgib, label); });
  rows->addWidget(label, 2, 0);
  rows->addWidget(result, 2, 1);
  auto* overflow = new PictureView({64, 28});
  overflow->setObjectName(QStringLiteral("imgLenLimoverflow"));
  SetHint(overflow, QStringLiteral("Прогиб больше допустимого"));
  Follow(form_.imgLenLimoverflow, overflow, [this, overflow] {
    overflow->SetFile(PictureFile(form_.imgLenLimoverflow.Shown()));
    overflow->SetWarning(form_.imgLenLimoverflow.Shown().From != Picture::Source::None);
  });
  rows->addWidget(overflow, 2, 2);
}

}  // namespace trelonit

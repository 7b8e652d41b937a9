#include "windows/results/FindingsStrip.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <functional>

#include "opinion/Opinion.h"
#include "windows/binding/Binding.h"
#include "windows/binding/PictureWidgets.h"
#include "windows/help/HelpKey.h"
#include "workstation/report/ReportAppendix.h"

namespace trelonit {

namespace {

constexpr int shortestList = 60;
constexpr int tallestList = 180;

std::optional<Severity> TintOf(const SecondOpinion& opinion) {
  if (opinion.Figures.HasRefused()) {
    return Severity::Warning;
  }
  if (opinion.Findings.empty() || opinion.Findings.front().Grade == Severity::Note) {
    return std::nullopt;
  }
  return opinion.Findings.front().Grade;
}

QString WordOf(Severity severity) {
  return QString::fromUtf8(SeverityWord(severity));
}

/// Between two counts.
const QString countGap = QStringLiteral("   ");

/// "Опасно: 2 Внимание: 1", each in its colour, without those that there are none of. Painted piece
/// by piece: as rich text it would take as long to lay out as all other labels of the window.
class CountsLabel : public QLabel {
 public:
  explicit CountsLabel(const std::vector<Finding>& findings) {
    setTextFormat(Qt::PlainText);
    QStringList texts;
    for (const Severity severity : {Severity::Danger, Severity::Warning, Severity::Note}) {
      const auto count =
          std::count_if(findings.begin(), findings.end(),
                        [&](const Finding& finding) { return finding.Grade == severity; });
      if (count > 0) {
        counts_.push_back({severity, QStringLiteral("%1: %2").arg(WordOf(severity)).arg(count)});
        texts << counts_.back().Text;
      }
    }
    setText(texts.join(countGap));
  }

  QSize sizeHint() const override {
    double width = 0;
    Walk([&width](const Count& count, const QFont& font, double left) {
      width = left + QFontMetricsF(font).horizontalAdvance(count.Text);
    });
    return {static_cast<int>(std::ceil(width)), fontMetrics().height()};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const double baseline =
        (height() - fontMetrics().height()) / 2 + QFontMetricsF(font()).ascent();
    Walk([&](const Count& count, const QFont& font, double left) {
      painter.setFont(font);
      painter.setPen(SeverityColor(count.Of, palette()));
      painter.drawText(QPointF(left, baseline), count.Text);
    });
  }

 private:
  struct Count {
    Severity Of;
    QString Text;
  };

  /// Hands on each count with its font and where it begins.
  void Walk(const std::function<void(const Count&, const QFont&, double)>& step) const {
    const double between = QFontMetricsF(font()).horizontalAdvance(countGap);
    double left = 0;
    for (const Count& count : counts_) {
      QFont letters = font();
      letters.setBold(count.Of == Severity::Danger);
      step(count, letters, left);
      left += QFontMetricsF(letters).horizontalAdvance(count.Text) + between;
    }
  }

  std::vector<Count> counts_;
};

void SetInk(QLabel& label, const QColor& color, bool bold) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, color);
  label.setPalette(palette);
  QFont font = label.font();
  font.setBold(bold);
  label.setFont(font);
}

}  // namespace

FindingsStrip::FindingsStrip(const SecondOpinion& opinion, QWidget* parent)
    : NoticeFrame(TintOf(opinion), parent), column_(new QVBoxLayout(this)), row_(new QHBoxLayout) {
  setObjectName(QStringLiteral("Findings"));
  setAccessibleName(QStringLiteral("Второе мнение"));
  column_->setContentsMargins(10, 4, 6, 4);
  column_->addLayout(row_);
  if (opinion.Figures.HasRefused()) {
    AddStatement(ToQt(opinion.Figures.Refusal), Severity::Warning);
  } else if (opinion.Findings.empty()) {
    AddStatement(QStringLiteral("Второе мнение по %1: замечаний нет").arg(normName), std::nullopt);
  } else {
    AddSummary(opinion.Findings);
  }
}

void FindingsStrip::AddStatement(const QString& text, std::optional<Severity> severity) {
  if (severity) {
    row_->addWidget(NewSeverityMark(*severity));
  }
  auto* label = new QLabel(text);
  label->setObjectName(QStringLiteral("FindingsText"));
  label->setWordWrap(true);
  row_->addWidget(label, 1);
  AddHelp(*row_, QStringLiteral("Второе мнение"), QLatin1String(help_place::Opinion));
}

void FindingsStrip::AddSummary(const std::vector<Finding>& findings) {
  const Severity gravest = findings.front().Grade;
  row_->addWidget(NewSeverityMark(gravest));
  auto* counts = new CountsLabel(findings);
  counts->setObjectName(QStringLiteral("FindingsCounts"));
  row_->addWidget(counts);
  row_->addSpacing(8);
  auto* text = new ElidedLabel(ToQt(findings.front().Text));
  text->setObjectName(QStringLiteral("FindingsText"));
  if (gravest == Severity::Danger) {
    SetInk(*text, SeverityColor(gravest, palette()), true);
  }
  row_->addWidget(text, 1);

  auto* more = new QToolButton;
  more->setObjectName(QStringLiteral("cmdFindings"));
  more->setText(QStringLiteral("Все замечания"));
  more->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  more->setArrowType(Qt::DownArrow);
  more->setCheckable(true);
  more->setFocusPolicy(Qt::StrongFocus);
  more->setAutoRaise(true);
  row_->addWidget(more);
  AddList();
  // Setting out the words of all findings takes as long as everything else in the window: they wait
  // until somebody wants to see them.
  QObject::connect(more, &QToolButton::toggled, this, [this, more, findings](bool open) {
    more->setArrowType(open ? Qt::UpArrow : Qt::DownArrow);
    if (list_->widget() == nullptr) {
      FillList(findings);
    }
    list_->setVisible(open);
    FitList();
  });
}

void FindingsStrip::FitList() {
  if (list_ == nullptr || !list_->isVisible()) {
    return;
  }
  const int needed = list_->widget()->layout()->heightForWidth(list_->viewport()->width());
  list_->setMinimumHeight(std::min(needed, shortestList));
  list_->setMaximumHeight(std::min(needed, tallestList));
}

void FindingsStrip::resizeEvent(QResizeEvent* event) {
  NoticeFrame::resizeEvent(event);
  FitList();
}

void FindingsStrip::AddList() {
  list_ = new QScrollArea;
  list_->setObjectName(QStringLiteral("FindingsList"));
  list_->setAccessibleName(QStringLiteral("Все замечания"));
  list_->setWidgetResizable(true);
  list_->setFrameShape(QFrame::NoFrame);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->hide();
  column_->addWidget(list_);
}

void FindingsStrip::FillList(const std::vector<Finding>& findings) {
  auto* rows = new QWidget;
  auto* column = new QVBoxLayout(rows);
  column->setContentsMargins(0, 2, 0, 2);
  for (const Finding& finding : findings) {
    auto* line = new NoticeLine(finding.Grade);
    const QString text = ToQt(finding.Text);
    line->Text().setText(
        QStringLiteral("<b>%1.</b> %2").arg(WordOf(finding.Grade), text.toHtmlEscaped()));
    if (finding.Grade == Severity::Danger) {
      SetInk(line->Text(), SeverityColor(finding.Grade, palette()), true);
    }
    QToolButton* help = AddHelp(line->Row(), text, FindingPlace(finding.Code));
    SetHelpPlace(*line, help->objectName());
    column->addWidget(line);
  }
  list_->setWidget(rows);
  // The tint is seen through both.
  rows->setAutoFillBackground(false);
  list_->viewport()->setAutoFillBackground(false);
}

QToolButton* FindingsStrip::AddHelp(QHBoxLayout& row, const QString& about, const QString& place) {
  auto* help = new QToolButton;
  help->setObjectName(place);
  help->setText(QStringLiteral("Подробнее"));
  help->setToolTip(QStringLiteral("Открыть страницу справки"));
  help->setAccessibleName(QStringLiteral("Подробнее: ") + about);
  help->setFocusPolicy(Qt::StrongFocus);
  help->setAutoRaise(true);
  QPalette link = help->palette();
  link.setColor(QPalette::ButtonText, link.color(QPalette::Link));
  help->setPalette(link);
  QObject::connect(help, &QToolButton::clicked, help, [help, place] { AskForHelp(*help, place); });
  row.addWidget(help, 0, Qt::AlignTop);
  return help;
}

}  // namespace trelonit

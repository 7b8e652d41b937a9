#include "windows/main/NoticeViews.h"

#include <QHBoxLayout>
#include <QPaintEvent>
#include <QStylePainter>

#include "windows/binding/Binding.h"
#include "windows/binding/PictureWidgets.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

constexpr double tint = 0.14;
constexpr int edgeWidth = 4;

/// A colour between two, the share of the second one.
QColor Mixed(const QColor& one, const QColor& other, double share) {
  const auto mix = [share](double a, double b) { return a + (b - a) * share; };
  return QColor::fromRgbF(static_cast<float>(mix(one.redF(), other.redF())),
                          static_cast<float>(mix(one.greenF(), other.greenF())),
                          static_cast<float>(mix(one.blueF(), other.blueF())));
}

}  // namespace

QColor SeverityColor(Severity severity, const QPalette& palette) {
  switch (severity) {
    case Severity::Danger:
      return WarningColor(palette);
    case Severity::Warning:
      return CautionColor(palette);
    case Severity::Note:
      break;
  }
  return AsideColor(palette);
}

PictureView* NewSeverityMark(Severity severity) {
  const int side = QFontMetrics(QWidget().font()).height() + 2;
  auto* mark = new PictureView({side, side});
  mark->setFixedSize(side, side);
  mark->SetFile(QStringLiteral(":/pictures/severity-%1.svg").arg(QLatin1String(KeyOf(severity))));
  return mark;
}

NoticeLine::NoticeLine(Severity severity, QWidget* parent)
    : QWidget(parent), row_(new QHBoxLayout(this)), text_(new QLabel) {
  row_->setContentsMargins(0, 0, 0, 0);
  row_->addWidget(NewSeverityMark(severity), 0, Qt::AlignTop);
  text_->setWordWrap(true);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  row_->addWidget(text_, 1);
}

void Bind(Label& state, NoticeLine* line) {
  Follow(state, line, [&state, line] {
    line->Text().setText(ToQt(state.Caption()));
    ShowCommon(state, line);
  });
}

NoticeFrame::NoticeFrame(std::optional<Severity> severity, QWidget* parent)
    : QFrame(parent), severity_(severity) {}

void NoticeFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (!severity_) {
    return;
  }
  const QColor color = SeverityColor(*severity_, palette());
  painter.fillRect(rect(), Mixed(palette().color(QPalette::Window), color, tint));
  painter.fillRect(QRect(0, 0, edgeWidth, height()), color);
}

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setTextFormat(Qt::PlainText);
  // As rich text the hint wraps.
  setToolTip(Qt::convertFromPlainText(text));
}

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 12, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  painter.drawItemText(rect(), Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(),
                       fontMetrics().elidedText(text(), Qt::ElideRight, width()), foregroundRole());
}

}  // namespace trelonit

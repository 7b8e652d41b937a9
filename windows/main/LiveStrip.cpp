#include "windows/main/LiveStrip.h"

#include <QHelpEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

constexpr double cellGap = 18;
constexpr double sideGap = 10;
constexpr double topGap = 5;
constexpr double useBarHeight = 7;
constexpr double markHalf = 4;
/// The coefficient at the right end of a bar; what is more ends there too.
constexpr double fullScale = 1.25;

constexpr const char* stripSection = "Window";
constexpr const char* stripKey = "LiveStrip";

/// A colour that is hardly there.
QColor Faint(QColor color) {
  color.setAlphaF(0.16F);
  return color;
}

}  // namespace

LiveStrip::LiveStrip(frmMain& form, QWidget* parent) : QWidget(parent), form_(form) {
  setObjectName(QStringLiteral("LiveStrip"));
  setAccessibleName(QStringLiteral("Живой расчет"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  timer_.setSingleShot(true);
  timer_.setInterval(pause);
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { Refresh(); });
  form_.DesignTouched = [this] {
    if (isVisible()) {
      timer_.start();
    }
  };
}

LiveStrip::~LiveStrip() {
  form_.DesignTouched = nullptr;
}

QSize LiveStrip::sizeHint() const {
  return {900, static_cast<int>(fontMetrics().height() + useBarHeight + 2 * topGap + 2 * markHalf)};
}

QSize LiveStrip::minimumSizeHint() const {
  return {400, sizeHint().height()};
}

void LiveStrip::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  // Not at once: the window is to stand first.
  timer_.start();
}

void LiveStrip::Refresh() {
  result_ = form_.CalculateLive();
  setAccessibleDescription(ToQt(result_.InWords()));
  update();
}

std::vector<QRectF> LiveStrip::Places() const {
  const QFontMetricsF metrics(font());
  std::vector<double> figures;
  double right = sideGap;
  for (const LiveFigure& figure : result_.Figures) {
    figures.push_back(std::max(metrics.horizontalAdvance(ToQt(figure.Caption)),
                               metrics.horizontalAdvance(ToQt(figure.Value))));
    right += figures.back() + cellGap;
  }
  const auto groups = static_cast<double>(std::max<std::size_t>(1, result_.Groups.size()));
  const double cell = std::max((width() - sideGap - right) / groups, cellGap + 1);
  std::vector<QRectF> places;
  double x = sideGap;
  for (std::size_t group = 0; group < result_.Groups.size(); ++group) {
    places.emplace_back(x, topGap, cell - cellGap, height() - 2 * topGap);
    x += cell;
  }
  for (const double figure : figures) {
    places.emplace_back(x, topGap, figure, height() - 2 * topGap);
    x += figure + cellGap;
  }
  return places;
}

void LiveStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(0, 0, width(), 1, palette().color(QPalette::Mid));
  if (result_.HasRefused()) {
    const QRectF place = QRectF(rect()).adjusted(sideGap, 0, -sideGap, 0);
    painter.setPen(AsideColor(palette()));
    painter.drawText(
        place, Qt::AlignVCenter | Qt::AlignLeft,
        QFontMetricsF(font()).elidedText(QStringLiteral("Результата нет. ") + ToQt(result_.Refusal),
                                         Qt::ElideRight, place.width()));
    return;
  }
  const std::vector<QRectF> places = Places();
  auto place = places.begin();
  for (const LiveGroup& group : result_.Groups) {
    PaintGroup(painter, group, *place++);
  }
  for (const LiveFigure& figure : result_.Figures) {
    PaintFigure(painter, figure, *place++);
  }
}

void LiveStrip::PaintLine(QPainter& painter, const QString& caption, const QString& value,
                          const QColor& color, const QRectF& place) const {
  const QFontMetricsF metrics(font());
  const double room = place.width() - metrics.horizontalAdvance(value) - 6;
  painter.setPen(AsideColor(palette()));
  painter.drawText(place, Qt::AlignTop | Qt::AlignLeft,
                   metrics.elidedText(caption, Qt::ElideRight, std::max(room, 0.0)));
  painter.setPen(color);
  painter.drawText(place, Qt::AlignTop | Qt::AlignRight, value);
}

void LiveStrip::PaintGroup(QPainter& painter, const LiveGroup& group, const QRectF& place) const {
  const QColor told = group.Fails() ? WarningColor(palette()) : PassedColor(palette());
  const QColor doubtful =
      group.FailsByOpinionOnly() ? CautionColor(palette()) : palette().color(QPalette::Text);
  PaintLine(painter, ToQt(GroupName(group.Group)), ToQt(group.Value),
            group.Fails() ? told : doubtful, place);
  const auto at = [&place](double use) {
    return place.left() + place.width() * std::clamp(use / fullScale, 0.0, 1.0);
  };
  const double top = place.bottom() - useBarHeight - markHalf;
  painter.setPen(Qt::NoPen);
  painter.setBrush(Faint(palette().color(QPalette::Text)));
  painter.drawRoundedRect(QRectF(place.left(), top, place.width(), useBarHeight), 2, 2);
  painter.setBrush(told);
  painter.drawRoundedRect(QRectF(place.left(), top, at(group.Told) - place.left(), useBarHeight), 2,
                          2);
  painter.setPen(QPen(palette().color(QPalette::Text), 1));
  painter.drawLine(QPointF(at(1), top - 2), QPointF(at(1), top + useBarHeight + 2));
  if (group.Opinion) {
    const double x = at(*group.Opinion);
    const double foot = top + useBarHeight / 2;
    painter.setPen(QPen(palette().color(QPalette::Window), 1));
    painter.setBrush(*group.Opinion > 1 ? WarningColor(palette())
                                        : palette().color(QPalette::Text));
    painter.drawPolygon(QPolygonF({{x, foot},
                                   {x + markHalf + 1, foot + 2 * markHalf},
                                   {x - markHalf - 1, foot + 2 * markHalf}}));
  }
}

void LiveStrip::PaintFigure(QPainter& painter, const LiveFigure& figure,
                            const QRectF& place) const {
  painter.setPen(AsideColor(palette()));
  painter.drawText(place, Qt::AlignTop | Qt::AlignLeft | Qt::TextDontClip, ToQt(figure.Caption));
  painter.setPen(figure.Fails ? WarningColor(palette()) : palette().color(QPalette::Text));
  painter.drawText(place, Qt::AlignBottom | Qt::AlignLeft | Qt::TextDontClip, ToQt(figure.Value));
}

QString LiveStrip::HintAt(QPointF point) const {
  const std::vector<QRectF> places = Places();
  for (std::size_t number = 0; number < places.size(); ++number) {
    if (point.x() >= places[number].left() - cellGap / 2 &&
        point.x() < places[number].right() + cellGap / 2) {
      const std::size_t groups = result_.Groups.size();
      return ToQt(number < groups ? result_.Groups[number].Hint
                                  : result_.Figures[number - groups].Hint);
    }
  }
  return ToQt(result_.Refusal);
}

bool LiveStrip::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return QWidget::event(event);
  }
  const auto* help = static_cast<QHelpEvent*>(event);
  const QString hint = HintAt(help->pos());
  if (hint.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help->globalPos(), hint, this);
  }
  return true;
}

void AddViewMenu(QMenuBar& bar, LiveStrip& strip, SettingsService& settings) {
  QAction* shown = bar.addMenu(QStringLiteral("Вид"))->addAction(strip.accessibleName());
  shown->setObjectName(QStringLiteral("mnuLiveStrip"));
  shown->setCheckable(true);
  shown->setChecked(settings.Get(stripSection, stripKey, BooleanToText(true)) !=
                    BooleanToText(false));
  strip.setVisible(shown->isChecked());
  QObject::connect(shown, &QAction::toggled, &strip, [&strip, &settings](bool on) {
    strip.setVisible(on);
    settings.Set(stripSection, stripKey, BooleanToText(on));
  });
}

}  // namespace trelonit

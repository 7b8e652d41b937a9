#include "windows/main/SmallSchemeView.h"

#include <QPainter>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

SmallSchemeView::SmallSchemeView(frmMain& form, QWidget* parent) : QWidget(parent), form_(form) {
  setMinimumSize(sizeHint() * 2 / 3);
  const auto follow = [this](Line& line) { Follow(line, this, [this] { update(); }); };
  follow(form_.linUpPoyas);
  follow(form_.linDownPoyas);
  follow(form_.linOpornRaskos);
  for (Line& line : form_.linRaskos) {
    follow(line);
  }
  for (Line& line : form_.linStoyka) {
    follow(line);
  }
}

void SmallSchemeView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  // Half a truss: the support diagonal, two diagonals and three verticals stand between the chords.
  const double margin = 14;
  const double left = margin;
  const double right = width() - margin;
  const double top = margin;
  const double bottom = height() - margin;
  const double panel = (right - left) / 3;
  const auto draw = [&](const Line& line, QPointF a, QPointF b) {
    const bool red = line.BorderColor() == colorRed;
    painter.setPen(QPen(red ? WarningColor(palette()) : palette().color(QPalette::Text),
                        red ? 4 : 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(a, b);
  };
  const auto at = [&](double column, double y) { return QPointF(left + column * panel, y); };
  // The red lines come last, on top of the ends of the others.
  for (const bool red : {false, true}) {
    const auto pass = [&](const Line& line, QPointF a, QPointF b) {
      if ((line.BorderColor() == colorRed) == red) {
        draw(line, a, b);
      }
    };
    pass(form_.linUpPoyas, at(0, top), at(3, top));
    pass(form_.linDownPoyas, at(1, bottom), at(3, bottom));
    pass(form_.linOpornRaskos, at(0, top), at(1, bottom));
    pass(form_.linRaskos[1], at(1, top), at(2, bottom));
    pass(form_.linRaskos[2], at(2, top), at(3, bottom));
    for (Long number = 1; number <= 3; ++number) {
      pass(form_.linStoyka[number], at(static_cast<double>(number), top),
           at(static_cast<double>(number), bottom));
    }
  }
}

}  // namespace trelonit

#include "windows/main/SmallSchemeView.h"

#include <QPainter>

#include "analysis/Scheme.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

/// A few panels of the scheme, as wide as high; a reserved one looks like the first.
Truss SmallTruss(Long number) {
  const Scheme* scheme = FindScheme(number);
  constexpr Long panels = 6;
  TreloData data;
  data.TreloType = scheme == nullptr || scheme->Reserved ? 1 : number;
  data.PanelNum = panels;
  data.LengthF = panels;
  data.LenOporn = 1;
  data.Hight = 1;
  return TrussOf(data);
}

}  // namespace

SmallSchemeView::SmallSchemeView(frmMain& form, QWidget* parent) : QWidget(parent), form_(form) {
  setMinimumSize(sizeHint() * 2 / 3);
  const auto follow = [this](ControlState& state) { Follow(state, this, [this] { update(); }); };
  follow(form_.imgPrevSchem);
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

const Line& SmallSchemeView::LineOf(ElementGroup group) const {
  switch (group) {
    case ElementGroup::UpPoyas:
      return form_.linUpPoyas;
    case ElementGroup::DwnPoyas:
      return form_.linDownPoyas;
    case ElementGroup::Stoyka:
      return form_.linStoyka[1];
    case ElementGroup::Raskos:
      return form_.linRaskos[1];
    case ElementGroup::OpornRaskos:
      break;
  }
  return form_.linOpornRaskos;
}

void SmallSchemeView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  constexpr double margin = 14;
  const QRectF place = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
  const Truss truss = SmallTruss(form_.Model.Inputs.TreloType);
  const double span = truss.Joints[truss.Upper.back()].X;
  const double height = truss.Joints[truss.Upper.front()].Y;
  const auto at = [&](std::size_t joint) {
    return QPointF(place.left() + truss.Joints[joint].X / span * place.width(),
                   place.bottom() - truss.Joints[joint].Y / height * place.height());
  };
  // The red lines come last, on top of the ends of the others.
  for (const bool red : {false, true}) {
    painter.setPen(QPen(red ? WarningColor(palette()) : palette().color(QPalette::Text),
                        red ? 4 : 2, Qt::SolidLine, Qt::RoundCap));
    for (const TrussBar& bar : truss.Bars) {
      if ((LineOf(bar.Group).BorderColor() == colorRed) == red) {
        painter.drawLine(at(bar.A), at(bar.B));
      }
    }
  }
}

}  // namespace trelonit

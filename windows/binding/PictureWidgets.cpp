#include "windows/binding/PictureWidgets.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

constexpr int frameRadius = 4;
constexpr int pictureMargin = 5;

QRectF FrameOf(const QWidget& button) {
  return QRectF(button.rect()).adjusted(1, 1, -1, -1);
}

}  // namespace

PictureView::PictureView(QSize preferred, QWidget* parent)
    : QWidget(parent), preferred_(preferred) {
  setMinimumSize(preferred / 2);
}

void PictureView::SetFile(const QString& file) {
  if (file_ == file) {
    return;
  }
  file_ = file;
  drawing_.Forget();
  update();
}

void PictureView::SetWarning(bool warning) {
  if (warning_ == warning) {
    return;
  }
  warning_ = warning;
  update();
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (warning_) {
    painter.setPen(QPen(WarningColor(palette()), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), frameRadius, frameRadius);
  }
  drawing_.Draw(painter, *this, Drawing());
}

PaintedLayer::Painting PictureView::Drawing() const {
  return [place = QRectF(rect()), file = file_, palette = palette(), enabled = isEnabled()](
             QPainter& layer) { DrawPicture(layer, place, file, palette, enabled); };
}

PictureButton::PictureButton(QSize preferred, QWidget* parent)
    : QAbstractButton(parent), preferred_(preferred) {
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  setMinimumSize(preferred * 2 / 3);
}

void PictureButton::SetFile(const QString& file) {
  if (file_ == file) {
    return;
  }
  file_ = file;
  drawing_.Forget();
  update();
}

void PictureButton::SetPale(bool pale) {
  if (pale_ == pale) {
    return;
  }
  pale_ = pale;
  drawing_.Forget();
  update();
}

bool PictureButton::event(QEvent* event) {
  if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) {
    update();
  }
  return QAbstractButton::event(event);
}

QPen PictureButton::FramePen() const {
  if (isChecked()) {
    return QPen(palette().color(QPalette::Highlight), 2);
  }
  const bool pointedAt = underMouse() && isEnabled();
  return QPen(palette().color(pointedAt ? QPalette::Text : QPalette::Mid), 1);
}

PaintedLayer::Painting PictureButton::Drawing() const {
  return [frame = FrameOf(*this), pen = framed_,
          ground = palette().color(pale_ ? QPalette::Window : QPalette::Base), file = file_,
          palette = palette(), enabled = isEnabled() && !pale_](QPainter& layer) {
    layer.setPen(pen);
    layer.setBrush(ground);
    layer.drawRoundedRect(frame, frameRadius, frameRadius);
    DrawPicture(layer, frame.adjusted(pictureMargin, pictureMargin, -pictureMargin, -pictureMargin),
                file, palette, enabled);
  };
}

void PictureButton::PaintAside(PaintingAside& aside) {
  framed_ = FramePen();
  drawing_.Begin(*this, Drawing(), aside);
}

void PictureButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (const QPen pen = FramePen(); pen != framed_) {
    framed_ = pen;
    drawing_.Forget();
  }
  drawing_.Draw(painter, *this, Drawing());
  if (hasFocus()) {
    // The style's own mark is too faint beside a picture.
    QPen dashes(palette().color(QPalette::Text), 2, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({2, 2});
    painter.setPen(dashes);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(FrameOf(*this).adjusted(3, 3, -3, -3), frameRadius, frameRadius);
  }
}

void Bind(Image& state, PictureView* view) {
  Follow(state, view, [&state, view] {
    view->SetFile(PictureFile(state.Shown()));
    ShowCommon(state, view);
  });
}

void Bind(Image& state, PictureButton* button, std::function<void()> click) {
  const auto show = [&state, button] {
    if (const QString file = PictureFile(state.Shown()); !file.isEmpty()) {
      button->SetFile(file);
    }
    button->setChecked(state.Marked());
    ShowCommon(state, button);
  };
  Follow(state, button, show);
  QObject::connect(button, &QAbstractButton::clicked, button, [click = std::move(click), show] {
    click();
    show();
  });
}

}  // namespace trelonit

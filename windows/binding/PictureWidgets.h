#pragma once

#include <QAbstractButton>
#include <QPen>
#include <QWidget>

#include "platform/forms/Controls.h"
#include "windows/binding/PaintedLayer.h"

namespace trelonit {

/// Shows one drawing as large as it fits.
class PictureView : public QWidget {
 public:
  explicit PictureView(QSize preferred, QWidget* parent = nullptr);
  void SetFile(const QString& file);
  /// A frame in the colour of what exceeds a limit.
  void SetWarning(bool warning);
  /// Has the drawing painted before it is asked for.
  void PaintAside(PaintingAside& aside) { drawing_.Begin(*this, Drawing(), aside); }
  QSize sizeHint() const override { return preferred_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PaintedLayer::Painting Drawing() const;

  QSize preferred_;
  QString file_;
  PaintedLayer drawing_;
  bool warning_ = false;
};

/// A drawing to press, framed while it is the chosen one of its row.
class PictureButton : public QAbstractButton {
 public:
  explicit PictureButton(QSize preferred, QWidget* parent = nullptr);
  void SetFile(const QString& file);
  /// Looks as if it were not there to be pressed, though it can be.
  void SetPale(bool pale);
  /// Has the drawing painted before it is asked for.
  void PaintAside(PaintingAside& aside);
  QSize sizeHint() const override { return preferred_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  /// The frame tells what the button is at the moment.
  QPen FramePen() const;
  PaintedLayer::Painting Drawing() const;

  QSize preferred_;
  QString file_;
  bool pale_ = false;
  QPen framed_;
  PaintedLayer drawing_;
};

void Bind(Image& state, PictureView* view);
/// Shows the mark, and the picture where the state has one. A press runs the handler; which
/// picture is the chosen one then is the logic's answer.
void Bind(Image& state, PictureButton* button, std::function<void()> click);

}  // namespace trelonit

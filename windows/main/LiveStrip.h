#pragma once

#include <QTimer>
#include <QWidget>
#include <vector>

#include "workstation/main/frmMain.h"

class QMenuBar;

namespace trelonit {

/// What the design comes to while it is being entered: a bar for each group, mass and deflection.
/// It follows the last change after a moment's pause; grey, with the reason, where nothing can be
/// calculated.
class LiveStrip : public QWidget {
 public:
  /// After the last change, milliseconds.
  static constexpr int pause = 30;

  explicit LiveStrip(frmMain& form, QWidget* parent = nullptr);
  LiveStrip(const LiveStrip&) = delete;
  LiveStrip& operator=(const LiveStrip&) = delete;
  ~LiveStrip() override;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  const LiveResult& Shown() const { return result_; }
  /// Calculates and shows it now.
  void Refresh();

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  /// Places of the groups, then of the figures.
  std::vector<QRectF> Places() const;
  void PaintGroup(QPainter& painter, const LiveGroup& group, const QRectF& place) const;
  void PaintFigure(QPainter& painter, const LiveFigure& figure, const QRectF& place) const;
  /// A caption, as much of it as there is room for beside the value, in the line at the top.
  void PaintLine(QPainter& painter, const QString& caption, const QString& value,
                 const QColor& color, const QRectF& place) const;
  QString HintAt(QPointF point) const;

  frmMain& form_;
  QTimer timer_;
  LiveResult result_;
};

/// The menu by which the strip is hidden and shown, which the settings keep between runs.
void AddViewMenu(QMenuBar& bar, LiveStrip& strip, SettingsService& settings);

}  // namespace trelonit

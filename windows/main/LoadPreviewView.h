#pragma once

#include <QWidget>

#include "workstation/main/frmMain.h"

namespace trelonit {

/// The schematic of the chord on display with its loads. A press chooses the joint or the panel
/// that is nearest.
class LoadPreviewView : public QWidget {
 public:
  explicit LoadPreviewView(frmMain& form, QWidget* parent = nullptr);
  ~LoadPreviewView() override;
  LoadPreviewView(const LoadPreviewView&) = delete;
  LoadPreviewView& operator=(const LoadPreviewView&) = delete;
  QSize sizeHint() const override { return {900, 220}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  double ToX(Long displayUnits) const;
  void DrawChord(QPainter& painter, double y) const;
  void DrawPanelLoads(QPainter& painter, const ChordMarks& marks, double y) const;
  void DrawJointLoads(QPainter& painter, const ChordMarks& marks, double y) const;
  /// A value over its mark, turned upright where the panels are too narrow for it.
  void DrawLabel(QPainter& painter, const PreviewLabel& label, double y, bool upright) const;
  bool NeedsUprightLabels(const ChordMarks::Labels& labels) const;

  frmMain& form_;
};

}  // namespace trelonit

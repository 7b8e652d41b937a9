#pragma once

#include <QWidget>

#include "workstation/main/frmMain.h"

namespace trelonit {

/// The small scheme beside the sections: a truss whose lines have the colours that the form gives
/// them, the current group red.
class SmallSchemeView : public QWidget {
 public:
  explicit SmallSchemeView(frmMain& form, QWidget* parent = nullptr);
  QSize sizeHint() const override { return {260, 110}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  frmMain& form_;
};

}  // namespace trelonit

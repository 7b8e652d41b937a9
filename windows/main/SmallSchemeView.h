#pragma once

#include <QWidget>

#include "workstation/main/frmMain.h"

namespace trelonit {

/// The small scheme beside the sections: the chosen scheme, whose bars have the colours that the
/// form gives the lines of their groups, the current group red.
class SmallSchemeView : public QWidget {
 public:
  explicit SmallSchemeView(frmMain& form, QWidget* parent = nullptr);
  QSize sizeHint() const override { return {260, 110}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Line& LineOf(ElementGroup group) const;

  frmMain& form_;
};

}  // namespace trelonit

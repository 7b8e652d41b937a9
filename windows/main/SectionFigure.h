#pragma once

#include <QWidget>
#include <optional>

#include "catalogue/SectionDrawing.h"
#include "platform/text/NumberText.h"

namespace trelonit {

/// A composed section, as large as it fits, with its axes and dimensions.
class SectionFigure : public QWidget {
 public:
  explicit SectionFigure(QWidget* parent = nullptr);

  /// The dimensions are written in this locale. Without a drawing it says that there is none.
  void Show(std::optional<SectionDrawing> drawing, NumberLocale locale);
  QSize sizeHint() const override { return {280, 250}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  NumberLocale locale_;
  std::optional<SectionDrawing> drawing_;
};

}  // namespace trelonit

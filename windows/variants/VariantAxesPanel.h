#pragma once

#include <QWidget>

#include "variants/frmVariants.h"

class QBoxLayout;
class QGridLayout;

namespace trelonit {

/// What is to be tried: the axes with their values, schemes, kinds of section, and how sizes are
/// chosen.
class VariantAxesPanel : public QWidget {
 public:
  explicit VariantAxesPanel(frmVariants& form, QWidget* parent = nullptr);

 private:
  void AddAxis(QGridLayout* rows, AxisName name);
  void AddSchemes(QBoxLayout* column);
  void AddChoice(QBoxLayout* column);
  QWidget* NewKindButton(AxisName name);

  frmVariants& form_;
};

}  // namespace trelonit

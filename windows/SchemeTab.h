#pragma once

#include <QWidget>

#include "workstation/frmMain.h"

class QBoxLayout;

namespace trelonit {

/// Tab "Параметры фермы": scheme, geometry, bracing and the deflection limit.
class SchemeTab : public QWidget {
 public:
  explicit SchemeTab(frmMain& form, QWidget* parent = nullptr);

 private:
  void AddSchemes(QBoxLayout* column);
  void AddGeometry(QBoxLayout* column);
  void AddBracing(QBoxLayout* column, OptionGroup& options, const QString& title,
                  const QString& hint, const QStringList& lengths);
  void AddDeflection(QBoxLayout* column);

  frmMain& form_;
};

}  // namespace trelonit

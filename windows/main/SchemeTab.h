#pragma once

#include <QWidget>
#include <vector>

#include "windows/binding/PaintingAside.h"
#include "workstation/main/frmMain.h"

class QBoxLayout;
class QGridLayout;

namespace trelonit {

class GeometryMarks;
class PictureButton;
class PictureView;
class TrussSketchView;

/// Tab "Параметры фермы": scheme, geometry, bracing and the deflection limit.
class SchemeTab : public QWidget {
 public:
  explicit SchemeTab(frmMain& form, QWidget* parent = nullptr);
  SchemeTab(const SchemeTab&) = delete;
  SchemeTab& operator=(const SchemeTab&) = delete;
  ~SchemeTab() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void AddSchemes(QBoxLayout* column);
  void AddGeometry(QBoxLayout* column);
  /// The bracing of one chord out of the plane.
  struct Bracing {
    OptionGroup& Options;
    BoundedArray<frmMain::BracingLength>& Lengths;
    QString Name;  ///< of the labels with the lengths
    QString Caption;
    QString Hint;
    QStringList Taken;  ///< the length that the calculation takes, in words, by option
  };
  void AddBracing(QBoxLayout* column, const Bracing& bracing);
  /// The lengths of one option, behind it.
  void AddLengths(QGridLayout* rows, const Bracing& bracing, Long number, QWidget* option);
  void AddDeflection(QBoxLayout* column);

  /// Has the pictures painted while the window comes up.
  void PaintAside();

  /// The truss to scale and the marks at the boxes, as the boxes stand.
  void RefreshGeometry();

  frmMain& form_;
  std::vector<PictureButton*> schemes_;
  PictureView* chosen_ = nullptr;
  TrussSketchView* truss_ = nullptr;
  GeometryMarks* marks_ = nullptr;
  PaintingAside aside_;
  bool begun_ = false;
};

}  // namespace trelonit

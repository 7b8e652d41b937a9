#pragma once

#include <QTreeWidget>
#include <functional>
#include <memory>

#include "drawing/host/Drawing.h"

namespace trelonit {

/// As Russian drawings and programs write it: decimal comma, groups of three.
QString RussianNumber(double number, int decimals);

/// The layers of a drawing with their line weights, each to be switched on and off.
class DrawingLayers : public QTreeWidget {
 public:
  explicit DrawingLayers(QWidget* parent = nullptr);

  /// Lists the layers anew; null for none.
  void Show(std::shared_ptr<Drawing> drawing);

  /// The user switched a layer, in the drawing too.
  std::function<void()> Switched;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Fill();
  void Switch(QTreeWidgetItem& item);

  std::shared_ptr<Drawing> drawing_;
};

}  // namespace trelonit

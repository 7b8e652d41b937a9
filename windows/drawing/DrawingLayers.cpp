#include "windows/drawing/DrawingLayers.h"

#include <QEvent>
#include <QHeaderView>
#include <QIcon>
#include <QLocale>
#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "windows/binding/Binding.h"
#include "windows/binding/Units.h"
#include "windows/drawing/DrawingPainter.h"

namespace trelonit {

namespace {

constexpr int nameColumn = 0;
constexpr int weightColumn = 1;
constexpr QSize strokeSize(28, 16);

/// A stroke in the layer's own colour and width.
QIcon LayerIcon(const Drawing& drawing, const DrawingLayer& layer, const QPalette& palette,
                double pixelsPerMillimetre) {
  QPixmap pixmap(strokeSize);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  const double width = StrokeWidth(drawing, layer.Name) * pixelsPerMillimetre;
  painter.setPen(
      QPen(LayerColor(layer.Name, palette), std::max(1.0, width), Qt::SolidLine, Qt::FlatCap));
  const double middle = strokeSize.height() / 2.0;
  painter.drawLine(QPointF(2, middle), QPointF(strokeSize.width() - 2, middle));
  return QIcon(pixmap);
}

}  // namespace

QString RussianNumber(double number, int decimals) {
  return QLocale(QLocale::Russian).toString(number, 'f', decimals);
}

DrawingLayers::DrawingLayers(QWidget* parent) : QTreeWidget(parent) {
  setAccessibleName(QStringLiteral("Слои"));
  setRootIsDecorated(false);
  setHeaderLabels({QStringLiteral("Слой"), QStringLiteral("Линия, мм")});
  setIconSize(strokeSize);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
  header()->setSectionResizeMode(weightColumn, QHeaderView::ResizeToContents);
  QObject::connect(this, &QTreeWidget::itemChanged, this,
                   [this](QTreeWidgetItem* item) { Switch(*item); });
}

void DrawingLayers::Show(std::shared_ptr<Drawing> drawing) {
  drawing_ = std::move(drawing);
  Fill();
}

void DrawingLayers::Fill() {
  const QSignalBlocker quiet(this);
  clear();
  if (drawing_ == nullptr) {
    return;
  }
  for (const DrawingLayer& layer : drawing_->Layers) {
    auto* item = new QTreeWidgetItem(this);
    item->setText(nameColumn, ToQt(layer.Name));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(nameColumn, IsShown(*drawing_, layer.Name) ? Qt::Checked : Qt::Unchecked);
    item->setText(weightColumn, RussianNumber(StrokeWidth(*drawing_, layer.Name), 2));
    item->setIcon(weightColumn,
                  LayerIcon(*drawing_, layer, palette(), logicalDpiX() / millimetresPerInch));
  }
}

void DrawingLayers::Switch(QTreeWidgetItem& item) {
  DrawingLayer& layer = drawing_->Layers.at(static_cast<std::size_t>(indexOfTopLevelItem(&item)));
  layer.LayerOn = item.checkState(nameColumn) == Qt::Checked;
  // A frozen layer would stay hidden.
  layer.Freeze = layer.Freeze && !layer.LayerOn;
  if (Switched) {
    Switched();
  }
}

void DrawingLayers::changeEvent(QEvent* event) {
  QTreeWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    Fill();
  }
}

}  // namespace trelonit

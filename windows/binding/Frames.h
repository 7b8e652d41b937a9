#pragma once

#include <QGroupBox>
#include <QTabWidget>

namespace trelonit {

// Widgets whose frame the toolkit's own style paints slowly: it stretches a small picture, and for
// each edge with a hundred rows or more it wakes other threads, for which it waits longer than the
// edge would take. These look the same.

class Group : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

class Tabs : public QTabWidget {
 public:
  using QTabWidget::QTabWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace trelonit

#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QString>

#include "windows/binding/Frames.h"

namespace trelonit {

/// A group box with a layout of its own.
template <class Layout>
Layout* AddGroup(QBoxLayout* parent, const QString& title, int stretch = 0) {
  auto* box = new Group(title);
  auto* layout = new Layout(box);
  parent->addWidget(box, stretch);
  return layout;
}

/// A label that leads to the widget, by its mnemonic and for those who hear the screen.
inline QLabel* LabelFor(QWidget* widget, const QString& caption) {
  auto* label = new QLabel(caption);
  label->setBuddy(widget);
  widget->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
  return label;
}

/// Gives a window that is not shown yet its usual size, or less where the screen is small: a frame
/// still comes round it.
inline void ResizeWithinScreen(QWidget& window, QSize usual) {
  window.resize(usual.boundedTo(window.screen()->availableSize() * 9 / 10));
}

/// The hint also tells those who hear the screen.
inline void SetHint(QWidget* widget, const QString& hint) {
  widget->setToolTip(hint);
  widget->setAccessibleDescription(hint);
}

}  // namespace trelonit

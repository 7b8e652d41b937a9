#pragma once

#include <QScreen>
#include <QTreeWidget>

#include "tests/windows/DialogHands.h"
#include "tests/windows/drawing/DrawingSheets.h"
#include "windows/drawing/DrawingWindow.h"

namespace trelonit::test {

/// The window with two drawings, the second in front.
class DrawingWindowOnScreen : public testing::Test {
 protected:
  DrawingWindowOnScreen() {
    Window.Add(First);
    Window.Add(Second);
    ShowActive(Window);
  }

  QTabWidget& Tabs() { return Find<QTabWidget>(Window, "Drawings"); }
  DrawingView& View() { return dynamic_cast<DrawingView&>(*Tabs().currentWidget()); }
  QTreeWidget& Layers() { return Find<QTreeWidget>(Window, "Layers"); }
  std::string Says(const std::string& label) { return FromQt(Find<QLabel>(Window, label).text()); }
  QAction& Entry(const std::string& name) {
    auto* action = Window.findChild<QAction*>(ToQt(name));
    if (action == nullptr) {
      throw std::logic_error("no menu entry " + name);
    }
    return *action;
  }
  std::shared_ptr<Drawing> First = SmallDrawing("Drawing1.dwg");
  std::shared_ptr<Drawing> Second = SmallDrawing("Drawing2.dwg");
  DrawingWindow Window;
};

}  // namespace trelonit::test

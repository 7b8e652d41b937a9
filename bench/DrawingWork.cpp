// The drawing window at work: the largest truss is moved under the pointer. Tells how long a frame
// takes on average.

#include <QApplication>
#include <QMouseEvent>
#include <chrono>

#include "analysis/modTrelo.h"
#include "bench/Designs.h"
#include "bench/FirstPaint.h"
#include "catalogue/modProfileData.h"
#include "drawing/host/BuiltInHost.h"
#include "drawing/scheme/modACADExport.h"
#include "windows/drawing/DrawingView.h"
#include "windows/services/Desktop.h"

namespace {

using namespace trelonit;
using Clock = std::chrono::steady_clock;

constexpr int frames = 200;
constexpr QSize viewSize{1200, 800};

std::shared_ptr<Drawing> LargestTruss(BuiltInHost& host) {
  bench::World world;
  const ProfileTypeArray catalogue = LoadProfileTypes(world.Bundle());
  const SectionArray sections = bench::PairedAngles(catalogue);
  const TreloData data = bench::LoadedTruss(1, bench::largestPanelNum);
  const TreloResult result = CalcTrelo(data).Value;
  BuiltInHostAutomation automation(host);
  Label panel;
  ACADExport(automation, world.Messages, {}, {data, result, sections}, panel)
      .mnuFileAutoCAD_Click();
  return host.ActiveDocument();
}

void Send(QWidget& view, QEvent::Type type, QPointF place) {
  const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, place, view.mapToGlobal(place), button, buttons, Qt::NoModifier);
  QApplication::sendEvent(&view, &event);
  QApplication::processEvents();
}

/// Milliseconds a frame while the drawing is dragged to and fro.
double Pan(QWidget& view) {
  QPointF place(viewSize.width() / 2.0, viewSize.height() / 2.0);
  Send(view, QEvent::MouseButtonPress, place);
  const Clock::time_point start = Clock::now();
  for (int frame = 0; frame < frames; ++frame) {
    constexpr int turn = 20;
    constexpr double step = 7;
    place += frame / turn % 2 == 0 ? QPointF(step, step / 2) : QPointF(-step, -step / 2);
    Send(view, QEvent::MouseMove, place);
  }
  const std::chrono::duration<double, std::milli> time = Clock::now() - start;
  Send(view, QEvent::MouseButtonRelease, place);
  return time.count() / frames;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const Desktop desktop;
  BuiltInHost host;
  DrawingView view(LargestTruss(host));
  view.resize(viewSize);
  view.show();
  QApplication::processEvents();
  bench::Tell("panned", Pan(view));
  // Closer, where the letters are large.
  view.ZoomBy(6);
  QApplication::processEvents();
  bench::Tell("closepanned", Pan(view));
  return 0;
}

// The desktop program as it starts for a user, ended once its window has been painted, or with
// "calculate" after a number of Calculates and reports on the largest truss. Tells what that took.

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <algorithm>
#include <chrono>
#include <ctime>
#include <string_view>

#include "apps/trelonit/DesktopSession.h"
#include "bench/FirstPaint.h"
#include "windows/editor/OtchetWindow.h"
#include "windows/main/LiveStrip.h"
#include "windows/results/KoeffOfUseWindow.h"
#include "windows/services/Desktop.h"
#include "windows/services/FontsAhead.h"

namespace {

using namespace trelonit;
using Clock = std::chrono::steady_clock;

constexpr int repetitions = 15;
/// A message that waits for an answer would keep the measurement for ever.
constexpr int patience = 60 * 1000;

template <class Widget>
Widget& Find(const QWidget& window, const char* name) {
  auto* widget = window.findChild<Widget*>(QLatin1String(name));
  if (widget == nullptr) {
    qFatal("no %s in the window", name);
  }
  return *widget;
}

void Enter(const QWidget& window, const char* name, const char* text) {
  auto& edit = Find<QLineEdit>(window, name);
  edit.setText(QLatin1String(text));
  emit edit.textEdited(edit.text());
}

/// 36 m in 30 panels, every panel loaded, with own weight and deflection: all that Calculate does.
void EnterLargestTruss(const QWidget& window) {
  Enter(window, "txtLengthF", "36");
  // Higher ones bring up the warning of steep diagonals.
  Enter(window, "txtHight", "2.4");
  Enter(window, "txtLenOporn", "1.2");
  auto& panels = Find<QComboBox>(window, "cmbPanelNum");
  const int largest = panels.findText(QStringLiteral("30"));
  panels.setCurrentIndex(largest);
  emit panels.activated(largest);
  Find<QCheckBox>(window, "chkProgib").click();
  Find<QTabWidget>(window, "tabMain").setCurrentIndex(2);
  Find<QAbstractButton>(window, "imgDistForce").click();
  Find<QCheckBox>(window, "chkAllPanels").click();
  Enter(window, "txtForceVal", "1.5");
  Find<QPushButton>(window, "cmdAddForce").click();
  Find<QCheckBox>(window, "chkOwnWeight").click();
}

/// Answers the question of a closing document window with No.
void ThrowChangesAway() {
  QTimer::singleShot(0, [] {
    if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      question->button(QMessageBox::No)->click();
    }
  });
}

/// From the command to the window that it opens, painted, in milliseconds.
template <class Window>
double TimeToWindow(QAction& command) {
  const Clock::time_point start = Clock::now();
  double milliseconds = 0;
  const bench::FirstPaint firstPaint(
      [](const QWidget& widget) { return dynamic_cast<const Window*>(&widget) != nullptr; },
      [&](QWidget& window) {
        milliseconds = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
        ThrowChangesAway();
        window.close();
      });
  command.trigger();
  if (milliseconds == 0) {
    qFatal("no window was shown");
  }
  return milliseconds;
}

template <class Window>
double BestTime(const QWidget& window, const char* entry) {
  auto* command = window.findChild<QAction*>(QLatin1String(entry));
  double best = 1e9;
  for (int run = 0; run < repetitions; ++run) {
    best = std::min(best, TimeToWindow<Window>(*command));
  }
  return best;
}

/// Processor time from a key in a box of the first tab until its truss and the live result show, in
/// milliseconds: all that the program does meanwhile.
double CostOfKey(const QWidget& window) {
  Find<QTabWidget>(window, "tabMain").setCurrentIndex(0);
  auto& box = Find<QLineEdit>(window, "txtHight");
  box.setFocus();
  const auto wait = [](int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
  };
  wait(3 * LiveStrip::pause);
  double best = 1e9;
  for (int run = 0; run < repetitions; ++run) {
    const bool digit = run % 2 == 0;
    QKeyEvent key(QEvent::KeyPress, digit ? Qt::Key_1 : Qt::Key_Backspace, Qt::NoModifier,
                  digit ? QStringLiteral("1") : QString());
    const std::clock_t start = std::clock();
    QApplication::sendEvent(&box, &key);
    wait(2 * LiveStrip::pause);
    best = std::min(best, 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
  }
  return best;
}

void CalculateAll(const QWidget& window) {
  EnterLargestTruss(window);
  bench::Tell("live", CostOfKey(window));
  bench::Tell("calculated", BestTime<KoeffOfUseWindow>(window, "mnuCalc"));
  bench::Tell("memory", bench::ResidentMegabytes());
  bench::Tell("reported", BestTime<OtchetWindow>(window, "mnuOtchet"));
}

}  // namespace

int main(int argc, char** argv) {
  FontsAhead fonts;
  QApplication application(argc, argv);
  const FontsAhead::Taken untilItEnds(fonts);
  const Desktop desktop;
  DesktopSession session;
  const bool calculate = argc > 1 && std::string_view(argv[1]) == "calculate";
  const bench::FirstPaint firstPaint(
      [](const QWidget& widget) { return dynamic_cast<const QMainWindow*>(&widget) != nullptr; },
      [&](QWidget& window) {
        bench::Tell("painted", bench::ResidentMegabytes());
        if (calculate) {
          CalculateAll(window);
        }
        // Quitting would ask whether the truss is to be stored.
        QApplication::exit();
      });
  QTimer::singleShot(patience, [] { qFatal("the measurement hangs"); });
  session.Start({}, [&fonts] { fonts.WaitForList(); });
  return QApplication::exec();
}

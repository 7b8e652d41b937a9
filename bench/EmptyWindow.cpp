// What any program of this kind has to pay: an application with an empty main window, ended once
// that has been painted.

#include <QApplication>
#include <QMainWindow>

#include "bench/FirstPaint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.resize(1180, 700);
  const trelonit::bench::FirstPaint firstPaint([](const QWidget&) { return true; },
                                               [](QWidget&) {
                                                 trelonit::bench::Tell("painted", 0);
                                                 QApplication::quit();
                                               });
  window.show();
  return QApplication::exec();
}

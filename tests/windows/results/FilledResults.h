#pragma once

#include <QCoreApplication>
#include <memory>

#include "tests/windows/Hands.h"
#include "tests/workstation/main/Desk.h"
#include "windows/results/KoeffOfUseWindow.h"

namespace trelonit::test {

/// A results form that the calculation of a design has filled, with its window. The design is that
/// of the start, with a load on one joint that as a rule makes some groups fail and lets others
/// hold, and what the test does to it before.
struct FilledResults {
  explicit FilledResults(
      const std::function<void(frmMain&)>& prepare = [](frmMain&) {},
      const NumberLocale& locale = PointLocale()) {
    StartedDesk desk(locale);
    prepare(desk.Main);
    desk.Main.tabMain.SetTab(2);
    AddForce(desk.Main, 3, "1.2");
    desk.Main.cmdCalculate_Click();
    Lists = desk.Results.at(0);
    Form.Fill(Lists);
  }
  KoeffOfUseWindow& Open() {
    // The form knows one window at a time.
    Window.reset();
    Window = std::make_unique<KoeffOfUseWindow>(Form, nullptr);
    Window->show();
    // What the window lays out once its size is settled.
    QCoreApplication::sendPostedEvents();
    return *Window;
  }

  frmKoeffOfUse Form;
  ResultLists Lists;
  std::unique_ptr<KoeffOfUseWindow> Window;
};

}  // namespace trelonit::test

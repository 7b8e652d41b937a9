#pragma once

#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <string>

#include "tests/windows/Hands.h"
#include "tests/workstation/main/Desk.h"
#include "windows/main/MainWindow.h"

namespace trelonit::test {

/// The main window on screen, over a started form in a world of its own.
class Screen : public StartedDesk {
 public:
  explicit Screen(const NumberLocale& locale = PointLocale())
      : StartedDesk(locale), Window(Main, Outside.Settings) {
    Window.CompleteTabs();
    Window.show();
  }

  QLineEdit& Edit(const std::string& name) { return Find<QLineEdit>(Window, name); }
  QComboBox& Combo(const std::string& name) { return Find<QComboBox>(Window, name); }
  QAbstractButton& Button(const std::string& name) { return Find<QAbstractButton>(Window, name); }
  QTabWidget& Tabs() { return Find<QTabWidget>(Window, "tabMain"); }
  std::string Hopt() { return FromQt(Find<QLabel>(Window, "Hopt").text()); }

  void GoTo(int tab) { ClickTab(Tabs(), tab); }
  void Press(const std::string& name) { Click(Button(name)); }
  void TypeInto(const std::string& name, const std::string& text) { Type(Edit(name), text); }
  void PickIn(const std::string& name, const std::string& entry) { Pick(Combo(name), entry); }
  /// The entry of a menu with this name.
  QAction& MenuEntry(const std::string& name) {
    auto* action = Window.findChild<QAction*>(ToQt(name));
    if (action == nullptr) {
      throw std::logic_error("no menu entry " + name);
    }
    return *action;
  }

  MainWindow Window;
};

inline const std::string wrongGeometry =
    "Неверно заданы геометрические параметры фермы.\nПроверте значение длинны/высоты фермы !";
inline const std::string tooHigh =
    "Высота фермы превышает ее длинну !\nВозможно данный случай продиктован конструктивно,\n но не "
    "лучше ли использовать простую балку ? .";
inline const std::string doubtfulProportions =
    "Соотношение высоты фермы и длинны панели вызывают сомнения \nв оптимальности выбора "
    "соотношений длинна фермы - высота фермы - !\n кол-во панелей. Угол наклона раскосов > 65 град "
    ".";
inline const std::string noForce = "Не задана величина силы\nИли значение силы не корректно !";

}  // namespace trelonit::test

#pragma once

#include <QTableWidget>

#include "tests/checks/SteelDesk.h"
#include "tests/windows/DialogHands.h"
#include "windows/dialogs/SteelWindow.h"

namespace trelonit::test {

/// The window on screen over a main form that was never touched.
struct SteelScreen : SteelDesk {
  explicit SteelScreen(const NumberLocale& locale = {}, bool broken = false)
      : SteelDesk(locale, broken), Window(Form, nullptr) {
    ShowActive(Window);
  }

  QComboBox& Grades() { return Find<QComboBox>(Window, "cmbSteelName"); }
  QComboBox& Ranges() { return Find<QComboBox>(Window, "cmbSheetThick"); }
  QLineEdit& Sheet() { return Find<QLineEdit>(Window, "txtRysheet"); }
  QLineEdit& Shaped() { return Find<QLineEdit>(Window, "txtRyfason"); }
  QTableWidget& Conditions() { return Find<QTableWidget>(Window, "MSFGridYc"); }
  QAbstractButton& Importance(int option) {
    return Find<QAbstractButton>(Window, "optOtvetstven" + std::to_string(option));
  }
  QPushButton& Apply() { return Find<QPushButton>(Window, "cmdApply"); }

  void PickSteel(const std::string& grade, const std::string& range) {
    Pick(Grades(), grade);
    Pick(Ranges(), range);
  }
  void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    QTableWidget& table = Conditions();
    table.scrollToItem(table.item(row, 2));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, modifiers,
                      table.visualItemRect(table.item(row, 2)).center());
  }
  /// Both resistances as the window shows them. Behind the last dash of a grade stands the end of
  /// its line in the table, which is painted as a blank.
  std::string Seen() {
    return FromQt(Sheet().displayText().trimmed() + "/" + Shaped().displayText().trimmed());
  }
  bool Open() const { return Window.isVisible(); }

  SteelWindow Window;
};

inline void ClickBox(QLineEdit& box, Qt::MouseButton button = Qt::LeftButton) {
  QTest::mouseClick(&box, button, {}, box.rect().center());
}

/// Which box looks chosen: the background is what tells the user.
inline std::string LooksChosen(SteelScreen& screen) {
  const auto white = [](const QLineEdit& box) {
    return box.backgroundRole() == QPalette::Base &&
           box.palette().color(QPalette::Base) == QPalette().color(QPalette::Base);
  };
  const auto grey = [](const QLineEdit& box) {
    return box.backgroundRole() == QPalette::Window &&
           box.palette().color(QPalette::Base) == QPalette().color(QPalette::Window);
  };
  if (white(screen.Sheet()) && grey(screen.Shaped())) {
    return "sheet";
  }
  return white(screen.Shaped()) && grey(screen.Sheet()) ? "shaped" : "unclear";
}

}  // namespace trelonit::test

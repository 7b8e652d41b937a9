#pragma once

#include "tests/catalogue/DataManagerDesk.h"
#include "tests/windows/DialogHands.h"
#include "windows/dialogs/DataManagerWindow.h"

namespace trelonit::test {

constexpr Long managerBoxes = frmDataManager::boxCount;

/// What the window of a manager shows and offers.
class ManagerView {
 public:
  explicit ManagerView(QWidget& window) : window_(window) {}
  QLineEdit& Box(Long number) { return Find<QLineEdit>(window_, "Text" + std::to_string(number)); }
  QPushButton& Button(const std::string& name) { return Find<QPushButton>(window_, name); }
  void Click(const std::string& name) { test::Click(Button(name)); }
  QAction& Entry(const std::string& name) {
    auto* action = window_.findChild<QAction*>(ToQt(name));
    if (action == nullptr) {
      throw std::logic_error("no menu entry " + name);
    }
    return *action;
  }
  std::string Label(const std::string& name) { return FromQt(Find<QLabel>(window_, name).text()); }
  std::string Counts() { return Label("lblCurr") + "/" + Label("lblTotal"); }
  Texts Seen() {
    Texts texts;
    for (Long number = 1; number <= managerBoxes; ++number) {
      texts.push_back(FromQt(Box(number).text()));
    }
    return texts;
  }

 private:
  QWidget& window_;
};

/// The manager's window over a file of numbered records.
struct ManagerDesk : MemoryDesk {
  ManagerDesk(Long records, const NumberLocale& locale)
      : MemoryDesk(NumberedFile(records), locale), Window(Desk.Form, nullptr) {}
  DataManagerWindow Window;
};

/// The same on screen, the file loaded by its button.
struct ManagerScreen : ManagerDesk, ManagerView {
  explicit ManagerScreen(Long records = 0, const NumberLocale& locale = {})
      : ManagerDesk(records, locale), ManagerView(Window) {
    ShowActive(Window);
    if (records > 0) {
      Desk.World.Dialogs.Names = {Path};
      Click("cmdLoadDB");
    }
  }
  /// The texts of the boxes of messages since the last call.
  Texts Told() {
    Texts texts;
    for (const Message& message : std::exchange(Desk.Messages.Shown, {})) {
      texts.push_back(message.Text);
    }
    return texts;
  }
};

}  // namespace trelonit::test

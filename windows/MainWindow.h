#pragma once

#include <QMainWindow>
#include <QTimer>

#include "workstation/frmMain.h"

class QLabel;
class QMenu;

namespace trelonit {

/// The workstation's window: three tabs, menus, status bar, running caption. It shows a form that
/// has been loaded; the form outlives it.
class MainWindow : public QMainWindow {
 public:
  /// Settings keep the place of the window between runs.
  MainWindow(frmMain& form, SettingsService& settings);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddTabs();
  void AddMenus();
  void AddMenu(QMenu* menu, const std::vector<frmMain::MenuItem>& items);
  void AddStatusBar();
  void ShowStatus();
  void RestorePlace();
  void StorePlace();

  frmMain& form_;
  SettingsService& settings_;
  QTimer caption_;
  QTimer status_;
  QLabel* time_ = nullptr;
  QLabel* date_ = nullptr;
  QLabel* num_ = nullptr;
  QLabel* caps_ = nullptr;
  QLabel* scroll_ = nullptr;
};

}  // namespace trelonit

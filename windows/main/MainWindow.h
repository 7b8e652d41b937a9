#pragma once

#include <QMainWindow>
#include <QTimer>

#include "workstation/main/frmMain.h"

class QLabel;
class QMenu;
class QTabWidget;

namespace trelonit {

class HistoryDesk;

/// The workstation's window: three tabs, menus, status bar, running caption. It shows a form that
/// has been loaded; the form outlives it.
class MainWindow : public QMainWindow {
 public:
  /// Settings keep the place of the window between runs.
  MainWindow(frmMain& form, SettingsService& settings);
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;
  /// However the program ends, the place is kept.
  ~MainWindow() override;

  /// Builds the tabs that are not to be seen yet. It happens by itself after the first paint or on
  /// the way to one of them, so that the window stands sooner.
  void CompleteTabs();

  /// The document's name stands in the title behind the form's caption, with a mark where it has
  /// changes that are not saved.
  void SetDocument(const QString& name, bool modified);
  HistoryDesk& History() { return *history_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QTabWidget* NewTabs();
  /// That own weight seems to be inside the loads already, over every tab, until the user decides.
  QWidget* NewOwnWeightBanner();
  /// The empty page of a tab whose content comes later.
  QWidget* AddPage(QTabWidget* tabs, const QString& caption);
  void AddMenus();
  void AddMenu(QMenu* menu, const std::vector<frmMain::MenuItem>& items);
  void AddStatusBar();
  void ShowStatus();
  void ShowTitle();
  void RestorePlace();
  void StorePlace();

  frmMain& form_;
  SettingsService& settings_;
  HistoryDesk* history_ = nullptr;
  QString document_;
  QWidget* sectionPage_ = nullptr;
  QWidget* loadPage_ = nullptr;
  QTimer caption_;
  QTimer status_;
  QLabel* time_ = nullptr;
  QLabel* date_ = nullptr;
  QLabel* num_ = nullptr;
  QLabel* caps_ = nullptr;
  QLabel* scroll_ = nullptr;
};

}  // namespace trelonit

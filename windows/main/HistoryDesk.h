#pragma once

#include <QAction>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "workstation/history/DesignSteps.h"

class QKeyEvent;
class QLineEdit;
class QMainWindow;

namespace trelonit {

/// Undo and Redo of the main window: its menu "Правка", the line that tells of lost loads, and the
/// moments at which a step is looked for.
class HistoryDesk : public QObject {
 public:
  HistoryDesk(frmMain& form, QMainWindow& window);
  HistoryDesk(const HistoryDesk&) = delete;
  HistoryDesk& operator=(const HistoryDesk&) = delete;
  /// Takes along what shows its states.
  ~HistoryDesk() override;

  /// The line over the tabs.
  QWidget* NewLoadsLostBanner();

  /// Looks for a step now.
  void Note();
  /// Called after that was done.
  std::function<void()> Noted;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddMenu();
  QAction* NewAction(MenuEntry& state, const char* name, const QList<QKeySequence>& keys,
                     void (DesignSteps::*click)());
  /// Whether the key belongs to what is being typed in the box and not to the design.
  bool IsOfBox(const QLineEdit& box, const QKeyEvent& key);
  /// The box that the user types in; null for everything else.
  QLineEdit* TypedBox() const;

  QMainWindow& window_;
  DesignSteps steps_;
  QPointer<QAction> undo_;
  QPointer<QAction> redo_;
  QPointer<QWidget> banner_;
  // Ticks once the event that may have changed something has been served.
  QTimer settled_;
  // What reaches the program past its own events: programs for those who do not see the screen.
  QTimer lookAgain_;
};

}  // namespace trelonit

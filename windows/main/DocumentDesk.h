#pragma once

#include <QObject>
#include <QTimer>

#include "workstation/document/ProjectDocument.h"

class QAction;
class QMenu;
class QMimeData;

namespace trelonit {

class MainWindow;

/// The document in the main window: its name in the title, its entries in the first menu, projects
/// that are dropped, the recovery copy. Closing the window asks by itself.
class DocumentDesk : public QObject {
 public:
  /// The document outlives the desk, which goes with the window. Settings may tell how often a
  /// recovery copy is made: "Document/RecoverySeconds".
  DocumentDesk(ProjectDocument& document, MainWindow& window, SettingsService& settings);
  DocumentDesk(const DocumentDesk&) = delete;
  DocumentDesk& operator=(const DocumentDesk&) = delete;
  ~DocumentDesk() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddEntries();
  void ShowRecent();
  void ShowDocument();

  ProjectDocument& document_;
  MainWindow& window_;
  QMenu* recent_ = nullptr;
  QTimer copies_;
};

}  // namespace trelonit

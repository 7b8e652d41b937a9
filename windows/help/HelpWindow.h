#pragma once

#include <QMainWindow>
#include <memory>
#include <vector>

#include "windows/help/HelpPages.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace trelonit {

class HelpPageView;

/// The guide: contents, index and search beside the page. Links lead to pages of the guide only.
class HelpWindow : public QMainWindow {
 public:
  HelpWindow();

  /// Shows the page ("page.html" or "page.html#anchor") in front of the other windows, over a
  /// window that waits for its end too.
  void ShowPage(const QString& page);
  const HelpPages& Pages() const { return pages_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddPage();
  void AddToolBar();
  void AddSides();
  QWidget* AddContents();
  void AddEntries(QTreeWidgetItem* parent, const std::vector<HelpEntry>& entries);
  QWidget* AddIndex();
  QWidget* AddSearch();
  void AddFindBar();
  QAction* NewAction(const char* name, const char* text, const char* picture,
                     const QList<QKeySequence>& keys);

  /// Over a window that waits for its end; alone where there is none.
  void StandOver(const QWidget* modal);
  /// What stands beside the page that is shown now.
  void ShowPlace(const QUrl& url);
  void ShowTerms(const QString& beginning);
  void Search();
  void OpenHit(const QString& page);
  void BeginFind();
  void EndFind();
  void FindNext(bool forward);

  HelpPages pages_;
  HelpPageView* page_ = nullptr;
  QTabWidget* sides_ = nullptr;
  QTreeWidget* contents_ = nullptr;
  QLineEdit* term_ = nullptr;
  QListWidget* terms_ = nullptr;
  QLineEdit* words_ = nullptr;
  QListWidget* hits_ = nullptr;
  QLabel* found_ = nullptr;
  QToolBar* findBar_ = nullptr;
  QLineEdit* find_ = nullptr;
  QLabel* findResult_ = nullptr;
};

/// The program's one help window, made when it is first asked for.
class HelpViewer {
 public:
  /// The first page.
  void Open();
  /// The page of the place; the first one where the place has none.
  void OpenPlace(const QString& place);
  /// Null before the first use.
  HelpWindow* Window() const { return window_.get(); }

 private:
  std::unique_ptr<HelpWindow> window_;
};

}  // namespace trelonit

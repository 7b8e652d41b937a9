#pragma once

#include <QMainWindow>
#include <QString>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "windows/drawing/DrawingDialogs.h"
#include "windows/drawing/DrawingView.h"

class QActionGroup;
class QLabel;
class QMenu;
class QPrinter;
class QTabWidget;

namespace trelonit {

class DrawingLayers;

/// The drawings of a host, each on a tab, with the layers of the one in front. What the user does
/// to a drawing itself (closing it, bringing it to the front) is told to the owner.
class DrawingWindow : public QMainWindow {
 public:
  /// The settings keep the title block of the sheets; without them it lasts as long as the window.
  explicit DrawingWindow(QWidget* parent = nullptr, SettingsService* settings = nullptr);
  ~DrawingWindow() override;
  DrawingWindow(const DrawingWindow&) = delete;
  DrawingWindow& operator=(const DrawingWindow&) = delete;

  using DrawingPtr = std::shared_ptr<Drawing>;

  // Drawings that the window does not have are left alone.
  void Add(const DrawingPtr& drawing);
  void Remove(const DrawingPtr& drawing);
  void Activate(const DrawingPtr& drawing);
  /// The drawing was changed; it is looked at anew once the events run.
  void Renew(const DrawingPtr& drawing);
  void ZoomExtents(const DrawingPtr& drawing);

  /// Shows the window in front of all others until the user closes it.
  void ShowModal();

  /// The user closes a drawing: the owner removes it.
  std::function<void(const DrawingPtr&)> CloseAsked;
  std::function<void(const DrawingPtr&)> Activated;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QAction* NewAction(const char* name, const char* text, const char* picture);
  void AddMenus();
  void AddPaperMenu(QMenu& menu);
  void AddToolBar();
  void AddTabs();
  void AddLayers();
  void AddStatusBar();

  DrawingView* View(int tab) const;
  DrawingView* Present() const;
  int TabOf(const DrawingPtr& drawing) const;
  void AskToClose(int tab);
  void Save(const DrawingFileKind& kind);
  void Print();
  void AskForTitleBlock();
  SheetChoice Choice() const;
  void ShowPresent();
  void ShowScale();
  void ShowSheet();
  void ShowPointer(std::optional<QPointF> point);

  QTabWidget* tabs_ = nullptr;
  DrawingLayers* layers_ = nullptr;
  QLabel* pointer_ = nullptr;
  QLabel* scale_ = nullptr;
  QLabel* sheet_ = nullptr;
  /// What the sheet has no room for.
  QLabel* crowded_ = nullptr;
  std::map<std::string, QAction*> actions_;
  SettingsService* settings_;
  std::optional<PaperFormat> paper_;
  TitleBlockChoice title_;
  /// Of the last file written: the next one is offered there.
  QString folder_;
  std::unique_ptr<QPrinter> printer_;
  /// Changes come by the thousand: what the window tells of the drawing is renewed after them.
  QTimer renewal_;
  /// Ends ShowModal.
  std::function<void()> closed_;
};

}  // namespace trelonit

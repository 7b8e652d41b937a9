#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <map>
#include <string>

#include "editor/document/frmOtchetMain.h"
#include "windows/editor/FindWindow.h"
#include "windows/editor/QtRichTextBox.h"

class QLabel;
class QMenu;

namespace trelonit {

/// The document window: menus, tool bar, the text, status bar. The form is loaded and outlives it.
class OtchetWindow : public QMainWindow {
 public:
  /// The box is the form's.
  OtchetWindow(frmOtchetMain& form, QtRichTextBox& box, QWidget* parent);
  ~OtchetWindow() override;
  OtchetWindow(const OtchetWindow&) = delete;
  OtchetWindow& operator=(const OtchetWindow&) = delete;

  /// Shows the window in front of all others until the user closes it.
  void ShowModal();
  /// Opens the find window or brings it to the front.
  void ShowFind(frmFind& form);

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddMenus();
  void AddToolBar();
  void AddDocument();
  void AddStatusBar();
  /// Larger and smaller letters on the screen, which the document knows nothing of.
  void AddZoom(QMenu& menu);
  void ZoomBy(int steps);
  void ConnectBox();
  QAction* MakeAction(const frmOtchetMain::MenuItem& item);
  void RestorePlace();
  void PlaceBeside(QWidget& window) const;

  frmOtchetMain& form_;
  QtRichTextBox& box_;
  QTimer paste_;
  std::map<std::string, QAction*> actions_;
  QMenu* editMenu_ = nullptr;
  int zoomSteps_ = 0;
  QLabel* zoom_ = nullptr;
  QPointer<FindWindow> find_;
  /// Ends ShowModal.
  std::function<void()> closed_;
};

}  // namespace trelonit

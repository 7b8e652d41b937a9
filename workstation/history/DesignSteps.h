#pragma once

#include <string>

#include "workstation/history/DesignHistory.h"
#include "workstation/main/frmMain.h"

namespace trelonit {

/// Undo and Redo of the main form: notes what its handlers have changed, and shows it again. The
/// form has been loaded and outlives it.
class DesignSteps {
 public:
  explicit DesignSteps(frmMain& form);
  DesignSteps(const DesignSteps&) = delete;
  DesignSteps& operator=(const DesignSteps&) = delete;
  ~DesignSteps() = default;

  /// After each handler has come to its end. Box: the name of the text box that the user types in,
  /// empty for everything else. Returns whether the design has changed.
  bool Note(const std::string& box = {});
  void mnuUndo_Click();
  void mnuRedo_Click();

  // Their captions name what they change.
  MenuEntry mnuUndo;
  MenuEntry mnuRedo;
  /// How many loads the last step has lost; hidden where it has lost none.
  Label lblLoadsLost;

 private:
  void Show(const DesignChange& change, const DesignState& state);
  void ShowEntries();
  void ShowLoadsLost(Long lost);

  frmMain& form_;
  DesignHistory history_;
};

}  // namespace trelonit

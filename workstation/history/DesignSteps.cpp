#include "workstation/history/DesignSteps.h"

namespace trelonit {

DesignSteps::DesignSteps(frmMain& form) : form_(form) {
  form_.TakeLoadsLost();
  history_.Begin(form_.State());
  ShowLoadsLost(0);
  ShowEntries();
}

bool DesignSteps::Note(const std::string& box) {
  const Long lost = form_.TakeLoadsLost();
  const bool changed = history_.Note(form_.State(), box);
  if (changed) {
    ShowLoadsLost(lost);
    ShowEntries();
  }
  return changed;
}

void DesignSteps::mnuUndo_Click() {
  Note();
  if (history_.CanUndo()) {
    const DesignChange change = history_.UndoneNext();
    Show(change, history_.Undo());
  }
}

void DesignSteps::mnuRedo_Click() {
  Note();
  if (history_.CanRedo()) {
    const DesignChange change = history_.RedoneNext();
    Show(change, history_.Redo());
  }
}

void DesignSteps::Show(const DesignChange& change, const DesignState& state) {
  form_.ShowState(state, change.Place);
  ShowLoadsLost(0);
  ShowEntries();
}

void DesignSteps::ShowEntries() {
  const auto show = [](MenuEntry& entry, const std::string& caption, bool enabled,
                       const std::string& change) {
    entry.SetCaption(enabled ? caption + ": " + change : caption);
    entry.SetEnabled(enabled);
  };
  const bool undo = history_.CanUndo();
  const bool redo = history_.CanRedo();
  show(mnuUndo, "Отменить", undo, undo ? history_.UndoneNext().Name : "");
  show(mnuRedo, "Вернуть", redo, redo ? history_.RedoneNext().Name : "");
}

void DesignSteps::ShowLoadsLost(Long lost) {
  lblLoadsLost.SetCaption(lost > 0 ? "Потеряно нагрузок: " + std::to_string(lost) + "." : "");
  lblLoadsLost.SetVisible(lost > 0);
}

}  // namespace trelonit

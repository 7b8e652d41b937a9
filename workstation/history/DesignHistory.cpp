#include "workstation/history/DesignHistory.h"

#include <utility>

namespace trelonit {

void DesignHistory::Begin(DesignState now) {
  states_.clear();
  bytes_ = 0;
  at_ = 0;
  openBox_.clear();
  Push(std::move(now));
}

bool DesignHistory::Note(DesignState now, const std::string& box) {
  const bool goesOn = !box.empty() && box == openBox_;
  if (SameDesign(now, Now())) {
    Replace(std::move(now));
    if (!goesOn) {
      openBox_.clear();
    }
    return false;
  }
  while (CanRedo()) {
    DropLast();
  }
  if (goesOn) {
    Replace(std::move(now));
    // Typed back to what it was.
    if (SameDesign(Now(), states_[at_ - 1].State)) {
      --at_;
      DropLast();
      openBox_.clear();
    }
  } else {
    Push(std::move(now));
    at_ = states_.size() - 1;
    openBox_ = box;
  }
  while (bytes_ > mostBytes_ && at_ > 0) {
    DropOldest();
  }
  return true;
}

DesignChange DesignHistory::UndoneNext() const {
  return ChangeBetween(Now(), states_[at_ - 1].State);
}

DesignChange DesignHistory::RedoneNext() const {
  return ChangeBetween(Now(), states_[at_ + 1].State);
}

const DesignState& DesignHistory::Undo() {
  openBox_.clear();
  return states_[--at_].State;
}

const DesignState& DesignHistory::Redo() {
  openBox_.clear();
  return states_[++at_].State;
}

void DesignHistory::Push(DesignState state) {
  const std::size_t bytes = BytesOf(state);
  states_.push_back({std::move(state), bytes});
  bytes_ += bytes;
}

void DesignHistory::Replace(DesignState state) {
  Entry& now = states_[at_];
  bytes_ -= now.Bytes;
  now.Bytes = BytesOf(state);
  now.State = std::move(state);
  bytes_ += now.Bytes;
}

void DesignHistory::DropLast() {
  bytes_ -= states_.back().Bytes;
  states_.pop_back();
}

void DesignHistory::DropOldest() {
  bytes_ -= states_.front().Bytes;
  states_.pop_front();
  --at_;
  if (at_ == 0) {
    openBox_.clear();
  }
}

}  // namespace trelonit

#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "workstation/history/DesignChange.h"

namespace trelonit {

/// The states that a design has been in, so that each change of it can be taken back and made
/// again. Values only: showing a state is up to others.
class DesignHistory {
 public:
  static constexpr std::size_t mostBytes = std::size_t{10} << 20U;

  /// Where more bytes are needed the oldest states go.
  explicit DesignHistory(std::size_t bytes = mostBytes) : mostBytes_(bytes) {}

  /// Forgets everything: the design begins with this state.
  void Begin(DesignState now);
  /// The design is in this state now: a step, if the user has changed something. What is typed into
  /// one box in one go is one step; the box is empty for everything else, which also ends the
  /// typing. Returns whether there is a step more or another one.
  bool Note(DesignState now, const std::string& box = {});

  bool CanUndo() const { return at_ > 0; }
  bool CanRedo() const { return at_ + 1 < states_.size(); }
  /// What the next Undo or Redo changes. To be asked only where there is one.
  DesignChange UndoneNext() const;
  DesignChange RedoneNext() const;
  /// The state to show, which is then the present one. Only where there is one.
  const DesignState& Undo();
  const DesignState& Redo();

  const DesignState& Now() const { return states_[at_].State; }
  std::size_t Steps() const { return states_.size() - 1; }
  std::size_t Bytes() const { return bytes_; }

 private:
  struct Entry {
    DesignState State;
    std::size_t Bytes = 0;
  };

  void Push(DesignState state);
  void Replace(DesignState state);
  void DropLast();
  void DropOldest();

  std::size_t mostBytes_;
  std::deque<Entry> states_{1};
  std::size_t at_ = 0;
  std::size_t bytes_ = 0;
  // The box whose typing made the present state.
  std::string openBox_;
};

}  // namespace trelonit

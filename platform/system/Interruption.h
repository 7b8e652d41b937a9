#pragma once

#include <atomic>

namespace trelonit {

/// While one of these lives, Ctrl+C does not end the program: it asks long work to come to an end
/// of its own. There is at most one at a time.
class Interruption {
 public:
  Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;
  ~Interruption();

  /// Becomes true once the user has asked.
  const std::atomic<bool>& IsAsked() const;
};

}  // namespace trelonit

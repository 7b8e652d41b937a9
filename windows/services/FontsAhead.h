#pragma once

#include <future>
#include <thread>

namespace trelonit {

/// Reads the list of the system's fonts, the longest part of a start, beside the others: while the
/// application reaches the display, and while the forms are loaded. Who needs a font before that is
/// done waits as usual.
class FontsAhead {
 public:
  /// Before there is an application.
  FontsAhead();
  FontsAhead(const FontsAhead&) = delete;
  FontsAhead& operator=(const FontsAhead&) = delete;
  ~FontsAhead();

  /// Once there is one: the toolkit takes the list over.
  void TakeOver();

 private:
  /// Whether the toolkit is there; a start that ends before has none.
  std::promise<bool> ready_;
  bool told_ = false;
  std::thread reading_;
};

}  // namespace trelonit

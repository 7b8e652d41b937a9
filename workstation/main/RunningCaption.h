#pragma once

#include <string>

#include "platform/values/Integers.h"

namespace trelonit {

/// The caption of the main form that scrolls by one character a tick.
class RunningCaption {
 public:
  /// The next caption: the title and a window of 60 characters on the text. The step that wraps
  /// round shows 61 and starts over; that is intended.
  std::string Next(const std::string& title, const std::string& text);

  /// What scrolls: the program's purpose, the user and the computer.
  static std::string Text(const std::string& about, const std::string& user,
                          const std::string& computer);

 private:
  Long runCounter_ = 0;
};

}  // namespace trelonit

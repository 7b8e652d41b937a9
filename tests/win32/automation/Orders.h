#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>

#include "platform/errors/RuntimeError.h"

namespace trelonit::test {

/// What a server is and how it is to behave.
struct Orders {
  /// Besides being made on demand, the program is told to be running.
  bool Runs = false;
  /// Every call is turned away for this long, in milliseconds from the first one on.
  int Busy = 0;
  /// The process ends in the middle of this use of a member, from 1; 0 for none.
  std::size_t Death = 0;
  /// The program stays where Quit is asked without telling that nothing is to be saved, as one that
  /// shows a question in a window that nobody sees.
  bool Asks = false;
  /// Members that fail, as "Line.Layer" for a drawing and "Content.Copy" for a document.
  std::map<std::string, RuntimeError> Failures = {};
  std::string Program = {};
  /// The class that COM knows the program by.
  std::string Class = {};
};

// Through a file: wine starts no server whose command line is longer than a path.

void WriteOrders(const std::filesystem::path& file, const Orders& orders);
Orders ReadOrders(const std::filesystem::path& file);

}  // namespace trelonit::test

#pragma once

#include <string>

namespace trelonit {

// How a program with windows speaks while it has none: to the terminal that it was started from, or
// to the file or pipe in its place; where there is nothing of the kind, on the screen.

/// What was asked for.
void TellCaller(const std::string& text);

/// What went wrong.
void ComplainToCaller(const std::string& text);

}  // namespace trelonit

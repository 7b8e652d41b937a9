#pragma once

#include <functional>
#include <string>

#include "apps/cli/ConsoleSession.h"

namespace trelonit::cli {

/// Prints the object that a command came to. One that cannot be told as JSON is a failure: it says
/// so and prints the messages alone, as commands do that came to no result.
Status PrintJson(const ConsoleSession& session, const std::function<std::string()>& object);

}  // namespace trelonit::cli

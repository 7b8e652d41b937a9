#pragma once

#include "apps/cli/ConsoleSession.h"
#include "apps/cli/Paper.h"

namespace trelonit::cli {

/// Reads the command line and runs the command that it names. Wrong usage is told in one line.
Status RunCommandLine(int argc, const char* const* argv, const Paper& paper);

}  // namespace trelonit::cli

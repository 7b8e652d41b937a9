#pragma once

#include <string>

#include "apps/cli/ConsoleSession.h"

namespace trelonit::cli {

/// Does what a user does: start, restore, on to the last tab, which checks the geometry. False as
/// soon as something kept it from getting there.
bool Restore(ConsoleSession& session, const std::string& project);

/// The same and a command that shows results; false where there are none.
bool Calculate(ConsoleSession& session, const std::string& project, void (frmMain::*command)());

/// The two result lists as they are printed.
std::string ListsAsText(const ResultLists& lists);

}  // namespace trelonit::cli

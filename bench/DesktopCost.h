#pragma once

#include "bench/Table.h"

namespace trelonit::bench {

/// Start, Calculate and memory of the desktop program, on a display of its own. Throws
/// std::runtime_error when a measured program fails.
void AddDesktopRows(Table& table);

}  // namespace trelonit::bench

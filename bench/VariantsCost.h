#pragma once

#include "bench/Table.h"

namespace trelonit::bench {

/// Studies by trelonit-cli, whole processes with the table that they write. Throws
/// std::runtime_error when one fails.
void AddVariantRows(Table& table);

}  // namespace trelonit::bench

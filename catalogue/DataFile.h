#pragma once

#include <cstdint>
#include <istream>

#include "catalogue/ProfileRecord.h"

namespace trelonit {

/// The records of a data file of this length in bytes, from 1. Their count is rounded to the
/// nearest number, so that a last record that is cut counts when at least half of it is there; what
/// it lacks is blank or 0. Raises 6 for a count beyond a Long.
BoundedArray<ProfileRec> ReadProfileRecords(std::istream& stream, std::uint64_t length);

}  // namespace trelonit

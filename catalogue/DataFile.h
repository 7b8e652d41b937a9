#pragma once

#include <cstdint>
#include <istream>
#include <limits>

#include "catalogue/ProfileRecord.h"

namespace trelonit {

/// Record numbers of a catalogue are Integers. A damaged file therefore cannot claim more memory
/// than this many records take.
constexpr Long mostCatalogueRecords = std::numeric_limits<Integer>::max();

/// How many records a data file of this length in bytes has, rounded to the nearest number, so that
/// a last record that is cut counts when at least half of it is there. Raises 6 for a count beyond
/// a Long.
Long CountProfileRecords(std::uint64_t length);

/// The records of a data file of this length in bytes, from 1. What a last record lacks that is cut
/// is blank or 0. Raises 57 where not all of the bytes can be read, 6 as the count does.
BoundedArray<ProfileRec> ReadProfileRecords(std::istream& stream, std::uint64_t length);

}  // namespace trelonit

#pragma once

#include <string>
#include <string_view>

#include "catalogue/ProfileRecord.h"
#include "platform/system/Services.h"
#include "platform/values/Integers.h"

namespace trelonit {

/// Full path of the data file "GOST profile.dat" or of the index file "Index.ind" in the program's
/// folder. A missing file is unpacked from the program's resources; one that is there is used as it
/// stands, whatever its length, so that the user's edits last. Empty when the file could not be
/// unpacked: the user has then been told.
std::string ProfileDataFile(const Services& services);
std::string ProfileIndexFile(const Services& services);

/// Writes the custom resource to the path, cut so that the subscript of its last byte, counted from
/// 0, is at most the given size: a longer block becomes size + 1 bytes. Returns whether the file
/// was written; each failure shows its own message.
bool ResourceToFile(const Services& services, Integer resId, const std::string& path, Long size);

/// Reads the catalogue, unpacking its files where they are missing. Records that the data file is
/// too short for stay empty. Raises 52 where a file could not be unpacked, 6 for an index or data
/// file of more than 32767 records and for an index that claims more than that, 9 for a standard
/// that begins before record 1 or ends before its own beginning; errors of the files pass through.
ProfileTypeArray LoadProfileTypes(const Services& services);

/// Subscript of the last record of the standard that has this designation, compared as a field of
/// 15 characters. Without one the user is warned and the result is 1. Raises 9 for a standard that
/// was never loaded.
Long FindSizeIndex(MessageService& messages, const ProfileType& standard, std::string_view text);

}  // namespace trelonit

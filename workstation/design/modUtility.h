#pragma once

#include <string>
#include <string_view>

#include "platform/system/Services.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

Long MaxOfTwoLong(Long a, Long b);

/// The greatest element; 0 for an upper bound below 1, whatever stands at 0. A failure is shown
/// under "MaxInArray" and gives 0.
double MaxInArray(const BoundedArray<double>& values, MessageService& messages);

/// Whether the file is there. Where the file system cannot be asked the user is told, and the
/// answer is no.
bool IsThisFileExists(const std::string& path, const Services& services);

/// All values in order with the delimiter between them, none after the last. Raises 9 for an
/// unallocated array.
std::string JoinDoubles(const BoundedArray<double>& values, std::string_view delimiter,
                        const NumberLocale& locale);

/// The pieces of the text as numbers by ParseNumber, from 0; an empty text is one piece.
BoundedArray<double> SplitDoubles(std::string_view text, std::string_view delimiter,
                                  const NumberLocale& locale);

/// Full path of a file in the program's folder, or an empty text after telling the user that it is
/// missing.
std::string FindHelpFile(const std::string& fileName, const Services& services);

}  // namespace trelonit

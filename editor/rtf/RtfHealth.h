#pragma once

#include <string_view>

namespace trelonit {

/// Whether the bytes begin as rich text format.
bool BeginsAsRtf(std::string_view bytes);

/// Whether the document is there to its end: every group is closed, and none is nested deeper than
/// the reader follows. Of any other document the reader gives what can be read.
bool IsWholeRtf(std::string_view bytes);

}  // namespace trelonit

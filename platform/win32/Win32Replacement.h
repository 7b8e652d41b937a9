#pragma once

#include <functional>
#include <string_view>

namespace trelonit {

/// WriteInPlace with a copy of the whole old content, which goes when it is done. before is what
/// the bytes take the place of; Ctrl+C waits meanwhile. Raises as the file service does.
void WriteWithCopyKept(std::string_view whole, std::string_view before, std::string_view bytes,
                       const std::function<void(std::string_view)>& write);

}  // namespace trelonit

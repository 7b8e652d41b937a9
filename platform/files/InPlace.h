#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace trelonit {

/// Gives a file that cannot be replaced other content, where it stands. write puts all of a content
/// there; on its failure the old content is put back. Where that fails too, keepCopy is called: it
/// keeps the copy of the old content for good and gives its name, which the error then tells.
/// Raises what the first failure raised.
void WriteInPlace(const std::function<void(std::string_view)>& write, std::string_view old,
                  std::string_view bytes, const std::function<std::string()>& keepCopy);

}  // namespace trelonit

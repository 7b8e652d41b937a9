#pragma once

#include <string>
#include <string_view>

namespace trelonit {

/// The sum of these bytes as decimal digits (FNV-1a, 64 bits): tells a text that was cut off or
/// changed by accident from the whole one. It is no protection against forgery.
std::string ChecksumOf(std::string_view bytes);

}  // namespace trelonit

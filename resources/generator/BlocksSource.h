#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trelonit::packer {

/// A block and the function of EmbeddedBlocks.h that gives its bytes.
struct NamedBlock {
  std::string_view Accessor;
  std::string_view Bytes;
};

/// C++ source that defines these functions.
std::string BlocksSource(const std::vector<NamedBlock>& blocks);

}  // namespace trelonit::packer

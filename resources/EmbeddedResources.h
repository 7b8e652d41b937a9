#pragma once

#include <string>
#include <string_view>

#include "platform/forms/Resources.h"

namespace trelonit {

/// The resources that the program brings with it: the catalogue blocks, the numbers of its pictures
/// and the sentence on what it does.
class EmbeddedResources : public ResourceService {
 public:
  /// 101 steels, 102 catalogue data, 103 catalogue index; the bytes live as long as the program.
  std::string_view CustomBlock(Integer identifier) override;
  /// 101 to 105 schemes, 205 to 208 paired sections, 309 and 310 load previews.
  Picture Bitmap(Integer identifier) override;
  /// 102 and 103: the two load tools.
  Picture Icon(Integer identifier) override;
  /// 101: one Russian sentence on what the program does.
  std::string String(Integer identifier) override;
};

}  // namespace trelonit
